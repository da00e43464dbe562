// Bitmaps as values: copies, moves, sizes, and the buffers that are kept for the next one.
#include <gtest/gtest.h>

#include <utility>
#include <vector>

#include "pictures.h"

namespace {

using namespace pictures;

TEST(Rects, ShareAndUniteAsAreasDo) {
  const Rect a{0, 0, 10, 10}, b{5, 6, 20, 8}, apart{30, 30, 40, 40};
  EXPECT_EQ(intersect(a, b), (Rect{5, 6, 10, 8}));
  EXPECT_TRUE(intersect(a, apart).empty());
  EXPECT_EQ(unite(a, b), (Rect{0, 0, 20, 10}));
  EXPECT_EQ(unite(a, Rect{}), a);
  EXPECT_EQ(unite(Rect{7, 7, 7, 9}, b), b);
  EXPECT_TRUE(unite(Rect{}, Rect{}).empty());
}

TEST(Bitmaps, StartInOneColour) {
  const Bitmap bitmap(7, 5, 0xFFABCDEF);
  EXPECT_EQ(bitmap.bounds(), (Rect{0, 0, 7, 5}));
  EXPECT_EQ(count(bitmap, 0xFFABCDEF), 35);
  EXPECT_TRUE(bitmap.contains(6, 4));
  EXPECT_FALSE(bitmap.contains(7, 4));
  EXPECT_FALSE(bitmap.contains(0, -1));
}

TEST(Bitmaps, MayBeEmpty) {
  const Bitmap none, flat(0, 9, 0xFF000000);
  const Bitmap copy = flat;
  EXPECT_EQ(copy.height(), 9);
  EXPECT_TRUE(none.bounds().empty());
  EXPECT_TRUE(flat.bounds().empty());
}

TEST(Bitmaps, CopiesStandOnTheirOwn) {
  Dice dice(70);
  const Bitmap original = noise(dice, 20, 20);
  Bitmap copy = original;
  copy.row(3)[4] ^= 1;
  EXPECT_FALSE(same(original, copy));
  copy = original;
  EXPECT_TRUE(same(original, copy));
}

TEST(Bitmaps, TakeAnyOtherSizeWhenAssigned) {
  Dice dice(71);
  Bitmap bitmap(3, 3, 0xFF000000);
  for (const auto& [width, height] : {std::pair{9, 4}, {4, 9}, {6, 6}, {0, 0}, {1, 36}}) {
    const Bitmap other = noise(dice, width, height);
    bitmap = other;
    EXPECT_TRUE(same(other, bitmap));
  }
  const Bitmap& self = bitmap;
  bitmap = self;
  EXPECT_EQ(bitmap.bounds(), (Rect{0, 0, 1, 36}));
}

TEST(Bitmaps, MoveWithoutTouchingAPixel) {
  Dice dice(72);
  Bitmap first = noise(dice, 12, 12);
  const Bitmap want = first;
  const Pixel* const pixels = first.row(0);
  Bitmap second = std::move(first);
  EXPECT_EQ(second.row(0), pixels);
  Bitmap third(5, 5, 0xFF000000);
  third = std::move(second);
  EXPECT_EQ(third.row(0), pixels);
  EXPECT_TRUE(same(want, third));
}

TEST(Bitmaps, ASnapshotReusesTheBufferOfTheLastOne) {
  const Bitmap sheet(617, 537, 0xFFFFFFFF);
  const Pixel* first = nullptr;
  { first = Bitmap(sheet).row(0); }
  for (int i = 0; i < 10; ++i) EXPECT_EQ(Bitmap(sheet).row(0), first);
}

TEST(Bitmaps, ManySnapshotsOfManySizesAllHoldTheirPixels) {
  Dice dice(73);
  std::vector<Bitmap> kept;
  std::vector<Pixel> colors;
  for (int i = 0; i < 3000; ++i) {
    if (!kept.empty() && (kept.size() > 30 || dice.chance(45))) {
      const int at = dice.number(0, static_cast<int>(kept.size()) - 1);
      ASSERT_EQ(count(kept[at], colors[at]), kept[at].width() * kept[at].height());
      kept.erase(kept.begin() + at);
      colors.erase(colors.begin() + at);
      continue;
    }
    colors.push_back(dice.color());
    const Bitmap fresh(10 * dice.number(1, 5), 8, colors.back());
    kept.push_back(fresh);
  }
}

}  // namespace
