// Chains of short lines, as a moving pointer leaves them: hundreds in one event, each a few pixels
// long.
#include <array>
#include <cstdlib>

#include "surface/raster/thin.h"

namespace raster {
namespace {

// A longer line is worth the division that its general form needs.
constexpr int kShort = 8;

/// Where the pixels of every short line lie in memory, counted from its first one, for bitmaps of
/// one width. A pointer's lines are so short that working this out costs more than painting them.
/// Behind its end a line stays on its last pixel, so that pixels can be painted by fours without
/// asking how many there are.
class ShortLines {
 public:
  void prepareFor(const Bitmap& bitmap) {
    if (stride_ == bitmap.width()) return;
    stride_ = bitmap.width();
    for (int dy = -kShort; dy <= kShort; ++dy)
      for (int dx = -kShort; dx <= kShort; ++dx) trace(dx, dy);
  }

  /// Paints the line from a pixel to the one dx, dy away but for the last one, or one dot.
  void paint(Pixel* p, Pixel color, int dx, int dy) const {
    const std::int32_t* offset = offsets_[dy + kShort][dx + kShort];
    paintFour(p, color, offset);
    if (std::max(std::abs(dx), std::abs(dy)) > 4) paintFour(p, color, offset + 4);
  }

 private:
  static_assert(kShort == 8);
  // All offsets are read before the first pixel is painted, which to the compiler might be one.
  static void paintFour(Pixel* p, Pixel color, const std::int32_t* offset) {
    const std::array<std::int32_t, 4> at = {offset[0], offset[1], offset[2], offset[3]};
    p[at[0]] = p[at[1]] = p[at[2]] = p[at[3]] = color;
  }

  void trace(int dx, int dy) {
    const int width = std::abs(dx), height = std::abs(dy);
    const bool flat = width >= height;
    const int length = std::max({width, height, 1}), extent = std::min(width, height);
    const int stepX = dx < 0 ? -1 : 1, stepY = dy < 0 ? -stride_ : stride_;
    // Ties go to the smaller coordinate: they stay back when it grows, and go on when it shrinks.
    const int half = (flat ? dy : dx) < 0 ? length : length - 1;
    for (int i = 0; i < kShort; ++i) {
      const int along = std::min(i, length - 1), aside = (2 * along * extent + half) / (2 * length);
      offsets_[dy + kShort][dx + kShort][i] =
          flat ? along * stepX + aside * stepY : along * stepY + aside * stepX;
    }
  }

  int stride_ = 0;
  std::int32_t offsets_[2 * kShort + 1][2 * kShort + 1][kShort];
};

/// The smallest rectangle that holds all of the spots.
Rect boundsOf(const Spot* spots, int count) {
  // Eight numbers side by side: x and y of four spots.
  constexpr int kLanes = 8;
  std::int16_t low[kLanes], high[kLanes];
  for (int lane = 0; lane < kLanes; ++lane)
    low[lane] = high[lane] = lane % 2 == 0 ? spots[0].x : spots[0].y;
  int i = 0;
  for (; i + kLanes / 2 <= count; i += kLanes / 2) {
    std::int16_t next[kLanes];
    std::memcpy(next, spots + i, sizeof next);
    for (int lane = 0; lane < kLanes; ++lane) {
      low[lane] = std::min(low[lane], next[lane]);
      high[lane] = std::max(high[lane], next[lane]);
    }
  }
  Rect all{low[0], low[1], high[0] + 1, high[1] + 1};
  for (int lane = 2; lane < kLanes; lane += 2)
    all = unite(all, {low[lane], low[lane + 1], high[lane] + 1, high[lane + 1] + 1});
  for (; i < count; ++i) all = unite(all, {spots[i].x, spots[i].y, spots[i].x + 1, spots[i].y + 1});
  return all;
}

/// Lines of width 1 that lie inside the bitmap.
void plainStroke(Bitmap& bitmap, const ShortLines& shortLines, const Spot* spots,
                 const Pixel* colors, int lines) {
  const std::ptrdiff_t stride = bitmap.width();
  Pixel* p = bitmap.row(spots[0].y) + spots[0].x;
  for (int i = 0; i < lines; ++i) {
    const int dx = spots[i + 1].x - spots[i].x, dy = spots[i + 1].y - spots[i].y;
    if (std::abs(dx) <= kShort && std::abs(dy) <= kShort)
      shortLines.paint(p, colors[i], dx, dy);
    else
      solidThinLine(bitmap, inkOf(kCopy, colors[i]), spots[i].x, spots[i].y, spots[i + 1].x,
                    spots[i + 1].y);
    p += dy * stride + dx;
  }
}

}  // namespace

Rect strokes(Target target, const Pen& pen, const Spot* spots, int count, const Pixel* colors,
             int lines) {
  const int spotsEach = lines + 1;
  const Rect bounds = boundsOf(spots, count * spotsEach);
  const bool thin = pen.style == PenStyle::Solid && pen.width <= 1 && target.rop == kCopy;
  if (!thin || intersect(bounds, target.bitmap.bounds()) != bounds) {
    Rect all;
    for (int stroke = 0; stroke < count; ++stroke)
      for (int i = 0; i < lines; ++i) {
        const Spot* from = spots + stroke * spotsEach + i;
        all = unite(all, line(target, {pen.style, pen.width, colors[i]}, from[0].x, from[0].y,
                              from[1].x, from[1].y));
      }
    return all;
  }
  static ShortLines shortLines;
  shortLines.prepareFor(target.bitmap);
  for (int stroke = 0; stroke < count; ++stroke) {
    plainStroke(target.bitmap, shortLines, spots + stroke * spotsEach, colors, lines);
  }
  return bounds;
}

}  // namespace raster
