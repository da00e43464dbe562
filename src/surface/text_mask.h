// A text turned into dots, and the painting of them.
#pragma once

#include <cstdint>
#include <vector>

#include "surface/raster/draw.h"

namespace surface {

/// `dots` has width x height bytes, 1 where the text paints.
struct TextMask {
  int width = 0, height = 0;
  int left = 0,
      top = 0;  ///< of the dots, relative to the text's origin (upper left of its line), pixels
  float advance = 0;   ///< how far the next text would stand to the right, pixels
  int lineHeight = 0;  ///< pixels
  int ascent = 0;      ///< from the upper edge of the line to the foot of its letters, pixels
  std::vector<std::uint8_t> dots;
};

/// Paints the text with its origin at a pixel; gives what may have changed.
raster::Rect paintMask(raster::Target onto, const TextMask& mask, int x, int y,
                       raster::Pixel color);

}  // namespace surface
