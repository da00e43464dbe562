// Effects in which a pixel's new colour depends on its neighbours. Pure functions: from a picture
// to a picture of the same size. The outermost ring of pixels keeps its colour, so a picture of two
// rows or columns comes back as it is.
#pragma once

#include "surface/raster/bitmap.h"

namespace effects {

/// Every channel becomes the mean of its 3 x 3 block, rounded to the nearest.
raster::Bitmap blurred(const raster::Bitmap& picture);

/// Every channel moves away from its upper left neighbour by half their difference, within 0..255,
/// rounded to the nearest with ties to even.
raster::Bitmap sharpened(const raster::Bitmap& picture);

/// Every channel becomes |itself - its lower right neighbour + 128|, at most 255: flat areas turn
/// grey, edges show as slopes.
raster::Bitmap embossed(const raster::Bitmap& picture);

}  // namespace effects
