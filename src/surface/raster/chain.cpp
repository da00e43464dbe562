// Chains of short lines, as a moving pointer leaves them: hundreds in one event, each a few pixels
// long.
#include <cstdlib>

#include "surface/raster/thin.h"

namespace raster {
namespace {

// A longer line is worth the division that its general form needs.
constexpr int kShort = 32;

/// How far aside each pixel of every short line stands: by the direction of the step aside (which
/// decides the ties), the extent of the longer axis, the extent of the shorter one, and the pixel's
/// number.
struct AsideTable {
  std::int8_t aside[2][kShort + 1][kShort + 1][kShort];

  constexpr AsideTable() : aside() {
    for (int length = 1; length <= kShort; ++length)
      for (int extent = 0; extent <= length; ++extent)
        for (int i = 0; i < length; ++i) {
          // i * extent / length rounded to nearest; ties stay back when the coordinate grows, and
          // go on when it shrinks.
          const int twice = 2 * i * extent;
          aside[0][length][extent][i] =
              static_cast<std::int8_t>((twice + length - 1) / (2 * length));
          aside[1][length][extent][i] = static_cast<std::int8_t>((twice + length) / (2 * length));
        }
  }
};

constexpr AsideTable kAside;

/// A line inside the bitmap, or its one dot.
void shortLine(Bitmap& bitmap, Pixel color, Spot from, int dx, int dy) {
  const std::ptrdiff_t stride = bitmap.width();
  Pixel* p = bitmap.row(from.y) + from.x;
  const int width = std::abs(dx), height = std::abs(dy);
  const bool flat = width >= height;
  const int length = flat ? width : height;
  if (length <= 1) {
    *p = color;
    return;
  }
  const std::ptrdiff_t stepX = dx < 0 ? -1 : 1, stepY = dy < 0 ? -stride : stride;
  const std::ptrdiff_t along = flat ? stepX : stepY, across = flat ? stepY : stepX;
  const std::int8_t* aside =
      kAside.aside[(flat ? dy : dx) < 0 ? 1 : 0][length][flat ? height : width];
  for (int i = 0; i < length; ++i, p += along) p[aside[i] * across] = color;
}

Rect boundsOf(const Spot* spots, int count) {
  Spot low = spots[0], high = spots[0];
  for (int i = 1; i < count; ++i) {
    low = {std::min(low.x, spots[i].x), std::min(low.y, spots[i].y)};
    high = {std::max(high.x, spots[i].x), std::max(high.y, spots[i].y)};
  }
  return {low.x, low.y, high.x + 1, high.y + 1};
}

}  // namespace

Rect chain(Target target, const Pen& pen, const Spot* spots, const Pixel* colors, int lines) {
  const Rect bounds = boundsOf(spots, lines + 1);
  const bool thin = pen.style == PenStyle::Solid && pen.width <= 1;
  if (!thin || !inkOf(target.rop, pen.color).covers() ||
      intersect(bounds, target.bitmap.bounds()) != bounds) {
    Rect all;
    for (int i = 0; i < lines; ++i)
      all = unite(all, line(target, {pen.style, pen.width, colors[i]}, spots[i].x, spots[i].y,
                            spots[i + 1].x, spots[i + 1].y));
    return all;
  }
  for (int i = 0; i < lines; ++i) {
    const Ink ink = inkOf(target.rop, colors[i]);
    const int dx = spots[i + 1].x - spots[i].x, dy = spots[i + 1].y - spots[i].y;
    if (std::abs(dx) <= kShort && std::abs(dy) <= kShort)
      shortLine(target.bitmap, ink.flip, spots[i], dx, dy);
    else
      solidThinLine(target.bitmap, ink, spots[i].x, spots[i].y, spots[i + 1].x, spots[i + 1].y);
  }
  return bounds;
}

}  // namespace raster
