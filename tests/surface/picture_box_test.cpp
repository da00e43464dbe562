// The two layers of a picture box: its Picture, and the bitmap that is drawn on.
#include <QImage>
#include <memory>

#include "support/colors.h"
#include "support/errors.h"
#include "support/script.h"

using namespace surface;

namespace {

class Wall : public Form {
 public:
  Wall() : Form({.Width = 6000, .Height = 4500}) {}

  // 40 x 30 pixels, 10 x 8 pixels, and one in twips.
  PictureBox sheet{*this, PictureBox::Design{.Width = 600,
                                             .Height = 450,
                                             .ScaleMode = ScalePixels,
                                             .AutoRedraw = true,
                                             .BackColor = White}};
  PictureBox small{*this, PictureBox::Design{.Left = 750,
                                             .Width = 150,
                                             .Height = 120,
                                             .ScaleMode = ScalePixels,
                                             .AutoRedraw = true,
                                             .BackColor = White}};
  PictureBox unkept{
      *this,
      PictureBox::Design{
          .Left = 1500, .Width = 600, .Height = 450, .ScaleMode = ScalePixels, .BackColor = White}};
};

/// A picture of one colour with another pixel in its lower right corner.
Picture plain(int width, int height, Color color, Color corner) {
  auto bitmap = std::make_shared<raster::Bitmap>(width, height, toPixel(color));
  bitmap->row(height - 1)[width - 1] = toPixel(corner);
  return Picture(std::move(bitmap));
}

Color at(const Picture& picture, int x, int y) { return toColor(picture.bitmap()->at(x, y)); }

}  // namespace

class TwoLayers : public script::Stage {
 protected:
  TwoLayers() { wall.Show(); }
  static QColor onScreen(PictureBox& box, int x, int y) { return shown(box).pixelColor(x, y); }
  Wall& wall = the<Wall>();
  PictureBox& sheet = wall.sheet;
  PictureBox& small = wall.small;
};

TEST_F(TwoLayers, AFreshSurfaceShowsItsBackColor) {
  EXPECT_EQ(sheet.Point({5, 5}), White);
  EXPECT_EQ(onScreen(sheet, 5, 5), QColor(Qt::white));
}

TEST_F(TwoLayers, APictureLandsInTheUpperLeftCornerOverTheBackColor) {
  sheet.BackColor = Green;
  sheet.Picture = plain(10, 8, Red, Blue);
  EXPECT_EQ(sheet.Point({0, 0}), Red);
  EXPECT_EQ(sheet.Point({9, 7}), Blue);
  EXPECT_EQ(sheet.Point({10, 7}), Green);
  EXPECT_EQ(sheet.Point({9, 8}), Green);
  EXPECT_EQ(onScreen(sheet, 9, 7), QColor(0, 0, 255));
  EXPECT_EQ(onScreen(sheet, 10, 7), QColor(0, 255, 0));
}

TEST_F(TwoLayers, AssigningAPictureWipesWhatWasDrawn) {
  sheet.Line({20, 20}, {30, 25}, Red, BF);
  sheet.Picture = plain(10, 8, Blue, Blue);
  EXPECT_EQ(sheet.Point({25, 22}), White);
}

TEST_F(TwoLayers, AnEmptyPictureClearsTheSurface) {
  sheet.Picture = plain(40, 30, Red, Red);
  sheet.Line({0, 0}, {39, 29}, Blue);
  sheet.Picture = LoadPicture();
  EXPECT_TRUE(sheet.Picture->empty());
  EXPECT_EQ(sheet.Point({0, 0}), White);
  EXPECT_EQ(sheet.Point({20, 20}), White);
}

TEST_F(TwoLayers, APictureLargerThanItsControlKeepsItsWholeSize) {
  small.Picture = plain(40, 30, Red, Blue);
  EXPECT_EQ(small.Picture->width(), 40);
  EXPECT_EQ(small.Picture->height(), 30);
  sheet.Picture = small.Picture;
  EXPECT_EQ(sheet.Point({39, 29}), Blue) << "what lay outside the small control is lost";
}

TEST_F(TwoLayers, TheImageOfASmallerControlHasOnlyItsInnerSize) {
  small.Picture = plain(40, 30, Red, Blue);
  const Picture image = small.Image();
  EXPECT_EQ(image.width(), 10);
  EXPECT_EQ(image.height(), 8);
  EXPECT_EQ(at(image, 9, 7), Red);
}

TEST_F(TwoLayers, AnImageHasTheSizeOfTheSurfaceNotOfThePicture) {
  sheet.Picture = plain(10, 8, Red, Blue);
  const Picture image = sheet.Image();
  EXPECT_EQ(image.width(), 40);
  EXPECT_EQ(image.height(), 30);
  EXPECT_EQ(at(image, 20, 20), White);
}

TEST_F(TwoLayers, ASnapshotDoesNotFollowLaterDrawing) {
  sheet.Line({5, 5}, {5, 5}, Red);
  const Picture before = sheet.Image();
  sheet.Line({5, 5}, {5, 5}, Blue);
  SetPixel(sheet.hDC(), 6, 6, Blue);
  EXPECT_EQ(at(before, 5, 5), Red);
  EXPECT_EQ(at(before, 6, 6), White);
  EXPECT_EQ(sheet.Point({5, 5}), Blue);
}

TEST_F(TwoLayers, DrawingOnASurfaceLeavesThePictureItWasGiven) {
  const Picture given = plain(40, 30, Red, Red);
  sheet.Picture = given;
  sheet.Line({5, 5}, {5, 5}, Blue);
  EXPECT_EQ(at(given, 5, 5), Red);
  EXPECT_EQ(at(sheet.Picture, 5, 5), Red);
  EXPECT_EQ(sheet.Point({5, 5}), Blue);
}

TEST_F(TwoLayers, TwoSurfacesOfOnePictureAreDrawnOnApart) {
  const Picture given = plain(40, 30, Red, Red);
  sheet.Picture = given;
  wall.unkept.Picture = sheet.Image();
  sheet.PSet({1, 1}, Blue);
  wall.unkept.PSet({2, 2}, Green);
  EXPECT_EQ(sheet.Point({2, 2}), Red);
  EXPECT_EQ(wall.unkept.Point({1, 1}), Red);
}

TEST_F(TwoLayers, ASnapshotSharesItsPixelsUntilSomethingIsDrawn) {
  sheet.PSet({1, 1}, Blue);
  const Picture one = sheet.Image(), two = sheet.Image();
  EXPECT_EQ(one.bitmap(), two.bitmap());
  sheet.PSet({2, 2}, Blue);
  EXPECT_NE(sheet.Image().bitmap(), one.bitmap());
}

TEST_F(TwoLayers, ABackColorErasesTheDrawingAndThePictureShowsAgain) {
  sheet.Picture = plain(10, 8, Red, Red);
  sheet.Line({0, 0}, {39, 29}, Blue, BF);
  sheet.BackColor = Green;
  EXPECT_EQ(sheet.Point({5, 5}), Red);
  EXPECT_EQ(sheet.Point({20, 20}), Green);
}

TEST_F(TwoLayers, TheSameBackColorAssignedAnewErasesToo) {
  sheet.Line({0, 0}, {39, 29}, Blue, BF);
  sheet.BackColor = sheet.BackColor;
  EXPECT_EQ(sheet.Point({20, 20}), White);
}

TEST_F(TwoLayers, ClsClearsTheDrawingAndLeavesThePicture) {
  sheet.Picture = plain(10, 8, Red, Red);
  sheet.Line({0, 0}, {39, 29}, Blue, BF);
  sheet.Cls();
  EXPECT_EQ(sheet.Point({5, 5}), Red);
  EXPECT_EQ(sheet.Point({20, 20}), White);
  EXPECT_FALSE(sheet.Picture->empty());
  EXPECT_EQ(sheet.CurrentX, 0);
  EXPECT_EQ(sheet.CurrentY, 0);
}

TEST_F(TwoLayers, ALargerControlKeepsItsDrawingAndShowsBackColorBeside) {
  sheet.Line({0, 0}, {39, 29}, Blue, BF);
  sheet.Width = 900;
  sheet.Height = 750;
  EXPECT_EQ(sheet.ScaleWidth(), 60);
  EXPECT_EQ(sheet.ScaleHeight(), 50);
  EXPECT_EQ(sheet.Point({39, 29}), Blue);
  EXPECT_EQ(sheet.Point({40, 29}), White);
  EXPECT_EQ(sheet.Point({59, 49}), White);
  EXPECT_EQ(sheet.Point({60, 49}), NoColor);
}

TEST_F(TwoLayers, ASmallerControlCutsItsDrawingOff) {
  sheet.Line({0, 0}, {39, 29}, Blue, BF);
  sheet.Width = 300;
  EXPECT_EQ(sheet.Image().width(), 20);
  EXPECT_EQ(sheet.Point({19, 29}), Blue);
  sheet.Width = 600;
  EXPECT_EQ(sheet.Point({20, 29}), White);
}

TEST_F(TwoLayers, ASizeBeyondAllMemoryIsRefusedAndTheFormerOneStays) {
  sheet.PSet({39, 29}, Blue);
  EXPECT_ERROR(OutOfMemory, sheet.Width = 40000 * 15);
  EXPECT_EQ(sheet.Width, 600);
  sheet.Height = 30000 * 15;
  EXPECT_ERROR(OutOfMemory, sheet.Width = 30000 * 15);
  EXPECT_EQ(sheet.Width, 600);
  sheet.Height = 450;
  EXPECT_EQ(sheet.ScaleWidth(), 40);
  EXPECT_EQ(sheet.Point({39, 29}), Blue);
}

TEST_F(TwoLayers, ASurfaceOfNoSizeTakesEveryCall) {
  sheet.Width = 0;
  EXPECT_NO_THROW(sheet.Line({0, 0}, {10, 10}, Red));
  EXPECT_NO_THROW(sheet.Circle({0, 0}, 10, Red));
  EXPECT_EQ(sheet.Point({0, 0}), NoColor);
  EXPECT_EQ(sheet.Image().width(), 0);
  const Picture none = sheet.Image();
  EXPECT_NO_THROW(small.Picture = none);
  EXPECT_EQ(small.Point({0, 0}), White);
}

// What was drawn comes back when a window that covered the sheet has gone.
TEST_F(TwoLayers, WithoutAutoRedrawNothingIsLostEither) {
  wall.unkept.Line({0, 0}, {39, 29}, Blue, BF);
  EXPECT_EQ(wall.unkept.Point({20, 20}), Blue);
  EXPECT_EQ(at(wall.unkept.Image(), 20, 20), Blue);
  wall.Hide();
  wall.Show();
  EXPECT_EQ(onScreen(wall.unkept, 20, 20), QColor(0, 0, 255));
}

TEST_F(TwoLayers, DrawingIsOnTheScreenOnceTheHandlerHasReturned) {
  Event<> event;
  event = [&] { sheet.Line({0, 0}, {39, 29}, Blue, BF); };
  event();
  EXPECT_EQ(onScreen(sheet, 20, 20), QColor(0, 0, 255));
}

TEST_F(TwoLayers, ASurfaceThatWasHiddenShowsWhatWasDrawnMeanwhile) {
  sheet.Visible = false;
  sheet.Line({0, 0}, {39, 29}, Blue, BF);
  sheet.Visible = true;
  EXPECT_EQ(onScreen(sheet, 20, 20), QColor(0, 0, 255));
}

TEST_F(TwoLayers, ASurfaceHoldsNoBitmapUntilItIsDrawnOn) {
  EXPECT_TRUE(sheet.blank());
  sheet.BackColor = Green;
  EXPECT_TRUE(sheet.blank());
  sheet.PSet({0, 0}, Red);
  EXPECT_FALSE(sheet.blank());
}

TEST_F(TwoLayers, ASystemColourIsResolvedWhenDrawn) {
  sheet.BackColor = ButtonFace;
  EXPECT_EQ(sheet.BackColor, ButtonFace);
  EXPECT_EQ(sheet.Point({5, 5}), 0xC0C0C0);
  sheet.PSet({5, 5}, static_cast<Color>(0x80000012));
  EXPECT_EQ(sheet.Point({5, 5}), Black);
}

TEST_F(TwoLayers, BadValuesAreRefusedAndTheFormerOnesStay) {
  sheet.DrawWidth = 7;
  EXPECT_ERROR(BadPropertyValue, sheet.DrawWidth = 0);
  EXPECT_EQ(sheet.DrawWidth, 7);
  EXPECT_ERROR(BadPropertyValue, sheet.DrawStyle = 7);
  EXPECT_ERROR(BadPropertyValue, sheet.DrawStyle = -1);
  EXPECT_EQ(sheet.DrawStyle, 0);
  EXPECT_ERROR(BadPropertyValue, sheet.DrawMode = 0);
  EXPECT_ERROR(BadPropertyValue, sheet.DrawMode = 17);
  EXPECT_EQ(sheet.DrawMode, 13);
  EXPECT_ERROR(BadPropertyValue, sheet.FillStyle = 8);
  EXPECT_ERROR(BadPropertyValue, sheet.FillStyle = -1);
  EXPECT_EQ(sheet.FillStyle, 1);
  sheet.PSet({5, 5}, Blue);
  EXPECT_ERROR(BadPropertyValue, sheet.BackColor = NoColor);
  EXPECT_EQ(sheet.BackColor, White);
  EXPECT_EQ(sheet.Point({5, 5}), Blue) << "a refused colour has erased the drawing";
  EXPECT_ERROR(BadPropertyValue, sheet.ForeColor = NoColor);
  EXPECT_ERROR(BadPropertyValue, sheet.FillColor = NoColor);
}
