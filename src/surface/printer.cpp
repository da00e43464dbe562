// The page on its way to the printer.
#include "surface/printer.h"

#include <utility>

#include "surface/host.h"

namespace surface {

PrinterPage& Printer() {
  static PrinterPage thePage;
  return thePage;
}

void PrinterPage::PaintPicture(const Picture& picture, PointF at) {
  if (picture.empty()) throw RuntimeError(ErrorKind::BadPropertyValue, "Invalid picture");
  painted_.push_back(
      {picture,
       {ScaleX(at.X, ScaleMode, ScaleCentimetres), ScaleY(at.Y, ScaleMode, ScaleCentimetres)}});
}

void PrinterPage::EndDoc() {
  const auto page = std::exchange(painted_, {});
  if (!page.empty()) host().printPage(page);
}

}  // namespace surface
