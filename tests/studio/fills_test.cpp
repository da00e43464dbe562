// Filling, pattern filling and picking a colour: all three act at the press.
#include <QScreen>
#include <QWindow>
#include <random>

#include "studio/studio.h"

using namespace surface;

namespace {

struct Pattern {
  const char* caption;
  raster::BrushStyle style;
};

const Pattern Patterns[] = {{"_________", raster::BrushStyle::Horizontal},
                            {"|||||||||||||||||||||||||||", raster::BrushStyle::Vertical},
                            {R"(\\\\\\\\\\\)", raster::BrushStyle::ForwardDiagonal},
                            {"///////////", raster::BrushStyle::BackwardDiagonal},
                            {"+++++++++", raster::BrushStyle::Cross},
                            {"xxxxxxxxxxx", raster::BrushStyle::DiagonalCross},
                            {"PALETkleur", raster::BrushStyle::Solid}};

}  // namespace

class Fills : public Studio {
 protected:
  // A box of 60 by 40 pixels with its corner at (40, 40), in black.
  void drawBox() {
    click(studio.cmdRechthoek);
    drag(sheet, 40, 40, 100, 80);
  }
  void choosePattern(int index) {
    if (!studio.fraVulling.Visible) click(studio.cmdVulling);
    click(studio.Option5(index));
  }
  void pressAndRelease(int x, int y) {
    press(sheet, x, y);
    release(sheet, x, y);
  }
  // Comes to the point and presses there, as a pointer does.
  void reachAndPress(int x, int y) {
    move(sheet, x, y);
    pressAndRelease(x, y);
  }
};

TEST_F(Fills, ThePanelOffersSevenPatternsAndNoneIsChosen) {
  click(studio.cmdVulling);
  EXPECT_EQ(studio.fraVulling.Caption, "   VULLINGEN  ");
  expectPlaced({{studio.fraVulling, 240, 5160, 1815, 1935}});
  ASSERT_EQ(studio.Option5.count(), 7);
  for (int i = 0; i < 7; ++i) {
    SCOPED_TRACE(i);
    OptionButton& option = studio.Option5(i);
    expectPlaced({{option, 360, 240.f + 240.f * static_cast<float>(i), 1215, 255}});
    EXPECT_EQ(option.Caption, Patterns[i].caption);
    EXPECT_FALSE(option.Value);
    EXPECT_EQ(option.Index, i);
  }
}

TEST_F(Fills, FillsTheConnectedAreaWithThePensColour) {
  drawBox();
  click(studio.cmdOpvullen);
  const Color color = pickColor(80);
  raster::Bitmap should = canvas();
  oracle::floodFill({should}, {raster::BrushStyle::Solid, toPixel(color)}, 60, 60, toPixel(White));
  pressAndRelease(60, 60);
  EXPECT_TRUE(shows(sheet, should));
  EXPECT_EQ(sheet.Point({41, 41}), color);
  EXPECT_EQ(sheet.Point({40, 40}), Black);
  EXPECT_EQ(sheet.Point({39, 60}), White);
}

TEST_F(Fills, LeavesTheBrushTransparentInTheSwatchsColour) {
  click(studio.cmdOpvullen);
  pickColor(80);
  const Color swatch = pickSwatchOnly(20);
  press(sheet, 60, 60);
  EXPECT_EQ(sheet.FillStyle, 1);
  EXPECT_EQ(sheet.FillColor, swatch);
  release(sheet, 60, 60);
}

TEST_F(Fills, AFillThroughAGapFloodsEverythingBeyond) {
  drawBox();
  sheet.PSet({70, 40}, White);
  click(studio.cmdOpvullen);
  const Color color = pickColor(80);
  pressAndRelease(60, 60);
  EXPECT_EQ(sheet.Point({500, 500}), color);
  EXPECT_EQ(sheet.Point({70, 40}), color);
  EXPECT_EQ(sheet.Point({69, 40}), Black);
}

TEST_F(Fills, AFillDoesNotSlipThroughACorner) {
  click(studio.cmdLijn);
  drag(sheet, 100, 10, 10, 100);
  drag(sheet, 10, 100, 100, 190);
  drag(sheet, 100, 190, 190, 100);
  drag(sheet, 190, 100, 100, 10);
  click(studio.cmdOpvullen);
  const Color color = pickColor(80);
  pressAndRelease(100, 100);
  EXPECT_EQ(sheet.Point({100, 100}), color);
  EXPECT_EQ(sheet.Point({300, 300}), White);
}

TEST_F(Fills, AFillWithTheColourThatIsThereChangesNothing) {
  drawBox();
  click(studio.cmdOpvullen);
  pickColor(80);
  pressAndRelease(60, 60);
  const raster::Bitmap filled = canvas();
  pressAndRelease(60, 60);
  EXPECT_TRUE(shows(sheet, filled));
}

TEST_F(Fills, OnlyPixelsOfExactlyTheColourAreFilled) {
  for (float x = 50; x < 90; ++x)
    for (float y = 50; y < 70; ++y)
      sheet.PSet({x, y}, RGB(254, 255, static_cast<int>(x) % 7 == 0 ? 254 : 255));
  click(studio.cmdOpvullen);
  const Color color = pickColor(80);
  raster::Bitmap should = canvas();
  oracle::floodFill({should}, {raster::BrushStyle::Solid, toPixel(color)}, 51, 55,
                    toPixel(RGB(254, 255, 255)));
  pressAndRelease(51, 55);
  EXPECT_TRUE(shows(sheet, should));
  EXPECT_EQ(sheet.Point({56, 55}), RGB(254, 255, 254));
  EXPECT_EQ(sheet.Point({49, 55}), White);
}

TEST_F(Fills, TheEraserMakesTheFillTakeTheBackgroundColour) {
  drawBox();
  click(studio.cmdOpvullen);
  pickColor(80);
  pressAndRelease(60, 60);
  click(studio.cmdGom);
  click(studio.cmdOpvullen);
  pressAndRelease(60, 60);
  EXPECT_EQ(sheet.Point({60, 60}), White);
  EXPECT_EQ(sheet.Point({40, 60}), Black);
}

// The fill goes round the surface's back, so nothing else tells the screen of it.
TEST_F(Fills, AFillIsOnTheScreenAtOnce) {
  click(studio.cmdOpvullen);
  const Color color = pickColor(80);
  press(sheet, 300, 300);
  QWidget* widget = script::widgetOf(sheet);
  ASSERT_NE(widget, nullptr);
  const QPoint at = widget->mapToGlobal(QPoint(200, 200));
  const QImage screen = widget->screen()
                            ->grabWindow(0, at.x(), at.y(), 1, 1)
                            .toImage()
                            .convertToFormat(QImage::Format_RGB32);
  ASSERT_FALSE(screen.isNull());
  EXPECT_EQ(screen.pixel(0, 0), toPixel(color));
  release(sheet, 300, 300);
}

class Hatches : public Fills, public testing::WithParamInterface<int> {};

TEST_P(Hatches, FillWithTheirPattern) {
  const auto index = static_cast<std::size_t>(GetParam());
  drawBox();
  choosePattern(GetParam());
  const Color color = pickColor(10);
  raster::Bitmap should = canvas();
  oracle::floodFill({should}, {Patterns[index].style, toPixel(color)}, 60, 60, toPixel(White));
  reachAndPress(60, 60);
  EXPECT_TRUE(shows(sheet, should));
  EXPECT_FALSE(studio.cmdUndo.Enabled);
  EXPECT_EQ(studio.lblModus.Caption, "kies een lijn om vlakken in je tekening mee op te vullen");
  EXPECT_EQ(sheet.MouseIcon, "curDrop");
  EXPECT_TRUE(studio.fraVulling.Visible);
}

INSTANTIATE_TEST_SUITE_P(Each, Hatches, testing::Range(0, 7));

// Scrawled lines and hatches over hatches: regions of every shape.
TEST_F(Fills, PatternsFillWhatTheLiteralFloodFills) {
  for (std::uint32_t seed = 1; seed <= 6; ++seed) {
    SCOPED_TRACE(seed);
    std::mt19937 hand(seed);
    const auto upTo = [&](int n) { return static_cast<int>(hand() % static_cast<unsigned>(n)); };
    sheet.Cls();
    for (int lines = 0; lines < 12; ++lines)
      sheet.Line({static_cast<float>(upTo(617)), static_cast<float>(upTo(537))},
                 {static_cast<float>(upTo(617)), static_cast<float>(upTo(537))}, Black);
    for (int fills = 0; fills < 12; ++fills) {
      const int pattern = upTo(7), x = upTo(617), y = upTo(537);
      choosePattern(pattern);
      const raster::Pixel ink = toPixel(pickColor(upTo(120)));
      raster::Bitmap should = canvas();
      oracle::floodFill({should}, {Patterns[pattern].style, ink}, x, y, should.at(x, y));
      reachAndPress(x, y);
      ASSERT_TRUE(shows(sheet, should)) << "pattern " << pattern << " at " << x << ", " << y;
    }
  }
}

class HatchDirection : public Fills {
 protected:
  // How many inked pixels have an inked neighbour one step on in the given direction.
  int steps(int index, int dx, int dy) {
    sheet.Cls();
    choosePattern(index);
    reachAndPress(300, 300);
    int found = 0;
    const auto pixels = sheet.bitmap();
    for (int y = 100; y < 200; ++y)
      for (int x = 100; x < 200; ++x)
        if (pixels->at(x, y) != toPixel(White) && pixels->at(x + dx, y + dy) != toPixel(White))
          ++found;
    return found;
  }
};

TEST_F(HatchDirection, IsTheOneThatTheCaptionShows) {
  EXPECT_GT(steps(0, 1, 0), 0);
  EXPECT_EQ(steps(0, 0, 1), 0);
  EXPECT_GT(steps(1, 0, 1), 0);
  EXPECT_EQ(steps(1, 1, 0), 0);
  EXPECT_GT(steps(2, 1, 1), 0);
  EXPECT_EQ(steps(2, 1, -1), 0);
  EXPECT_GT(steps(3, 1, -1), 0);
  EXPECT_EQ(steps(3, 1, 1), 0);
  EXPECT_GT(steps(4, 1, 0), 0);
  EXPECT_GT(steps(4, 0, 1), 0);
  EXPECT_GT(steps(5, 1, 1), 0);
  EXPECT_GT(steps(5, 1, -1), 0);
}

TEST_F(Fills, APatternPaintsThePenInTheSwatchsColour) {
  click(studio.cmdVulling);
  const Color swatch = pickSwatchOnly(30);
  ASSERT_NE(sheet.ForeColor, swatch);
  choosePattern(0);
  EXPECT_EQ(sheet.ForeColor, swatch);
}

TEST_F(Fills, APatternTakesTheColourThatThePointersWayHasSet) {
  choosePattern(0);
  const Color former = pickColor(10);
  move(sheet, 60, 59);
  const Color picked = pickColor(90);
  ASSERT_NE(former, picked);
  sheet.MouseDown({1, 0, 60, 59});  // without a move since: the brush still has the former colour
  EXPECT_EQ(sheet.Point({60, 59}), former);
  sheet.Cls();
  reachAndPress(60, 59);
  EXPECT_EQ(sheet.Point({60, 59}), picked);
}

TEST_F(Fills, APatternStaysInTheBrushUntilThePointerMoves) {
  choosePattern(2);
  move(sheet, 60, 60);
  press(sheet, 60, 60);
  EXPECT_EQ(sheet.FillStyle, 4);
  move(sheet, 61, 60, 1);
  EXPECT_EQ(sheet.FillStyle, 1);
  release(sheet, 61, 60);
}

TEST_F(Fills, APatternOnAHatchedAreaFillsOnlyWhatIsConnectedInTheColourUnderThePointer) {
  drawBox();
  choosePattern(4);
  pickColor(10);
  reachAndPress(60, 60);
  choosePattern(6);
  const Color color = pickColor(90);
  raster::Bitmap should = canvas();
  // Between the lines of a cross hatch: one cell of it.
  oracle::floodFill({should}, {raster::BrushStyle::Solid, toPixel(color)}, 62, 61, toPixel(White));
  reachAndPress(62, 61);
  EXPECT_TRUE(shows(sheet, should));
  EXPECT_EQ(sheet.Point({62, 61}), color);
  EXPECT_EQ(sheet.Point({72, 61}), White);
}

TEST_F(Fills, BetweenTheLinesOfAPatternTheOldColourStays) {
  drawBox();
  click(studio.cmdOpvullen);
  const Color ground = pickColor(80);
  pressAndRelease(60, 60);
  choosePattern(0);
  const Color lines = pickColor(10);
  reachAndPress(60, 60);
  int old = 0, fresh = 0;
  for (float y = 41; y < 80; ++y) {
    old += sheet.Point({60, y}) == ground ? 1 : 0;
    fresh += sheet.Point({60, y}) == lines ? 1 : 0;
  }
  EXPECT_EQ(old + fresh, 39);
  EXPECT_EQ(fresh, 5);
}

TEST_F(Fills, PickingAColourSetsTheSwatchAndThePen) {
  drawBox();
  click(studio.cmdOpvullen);
  const Color filled = pickColor(80);
  pressAndRelease(60, 60);
  click(studio.cmdDrop);
  pressAndRelease(300, 300);
  EXPECT_EQ(studio.Shape1.FillColor, White);
  EXPECT_EQ(sheet.ForeColor, White);
  // The tool stays: a second press picks again.
  pressAndRelease(60, 60);
  EXPECT_EQ(studio.Shape1.FillColor, filled);
  EXPECT_EQ(sheet.ForeColor, filled);
  EXPECT_EQ(studio.lblModus.Caption, "een kleur vanuit de afbeelding zelf kiezen");
}

TEST_F(Fills, UndoIsOffForAllThree) {
  click(studio.cmdOpvullen);
  EXPECT_FALSE(studio.cmdUndo.Enabled);
  click(studio.cmdTekenen);
  EXPECT_TRUE(studio.cmdUndo.Enabled);
  click(studio.cmdDrop);
  EXPECT_FALSE(studio.cmdUndo.Enabled);
  click(studio.cmdTekenen);
  choosePattern(1);
  EXPECT_FALSE(studio.cmdUndo.Enabled);
}

// A second button can go down beyond the sheet while the first one keeps the pointer.
TEST_F(Fills, ASecondButtonBeyondTheSheetPicksAndFillsNothing) {
  click(studio.cmdDrop);
  const Color color = pickColor(80);
  press(sheet, 10, 10);
  ASSERT_EQ(sheet.ForeColor, White);
  studio.Shape1.FillColor = color;
  sheet.ForeColor = color;
  press(sheet, -30, 10, 2);
  EXPECT_EQ(studio.Shape1.FillColor, color);
  EXPECT_EQ(sheet.ForeColor, color);
  EXPECT_EQ(takeErrorReport(), std::nullopt);
  release(sheet, -30, 10, 2);
  release(sheet, -30, 10);
  click(studio.cmdOpvullen);
  const raster::Bitmap before = canvas();
  press(sheet, 10, 10, 2);
  const raster::Bitmap filled = canvas();
  EXPECT_FALSE(same(before, filled));
  press(sheet, -30, 10);
  EXPECT_TRUE(shows(sheet, filled));
  release(sheet, -30, 10);
  release(sheet, -30, 10, 2);
}
