// Rectangles of every pen and brush, against their plain definition.
#include <gtest/gtest.h>

#include "oracle.h"
#include "pictures.h"

namespace {

using namespace pictures;
using raster::Brush;
using raster::BrushStyle;
using raster::Pen;
using raster::PenStyle;

Pen anyPen(Dice& dice) {
  const PenStyle style = anyStyle(dice);
  return {style, dice.chance(50) ? 1 : penWidth(dice), dice.color()};
}

void expectBox(Dice& dice, const Pen& pen, const Brush& brush, int rop, int x1, int y1, int x2,
               int y2) {
  const Bitmap before = noise(dice, 59, 43);
  Bitmap want = before, got = before;
  oracle::box({want, rop}, pen, brush, x1, y1, x2, y2);
  const Rect area = raster::box({got, rop}, pen, brush, x1, y1, x2, y2);
  ASSERT_TRUE(same(want, got)) << "pen " << int(pen.style) << " width " << pen.width << " brush "
                               << int(brush.style) << " rop " << rop << " from " << x1 << ", " << y1
                               << " to " << x2 << ", " << y2;
  ASSERT_TRUE(onlyWithin(area, before, got));
}

TEST(Boxes, AreRightWithEveryPenBrushAndRasterOperation) {
  Dice dice(20);
  for (int i = 0; i < 4000; ++i) {
    expectBox(dice, anyPen(dice), brush(dice), dice.number(1, 16), coordinate(dice, 59),
              coordinate(dice, 43), coordinate(dice, 59), coordinate(dice, 43));
  }
}

TEST(Boxes, AreRightWhenTheyAreTiny) {
  Dice dice(21);
  for (int w = 0; w <= 6; ++w) {
    for (int h = 0; h <= 6; ++h) {
      for (int width = 1; width <= 9; ++width) {
        for (const PenStyle style : {PenStyle::Solid, PenStyle::DashDot, PenStyle::Null}) {
          expectBox(dice, {style, width, kBlack}, brush(dice), 7, 30 + w, 20, 30, 20 + h);
        }
      }
    }
  }
}

TEST(FilledBoxes, AreBoxesWithABrushInThePensColour) {
  Dice dice(22);
  for (int i = 0; i < 2000; ++i) {
    const Pen pen = anyPen(dice);
    const int rop = dice.number(1, 16);
    const int x1 = coordinate(dice, 59), y1 = coordinate(dice, 43);
    const int x2 = coordinate(dice, 59), y2 = coordinate(dice, 43);
    const Bitmap before = noise(dice, 59, 43);
    Bitmap want = before, got = before;
    oracle::box({want, rop}, pen, {BrushStyle::Solid, pen.color}, x1, y1, x2, y2);
    const Rect area = raster::filledBox({got, rop}, pen, x1, y1, x2, y2);
    ASSERT_TRUE(same(want, got));
    ASSERT_TRUE(onlyWithin(area, before, got));
  }
}

TEST(FilledBoxes, CoverBothCorners) {
  Bitmap picture(20, 20, kWhite);
  raster::filledBox({picture}, {PenStyle::Solid, 1, kBlack}, 3, 4, 12, 9);
  EXPECT_EQ(count(picture, kBlack), 10 * 6);
  EXPECT_EQ(picture.at(3, 4), kBlack);
  EXPECT_EQ(picture.at(12, 9), kBlack);
}

TEST(Boxes, FromAPointToItselfAreOneDotOfPenWidth) {
  for (int width = 1; width <= 30; ++width) {
    const Pen pen{PenStyle::Solid, width, kBlack};
    Bitmap dot(50, 50, kWhite), box = dot, filled = dot;
    raster::dot({dot}, pen, 25, 24);
    raster::box({box}, pen, {BrushStyle::Solid, 0xFFFF0000}, 25, 24, 25, 24);
    raster::filledBox({filled}, pen, 25, 24, 25, 24);
    EXPECT_TRUE(same(dot, box));
    EXPECT_TRUE(same(dot, filled));
  }
}

TEST(Boxes, InvertingAFrameTwiceBringsThePictureBack) {
  Dice dice(23);
  const Bitmap before = noise(dice, 60, 60);
  for (int width = 1; width <= 24; ++width) {
    Bitmap picture = before;
    for (int i = 0; i < 2; ++i) {
      raster::box({picture, 6}, {PenStyle::Solid, width, kBlack}, {}, 15, 18, 40, 42);
    }
    EXPECT_TRUE(same(before, picture)) << width;
  }
}

TEST(Boxes, AnInvertedFrameIsPaintedOnceAtItsCorners) {
  Bitmap picture(20, 20, kWhite);
  raster::box({picture, 6}, {PenStyle::Solid, 1, kWhite}, {}, 4, 5, 14, 12);
  EXPECT_EQ(count(picture, kBlack), 2 * 11 + 2 * 8 - 4);
}

TEST(Hatches, StandOnTheSheetAndNotOnTheShape) {
  for (int style = 2; style <= 7; ++style) {
    const Brush brush{static_cast<BrushStyle>(style), kBlack};
    Bitmap whole(64, 64, kWhite), parts = whole;
    raster::box({whole}, {PenStyle::Null}, brush, 0, 0, 64, 64);
    for (int y = 0; y < 64; y += 13) {
      for (int x = 0; x < 64; x += 11) {
        raster::box({parts}, {PenStyle::Null}, brush, x, y, x + 11, y + 13);
      }
    }
    EXPECT_TRUE(same(whole, parts));
    EXPECT_GT(count(whole, kBlack), 0);
    EXPECT_GT(count(whole, kWhite), 0);
  }
}

}  // namespace
