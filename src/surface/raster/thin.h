// Lines one pixel wide, as the other shapes of this folder use them.
#pragma once

#include "surface/raster/ink.h"

namespace raster {

/// The dots of a dotted pen: three pixels on, three off.
constexpr int kDotLength = 3;
inline bool isDotOn(std::int64_t step) { return step % (2 * kDotLength) < kDotLength; }

/// Paints the pixels from (x1, y1) up to but without (x2, y2) in one colour; nothing if the points
/// are equal. Gives what may have changed.
Rect copyThinLine(Bitmap& bitmap, Pixel color, int x1, int y1, int x2, int y2);

/// The same with any ink.
void solidThinLine(Bitmap& bitmap, Ink ink, int x1, int y1, int x2, int y2);

/// The same with gaps. `step` counts the pixels of the outline before this line, visible or not.
void dottedThinLine(Bitmap& bitmap, Ink ink, int x1, int y1, int x2, int y2, std::int64_t step);

}  // namespace raster
