// The panel of lines: thickness, the five styles, and what three of them leave at every move.
#include <cmath>

#include "studio/studio.h"

using namespace surface;

namespace {

enum Style { Solid = 0, Dotted = 1, Colourful = 2, Beads = 3, Zip = 4 };

// Components are drawn in the order red, green, blue, and rounded to the nearest whole number.
Color literalColor() {
  const auto component = [] { return static_cast<int>(std::nearbyint(Rnd() * 255)); };
  const int red = component(), green = component(), blue = component();
  return red + 256 * green + 65536 * blue;
}

}  // namespace

class LineStyles : public Studio {
 protected:
  void choose(Style style) {
    click(studio.cmdLijnen);
    pickRow(studio.cboStijl, style);
  }
  // The buttons of most tools set the style back; by code it can be set behind them.
  void chooseBehind(Style style) { studio.cboStijl.ListIndex = style; }

  bool rulesOfThePencil() const {
    return sheet.DrawWidth == 1 && sheet.DrawStyle == 0 && sheet.ForeColor == Black &&
           studio.Shape1.FillColor == Black && studio.cboStijl.ListIndex == 0;
  }
};

TEST_F(LineStyles, ThePanelHoldsItsControls) {
  click(studio.cmdLijnen);
  EXPECT_EQ(studio.fraLijnen.Caption, "LIJNEN");
  expectPlaced({{studio.fraLijnen, 240, 5160, 1815, 1455},
                {studio.cboStijl, 120, 240, 1575, 0, "kies een SOORT LIJN"},
                {studio.Slider1, 120, 720, 975, 0, "de dikte van de lijn veranderen"},
                {studio.Label5, 240, 1080, 0, 0}});
  EXPECT_EQ(studio.Label5.Caption, "lijndikte veranderen");
  EXPECT_EQ(studio.Slider1.Min, 1);
  EXPECT_EQ(studio.Slider1.Max, 20);
  const std::vector<std::string> styles = {"Doorlopend", "Stippellijn", "Kleurrijk", "Kraaltjes",
                                           "Ritssluiting"};
  ASSERT_EQ(studio.cboStijl.ListCount(), static_cast<int>(styles.size()));
  for (int row = 0; row < studio.cboStijl.ListCount(); ++row)
    EXPECT_EQ(studio.cboStijl.List(row), styles[static_cast<std::size_t>(row)]);
  EXPECT_EQ(studio.Line2.X1.get(), 1320);
  EXPECT_EQ(studio.Line2.X2.get(), 1560);
  EXPECT_EQ(studio.Line2.Y1.get(), 960);
  EXPECT_EQ(studio.Line2.Y2.get(), 960);
}

TEST_F(LineStyles, ThePanelAlwaysStartsWithAThinBlackPencil) {
  click(studio.cmdLijnen);
  slide(studio.Slider1, 9);
  pickRow(studio.cboStijl, Dotted);
  slide(studio.Slider1, 9);
  pickColor(20);
  click(studio.cmdOpvullen);  // leaves the panel and the pen as they are
  ASSERT_FALSE(rulesOfThePencil());

  click(studio.cmdLijnen);
  EXPECT_TRUE(rulesOfThePencil());
  EXPECT_EQ(studio.Slider1.Value, 1);
  EXPECT_EQ(studio.Line2.BorderWidth, 1);
  EXPECT_EQ(studio.Line2.BorderColor, Black);
  EXPECT_EQ(sheet.MousePointer, PointerCustom);
  EXPECT_EQ(sheet.MouseIcon, "curPen");
  EXPECT_EQ(studio.lblModus.Caption, "hulpkader : bepaal de instellingen van de lijnen");
  EXPECT_TRUE(studio.fraLijnen.Visible);
  drag(sheet, 20, 20, 60, 20);
  EXPECT_EQ(sheet.Point({40, 20}), Black);
  EXPECT_EQ(sheet.Point({40, 21}), White);
}

TEST_F(LineStyles, ThePanelPutsTheSliderBackAlsoWhenTheStyleStayed) {
  click(studio.cmdLijnen);
  slide(studio.Slider1, 9);
  click(studio.cmdLijnen);
  EXPECT_EQ(studio.Slider1.Value, 1);
  EXPECT_EQ(studio.Line2.BorderWidth, 1);
  EXPECT_EQ(sheet.DrawWidth, 1);
}

TEST_F(LineStyles, TheSliderSetsThePenAndItsSample) {
  click(studio.cmdLijnen);
  const Color red = pickColor(2);
  slide(studio.Slider1, 7);
  EXPECT_EQ(studio.Line2.BorderWidth, 7);
  EXPECT_EQ(studio.Line2.BorderColor, red);
  drag(sheet, 50, 100, 90, 100);
  for (const float y : {97.f, 103.f}) EXPECT_EQ(sheet.Point({70, y}), red);
  for (const float y : {96.f, 104.f}) EXPECT_EQ(sheet.Point({70, y}), White);
}

// The sample on the screen, not only its properties.
TEST_F(LineStyles, TheSampleIsSeenInThePanelInItsThickness) {
  click(studio.cmdLijnen);
  pickColor(2);
  slide(studio.Slider1, 9);
  const QImage panel = shown(studio.fraLijnen);
  const QRgb ink = 0xFF000000u | toPixel(studio.Line2.BorderColor);
  int rows = 0;
  for (int y = 0; y < panel.height(); ++y) rows += panel.pixel(96, y) == ink ? 1 : 0;
  EXPECT_EQ(rows, 9);
}

TEST_F(LineStyles, AStyleAlwaysSetsTheThicknessBackToOne) {
  for (const int row : {Dotted, Colourful, Beads, Zip, Solid, Solid}) {
    click(studio.cmdLijnen);
    slide(studio.Slider1, 12);
    pickRow(studio.cboStijl, row);
    EXPECT_EQ(studio.Slider1.Value, 1) << row;
    EXPECT_EQ(studio.Line2.BorderWidth, 1) << row;
    EXPECT_EQ(sheet.DrawWidth, 1) << row;
    EXPECT_EQ(sheet.DrawStyle, row == Dotted ? 2 : 0) << row;
  }
}

TEST_F(LineStyles, ADottedStrokeHasGapsInEverySegment) {
  choose(Dotted);
  raster::Bitmap should = canvas();
  press(sheet, 30, 40);
  const raster::Pen dotted{raster::PenStyle::Dotted, 1, toPixel(Black)};
  oracle::dot({should}, dotted, 30, 40);
  int x = 30, y = 40;
  for (const auto& [toX, toY] : {std::pair{90, 40}, {97, 80}, {60, 85}}) {
    move(sheet, toX, toY, 1);
    oracle::line({should}, dotted, toX, toY, x, y);
    x = toX;
    y = toY;
  }
  EXPECT_TRUE(shows(sheet, should));
}

TEST_F(LineStyles, DottedDrawsSolidOnceTheSliderIsAboveOneButStaysChosen) {
  choose(Dotted);
  slide(studio.Slider1, 3);
  EXPECT_EQ(sheet.DrawStyle, 2);
  drag(sheet, 20, 20, 80, 20);
  for (float x = 20; x <= 80; ++x) EXPECT_EQ(sheet.Point({x, 20}), Black) << x;
  slide(studio.Slider1, 1);
  drag(sheet, 20, 60, 80, 60);
  int gaps = 0;
  for (float x = 20; x <= 80; ++x) gaps += sheet.Point({x, 60}) == White ? 1 : 0;
  EXPECT_GT(gaps, 20);
}

TEST_F(LineStyles, DottedStaysUntilAnotherStyleIsChosen) {
  choose(Dotted);
  click(studio.cmdOpvullen);
  click(studio.cmdDrop);
  click(studio.cmdTekst);
  click(studio.cmdArt);
  EXPECT_EQ(sheet.DrawStyle, 2);
  pickRow(studio.cboStijl, Beads);
  EXPECT_EQ(sheet.DrawStyle, 0);
}

TEST_F(LineStyles, EveryButtonThatClosesPanelsGoesBackToTheThinSolidPen) {
  CommandButton* const closing[] = {
      &studio.cmdTekenen,         &studio.cmdLijn,     &studio.cmdRechthoek,
      &studio.cmdRechthoekgevuld, &studio.cmdCirkel,   &studio.cmdSpuitbus,
      &studio.cmdCirkelGevuld,    &studio.cmdEllips,   &studio.cmdEllipsGevuld,
      &studio.cmdLijnen,          &studio.cmdBorstels, &studio.cmdVulling,
      &studio.cmdGradient,        &studio.cmdLineaal,  &studio.cmdEffecten};
  for (CommandButton* button : closing) {
    SCOPED_TRACE(button->ToolTipText.get());
    choose(Dotted);
    pickColor(90);
    click(*button);
    EXPECT_TRUE(rulesOfThePencil());
    EXPECT_EQ(studio.Slider1.Value, 1);
    EXPECT_EQ(studio.fraLijnen.Visible.get(), button == &studio.cmdLijnen);
  }
  // Without a style to set back the slider keeps its place; only the pen is thin again.
  click(studio.cmdLijnen);
  slide(studio.Slider1, 8);
  click(studio.cmdLijn);
  EXPECT_EQ(studio.Slider1.Value, 8);
  EXPECT_EQ(sheet.DrawWidth, 1);
}

TEST_F(LineStyles, ThickAndDottedPensServeTheToolsThatKeepThePanel) {
  click(studio.cmdLijnen);
  slide(studio.Slider1, 6);
  for (CommandButton* button :
       {&studio.cmdOpvullen, &studio.cmdDrop, &studio.cmdTekst, &studio.cmdArt}) {
    click(*button);
    EXPECT_TRUE(studio.fraLijnen.Visible);
    EXPECT_EQ(sheet.DrawWidth, 6);
  }
}

TEST_F(LineStyles, ColourfulGivesThePenANewColourAtEveryMoveAndLeavesTheSwatch) {
  choose(Colourful);
  const Color swatch = pickColor(50);
  seedRandom(21);
  std::vector<Color> seen;
  for (int x = 10; x < 15; ++x) {
    move(sheet, x, 10);
    seen.push_back(sheet.ForeColor);
  }
  seedRandom(21);
  for (const Color color : seen) EXPECT_EQ(color, literalColor());
  EXPECT_EQ(studio.Shape1.FillColor, swatch);
  EXPECT_TRUE(shows(sheet, blank()));
}

TEST_F(LineStyles, AColourfulStrokeChangesColourAtEverySegment) {
  choose(Colourful);
  raster::Bitmap should = canvas();
  move(sheet, 20, 20);
  // The colour of a dot or segment was drawn at the move before.
  const Color first = sheet.ForeColor;
  seedRandom(22);
  drag(sheet, 20, 20, 100, 60);
  seedRandom(22);
  oracle::dot({should}, thinPen(first), 20, 20);
  oracle::line({should}, thinPen(first), 60, 40, 20, 20);
  oracle::line({should}, thinPen(literalColor()), 100, 60, 60, 40);
  EXPECT_TRUE(shows(sheet, should));
}

TEST_F(LineStyles, APencilStrokeWithBeadsHasItsLineAndItsBeads) {
  choose(Beads);
  raster::Bitmap should = canvas();
  seedRandom(23);
  drag(sheet, 50, 50, 110, 80);
  seedRandom(23);
  oracle::dot({should}, thinPen(Black), 50, 50);
  oracle::line({should}, thinPen(Black), 80, 65, 50, 50);
  oracle::ellipse({should}, thinPen(literalColor()), {}, 80, 65, 10, 10);
  oracle::line({should}, thinPen(Black), 110, 80, 80, 65);
  const Color last = literalColor();
  oracle::ellipse({should}, thinPen(last), {}, 110, 80, 10, 10);
  EXPECT_TRUE(shows(sheet, should));
  EXPECT_EQ(studio.Shape1.FillColor, last) << "the swatch stays at the last bead";
  EXPECT_EQ(sheet.ForeColor, Black);
}

TEST_F(LineStyles, AZipHasAToothAtEveryMove) {
  choose(Zip);
  raster::Bitmap should = canvas();
  seedRandom(24);
  drag(sheet, 50, 50, 110, 80);
  seedRandom(24);
  oracle::dot({should}, thinPen(Black), 50, 50);
  oracle::line({should}, thinPen(Black), 80, 65, 50, 50);
  oracle::line({should}, thinPen(literalColor()), 70, 55, 90, 75);
  oracle::line({should}, thinPen(Black), 110, 80, 80, 65);
  const Color last = literalColor();
  oracle::line({should}, thinPen(last), 100, 70, 120, 90);
  EXPECT_TRUE(shows(sheet, should));
  EXPECT_EQ(studio.Shape1.FillColor, last);
}

TEST_F(LineStyles, BeadsAndTeethComeOnlyWithTheLeftButton) {
  for (const Style style : {Beads, Zip}) {
    choose(style);
    click(studio.cmdDrop);  // a tool that draws nothing by itself
    move(sheet, 100, 100);
    for (const int button : {2, 4}) {
      press(sheet, 100, 100, button);
      move(sheet, 150, 150, button);
      release(sheet, 150, 150, button);
    }
    EXPECT_TRUE(shows(sheet, blank())) << style;
    EXPECT_EQ(studio.Shape1.FillColor, White) << "the colour that was picked up from the sheet";
  }
}

TEST_F(LineStyles, FillingAlsoStrewsBeadsOnALeftDrag) {
  choose(Beads);
  click(studio.cmdOpvullen);
  seedRandom(25);
  drag(sheet, 100, 100, 160, 100);
  raster::Bitmap should(617, 537, toPixel(Black));  // the whole sheet was filled at the press
  seedRandom(25);
  for (const int x : {130, 160})
    oracle::ellipse({should}, thinPen(literalColor()), {}, x, 100, 10, 10);
  EXPECT_TRUE(shows(sheet, should));
}

TEST_F(LineStyles, TheEraserAndTheShapeToolsStrewBeadsToo) {
  for (CommandButton* button : {&studio.cmdGom, &studio.cmdLijn, &studio.cmdCirkel}) {
    click(*button);
    chooseBehind(Beads);
    sheet.Cls();
    raster::Bitmap bead = blank();
    seedRandom(26);
    press(sheet, 100, 100);
    raster::Bitmap should = canvas();
    move(sheet, 160, 100, 1);
    seedRandom(26);
    oracle::ellipse({bead}, thinPen(literalColor()), {}, 160, 100, 10, 10);
    int beadPixels = 0;
    for (int y = 85; y < 115; ++y)
      for (int x = 145; x < 175; ++x)
        if (bead.at(x, y) != toPixel(White)) {
          ++beadPixels;
          EXPECT_EQ(sheet.bitmap()->at(x, y), bead.at(x, y)) << x << ", " << y;
        }
    EXPECT_GT(beadPixels, 50);
    release(sheet, 160, 100);
  }
}

// A filled ellipse sets the brush at every move, and a bead is drawn with it: it holds the colour
// of the bead before.
TEST_F(LineStyles, BeadsOfTheFilledEllipseAreFilledWithTheColourBefore) {
  click(studio.cmdEllipsGevuld);
  chooseBehind(Beads);
  seedRandom(27);
  press(sheet, 300, 300);
  move(sheet, 320, 300, 1);
  move(sheet, 400, 300, 1);
  seedRandom(27);
  const Color first = literalColor(), second = literalColor();
  EXPECT_EQ(sheet.Point({320, 300}), Black);
  EXPECT_EQ(sheet.Point({310, 300}), first);
  EXPECT_EQ(sheet.Point({400, 300}), first);
  EXPECT_EQ(sheet.Point({390, 300}), second);
  release(sheet, 400, 300);
}
