// The dialog of the three home-made sliders, by a real pointer.
#include "effects/effect_stage.h"
#include "effects/frmVervangKleur.h"
#include "effects/point_effects.h"
#include "studio/modTekenen.h"
#include "surface/screen.h"

using namespace surface;
using raster::Bitmap;

class ReplacingColours : public EffectStage {
 protected:
  frmVervangKleur& open() {
    click(studio.cmdEffecten);
    click(studio.cmdVervangKleur);
    advance(0);
    return the<frmVervangKleur>();
  }
  // The pixel column at which a slider stands in the middle.
  static constexpr int Middle = 148;
};

TEST_F(ReplacingColours, OpensItsDialogInTheUpperRightCornerAboveAllWindows) {
  drawNoise(20, 20);
  const std::string said = studio.lblModus.Caption;
  click(studio.cmdEffecten);
  const std::string panelSaid = studio.lblModus.Caption;
  click(studio.cmdVervangKleur);
  auto& dialog = the<frmVervangKleur>();
  EXPECT_TRUE(dialog.shown() && dialog.topMost());
  EXPECT_EQ(dialog.Left, Screen::Width() - dialog.Width);
  EXPECT_EQ(dialog.Top, 0);
  EXPECT_EQ(dialog.Caption.get(), "KLEUREN VERVANGEN");
  EXPECT_EQ(studio.lblModus.Caption.get(), panelSaid) << "opening it does nothing else";
  EXPECT_FALSE(animates());
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(dialog.Label4(i).Caption.get(), "0");
    EXPECT_EQ(dialog.Line2[i].X1, 100);
    EXPECT_EQ(dialog.Line2[i].X2, 100);
    EXPECT_EQ(dialog.Picture1(i).ScaleWidth(), 201);
    EXPECT_EQ(dialog.Picture1(i).ScaleHeight(), 50);
  }
}

TEST_F(ReplacingColours, DialogStandsAsTheTableSays) {
  auto& dialog = open();
  const Color colors[] = {0x0000FF, 0x00FF00, 0xFF0000};
  const char* const names[] = {"Rood", "Groen", "Blauw"};
  for (int i = 0; i < 3; ++i) {
    expectPlaced({{dialog.Picture1(i), 120, 960.0f + 480.0f * static_cast<float>(i), 4455, 375}});
    EXPECT_EQ(dialog.Line1[i].BorderColor, colors[i]);
    EXPECT_EQ(dialog.Line1[i].Y1, dialog.Line1[i].Y2) << "the track lies";
    EXPECT_EQ(dialog.Line2[i].BorderColor, colors[i]);
    EXPECT_EQ(dialog.Label3(i).Caption.get(), names[i]);
  }
  EXPECT_EQ(dialog.Label1.Caption.get(), "-100");
  EXPECT_EQ(dialog.Label2.Caption.get(), "+100");
  EXPECT_EQ(dialog.Label5.Caption.get(),
            "Je kan de waarden van de drie basiskleuren verschuiven tussen -100 en +100");
  EXPECT_EQ(dialog.cmdUitvoeren.Caption.get(), "Uitvoeren");
  EXPECT_EQ(dialog.cmdSluiten.Caption.get(), "Annuleren");
  EXPECT_EQ(studio.cmdVervangKleur.ToolTipText.get(), "KLEUREN VERVANGEN");
}

TEST_F(ReplacingColours, MovesASliderByPressDragAndRelease) {
  auto& dialog = open();
  press(dialog.Picture1(1), 0, 12);
  EXPECT_EQ(dialog.Label4(1).Caption.get(), "-100");
  move(dialog.Picture1(1), 200, 12, 1);
  EXPECT_FLOAT_EQ(dialog.Line2[1].X1, 200.0f * 201 / 297);
  EXPECT_FLOAT_EQ(dialog.Line2[1].X2, 200.0f * 201 / 297);
  EXPECT_EQ(dialog.Label4(1).Caption.get(), "35") << "135.35 less 100, rounded down";
  release(dialog.Picture1(1), 100, 12);
  EXPECT_EQ(dialog.Label4(1).Caption.get(), "-33") << "67.67 less 100, rounded down";
  EXPECT_EQ(dialog.Label4(0).Caption.get(), "0");
  EXPECT_EQ(dialog.Label4(2).Caption.get(), "0");
}

TEST_F(ReplacingColours, StopsADragBeyondTheEndsOfTheTrack) {
  auto& dialog = open();
  press(dialog.Picture1(0), 50, 12);
  move(dialog.Picture1(0), 1000, 300, 1);
  EXPECT_EQ(dialog.Label4(0).Caption.get(), "100");
  EXPECT_EQ(dialog.Line2[0].X1, 200);
  move(dialog.Picture1(0), -50, -300, 1);
  EXPECT_EQ(dialog.Label4(0).Caption.get(), "-100");
  EXPECT_EQ(dialog.Line2[0].X1, 0);
  release(dialog.Picture1(0), -50, 12);
}

TEST_F(ReplacingColours, IgnoresTheRightButtonAndAPointerThatPasses) {
  auto& dialog = open();
  drag(dialog.Picture1(0), 10, 12, 250, 12, 2);
  move(dialog.Picture1(0), 50, 12);
  EXPECT_EQ(dialog.Label4(0).Caption.get(), "0");
}

TEST_F(ReplacingColours, FollowsTheLeftButtonAlsoWhileAnotherIsHeldWithIt) {
  auto& dialog = open();
  dialog.Picture1(0).MouseMove({.Button = 1 | 2, .X = 150, .Y = 10});
  EXPECT_EQ(dialog.Label4(0).Caption.get(), "50");
  dialog.Picture1(0).MouseMove({.Button = 2 | 4, .X = 10, .Y = 10});
  EXPECT_EQ(dialog.Label4(0).Caption.get(), "50");
}

TEST_F(ReplacingColours, TakesRedAwayAtTheFarLeftAndDoublesItAtTheFarRight) {
  const Bitmap before = drawNoise(61, 47);
  for (const auto& [column, factor] : {std::pair{-10, 0.0}, {1000, 2.0}}) {
    sheet.Picture = Picture(std::make_shared<Bitmap>(before));
    auto& dialog = open();
    drag(dialog.Picture1(0), 100, 12, column, 12);
    click(dialog.cmdUitvoeren);
    EXPECT_TRUE(shows(sheet, effects::scaled(before, {factor, 1, 1})));
  }
}

TEST_F(ReplacingColours, ScalesEachColourByItsOwnSlider) {
  const Bitmap before = drawNoise(61, 47);
  auto& dialog = open();
  const int columns[] = {33, 151, 280};
  for (int i = 0; i < 3; ++i)
    press(dialog.Picture1(i), columns[i], 5), release(dialog.Picture1(i), columns[i], 5);
  const auto factor = [](int column) {
    return double{static_cast<float>(column * 201.0 / 297)} / 100;
  };
  Heard studioHeard(script::widgetOf(sheet)->window());
  Heard dialogHeard(script::widgetOf(dialog.cmdUitvoeren)->window());
  click(dialog.cmdUitvoeren);
  EXPECT_TRUE(shows(sheet, effects::scaled(before, {factor(33), factor(151), factor(280)})));
  EXPECT_EQ(studioHeard.captions,
            (std::vector<std::string>{banner("KLEUREN VERVANGEN"), "KRAS PRET"}));
  EXPECT_FALSE(studioHeard.hourglass) << "the dialog has it";
  EXPECT_TRUE(dialogHeard.hourglass);
  EXPECT_FALSE(isLoaded<frmVervangKleur>());
  EXPECT_EQ(studio.Caption.get(), "KRAS PRET");
  EXPECT_EQ(studio.lblModus.Caption.get(), status("KLEUREN VERVANGEN"));
  EXPECT_FALSE(studio.cmdUndo.Enabled);
  EXPECT_TRUE(same(*studio.UndoPic(0).Picture->bitmap(), before)) << "the step is taken";
  expectOneMessageAfterFiveSeconds();
}

TEST_F(ReplacingColours, WithAllSlidersInTheMiddleChangesNothingButAnnouncesItAllTheSame) {
  const Bitmap before = drawNoise(61, 47);
  auto& dialog = open();
  // A pixel beside the start is still the middle.
  press(dialog.Picture1(2), Middle, 5);
  release(dialog.Picture1(2), Middle, 5);
  EXPECT_EQ(dialog.Label4(2).Caption.get(), "0");
  click(dialog.cmdUitvoeren);
  EXPECT_TRUE(shows(sheet, before));
  EXPECT_TRUE(studio.UndoPic(0).Picture->empty()) << "no step";
  EXPECT_EQ(studio.Caption.get(), banner("KLEUREN VERVANGEN")) << "the banner stays";
  EXPECT_FALSE(studio.cmdUndo.Enabled);
  EXPECT_FALSE(isLoaded<frmVervangKleur>());
  expectOneMessageAfterFiveSeconds();
}

TEST_F(ReplacingColours, CancelledLeavesNoTrace) {
  const Bitmap before = drawNoise(61, 47);
  auto& dialog = open();
  const bool undo = studio.cmdUndo.Enabled;
  press(dialog.Picture1(0), 3, 5);
  release(dialog.Picture1(0), 3, 5);
  click(dialog.cmdSluiten);
  EXPECT_FALSE(isLoaded<frmVervangKleur>());
  EXPECT_TRUE(shows(sheet, before));
  EXPECT_EQ(studio.cmdUndo.Enabled, undo);
  EXPECT_FALSE(animates());
}

TEST_F(ReplacingColours, LeavesBehindWhereItsWayOverTheSheetEnded) {
  drawNoise(61, 47);
  auto& dialog = open();
  press(dialog.Picture1(0), 3, 5);
  release(dialog.Picture1(0), 3, 5);
  click(dialog.cmdUitvoeren);
  EXPECT_EQ(ScanKolom, 61);
  EXPECT_EQ(ScanRij, 47);
}

TEST_F(ReplacingColours, GoesWithTheStudio) {
  open();
  click(studio.cmdEinde);
  EXPECT_FALSE(isLoaded<frmVervangKleur>());
}
