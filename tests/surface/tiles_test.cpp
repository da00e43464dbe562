// What a surface tells the screen to show anew.
#include "surface/tiles.h"

#include <gtest/gtest.h>

#include <random>

#include "support/script.h"
#include "surface/form.h"

using namespace surface;
using raster::Rect;

namespace {

std::vector<Rect> list(std::initializer_list<Rect> rects) { return rects; }

}  // namespace

TEST(Tiles, ASmallChangeIsShownExactly) {
  Tiles tiles;
  tiles.reset(600, 500);
  EXPECT_FALSE(tiles.unshown());
  tiles.paint({33, 35, 40, 47});
  EXPECT_TRUE(tiles.unshown());
  EXPECT_EQ(tiles.takeUnshown(), list({{33, 35, 40, 47}}));
  EXPECT_FALSE(tiles.unshown());
  EXPECT_TRUE(tiles.takeUnshown().empty());
}

TEST(Tiles, TwoFarDotsDoNotTakeInWhatLiesBetween) {
  Tiles tiles;
  tiles.reset(600, 500);
  tiles.paint({3, 3, 4, 4});
  tiles.paint({500, 400, 501, 401});
  EXPECT_EQ(tiles.takeUnshown(), list({{3, 3, 16, 16}, {496, 400, 501, 401}}));
}

TEST(Tiles, WhatLiesOutsideCountsForNothing) {
  Tiles tiles;
  tiles.reset(100, 70);
  tiles.paint({-50, -50, 0, 10});
  tiles.paint({100, 0, 200, 10});
  tiles.paint({10, 10, 10, 30});
  EXPECT_FALSE(tiles.unshown());
  tiles.paint({-50, -50, 2, 3});
  EXPECT_EQ(tiles.takeUnshown(), list({{0, 0, 2, 3}}));
}

TEST(Tiles, ASurfaceOfNoSizeTakesEverything) {
  Tiles tiles;
  tiles.reset(0, 0);
  tiles.paint({0, 0, 0, 0});
  tiles.paint({0, 0, 10, 10});
  tiles.paint({-5, -5, -1, -1});
  EXPECT_FALSE(tiles.unshown());
  EXPECT_TRUE(tiles.clear().empty());
}

TEST(Tiles, EveryPixelThatWasPaintedIsShownOnceAndClearedOnce) {
  std::mt19937 dice(5);
  const auto number = [&](int low, int high) {
    return std::uniform_int_distribution(low, high)(dice);
  };
  constexpr int Width = 333, Height = 201;
  Tiles tiles;
  tiles.reset(Width, Height);
  std::vector<int> unshown(Width * Height), painted(Width * Height);
  for (int round = 0; round < 2000; ++round) {
    const int x = number(-20, Width), y = number(-20, Height);
    const Rect area{x, y, x + number(0, 50), y + number(0, 50)};
    tiles.paint(area);
    for (int py = std::max(0, area.top); py < std::min(Height, area.bottom); ++py)
      for (int px = std::max(0, area.left); px < std::min(Width, area.right); ++px)
        unshown[py * Width + px] = painted[py * Width + px] = 1;
    if (number(0, 4) != 0) continue;
    const bool clears = number(0, 2) == 0;
    auto& wanted = clears ? painted : unshown;
    std::vector<int> covered(Width * Height);
    for (const Rect& part : clears ? tiles.clear() : tiles.takeUnshown())
      for (int py = part.top; py < part.bottom; ++py)
        for (int px = part.left; px < part.right; ++px) {
          ASSERT_EQ(covered[py * Width + px]++, 0) << "twice";
          if (clears) unshown[py * Width + px] = 1;
        }
    for (std::size_t i = 0; i < wanted.size(); ++i) ASSERT_GE(covered[i], wanted[i]) << "left out";
    wanted.assign(wanted.size(), 0);
  }
}

class Clearing : public script::Stage {};

TEST_F(Clearing, LeavesABareSurfaceHoweverItWasDrawnOn) {
  std::mt19937 dice(9);
  const auto place = [&] {
    return PointF{static_cast<float>(dice() % 12000), static_cast<float>(dice() % 9000)};
  };
  Form form({.BackColor = 0x405060});
  for (int round = 0; round < 60; ++round) {
    for (int i = 0; i < 5; ++i) {
      form.DrawWidth = static_cast<int>(dice() % 3 * 4 + 1);
      form.PSet(place(), White);
      form.Line(place(), place(), 0x0000FF);
      form.Circle(place(), 700, 0x00FF00);
      if (round % 3 == 0) form.Line(place(), place(), 0xFF0000, B);
    }
    const auto snapshot = round % 4 == 0 ? form.Image() : Picture();
    form.Cls();
    const auto pixels = form.bitmap();
    for (int y = 0; y < pixels->height(); ++y)
      for (int x = 0; x < pixels->width(); ++x)
        ASSERT_EQ(pixels->at(x, y), toPixel(0x405060)) << x << ", " << y << " round " << round;
  }
}

TEST_F(Clearing, LeavesASnapshotAsItWas) {
  Form form({.BackColor = White});
  form.Line({0, 0}, {3000, 3000}, Black, BF);
  const Picture snapshot = form.Image();
  form.Cls();
  EXPECT_EQ(snapshot.bitmap()->at(10, 10), toPixel(Black));
  EXPECT_EQ(form.Point({150, 150}), White);
}

TEST_F(Clearing, ShowsThePictureAgain) {
  Form source({.BackColor = 0x00FF00}), form({.BackColor = White});
  form.Picture = source.Image();
  form.Line({0, 0}, {3000, 3000}, Black, BF);
  form.Cls();
  EXPECT_EQ(form.Point({150, 150}), 0x00FF00);
}
