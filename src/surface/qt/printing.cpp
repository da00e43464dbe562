// The printer through the toolkit. Its dialog is the toolkit's own, like all dialogs.
#include "surface/qt/printing.h"

#include <QCoreApplication>
#include <QFileSystemModel>
#include <QLineEdit>
#include <QPageSize>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <memory>

#include "surface/dispatch.h"
#include "surface/errors.h"
#include "surface/qt/dialogs.h"
#include "surface/qt/form_window.h"
#include "surface/qt/images.h"

namespace surface::qt {
namespace {

constexpr double ScreenDotsPerInch = 96, CentimetresPerInch = 2.54;

std::unique_ptr<QPrinter> thePrinter;

// Made when it is first needed, since looking for printers takes time; gone before the toolkit is.
QPrinter& printer() {
  if (!thePrinter) {
    thePrinter = std::make_unique<QPrinter>(QPrinter::HighResolution);
    thePrinter->setDocName("KrasPret");
    thePrinter->setCreator("KrasPret");
    // Distances count from the paper's edge, not from where the printer can begin.
    thePrinter->setFullPage(true);
    thePrinter->setPageSize(QPageSize(QPageSize::A4));
    qAddPostRoutine([] { thePrinter.reset(); });
  }
  return *thePrinter;
}

// The field for a file's name offers what begins alike, and reads whole folders for it with an icon
// for each file: in a large one the dialog would stand still for seconds.
void offerNothing(QPrintDialog& dialog) {
  for (QLineEdit* field : dialog.findChildren<QLineEdit*>()) field->setCompleter(nullptr);
  qDeleteAll(dialog.findChildren<QFileSystemModel*>());
}

}  // namespace

bool printerDialog() {
  showPending();
  QPrintDialog dialog(&printer(), frontWindow());
  prepareDialog(dialog);
  offerNothing(dialog);
  dialog.setWindowTitle("Afdrukken");
  dialog.setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintCollateCopies);
  return dialog.exec() == QDialog::Accepted;
}

void printPage(const std::vector<Printed>& page) {
  QPainter painter;
  if (!painter.begin(&printer())) throw RuntimeError(ErrorKind::CannotWrite, "Printer error");
  // Exact colours, and whole pixels as sharp squares.
  painter.setRenderHint(QPainter::LosslessImageRendering);
  painter.setRenderHint(QPainter::SmoothPixmapTransform, false);
  const double dotsPerCentimetre = printer().resolution() / CentimetresPerInch;
  const double scale = printer().resolution() / ScreenDotsPerInch;
  for (const Printed& printed : page) {
    const QPointF at(printed.at.X * dotsPerCentimetre, printed.at.Y * dotsPerCentimetre);
    const QSizeF size(printed.picture.width() * scale, printed.picture.height() * scale);
    painter.drawImage(QRectF(at, size), wrapped(*printed.picture.bitmap()));
  }
}

}  // namespace surface::qt
