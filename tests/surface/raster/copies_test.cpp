// Copies at equal and other sizes: against the plain definition, mirrored, overlapping, cut off.
#include <gtest/gtest.h>

#include "pictures.h"

namespace {

using namespace pictures;

/// The pixel a plain copy puts at (x, y), if it puts one.
const Pixel* copied(const Bitmap& source, const Rect& block, int sx, int sy, int x, int y) {
  if (x < block.left || x >= block.right || y < block.top || y >= block.bottom) return nullptr;
  const int fromX = x - block.left + sx, fromY = y - block.top + sy;
  return source.contains(fromX, fromY) ? source.row(fromY) + fromX : nullptr;
}

void expectBlit(Dice& dice, bool within, bool exclusive) {
  const Bitmap before = noise(dice, 40, 33);
  const Bitmap source = within ? before : noise(dice, dice.number(0, 50), dice.number(0, 50));
  const int x = coordinate(dice, 40), y = coordinate(dice, 33);
  const int width = dice.number(-5, 60), height = dice.number(-5, 60);
  const int sx = coordinate(dice, 40), sy = coordinate(dice, 33);
  Bitmap want = before, got = before;
  for (int row = 0; row < 33; ++row) {
    for (int column = 0; column < 40; ++column) {
      const Pixel* from = copied(source, {x, y, x + width, y + height}, sx, sy, column, row);
      if (from == nullptr) continue;
      Pixel& to = want.row(row)[column];
      to = exclusive ? (to ^ *from) | 0xFF000000 : *from;
    }
  }
  const auto copy = exclusive ? raster::blitXor : raster::blit;
  const Rect area = copy(got, x, y, width, height, within ? got : source, sx, sy);
  ASSERT_TRUE(same(want, got)) << x << ", " << y << " size " << width << ", " << height << " from "
                               << sx << ", " << sy;
  ASSERT_TRUE(onlyWithin(area, before, got));
}

TEST(Copies, TakeWhatTheSourceHasAndLeaveTheRest) {
  Dice dice(50);
  for (int i = 0; i < 3000; ++i) expectBlit(dice, false, dice.chance(50));
}

TEST(Copies, WithinOnePictureReadWhatWasThereBefore) {
  Dice dice(51);
  for (int i = 0; i < 3000; ++i) expectBlit(dice, true, dice.chance(50));
}

TEST(Copies, ExclusiveOrTwiceBringsThePictureBack) {
  Dice dice(52);
  const Bitmap before = noise(dice, 40, 40), stamp = noise(dice, 17, 13);
  Bitmap picture = before;
  raster::blitXor(picture, 9, 8, 17, 13, stamp, 0, 0);
  EXPECT_FALSE(same(before, picture));
  raster::blitXor(picture, 9, 8, 17, 13, stamp, 0, 0);
  EXPECT_TRUE(same(before, picture));
}

Bitmap stretched(const Bitmap& source, int x, int y, int width, int height, int canvasWidth,
                 int canvasHeight) {
  Bitmap canvas(canvasWidth, canvasHeight, 0xFF123456);
  raster::stretch(canvas, x, y, width, height, source, 0, 0, source.width(), source.height());
  return canvas;
}

TEST(Stretches, AtEqualSizeAreCopies) {
  Dice dice(53);
  const Bitmap source = noise(dice, 23, 31);
  EXPECT_TRUE(same(source, stretched(source, 0, 0, 23, 31, 23, 31)));
}

TEST(Stretches, UpwardsTakeThePixelUnderTheMiddle) {
  Dice dice(54);
  for (int i = 0; i < 400; ++i) {
    const Bitmap source = noise(dice, dice.number(1, 20), dice.number(1, 20));
    const int width = dice.number(source.width(), 60), height = dice.number(source.height(), 60);
    const Bitmap got = stretched(source, 0, 0, width, height, width, height);
    for (int y = 0; y < height; ++y) {
      for (int x = 0; x < width; ++x) {
        // The largest source pixel whose left edge lies before the middle of the target pixel.
        int sx = 0, sy = 0;
        while (2 * width * (sx + 1) < (2 * x + 1) * source.width()) ++sx;
        while (2 * height * (sy + 1) < (2 * y + 1) * source.height()) ++sy;
        ASSERT_EQ(got.at(x, y), source.at(sx, sy));
      }
    }
  }
}

/// The target of source pixel k when `from` pixels shrink to `to`: the one its middle falls on.
int shrunk(int k, int from, int to) {
  int target = 0;
  while (2 * from * (target + 1) < (2 * k + 1) * to) ++target;
  return target;
}

TEST(Stretches, DownwardsKeepTheLastColumnAndTheFirstRow) {
  Dice dice(55);
  for (int i = 0; i < 400; ++i) {
    const Bitmap source = noise(dice, dice.number(3, 60), dice.number(3, 60));
    const int width = dice.number(2, source.width() - 1);
    const int height = dice.number(2, source.height() - 1);
    Bitmap want(width, height, 0xFF123456);
    for (int sy = source.height(); sy-- > 0;) {
      for (int sx = 0; sx < source.width(); ++sx) {
        const int x = shrunk(sx, source.width(), width), y = shrunk(sy, source.height(), height);
        if (x < width && y < height) want.row(y)[x] = source.at(sx, sy);
      }
    }
    ASSERT_TRUE(same(want, stretched(source, 0, 0, width, height, width, height)));
  }
}

TEST(Stretches, NegativeSizesAreTheExactMirrorImage) {
  Dice dice(56);
  for (int i = 0; i < 400; ++i) {
    const Bitmap source = noise(dice, dice.number(1, 30), dice.number(1, 30));
    const int width = dice.number(1, 45), height = dice.number(1, 45);
    const Bitmap plain = stretched(source, 0, 0, width, height, width, height);
    const bool across = dice.chance(60), down = !across || dice.chance(50);
    const Bitmap turned =
        stretched(source, across ? width : 0, down ? height : 0, across ? -width : width,
                  down ? -height : height, width, height);
    for (int y = 0; y < height; ++y) {
      for (int x = 0; x < width; ++x) {
        ASSERT_EQ(turned.at(x, y), plain.at(across ? width - 1 - x : x, down ? height - 1 - y : y));
      }
    }
  }
}

TEST(Stretches, MirroringTwiceBringsThePictureBack) {
  Dice dice(57);
  for (const auto& [width, height] : {std::pair{1, 1}, {40, 31}, {617, 537}}) {
    const Bitmap source = noise(dice, width, height);
    Bitmap across = source, down = source;
    for (int i = 0; i < 2; ++i) {
      raster::stretch(across, width, 0, -width, height, Bitmap(across), 0, 0, width, height);
      raster::stretch(down, 0, height, width, -height, Bitmap(down), 0, 0, width, height);
    }
    EXPECT_TRUE(same(source, across));
    EXPECT_TRUE(same(source, down));
  }
}

TEST(Stretches, AreCutOffAtTheEdgesWithoutShifting) {
  Dice dice(58);
  for (int i = 0; i < 300; ++i) {
    const Bitmap source = noise(dice, dice.number(1, 40), dice.number(1, 40));
    const int width = dice.number(1, 90), height = dice.number(1, 90);
    const int x = dice.number(-60, 40), y = dice.number(-60, 40);
    const Bitmap whole = stretched(source, 0, 0, width, height, width, height);
    Bitmap want(40, 35, 0xFF123456);
    raster::blit(want, x, y, width, height, whole, 0, 0);
    ASSERT_TRUE(same(want, stretched(source, x, y, width, height, 40, 35)));
  }
}

TEST(Stretches, OfAPictureOntoItselfReadWhatWasThereBefore) {
  Dice dice(59);
  const Bitmap before = noise(dice, 50, 40);
  Bitmap want = before, got = before;
  raster::stretch(want, 5, 5, 40, 30, Bitmap(before), 0, 0, 25, 20);
  raster::stretch(got, 5, 5, 40, 30, got, 0, 0, 25, 20);
  EXPECT_TRUE(same(want, got));
}

TEST(Stretches, LeaveTheTargetWhereTheSourceHasNothing) {
  Dice dice(60);
  const Bitmap source = noise(dice, 10, 10);
  Bitmap target(40, 40, 0xFF000001);
  raster::stretch(target, 0, 0, 40, 40, source, -5, -5, 20, 20);
  EXPECT_EQ(target.at(9, 9), 0xFF000001);
  EXPECT_EQ(target.at(10, 10), source.at(0, 0));
  EXPECT_EQ(target.at(29, 29), source.at(9, 9));
  EXPECT_EQ(target.at(30, 30), 0xFF000001);
}

TEST(Stretches, OfNothingPaintNothing) {
  Bitmap target(10, 10, 0xFF000001);
  const Bitmap source(5, 5, 0xFFFFFFFF);
  EXPECT_TRUE(raster::stretch(target, 0, 0, 10, 10, source, 0, 0, 0, 5).empty());
  EXPECT_TRUE(raster::stretch(target, 0, 0, 0, 10, source, 0, 0, 5, 5).empty());
  EXPECT_TRUE(raster::stretch(target, 0, 0, 10, 10, Bitmap(), 0, 0, 5, 5).empty() ||
              count(target, 0xFF000001) == 100);
}

}  // namespace
