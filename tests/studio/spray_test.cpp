// The spray can, dot by dot.
#include <algorithm>
#include <cmath>

#include "studio/studio.h"

using namespace surface;

namespace {

// Twenty-six dots, each within seven pixels; the horizontal offset is drawn first.
void literalBurst(raster::Bitmap& paper, int X, int Y, Color color, int width = 1) {
  for (int i = 0; i < 26; ++i) {
    const int dx = static_cast<int>(std::floor(Rnd() * 14 - 7));
    const int dy = static_cast<int>(std::floor(Rnd() * 14 - 7));
    oracle::dot({paper}, {raster::PenStyle::Solid, width, toPixel(color)}, X + dx, Y + dy);
  }
}

}  // namespace

class Spray : public Studio {
 protected:
  Spray() { click(studio.cmdSpuitbus); }
};

TEST_F(Spray, EveryMoveWithTheLeftButtonLeavesABurst) {
  const Color green = pickColor(45);
  raster::Bitmap should = canvas();
  seedRandom(31);
  drag(sheet, 100, 100, 140, 120);
  seedRandom(31);
  literalBurst(should, 120, 110, green);
  literalBurst(should, 140, 120, green);
  EXPECT_TRUE(shows(sheet, should));
}

TEST_F(Spray, APressAloneSpraysNothing) {
  press(sheet, 100, 100);
  advance(5000);
  release(sheet, 100, 100);
  EXPECT_TRUE(shows(sheet, blank()));
}

TEST_F(Spray, AMotionlessPointerAddsNothing) {
  press(sheet, 100, 100);
  move(sheet, 110, 100, 1);
  const raster::Bitmap burst = canvas();
  advance(5000);
  EXPECT_TRUE(shows(sheet, burst));
}

TEST_F(Spray, OnlyTheLeftButtonSprays) {
  move(sheet, 100, 100);
  drag(sheet, 100, 100, 140, 120, 2);
  drag(sheet, 100, 100, 140, 120, 4);
  EXPECT_TRUE(shows(sheet, blank()));
}

TEST_F(Spray, DotsLieFromSevenBeforeToSixBehindThePointer) {
  press(sheet, 200, 200);
  // A hand that trembles within the pixel.
  for (int i = 0; i < 200; ++i) sheet.MouseMove({1, 0, 200, 200});
  const raster::Bitmap is = canvas();
  int left = 617, top = 537, right = -1, bottom = -1;
  for (int y = 0; y < is.height(); ++y)
    for (int x = 0; x < is.width(); ++x)
      if (is.at(x, y) != toPixel(White)) {
        left = std::min(left, x);
        right = std::max(right, x);
        top = std::min(top, y);
        bottom = std::max(bottom, y);
      }
  EXPECT_EQ(left, 193);
  EXPECT_EQ(top, 193);
  EXPECT_EQ(right, 206);
  EXPECT_EQ(bottom, 206);
}

TEST_F(Spray, SpraysInTheSwatchsColourNotThePens) {
  const Color swatch = pickSwatchOnly(60);
  ASSERT_NE(sheet.ForeColor, swatch);
  raster::Bitmap should = canvas();
  seedRandom(32);
  press(sheet, 80, 80);
  move(sheet, 90, 80, 1);
  seedRandom(32);
  literalBurst(should, 90, 80, swatch);
  EXPECT_TRUE(shows(sheet, should));
}

TEST_F(Spray, DotsAreAsThickAsThePen) {
  sheet.DrawWidth = 4;
  raster::Bitmap should = canvas();
  seedRandom(33);
  press(sheet, 80, 80);
  move(sheet, 90, 80, 1);
  seedRandom(33);
  literalBurst(should, 90, 80, Black, 4);
  EXPECT_TRUE(shows(sheet, should));
}

TEST_F(Spray, IsClippedByTheSheet) {
  raster::Bitmap should = canvas();
  seedRandom(34);
  press(sheet, 5, 5);
  for (const auto& [x, y] : {std::pair{1, 1}, {-3, 5}, {614, 535}}) move(sheet, x, y, 1);
  seedRandom(34);
  for (const auto& [x, y] : {std::pair{1, 1}, {-3, 5}, {614, 535}})
    literalBurst(should, x, y, Black);
  EXPECT_TRUE(shows(sheet, should));
}
