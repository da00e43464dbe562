// Turning a picture round its middle.
#pragma once

#include "surface/raster/bitmap.h"

namespace effects {

/// Draws the source, turned to the left by `angle` (radians), around the middle of the target: a
/// polar mapping in which each target point's distance from the middle is rounded first, which
/// leaves small gaps and doubles. Target points whose source lies outside stay as they are, and so
/// do those beyond the square of the target's longer side.
void rotateInto(const raster::Bitmap& source, raster::Bitmap& target, float angle);

}  // namespace effects
