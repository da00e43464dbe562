// One step back and forth: what the two snapshots hold, and when the buttons are on.
#include "studio/modTekenen.h"
#include "studio/studio.h"

using namespace surface;

class Undo : public Studio {
 protected:
  void stroke(int x, int y) { drag(sheet, x, y, x + 40, y + 10); }
};

TEST_F(Undo, StartsWithTheEmptySheetToGoBackToAndNothingToRedo) {
  EXPECT_TRUE(studio.cmdUndo.Enabled);
  EXPECT_FALSE(studio.cmdRedo.Enabled);
  ASSERT_FALSE(studio.picUndo.Picture->empty());
  EXPECT_TRUE(same(*studio.picUndo.Picture->bitmap(), blank()));
  click(studio.cmdUndo);
  EXPECT_TRUE(shows(sheet, blank()));
  EXPECT_FALSE(studio.cmdUndo.Enabled);
  EXPECT_TRUE(studio.cmdRedo.Enabled);
}

TEST_F(Undo, BothTellWhatTheyDo) {
  click(studio.cmdUndo);
  EXPECT_EQ(studio.lblModus.Caption, "de LAATSTE handeling (lijn, kleur, ...) ONGEDAAN maken");
  click(studio.cmdRedo);
  EXPECT_EQ(studio.lblModus.Caption, "ONGEDAAN maken HERSTELLEN (= lijn, kleur, ... terug zetten)");
}

TEST_F(Undo, TakesAShapeBackAndRedoBringsItAgain) {
  for (CommandButton* tool :
       {&studio.cmdLijn, &studio.cmdRechthoek, &studio.cmdRechthoekgevuld, &studio.cmdCirkel,
        &studio.cmdCirkelGevuld, &studio.cmdEllips, &studio.cmdEllipsGevuld}) {
    SCOPED_TRACE(tool->ToolTipText.get());
    click(*tool);
    const raster::Bitmap before = canvas();
    drag(sheet, 200, 200, 240, 230);
    const raster::Bitmap after = canvas();
    ASSERT_FALSE(same(before, after));
    click(studio.cmdUndo);
    EXPECT_TRUE(shows(sheet, before));
    click(studio.cmdRedo);
    EXPECT_TRUE(shows(sheet, after));
    click(studio.cmdUndo);
    sheet.Picture = LoadPicture();
  }
}

TEST_F(Undo, TogglesBetweenTwoImagesForAsLongAsNoPressLandsOnTheSheet) {
  stroke(50, 50);
  const raster::Bitmap after = canvas();
  click(studio.cmdUndo);
  const raster::Bitmap before = canvas();
  ASSERT_FALSE(same(before, after));
  for (int i = 0; i < 4; ++i) {
    EXPECT_FALSE(studio.cmdUndo.Enabled);
    EXPECT_TRUE(studio.cmdRedo.Enabled);
    click(studio.cmdRedo);
    EXPECT_TRUE(shows(sheet, after));
    EXPECT_TRUE(studio.cmdUndo.Enabled);
    EXPECT_FALSE(studio.cmdRedo.Enabled);
    click(studio.cmdUndo);
    EXPECT_TRUE(shows(sheet, before));
  }
}

TEST_F(Undo, OnlyTheLastStepCanBeTakenBack) {
  stroke(50, 50);
  stroke(50, 150);
  click(studio.cmdUndo);
  EXPECT_EQ(sheet.Point({70, 55}), Black) << "the first stroke stays";
  EXPECT_EQ(sheet.Point({70, 155}), White);
  EXPECT_EQ(sheet.Point({50, 150}), Black) << "the dot of the press stays";
}

TEST_F(Undo, OfAFreehandStrokeLeavesItsFirstDot) {
  raster::Bitmap dot = canvas();
  stroke(50, 50);
  oracle::dot({dot}, thinPen(Black), 50, 50);
  click(studio.cmdUndo);
  EXPECT_TRUE(shows(sheet, dot));
}

TEST_F(Undo, RedoAfterNewStrokeRestoresThePressState) {
  stroke(50, 50);
  click(studio.cmdUndo);
  press(sheet, 200, 200);
  const raster::Bitmap atPress = canvas();
  move(sheet, 260, 240, 1);
  release(sheet, 260, 240);
  EXPECT_TRUE(studio.cmdRedo.Enabled);
  ASSERT_FALSE(shows(sheet, atPress));
  click(studio.cmdRedo);
  EXPECT_TRUE(shows(sheet, atPress));
}

TEST_F(Undo, APressOfAnyButtonTakesTheSnapshots) {
  stroke(50, 50);
  press(sheet, 300, 300, 2);
  release(sheet, 300, 300, 2);
  const raster::Bitmap atPress = canvas();
  for (const PictureBox* store : {&studio.picUndo, &studio.picRedo}) {
    ASSERT_FALSE(store->Picture->empty());
    EXPECT_TRUE(same(*store->Picture->bitmap(), atPress));
  }
}

TEST_F(Undo, AfterAFillItComesBackWithThePencilAndGivesTheSheetWithTheFill) {
  click(studio.cmdOpvullen);
  press(sheet, 100, 100);
  release(sheet, 100, 100);
  EXPECT_FALSE(studio.cmdUndo.Enabled);
  const raster::Bitmap filled = canvas();
  ASSERT_EQ(sheet.Point({100, 100}), Black);
  click(studio.cmdTekenen);
  EXPECT_TRUE(studio.cmdUndo.Enabled);
  click(studio.cmdUndo);
  EXPECT_TRUE(shows(sheet, filled));
}

TEST_F(Undo, APickedColourIsNotPartOfIt) {
  click(studio.cmdTekst);
  const Color color = pickColor(60);
  sheet.DrawWidth = 5;
  click(studio.cmdUndo);
  click(studio.cmdRedo);
  EXPECT_EQ(sheet.ForeColor, color);
  EXPECT_EQ(studio.Shape1.FillColor, color);
  EXPECT_EQ(sheet.DrawWidth, 5);
}

TEST_F(Undo, PutsTheImageUnderTheDrawingSoThatClsShowsItAgain) {
  stroke(50, 50);
  click(studio.cmdUndo);
  const raster::Bitmap restored = canvas();
  stroke(100, 100);
  sheet.Cls();
  EXPECT_TRUE(shows(sheet, restored));
}

TEST_F(Undo, IsOnTheScreenAtOnce) {
  click(studio.cmdRechthoekgevuld);
  drag(sheet, 100, 100, 200, 200);
  EXPECT_EQ(shown(sheet).pixel(150, 150), toPixel(Black));
  click(studio.cmdUndo);
  EXPECT_EQ(shown(sheet).pixel(150, 150), toPixel(White));
  click(studio.cmdRedo);
  EXPECT_EQ(shown(sheet).pixel(150, 150), toPixel(Black));
}

TEST_F(Undo, OnALargerSheetBringsAnImageOfTheOldSizeIntoTheUpperLeftCorner) {
  sheet.Width = 10500;
  sheet.Height = 9000;
  click(studio.cmdRechthoekgevuld);
  drag(sheet, 600, 500, 660, 560);
  const raster::Bitmap drawn = canvas();
  press(sheet, 1, 1);
  release(sheet, 1, 1);
  click(studio.cmdUndo);
  raster::Bitmap should(700, 600, toPixel(White));
  raster::blit(should, 0, 0, 617, 537, drawn, 0, 0);
  EXPECT_TRUE(shows(sheet, should));
  EXPECT_EQ(sheet.Width.get(), 10500);
}

TEST_F(Undo, AfterTheSheetHasGrownIsWhiteWhereTheOldImageEnds) {
  shrinkSheet(200, 150);
  drag(sheet, 20, 20, 60, 20);
  shrinkSheet(400, 300);
  click(studio.cmdUndo);
  EXPECT_EQ(sheet.Point({199, 149}), White);
  EXPECT_EQ(sheet.Point({200, 150}), White);
  EXPECT_EQ(sheet.Point({399, 299}), White);
}

TEST_F(Undo, AfterAFillTheEraserCanBeTakenBack) {
  for (CommandButton* pencilAgain :
       {&studio.cmdGom, &studio.cmdGommen, &studio.cmdLijnen, &studio.cmdVulling,
        &studio.cmdBorstels, &studio.cmdGradient, &studio.cmdLineaal, &studio.cmdEffecten}) {
    click(studio.cmdOpvullen);
    ASSERT_FALSE(studio.cmdUndo.Enabled);
    click(*pencilAgain);
    EXPECT_TRUE(studio.cmdUndo.Enabled) << pencilAgain->ToolTipText.get();
  }
  studio.PrepareEffect();
  EXPECT_FALSE(studio.cmdUndo.Enabled);
}

TEST_F(Undo, TheStoresKeepTheirSizeAndTheSnapshotsTheirs) {
  sheet.Width = 10500;
  sheet.Height = 9000;
  press(sheet, 20, 20);
  release(sheet, 20, 20);
  advance(60'000);  // no timer brings the stores to the sheet's size
  for (const PictureBox* store : {&studio.picUndo, &studio.picRedo}) {
    EXPECT_EQ(store->Width.get(), 9255);
    EXPECT_EQ(store->Height.get(), 8055);
    EXPECT_EQ(store->Picture->width(), 700);
    EXPECT_EQ(store->Picture->height(), 600);
    EXPECT_EQ(store->Image().width(), 617);
    EXPECT_EQ(store->Image().height(), 537);
  }
}

TEST_F(Undo, TheStoresAreHidden) {
  for (const PictureBox* store : {&studio.picUndo, &studio.picRedo}) {
    EXPECT_FALSE(store->Visible);
    EXPECT_FALSE(store->AutoRedraw);
    EXPECT_EQ(store->ScaleMode(), ScaleTwips);
  }
  for (int i = 0; i < 5; ++i) {
    EXPECT_FALSE(studio.UndoPic(i).Visible);
    EXPECT_TRUE(studio.UndoPic(i).AutoRedraw);
    EXPECT_EQ(studio.UndoPic(i).Width.get(), 255);
    EXPECT_EQ(studio.UndoPic(i).Height.get(), 255);
  }
}

// Only the head of the chain holds the whole sheet: further on, what a surface of 17 pixels shows.
TEST_F(Undo, TheChainOfEffectsMovesOnByOne) {
  const auto mark = [&](Color color) {
    sheet.Line({0, 0}, {20, 20}, color, BF);
    UndoShift();
  };
  for (const Color color : {0x000001, 0x000002, 0x000003}) mark(color);
  EXPECT_EQ(studio.UndoPic(0).Picture->width(), 617);
  EXPECT_EQ(studio.UndoPic(0).Picture->height(), 537);
  EXPECT_EQ(studio.UndoPic(1).Picture->width(), 17);
  EXPECT_EQ(studio.UndoPic(0).Point({3, 3}), 3);
  EXPECT_EQ(studio.UndoPic(1).Point({3, 3}), 2);
  EXPECT_EQ(studio.UndoPic(2).Point({3, 3}), 1);
  for (const Color color : {4, 5, 6}) mark(color);
  for (int i = 0; i < 5; ++i) EXPECT_EQ(studio.UndoPic(i).Point({3, 3}), 6 - i) << i;
}

TEST_F(Undo, AnEffectClosesThePanelsTurnsUndoOffAndMovesTheChain) {
  click(studio.cmdEffecten);
  pickColor(60);
  stroke(50, 50);
  const raster::Bitmap drawn = canvas();
  studio.PrepareEffect();
  EXPECT_FALSE(studio.fraEffecten.Visible);
  EXPECT_EQ(sheet.ForeColor, Black);
  EXPECT_FALSE(studio.cmdUndo.Enabled);
  EXPECT_TRUE(shows(sheet, drawn));
  ASSERT_FALSE(studio.UndoPic(0).Picture->empty());
  EXPECT_TRUE(same(*studio.UndoPic(0).Picture->bitmap(), drawn));
  // A tool brings it back on, with the sheet of the last press.
  click(studio.cmdLijn);
  EXPECT_TRUE(studio.cmdUndo.Enabled);
}
