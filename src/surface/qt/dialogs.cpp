// The standard dialogs are the toolkit's own, so that they look and work alike on every desktop and
// speak Dutch.
#include "surface/qt/dialogs.h"

#include <QApplication>
#include <QClipboard>
#include <QColorDialog>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QRegularExpression>
#include <QStandardPaths>

#include "surface/dialogs.h"
#include "surface/dispatch.h"
#include "surface/qt/images.h"
#include "surface/qt/peers.h"

namespace surface::qt {
namespace {

// "name|pattern|name|pattern" to the toolkit's list of "name (pattern)".
QStringList filtersOf(const std::string& filter) {
  const QStringList fields = QString::fromStdString(filter).split('|');
  QStringList rows;
  for (int i = 0; i + 1 < fields.size(); i += 2) {
    const QString pattern =
        fields[i + 1] == "*.*" ? "*" : fields[i + 1] + ' ' + fields[i + 1].toUpper();
    rows += QString(fields[i]).remove(QRegularExpression(R"( *\(.*\))")) + " (" + pattern + ")";
  }
  return rows;
}

// Where the child was last, at first among the pictures.
QString& folder() {
  static QString last = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
  return last;
}

QWidget* owner() { return QApplication::activeWindow(); }

}  // namespace

int msgBox(const std::string& text, int buttons, const std::string& title) {
  showPending();
  QMessageBox box(owner());
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
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
  folder() = dialog.directory().absolutePath();
  return dialog.selectedFiles().first().toStdString();
}

std::optional<Color> colorDialog(Color initial, int) {
  showPending();
  QColorDialog dialog(toQColor(initial), owner());
  dialog.setWindowTitle("Kleur");
  dialog.setOption(QColorDialog::DontUseNativeDialog);
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  return toColor(dialog.currentColor().rgb());
}

void errorReport(const std::string& text) {
  QMessageBox box(owner());
  box.setWindowTitle("KRAS PRET");
  box.setIcon(QMessageBox::Critical);
  box.setText("Er is een fout opgetreden, het programma stopt:\n\n" + QString::fromStdString(text));
  box.addButton("OK", QMessageBox::AcceptRole);
  box.exec();
}

void setClipboard(const Picture& picture) {
  if (picture.empty())
    QGuiApplication::clipboard()->clear();
  else
    QGuiApplication::clipboard()->setImage(wrapped(*picture.bitmap()).copy());
}

Picture getClipboard() {
  const QMimeData* data = QGuiApplication::clipboard()->mimeData();
  if (!data || !data->hasImage()) return {};
  const QImage image = QGuiApplication::clipboard()->image();
  return image.isNull() ? Picture() : toPicture(image);
}

}  // namespace surface::qt
