// Strokes of many lines must look exactly as if each of their lines had been drawn alone.
#include <gtest/gtest.h>

#include <random>
#include <vector>

#include "surface/raster/draw.h"

namespace raster {
namespace {

struct Strokes {
  std::vector<Spot> spots;
  std::vector<Pixel> colors;
  int count;
};

// Strokes of `lines` lines that go at most `reach` pixels a line from somewhere within `around`
// pixels of the bitmap.
Strokes randomStrokes(std::mt19937& random, const Bitmap& bitmap, int lines, int reach,
                      int around) {
  const auto between = [&](int low, int high) {
    return std::uniform_int_distribution<int>(low, high)(random);
  };
  Strokes made{{}, {}, between(1, 4)};
  for (int i = 0; i < lines; ++i)
    made.colors.push_back(0xFF000000u | static_cast<Pixel>(between(0, 0xFFFFFF)));
  for (int stroke = 0; stroke < made.count; ++stroke) {
    int x = between(-around, bitmap.width() + around),
        y = between(-around, bitmap.height() + around);
    for (int i = 0; i <= lines; ++i) {
      made.spots.push_back({static_cast<std::int16_t>(x), static_cast<std::int16_t>(y)});
      x += between(-reach, reach);
      y += between(-reach, reach);
    }
  }
  return made;
}

Rect oneByOne(Target target, const Pen& pen, const Strokes& s) {
  const int lines = static_cast<int>(s.colors.size());
  Rect all;
  for (int stroke = 0; stroke < s.count; ++stroke)
    for (int i = 0; i < lines; ++i) {
      const Spot& from = s.spots[static_cast<std::size_t>(stroke * (lines + 1) + i)];
      const Spot& to = s.spots[static_cast<std::size_t>(stroke * (lines + 1) + i + 1)];
      all = unite(all, line(target, {pen.style, pen.width, s.colors[static_cast<std::size_t>(i)]},
                            from.x, from.y, to.x, to.y));
    }
  return all;
}

void expectSame(const Bitmap& a, const Bitmap& b) {
  ASSERT_EQ(a.bounds(), b.bounds());
  for (int y = 0; y < a.height(); ++y)
    for (int x = 0; x < a.width(); ++x)
      ASSERT_EQ(a.at(x, y), b.at(x, y)) << "at " << x << ", " << y;
}

TEST(Strokes, PaintTheSamePixelsAsTheirLinesOneByOne) {
  std::mt19937 random(7);
  for (int round = 0; round < 400; ++round) {
    // Widths by turns, since what is kept for one width must not serve another.
    Bitmap ours(round % 3 == 0 ? 96 : 131, 80, 0xFFFFFFFF), expected(ours);
    const int reach = round % 4 == 0   ? 40
                      : round % 4 == 1 ? 3
                                       : 10,
              around = round % 5 == 0 ? 30 : -20;
    const Strokes s = randomStrokes(random, ours, 30, reach, around);
    const Pen pen{round % 7 == 0    ? PenStyle::Dotted
                  : round % 11 == 0 ? PenStyle::Null
                                    : PenStyle::Solid,
                  round % 6 == 0 ? 5 : 1, 0xFF000000};
    const int rop = round % 8 == 0 ? 1 + round % 16 : 13;
    const Rect changed = strokes({ours, rop}, pen, s.spots.data(), s.count, s.colors.data(), 30);
    const Rect needed = oneByOne({expected, rop}, pen, s);
    expectSame(ours, expected);
    EXPECT_EQ(unite(changed, needed), changed) << "the changed rectangle must hold every pixel";
  }
}

TEST(Strokes, ShortLinesOfEveryDirectionEndOnePixelBeforeTheirEnd) {
  for (int dy = -9; dy <= 9; ++dy)
    for (int dx = -9; dx <= 9; ++dx) {
      Bitmap ours(40, 40, 0xFFFFFFFF), expected(ours);
      const Spot spots[] = {
          {20, 20}, {static_cast<std::int16_t>(20 + dx), static_cast<std::int16_t>(20 + dy)}};
      const Pixel ink = 0xFF102030;
      strokes({ours}, {}, spots, 1, &ink, 1);
      line({expected}, {PenStyle::Solid, 1, ink}, 20, 20, 20 + dx, 20 + dy);
      expectSame(ours, expected);
    }
}

}  // namespace
}  // namespace raster
