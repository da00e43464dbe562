// Round shapes by quarters: what the thin and the wide ellipses of this folder share.
#pragma once

#include "surface/raster/ink.h"

namespace raster {

/// The distances from a centre row that are visible on either side of it: first..last, both
/// included. The rows of a round shape are at cy - j and cy + j - even, j = 0.. (even: from 1).
inline Rows visibleDistances(const Bitmap& bitmap, int cy, int even, int last) {
  const int below = bitmap.height() - 1 + even;
  const int nearest = cy < 0 ? even - cy : cy > below ? cy - below : 0;
  const int farthest = std::max(cy, below - cy);
  return {std::max(nearest, even), std::min(farthest, last)};
}

/// Calls paint(y) for the visible rows at distance j from the centre row.
template <class Paint>
void forBothRows(const Bitmap& bitmap, int cy, int even, int j, Paint paint) {
  const int upper = cy - j, lower = cy + j - even;
  if (upper >= 0 && upper < bitmap.height()) paint(upper);
  if (lower != upper && lower >= 0 && lower < bitmap.height()) paint(lower);
}

/// An ellipse with a wide pen: the ring, each pixel once, and the hole filled by `inside`.
Rect wideEllipse(const SpanPainter& ring, const SpanPainter& inside, Bitmap& bitmap, int width,
                 int cx, int cy, double rx, double ry);

}  // namespace raster
