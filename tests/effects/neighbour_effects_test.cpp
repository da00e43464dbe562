// Blurring, sharpening and embossing, each against its slow literal version.
#include "effects/neighbour_effects.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>

#include "effects/pictures.h"

using namespace effects;
using namespace effects_test;
using pictures::same;
using surface::RGB;

namespace {

// Reads a channel (0 red, 1 green, 2 blue) of the untouched picture.
int channel(const Bitmap& picture, int x, int y, int which) {
  return colorAt(picture, x, y) >> (8 * which) & 255;
}

// Applies a formula to every channel of every inner pixel, reading only the picture as it was.
template <class Formula>
Bitmap literally(const Bitmap& picture, Formula formula) {
  Bitmap result = picture;
  for (int y = 1; y <= picture.height() - 2; ++y)
    for (int x = 1; x <= picture.width() - 2; ++x) {
      std::array<int, 3> c;
      for (int which = 0; which < 3; ++which)
        c[which] = static_cast<int>(std::nearbyint(
            formula([&](int dx, int dy) { return channel(picture, x + dx, y + dy, which); })));
      setPixel(result, x, y, RGB(c[0], c[1], c[2]));
    }
  return result;
}

Bitmap blurredLiterally(const Bitmap& picture) {
  return literally(picture, [](auto at) {
    int sum = 0;
    for (int dy = -1; dy <= 1; ++dy)
      for (int dx = -1; dx <= 1; ++dx) sum += at(dx, dy);
    return sum / 9.0;
  });
}

Bitmap sharpenedLiterally(const Bitmap& picture) {
  return literally(picture, [](auto at) {
    const double value = at(0, 0) + 0.5 * (at(0, 0) - at(-1, -1));
    return value > 255 ? 255.0 : value < 0 ? 0.0 : value;
  });
}

Bitmap embossedLiterally(const Bitmap& picture) {
  return literally(picture, [](auto at) { return double(std::abs(at(0, 0) - at(1, 1) + 128)); });
}

// A grey picture of 3 by 3 with one value in the middle and one at the upper left or lower right.
Color middleOf(Bitmap (*effect)(const Bitmap&), int middle, int corner, int cornerValue) {
  Bitmap picture = plain(3, 3, 0);
  setPixel(picture, 1, 1, RGB(middle, middle, middle));
  setPixel(picture, corner, corner, RGB(cornerValue, cornerValue, cornerValue));
  return colorAt(effect(picture), 1, 1) & 255;
}

}  // namespace

TEST(Blur, OfAPictureIsTheLiteralOne) {
  for (const Bitmap& picture : oddPictures(11))
    EXPECT_TRUE(same(blurredLiterally(picture), blurred(picture)));
}

TEST(Blur, RoundsEverySumOfNineToTheNearest) {
  // 9 x 255 sums: eight pixels carry the whole sum as evenly as it goes.
  for (int sum = 0; sum <= 9 * 255; ++sum) {
    Bitmap picture(3, 3, 0);
    for (int i = 0, left = sum; i < 9; ++i) {
      const int share = left / (9 - i);
      setPixel(picture, i % 3, i / 3, RGB(share, 255 - share, share));
      left -= share;
    }
    ASSERT_TRUE(same(blurredLiterally(picture), blurred(picture))) << sum;
  }
}

TEST(Blur, LeavesOneColourAsItIs) {
  const Bitmap picture = plain(20, 10, RGB(13, 200, 255));
  EXPECT_TRUE(same(picture, blurred(picture)));
}

TEST(Sharpen, OfAPictureIsTheLiteralOne) {
  for (const Bitmap& picture : oddPictures(12))
    EXPECT_TRUE(same(sharpenedLiterally(picture), sharpened(picture)));
}

TEST(Sharpen, IsTheLiteralOneForEveryPairOfValues) {
  for (int a = 0; a < 256; ++a)
    for (int b = 0; b < 256; ++b) {
      const double value = std::clamp(a + 0.5 * (a - b), 0.0, 255.0);
      ASSERT_EQ(middleOf(sharpened, a, 0, b), std::nearbyint(value)) << a << ", " << b;
    }
}

TEST(Sharpen, LeavesOneColourAsItIs) {
  const Bitmap picture = plain(20, 10, RGB(13, 200, 255));
  EXPECT_TRUE(same(picture, sharpened(picture)));
}

TEST(Sharpen, StopsAtBlackAndRoundsTheHighestHalvesDownAndUp) {
  EXPECT_EQ(middleOf(sharpened, 10, 0, 41), 0);
  EXPECT_EQ(middleOf(sharpened, 201, 0, 94), 254) << "254.5";
  EXPECT_EQ(middleOf(sharpened, 201, 0, 92), 255) << "255.5";
}

TEST(Emboss, OfAPictureIsTheLiteralOne) {
  for (const Bitmap& picture : oddPictures(13))
    EXPECT_TRUE(same(embossedLiterally(picture), embossed(picture)));
}

TEST(Emboss, TurnsAllButTheRingOfOneColourGrey) {
  Bitmap grey = plain(20, 10, RGB(13, 200, 255));
  for (int y = 1; y < 9; ++y)
    for (int x = 1; x < 19; ++x) setPixel(grey, x, y, RGB(128, 128, 128));
  EXPECT_TRUE(same(grey, embossed(plain(20, 10, RGB(13, 200, 255)))));
}

TEST(Emboss, FoldsDarkSlopesUpAndStopsAtWhite) {
  EXPECT_EQ(middleOf(embossed, 0, 2, 255), 127);
  EXPECT_EQ(middleOf(embossed, 255, 2, 0), 255);
}

TEST(NeighbourEffects, LeaveASheetOfTwoRowsOrColumnsAlone) {
  Dice dice(14);
  for (const auto& [width, height] : {std::pair{1, 1}, {2, 2}, {2, 50}, {50, 2}, {0, 0}, {0, 5}}) {
    const Bitmap picture = noise(dice, width, height);
    for (const auto effect : {blurred, sharpened, embossed})
      EXPECT_TRUE(same(picture, effect(picture))) << width << " by " << height;
  }
}
