// The dialog that turns the drawing, by real clicks.
#include "effects/effect_stage.h"
#include "effects/frmRoteren.h"
#include "effects/rotation.h"

using namespace surface;
using effects_test::plain;
using raster::Bitmap;

namespace {

float radians(int degrees) {
  return static_cast<float>(static_cast<float>(degrees) * 3.14159265359 / 180);
}

}  // namespace

class Turning : public EffectStage {
 protected:
  frmRoteren& open() {
    click(studio.cmdRoteren);
    frmRoteren* dialog = nullptr;
    for (const auto& form : FormRegistry::instance().forms())
      if (auto* found = dynamic_cast<frmRoteren*>(form.get())) dialog = found;
    advance(0);
    return *dialog;
  }
  static int dialogs() {
    int count = 0;
    for (const auto& form : FormRegistry::instance().forms())
      count += dynamic_cast<frmRoteren*>(form.get()) ? 1 : 0;
    return count;
  }
};

TEST_F(Turning, OpensADialogWithNinetyDegreesAndTakesTheStepAtOnce) {
  const Bitmap before = drawNoise(61, 47);
  click(studio.cmdEffecten);
  auto& dialog = open();
  EXPECT_EQ(dialog.Caption.get(), "DE TEKENING ONDER EEN HOEK DRAAIEN");
  EXPECT_EQ(dialog.cboHoek.ListCount(), 24);
  EXPECT_EQ(dialog.cboHoek.Text(), "90");
  EXPECT_EQ(dialog.cboHoek.List(0), "15");
  EXPECT_EQ(dialog.cboHoek.List(23), "360");
  EXPECT_EQ(studio.lblModus.Caption.get(), "ROTEREN ... GRADEN NAAR LINKS wordt nu toegepast");
  EXPECT_FALSE(studio.cmdUndo.Enabled);
  EXPECT_FALSE(studio.fraEffecten.Visible);
  EXPECT_TRUE(same(*studio.UndoPic(0).Picture->bitmap(), before));
}

TEST_F(Turning, DialogStandsAsTheTableSays) {
  auto& dialog = open();
  expectPlaced({{dialog.picPreview, 1680, 840, 7335, 7095}});
  EXPECT_EQ(dialog.picPreview.ScaleMode(), ScalePixels);
  EXPECT_EQ(dialog.picPreview.BackColor, White);
  EXPECT_EQ(dialog.cmdPreview.Caption.get(), "Vooraf bekijken");
  EXPECT_EQ(dialog.cmdInvoegen.Caption.get(), "INVOEGEN");
  EXPECT_EQ(dialog.cmdSluiten.Caption.get(), "Annuleren");
  EXPECT_EQ(dialog.lblAngle.Caption.get(), "De gewenste hoek is :");
  EXPECT_EQ(dialog.lbl1.Caption.get(),
            "Klik eerst een gewenste hoek aan in de keuzelijst. Daarna klik je op \"Vooraf "
            "bekijken\" (eventueel verander je nog eens) en met \"INVOEGEN\" wordt je tekening "
            "aangepast.");
  for (int i = 0; i < 24; ++i) EXPECT_EQ(dialog.cboHoek.List(i), std::to_string(15 * (i + 1)));
}

TEST_F(Turning, ShowsTheHourglassInItsDialogWhileItTurns) {
  drawNoise(61, 47);
  auto& dialog = open();
  Heard heard(script::widgetOf(dialog.picPreview)->window());
  click(dialog.cmdPreview);
  EXPECT_TRUE(heard.hourglass);
  heard.hourglass = false;
  click(dialog.cmdInvoegen);
  EXPECT_TRUE(heard.hourglass);
  EXPECT_EQ(studio.MousePointer, PointerDefault);
  EXPECT_FALSE(animates());
}

TEST_F(Turning, PreviewsIntoTheDialogAndKeepsTheCornersOfTheOneBefore) {
  const Bitmap before = drawNoise(300, 200);
  auto& dialog = open();
  Bitmap expected = plain(489, 473, White);
  click(dialog.cmdPreview);
  effects::rotateInto(before, expected, radians(90));
  EXPECT_TRUE(shows(dialog.picPreview, expected));
  dialog.cboHoek.picked(2);
  click(dialog.cmdPreview);
  effects::rotateInto(before, expected, radians(45));
  EXPECT_TRUE(shows(dialog.picPreview, expected));
  EXPECT_TRUE(shows(sheet, before));
  EXPECT_EQ(dialog.MousePointer, PointerDefault);
}

TEST_F(Turning, PutsTheTurnedDrawingOnTheSheetAndGoes) {
  const Bitmap before = drawNoise(300, 200);
  auto& dialog = open();
  click(dialog.cmdInvoegen);
  Bitmap expected = plain(300, 200, White);
  effects::rotateInto(before, expected, radians(90));
  EXPECT_TRUE(shows(sheet, expected));
  EXPECT_EQ(dialogs(), 0);
  EXPECT_TRUE(same(*sheet.Picture->bitmap(), before)) << "its Picture is the one before";
}

TEST_F(Turning, ShowsTheFormerResultInTheCornersOfTheNext) {
  const Bitmap before = drawNoise(300, 200);
  Bitmap held = plain(300, 200, White);
  Bitmap now = before;
  for (const int row : {2, 8, 13}) {
    auto& dialog = open();
    dialog.cboHoek.picked(row);
    click(dialog.cmdInvoegen);
    effects::rotateInto(now, held, radians(15 * (row + 1)));
    now = held;
    ASSERT_TRUE(shows(sheet, now)) << row;
  }
}

TEST_F(Turning, ByAFullTurnLeavesAlmostEveryPixelWhereItWas) {
  shrinkSheet(201, 151);
  sheet.Line({20, 20}, {180, 130}, 0x0000FF, BF);
  const Bitmap before = canvas();
  auto& dialog = open();
  dialog.cboHoek.picked(23);
  click(dialog.cmdInvoegen);
  int moved = 0;
  for (int y = 0; y < 151; ++y)
    for (int x = 0; x < 201; ++x) moved += before.at(x, y) != sheet.bitmap()->at(x, y) ? 1 : 0;
  EXPECT_LT(moved, 400) << "only along the edges of the box";
}

TEST_F(Turning, WithoutAChosenAngleOnlyCloses) {
  const Bitmap before = drawNoise(61, 47);
  auto& dialog = open();
  dialog.cboHoek.ListIndex = -1;
  click(dialog.cmdPreview);
  EXPECT_TRUE(shows(dialog.picPreview, plain(489, 473, White)));
  click(dialog.cmdInvoegen);
  EXPECT_TRUE(shows(sheet, before));
  EXPECT_EQ(dialogs(), 0);
  EXPECT_TRUE(same(*studio.UndoPic(0).Picture->bitmap(), before)) << "the step remains";
}

TEST_F(Turning, OnASheetThatHasGrownShowsTheFormerResultInItsUpperLeftPart) {
  const Bitmap first = drawNoise(120, 90);
  click(open().cmdInvoegen);
  Bitmap held = plain(200, 160, White), former = plain(120, 90, White);
  effects::rotateInto(first, former, radians(90));
  raster::blit(held, 0, 0, 120, 90, former, 0, 0);
  const Bitmap second = drawNoise(200, 160);
  auto& dialog = open();
  dialog.cboHoek.picked(2);
  click(dialog.cmdInvoegen);
  effects::rotateInto(second, held, radians(45));
  EXPECT_TRUE(shows(sheet, held));
}

TEST_F(Turning, CancelledChangesNothingButTheStepIsTaken) {
  const Bitmap before = drawNoise(61, 47);
  auto& dialog = open();
  click(dialog.cmdSluiten);
  EXPECT_EQ(dialogs(), 0);
  EXPECT_TRUE(shows(sheet, before));
  EXPECT_FALSE(studio.cmdUndo.Enabled);
  EXPECT_TRUE(same(*studio.UndoPic(0).Picture->bitmap(), before));
}

TEST_F(Turning, LeavesTheStudioUsableAndGoesWithIt) {
  open();
  open();
  EXPECT_EQ(dialogs(), 2);
  drag(sheet, 10, 10, 40, 40);
  EXPECT_NE(sheet.bitmap()->at(10, 10), toPixel(White));
  click(studio.cmdEinde);
  EXPECT_EQ(dialogs(), 0);
}
