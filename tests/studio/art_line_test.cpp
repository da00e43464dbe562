// The art line against a literal one: a chain of forty points worked out one after the other, in
// single precision, and every line of it painted on a plain bitmap.
#include <array>
#include <cmath>
#include <random>

#include "studio/studio.h"

using namespace surface;

namespace {

class LiteralArtLine {
 public:
  // Takes its random colour as a press does: red and green keep their fraction, blue is whole.
  LiteralArtLine(float X, float Y) {
    const float red = Rnd() * 255;
    const float green = Rnd() * 255;
    const auto blue = static_cast<float>(std::nearbyint(Rnd() * 255));
    const float stepR = (red - 255) / 40, stepG = (green - 255) / 40, stepB = (blue - 255) / 40;
    for (int i = 0; i < 40; ++i) {
      color_[i] =
          0xFF000000u | component(i, stepR) << 16 | component(i, stepG) << 8 | component(i, stepB);
      x_[i] = X / 15;
      y_[i] = Y / 15;
    }
  }

  void moveTo(raster::Bitmap& paper, float X, float Y, int width = 1) {
    const float tx = X / 15;
    const auto ty = static_cast<float>(std::nearbyint(Y / 15));
    const float dx = std::fabs(tx - x_[0]) / 20, dy = std::fabs(ty - y_[0]) / 20;
    for (int round = 0; round < 20; ++round) {
      for (int k = 1; k < 40; ++k) {
        follow(x_[k], x_[k - 1]);
        follow(y_[k], y_[k - 1]);
        oracle::line({paper}, {raster::PenStyle::Solid, width, color_[k]}, pixel(x_[k - 1]),
                     pixel(y_[k - 1]), pixel(x_[k]), pixel(y_[k]));
      }
      step(x_[0], tx, dx);
      step(y_[0], ty, dy);
    }
  }

 private:
  static raster::Pixel component(int i, float step) {
    return static_cast<raster::Pixel>(std::nearbyint(255 + static_cast<float>(i) * step));
  }
  static void follow(float& point, float before) {
    if (point > before)
      point -= (point - before) / 4;
    else if (point < before)
      point += (before - point) / 4;
  }
  static void step(float& head, float target, float by) {
    if (head < target)
      head += by;
    else if (head > target)
      head -= by;
  }
  static int pixel(float value) { return static_cast<int>(std::nearbyint(value * 15)); }

  std::array<float, 40> x_{}, y_{};
  std::array<raster::Pixel, 40> color_{};
};

}  // namespace

class ArtLine : public Studio {
 protected:
  // The press and the literal line draw the same random numbers.
  LiteralArtLine pressed(int x, int y, std::uint32_t seed, int button = 1) {
    seedRandom(seed);
    press(sheet, x, y, button);
    seedRandom(seed);
    return {static_cast<float>(x), static_cast<float>(y)};
  }
};

TEST_F(ArtLine, LeavesTheFanOfTheLiteralChain) {
  click(studio.cmdArt);
  raster::Bitmap should = canvas();
  LiteralArtLine chain = pressed(300, 200, 11);
  for (const auto& [x, y] : {std::pair{340, 207},
                             {420, 260},
                             {421, 260},
                             {421, 400},
                             {100, 33},
                             {-40, -90},
                             {700, 600},
                             {300, 300}}) {
    move(sheet, x, y, 1);
    chain.moveTo(should, static_cast<float>(x), static_cast<float>(y));
    ASSERT_TRUE(shows(sheet, should)) << "after the move to " << x << ", " << y;
  }
  EXPECT_FALSE(shows(sheet, blank())) << "nothing was drawn at all";
}

TEST_F(ArtLine, LeavesTheFanOfTheLiteralChainWhereverTheHandGoes) {
  click(studio.cmdArt);
  for (std::uint32_t seed = 100; seed < 120; ++seed) {
    SCOPED_TRACE(seed);
    std::mt19937 hand(seed);
    const auto place = [&](int size) { return static_cast<int>(hand() % (size + 200)) - 100; };
    sheet.Cls();
    raster::Bitmap should = canvas();
    LiteralArtLine chain = pressed(place(417) + 100, place(337) + 100, seed);
    int x = 0, y = 0;
    for (int moves = 0; moves < 8; ++moves) {
      x = place(617);
      y = place(537);
      move(sheet, x, y, 1);
      chain.moveTo(should, static_cast<float>(x), static_cast<float>(y));
    }
    release(sheet, x, y);
    ASSERT_TRUE(shows(sheet, should));
  }
}

TEST_F(ArtLine, IsAsThickAsThePen) {
  shrinkSheet(120, 90);
  click(studio.cmdLijnen);
  slide(studio.Slider1, 4);
  click(studio.cmdArt);
  raster::Bitmap should = canvas();
  LiteralArtLine chain = pressed(20, 20, 12);
  for (const auto& [x, y] : {std::pair{90, 30}, {60, 80}}) {
    move(sheet, x, y, 1);
    chain.moveTo(should, static_cast<float>(x), static_cast<float>(y), 4);
  }
  EXPECT_TRUE(shows(sheet, should));
}

TEST_F(ArtLine, APressWithoutMovementDrawsNothing) {
  click(studio.cmdArt);
  press(sheet, 100, 100);
  release(sheet, 100, 100);
  EXPECT_TRUE(shows(sheet, blank()));
}

TEST_F(ArtLine, ASecondPressTakesNewColours) {
  click(studio.cmdArt);
  seedRandom(13);
  drag(sheet, 50, 50, 150, 120);
  drag(sheet, 250, 250, 350, 150);
  raster::Bitmap should = blank();
  seedRandom(13);
  LiteralArtLine first(50, 50);
  first.moveTo(should, 100, 85);
  first.moveTo(should, 150, 120);
  LiteralArtLine second(250, 250);
  second.moveTo(should, 300, 200);
  second.moveTo(should, 350, 150);
  EXPECT_TRUE(shows(sheet, should));
}

TEST_F(ArtLine, FollowsThePointerWithAnyButtonUntilItIsReleased) {
  click(studio.cmdArt);
  raster::Bitmap should = canvas();
  LiteralArtLine chain = pressed(200, 200, 14, 2);
  move(sheet, 260, 230, 2);
  chain.moveTo(should, 260, 230);
  ASSERT_TRUE(shows(sheet, should));
  release(sheet, 260, 230, 2);
  move(sheet, 400, 400);
  EXPECT_TRUE(shows(sheet, should)) << "the chain goes on after the release";
}

TEST_F(ArtLine, GoesOnWhenItsToolIsTakenUpAgainAfterAReleaseWithAnother) {
  click(studio.cmdArt);
  raster::Bitmap should = canvas();
  LiteralArtLine chain = pressed(200, 200, 15);
  studio.cmdOpvullen.Click();
  release(sheet, 200, 200);
  studio.cmdArt.Click();
  move(sheet, 230, 245);
  chain.moveTo(should, 230, 245);
  EXPECT_TRUE(shows(sheet, should));
}

TEST_F(ArtLine, DrawsNothingBeforeAPress) {
  click(studio.cmdArt);
  move(sheet, 100, 100);
  move(sheet, 200, 150, 1);
  EXPECT_TRUE(shows(sheet, blank()));
}

// Rows lose their fraction of fifteen pixels, columns keep it: a chain that was left to catch up
// ends on the pointer's column and on the nearest row of 15.
TEST_F(ArtLine, ComesToRestOnTheColumnOfThePointerAndOnAWholeStepOfFifteenRows) {
  click(studio.cmdArt);
  press(sheet, 200, 200);
  for (int i = 0; i < 30; ++i) sheet.MouseMove({1, 0, 100, 100});
  const raster::Bitmap arrived = canvas();
  EXPECT_NE(arrived.at(100, 105), toPixel(White));
  EXPECT_EQ(arrived.at(100, 100), toPixel(White));
}

// The head is white, the end of the chain has the colour of the press. A level drag on a row that
// is a multiple of fifteen leaves one row of pixels.
TEST_F(ArtLine, RunsFromWhiteToOneRandomColour) {
  sheet.BackColor = Black;
  click(studio.cmdArt);
  seedRandom(15);
  press(sheet, 100, 300);
  move(sheet, 400, 300, 1);
  seedRandom(15);
  // The last of forty points stands a fortieth before the colour itself.
  const auto component = [] {
    return static_cast<int>(std::lround(255 - (255 - Rnd() * 255) * 39 / 40));
  };
  const int red = component(), green = component(), blue = component();
  const Color end = sheet.Point({100, 300});
  EXPECT_NEAR(end & 0xFF, red, 1);
  EXPECT_NEAR(end >> 8 & 0xFF, green, 1);
  EXPECT_NEAR(end >> 16 & 0xFF, blue, 1);
  int brightest = 0;
  for (float x = 100; x < 400; ++x) {
    const Color c = sheet.Point({x, 300});
    brightest = std::max(brightest, std::min({c & 0xFF, c >> 8 & 0xFF, c >> 16 & 0xFF}));
  }
  EXPECT_GE(brightest, 245);
}
