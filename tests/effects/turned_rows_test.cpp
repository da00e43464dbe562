// The quick rows of a turned picture: every processor's way to fetch the pixels is the same to see.
#include "effects/turned_rows.h"

#include <gtest/gtest.h>

#include <cmath>

#include "effects/pictures.h"

using namespace effects;
using namespace effects_test;
using pictures::same;

namespace {

constexpr int TurnedSide = 701, TurnedMiddle = TurnedSide / 2;

// Rows of a turned picture, painted by one of the ways on top of the same noise.
template <class Paint>
Bitmap painted(const Bitmap& source, float angle, Paint paint) {
  Dice dice(52);
  Bitmap target = noise(dice, TurnedSide, TurnedSide);
  for (int i = 0; i < 60; ++i) {
    const int row = dice.number(1, 240), count = dice.number(TurnedStep, 140);
    const int first = dice.number(1, 240 - count);
    paint(TurnedRow{row, std::cos(angle), std::sin(angle), source.row(TurnedMiddle) + TurnedMiddle,
                    TurnedSide, target.row(TurnedMiddle + row) + TurnedMiddle,
                    target.row(TurnedMiddle - row) + TurnedMiddle},
          first, count);
  }
  return target;
}

template <Quarters quarters>
void expectBothWaysAlike() {
  Dice dice(51);
  const Bitmap source = noise(dice, TurnedSide, TurnedSide);
  for (const float angle : {0.3f, 1.1f, 2.6f, 4.0f, 5.9f}) {
    UnsurePlaces unsure;
    const Bitmap quickly = painted(source, angle, [&](const TurnedRow& row, int first, int count) {
      paintQuickly<quarters>(row, first, count, unsure);
    });
    const Bitmap oneByOne = painted(source, angle, [&](const TurnedRow& row, int first, int count) {
      paintOneByOne<quarters>(row, first, count, unsure);
    });
    EXPECT_TRUE(same(quickly, oneByOne)) << angle;
  }
}

}  // namespace

TEST(TurnedRows, ShowTheSamePixelsWhetherFetchedAtOnceOrOneByOne) {
  expectBothWaysAlike<Straight>();
  expectBothWaysAlike<Swapped>();
  expectBothWaysAlike<All>();
}

TEST(TurnedRows, TellTheSameDoubtsWhetherFetchedAtOnceOrOneByOne) {
  Dice dice(53);
  const Bitmap source = noise(dice, TurnedSide, TurnedSide);
  Bitmap target = source;
  int doubts = 0;
  for (int row = 1; row < 240; ++row) {
    const TurnedRow turned{row,
                           std::cos(0.7f),
                           std::sin(0.7f),
                           source.row(TurnedMiddle) + TurnedMiddle,
                           TurnedSide,
                           target.row(TurnedMiddle + row) + TurnedMiddle,
                           target.row(TurnedMiddle - row) + TurnedMiddle};
    UnsurePlaces quickly{}, oneByOne{};
    paintQuickly<All>(turned, 0, 230, quickly);
    paintOneByOne<All>(turned, 0, 230, oneByOne);
    EXPECT_EQ(quickly, oneByOne) << row;
    for (const unsigned bits : quickly) doubts += bits != 0;
  }
  EXPECT_GT(doubts, 0) << "places near a half are there";
}
