// Hammer dents, scattering and the ragged edge, each against its slow literal version.
#include "effects/displacements.h"

#include <gtest/gtest.h>

#include <cmath>

#include "effects/pictures.h"
#include "surface/controls.h"
#include "surface/form.h"
#include "surface/random.h"

using namespace effects;
using namespace effects_test;
using pictures::same;
using surface::RGB;

namespace {

Bitmap hammeredLiterally(Bitmap picture) {
  const auto fit = [](double c) { return c > 255 ? 255.0 : c < 0 ? 0.0 : c; };
  for (int round = 0; round < 2; ++round)
    for (double cy = 5; cy <= picture.height(); cy += 10)
      for (double cx = 5; cx <= picture.width(); cx += 10) {
        double k = 0.995;
        for (int radius = 1; radius <= 5; ++radius) {
          for (double t = 0; t <= 6.28318530718; t += 0.1) {
            const int px = whole(cx + radius * std::cos(t)), py = whole(cy + radius * std::sin(t));
            const Color c = getPixel(picture, px, py);
            const int r = c % 256;
            const int b = static_cast<int>(std::floor(c / 65536.0));
            const int g = (c - b * 65536 - r) / 256;
            setPixel(picture, px, py,
                     RGB(whole(fit(k * r)), whole(fit(k * g)), whole(fit(whole(k * b)))));
          }
          k += 0.001;
        }
      }
  return picture;
}

Bitmap scatteredLiterally(const Bitmap& picture) {
  Bitmap result = picture;
  for (double y = 2; y <= picture.height() - 2; ++y)
    for (double x = 2; x <= picture.width() - 2; ++x) {
      const auto a = static_cast<float>(surface::Rnd() * 3.0 - 2);
      const auto b = static_cast<float>(surface::Rnd() * 3.0 - 2);
      setPixel(result, whole(x), whole(y), colorAt(picture, whole(x + b), whole(y + a)));
    }
  return result;
}

}  // namespace

TEST(Hammer, OnAPictureIsTheLiteralOne) {
  for (const Bitmap& picture : oddPictures(21))
    EXPECT_TRUE(same(hammeredLiterally(picture), hammered(picture)));
}

TEST(Hammer, LeavesBlackBlack) { EXPECT_TRUE(same(plain(40, 40, 0), hammered(plain(40, 40, 0)))); }

TEST(Hammer, LeavesSlightlyGreyRingsAroundTheFivesOnWhite) {
  const Bitmap result = hammered(plain(30, 30, surface::White));
  for (const int cy : {5, 15, 25})
    for (const int cx : {5, 15, 25}) {
      EXPECT_EQ(colorAt(result, cx, cy), surface::White) << "no ring goes through its middle";
      const Color ring = colorAt(result, cx + 3, cy);
      EXPECT_TRUE((ring & 255) < 255 && (ring & 255) > 200) << ring;
    }
}

TEST(Hammer, DarkensAPixelAgainAtEveryHit) {
  const Bitmap once = hammered(plain(11, 11, surface::White));
  // The ring of radius 1 hits each of its few pixels many times, the one of radius 5 hardly.
  EXPECT_LT(colorAt(once, 6, 5) & 255, colorAt(once, 5, 10) & 255);
}

TEST(Scatter, OfAPictureIsTheLiteralOneWithTheSameDraws) {
  for (const Bitmap& picture : oddPictures(22)) {
    surface::seedRandom(7);
    const Bitmap expected = scatteredLiterally(picture);
    const float next = surface::Rnd();
    surface::seedRandom(7);
    EXPECT_TRUE(same(expected, scattered(picture, surface::Rnd)));
    EXPECT_EQ(surface::Rnd(), next) << "another number of draws";
  }
}

TEST(Scatter, DiffersFromRunToRun) {
  Dice dice(23);
  const Bitmap picture = noise(dice, 50, 50);
  surface::seedRandom(1);
  const Bitmap first = scattered(picture, surface::Rnd);
  EXPECT_FALSE(same(first, scattered(picture, surface::Rnd)));
}

TEST(Scatter, LeavesOneColourAndTheEdgesAsTheyAre) {
  const Bitmap picture = plain(20, 10, RGB(1, 2, 3));
  EXPECT_TRUE(same(picture, scattered(picture, surface::Rnd)));
  Dice dice(24);
  const Bitmap noisy = noise(dice, 30, 20);
  const Bitmap result = scattered(noisy, surface::Rnd);
  for (int x = 0; x < 30; ++x)
    for (const int y : {0, 1, 19}) EXPECT_EQ(result.at(x, y), noisy.at(x, y));
  for (int y = 0; y < 20; ++y)
    for (const int x : {0, 1, 29}) EXPECT_EQ(result.at(x, y), noisy.at(x, y));
}

namespace {

class RagEdge : public testing::Test {
 protected:
  RagEdge() : form_({}), sheet(form_, {.ScaleMode = surface::ScalePixels, .AutoRedraw = true}) {}

  void show(const Bitmap& picture) {
    sheet.Width = static_cast<float>(15 * picture.width());
    sheet.Height = static_cast<float>(15 * picture.height());
    sheet.Picture = surface::Picture(std::make_shared<Bitmap>(picture));
  }

 private:
  surface::Form form_;

 protected:
  surface::PictureBox sheet;
};

}  // namespace

TEST_F(RagEdge, OfAPictureIsTheLiteralOne) {
  for (const Bitmap& picture : oddPictures(25)) {
    show(picture);
    ragEdge(sheet);
    Bitmap expected = picture;
    for (int x = 0; x <= picture.width(); ++x)
      for (int y = 0; y <= picture.height(); ++y) {
        const Color c = getPixel(picture, x, y);
        const double position = std::sin(double(x)) * 6 + (y - 3);
        if (c != surface::NoColor) setPixel(expected, x, whole(static_cast<float>(position)), c);
      }
    EXPECT_TRUE(same(expected, *sheet.bitmap()));
  }
}

TEST_F(RagEdge, MovesTheFirstColumnUpByThreeRows) {
  Dice dice(26);
  const Bitmap picture = noise(dice, 5, 20);
  show(picture);
  ragEdge(sheet);
  EXPECT_EQ(sheet.bitmap()->at(0, 0), picture.at(0, 3));
  EXPECT_EQ(sheet.bitmap()->at(0, 16), picture.at(0, 19));
  EXPECT_EQ(sheet.bitmap()->at(0, 19), picture.at(0, 19)) << "rows that nothing lands on stay";
}

TEST_F(RagEdge, SmearsWithAWidePen) {
  Dice dice(27);
  const Bitmap picture = noise(dice, 40, 40);
  show(picture);
  sheet.DrawWidth = 5;
  ragEdge(sheet);
  Bitmap expected = picture;
  for (int x = 0; x < 40; ++x)
    for (int y = 0; y < 40; ++y)
      raster::dot({expected}, {raster::PenStyle::Solid, 5, picture.at(x, y)}, x,
                  whole(static_cast<float>(std::sin(double(x)) * 6 + (y - 3))));
  EXPECT_TRUE(same(expected, *sheet.bitmap()));
}

// The way over the columns and rows goes one beyond the picture, where there is no colour.
TEST_F(RagEdge, IsNeitherStoppedNorSmearedByWhatLiesBeyondTheSheet) {
  const Bitmap picture = plain(30, 30, RGB(1, 2, 3));
  show(picture);
  for (const int width : {1, 9}) {
    sheet.DrawWidth = width;
    ragEdge(sheet);
    EXPECT_TRUE(same(picture, *sheet.bitmap())) << width;
  }
}
