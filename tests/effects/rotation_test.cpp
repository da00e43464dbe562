// Turning a picture, against its slow literal version.
#include "effects/rotation.h"

#include <gtest/gtest.h>

#include <cmath>
#include <utility>

#include "effects/pictures.h"

using namespace effects;
using namespace effects_test;
using pictures::same;
using surface::RGB;

namespace {

float radians(double degrees) { return static_cast<float>(degrees * 3.14159265359 / 180); }

void rotateLiterally(const Bitmap& source, Bitmap& target, float angle) {
  const int sx = whole(source.width() / 2.0), sy = whole(source.height() / 2.0);
  const int tx = whole(target.width() / 2.0), ty = whole(target.height() / 2.0);
  const int M = std::max(target.width(), target.height());
  const int N = whole(M / 2.0 - 1);
  const auto write = [&](int x, int y, Color c) {
    if (c != surface::NoColor) setPixel(target, x, y, c);
  };
  for (int u = 0; u <= N; ++u)
    for (int v = 0; v <= N; ++v) {
      // None of the four would be written inside a narrow target.
      if ((u > tx + 1 || v > ty + 1) && (v > tx + 1 || u > ty + 1)) continue;
      const auto a =
          static_cast<float>(u == 0 ? 3.14159265359 / 2 : std::atan(static_cast<double>(v) / u));
      const int r = whole(std::sqrt(double(u) * u + double(v) * v));
      const int P = whole(r * std::cos(double(a) + double(angle)));
      const int Q = whole(r * std::sin(double(a) + double(angle)));
      const Color c0 = getPixel(source, sx + P, sy + Q), c1 = getPixel(source, sx - P, sy - Q);
      const Color c2 = getPixel(source, sx + Q, sy - P), c3 = getPixel(source, sx - Q, sy + P);
      write(tx + u, ty + v, c0);
      write(tx - u, ty - v, c1);
      write(tx + v, ty - u, c2);
      write(tx - v, ty + u, c3);
    }
}

// Rotates both ways onto targets that hold the same noise.
void expectLiteral(const Bitmap& source, int width, int height, double degrees) {
  Dice dice(31);
  Bitmap expected = noise(dice, width, height);
  Bitmap result = expected;
  rotateLiterally(source, expected, radians(degrees));
  rotateInto(source, result, radians(degrees));
  EXPECT_TRUE(same(expected, result))
      << source.width() << " by " << source.height() << " by " << degrees << " degrees";
}

}  // namespace

TEST(Rotation, ByEveryAngleOfTheListIsTheLiteralOne) {
  Dice dice(32);
  const Bitmap sheet = noise(dice, 617, 537);
  for (int degrees = 15; degrees <= 360; degrees += 15) {
    expectLiteral(sheet, 617, 537, degrees);
    expectLiteral(sheet, 489, 473, degrees);
  }
}

TEST(Rotation, OfOddSizesIsTheLiteralOne) {
  for (const Bitmap& picture : oddPictures(33))
    for (const double degrees : {15, 45, 90, 165, 300, 360})
      expectLiteral(picture, picture.width(), picture.height(), degrees);
}

TEST(Rotation, OfALargeSheetIsTheLiteralOne) {
  Dice dice(34);
  const Bitmap sheet = noise(dice, 1500, 1400);
  for (const double degrees : {15, 30, 45, 75, 90, 180, 285})
    expectLiteral(sheet, 1500, 1400, degrees);
}

TEST(Rotation, OfASheetTooLargeForSinglePrecisionIsTheLiteralOne) {
  Dice dice(35);
  const Bitmap sheet = noise(dice, 40, 5700);
  expectLiteral(sheet, 40, 5700, 30);
}

TEST(Rotation, ByQuartersBetweenUnlikeSizesIsTheLiteralOne) {
  Dice dice(36);
  for (const auto& [width, height] : {std::pair{37, 52}, {61, 20}, {1, 9}, {150, 3}})
    for (const double degrees : {90, 180, 270, 360}) {
      const Bitmap sheet = noise(dice, width, height);
      expectLiteral(sheet, 40, 40, degrees);
      expectLiteral(sheet, 97, 18, degrees);
      expectLiteral(sheet, 2, 61, degrees);
    }
}

TEST(Rotation, BetweenUnlikeSizesIsTheLiteralOne) {
  Dice dice(40);
  for (const auto& [width, height] : {std::pair{617, 537}, {40, 300}, {301, 34}, {33, 32}})
    for (const double degrees : {1, 30, 77, 135, 224, 345}) {
      const Bitmap sheet = noise(dice, width, height);
      expectLiteral(sheet, 537, 617, degrees);
      expectLiteral(sheet, 700, 60, degrees);
      expectLiteral(sheet, 35, 700, degrees);
      expectLiteral(sheet, 32, 33, degrees);
    }
}

TEST(Rotation, ByAlmostAQuarterIsTheLiteralOne) {
  Dice dice(37);
  const Bitmap sheet = noise(dice, 617, 537);
  for (const double degrees : {0.00001, 89.9999, 90.00003, 180.02, 269.99995, 359.99})
    expectLiteral(sheet, 617, 537, degrees);
}

TEST(Rotation, OfALongStripByAQuarterIsTheLiteralOne) {
  Dice dice(38);
  for (const int length : {11999, 12100}) {
    const Bitmap strip = noise(dice, length, 3);
    expectLiteral(strip, length, 3, 180);
    expectLiteral(strip, 3, length, 90);
  }
}

TEST(Rotation, TurnsToTheLeft) {
  Bitmap picture = plain(21, 21, surface::White);
  setPixel(picture, 15, 10, 0);  // right of the middle
  Bitmap target = plain(21, 21, surface::White);
  rotateInto(picture, target, radians(90));
  EXPECT_EQ(colorAt(target, 10, 5), 0) << "a quarter turn brings it above the middle";
  EXPECT_EQ(colorAt(target, 15, 10), surface::White);
}

TEST(Rotation, ByAFullTurnMovesPixelsOnlyByTheRoundedRadius) {
  Bitmap picture = plain(101, 101, surface::White);
  for (int y = 0; y < 101; ++y)
    for (int x = 0; x < 101; ++x) setPixel(picture, x, y, RGB(2 * x, 2 * y, 0));
  Bitmap target = plain(101, 101, 0xFF0000);
  rotateInto(picture, target, radians(360));
  for (int y = 1; y < 100; ++y)
    for (int x = 1; x < 100; ++x) {
      const Color c = colorAt(target, x, y);
      EXPECT_LE(std::abs((c & 255) / 2 - x), 1);
      EXPECT_LE(std::abs((c >> 8 & 255) / 2 - y), 1);
    }
}

TEST(Rotation, KeepsWhatTheTargetHeldWhereNoSourceLies) {
  Bitmap target = plain(60, 20, RGB(1, 2, 3));
  rotateInto(plain(60, 20, surface::White), target, radians(90));
  EXPECT_EQ(colorAt(target, 30, 10), surface::White);
  EXPECT_EQ(colorAt(target, 2, 10), RGB(1, 2, 3)) << "the lying picture stands now";
}
