// A large sheet: what is equal is held once, and drawing holds three copies of it at most.
#include "studio/studio.h"
#include "support/held_bytes.h"

using namespace surface;

namespace {

// More than the pool of freed bitmaps keeps.
constexpr int Side = 4200;  // pixels
constexpr std::size_t Copy = std::size_t{Side} * Side * 4;
// For the small surfaces beside the sheet, and what the pool keeps of them.
constexpr std::size_t SmallSurfaces = Copy / 4;

}  // namespace

class LargeSheet : public Studio {
 protected:
  void stroke(float y) {
    sheet.MouseDown({1, 0, 10, y});
    sheet.MouseMove({1, 0, 300, y});
    sheet.MouseUp({1, 0, 300, y});
  }
  void grow() {
    sheet.Width = Side * 15;
    sheet.Height = Side * 15;
    ASSERT_EQ(sheet.ScaleWidth(), Side);
  }
  static Picture photo() {
    return Picture(std::make_shared<raster::Bitmap>(Side, Side, toPixel(0x336699)));
  }
};

TEST_F(LargeSheet, TheTwoSnapshotsOfAPressAreOneBitmap) {
  stroke(20);
  stroke(40);
  EXPECT_EQ(studio.picUndo.Picture->bitmap(), studio.picRedo.Picture->bitmap());
  EXPECT_NE(studio.picUndo.Picture->bitmap(), sheet.bitmap()) << "nothing was drawn since";
}

TEST_F(LargeSheet, AnOpenedPictureOfTheSheetsSizeIsHeldOnceUntilItIsDrawnOn) {
  grow();
  sheet.Picture = photo();
  EXPECT_EQ(sheet.Picture->bitmap(), sheet.bitmap());
  EXPECT_EQ(sheet.Image().bitmap(), sheet.bitmap());
  stroke(20);
  EXPECT_NE(sheet.Picture->bitmap(), sheet.bitmap());
}

#ifndef __SANITIZE_ADDRESS__  // its own books would be counted too
TEST_F(LargeSheet, IsHeldInThreeCopiesAtMostHoweverMuchIsDrawn) {
  const std::size_t before = heldBytes();
  grow();
  sheet.Picture = photo();
  for (int i = 0; i < 4; ++i) {
    stroke(static_cast<float>(20 + 10 * i));
    EXPECT_LE(heldBytes() - before, 3 * Copy + SmallSurfaces) << "after stroke " << i;
  }
  studio.cmdUndo.Click();
  studio.cmdRedo.Click();
  EXPECT_LE(heldBytes() - before, 3 * Copy + SmallSurfaces) << "after undo and redo";
}
#endif
