// The eraser: the pencil with a thick pen in the colour of the background, and its panel.
#include "studio/studio.h"

using namespace surface;

class Eraser : public Studio {
 protected:
  void blacken() {
    click(studio.cmdRechthoekgevuld);
    drag(sheet, 20, 20, 300, 300);
  }
};

TEST_F(Eraser, ThePanelHoldsItsControls) {
  click(studio.cmdGommen);
  EXPECT_EQ(studio.fraGommen.Caption, "GOMMEN");
  expectPlaced({{studio.fraGommen, 240, 5160, 1815, 1455},
                {studio.picGommen, 1320, 240, 375, 375, "kies de kleur voor het gommetje"},
                {studio.Label7, 120, 360, 0, 0},
                {studio.Slider3, 120, 720, 975, 0, "de dikte van het gommetje regelen"},
                {studio.Label6, 360, 1080, 0, 0}});
  EXPECT_EQ(studio.Label7.Caption, "klik=veranderen");
  EXPECT_EQ(studio.Label6.Caption, "dikte veranderen");
  EXPECT_EQ(studio.Slider3.Min, 1);
  EXPECT_EQ(studio.Slider3.Max, 20);
  EXPECT_EQ(studio.picGommen.ScaleMode(), ScaleTwips);
  EXPECT_EQ(studio.picGommen.BackColor, White);
  EXPECT_EQ(studio.Line3.X1.get(), 1320);
  EXPECT_EQ(studio.Line3.X2.get(), 1560);
  EXPECT_EQ(studio.Line3.Y1.get(), 960);
  EXPECT_EQ(studio.Line3.Y2.get(), 960);
  EXPECT_EQ(studio.cmdGom.ToolTipText, "gommetje om foutjes te verbeteren");
  EXPECT_EQ(studio.cmdGommen.ToolTipText, "het menu GOMMEN");
}

TEST_F(Eraser, ErasesAStripeTenPixelsWide) {
  blacken();
  click(studio.cmdGom);
  EXPECT_EQ(studio.lblModus.Caption, "Je kunt hiermee foutjes ongedaan GOMMEN");
  EXPECT_EQ(sheet.MousePointer, PointerCustom);
  EXPECT_EQ(sheet.MouseIcon, "curGom");
  raster::Bitmap should = canvas();
  const raster::Pen eraser{raster::PenStyle::Solid, 10, toPixel(White)};
  oracle::dot({should}, eraser, 100, 100);
  oracle::line({should}, eraser, 150, 100, 100, 100);
  oracle::line({should}, eraser, 200, 100, 150, 100);
  drag(sheet, 100, 100, 200, 100);
  EXPECT_TRUE(shows(sheet, should));
}

TEST_F(Eraser, AlwaysStartsAtThicknessTen) {
  click(studio.cmdGommen);
  slide(studio.Slider3, 17);
  click(studio.cmdGom);
  EXPECT_EQ(studio.Slider3.Value, 10);
  EXPECT_EQ(studio.Line3.BorderWidth, 10);
  EXPECT_EQ(sheet.DrawWidth, 10);
  click(studio.cmdGommen);
  slide(studio.Slider3, 3);
  click(studio.cmdGommen);
  EXPECT_EQ(studio.Slider3.Value, 10);
  EXPECT_EQ(studio.Line3.BorderWidth, 10);
  EXPECT_EQ(sheet.DrawWidth, 10);
}

TEST_F(Eraser, ErasesInTheBackgroundsColour) {
  answerColor(0x00FFFF);
  click(studio.cmdPalet);
  blacken();
  click(studio.cmdGom);
  drag(sheet, 100, 100, 200, 100);
  EXPECT_EQ(sheet.Point({150, 100}), 0x00FFFF);
}

TEST_F(Eraser, ThePanelsSampleIsWhiteOnAColouredSheetWhileThePenTakesItsColour) {
  answerColor(0x00FFFF);
  click(studio.cmdPalet);
  click(studio.cmdGommen);
  EXPECT_EQ(studio.lblModus.Caption, "hulpkader : je kan ook met het gommetje tekenen");
  EXPECT_TRUE(studio.fraGommen.Visible);
  EXPECT_EQ(sheet.MouseIcon, "curGom");
  EXPECT_EQ(studio.picGommen.BackColor, White);
  EXPECT_EQ(studio.Line3.BorderColor, White);
  EXPECT_EQ(sheet.ForeColor, 0x00FFFF);
}

TEST_F(Eraser, ThePanelsColourBecomesTheDrawingColour) {
  click(studio.cmdGommen);
  answerColor(0x0000FF);
  click(studio.picGommen);
  EXPECT_EQ(studio.lblModus.Caption, "een KLEUR voor het gommetje kiezen");
  ASSERT_EQ(asked().size(), 1u);
  EXPECT_EQ(asked()[0].buttons, 4);
  EXPECT_EQ(studio.picGommen.BackColor, 0x0000FF);
  EXPECT_EQ(studio.Line3.BorderColor, 0x0000FF);
  EXPECT_EQ(studio.Shape1.FillColor, 0x0000FF);
  drag(sheet, 100, 100, 200, 100);
  EXPECT_EQ(sheet.Point({150, 100}), 0x0000FF);
  EXPECT_EQ(sheet.Point({150, 104}), 0x0000FF);
  // Opened anew the panel is white again.
  click(studio.cmdGommen);
  EXPECT_EQ(studio.picGommen.BackColor, White);
  EXPECT_EQ(studio.Line3.BorderColor, White);
  EXPECT_EQ(studio.Shape1.FillColor, Black);
}

TEST_F(Eraser, CancellingItsColourChangesNothing) {
  click(studio.cmdGommen);
  cancelColor();
  click(studio.picGommen);
  EXPECT_EQ(studio.lblModus.Caption, "een KLEUR voor het gommetje kiezen");
  EXPECT_EQ(studio.picGommen.BackColor, White);
  EXPECT_EQ(studio.Line3.BorderColor, White);
  EXPECT_EQ(studio.Shape1.FillColor, Black);
  EXPECT_EQ(sheet.ForeColor, White);
}

TEST_F(Eraser, ItsSliderSetsThePenAndTheSample) {
  blacken();
  click(studio.cmdGommen);
  slide(studio.Slider3, 4);
  EXPECT_EQ(studio.Line3.BorderWidth, 4);
  drag(sheet, 100, 100, 200, 100);
  int rows = 0;
  for (float y = 80; y < 120; ++y) rows += sheet.Point({150, y}) == White ? 1 : 0;
  EXPECT_EQ(rows, 4);
}

TEST_F(Eraser, PaintsOverAPictureAndDoesNotUncoverIt) {
  blacken();
  drag(sheet, 310, 310, 320, 320);
  click(studio.cmdUndo);  // the black box is an image under the drawing now
  click(studio.cmdGom);
  drag(sheet, 100, 100, 200, 100);
  EXPECT_EQ(sheet.Point({150, 100}), White);
  EXPECT_EQ(sheet.Point({150, 110}), Black);
}

TEST_F(Eraser, ALineAfterItIsBlackAndThin) {
  click(studio.cmdGom);
  click(studio.cmdLijn);
  raster::Bitmap should = canvas();
  oracle::line({should}, thinPen(Black), 50, 50, 120, 90);
  drag(sheet, 50, 50, 120, 90);
  EXPECT_TRUE(shows(sheet, should));
}

TEST_F(Eraser, ThePencilAfterItIsBlackAndThin) {
  click(studio.cmdGommen);
  click(studio.cmdTekenen);
  EXPECT_FALSE(studio.fraGommen.Visible);
  drag(sheet, 50, 50, 90, 50);
  EXPECT_EQ(sheet.Point({70, 50}), Black);
  EXPECT_EQ(sheet.Point({70, 51}), White);
}

TEST_F(Eraser, ToolsThatKeepThePanelTakeItsPenAlong) {
  click(studio.cmdGommen);
  slide(studio.Slider3, 6);
  for (CommandButton* button :
       {&studio.cmdOpvullen, &studio.cmdDrop, &studio.cmdTekst, &studio.cmdArt}) {
    click(*button);
    EXPECT_TRUE(studio.fraGommen.Visible);
    EXPECT_EQ(sheet.DrawWidth, 6);
    EXPECT_EQ(sheet.ForeColor, White);
  }
}

TEST_F(Eraser, BeadsAndStampsDoNotTakeItsColour) {
  click(studio.cmdGom);
  EXPECT_EQ(studio.Shape1.FillColor, Black);
  studio.picBorstel6.Click();
  press(sheet, 100, 100);
  release(sheet, 100, 100);
  EXPECT_EQ(sheet.Point({100, 100}), Black);
}
