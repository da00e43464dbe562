// The pointer on the sheet and the shape tools: freehand, lines, boxes, circles, ellipses.
#include <QImage>
#include <set>

#include "studio/frmTekenen2.h"
#include "support/colors.h"
#include "support/script.h"

using namespace surface;

namespace {

using Dots = std::set<std::pair<int, int>>;

Dots rectangle(int left, int top, int right, int bottom) {
  Dots all;
  for (int y = top; y <= bottom; ++y)
    for (int x = left; x <= right; ++x) all.insert({x, y});
  return all;
}

Dots outline(int left, int top, int right, int bottom) {
  Dots all = rectangle(left, top, right, bottom);
  for (const auto& inside : rectangle(left + 1, top + 1, right - 1, bottom - 1)) all.erase(inside);
  return all;
}

raster::Rect extent(const Dots& all) {
  raster::Rect box;
  for (const auto& [x, y] : all) box = unite(box, {x, y, x + 1, y + 1});
  return box;
}

}  // namespace

class Shapes : public script::Stage {
 protected:
  Shapes() { studio.Show(); }

  /// What has a colour on the sheet.
  Dots dots(Color color) const {
    Dots found;
    const auto pixels = sheet.bitmap();
    for (int y = 0; y < pixels->height(); ++y)
      for (int x = 0; x < pixels->width(); ++x)
        if (toColor(pixels->at(x, y)) == color) found.insert({x, y});
    return found;
  }
  /// What is not white.
  Dots painted() const {
    Dots found;
    const auto pixels = sheet.bitmap();
    for (int y = 0; y < pixels->height(); ++y)
      for (int x = 0; x < pixels->width(); ++x)
        if (toColor(pixels->at(x, y)) != White) found.insert({x, y});
    return found;
  }
  /// What an operation paints on a sheet of its own, so that a test can say what it expects.
  template <class Draw>
  Dots expected(Draw draw) {
    PictureBox& other = studio.picTemp;
    other.BackColor = White;
    draw(other);
    Dots found;
    const auto pixels = other.bitmap();
    for (int y = 0; y < pixels->height(); ++y)
      for (int x = 0; x < pixels->width(); ++x)
        if (toColor(pixels->at(x, y)) != White) found.insert({x, y});
    return found;
  }
  QColor onScreen(int x, int y) { return shown(sheet).pixelColor(x, y); }

  frmTekenen2& studio = the<frmTekenen2>();
  PictureBox& sheet = studio.picBlad;
};

TEST_F(Shapes, TheCoordinatesFollowThePointer) {
  move(sheet, 12, 345);
  EXPECT_EQ(studio.lblCoordinaten.Caption, "X=12  Y=345");
  press(sheet, 12, 345);
  move(sheet, -7, 600, 1);
  EXPECT_EQ(studio.lblCoordinaten.Caption, "X=-7  Y=600");
  release(sheet, -7, 600);
}

TEST_F(Shapes, ThePencilLeavesADotWhereItTouches) {
  press(sheet, 100, 100);
  EXPECT_EQ(painted(), (Dots{{100, 100}}));
  release(sheet, 100, 100);
  EXPECT_EQ(painted(), (Dots{{100, 100}}));
}

TEST_F(Shapes, ThePencilDrawsALineFromPlaceToPlace) {
  press(sheet, 100, 100);
  move(sheet, 110, 100, 1);
  move(sheet, 110, 105, 1);
  release(sheet, 110, 105);
  Dots stroke = rectangle(100, 100, 110, 100);
  for (const auto& dot : rectangle(110, 100, 110, 105)) stroke.insert(dot);
  EXPECT_EQ(painted(), stroke);
}

TEST_F(Shapes, ThePencilDrawsNothingWithoutAButton) {
  move(sheet, 100, 100);
  move(sheet, 200, 200);
  EXPECT_TRUE(painted().empty());
}

TEST_F(Shapes, TheRightButtonLeavesADotButNoPencilLine) {
  press(sheet, 100, 100, 2);
  move(sheet, 200, 200, 2);
  release(sheet, 200, 200, 2);
  EXPECT_EQ(painted(), (Dots{{100, 100}}));
}

TEST_F(Shapes, ThePencilRestsWhileTwoButtonsAreHeld) {
  sheet.MouseDown({.Button = 1, .X = 100, .Y = 100});
  sheet.MouseDown({.Button = 2, .X = 100, .Y = 100});
  sheet.MouseMove({.Button = 3, .X = 120, .Y = 100});
  EXPECT_EQ(painted(), (Dots{{100, 100}}));
  sheet.MouseUp({.Button = 2, .X = 120, .Y = 100});
  // It goes on from where it was.
  sheet.MouseMove({.Button = 1, .X = 110, .Y = 100});
  EXPECT_EQ(painted(), rectangle(100, 100, 110, 100));
}

TEST_F(Shapes, ALineEndsWhereTheFirstOfTwoButtonsIsLetGo) {
  click(studio.cmdLijn);
  sheet.MouseDown({.Button = 1, .X = 100, .Y = 100});
  sheet.MouseDown({.Button = 2, .X = 120, .Y = 100});
  sheet.MouseUp({.Button = 1, .X = 140, .Y = 100});
  EXPECT_EQ(painted(), rectangle(120, 100, 139, 100)) << "the second press begins it anew";
  sheet.MouseUp({.Button = 2, .X = 160, .Y = 100});
  EXPECT_EQ(painted(), rectangle(120, 100, 139, 100));
}

TEST_F(Shapes, ThePencilDrawsInTheColourAndWidthOfThePen) {
  sheet.ForeColor = Red;
  sheet.DrawWidth = 5;
  drag(sheet, 100, 100, 140, 100);
  EXPECT_EQ(sheet.Point({120, 98}), Red);
  EXPECT_EQ(sheet.Point({120, 102}), Red);
  EXPECT_EQ(sheet.Point({120, 96}), White);
}

TEST_F(Shapes, LineRunsFromPressToRelease) {
  click(studio.cmdLijn);
  drag(sheet, 10, 20, 50, 20);
  EXPECT_EQ(painted(), rectangle(10, 20, 49, 20));
}

TEST_F(Shapes, NothingIsDrawnBeforeTheButtonIsLetGo) {
  for (CommandButton* tool :
       {&studio.cmdLijn, &studio.cmdRechthoek, &studio.cmdRechthoekgevuld, &studio.cmdCirkel,
        &studio.cmdCirkelGevuld, &studio.cmdEllips, &studio.cmdEllipsGevuld}) {
    click(*tool);
    press(sheet, 100, 100);
    move(sheet, 150, 130, 1);
    EXPECT_TRUE(painted().empty()) << tool->ToolTipText.get();
    release(sheet, 150, 130);
    EXPECT_FALSE(painted().empty()) << tool->ToolTipText.get();
    sheet.Cls();
  }
}

TEST_F(Shapes, AMoveWithoutAButtonStartsNoShape) {
  click(studio.cmdLijn);
  move(sheet, 10, 20);
  move(sheet, 50, 20);
  EXPECT_TRUE(painted().empty());
  EXPECT_FALSE(studio.Line1.Visible);
}

TEST_F(Shapes, LineBegunInTheLeftColumnIsNotDrawn) {
  click(studio.cmdLijn);
  drag(sheet, 0, 20, 50, 20);
  EXPECT_TRUE(painted().empty());
}

TEST_F(Shapes, NoShapeBegunInTheFirstRowOrColumnIsDrawn) {
  for (CommandButton* tool : {&studio.cmdLijn, &studio.cmdRechthoek, &studio.cmdRechthoekgevuld,
                              &studio.cmdCirkel, &studio.cmdCirkelGevuld}) {
    click(*tool);
    drag(sheet, 0, 50, 80, 90);
    drag(sheet, 50, 0, 80, 90);
    EXPECT_TRUE(painted().empty()) << tool->ToolTipText.get();
    drag(sheet, 50, 1, 80, 90);
    EXPECT_FALSE(painted().empty()) << tool->ToolTipText.get();
    sheet.Cls();
  }
}

TEST_F(Shapes, TheRightButtonDrawsShapesToo) {
  click(studio.cmdLijn);
  drag(sheet, 10, 20, 50, 20, 2);
  EXPECT_EQ(painted(), rectangle(10, 20, 49, 20));
}

TEST_F(Shapes, ALineLetGoOutsideIsCutOffAtTheEdge) {
  click(studio.cmdLijn);
  drag(sheet, 600, 20, 700, 20);
  EXPECT_EQ(painted(), rectangle(600, 20, 616, 20));
  sheet.Cls();
  drag(sheet, 10, 20, -50, 20);
  EXPECT_EQ(painted(), rectangle(0, 20, 10, 20));
}

TEST_F(Shapes, AnEmptyRectangleIsAnOutlineWithBothCorners) {
  click(studio.cmdRechthoek);
  drag(sheet, 10, 20, 50, 40);
  EXPECT_EQ(painted(), outline(10, 20, 50, 40));
}

TEST_F(Shapes, ARectangleMayBeDraggedInAnyDirection) {
  click(studio.cmdRechthoek);
  drag(sheet, 50, 40, 10, 20);
  EXPECT_EQ(painted(), outline(10, 20, 50, 40));
}

TEST_F(Shapes, AFilledRectangleIsAllInThePensColour) {
  click(studio.cmdRechthoekgevuld);
  sheet.ForeColor = Red;
  studio.Shape1.FillColor = Blue;
  drag(sheet, 10, 20, 50, 40);
  EXPECT_EQ(dots(Red), rectangle(10, 20, 50, 40));
  EXPECT_EQ(painted().size(), dots(Red).size());
}

TEST_F(Shapes, ACircleStandsWhereTheButtonWentDownWhateverTheDrag) {
  click(studio.cmdCirkel);
  studio.Slider2.Value = 30;
  const Dots circle = expected([](PictureBox& s) { s.Circle({100, 100}, 30); });
  drag(sheet, 100, 100, 300, 250);
  EXPECT_EQ(painted(), circle);
  EXPECT_EQ(extent(circle), (raster::Rect{70, 70, 131, 131}));
}

TEST_F(Shapes, AClickOfTheCircleToolDrawsACircleAroundThePointer) {
  click(studio.cmdCirkel);
  press(sheet, 100, 100);
  release(sheet, 100, 100);
  EXPECT_EQ(extent(painted()), (raster::Rect{97, 97, 104, 104})) << "the radius is 3 at first";
}

TEST_F(Shapes, AFilledCircleIsFloodedFromTheRelease) {
  click(studio.cmdCirkelGevuld);
  studio.Slider2.Value = 30;
  press(sheet, 100, 100);
  release(sheet, 100, 100);
  EXPECT_EQ(sheet.Point({100, 100}), Black);
  EXPECT_EQ(sheet.Point({71, 100}), Black);
  EXPECT_EQ(sheet.Point({69, 100}), White);
  EXPECT_EQ(sheet.Point({300, 300}), White);
}

TEST_F(Shapes, AFilledCircleLetGoOutsideFillsTheSurroundings) {
  click(studio.cmdCirkelGevuld);
  studio.Slider2.Value = 30;
  drag(sheet, 100, 100, 200, 200);
  EXPECT_EQ(sheet.Point({100, 100}), White);
  EXPECT_EQ(sheet.Point({300, 300}), Black);
}

TEST_F(Shapes, AFilledCircleLetGoBeyondTheSheetFillsNothing) {
  click(studio.cmdCirkelGevuld);
  studio.Slider2.Value = 30;
  drag(sheet, 100, 100, -20, 100);
  EXPECT_EQ(sheet.Point({100, 100}), White);
  EXPECT_EQ(sheet.Point({300, 300}), White);
  EXPECT_EQ(sheet.Point({130, 100}), Black);
}

// The rubber band of an ellipse: it grows round the press, always 15 pixels larger than the drag.
class Ellipses : public Shapes {
 protected:
  /// The half axes of a drag, and the ellipse that belongs to it.
  Dots ellipse(int x, int y, int dx, int dy, Color ink = Black) {
    return expected([&](PictureBox& s) {
      const auto w = static_cast<float>(2 * dx + 15), h = static_cast<float>(2 * dy + 15);
      const auto radius = static_cast<float>(roundEven((w > h ? w : h) / 2 - 0.5));
      s.Circle({static_cast<float>(x + 7), static_cast<float>(y + 7)}, radius, ink, h / w);
    });
  }
};

TEST_F(Ellipses, TheRubberBandGrowsRoundThePress) {
  click(studio.cmdEllips);
  studio.Shape1.FillColor = Red;
  press(sheet, 200, 150);
  EXPECT_TRUE(studio.ShpOval.Visible);
  EXPECT_EQ(studio.ShpOval.Width, 15);
  EXPECT_EQ(studio.ShpOval.Height, 15);
  EXPECT_EQ(studio.ShpOval.BorderColor, Red);
  EXPECT_EQ(studio.ShpOval.DrawMode, 13);
  move(sheet, 240, 130, 1);
  EXPECT_EQ(studio.ShpOval.Left, 160);
  EXPECT_EQ(studio.ShpOval.Top, 130);
  EXPECT_EQ(studio.ShpOval.Width, 95);
  EXPECT_EQ(studio.ShpOval.Height, 55);
  EXPECT_EQ(onScreen(160, 157), QColor(255, 0, 0)) << "its left end";
  EXPECT_TRUE(painted().empty()) << "the rubber band is part of the picture";
  release(sheet, 240, 130);
  EXPECT_FALSE(studio.ShpOval.Visible);
}

TEST_F(Ellipses, AnEllipseIsDrawnRoundThePress) {
  click(studio.cmdEllips);
  for (const auto& [dx, dy] : {std::pair{40, 20}, {20, 40}, {33, 33}, {0, 25}}) {
    sheet.Cls();
    drag(sheet, 200, 150, 200 + dx, 150 - dy);
    EXPECT_EQ(painted(), ellipse(200, 150, dx, dy)) << dx << ' ' << dy;
  }
}

TEST_F(Ellipses, AnEllipseReachesAsFarAsItsRubberBandDid) {
  click(studio.cmdEllips);
  drag(sheet, 200, 150, 240, 130);
  // The band is 95 by 55 pixels from (160, 130) on; half of it, less a half, is 47 and about 27.
  EXPECT_EQ(extent(painted()), (raster::Rect{160, 130, 255, 185}));
}

TEST_F(Ellipses, AnEmptyEllipseLeavesItsInside) {
  sheet.Line({0, 0}, {616, 536}, Green, BF);
  click(studio.cmdEllips);
  drag(sheet, 200, 150, 240, 130);
  EXPECT_EQ(sheet.Point({207, 157}), Green);
}

TEST_F(Ellipses, AFilledEllipseHasTheSwatchsColourInsideAndThePensOutside) {
  click(studio.cmdEllipsGevuld);
  sheet.ForeColor = Red;
  studio.Shape1.FillColor = Blue;
  drag(sheet, 200, 150, 240, 130);
  EXPECT_EQ(sheet.Point({207, 157}), Blue);
  EXPECT_EQ(dots(Red), ellipse(200, 150, 40, 20, Red));
}

TEST_F(Ellipses, ARightPressShowsNoBandYetItsReleaseDrawsWithTheLastSize) {
  click(studio.cmdEllips);
  drag(sheet, 200, 150, 240, 130);
  sheet.Cls();
  // The band's last move without a button is at the place of the press.
  move(sheet, 230, 170);
  press(sheet, 230, 170, 2);
  EXPECT_FALSE(studio.ShpOval.Visible);
  release(sheet, 230, 170, 2);
  EXPECT_EQ(painted(), ellipse(230, 170, 30, 20));
}

TEST_F(Ellipses, ItsStartMayBeInTheFirstRowOrColumn) {
  click(studio.cmdEllips);
  drag(sheet, 0, 0, 40, 20);
  EXPECT_EQ(painted(), ellipse(0, 0, 40, 20));
}

TEST_F(Shapes, TheFirstLineDragShowsASampleAtAFixedPlaceForGood) {
  click(studio.cmdLijn);
  sheet.ForeColor = Red;
  studio.Slider1.Value = 5;
  press(sheet, 300, 300);
  EXPECT_FALSE(studio.Line1.Visible);
  move(sheet, 320, 300, 1);
  EXPECT_TRUE(studio.Line1.Visible);
  EXPECT_EQ(studio.Line1.BorderWidth, 5);
  EXPECT_EQ(studio.Line1.BorderColor, Red);
  EXPECT_EQ(studio.Line1.pixelEnds(), (surface::LineEnds{48, 24, 96, 48}));
  EXPECT_EQ(onScreen(72, 36), QColor(255, 0, 0));
  EXPECT_EQ(onScreen(310, 300), QColor(Qt::white)) << "there is no rubber band";
  release(sheet, 320, 300);
  EXPECT_TRUE(studio.Line1.Visible);
  EXPECT_EQ(sheet.Point({72, 36}), White) << "the sample is part of the picture";
  click(studio.cmdTekenen);
  drag(sheet, 400, 400, 410, 410);
  EXPECT_TRUE(studio.Line1.Visible);
}

TEST_F(Shapes, TheFirstRectangleDragShowsASampleToo) {
  for (CommandButton* tool : {&studio.cmdRechthoek, &studio.cmdRechthoekgevuld}) {
    studio.Shape2.Visible = false;
    click(*tool);
    sheet.ForeColor = Blue;
    studio.Slider1.Value = 3;
    drag(sheet, 300, 300, 320, 310);
    EXPECT_TRUE(studio.Shape2.Visible);
    EXPECT_EQ(studio.Shape2.BorderWidth, 3);
    EXPECT_EQ(studio.Shape2.BorderColor, Blue);
    EXPECT_EQ(studio.Shape2.Left, 56);
    EXPECT_EQ(onScreen(57, 100), QColor(0, 0, 255));
    EXPECT_EQ(sheet.Point({57, 100}), White);
  }
}

TEST_F(Shapes, TheSampleStaysAsItWasWhenTheDragIsOver) {
  click(studio.cmdLijn);
  drag(sheet, 300, 300, 320, 300);
  sheet.ForeColor = Red;
  move(sheet, 350, 350);
  EXPECT_EQ(studio.Line1.BorderColor, Black);
  click(studio.cmdRechthoek);
  drag(sheet, 300, 300, 320, 310);
  sheet.ForeColor = Red;
  move(sheet, 350, 350);
  EXPECT_EQ(studio.Shape2.BorderColor, Black);
}

TEST_F(Shapes, EveryMoveLeavesTheBrushTransparentInThePensColour) {
  for (CommandButton* tool :
       {&studio.cmdTekenen, &studio.cmdLijn, &studio.cmdRechthoek, &studio.cmdEllips}) {
    click(*tool);
    sheet.ForeColor = Red;
    sheet.FillStyle = 4;
    sheet.FillColor = Blue;
    move(sheet, 100, 100);
    EXPECT_EQ(sheet.FillStyle, 1);
    EXPECT_EQ(sheet.FillColor, Red);
    move(sheet, 110, 100);
  }
}

TEST_F(Shapes, TheFilledEllipseKeepsItsBrushSolidInTheSwatchsColour) {
  click(studio.cmdEllipsGevuld);
  sheet.ForeColor = Red;
  studio.Shape1.FillColor = Blue;
  sheet.FillStyle = 1;
  move(sheet, 100, 100);
  EXPECT_EQ(sheet.FillStyle, 0);
  EXPECT_EQ(sheet.FillColor, Blue);
  // A press of another button than the left one takes the brush away.
  press(sheet, 100, 100, 2);
  EXPECT_EQ(sheet.FillStyle, 1);
  EXPECT_EQ(sheet.FillColor, Red);
  release(sheet, 100, 100, 2);
  EXPECT_EQ(sheet.FillStyle, 0);
  EXPECT_EQ(sheet.FillColor, Blue);
}

TEST_F(Shapes, EachPressKeepsTheSheetForUndoWithWhatThePressItselfDrew) {
  click(studio.cmdLijn);
  drag(sheet, 10, 20, 50, 20);
  EXPECT_EQ(toColor(studio.picUndo.Image().bitmap()->at(30, 20)), White);
  EXPECT_EQ(toColor(studio.picRedo.Image().bitmap()->at(30, 20)), White);
  click(studio.cmdTekenen);
  drag(sheet, 100, 100, 120, 100);
  click(studio.cmdUndo);
  EXPECT_EQ(sheet.Point({30, 20}), Black);
  EXPECT_EQ(sheet.Point({110, 100}), White);
  EXPECT_EQ(sheet.Point({100, 100}), Black) << "the dot of the press can't be undone";
}

TEST_F(Shapes, AReleaseActsOnTheToolThatIsInHandThen) {
  click(studio.cmdLijn);
  press(sheet, 10, 20);
  studio.cmdRechthoek.Click();
  release(sheet, 50, 40);
  EXPECT_EQ(painted(), outline(10, 20, 50, 40));
}
