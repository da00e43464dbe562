// The magnifier: what its window shows while the pointer moves over the sheet.
#include <QImage>

#include "effects/effect_stage.h"
#include "effects/frmZoom.h"
#include "effects/point_effects.h"
#include "shell/frmStart.h"
#include "studio/modTekenen.h"
#include "text/frmTekst.h"

using namespace surface;
using raster::Bitmap;

class Magnifier : public EffectStage {
 protected:
  frmZoom& open() {
    click(studio.cmdZoom);
    advance(0);
    return the<frmZoom>();
  }

  // The block of the sheet that the glass holds: grey beyond the sheet.
  static Bitmap block(const Bitmap& picture, int left, int top, int side) {
    Bitmap result(side, side, toPixel(ButtonFace));
    for (int y = 0; y < side; ++y)
      for (int x = 0; x < side; ++x)
        if (picture.contains(left + x, top + y)) result.row(y)[x] = picture.at(left + x, top + y);
    return result;
  }
};

TEST_F(Magnifier, OpensInTheUpperLeftCornerWithItsSliderAtTheTop) {
  auto& zoom = open();
  EXPECT_EQ(studio.lblModus.Caption.get(), "de tekening vergroten (IN-ZOOMEN)");
  EXPECT_TRUE(zoom.shown());
  EXPECT_NE(ZoomOpen, 0);
  EXPECT_EQ(zoom.Left, 0);
  EXPECT_EQ(zoom.Top, 0);
  EXPECT_EQ(zoom.Caption.get(), "                      IN / UIT ZOOMEN");
  EXPECT_FALSE(zoom.topMost());
  EXPECT_TRUE(zoom.Slider1.Vertical);
  expectPlaced({{zoom.Slider1, 120, 120, 495, 3015}});
  EXPECT_EQ(zoom.Slider1.Min, 1);
  EXPECT_EQ(zoom.Slider1.Max, 10);
  EXPECT_EQ(zoom.Slider1.Value, 1);
  EXPECT_EQ(zoom.Slider1.SmallChange, 1);
  EXPECT_EQ(zoom.Slider1.LargeChange, 1);
  EXPECT_EQ(zoom.imgStretch.Width, 3000);
  EXPECT_EQ(zoom.imgStretch.Height, 3000);
}

TEST_F(Magnifier, ShowsTheSquareAroundThePointerAtEveryStepOfTheSlider) {
  const Bitmap picture = drawNoise(617, 537);
  auto& zoom = open();
  const int sides[] = {200, 100, 67, 50, 40, 33, 29, 25, 22, 20};
  slide(zoom.Slider1, 10);
  for (int z = 1; z <= 10; ++z) {
    slide(zoom.Slider1, z);
    EXPECT_EQ(zoom.Caption.get(), "Vergroting tekening =   " + std::to_string(z) + "   X");
    move(sheet, 10, 10);
    move(sheet, 300, 250);
    const double half = 200.0 / z / 2;
    EXPECT_TRUE(same(*zoom.imgStretch.Picture->bitmap(),
                     block(picture, static_cast<int>(roundEven(300 - half)),
                           static_cast<int>(roundEven(250 - half)), sides[z - 1])))
        << z;
  }
}

TEST_F(Magnifier, FollowsTheSliderOnlyAtTheNextMove) {
  drawNoise(617, 537);
  auto& zoom = open();
  move(sheet, 300, 250);
  const Picture before = zoom.imgStretch.Picture;
  slide(zoom.Slider1, 5);
  EXPECT_EQ(zoom.imgStretch.Picture, before);
  move(sheet, 300, 251);
  EXPECT_EQ(zoom.imgStretch.Picture->width(), 40);
}

TEST_F(Magnifier, StaysGreyBeyondTheSheet) {
  const Bitmap picture = drawNoise(617, 537);
  auto& zoom = open();
  slide(zoom.Slider1, 4);
  for (const auto& [x, y] : {std::pair{0, 0}, {616, 536}, {0, 536}, {3, 300}}) {
    move(sheet, x, y);
    EXPECT_TRUE(same(*zoom.imgStretch.Picture->bitmap(), block(picture, x - 25, y - 25, 50)));
  }
}

TEST_F(Magnifier, EnlargesPixelsAsSquaresUnderABlackCross) {
  const Bitmap picture = drawNoise(617, 537);
  auto& zoom = open();
  for (const int z : {1, 3, 7, 10}) {
    slide(zoom.Slider1, z);
    move(sheet, 300, 250);
    const raster::Rect place = zoom.imgStretch.pixelPlace();
    const QImage glass = shown(zoom).copy(place.left, place.top, place.width(), place.height());
    const Bitmap& held = *zoom.imgStretch.Picture->bitmap();
    const int n = held.width();
    int wrong = 0;
    for (int y = 0; y < 200; ++y)
      for (int x = 0; x < 200; ++x) {
        const bool cross = x == 100 || y == 100;
        const QRgb expected = cross ? 0xFF000000 : held.at(x * n / 200, y * n / 200);
        wrong += glass.pixel(x, y) != expected ? 1 : 0;
      }
    EXPECT_EQ(wrong, 0) << z;
  }
}

TEST_F(Magnifier, ChangesNeitherSheetNorToolsAndLeavesTheSampleOut) {
  drag(sheet, 50, 50, 60, 60);
  click(studio.cmdLijn);
  drag(sheet, 60, 30, 90, 45);  // shows the sample line
  const Bitmap drawn = canvas();
  auto& zoom = open();
  move(sheet, 70, 40);
  EXPECT_TRUE(same(*zoom.imgStretch.Picture->bitmap(), block(drawn, -30, -60, 200)));
  EXPECT_TRUE(shows(sheet, drawn));
}

TEST_F(Magnifier, ClosesAtTheFirstPressOnTheSheetWithAnyTool) {
  for (CommandButton* tool : {&studio.cmdTekenen, &studio.cmdLijn, &studio.cmdOpvullen}) {
    click(*tool);
    open();
    press(sheet, 200, 200);
    EXPECT_FALSE(isLoaded<frmZoom>());
    EXPECT_EQ(ZoomOpen, 0);
    release(sheet, 220, 220);
    move(sheet, 230, 230);
    EXPECT_FALSE(isLoaded<frmZoom>()) << "a move loads it no more";
  }
}

TEST_F(Magnifier, StandsStillOnceTheSheetIsWipedOrNewUntilItIsOpenedAnew) {
  for (CommandButton* button : {&studio.cmdClear, &studio.cmdNieuw}) {
    auto& zoom = open();
    move(sheet, 300, 250);
    const Picture held = zoom.imgStretch.Picture;
    click(*button);
    move(sheet, 310, 260);
    EXPECT_EQ(zoom.imgStretch.Picture, held);
    press(sheet, 310, 260);
    release(sheet, 310, 260);
    EXPECT_FALSE(isLoaded<frmZoom>());
    open();
    move(sheet, 300, 250);
    EXPECT_FALSE(the<frmZoom>().imgStretch.Picture->empty());
    Unload(the<frmZoom>());
  }
}

TEST_F(Magnifier, LeavesAnEffectToWorkOnTheSheetAtItsOwnSize) {
  const Bitmap before = drawNoise(61, 47);
  auto& zoom = open();
  slide(zoom.Slider1, 5);
  move(sheet, 30, 20);
  clickEffect(studio.cmdOmkeren);
  EXPECT_TRUE(shows(sheet, effects::inverted(before)));
  EXPECT_TRUE(zoom.shown());
}

TEST_F(Magnifier, LoadsTheHiddenTextFormAndSoTurnsThePenBlack) {
  click(studio.cmdLijn);
  pickColor(20);
  ASSERT_NE(sheet.ForeColor, Black);
  open();
  EXPECT_TRUE(isLoaded<frmTekst>());
  EXPECT_FALSE(the<frmTekst>().shown());
  EXPECT_TRUE(the<frmTekst>().topMost());
  EXPECT_EQ(sheet.ForeColor, Black);
  pickColor(20);
  press(sheet, 20, 20);
  release(sheet, 20, 20);
  EXPECT_NE(sheet.ForeColor, Black) << "a press on the sheet loads nothing";
  open();
  EXPECT_NE(sheet.ForeColor, Black) << "it is loaded only once";
}

TEST_F(Magnifier, IsNotLoadedByAPressOnTheSheet) {
  const auto loaded = FormRegistry::instance().forms().size();
  press(sheet, 20, 20);
  release(sheet, 20, 20);
  EXPECT_EQ(FormRegistry::instance().forms().size(), loaded);
}

TEST_F(Magnifier, IsOneWindowHoweverOftenItIsAskedFor) {
  auto& zoom = open();
  EXPECT_EQ(&zoom, &open());
}

TEST_F(Magnifier, OpensAnewAfterItsCloseBoxAndGoesWithTheStudio) {
  closeBox(open());
  EXPECT_FALSE(isLoaded<frmZoom>());
  EXPECT_EQ(ZoomOpen, 0);
  open();
  move(sheet, 100, 100);
  EXPECT_FALSE(the<frmZoom>().imgStretch.Picture->empty());
  click(studio.cmdEinde);
  EXPECT_FALSE(isLoaded<frmZoom>());
}
