// Where the colours come from: the rainbow, the colour dialog for the background, the two swatches
// of the gradient.
#include <QColor>
#include <algorithm>

#include "studio/studio.h"

using namespace surface;

class Palette : public Studio {
 protected:
  PictureBox& palette = studio.picPalet;

  QColor colorAt(int x, int y) {
    const Color c = palette.Point({static_cast<float>(x * 15), static_cast<float>(y * 15)});
    return QColor(c & 0xFF, c >> 8 & 0xFF, c >> 16 & 0xFF);
  }
  Color pixelAt(int x, int y) {
    return palette.Point({static_cast<float>(x * 15), static_cast<float>(y * 15)});
  }
};

TEST_F(Palette, LiesBesideItsSwatch) {
  expectPlaced(
      {{palette, 240, 120, 1815, 1095, "het KLEURENPALET"}, {studio.Shape1, 2160, 120, 375, 1095}});
  EXPECT_EQ(palette.ScaleMode(), ScaleTwips);
  EXPECT_EQ(palette.MousePointer, PointerCross);
  EXPECT_EQ(palette.Picture->width(), 120);
  EXPECT_EQ(palette.Picture->height(), 75);
}

TEST_F(Palette, IsWhiteAtTheTopAndBlackAtTheBottom) {
  const auto& picture = *palette.Picture->bitmap();
  for (int x = 0; x < 120; ++x) {
    for (int y = 0; y < 4; ++y) EXPECT_EQ(picture.at(x, y), toPixel(White)) << x << ", " << y;
    for (int y = 70; y < 75; ++y) EXPECT_EQ(picture.at(x, y), toPixel(Black)) << x << ", " << y;
  }
}

TEST_F(Palette, RunsThroughTheHuesFromRedToVioletInSmoothSteps) {
  const int middle = 37;
  EXPECT_LE(std::min(colorAt(0, middle).hue(), 360 - colorAt(0, middle).hue()), 10) << "red";
  EXPECT_NEAR(colorAt(119, middle).hue(), 285, 20) << "violet";
  for (int x = 1; x < 120; ++x) {
    const int step = colorAt(x, middle).hue() - colorAt(x - 1, middle).hue();
    EXPECT_GE(step, 0) << x;
    EXPECT_LE(step, 8) << x;
  }
}

TEST_F(Palette, DarkensFromRowToRow) {
  for (int x = 0; x < 120; ++x)
    for (int y = 1; y < 73; ++y)
      EXPECT_LE(colorAt(x, y).lightness(), colorAt(x, y - 1).lightness()) << x << ", " << y;
}

TEST_F(Palette, APressOnTheTopRowsGivesWhiteAndOnTheBottomRowsBlack) {
  for (int y = 0; y < 4; ++y) {
    press(palette, 60, y);
    release(palette, 60, y);
    EXPECT_EQ(studio.Shape1.FillColor, White);
    EXPECT_EQ(sheet.ForeColor, White);
  }
  for (int y = 70; y < 73; ++y) {
    press(palette, 60, y);
    release(palette, 60, y);
    EXPECT_EQ(studio.Shape1.FillColor, Black);
    EXPECT_EQ(sheet.ForeColor, Black);
  }
}

TEST_F(Palette, EveryPlaceGivesAColourThatThePaletteShows) {
  const int last = palette.innerPixels().width() - 1;
  ASSERT_EQ(palette.Picture->width(), last) << "the picture is as wide as its box";
  for (int y : {20, 37, 60}) {
    press(palette, last, y);
    EXPECT_EQ(studio.Shape1.FillColor, pixelAt(last - 1, y));
    move(palette, 10, y, 1);
    move(palette, last, y, 1);
    EXPECT_EQ(studio.Shape1.FillColor, pixelAt(last - 1, y));
    release(palette, last, y);
    EXPECT_EQ(sheet.ForeColor, pixelAt(last - 1, y));
    press(palette, last + 1, y);
    EXPECT_EQ(studio.Shape1.FillColor, pixelAt(last - 1, y)) << "beyond the box is no colour";
    release(palette, last + 1, y);
  }
}

TEST_F(Palette, TheSwatchFollowsThePointerAndThePenTakesTheColourOfTheRelease) {
  const Color first = pixelAt(10, 37), second = pixelAt(60, 37), third = pixelAt(100, 37);
  press(palette, 10, 37);
  EXPECT_EQ(studio.Shape1.FillColor, first);
  EXPECT_EQ(studio.Line2.BorderColor, first);
  EXPECT_EQ(sheet.ForeColor, Black);
  move(palette, 60, 37, 1);
  EXPECT_EQ(studio.Shape1.FillColor, second);
  EXPECT_EQ(sheet.ForeColor, Black);
  move(palette, 100, 37, 1);
  release(palette, 100, 37);
  EXPECT_EQ(studio.Shape1.FillColor, third);
  EXPECT_EQ(sheet.ForeColor, third);
  EXPECT_EQ(studio.Line2.BorderColor, first) << "the sample keeps the colour of the first touch";
  // And it does so until the thickness is moved.
  studio.Slider1.scrolled(2);
  EXPECT_EQ(studio.Line2.BorderColor, third);
}

TEST_F(Palette, TheSwatchIsSeenBesideThePalette) {
  const Color color = pickColor(60);
  const QImage window = shown(studio);
  EXPECT_EQ(window.pixel((2160 + 180) / 15, (120 + 500) / 15) & 0xFFFFFF,
            toPixel(color) & 0xFFFFFF);
}

TEST_F(Palette, AMoveWithoutAPressPicksNothing) {
  move(palette, 60, 37);
  EXPECT_EQ(studio.Shape1.FillColor, Black);
  pickColor(10);
  const Color picked = studio.Shape1.FillColor;
  move(palette, 60, 37);
  EXPECT_EQ(studio.Shape1.FillColor, picked) << "the release ends the picking";
}

TEST_F(Palette, AnyButtonPicks) {
  for (const int button : {2, 4}) {
    const int x = 20 * button;
    drag(palette, 5, 30, x, 37, button);
    EXPECT_EQ(studio.Shape1.FillColor, pixelAt(x, 37));
    EXPECT_EQ(sheet.ForeColor, pixelAt(x, 37));
  }
}

TEST_F(Palette, ADragThatEndsOffThePaletteKeepsTheLastColourOnItAndTheFormerPen) {
  const Color former = pickColor(10);
  press(palette, 30, 37);
  move(palette, 60, 37, 1);
  const Color last = pixelAt(60, 37);
  for (const auto& [x, y] : {std::pair{60, -5}, {-40, 37}, {60, 300}, {400, 400}}) {
    move(palette, x, y, 1);
    EXPECT_EQ(studio.Shape1.FillColor, last) << x << ", " << y;
  }
  release(palette, 400, 400);
  EXPECT_EQ(studio.Shape1.FillColor, last);
  EXPECT_EQ(sheet.ForeColor, former);
  EXPECT_EQ(takeErrorReport(), std::nullopt);
}

TEST_F(Palette, AColourLastsUntilAButtonClosesPanels) {
  const Color color = pickColor(60);
  click(studio.cmdArt);
  click(studio.cmdOpvullen);
  EXPECT_EQ(studio.Shape1.FillColor, color);
  EXPECT_EQ(sheet.ForeColor, color);
  click(studio.cmdLijn);
  EXPECT_EQ(studio.Shape1.FillColor, Black);
  EXPECT_EQ(sheet.ForeColor, Black);
}

TEST_F(Palette, TheBackgroundTakesTheColourOfTheDialogAndWipesTheDrawing) {
  drag(sheet, 20, 20, 80, 80);
  answerColor(0x00FFFF);
  click(studio.cmdPalet);
  EXPECT_EQ(studio.lblModus.Caption, "een KLEUR voor de ACHTERGROND kiezen");
  EXPECT_EQ(studio.cmdPalet.ToolTipText, "de kleur van de achtergrond kiezen uit kleurenpalet");
  ASSERT_EQ(asked().size(), 1u);
  EXPECT_EQ(asked()[0].buttons, 4) << "without the part for custom colours";
  EXPECT_TRUE(shows(sheet, raster::Bitmap(617, 537, toPixel(0x00FFFF))));
}

TEST_F(Palette, CancellingTheBackgroundChangesNothing) {
  drag(sheet, 20, 20, 80, 80);
  const raster::Bitmap before = canvas();
  cancelColor();
  click(studio.cmdPalet);
  EXPECT_EQ(studio.lblModus.Caption, "een KLEUR voor de ACHTERGROND kiezen");
  EXPECT_EQ(sheet.BackColor, White);
  EXPECT_TRUE(shows(sheet, before));
}

TEST_F(Palette, APictureUnderTheDrawingSurvivesANewBackground) {
  drag(sheet, 20, 20, 80, 80);
  drag(sheet, 20, 80, 80, 20);
  click(studio.cmdUndo);  // puts an image under what is drawn from now on
  const raster::Bitmap picture = canvas();
  drag(sheet, 200, 200, 300, 300);
  answerColor(0x00FFFF);
  click(studio.cmdPalet);
  EXPECT_TRUE(shows(sheet, picture));
}

TEST_F(Palette, UndoBringsAWipedDrawingBackOnlyFromTheLastPress) {
  drag(sheet, 20, 20, 80, 80);
  press(sheet, 300, 300);
  const raster::Bitmap atPress = canvas();
  release(sheet, 300, 300);
  answerColor(0x00FFFF);
  click(studio.cmdPalet);
  EXPECT_EQ(sheet.Point({20, 20}), 0x00FFFF);
  click(studio.cmdUndo);
  EXPECT_TRUE(shows(sheet, atPress));
}

TEST_F(Palette, TheGradientPanelShowsItsTwoColours) {
  click(studio.cmdGradient);
  EXPECT_EQ(studio.fraGradient.Caption, "KLEUROVERGANG");
  expectPlaced({{studio.fraGradient, 240, 5160, 1815, 1695},
                {studio.Picture3, 240, 240, 375, 375, "kleur achtergrond links / boven"},
                {studio.Picture4, 1200, 240, 375, 375, "kleur achtergrond rechts / onder"}});
  for (PictureBox* box : {&studio.Picture3, &studio.Picture4})
    EXPECT_EQ(box->ScaleMode(), ScaleTwips);
  EXPECT_EQ(studio.Picture3.BackColor, 0xFF0000);
  EXPECT_EQ(studio.Picture4.BackColor, 0x0000FF);
  EXPECT_EQ(shown(studio.Picture3).pixel(12, 12), toPixel(0xFF0000));
  EXPECT_EQ(shown(studio.Picture4).pixel(12, 12), toPixel(0x0000FF));
}

TEST_F(Palette, AGradientColourIsTheOneOfTheDialog) {
  click(studio.cmdGradient);
  answerColor(0x123456);
  click(studio.Picture3);
  EXPECT_EQ(studio.Picture3.BackColor, 0x123456);
  EXPECT_EQ(studio.Picture4.BackColor, 0x0000FF);
  answerColor(0x654321);
  click(studio.Picture4);
  EXPECT_EQ(studio.Picture4.BackColor, 0x654321);
  EXPECT_EQ(studio.Picture3.BackColor, 0x123456);
}

TEST_F(Palette, CancellingAGradientColourGivesTheOneChosenLast) {
  click(studio.cmdGradient);
  answerColor(0x123456);
  click(studio.Picture3);
  cancelColor();
  click(studio.Picture4);
  EXPECT_EQ(studio.Picture4.BackColor, 0x123456);
}

TEST_F(Palette, CancellingAGradientColourAfterASaveStillGivesTheOneChosenLast) {
  click(studio.cmdGradient);
  answerColor(0x123456);
  click(studio.Picture3);
  cancelFile();  // the same dialog serves files, where a cancel is an error
  click(studio.cmdSaveAs);
  cancelColor();
  click(studio.Picture4);
  EXPECT_EQ(studio.Picture4.BackColor, 0x123456);
  EXPECT_EQ(takeErrorReport(), std::nullopt);
}

TEST_F(Palette, CancellingTheFirstGradientColourLeavesTheSwatchesAsTheyAre) {
  click(studio.cmdGradient);
  for (PictureBox* swatch : {&studio.Picture3, &studio.Picture4}) {
    const Color own = swatch->BackColor;
    cancelColor();
    click(*swatch);
    EXPECT_EQ(swatch->BackColor, own);
    EXPECT_EQ(asked().back().initial, std::to_string(own)) << "the dialog opens on another colour";
  }
}

TEST_F(Palette, TheGradientsDialogLooksAlikeBeforeAndAfterASave) {
  click(studio.cmdGradient);
  cancelColor();
  click(studio.Picture3);
  cancelFile();
  click(studio.cmdSaveAs);
  cancelColor();
  click(studio.Picture3);
  ASSERT_EQ(asked().size(), 3u);
  EXPECT_EQ(asked()[0].buttons, 0);
  EXPECT_EQ(asked()[2].buttons, asked()[0].buttons);
}

TEST_F(Palette, TheGradientsDialogDoesNotTouchTheBackgrounds) {
  click(studio.cmdGradient);
  answerColor(0x123456);
  click(studio.Picture3);
  answerColor(0x00FF00);
  click(studio.cmdPalet);
  cancelColor();
  click(studio.Picture4);
  EXPECT_EQ(studio.Picture4.BackColor, 0x123456);
}
