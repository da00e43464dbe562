// Flood fill: against a naive search, on mazes, noise and hatches.
#include <gtest/gtest.h>

#include "oracle.h"
#include "pictures.h"

namespace {

using namespace pictures;
using raster::Brush;
using raster::BrushStyle;

void expectFill(const Bitmap& before, const Brush& brush, int rop, int x, int y, Pixel region) {
  Bitmap want = before, got = before;
  oracle::floodFill({want, rop}, brush, x, y, region);
  const Rect area = raster::floodFill({got, rop}, brush, x, y, region);
  ASSERT_TRUE(same(want, got)) << "seed " << x << ", " << y << " brush " << int(brush.style);
  ASSERT_TRUE(onlyWithin(area, before, got));
}

/// Cells of black and white, so that regions wind, touch at corners and end anywhere.
Bitmap cells(Dice& dice, int width, int height, int cell, int percentBlack) {
  Bitmap bitmap(width, height, kWhite);
  for (int y = 0; y < height; y += cell) {
    for (int x = 0; x < width; x += cell) {
      if (!dice.chance(percentBlack)) continue;
      const Rect area = intersect(bitmap.bounds(), {x, y, x + cell, y + cell});
      for (int row = area.top; row < area.bottom; ++row) {
        std::fill(bitmap.row(row) + area.left, bitmap.row(row) + area.right, kBlack);
      }
    }
  }
  return bitmap;
}

TEST(FloodFill, FindsExactlyTheConnectedRegionInNoise) {
  Dice dice(40);
  for (int i = 0; i < 600; ++i) {
    const int width = dice.number(1, 300), height = dice.number(1, 60);
    const Bitmap before = cells(dice, width, height, dice.number(1, 5), dice.number(0, 60));
    const int x = dice.number(0, width - 1), y = dice.number(0, height - 1);
    expectFill(before, brush(dice), dice.number(1, 16), x, y,
               dice.chance(80) ? before.at(x, y) : kWhite);
  }
}

TEST(FloodFill, FollowsCorridorsOfOnePixel) {
  for (const int size : {63, 64, 65, 129, 200}) {
    Bitmap maze(size, size, kBlack);
    // A spiral: every second ring of pixels is open, each joined to the next by one pixel.
    for (int ring = 0; 4 * ring < size; ++ring) {
      const int low = 2 * ring, high = size - 1 - 2 * ring;
      for (int i = low; i <= high; ++i) {
        maze.row(low)[i] = maze.row(high)[i] = maze.row(i)[low] = maze.row(i)[high] = kWhite;
      }
      if (low > 0) {
        maze.row(low - 1)[low] = kWhite;
        maze.row(low + (high > low ? 1 : 0))[low] = kBlack;
      }
    }
    expectFill(maze, {BrushStyle::Solid, kGreen}, 13, 0, size - 1, kWhite);
    expectFill(maze, {BrushStyle::Cross, kGreen}, 13, size - 1, 0, kWhite);
  }
}

TEST(FloodFill, GoesUpAndDownThroughCombs) {
  for (const bool standing : {false, true}) {
    Bitmap comb(190, 190, kWhite);
    for (int i = 1; i < 190; i += 2) {
      for (int k = 0; k < 189; ++k) {
        const int at = i % 4 == 1 ? k : k + 1;
        (standing ? comb.row(at)[i] : comb.row(i)[at]) = kBlack;
      }
    }
    expectFill(comb, {BrushStyle::Solid, kGreen}, 13, 0, 0, kWhite);
    expectFill(comb, {BrushStyle::Solid, kGreen}, 7, 188, 188, kWhite);
  }
}

TEST(FloodFill, FillsAnEmptySheetToItsEdges) {
  for (const int width : {1, 63, 64, 65, 128, 617}) {
    Bitmap sheet(width, 37, kWhite);
    EXPECT_EQ(raster::floodFill({sheet}, {BrushStyle::Solid, kGreen}, width / 2, 20, kWhite),
              sheet.bounds());
    EXPECT_EQ(count(sheet, kGreen), width * 37);
  }
}

TEST(FloodFill, DoesNotSlipThroughCorners) {
  Bitmap sheet(20, 20, kWhite);
  for (int i = 0; i < 20; ++i) sheet.row(i)[19 - i] = kBlack;
  raster::floodFill({sheet}, {BrushStyle::Solid, kGreen}, 0, 0, kWhite);
  EXPECT_EQ(count(sheet, kGreen), 190);
  EXPECT_EQ(sheet.at(19, 19), kWhite);
}

TEST(FloodFill, LeavesColoursAloneThatDifferByOneBit) {
  Dice dice(41);
  for (int bit = 0; bit < 24; ++bit) {
    Bitmap sheet(64, 8, 0xFF808080);
    for (int y = 0; y < 8; ++y) sheet.row(y)[31] ^= Pixel{1} << bit;
    expectFill(sheet, {BrushStyle::Solid, kGreen}, 13, 3, 3, 0xFF808080);
  }
}

TEST(FloodFill, WorksInTheVeryColourOfTheRegion) {
  Dice dice(42);
  const Bitmap before = cells(dice, 150, 90, 3, 40);
  for (int style = 0; style <= 7; ++style) {
    expectFill(before, {static_cast<BrushStyle>(style), kWhite}, 13, 75, 45, kWhite);
  }
}

TEST(FloodFill, DoesNothingBesideTheSheetOrOnAnotherColour) {
  Bitmap sheet(30, 30, kWhite);
  const Brush green{BrushStyle::Solid, kGreen};
  for (const auto& [x, y] : {std::pair{-1, 5}, {30, 5}, {5, -1}, {5, 30}, {-32767, 32767}}) {
    EXPECT_TRUE(raster::floodFill({sheet}, green, x, y, kWhite).empty());
  }
  EXPECT_TRUE(raster::floodFill({sheet}, green, 5, 5, kBlack).empty());
  EXPECT_TRUE(raster::floodFill({sheet}, {}, 5, 5, kWhite).empty());
  EXPECT_EQ(count(sheet, kWhite), 900);
}

TEST(FloodFill, HatchesStayPatternsWhenFilledAgain) {
  Dice dice(43);
  for (int first = 1; first <= 7; ++first) {
    Bitmap sheet = cells(dice, 120, 80, 7, 20);
    raster::floodFill({sheet}, {static_cast<BrushStyle>(first), kGreen}, 60, 40, sheet.at(60, 40));
    expectFill(sheet, brush(dice), 13, 61, 42, sheet.at(61, 42));
  }
}

}  // namespace
