// Gradients: the colours of the way, and the lines that they are drawn with.
#include "effects/gradient.h"

#include <gtest/gtest.h>

#include <cmath>

#include "effects/pictures.h"
#include "surface/controls.h"
#include "surface/form.h"

using namespace effects;
using namespace effects_test;
using pictures::same;
using surface::RGB;

namespace {

// One colour of the way, as it is told.
Color literalColor(Color c1, Color c2, float L, float p) {
  const int r1 = c1 & 255, g1 = c1 / 256 & 255, b1 = c1 / 65536 & 255;
  const int r2 = c2 & 255, g2 = c2 / 256 & 255, b2 = c2 / 65536 & 255;
  double sr = std::abs(r1 - r2) / double(L), sg = std::abs(g1 - g2) / double(L);
  auto sb = static_cast<float>(std::abs(b1 - b2) / double(L));
  if (r2 < r1) sr = -sr;
  if (g2 < g1) sg = -sg;
  if (b2 < b1) sb = -sb;
  const double r = double(p) * sr + r1, g = double(p) * sg + g1;
  const float blueWay = sb * p;
  return RGB(whole(r), whole(g), whole(double(blueWay) + b1));
}

class Gradient : public testing::Test {
 protected:
  Gradient() : form_({}), sheet(form_, {.ScaleMode = surface::ScalePixels, .AutoRedraw = true}) {
    size(61, 47);
  }

  void size(int width, int height) {
    sheet.Width = static_cast<float>(15 * width);
    sheet.Height = static_cast<float>(15 * height);
  }

  // The same picture by one line after the other.
  void expectLines(Color c1, Color c2, bool alongX) {
    const raster::Bitmap before = *sheet.bitmap();
    paintGradient(sheet, c1, c2, alongX);
    const raster::Bitmap result = *sheet.bitmap();
    sheet.Picture = surface::Picture(std::make_shared<raster::Bitmap>(before));
    const float W = sheet.ScaleWidth(), H = sheet.ScaleHeight(), L = alongX ? W : H;
    for (float p = 0; p <= L; ++p) {
      if (alongX)
        sheet.Line({p, 0}, {p, H}, literalColor(c1, c2, L, p));
      else
        sheet.Line({0, p}, {W, p}, literalColor(c1, c2, L, p));
    }
    EXPECT_TRUE(same(*sheet.bitmap(), result));
  }

 private:
  surface::Form form_;

 protected:
  surface::PictureBox sheet;
};

}  // namespace

TEST(GradientColours, AreTheLiteralOnes) {
  Dice dice(41);
  for (int i = 0; i < 300; ++i) {
    const Color c1 = surface::toColor(dice.color()), c2 = surface::toColor(dice.color());
    const auto L = static_cast<float>(dice.number(1, 1500));
    const auto colors = gradientColors(c1, c2, L);
    ASSERT_EQ(colors.size(), static_cast<std::size_t>(L) + 1);
    for (std::size_t p = 0; p < colors.size(); ++p)
      ASSERT_EQ(colors[p], literalColor(c1, c2, L, static_cast<float>(p)));
  }
}

TEST(GradientColours, EndAtTheSecondColour) {
  const auto colors = gradientColors(0xFF0000, 0x0000FF, 537);
  EXPECT_EQ(colors.front(), 0xFF0000);
  EXPECT_EQ(colors.back(), 0x0000FF);
}

TEST(GradientColours, OfTwoEqualColoursAreOneColour) {
  for (const Color c : gradientColors(0x123456, 0x123456, 100)) EXPECT_EQ(c, 0x123456);
}

TEST_F(Gradient, IsTheLinesThatItIsMadeOf) {
  for (const bool alongX : {false, true}) {
    expectLines(0xFF0000, 0x0000FF, alongX);
    expectLines(0x102030, 0xFFEEDD, alongX);
  }
}

TEST_F(Gradient, ShowsAWideADottedAndAnInvertingPen) {
  for (const bool alongX : {false, true}) {
    sheet.DrawWidth = 7;
    expectLines(0xFF0000, 0x0000FF, alongX);
    sheet.DrawWidth = 1;
    sheet.DrawStyle = 2;
    expectLines(0x00FF00, 0x0000FF, alongX);
    sheet.DrawStyle = 0;
    sheet.DrawMode = 6;
    expectLines(0x00FF00, 0x0000FF, alongX);
    sheet.DrawMode = 13;
  }
}

TEST_F(Gradient, ReversedIsTheMirrorImage) {
  paintGradient(sheet, 0xFF0000, 0x0000FF, true);
  const raster::Bitmap forth = *sheet.bitmap();
  paintGradient(sheet, 0x0000FF, 0xFF0000, true);
  for (int x = 1; x < 61; ++x) {
    const Color a = colorAt(forth, x, 0), b = colorAt(*sheet.bitmap(), 61 - x, 0);
    EXPECT_LE(std::abs((a & 255) - (b & 255)), 1);
    EXPECT_LE(std::abs((a >> 16) - (b >> 16)), 1);
  }
}

TEST_F(Gradient, OnASheetWithoutPixelsPaintsNothing) {
  size(0, 0);
  paintGradient(sheet, 0xFF0000, 0x0000FF, true);
  EXPECT_EQ(sheet.bitmap()->width(), 0);
}
