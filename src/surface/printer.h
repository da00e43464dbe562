// The platform's printer: a page on which pictures are painted, sent off by EndDoc.
#pragma once

#include <vector>

#include "surface/drawing.h"
#include "surface/picture.h"

namespace surface {

/// A picture on the page, from its upper left corner, at its natural size of 96 pixels to the inch.
struct Printed {
  Picture picture;
  PointF at;  ///< from the edges of the paper, centimetres
};

/// The one page surface. Which printer it means is what the printer dialog left behind.
class PrinterPage {
 public:
  ScaleUnit ScaleMode = ScaleTwips;

  /// Puts a picture on the page; its upper left corner in the unit of ScaleMode (twips, pixels of
  /// the screen or centimetres), counted from the paper's edges.
  void PaintPicture(const Picture& picture, PointF at);
  /// Sends the page off; an empty one is none.
  void EndDoc();

 private:
  std::vector<Printed> painted_;
};

PrinterPage& Printer();

}  // namespace surface
