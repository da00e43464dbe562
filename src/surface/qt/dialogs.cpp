// The standard dialogs are the toolkit's own, so that they look and work alike on every desktop and
// speak Dutch.
#include "surface/qt/dialogs.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QColorDialog>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QFileIconProvider>
#include <QHeaderView>
#include <QImageReader>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QScreen>
#include <QStandardPaths>
#include <QStyle>
#include <QToolButton>
#include <QTreeView>
#include <algorithm>

#include "surface/dialogs.h"
#include "surface/dispatch.h"
#include "surface/form.h"
#include "surface/qt/form_window.h"
#include "surface/qt/images.h"
#include "surface/qt/peers.h"
#include "surface/qt/system.h"

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

// A line in pieces that are no wider than this; one that fits stays as it is.
void addPieces(const QString& line, const QFontMetrics& metrics, int width, QStringList& pieces) {
  constexpr qsizetype Longest = 1000;  // more letters than fit into any width
  const auto fits = [&](qsizetype start, qsizetype count) {
    return metrics.horizontalAdvance(line.mid(start, count)) <= width;
  };
  qsizetype start = 0;
  while (line.size() - start > Longest || !fits(start, Longest)) {
    qsizetype fitting = 1, tooLong = std::min(line.size() - start, Longest);
    while (fitting + 1 < tooLong) {
      const qsizetype middle = (fitting + tooLong) / 2;
      (fits(start, middle) ? fitting : tooLong) = middle;
    }
    pieces += line.mid(start, fitting);
    start += fitting;
  }
  pieces += line.mid(start);
}

// A text as it fits on the screen together with its buttons: what is too long loses its middle.
QString fitting(const QString& text, const QFontMetrics& metrics) {
  constexpr qsizetype Longest = 20'000;
  const QSize screen = QGuiApplication::primaryScreen()->availableSize();
  const int width = screen.width() * 2 / 3, mostLines = screen.height() * 2 / 3 / metrics.height();
  QStringList lines;
  const bool huge = text.size() > Longest;
  const QString shown = huge ? text.left(Longest / 2) + "\n" + text.right(Longest / 2) : text;
  for (QString line : shown.split('\n')) {
    if (line.endsWith('\r')) line.chop(1);
    addPieces(line, metrics, width, lines);
  }
  if (lines.size() <= mostLines && !huge) return text;
  const int part = std::max(1, std::min<int>(mostLines, static_cast<int>(lines.size())) / 2 - 1);
  return (lines.first(part) + QStringList("…") + lines.last(part)).join('\n');
}

// A title is one line.
QString titleOf(const std::string& text) {
  constexpr int Longest = 200;
  QString title = QString::fromStdString(text).left(Longest);
  return title.replace('\n', ' ').replace('\r', ' ');
}

// Where the child was last, at first among the pictures. The last part of a folder that is not
// there would be taken for a file's name.
QString& folder() {
  static QString last = QString::fromStdString(picturesFolder());
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

// The labels beside the two lists are not tied to them: a screen reader would have nothing to say.
void nameLists(const QFileDialog& dialog) {
  for (const auto& [list, name] :
       {std::pair{"lookInCombo", "Map"}, {"fileTypeCombo", "Soort bestand"}})
    if (auto* box = dialog.findChild<QComboBox*>(list)) box->setAccessibleName(name);
}

// Room for a whole date; the name takes what is left.
void widenColumns(QFileDialog& dialog) {
  auto* files = dialog.findChild<QTreeView*>();
  if (!files) return;
  files->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
  files->header()->setSectionResizeMode(0, QHeaderView::Stretch);
}

// Pictures are chosen and named here; nothing is deleted, renamed or moved, by no key and no menu.
void protectFiles(QFileDialog& dialog) {
  dialog.setOption(QFileDialog::ReadOnly);
  if (auto* newFolder = dialog.findChild<QToolButton*>("newFolderButton")) newFolder->hide();
  for (QAbstractItemView* view : dialog.findChildren<QAbstractItemView*>()) {
    view->setContextMenuPolicy(Qt::NoContextMenu);
    view->setDragDropMode(QAbstractItemView::NoDragDrop);
    view->setEditTriggers(QAbstractItemView::NoEditTriggers);
  }
}

// A folder or a sheet. The toolkit's own would look for each file's kind in every icon theme, and a
// folder of many pictures would take seconds.
class PlainIcons : public QFileIconProvider {
 public:
  QIcon icon(const QFileInfo& file) const override { return file.isDir() ? folder_ : sheet_; }
  QIcon icon(IconType kind) const override { return kind == File ? sheet_ : folder_; }

 private:
  const QIcon folder_ = QApplication::style()->standardIcon(QStyle::SP_DirIcon);
  const QIcon sheet_ = QApplication::style()->standardIcon(QStyle::SP_FileIcon);
};

// A window that stays above all others would hide a dialog that opens in its place.
void keepAbove(QDialog& dialog) {
  if (FormRegistry::instance().anyTopMost()) dialog.setWindowFlag(Qt::WindowStaysOnTopHint);
}

}  // namespace

void prepareDialog(QDialog& dialog) {
  // To make it small or as large as the screen is of no use.
  dialog.setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                        Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint);
  keepAbove(dialog);
}

std::string picturesFolder() {
  const QString pictures = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
  return (QDir(pictures).exists() ? pictures : QDir::homePath()).toStdString();
}

int msgBox(const std::string& text, int buttons, const std::string& title) {
  showPending();
  QMessageBox box(frontWindow());
  prepareDialog(box);
  box.setWindowTitle(titleOf(title));
  box.setTextFormat(Qt::PlainText);
  box.setText(fitting(QString::fromStdString(text), box.fontMetrics()));
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

// A long question takes several lines, as in a message box: on one it would be wider than the
// screen.
static void wrapQuestion(QInputDialog& dialog) {
  auto* question = dialog.findChild<QLabel*>();
  const int screen = QGuiApplication::primaryScreen()->availableSize().width();
  const int width = std::min(question->sizeHint().width(), screen * 2 / 3);
  question->setWordWrap(true);
  question->setMinimumWidth(width);
}

std::optional<std::string> inputBox(const std::string& prompt, const std::string& title,
                                    const std::string& initial) {
  showPending();
  QInputDialog dialog(frontWindow());
  prepareDialog(dialog);
  dialog.setWindowTitle(titleOf(title));
  dialog.setLabelText(QString::fromStdString(prompt));
  wrapQuestion(dialog);
  dialog.setTextValue(QString::fromStdString(initial));
  dialog.setOkButtonText("OK");
  dialog.setCancelButtonText("Annuleren");
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  return dialog.textValue().toStdString();
}

std::optional<std::string> fileDialog(const FileRequest& request) {
  showPending();
  const NothingKept nothingKept;
  PlainIcons icons;  // the dialog uses it until it is gone
  QFileDialog dialog(frontWindow(), request.save ? "Opslaan als" : "Openen", folder());
  dialog.setIconProvider(&icons);
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
  nameLists(dialog);
  widenColumns(dialog);
  protectFiles(dialog);
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
  folder() = dialog.directory().absolutePath();
  return dialog.selectedFiles().first().toStdString();
}

std::optional<Color> colorDialog(Color initial, int flags) {
  showPending();
  const NothingKept nothingKept;
  QColorDialog dialog(toQColor(initial), frontWindow());
  prepareDialog(dialog);
  dialog.setWindowTitle("Kleur");
  dialog.setOption(QColorDialog::DontUseNativeDialog);
  if (flags & ReadyColorsOnly) hideMixing(dialog);
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  return toColor(dialog.currentColor().rgb());
}

namespace {

void fillReport(QMessageBox& box, const QString& what, const std::string& text) {
  prepareDialog(box);
  box.setWindowTitle("KRAS PRET");
  box.setIcon(QMessageBox::Critical);
  box.setTextFormat(Qt::PlainText);
  box.setText(fitting(what + "\n\n" + QString::fromStdString(text), box.fontMetrics()));
}

constexpr auto ProgramStops = "Er is een fout opgetreden, het programma stopt:";

}  // namespace

void errorReport(const std::string& text, bool ends) {
  QMessageBox box(frontWindow());
  fillReport(box,
             ends ? ProgramStops : "Er is een fout opgetreden, maar je kunt gewoon verder:", text);
  box.addButton("OK", QMessageBox::AcceptRole);
  box.exec();
}

bool errorReportBeforeLoss(const std::string& text) {
  QMessageBox box(frontWindow());
  fillReport(box, ProgramStops, text);
  const QPushButton* save = box.addButton("Tekening bewaren", QMessageBox::AcceptRole);
  box.addButton("Niet bewaren", QMessageBox::RejectRole);
  box.exec();
  return box.clickedButton() == save;
}

// An image that keeps the bitmap alive: a copy of a large sheet would be one too many.
static QImage held(std::shared_ptr<const raster::Bitmap> bitmap) {
  using Keeper = std::shared_ptr<const raster::Bitmap>;
  const QImage image = wrapped(*bitmap);
  if (image.isNull()) return {};  // of no size: it would not let go of what it is given to keep
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
  QImageReader::setAllocationLimit(MostMegabytesDecoded);
  return takenPicture(QGuiApplication::clipboard()->image());
}

}  // namespace surface::qt
