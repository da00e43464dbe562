// Effects that change each pixel by itself. Pure functions: from a picture to a picture of the same
// size.
#pragma once

#include "surface/raster/bitmap.h"

namespace effects {

/// Every channel c becomes 255 - c.
raster::Bitmap inverted(const raster::Bitmap& picture);

/// What each channel is multiplied with, 0..2.
struct Factors {
  double red, green, blue;
};

/// Every channel times its factor, rounded to the nearest (ties to even) and at most 255.
raster::Bitmap scaled(const raster::Bitmap& picture, const Factors& factors);

/// The channels multiplied into each other: red becomes green * blue / 256, green the new red *
/// blue / 256, blue the new green * the new red / 256; rounded (ties to even) only when all three
/// are there. The old red does not enter.
raster::Bitmap chained(const raster::Bitmap& picture);

}  // namespace effects
