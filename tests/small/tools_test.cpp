// The small studio's tools: what each button sets, and what the pointer then leaves on the sheet.
#include <cmath>

#include "effects/frmZoom.h"
#include "small/stage.h"

using namespace surface;

class SmallTools : public SmallStudioStage {};

TEST_F(SmallTools, TheStudioStartsWithABlackThinPencilOnAnEmptySheet) {
  EXPECT_EQ(studio.Caption, "KRAS PRET - TEKENEN KLEIN");
  EXPECT_EQ(studio.lblModus.Caption, "KRAS PRET !!!");
  EXPECT_EQ(sheet.MousePointer, PointerCustom);
  EXPECT_EQ(sheet.MouseIcon, "curPen");
  EXPECT_EQ(studio.Slider1.Value, 1);
  EXPECT_EQ(sheet.DrawWidth, 1);
  EXPECT_EQ(studio.Line2.BorderWidth, 1);
  EXPECT_EQ(studio.Line2.BorderColor, Black);
  EXPECT_EQ(studio.Shape1.FillColor, Black);
  EXPECT_EQ(sheet.ForeColor, Black);
  EXPECT_EQ(sheet.FillColor, White);
  EXPECT_TRUE(studio.cmdUndo.Enabled);
  EXPECT_FALSE(studio.cmdKleurplaat.Visible);
  EXPECT_FALSE(studio.cmdKleurplaat.Enabled);
  EXPECT_EQ(sheet.innerPixels().width(), 617);
  EXPECT_EQ(sheet.innerPixels().height(), 537);
  EXPECT_EQ(painted(), 0);
}

TEST_F(SmallTools, EachToolHasItsMessageItsPointerAndItsUndo) {
  struct Row {
    CommandButton& button;
    const char* message;
    int pointer;
    const char* icon;
    bool undo;
  };
  const Row rows[] = {
      {studio.cmdLijn, "RECHTE LIJNEN tekenen", PointerCustom, "curPen", true},
      {studio.cmdRechthoek, "een VIERKANT of RECHTHOEK tekenen", PointerCross, "", true},
      {studio.cmdOpvullen, "VLAKKEN OPVULLEN met kleuren", PointerCustom, "curVullen", false},
      {studio.cmdSpuitbus, "het SPUITBUSJE gebruiken", PointerCustom, "curBrush", true},
      {studio.cmdEllips, "een CIRKEL of ELLIPS tekenen", PointerCross, "", true},
      {studio.cmdTekenen, "WILLEKEURIGE LIJNEN tekenen", PointerCustom, "curPen", true}};
  for (const Row& row : rows) {
    studio.cmdUndo.Enabled = !row.undo;
    click(row.button);
    EXPECT_EQ(studio.lblModus.Caption, row.message);
    EXPECT_EQ(sheet.MousePointer, row.pointer) << row.message;
    if (row.pointer == PointerCustom) {
      EXPECT_EQ(sheet.MouseIcon, row.icon) << row.message;
    }
    EXPECT_EQ(studio.cmdUndo.Enabled, row.undo) << row.message;
  }
}

TEST_F(SmallTools, ThePencilDrawsFromPointToPoint) {
  drag(sheet, 100, 100, 140, 100);
  EXPECT_EQ(painted(), 41);
  EXPECT_EQ(at(100, 100), Black);
  EXPECT_EQ(at(140, 100), Black);
}

TEST_F(SmallTools, ThePencilsRightButtonLeavesADotButItsDragDrawsNothing) {
  drag(sheet, 100, 100, 140, 100, 2);
  EXPECT_EQ(painted(), 1);
  EXPECT_EQ(at(100, 100), Black);
}

TEST_F(SmallTools, ThePencilForgetsTheColourAndShowsOneButKeepsItsThickness) {
  pickRed();
  slide(8);
  click(studio.cmdTekenen);
  EXPECT_EQ(studio.Shape1.FillColor, Black);
  EXPECT_EQ(sheet.ForeColor, Black);
  EXPECT_EQ(studio.Slider1.Value, 1);
  EXPECT_EQ(studio.Line2.BorderWidth, 1);
  EXPECT_EQ(studio.Line2.BorderColor, Black);
  EXPECT_EQ(sheet.DrawWidth, 8);
}

TEST_F(SmallTools, OtherToolsKeepColourAndThickness) {
  const Color red = pickRed();
  slide(8);
  for (CommandButton* button :
       {&studio.cmdLijn, &studio.cmdRechthoek, &studio.cmdOpvullen, &studio.cmdEllips}) {
    click(*button);
    EXPECT_EQ(sheet.ForeColor, red);
    EXPECT_EQ(studio.Shape1.FillColor, red);
    EXPECT_EQ(sheet.DrawWidth, 8);
    EXPECT_EQ(studio.Slider1.Value, 8);
  }
}

TEST_F(SmallTools, ALineComesAtTheRelease) {
  click(studio.cmdLijn);
  press(sheet, 50, 60);
  move(sheet, 80, 60, 1);
  EXPECT_EQ(painted(), 0);
  release(sheet, 90, 60);
  EXPECT_EQ(painted(), 40) << "a thin line leaves out its last point";
  EXPECT_EQ(at(50, 60), Black);
}

TEST_F(SmallTools, ALineReleasedAtItsPressIsOnePoint) {
  click(studio.cmdLijn);
  press(sheet, 50, 60);
  release(sheet, 50, 60);
  EXPECT_EQ(painted(), 1);
  EXPECT_EQ(at(50, 60), Black);
}

TEST_F(SmallTools, ALineFromTheTopRowOrTheLeftColumnIsNotDrawn) {
  click(studio.cmdLijn);
  drag(sheet, 50, 0, 90, 40);
  drag(sheet, 0, 50, 40, 90);
  EXPECT_EQ(painted(), 0);
  click(studio.cmdRechthoek);
  drag(sheet, 50, 0, 90, 40);
  drag(sheet, 0, 50, 40, 90);
  EXPECT_EQ(painted(), 0);
}

TEST_F(SmallTools, ARectangleIsAnOutlineWithBothCorners) {
  click(studio.cmdRechthoek);
  drag(sheet, 20, 30, 60, 50);
  EXPECT_EQ(painted(), 2 * 41 + 2 * 19);
  EXPECT_EQ(at(20, 30), Black);
  EXPECT_EQ(at(60, 50), Black);
  EXPECT_EQ(at(40, 40), White);
}

TEST_F(SmallTools, TheFirstDragShowsASampleThatStaysAndIsNoPartOfThePicture) {
  click(studio.cmdLijn);
  slide(3);
  press(sheet, 300, 300);
  EXPECT_FALSE(studio.Line1.Visible);
  move(sheet, 310, 300, 1);
  EXPECT_TRUE(studio.Line1.Visible);
  EXPECT_EQ(studio.Line1.BorderWidth, 3);
  EXPECT_EQ(studio.Line1.X1, 48);
  EXPECT_EQ(studio.Line1.Y2, 48);
  release(sheet, 310, 300);
  EXPECT_TRUE(studio.Line1.Visible);
  EXPECT_EQ(at(60, 30), White) << "the sample is above the picture, not in it";
  EXPECT_EQ(shown(sheet).pixelColor(72, 36), QColor(Qt::black));

  click(studio.cmdRechthoek);
  drag(sheet, 300, 300, 320, 320);
  EXPECT_TRUE(studio.Shape2.Visible);
  EXPECT_EQ(studio.Shape2.BorderColor, sheet.ForeColor.get());
}

TEST_F(SmallTools, AnEllipseGrowsRoundItsPressAndIsDrawnAtTheRelease) {
  click(studio.cmdEllips);
  press(sheet, 200, 200);
  EXPECT_TRUE(studio.ShpOval.Visible);
  move(sheet, 240, 220, 1);
  EXPECT_EQ(studio.ShpOval.Left, 160);
  EXPECT_EQ(studio.ShpOval.Top, 180);
  EXPECT_EQ(studio.ShpOval.Width, 95);
  EXPECT_EQ(studio.ShpOval.Height, 55);
  EXPECT_EQ(painted(), 0);
  release(sheet, 240, 220);
  EXPECT_FALSE(studio.ShpOval.Visible);
  // Half of 95 less a half is 47 to each side of (207, 207).
  EXPECT_EQ(at(207 - 47, 207), Black);
  EXPECT_EQ(at(207 + 47, 207), Black);
  EXPECT_EQ(at(207, 207), White);
}

TEST_F(SmallTools, AClickWithTheEllipseIsACircleOfSeven) {
  click(studio.cmdEllips);
  press(sheet, 100, 100);
  release(sheet, 100, 100);
  EXPECT_EQ(at(107 - 7, 107), Black);
  EXPECT_EQ(at(107 + 7, 107), Black);
  EXPECT_EQ(at(107, 107 - 7), Black);
  EXPECT_EQ(at(107, 107), White);
}

TEST_F(SmallTools, ARightClickWithTheEllipseDrawsTheSizeThatTheOutlineHad) {
  click(studio.cmdEllips);
  sheet.MouseDown({2, 0, 100, 100});
  EXPECT_FALSE(studio.ShpOval.Visible);
  sheet.MouseUp({2, 0, 100, 100});
  // 25 by 17 pixels at the start: 12 to each side.
  EXPECT_EQ(at(107 - 12, 107), Black);
  EXPECT_EQ(at(107 + 12, 107), Black);
}

TEST_F(SmallTools, AFillReplacesTheWholeArea) {
  click(studio.cmdRechthoek);
  drag(sheet, 20, 30, 60, 50);
  click(studio.cmdOpvullen);
  const Color red = pickRed();
  click(sheet);  // outside the rectangle
  EXPECT_EQ(at(0, 0), red);
  EXPECT_EQ(at(40, 40), White);
  EXPECT_EQ(sheet.FillColor, red);
  EXPECT_EQ(sheet.FillStyle, 1);
}

TEST_F(SmallTools, AFillOnItsOwnColourChangesNothing) {
  click(studio.cmdOpvullen);
  pickRed();
  click(sheet);
  const auto before = sheet.Image();
  click(sheet);
  EXPECT_TRUE(samePicture(*sheet.Image().bitmap(), *before.bitmap()));
}

TEST_F(SmallTools, TheSprayCanSpraysOnMovesOnlyWithinItsSquare) {
  const Color red = pickRed();
  slide(6);
  click(studio.cmdSpuitbus);
  EXPECT_EQ(sheet.DrawWidth, 1);
  EXPECT_EQ(studio.Slider1.Value, 1);
  EXPECT_EQ(studio.Line2.BorderWidth, 1);
  sheet.MouseDown({1, 0, 100, 100});
  EXPECT_EQ(painted(), 0);
  sheet.MouseMove({1, 0, 100, 100});
  const int dots = painted();
  EXPECT_GT(dots, 10);
  EXPECT_LE(dots, 26);
  for (int y = 0; y < 537; ++y)
    for (int x = 0; x < 617; ++x) {
      if (at(x, y) == White) continue;
      EXPECT_EQ(at(x, y), red);
      EXPECT_TRUE(x >= 93 && x <= 106 && y >= 93 && y <= 106) << x << ", " << y;
    }
  sheet.MouseMove({2, 0, 300, 300});
  EXPECT_EQ(painted(), dots) << "only the left button sprays";
}

TEST_F(SmallTools, EveryMoveOfTheSprayCanIsTwentySixDots) {
  const Color red = pickRed();
  click(studio.cmdSpuitbus);
  const auto spray = [&](int x, int y) {
    for (int i = 0; i < 26; ++i) {
      const float dx = static_cast<float>(std::floor(Rnd() * 14 - 7));
      const float dy = static_cast<float>(std::floor(Rnd() * 14 - 7));
      sheet.PSet({static_cast<float>(x) + dx, static_cast<float>(y) + dy}, red);
    }
  };
  seedRandom(5);
  drag(sheet, 100, 100, 140, 120);
  const Picture is = sheet.Image();
  click(studio.cmdClear);
  seedRandom(5);
  spray(120, 110);
  spray(140, 120);
  EXPECT_TRUE(samePicture(*sheet.bitmap(), *is.bitmap()));
}

TEST_F(SmallTools, LinesRectanglesAndFillsTakeAnyButton) {
  for (const int button : {2, 4}) {
    click(studio.cmdClear);
    click(studio.cmdLijn);
    drag(sheet, 50, 60, 90, 60, button);
    EXPECT_EQ(painted(), 40);
    click(studio.cmdRechthoek);
    drag(sheet, 20, 130, 60, 150, button);
    EXPECT_EQ(at(60, 150), Black);
    click(studio.cmdOpvullen);
    const Color red = pickRed();
    press(sheet, 40, 140, button);
    release(sheet, 40, 140, button);
    EXPECT_EQ(at(40, 140), red);
    EXPECT_EQ(at(10, 10), White);
  }
}

TEST_F(SmallTools, APressOnTheSheetTakesTheMagnifierAwayAndLoadsNone) {
  the<frmZoom>().Show();
  studio.Show();
  press(sheet, 100, 100);
  EXPECT_FALSE(isLoaded<frmZoom>());
  release(sheet, 100, 100);
  drag(sheet, 100, 200, 140, 200);
  EXPECT_FALSE(isLoaded<frmZoom>());
}

TEST_F(SmallTools, TheSliderSetsPenAndSample) {
  const Color red = pickRed();
  slide(12);
  EXPECT_EQ(sheet.DrawWidth, 12);
  EXPECT_EQ(studio.Line2.BorderWidth, 12);
  EXPECT_EQ(studio.Line2.BorderColor, red);
  EXPECT_EQ(studio.lblModus.Caption, "de DIKTE van de LIJNEN veranderen");
}

TEST_F(SmallTools, ThePaletteHasTwentyFiveColours) {
  std::set<Color> colours;
  for (int row = 0; row < 5; ++row)
    for (int column = 0; column < 5; ++column) colours.insert(pick(row, column));
  EXPECT_EQ(colours.size(), 25u);
  EXPECT_EQ(colours.count(NoColor), 0u);
}

TEST_F(SmallTools, ThePenTakesTheColourOfTheRelease) {
  press(studio.picPalet, 16, 33);
  const Color first = studio.Shape1.FillColor;
  EXPECT_EQ(sheet.ForeColor, Black);
  EXPECT_EQ(studio.lblModus.Caption, "een andere KLEUR kiezen");
  move(studio.picPalet, 49, 33, 1);
  const Color second = studio.Shape1.FillColor;
  EXPECT_NE(first, second);
  EXPECT_EQ(studio.Line2.BorderColor, first);
  release(studio.picPalet, 49, 33);
  EXPECT_EQ(sheet.ForeColor, second);
  move(studio.picPalet, 16, 33);
  EXPECT_EQ(studio.Shape1.FillColor, second) << "without a press nothing follows";
}

TEST_F(SmallTools, AReleaseOffThePaletteKeepsThePensColour) {
  const Color red = pickRed();
  press(studio.picPalet, 49, 99);
  const Color blue = studio.Shape1.FillColor;
  move(studio.picPalet, 49, 300, 1);
  EXPECT_EQ(studio.Shape1.FillColor, blue);
  release(studio.picPalet, 49, 300);
  EXPECT_EQ(sheet.ForeColor, red);
  EXPECT_EQ(studio.Shape1.FillColor, blue);
}

TEST_F(SmallTools, TheEraserIsWhiteFromTheStartAndKeepsThePensThickness) {
  slide(9);
  drag(sheet, 100, 100, 200, 100);
  ASSERT_GT(painted(), 0);
  click(studio.cmdGom);
  EXPECT_EQ(studio.lblModus.Caption, "FOUTJES WEG GOMMEN");
  EXPECT_EQ(sheet.MouseIcon, "curGom");
  EXPECT_EQ(studio.Slider1.Value, 5);
  EXPECT_EQ(sheet.DrawWidth, 9);
  EXPECT_EQ(studio.Shape1.FillColor, White);
  EXPECT_EQ(studio.Line2.BorderColor, White);
  drag(sheet, 100, 100, 200, 100);
  EXPECT_EQ(painted(), 0);
}

TEST_F(SmallTools, TheEraserHasTheColourOfTheLastFill) {
  click(studio.cmdOpvullen);
  const Color red = pickRed();
  click(sheet);
  pickBlue();
  click(studio.cmdGom);
  EXPECT_EQ(studio.Shape1.FillColor, red);
  EXPECT_EQ(sheet.ForeColor, red);
  EXPECT_TRUE(studio.cmdUndo.Enabled) << "a stroke of the eraser can be undone, also after a fill";
}

TEST_F(SmallTools, UndoOfAStrokeLeavesItsFirstDotAndSwitchesItselfOff) {
  drag(sheet, 100, 100, 140, 100);
  click(studio.cmdUndo);
  EXPECT_EQ(studio.lblModus.Caption, "ONGEDAAN MAKEN van de LAATSTE bewerking");
  EXPECT_EQ(painted(), 1);
  EXPECT_EQ(at(100, 100), Black);
  EXPECT_FALSE(studio.cmdUndo.Enabled);
}

TEST_F(SmallTools, ANewStrokeLeavesUndoOffUntilAToolIsChosen) {
  drag(sheet, 100, 100, 140, 100);
  click(studio.cmdUndo);
  drag(sheet, 100, 200, 140, 200);
  EXPECT_FALSE(studio.cmdUndo.Enabled);
  click(studio.cmdLijn);
  EXPECT_TRUE(studio.cmdUndo.Enabled);
}

TEST_F(SmallTools, UndoOfALineTakesAllOfIt) {
  click(studio.cmdLijn);
  drag(sheet, 100, 100, 140, 100);
  click(studio.cmdUndo);
  EXPECT_EQ(painted(), 0);
}

TEST_F(SmallTools, AFillIsInTheSnapshotSoUndoBringsItBack) {
  click(studio.cmdOpvullen);
  const Color red = pickRed();
  click(sheet);
  EXPECT_FALSE(studio.cmdUndo.Enabled);
  click(studio.cmdTekenen);
  click(studio.cmdUndo);
  EXPECT_EQ(at(10, 10), red);
}

TEST_F(SmallTools, WipingStartsAnewAndCannotBeUndone) {
  slide(7);
  click(studio.cmdEllips);
  pickRed();
  drag(sheet, 100, 100, 150, 150);
  click(studio.cmdClear);
  EXPECT_EQ(studio.lblModus.Caption, "ALLES WISSEN voor een NIEUWE TEKENING");
  EXPECT_EQ(painted(), 0);
  EXPECT_EQ(sheet.ForeColor, Black);
  EXPECT_EQ(studio.Shape1.FillColor, Black);
  EXPECT_EQ(sheet.DrawWidth, 1);
  EXPECT_EQ(studio.Slider1.Value, 1);
  EXPECT_EQ(sheet.MouseIcon, "curPen");
  drag(sheet, 10, 10, 20, 10);
  EXPECT_EQ(painted(), 11) << "the pencil is the tool again";
  click(studio.cmdClear);
  click(studio.cmdUndo);
  EXPECT_EQ(painted(), 0);
}

TEST_F(SmallTools, WipingKeepsTheStateOfUndo) {
  click(studio.cmdOpvullen);
  ASSERT_FALSE(studio.cmdUndo.Enabled);
  click(studio.cmdClear);
  EXPECT_FALSE(studio.cmdUndo.Enabled);
}

TEST_F(SmallTools, ADrawingIsNotToBeLost) {
  EXPECT_TRUE(formsWithDrawing().empty());
  drag(sheet, 100, 100, 140, 100);
  ASSERT_EQ(formsWithDrawing().size(), 1u);
  EXPECT_EQ(formsWithDrawing()[0], &studio);
  answerMessage(No);
  studio.LogOut();
  EXPECT_EQ(asked()[0].text, "Wil je de huidige tekening opslaan ?");
}

TEST_F(SmallTools, APressWithTheLastPixelsOutsideDrawsWhatIsInside) {
  drag(sheet, 610, 530, 640, 560);
  EXPECT_EQ(at(616, 536), Black);
}
