// Pictures for the tests: seeded random numbers and shapes, canvases full of noise, and a
// comparison that tells where two bitmaps differ.
#pragma once

#include <gtest/gtest.h>

#include <iomanip>
#include <random>

#include "surface/raster/draw.h"

namespace pictures {

using raster::Bitmap;
using raster::Pixel;
using raster::Rect;

inline constexpr Pixel kWhite = 0xFFFFFFFF, kBlack = 0xFF000000, kGreen = 0xFF00FF00;

/// Random numbers that are the same on every machine, whatever its standard library.
class Dice {
 public:
  explicit Dice(std::uint32_t seed) : engine_(seed) {}

  /// A whole number low..high, both included.
  int number(int low, int high) {
    const std::uint64_t span = static_cast<std::uint64_t>(std::int64_t{high} - low + 1);
    return static_cast<int>(low + static_cast<std::int64_t>((engine_() * span) >> 32));
  }
  bool chance(int percent) { return number(1, 100) <= percent; }
  Pixel color() { return 0xFF000000u | static_cast<Pixel>(number(0, 0xFFFFFF)); }

 private:
  std::mt19937 engine_;
};

/// Every pixel another colour, so that a raster operation on the wrong pixel shows.
inline Bitmap noise(Dice& dice, int width, int height) {
  Bitmap bitmap(width, height, 0xFF000000);
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) bitmap.row(y)[x] = dice.color();
  }
  return bitmap;
}

/// A coordinate: mostly on or near a sheet of the given size, sometimes as far as they go.
inline int coordinate(Dice& dice, int size) {
  if (dice.chance(70)) return dice.number(-10, size + 10);
  if (dice.chance(60)) return dice.number(-600, size + 600);
  if (dice.chance(20)) return dice.chance(50) ? -32767 : 32767;
  return dice.number(-32767, 32767);
}

inline int penWidth(Dice& dice) {
  return dice.chance(80) ? dice.number(2, 24) : dice.number(25, 200);
}

inline raster::PenStyle anyStyle(Dice& dice) {
  return dice.chance(40) ? raster::PenStyle::Solid
                         : static_cast<raster::PenStyle>(
                               dice.number(0, static_cast<int>(raster::PenStyle::Null)));
}

inline raster::Brush brush(Dice& dice) {
  return {static_cast<raster::BrushStyle>(dice.number(0, 7)), dice.color()};
}

/// True if both are the same; otherwise tells how many pixels differ, and the first of them.
inline testing::AssertionResult same(const Bitmap& one, const Bitmap& other) {
  if (one.bounds() != other.bounds()) {
    return testing::AssertionFailure() << one.width() << " x " << one.height() << " pixels, and "
                                       << other.width() << " x " << other.height();
  }
  int differing = 0;
  testing::AssertionResult first = testing::AssertionFailure();
  for (int y = 0; y < one.height(); ++y) {
    for (int x = 0; x < one.width(); ++x) {
      if (one.at(x, y) == other.at(x, y)) continue;
      if (++differing > 1) continue;
      first << "pixel " << x << ", " << y << " is " << std::hex << one.at(x, y) << " in the one, "
            << other.at(x, y) << std::dec << " in the other; ";
    }
  }
  if (differing == 0) return testing::AssertionSuccess();
  return first << differing << " pixels differ";
}

/// True if every pixel that differs lies in `area`, and `area` on the bitmap.
inline testing::AssertionResult onlyWithin(const Rect& area, const Bitmap& before,
                                           const Bitmap& after) {
  if (!area.empty() && intersect(area, after.bounds()) != area) {
    return testing::AssertionFailure() << "the area reaches beyond the bitmap";
  }
  for (int y = 0; y < before.height(); ++y) {
    for (int x = 0; x < before.width(); ++x) {
      const bool inside = x >= area.left && x < area.right && y >= area.top && y < area.bottom;
      if (inside || before.at(x, y) == after.at(x, y)) continue;
      return testing::AssertionFailure() << "changed pixel " << x << ", " << y << " is not in it";
    }
  }
  return testing::AssertionSuccess();
}

/// How many pixels have the colour.
inline int count(const Bitmap& bitmap, Pixel color) {
  int found = 0;
  for (int y = 0; y < bitmap.height(); ++y) {
    for (int x = 0; x < bitmap.width(); ++x) found += bitmap.at(x, y) == color ? 1 : 0;
  }
  return found;
}

}  // namespace pictures
