// Ellipses of every pen and brush: against their plain definition, and for the shape a child
// expects.
#include <gtest/gtest.h>

#include "oracle.h"
#include "pictures.h"

namespace {

using namespace pictures;
using raster::Brush;
using raster::BrushStyle;
using raster::Pen;
using raster::PenStyle;

/// A half axis: whole, half, or any fraction; small ones more often.
double halfAxis(Dice& dice) {
  const int whole = dice.chance(70) ? dice.number(0, 30) : dice.number(0, 120);
  switch (dice.number(0, 3)) {
    case 0:
      return whole + 0.5;
    case 1:
      return whole + dice.number(0, 999) / 1000.0;
    default:
      return whole;
  }
}

void expectEllipse(Dice& dice, const Pen& pen, const Brush& brush, int rop, int cx, int cy,
                   double rx, double ry) {
  const Bitmap before = noise(dice, 67, 51);
  Bitmap want = before, got = before;
  oracle::ellipse({want, rop}, pen, brush, cx, cy, rx, ry);
  const Rect area = raster::ellipse({got, rop}, pen, brush, cx, cy, rx, ry);
  ASSERT_TRUE(same(want, got)) << "pen " << int(pen.style) << " width " << pen.width << " brush "
                               << int(brush.style) << " rop " << rop << " at " << cx << ", " << cy
                               << " half axes " << rx << ", " << ry;
  ASSERT_TRUE(onlyWithin(area, before, got));
}

TEST(Ellipses, ThinOnesAreTheExactCurveWithEveryPenBrushAndRasterOperation) {
  Dice dice(30);
  for (int i = 0; i < 3000; ++i) {
    const Pen pen{anyStyle(dice), 1, dice.color()};
    expectEllipse(dice, pen, brush(dice), dice.number(1, 16), dice.number(-40, 107),
                  dice.number(-40, 91), halfAxis(dice), halfAxis(dice));
  }
}

TEST(Ellipses, EveryCombinationOfSmallHalfAxesIsExact) {
  Dice dice(31);
  for (int rx = 0; rx <= 24; ++rx) {
    for (int ry = 0; ry <= 24; ++ry) {
      expectEllipse(dice, {PenStyle::Solid, 1, kBlack}, brush(dice), 7, 33, 25, rx, ry);
      expectEllipse(dice, {anyStyle(dice), 1, kBlack}, {}, 13, 33, 25, 0.5 * rx, 0.5 * ry);
    }
  }
}

TEST(Ellipses, WideOnesAreThePixelsWithinHalfTheWidthOfTheCurve) {
  Dice dice(32);
  for (int i = 0; i < 700; ++i) {
    const Pen pen{PenStyle::Solid, penWidth(dice), dice.color()};
    expectEllipse(dice, pen, brush(dice), dice.number(1, 16), dice.number(-40, 107),
                  dice.number(-40, 91), halfAxis(dice), halfAxis(dice));
  }
}

TEST(Ellipses, SmallWideOnesAreExactWhereThePenIsWiderThanTheCurve) {
  Dice dice(33);
  for (int rx = 1; rx <= 20; rx += 1) {
    for (int ry = 1; ry <= 20; ry += 3) {
      const Pen pen{PenStyle::Solid, dice.number(2, 24), kBlack};
      expectEllipse(dice, pen, {BrushStyle::Solid, kGreen}, 13, 33, 25, rx, ry);
    }
  }
}

TEST(Ellipses, HugeAndFarOnesAreRightWhereTheyCrossTheSheet) {
  Dice dice(34);
  for (int i = 0; i < 200; ++i) {
    // Passing through a point of the sheet, from as far as coordinates go.
    const double rx = dice.number(100, 32000), ry = dice.number(100, 32000);
    const bool across = dice.chance(50);
    const int cx = dice.number(0, 60) + (across ? static_cast<int>(rx) : 0);
    const int cy = dice.number(0, 50) + (across ? 0 : static_cast<int>(ry));
    const Pen pen{PenStyle::Solid, dice.chance(50) ? 1 : dice.number(2, 12), kBlack};
    expectEllipse(dice, pen, brush(dice), dice.number(1, 16), cx, cy, rx, ry);
  }
}

TEST(Ellipses, ConcentricCirclesInHalfStepsLeaveNoHole) {
  Bitmap rings(80, 80, kWhite);
  for (int i = 0; i <= 60; ++i) {
    raster::ellipse({rings}, {PenStyle::Solid, 1, kBlack}, {}, 40, 40, 0.5 * i, 0.5 * i);
    Bitmap disc(80, 80, kWhite);
    raster::ellipse({disc}, {PenStyle::Solid, 1, kBlack}, {BrushStyle::Solid, kBlack}, 40, 40,
                    0.5 * i, 0.5 * i);
    ASSERT_TRUE(same(disc, rings)) << "radius " << 0.5 * i;
  }
}

TEST(Ellipses, LookTheSameFromAllSides) {
  Dice dice(35);
  for (int i = 0; i < 400; ++i) {
    const int width = dice.number(1, 20), even = width % 2 == 0 ? 1 : 0;
    const double rx = halfAxis(dice), ry = halfAxis(dice);
    if (rx > 55 || ry > 55) continue;
    Bitmap picture(141, 141, kWhite);
    raster::ellipse({picture}, {PenStyle::Solid, width, kBlack}, {BrushStyle::Solid, kGreen}, 70,
                    70, rx, ry);
    for (int y = 0; y <= 140 - even; ++y) {
      for (int x = 0; x <= 140 - even; ++x) {
        ASSERT_EQ(picture.at(x, y), picture.at(140 - even - x, y))
            << rx << ' ' << ry << ' ' << width;
        ASSERT_EQ(picture.at(x, y), picture.at(x, 140 - even - y))
            << rx << ' ' << ry << ' ' << width;
      }
    }
  }
}

TEST(Ellipses, TurningTheAxesTurnsThePicture) {
  for (int rx = 1; rx < 40; rx += 2) {
    for (int ry = 1; ry < 40; ry += 3) {
      for (const int width : {1, 2, 5, 8}) {
        const Pen pen{PenStyle::Solid, width, kBlack};
        Bitmap lying(120, 120, kWhite), standing(120, 120, kWhite);
        raster::ellipse({lying}, pen, {}, 60, 60, rx, ry);
        raster::ellipse({standing}, pen, {}, 60, 60, ry, rx);
        for (int y = 0; y < 120; ++y) {
          for (int x = 0; x < 120; ++x) ASSERT_EQ(lying.at(x, y), standing.at(y, x));
        }
      }
    }
  }
}

/// Fills the hole of a ring and the outside; nothing but the ring may be left, in one piece.
void expectClosed(const Bitmap& picture, int cx, int cy, const char* what) {
  Bitmap work = picture;
  const Brush green{BrushStyle::Solid, kGreen};
  raster::floodFill({work}, green, 0, 0, kWhite);
  raster::floodFill({work}, green, cx, cy, kWhite);
  EXPECT_EQ(count(work, kWhite), 0) << what;
  EXPECT_NE(work.at(cx, cy), kWhite) << what;
  Bitmap outside = picture;
  raster::floodFill({outside}, green, 0, 0, kWhite);
  EXPECT_EQ(outside.at(cx, cy), picture.at(cx, cy)) << what << ": the ring leaks";
}

TEST(Ellipses, RingsHoldAFillAndHaveNoHolesOfTheirOwn) {
  Dice dice(36);
  for (int i = 0; i < 500; ++i) {
    const int width = dice.number(1, 30);
    Bitmap picture(200, 200, kWhite);
    const double rx = dice.number(1, 60), ry = dice.number(1, 60);
    raster::ellipse({picture}, {PenStyle::Solid, width, kBlack}, {}, 100, 100, rx, ry);
    expectClosed(picture, 100, 100, "ring");
  }
}

TEST(Ellipses, PassThroughCentrePlusAndMinusTheHalfAxes) {
  for (int rx = 1; rx <= 60; ++rx) {
    for (int ry = 1; ry <= 60; ry += 7) {
      Bitmap picture(130, 130, kWhite);
      const Rect area =
          raster::ellipse({picture}, {PenStyle::Solid, 1, kBlack}, {}, 64, 65, rx, ry);
      EXPECT_EQ(area, (Rect{64 - rx, 65 - ry, 64 + rx + 1, 65 + ry + 1}));
      EXPECT_EQ(picture.at(64 - rx, 65), kBlack);
      EXPECT_EQ(picture.at(64 + rx, 65), kBlack);
      EXPECT_EQ(picture.at(64, 65 - ry), kBlack);
      EXPECT_EQ(picture.at(64, 65 + ry), kBlack);
    }
  }
}

TEST(Ellipses, WithoutWidthAreALineWithBothEnds) {
  Bitmap picture(40, 40, kWhite);
  raster::ellipse({picture, 7}, {PenStyle::Solid, 1, kWhite}, {BrushStyle::Solid, kGreen}, 20, 20,
                  0, 9);
  for (int y = 0; y < 40; ++y) EXPECT_EQ(picture.at(20, y), y >= 11 && y <= 29 ? kBlack : kWhite);
  EXPECT_EQ(count(picture, kBlack), 19);
}

TEST(Ellipses, WithoutAnySizeAreADotOfPenWidth) {
  for (int width = 1; width <= 40; ++width) {
    const Pen pen{PenStyle::Solid, width, kBlack};
    Bitmap dot(60, 60, kWhite), circle = dot;
    raster::dot({dot}, pen, 30, 30);
    raster::ellipse({circle}, pen, {BrushStyle::Solid, kGreen}, 30, 30, 0, 0);
    EXPECT_TRUE(same(dot, circle));
  }
}

TEST(Ellipses, WithoutAPenFillWhatTheOutlineEncloses) {
  for (int rx = 1; rx < 30; ++rx) {
    for (int ry = 1; ry < 30; ++ry) {
      Bitmap filled(64, 64, kWhite), outline = filled, whole = filled;
      const Brush brush{BrushStyle::Solid, kGreen};
      raster::ellipse({filled}, {PenStyle::Null}, brush, 32, 32, rx, ry);
      raster::ellipse({outline}, {PenStyle::Solid, 1, kBlack}, {}, 32, 32, rx, ry);
      raster::ellipse({whole}, {PenStyle::Solid, 1, kBlack}, brush, 32, 32, rx, ry);
      for (int y = 0; y < 64; ++y) {
        for (int x = 0; x < 64; ++x) {
          const Pixel want = outline.at(x, y) == kBlack ? kBlack : filled.at(x, y);
          ASSERT_EQ(whole.at(x, y), want);
          ASSERT_FALSE(outline.at(x, y) == kBlack && filled.at(x, y) == kGreen);
        }
      }
    }
  }
}

TEST(Ellipses, InvertingARingTwiceBringsThePictureBack) {
  Dice dice(37);
  const Bitmap before = noise(dice, 100, 100);
  for (int width = 1; width <= 40; ++width) {
    Bitmap picture = before;
    for (int i = 0; i < 2; ++i) {
      raster::ellipse({picture, 6}, {PenStyle::Solid, width, kBlack}, {}, 48, 51, 30, 17);
    }
    EXPECT_TRUE(same(before, picture)) << width;
  }
}

}  // namespace
