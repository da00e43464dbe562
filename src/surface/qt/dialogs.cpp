// The standard dialogs are the toolkit's own, so that they look and work alike on every desktop and
// speak Dutch.
#include "surface/qt/dialogs.h"

#include <QApplication>
#include <QClipboard>
#include <QColorDialog>
#include <QDir>
#include <QFileDialog>
#include <QHeaderView>
#include <QInputDialog>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QStandardPaths>
#include <QTreeView>

#include "surface/dialogs.h"
#include "surface/dispatch.h"
#include "surface/form.h"
#include "surface/qt/images.h"
#include "surface/qt/peers.h"

namespace surface::qt {
namespace {

// "name|pattern|name|pattern" to the toolkit's list of "name (pattern)".
QStringList filtersOf(const std::string& filter) {
  const QStringList fields = QString::fromStdString(filter).split('|');
  QStringList rows;
  for (int i = 0; i + 1 < fields.size(); i += 2) {
    // The dialog takes the pattern from between the brackets, whatever its case.
    const QString pattern = fields[i + 1] == "*.*" ? "*" : fields[i + 1];
    rows += fields[i].endsWith(')') ? fields[i] : fields[i] + " (" + pattern + ")";
  }
  return rows;
}

// Where the child was last, at first among the pictures. The last part of a folder that is not
// there would be taken for a file's name.
QString& folder() {
  static QString last = [] {
    const QString pictures = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
    return QDir(pictures).exists() ? pictures : QDir::homePath();
  }();
  return last;
}

// The flag of a colour dialog without the part in which own colours are mixed.
constexpr int ReadyColorsOnly = 4;

// The toolkit has no option for this, but the parts are the dialog's own children and told by their
// class; the two buttons among them serve mixing only.
void hideMixing(QColorDialog& dialog) {
  for (QWidget* part : dialog.findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
    const QByteArray kind = part->metaObject()->className();
    if (kind.endsWith("QColorPicker") || kind.endsWith("QColorLuminancePicker") ||
        kind.endsWith("QColorShower") || kind == "QPushButton")
      part->hide();
  }
}

// Room for a whole date; the name takes what is left.
void widenColumns(QFileDialog& dialog) {
  auto* files = dialog.findChild<QTreeView*>();
  if (!files) return;
  files->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
  files->header()->setSectionResizeMode(0, QHeaderView::Stretch);
}

QWidget* owner() { return QApplication::activeWindow(); }

// A window that stays above all others would hide a dialog that opens in its place.
void keepAbove(QDialog& dialog) {
  if (FormRegistry::instance().anyTopMost()) dialog.setWindowFlag(Qt::WindowStaysOnTopHint);
}

}  // namespace

int msgBox(const std::string& text, int buttons, const std::string& title) {
  showPending();
  QMessageBox box(owner());
  keepAbove(box);
  box.setWindowTitle(QString::fromStdString(title));
  box.setTextFormat(Qt::PlainText);
  box.setText(QString::fromStdString(text));
  if (buttons & Critical) box.setIcon(QMessageBox::Critical);
  if (buttons & YesNo) {
    box.setIcon(QMessageBox::Question);
    const QPushButton* yes = box.addButton("&Ja", QMessageBox::YesRole);
    QPushButton* no = box.addButton("&Nee", QMessageBox::NoRole);
    box.setEscapeButton(no);
    box.exec();
    return box.clickedButton() == yes ? Yes : No;
  }
  box.addButton("OK", QMessageBox::AcceptRole);
  box.exec();
  return Ok;
}

std::optional<std::string> inputBox(const std::string& prompt, const std::string& title,
                                    const std::string& initial) {
  showPending();
  QInputDialog dialog(owner());
  keepAbove(dialog);
  dialog.setWindowTitle(QString::fromStdString(title));
  dialog.setLabelText(QString::fromStdString(prompt));
  dialog.setTextValue(QString::fromStdString(initial));
  dialog.setOkButtonText("OK");
  dialog.setCancelButtonText("Annuleren");
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  return dialog.textValue().toStdString();
}

std::optional<std::string> fileDialog(const FileRequest& request) {
  showPending();
  QFileDialog dialog(owner(), request.save ? "Opslaan als" : "Openen", folder());
  keepAbove(dialog);
  dialog.setOption(QFileDialog::DontUseNativeDialog);
  // The program asks about an existing name itself.
  dialog.setOption(QFileDialog::DontConfirmOverwrite);
  dialog.setAcceptMode(request.save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  dialog.setFileMode(request.save ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
  const QStringList filters = filtersOf(request.filter);
  dialog.setNameFilters(filters);
  if (request.filterIndex >= 1 && request.filterIndex <= filters.size())
    dialog.selectNameFilter(filters[request.filterIndex - 1]);
  dialog.setLabelText(QFileDialog::Accept, request.save ? "Op&slaan" : "&Openen");
  dialog.setLabelText(QFileDialog::Reject, "Annuleren");
  dialog.setLabelText(QFileDialog::LookIn, "Map:");
  dialog.setLabelText(QFileDialog::FileName, "Bestands&naam:");
  dialog.setLabelText(QFileDialog::FileType, "Soort bestand:");
  widenColumns(dialog);
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
  folder() = dialog.directory().absolutePath();
  return dialog.selectedFiles().first().toStdString();
}

std::optional<Color> colorDialog(Color initial, int flags) {
  showPending();
  QColorDialog dialog(toQColor(initial), owner());
  keepAbove(dialog);
  dialog.setWindowTitle("Kleur");
  dialog.setOption(QColorDialog::DontUseNativeDialog);
  if (flags & ReadyColorsOnly) hideMixing(dialog);
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  return toColor(dialog.currentColor().rgb());
}

void errorReport(const std::string& text) {
  QMessageBox box(owner());
  keepAbove(box);
  box.setWindowTitle("KRAS PRET");
  box.setIcon(QMessageBox::Critical);
  box.setText("Er is een fout opgetreden, het programma stopt:\n\n" + QString::fromStdString(text));
  box.addButton("OK", QMessageBox::AcceptRole);
  box.exec();
}

// An image that keeps the bitmap alive: a copy of a large sheet would be one too many.
static QImage held(std::shared_ptr<const raster::Bitmap> bitmap) {
  using Keeper = std::shared_ptr<const raster::Bitmap>;
  const QImage image = wrapped(*bitmap);
  return QImage(
      image.constBits(), image.width(), image.height(), image.bytesPerLine(), image.format(),
      [](void* kept) { delete static_cast<Keeper*>(kept); }, new Keeper(std::move(bitmap)));
}

void setClipboard(const Picture& picture) {
  if (picture.empty())
    QGuiApplication::clipboard()->clear();
  else
    QGuiApplication::clipboard()->setImage(held(picture.bitmap()));
}

Picture getClipboard() {
  const QMimeData* data = QGuiApplication::clipboard()->mimeData();
  if (!data || !data->hasImage()) return {};
  const QImage image = QGuiApplication::clipboard()->image();
  return image.isNull() ? Picture() : toPicture(image);
}

}  // namespace surface::qt
