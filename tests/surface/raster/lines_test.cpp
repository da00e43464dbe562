// Lines and dots of every pen, against their plain definition and for what a child sees of them.
#include <gtest/gtest.h>

#include "oracle.h"
#include "pictures.h"

namespace {

using namespace pictures;
using raster::Pen;
using raster::PenStyle;
using raster::Target;

/// Draws the same line both ways on noise and compares.
void expectLine(Dice& dice, const Pen& pen, int rop, int x1, int y1, int x2, int y2) {
  const Bitmap before = noise(dice, 61, 47);
  Bitmap want = before, got = before;
  oracle::line({want, rop}, pen, x1, y1, x2, y2);
  const Rect area = raster::line({got, rop}, pen, x1, y1, x2, y2);
  ASSERT_TRUE(same(want, got)) << "width " << pen.width << " rop " << rop << " from " << x1 << ", "
                               << y1 << " to " << x2 << ", " << y2;
  ASSERT_TRUE(onlyWithin(area, before, got));
}

TEST(Lines, ThinLinesHitTheNearestPixelsWhereverTheyStartAndEnd) {
  Dice dice(1);
  for (int i = 0; i < 4000; ++i) {
    const Pen pen{anyStyle(dice), 1, dice.color()};
    expectLine(dice, pen, dice.number(1, 16), coordinate(dice, 61), coordinate(dice, 47),
               coordinate(dice, 61), coordinate(dice, 47));
  }
}

TEST(Lines, ThinLinesWithinTheSheetAreRightInEveryDirection) {
  Dice dice(2);
  for (int x = 0; x <= 40; ++x) {
    for (int y = 0; y <= 40; ++y) expectLine(dice, {PenStyle::Solid, 1, kBlack}, 13, 20, 20, x, y);
  }
}

TEST(Lines, LongThinLinesAreRightInEveryDirection) {
  Dice dice(12);
  const auto expectLong = [&](int x1, int y1, int x2, int y2) {
    Bitmap want(301, 211, kWhite), got = want;
    const Pen pen{PenStyle::Solid, 1, kBlack};
    oracle::line({want}, pen, x1, y1, x2, y2);
    const Bitmap before = got;
    const Rect area = raster::line({got}, pen, x1, y1, x2, y2);
    ASSERT_TRUE(same(want, got)) << x1 << ", " << y1 << " to " << x2 << ", " << y2;
    ASSERT_TRUE(onlyWithin(area, before, got));
  };
  for (int y = 0; y < 211; ++y) {
    for (const int x : {0, 100, 150, 299, 300}) {
      expectLong(150, 105, x, y);
      expectLong(x, y, 149, 104);
    }
  }
  for (int i = 0; i < 2000; ++i) {
    const int x1 = dice.number(0, 300), y1 = dice.number(0, 210);
    expectLong(x1, y1, dice.number(0, 300), dice.number(0, 210));
  }
}

TEST(Lines, WideLinesAreTheExactCapsuleRoundTheSegment) {
  Dice dice(3);
  for (int i = 0; i < 3000; ++i) {
    const Pen pen{anyStyle(dice), penWidth(dice), dice.color()};
    expectLine(dice, pen, dice.number(1, 16), coordinate(dice, 61), coordinate(dice, 47),
               coordinate(dice, 61), coordinate(dice, 47));
  }
}

TEST(Lines, ShortWideLinesAreExactInEveryDirectionAndWidth) {
  Dice dice(4);
  for (int width = 2; width <= 12; ++width) {
    for (int x = 20; x <= 40; ++x) {
      for (int y = 14; y <= 34; ++y) {
        expectLine(dice, {PenStyle::Solid, width, kBlack}, 7, 30, 24, x, y);
      }
    }
  }
}

TEST(Lines, FarAwayLinesLeaveTheSheetAlone) {
  Dice dice(5);
  for (const int width : {1, 2, 200}) {
    const Pen pen{PenStyle::Solid, width, kBlack};
    expectLine(dice, pen, 13, -32767, -32767, -32767, 32767);
    expectLine(dice, pen, 13, -32767, 32767, 32767, 32767);
    expectLine(dice, pen, 13, 32767, 32767, 32767, 32767);
  }
}

TEST(Lines, EveryRasterOperationTakesEachPixelOfAWideLineOnce) {
  Dice dice(6);
  for (int rop = 1; rop <= 16; ++rop) {
    for (int width = 1; width <= 9; ++width) {
      expectLine(dice, {PenStyle::Solid, width, dice.color()}, rop, 5, 8, 50, 29);
    }
  }
}

TEST(Lines, InvertingALineTwiceBringsThePictureBack) {
  Dice dice(7);
  const Bitmap before = noise(dice, 90, 80);
  for (int width = 1; width <= 40; ++width) {
    Bitmap picture = before;
    for (int i = 0; i < 2; ++i) {
      raster::line({picture, 6}, {PenStyle::Solid, width, kBlack}, 10, 12, 70, 60);
    }
    EXPECT_TRUE(same(before, picture)) << width;
  }
}

TEST(Lines, ANullPenPaintsNothing) {
  Dice dice(8);
  const Bitmap before = noise(dice, 30, 30);
  Bitmap picture = before;
  for (const int width : {1, 7}) {
    const Pen pen{PenStyle::Null, width, kBlack};
    EXPECT_TRUE(raster::line({picture}, pen, 2, 2, 20, 25).empty());
    EXPECT_TRUE(raster::dot({picture}, pen, 9, 9).empty());
  }
  EXPECT_TRUE(same(before, picture));
}

TEST(Lines, ThePixelsStayOpaque) {
  Dice dice(9);
  Bitmap picture = noise(dice, 40, 40);
  for (int rop = 1; rop <= 16; ++rop) {
    raster::line({picture, rop}, {PenStyle::Solid, 5, dice.color()}, 3, 3, 36, 30);
    raster::line({picture, rop}, {PenStyle::Solid, 1, dice.color()}, 3, 30, 36, 3);
  }
  for (int y = 0; y < 40; ++y) {
    for (int x = 0; x < 40; ++x) ASSERT_EQ(picture.at(x, y) >> 24, 0xFFu);
  }
}

TEST(Lines, PensWithGapsPaintTheStrokesOfThePlatform) {
  const std::pair<PenStyle, std::string> patterns[] = {
      {PenStyle::Dashed, "##################......"},
      {PenStyle::Dotted, "###...###...###...###..."},
      {PenStyle::DashDot, "#########......###......"},
      {PenStyle::DashDotDot, "#########...###...###..."}};
  for (const auto& [style, pattern] : patterns) {
    Bitmap picture(60, 60, kWhite);
    raster::line({picture}, {style, 1, kBlack}, 0, 5, 60, 5);
    raster::line({picture}, {style, 1, kBlack}, 0, 10, 50, 60);
    for (int i = 0; i < 50; ++i) {
      const Pixel want =
          pattern[static_cast<std::size_t>(i) % pattern.size()] == '#' ? kBlack : kWhite;
      ASSERT_EQ(picture.at(i, 5), want) << i;
      ASSERT_EQ(picture.at(i, 10 + i), want) << i;
    }
  }
}

TEST(Lines, AThinLineFromAPointToItselfIsOneDotEvenDotted) {
  for (const PenStyle style : {PenStyle::Solid, PenStyle::Dotted}) {
    Bitmap picture(9, 9, kWhite);
    EXPECT_EQ(raster::line({picture}, {style, 1, kBlack}, 4, 5, 4, 5), (Rect{4, 5, 5, 6}));
    EXPECT_EQ(count(picture, kBlack), 1);
    EXPECT_EQ(picture.at(4, 5), kBlack);
  }
}

TEST(Dots, AreExactDiscsOnEveryPlace) {
  Dice dice(10);
  for (int i = 0; i < 2000; ++i) {
    const Pen pen{PenStyle::Solid, dice.number(1, 200), dice.color()};
    const int rop = dice.number(1, 16), x = coordinate(dice, 61), y = coordinate(dice, 47);
    const Bitmap before = noise(dice, 61, 47);
    Bitmap want = before, got = before;
    oracle::dot({want, rop}, pen, x, y);
    const Rect area = raster::dot({got, rop}, pen, x, y);
    ASSERT_TRUE(same(want, got)) << pen.width << " at " << x << ", " << y;
    ASSERT_TRUE(onlyWithin(area, before, got));
  }
}

TEST(Dots, LookTheSameFromAllFourSides) {
  for (int width = 1; width <= 200; ++width) {
    Bitmap picture(210, 210, kWhite);
    raster::dot({picture}, {PenStyle::Solid, width, kBlack}, 105, 105);
    const int sum = 210 - (width % 2 == 0 ? 1 : 0);
    for (int y = 0; y < 209; ++y) {
      for (int x = 0; x < 209; ++x) {
        ASSERT_EQ(picture.at(x, y), picture.at(y, x)) << width;
        if (sum - x < 210 && sum - y < 210) {
          ASSERT_EQ(picture.at(x, y), picture.at(sum - x, sum - y)) << width;
        }
      }
    }
  }
}

// What a quick hand draws: many short pieces, one behind the other.
TEST(Strokes, WidePiecesJoinWithoutAGap) {
  Dice dice(11);
  for (int round = 0; round < 200; ++round) {
    const int width = dice.number(2, 20);
    Bitmap picture(200, 160, kWhite);
    int x = 100, y = 80;
    for (int i = 0; i < 40; ++i) {
      const int toX = std::clamp(x + dice.number(-12, 12), 20, 180);
      const int toY = std::clamp(y + dice.number(-12, 12), 20, 140);
      raster::line({picture}, {PenStyle::Solid, width, kBlack}, x, y, toX, toY);
      x = toX;
      y = toY;
    }
    const int painted = count(picture, kBlack);
    raster::floodFill({picture}, {raster::BrushStyle::Solid, 0xFF00FF00}, x, y, kBlack);
    EXPECT_EQ(count(picture, 0xFF00FF00), painted) << "the stroke falls into pieces";
  }
}

TEST(Strokes, ThinPiecesPaintEveryPixelOfAnInvertedChainOnce) {
  Bitmap picture(40, 40, kWhite);
  const int points[][2] = {{5, 5}, {20, 9}, {33, 30}, {8, 25}, {5, 5}};
  for (int i = 0; i < 4; ++i) {
    raster::line({picture, 6}, {PenStyle::Solid, 1, kBlack}, points[i][0], points[i][1],
                 points[i + 1][0], points[i + 1][1]);
  }
  for (const auto& [x, y] : points) EXPECT_EQ(picture.at(x, y), kBlack);
}

}  // namespace
