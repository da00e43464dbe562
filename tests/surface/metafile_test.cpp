// Metafiles: every kind of call against the same call on the raster, and everything that is
// refused.
#include "surface/metafile.h"

#include <array>
#include <cmath>
#include <fstream>
#include <random>

#include "studio/studio.h"
#include "support/errors.h"
#include "surface/host.h"
#include "surface/metafile_writer.h"
#include "surface/raster/polygons.h"

using namespace surface;
using raster::Brush;
using raster::BrushStyle;
using raster::PenStyle;
using raster::Spot;

namespace {

constexpr std::int64_t MostPlayed = 16 << 20;
constexpr int Width = 120, Height = 90;
constexpr raster::Pixel White32 = 0xFFFFFFFF, Black32 = 0xFF000000, Red32 = 0xFFFF0000,
                        Blue32 = 0xFF0000FF, Green32 = 0xFF00FF00;
constexpr unsigned RedRef = 0x0000FF, BlueRef = 0xFF0000, GreenRef = 0x00FF00;
constexpr unsigned Rectangle = 0x041B, Ellipse = 0x0418, Polygon = 0x0324, Polyline = 0x0325;

raster::Pen thin(raster::Pixel color) { return {PenStyle::Solid, 1, color}; }

}  // namespace

class Metafile : public script::Stage {
 protected:
  Metafile() { file.window(0, 0, Width, Height); }

  static raster::Bitmap played(const MetafileWriter::Bytes& bytes) {
    return *playMetafile(bytes, MostPlayed).bitmap();
  }
  raster::Bitmap played() const { return played(file.plain()); }
  static void expectRefused(const MetafileWriter::Bytes& bytes) {
    EXPECT_ERROR(BadFile, playMetafile(bytes, MostPlayed));
  }

  MetafileWriter file;
  raster::Bitmap paper{Width, Height, White32};
};

TEST_F(Metafile, AnEmptyOneIsWhite) { EXPECT_TRUE(same(played(), paper)); }

TEST_F(Metafile, APlaceableOneHasTheSizeOfItsHeaderAtNinetySixDots) {
  const raster::Bitmap picture = played(MetafileWriter().placeable(-100, 200, 1340, 920, 1440));
  EXPECT_EQ(picture.width(), 96);
  EXPECT_EQ(picture.height(), 48);
}

TEST_F(Metafile, APlainOneHasTheSizeOfItsFirstWindow) {
  MetafileWriter plain;
  plain.window(5, 5, -70, 40).window(0, 0, 700, 400);
  const raster::Bitmap picture = played(plain.plain());
  EXPECT_EQ(picture.width(), 70);
  EXPECT_EQ(picture.height(), 40);
}

TEST_F(Metafile, LinesHaveTheirPen) {
  file.pen(0, 1, RedRef).pen(0, 5, BlueRef).pen(2, 1, GreenRef).pen(5, 1, RedRef);
  file.move(10, 10).lineTo(100, 20);
  file.select(0).lineTo(50, 80);
  file.select(1).lineTo(10, 40);
  file.select(2).lineTo(110, 60);
  file.select(3).lineTo(0, 0);
  raster::line({paper}, thin(Black32), 10, 10, 100, 20);
  raster::line({paper}, thin(Red32), 100, 20, 50, 80);
  raster::line({paper}, {PenStyle::Solid, 5, Blue32}, 50, 80, 10, 40);
  raster::line({paper}, {PenStyle::Dotted, 1, Green32}, 10, 40, 110, 60);
  EXPECT_TRUE(same(played(), paper));
}

TEST_F(Metafile, PolylinesAndPolygonsHaveTheirCorners) {
  const std::vector<MetafileWriter::At> star = {{60, 5}, {85, 80}, {10, 30}, {110, 30}, {35, 80}};
  file.pen(0, 1, RedRef).brush(0, BlueRef).select(0).select(1);
  for (const auto rule : {raster::FillRule::Alternate, raster::FillRule::Winding}) {
    file.record(0x0106, {rule == raster::FillRule::Winding ? 2 : 1});
    file.points(Polygon, star);
    const std::vector<Spot> corners = {{60, 5}, {85, 80}, {10, 30}, {110, 30}, {35, 80}};
    raster::polygons({paper}, thin(Red32), {BrushStyle::Solid, Blue32}, corners, std::vector{5},
                     rule);
    EXPECT_TRUE(same(played(), paper));
  }
  file.points(Polyline, {{1, 1}, {1, 80}, {110, 85}});
  raster::line({paper}, thin(Red32), 1, 1, 1, 80);
  raster::line({paper}, thin(Red32), 1, 80, 110, 85);
  EXPECT_TRUE(same(played(), paper));
}

TEST_F(Metafile, PolyPolygonsLeaveTheirHolesOpen) {
  file.brush(0, BlueRef).select(0).pen(5, 1, 0).select(1);
  file.record(0x0538, {2, 4, 3, 10, 10, 100, 10, 100, 80, 10, 80, 30, 30, 60, 30, 40, 60});
  const std::vector<Spot> corners = {{10, 10}, {100, 10}, {100, 80}, {10, 80},
                                     {30, 30}, {60, 30},  {40, 60}};
  raster::polygons({paper}, {PenStyle::Null}, {BrushStyle::Solid, Blue32}, corners,
                   std::vector{4, 3}, raster::FillRule::Alternate);
  EXPECT_EQ(paper.at(40, 40), White32);
  EXPECT_EQ(paper.at(20, 20), Blue32);
  EXPECT_TRUE(same(played(), paper));
}

TEST_F(Metafile, RectanglesEndBeforeTheirRightAndLowerSides) {
  file.pen(0, 3, RedRef).brush(0, GreenRef).select(0).select(1);
  file.box(Rectangle, 10, 20, 60, 70);
  raster::box({paper}, {PenStyle::Solid, 3, Red32}, {BrushStyle::Solid, Green32}, 10, 20, 59, 69);
  EXPECT_TRUE(same(played(), paper));
}

TEST_F(Metafile, HatchesLetTheGroundThroughUnlessItIsOpaque) {
  file.brush(2, RedRef, 5).select(0).record(0x0201, {MetafileWriter::low(GreenRef), 0});
  file.record(0x0102, {1}).box(Rectangle, 5, 5, 40, 40);
  file.record(0x0102, {2}).box(Rectangle, 50, 5, 90, 40);
  const Brush hatch{BrushStyle::DiagonalCross, Red32};
  raster::box({paper}, thin(Black32), hatch, 5, 5, 39, 39);
  raster::filledBox({paper}, thin(Green32), 50, 5, 89, 39);
  raster::box({paper}, thin(Black32), hatch, 50, 5, 89, 39);
  EXPECT_TRUE(same(played(), paper));
}

TEST_F(Metafile, EllipsesTouchTheSidesOfTheirBox) {
  file.brush(0, GreenRef).select(0);
  file.box(Ellipse, 10, 10, 61, 41).box(Ellipse, 70, 10, 110, 80);
  raster::ellipse({paper}, thin(Black32), {BrushStyle::Solid, Green32}, 35, 25, 25, 15);
  const raster::Bitmap picture = played();
  for (int y = 0; y < Height; ++y)
    for (int x = 0; x < 65; ++x) ASSERT_EQ(picture.at(x, y), paper.at(x, y)) << x << ", " << y;
  // The even one: black on all four sides, and nothing beyond them.
  const auto count = [&](int left, int top, int right, int bottom) {
    int black = 0;
    for (int y = top; y < bottom; ++y)
      for (int x = left; x < right; ++x) black += picture.at(x, y) == Black32 ? 1 : 0;
    return black;
  };
  EXPECT_GT(count(70, 40, 71, 50), 0);
  EXPECT_GT(count(109, 40, 110, 50), 0);
  EXPECT_GT(count(80, 10, 100, 11), 0);
  EXPECT_GT(count(80, 79, 100, 80), 0);
  EXPECT_EQ(count(66, 0, 70, 90) + count(110, 0, 120, 90) + count(66, 0, 120, 10) +
                count(66, 80, 120, 90),
            0);
  EXPECT_EQ(picture.at(90, 45), Green32);
}

TEST_F(Metafile, ArcsPiesAndChordsRunCounterclockwise) {
  file.brush(0, BlueRef).select(0);
  // From straight right to straight up: the upper right quarter.
  const std::vector<int> quarter = {0, 30, 30, 61, 61, 61, 0, 0};
  file.record(0x0817, quarter);
  raster::Bitmap picture = played();
  EXPECT_EQ(picture.at(60, 30), Black32);
  EXPECT_EQ(picture.at(52, 9), Black32);
  EXPECT_EQ(picture.at(8, 9), White32);
  EXPECT_EQ(picture.at(40, 20), White32);
  MetafileWriter cake = file, cut = file;
  picture = played(cake.record(0x081A, quarter).plain());
  EXPECT_EQ(picture.at(40, 20), Blue32);
  EXPECT_EQ(picture.at(30, 15), Black32);
  EXPECT_EQ(picture.at(20, 20), White32);
  EXPECT_EQ(picture.at(40, 40), White32);
  picture = played(cut.record(0x0830, quarter).plain());
  EXPECT_EQ(picture.at(48, 14), Blue32);
  EXPECT_EQ(picture.at(38, 22), White32);
}

TEST_F(Metafile, RoundedRectanglesHaveRoundCorners) {
  file.brush(0, BlueRef).select(0);
  file.record(0x061C, {20, 30, 71, 101, 11, 11});
  const raster::Bitmap picture = played();
  EXPECT_EQ(picture.at(11, 11), White32);
  EXPECT_EQ(picture.at(14, 13), White32);
  EXPECT_EQ(picture.at(50, 11), Black32);
  EXPECT_EQ(picture.at(50, 70), Black32);
  EXPECT_EQ(picture.at(11, 40), Black32);
  EXPECT_EQ(picture.at(100, 40), Black32);
  EXPECT_EQ(picture.at(50, 40), Blue32);
  EXPECT_EQ(picture.at(101, 40), White32);
}

TEST_F(Metafile, TextStandsWhereItsAlignmentSays) {
  file.font(-24, "Liberation Sans", 700).select(0).record(0x0209, {MetafileWriter::low(RedRef), 0});
  file.record(0x0102, {1});
  const TextMask mask = host().rasterText({"Liberation Sans", 18, true}, "Zoë");
  file.text(20, 10, "Zo\xEB");
  const auto print = [&](int x, int y) {
    for (int row = 0; row < mask.height; ++row)
      for (int column = 0; column < mask.width; ++column)
        if (mask.dots[static_cast<std::size_t>(row * mask.width + column)])
          oracle::put({paper}, Red32, x + mask.left + column, y + mask.top + row);
  };
  print(20, 10);
  EXPECT_TRUE(same(played(), paper));
  file.record(0x012E, {24}).text(30, 80, "Zo\xEB");
  print(30, 80 - mask.ascent);
  EXPECT_TRUE(same(played(), paper));
  file.record(0x012E, {2}).text(110, 40, "Zo\xEB");
  print(110 - static_cast<int>(mask.advance), 40);
  EXPECT_TRUE(same(played(), paper));
}

TEST_F(Metafile, OpaqueTextHasAGround) {
  file.font(-16, "Liberation Sans").select(0).record(0x0201, {MetafileWriter::low(GreenRef), 0});
  file.text(10, 10, "ii");
  const raster::Bitmap picture = played();
  EXPECT_EQ(picture.at(10, 10), Green32);
  EXPECT_EQ(picture.at(9, 10), White32);
}

TEST_F(Metafile, BitmapsAreScaledAndCombined) {
  const std::vector<unsigned> pixels = {0xFF0000, 0x00FF00, 0x0000FF, 0x000000, 0xFFFFFF, 0x808080};
  raster::Bitmap source(3, 2, Black32);
  for (int i = 0; i < 6; ++i)
    source.row(i / 3)[i % 3] = 0xFF000000 | pixels[static_cast<std::size_t>(i)];
  file.bitmap(0x00CC0020, 10, 10, 31, 21, 3, pixels);
  raster::stretch(paper, 10, 10, 31, 21, source, 0, 0, 3, 2);
  EXPECT_TRUE(same(played(), paper));
  file.bitmap(0x00660046, 30, 20, 31, 21, 3, pixels);
  raster::Bitmap scaled(Width, Height, Black32);
  raster::stretch(scaled, 30, 20, 31, 21, source, 0, 0, 3, 2);
  raster::blitXor(paper, 0, 0, Width, Height, scaled, 0, 0);
  EXPECT_TRUE(same(played(), paper));
  file.bitmap(0x008800C6, 0, 0, Width, Height, 3, pixels);
  raster::Bitmap over(Width, Height, White32);
  raster::stretch(over, 0, 0, Width, Height, source, 0, 0, 3, 2);
  for (int y = 0; y < Height; ++y)
    for (int x = 0; x < Width; ++x) paper.row(y)[x] &= over.at(x, y);
  EXPECT_TRUE(same(played(), paper));
}

TEST_F(Metafile, BlocksWithoutABitmapWorkOnWhatIsThere) {
  file.brush(0, RedRef).select(0);
  file.record(0x061D, {0x0021, 0x00F0, 20, 30, 10, 5});   // the brush
  file.record(0x061D, {0x0009, 0x0055, 20, 30, 20, 15});  // inverted
  raster::filledBox({paper}, thin(Red32), 5, 10, 34, 29);
  raster::filledBox({paper, 6}, thin(Red32), 15, 20, 44, 39);
  EXPECT_TRUE(same(played(), paper));
}

TEST_F(Metafile, RasterOperationsHoldForShapes) {
  file.brush(0, RedRef).select(0).record(0x0104, {7});
  file.box(Rectangle, 10, 10, 60, 60).box(Rectangle, 30, 30, 90, 80);
  for (const auto& [l, t, r, b] : {std::array{10, 10, 59, 59}, {30, 30, 89, 79}})
    raster::box({paper, 7}, thin(Black32), {BrushStyle::Solid, Red32}, l, t, r, b);
  EXPECT_TRUE(same(played(), paper));
}

TEST_F(Metafile, WindowAndViewportMapTheFilesUnits) {
  MetafileWriter scaled;
  scaled.window(-1000, 1000, 2000, -1000);  // Y upwards, 0 in the middle of the left half
  scaled.pen(0, 50, RedRef).select(0).move(-1000, 1000).lineTo(1000, 0);
  const raster::Bitmap picture = played(scaled.placeable(0, 0, 200, 100, 96));
  raster::Bitmap should(200, 100, White32);
  raster::line({should}, {PenStyle::Solid, 5, Red32}, 0, 0, 200, 100);
  EXPECT_TRUE(same(picture, should));

  MetafileWriter shifted;
  shifted.window(0, 0, Width, Height);
  shifted.record(0x020D, {10, 20}).record(0x020E, {Height * 2, Width * 2});
  shifted.record(0x020F, {3, 4}).record(0x0412, {2, 1, 2, 1});
  shifted.move(4, 3).lineTo(30, 40);
  raster::line({paper}, thin(Black32), 20, 10, 46, 47);
  EXPECT_TRUE(same(played(shifted.plain()), paper));
}

TEST_F(Metafile, FixedUnitsCountUpwards) {
  file.record(0x020D, {80, 0}).record(0x0103, {6});  // twips, from 80 pixels down
  file.move(0, 0).lineTo(750, 300);
  raster::line({paper}, thin(Black32), 0, 80, 50, 60);
  EXPECT_TRUE(same(played(), paper));
}

TEST_F(Metafile, TheClipRegionHoldsAndComesBack) {
  file.brush(0, RedRef).brush(0, BlueRef).select(0);
  file.box(0x0416, 10, 10, 80, 70).record(0x001E, {}).box(0x0415, 20, 20, 50, 50);
  file.box(Rectangle, 0, 0, Width, Height);
  file.record(0x0127, {-1}).select(1).box(Rectangle, 30, 30, 40, 40);
  file.record(0x012C, {0}).box(Rectangle, 100, 80, 110, 88);
  const raster::Bitmap picture = played();
  for (int y = 0; y < Height; ++y)
    for (int x = 0; x < Width; ++x) {
      const bool inside = x >= 10 && x < 80 && y >= 10 && y < 70;
      const bool hole = x >= 20 && x < 50 && y >= 20 && y < 50;
      raster::Pixel should = inside && !hole ? Red32 : White32;
      if (x >= 30 && x < 40 && y >= 30 && y < 40)
        should = x == 30 || x == 39 || y == 30 || y == 39 ? Black32 : Blue32;
      if (x >= 100 && x < 110 && y >= 80 && y < 88)
        should = x == 100 || x == 109 || y == 80 || y == 87 ? Black32 : Blue32;
      ASSERT_EQ(picture.at(x, y), should) << x << ", " << y;
    }
}

TEST_F(Metafile, SavedStatesComeBackWithPenAndPosition) {
  file.pen(0, 1, RedRef).move(10, 10).record(0x001E, {});
  file.select(0).move(90, 80).record(0x0127, {1}).lineTo(50, 10);
  raster::line({paper}, thin(Black32), 10, 10, 50, 10);
  EXPECT_TRUE(same(played(), paper));
}

TEST_F(Metafile, ObjectsTakeTheFirstFreePlace) {
  file.pen(0, 1, RedRef).pen(0, 1, GreenRef).remove(0).pen(0, 1, BlueRef);
  file.select(0).move(0, 0).lineTo(50, 50);
  raster::line({paper}, thin(Blue32), 0, 0, 50, 50);
  EXPECT_TRUE(same(played(), paper));
}

TEST_F(Metafile, UnknownCallsAreSkipped) {
  file.record(0x0626, {15, 4, 0x1234, 0x5678}).record(0x7777, {}).record(0x0035, {});
  file.move(0, 0).lineTo(50, 50);
  raster::line({paper}, thin(Black32), 0, 0, 50, 50);
  EXPECT_TRUE(same(played(), paper));
}

TEST_F(Metafile, WhatReachesOutOfBoundsIsRefused) {
  const auto with = [this](unsigned function, const std::vector<int>& words) {
    MetafileWriter bad = file;
    return bad.record(function, words).plain();
  };
  expectRefused(with(0x012D, {5}));                // an object beyond the table
  expectRefused(with(0x02FA, {0, 1, 0, 0, 0}));    // one object more than announced
  expectRefused(with(0x0213, {1}));                // half a point
  expectRefused(with(Polygon, {1000, 1, 1}));      // corners that are not there
  expectRefused(with(0x0538, {3, 60000, 60000}));  // nor their counts
  expectRefused(with(0x0521, {200, 0, 0}));        // letters
  expectRefused(with(0x0127, {-1}));               // a state that was not saved
  expectRefused(with(0x0B41, {0x20, 0xCC, 9, 9, 0, 0, 9, 9, 0, 0, 40, 0, 9, 0, 9, 0, 1, 24}));
  MetafileWriter::Bytes endless = file.plain();
  endless.resize(endless.size() - 6);
  expectRefused(endless);
  for (std::size_t length = 0; length < file.plain().size(); ++length) {
    MetafileWriter::Bytes cut = file.plain();
    cut.resize(length);
    expectRefused(cut);
  }
}

TEST_F(Metafile, OneWithoutASizeOrWithTooLargeOneIsRefused) {
  expectRefused(MetafileWriter().plain());
  expectRefused(MetafileWriter().window(0, 0, 0, 10).plain());
  expectRefused(MetafileWriter().placeable(0, 0, 100, 100, 0));
  expectRefused(MetafileWriter().placeable(0, 0, 0, 100, 96));
  expectRefused(MetafileWriter().placeable(0, 0, 30000, 30000, 96));
}

TEST_F(Metafile, OneThatDrawsWithoutEndIsRefused) {
  MetafileWriter huge;
  huge.window(0, 0, 4000, 4000).brush(0, RedRef).select(0);
  for (int i = 0; i < 100; ++i) huge.box(Rectangle, 0, 0, 4000, 4000);
  expectRefused(huge.plain());
  MetafileWriter holes;
  holes.window(0, 0, 100, 100);
  for (int i = 0; i < 2000; ++i)
    holes.box(0x0415, i % 50 * 2, i / 50 * 2, i % 50 * 2 + 1, i / 50 * 2 + 1);
  expectRefused(holes.plain());
  MetafileWriter saves;
  saves.window(0, 0, 100, 100);
  for (int i = 0; i < 1000; ++i) saves.record(0x001E, {});
  expectRefused(saves.plain());
}

TEST_F(Metafile, WhatItLeavesUnpaintedShowsTheSheet) {
  constexpr raster::Pixel Behind = 0xFF40A0E0;
  raster::Bitmap should(Width, Height, Behind);
  file.brush(0, 0xFFFFFF).select(0).box(Rectangle, 10, 10, 60, 60);  // white covers, too
  raster::box({should}, thin(Black32), {BrushStyle::Solid, White32}, 10, 10, 59, 59);
  // A picture with a mask: first black where it is to stand, then its colours added.
  file.bitmap(0x008800C6, 70, 20, 3, 2, 3,
              {0xFFFFFF, 0x000000, 0xFFFFFF, 0x000000, 0x000000, 0xFFFFFF});
  file.bitmap(0x00EE0086, 70, 20, 3, 2, 3,
              {0x000000, 0xFF0000, 0x000000, 0x0000FF, 0x00FF00, 0x000000});
  should.row(20)[71] = Red32;
  should.row(21)[70] = Blue32;
  should.row(21)[71] = Green32;
  EXPECT_TRUE(same(*playMetafile(file.plain(), MostPlayed).over(Behind), should));
}

TEST_F(Metafile, ALoadedFileIsAPicture) {
  file.brush(0, RedRef).select(0).box(Rectangle, 10, 10, 60, 60);
  const MetafileWriter::Bytes bytes = file.placeable(0, 0, Width, Height, 96);
  const std::string path = folder() + "/tekening.wmf";
  std::ofstream(path, std::ios::binary)
      .write(reinterpret_cast<const char*>(bytes.data()),
             static_cast<std::streamsize>(bytes.size()));
  raster::box({paper}, thin(Black32), {BrushStyle::Solid, Red32}, 10, 10, 59, 59);
  EXPECT_TRUE(same(*LoadPicture(path).bitmap(), paper));
}

// The inside of random polygons, asked for each pixel by itself: an odd number of sides, or a sum
// of turns, to its left.
TEST(Polygons, FillWhatTheirRuleSays) {
  std::mt19937 random(7);
  const auto upTo = [&](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
  for (int round = 0; round < 300; ++round) {
    raster::Bitmap is(40, 30, White32), should = is;
    std::vector<Spot> corners;
    const std::vector<int> counts = {3 + upTo(6), 1 + upTo(5)};
    for (int i = 0; i < counts[0] + counts[1]; ++i)
      corners.push_back(
          {static_cast<std::int16_t>(upTo(60) - 10), static_cast<std::int16_t>(upTo(50) - 10)});
    const auto rule = round % 2 ? raster::FillRule::Winding : raster::FillRule::Alternate;
    raster::polygons({is}, {PenStyle::Null}, {BrushStyle::Solid, Red32}, corners, counts, rule);
    for (int y = 0; y < 30; ++y)
      for (int x = 0; x < 40; ++x) {
        int crossed = 0, turns = 0, first = 0;
        for (const int count : counts) {
          for (int i = 0; i < count; ++i) {
            const Spot a = corners[static_cast<std::size_t>(first + i)];
            const Spot b = corners[static_cast<std::size_t>(first + (i + 1) % count)];
            if ((a.y <= y) == (b.y <= y)) continue;
            // Exact: the crossing is not to the right of x.
            const int dy = b.y - a.y;
            const int side = (x - a.x) * dy - (y - a.y) * (b.x - a.x);
            if (dy > 0 ? side < 0 : side > 0) continue;
            ++crossed;
            turns += dy > 0 ? 1 : -1;
          }
          first += count;
        }
        const bool inside = rule == raster::FillRule::Winding ? turns != 0 : crossed % 2 != 0;
        if (inside) should.row(y)[x] = Red32;
      }
    ASSERT_TRUE(same(is, should)) << "round " << round;
  }
}
