// Shapes with straight sides: chains of lines, and polygons with their inside.
#pragma once

#include <cstdint>
#include <span>

#include "surface/raster/draw.h"

namespace raster {

/// What is inside where sides cross: what an odd number of sides parts from the outside, or all
/// that the polygons wind round.
enum class FillRule { Alternate, Winding };

/// Lines from spot to spot. Width 1: the last pixel of all is not painted.
Rect polyline(Target target, const Pen& pen, std::span<const Spot> spots);

/// Closed polygons as one shape: `counts` says how many corners each has, `corners` lists them all.
/// The inside, by the rule taken over all polygons together, is painted with the brush: a pixel
/// belongs to it if the point at its position does, or lies on a left or upper side. Then the pen
/// paints the sides.
Rect polygons(Target target, const Pen& pen, const Brush& brush, std::span<const Spot> corners,
              std::span<const int> counts, FillRule rule);

/// How many crossings of sides with rows of the bitmap such a fill looks at: its cost.
std::int64_t crossings(const Bitmap& bitmap, std::span<const Spot> corners,
                       std::span<const int> counts);

}  // namespace raster
