// Inverting, brightness, colour factors and the chain, each against its slow literal version.
#include "effects/point_effects.h"

#include <gtest/gtest.h>

#include <cmath>

#include "effects/pictures.h"

using namespace effects;
using namespace effects_test;
using pictures::same;
using surface::RGB;

namespace {

// Brightness as it is told: the far edges included, blue rounded at once, red and green at the end.
Bitmap brightenedLiterally(Bitmap picture, double percent) {
  const auto f = static_cast<float>(percent / 100);
  const auto fit = [](double c) { return c > 255 ? 255.0 : c < 0 ? 0.0 : c; };
  for (int x = 0; x <= picture.width(); ++x) {
    for (int y = 0; y <= picture.height(); ++y) {
      const Color c = getPixel(picture, x, y);
      const int r = c % 256;
      const int b = static_cast<int>(std::floor(c / 65536.0));
      const int g = (c - b * 65536 - r) / 256;
      const double red = fit(double(r) * double(f)), green = fit(double(g) * double(f));
      const double blue = fit(whole(double(b) * double(f)));
      setPixel(picture, x, y, RGB(whole(red), whole(green), whole(blue)));
    }
  }
  return picture;
}

Bitmap scaledLiterally(Bitmap picture, const Factors& f) {
  for (int x = 0; x < picture.width(); ++x) {
    for (int y = 0; y < picture.height(); ++y) {
      const Color c = getPixel(picture, x, y);
      const double r = std::abs(f.red * (c % 256)), b = std::abs(f.blue * (c / 65536));
      const double g = std::abs(f.green * (c / 256 % 256));
      setPixel(picture, x, y, RGB(whole(r), whole(g), whole(b)));
    }
  }
  return picture;
}

Bitmap chainedLiterally(Bitmap picture) {
  for (int x = 0; x <= picture.width(); ++x) {
    for (int y = 0; y <= picture.height(); ++y) {
      const Color c = getPixel(picture, x, y);
      const double g = c / 256 % 256, b = c / 256 / 256;
      const double r2 = std::abs(b * g / 256);
      const double g2 = std::abs(r2 * b / 256);
      const double b2 = std::abs(g2 * r2 / 256);
      setPixel(picture, x, y, RGB(whole(r2), whole(g2), whole(b2)));
    }
  }
  return picture;
}

// Every value of a channel, in all three at once.
Bitmap allGreys() {
  Bitmap row(256, 1, 0);
  for (int c = 0; c < 256; ++c) row.row(0)[c] = surface::toPixel(RGB(c, c, c));
  return row;
}

Factors evenly(double percent) {
  const double f = static_cast<float>(percent / 100);
  return {f, f, f};
}

}  // namespace

TEST(Invert, TurnsEveryChannelRound) {
  for (const Bitmap& picture : oddPictures(1)) {
    const Bitmap result = inverted(picture);
    for (int y = 0; y < picture.height(); ++y)
      for (int x = 0; x < picture.width(); ++x)
        ASSERT_EQ(colorAt(result, x, y), 0xFFFFFF - colorAt(picture, x, y));
  }
}

TEST(Invert, TwiceGivesThePictureBack) {
  for (const Bitmap& picture : oddPictures(2))
    EXPECT_TRUE(same(picture, inverted(inverted(picture))));
}

TEST(Brightness, OfAHundredLeavesAllPixelsUnchanged) {
  EXPECT_TRUE(same(allGreys(), scaled(allGreys(), evenly(100))));
}

TEST(Brightness, OfTwoHundredDoublesAndStopsAtWhite) {
  EXPECT_EQ(colorAt(scaled(rowOf({RGB(200, 100, 50)}), evenly(200)), 0, 0), RGB(255, 200, 100));
}

TEST(Brightness, OfFiftyRoundsHalvesToTheEvenSide) {
  EXPECT_EQ(colorAt(scaled(rowOf({RGB(1, 3, 5)}), evenly(50)), 0, 0), RGB(0, 2, 2));
}

TEST(Brightness, OfZeroIsBlack) {
  EXPECT_TRUE(same(plain(256, 1, 0), scaled(allGreys(), evenly(0))));
}

TEST(Brightness, OfEveryWholeNumberIsTheLiteralOne) {
  for (int percent = 0; percent <= 200; ++percent)
    ASSERT_TRUE(same(brightenedLiterally(allGreys(), percent), scaled(allGreys(), evenly(percent))))
        << percent;
}

TEST(Brightness, OfAnyNumberIsTheLiteralOne) {
  Dice dice(3);
  for (int i = 0; i < 2000; ++i) {
    const double percent = dice.number(0, 200'000) / (dice.chance(50) ? 1000.0 : 1024.0);
    ASSERT_TRUE(same(brightenedLiterally(allGreys(), percent), scaled(allGreys(), evenly(percent))))
        << percent;
  }
}

TEST(Brightness, OfAPictureIsTheLiteralOne) {
  for (const double percent : {37.0, 50.0, 99.9, 100.0, 130.0, 199.5})
    for (const Bitmap& picture : oddPictures(4))
      EXPECT_TRUE(same(brightenedLiterally(picture, percent), scaled(picture, evenly(percent))));
}

TEST(ColourFactors, OfAPictureAreTheLiteralOnes) {
  Dice dice(5);
  for (const Bitmap& picture : oddPictures(6)) {
    const auto factor = [&] { return static_cast<double>(dice.number(0, 297)) * 201 / 297 / 100; };
    const Factors f{factor(), factor(), factor()};
    EXPECT_TRUE(same(scaledLiterally(picture, f), scaled(picture, f)));
  }
}

TEST(ColourFactors, OfEveryPlaceOnASliderAreTheLiteralOnes) {
  for (int pixel = 0; pixel <= 297; ++pixel) {
    const auto x = std::min(static_cast<float>(pixel * 201.0 / 297), 200.0f);
    const Factors f{double{x} / 100, 1, 2};
    ASSERT_TRUE(same(scaledLiterally(allGreys(), f), scaled(allGreys(), f))) << pixel;
  }
}

TEST(ColourFactors, TakeAColourAwayAtZeroAndDoubleItAtTwo) {
  const Bitmap row = rowOf({RGB(100, 20, 30), RGB(200, 200, 200)});
  EXPECT_TRUE(same(rowOf({RGB(0, 20, 30), RGB(0, 200, 200)}), scaled(row, {0, 1, 1})));
  EXPECT_TRUE(same(rowOf({RGB(200, 20, 30), RGB(255, 200, 200)}), scaled(row, {2, 1, 1})));
}

TEST(Chain, OfAPictureIsTheLiteralOne) {
  for (const Bitmap& picture : oddPictures(7))
    EXPECT_TRUE(same(chainedLiterally(picture), chained(picture)));
}

TEST(Chain, IsTheLiteralOneForEveryGreenAndBlue) {
  Bitmap picture(256, 256, 0);
  for (int g = 0; g < 256; ++g)
    for (int b = 0; b < 256; ++b) picture.row(g)[b] = surface::toPixel(RGB(g ^ b, g, b));
  EXPECT_TRUE(same(chainedLiterally(picture), chained(picture)));
}

TEST(Chain, MakesNoGreysOfTheColoursThatItIsKnownBy) {
  const Bitmap row = rowOf({RGB(255, 255, 255), RGB(128, 128, 128), RGB(255, 0, 0), RGB(0, 255, 0),
                            RGB(0, 0, 255), RGB(255, 255, 0), 0});
  EXPECT_TRUE(same(rowOf({RGB(254, 253, 251), RGB(64, 32, 8), 0, 0, 0, 0, 0}), chained(row)));
}
