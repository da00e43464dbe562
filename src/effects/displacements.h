// Effects that stamp, scatter and shift pixels.
#pragma once

#include "surface/drawing.h"
#include "surface/raster/bitmap.h"

namespace effects {

/// Dents as of a hammer, every ten pixels from (5, 5): five dark rings around each, and all of it
/// twice. Where rings cross or meet themselves, a pixel darkens again each time.
raster::Bitmap hammered(const raster::Bitmap& picture);

/// Every pixel but the two rows and columns at the upper left and the one at the lower right takes
/// the colour of one up to two rows and columns further up and left or one further down and right.
/// `random` gives numbers in [0, 1): two for each pixel, row by row, the row's first.
raster::Bitmap scattered(const raster::Bitmap& picture, float (*random)());

/// Moves column x down by 6 sin(x) - 3 rows. The dots are set with the surface's pen: a wide one
/// smears.
void ragEdge(surface::DrawingSurface& sheet);

}  // namespace effects
