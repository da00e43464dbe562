// What holds controls: scales of the program's own, arrays over several containers, and how lines
// and shapes lie above their neighbours.
#include <QImage>
#include <QWidget>

#include "support/colors.h"
#include "support/errors.h"
#include "support/script.h"

using namespace surface;

namespace {

// Three tracks of 300 by 20 pixels, each called 0 to 200 from left to right, with a marker each.
class Tracks : public Form {
 public:
  Tracks() : Form({.Width = 6000, .Height = 4500}) {}

  ControlArray<PictureBox, 2> Picture1{
      *this,
      {PictureBox::Design{
           .Width = 4500, .Height = 300, .UserScale = {{0, 0}, {200, 20}}, .BackColor = White},
       PictureBox::Design{
           .Top = 600, .Width = 4500, .Height = 300, .UserScale = {{0, 0}, {200, 20}}}}};
  ControlArray<LineControl, 2> Line2{
      {{{Picture1(0), {.X1 = 1500, .Y1 = 0, .X2 = 1500, .Y2 = 300, .BorderColor = Red}},
        {Picture1(1), {.X1 = 3000, .Y1 = 0, .X2 = 3000, .Y2 = 300, .BorderColor = Green}}}}};

  // Counts from 10 at the right to -10 at the left, and from 0 at the bottom upwards to 100.
  PictureBox picMirror{*this,
                       {.Left = 0,
                        .Top = 1500,
                        .Width = 3000,
                        .Height = 1500,
                        .UserScale = {{10, 100}, {-20, -100}},
                        .BackColor = White}};
  Label lblInside{picMirror, {.Left = 750, .Top = 300, .Width = 1500, .Height = 300}};
  Frame fraInside{
      *this,
      {.Left = 3000, .Top = 1500, .Width = 1500, .Height = 1500, .UserScale = {{1, 1}, {2, 4}}}};
  Label lblFramed{fraInside, {.Left = 750, .Top = 750, .Width = 750, .Height = 375}};
};

class Upright : public Form {
 public:
  Upright() : Form({.Width = 3000, .Height = 1500, .UserScale = {{0, 50}, {100, -50}}}) {}
  Label lblBelow{*this, {.Left = 1500, .Top = 750, .Width = 300, .Height = 300}};
};

QRect onScreen(Control& control) { return script::widgetOf(control)->geometry(); }

}  // namespace

class Containers : public script::Stage {
 protected:
  Containers() { tracks.Show(); }
  Tracks& tracks = the<Tracks>();
};

TEST_F(Containers, AUserScaleGivenAtDesignIsTheUnitOfItsLines) {
  EXPECT_EQ(tracks.Picture1(0).ScaleMode(), ScaleUser);
  EXPECT_EQ(tracks.Picture1(0).ScaleWidth(), 200);
  EXPECT_FLOAT_EQ(tracks.Line2(0).X1, 200 / 3.f) << "the place at design is in twips";
  tracks.Line2(0).X1 = tracks.Line2(0).X2 = 50;
  EXPECT_EQ(tracks.Line2(0).pixelEnds(), (LineEnds{75, 0, 75, 20}));
  EXPECT_EQ(shown(tracks.Picture1(0)).pixelColor(75, 10), QColor(Qt::red));
  EXPECT_EQ(shown(tracks.Picture1(0)).pixelColor(100, 10), QColor(Qt::white));
}

TEST_F(Containers, MembersOfAnArrayStandInContainersOfTheirOwn) {
  EXPECT_EQ(&tracks.Line2(0).container(), &tracks.Picture1(0));
  EXPECT_EQ(&tracks.Line2(1).container(), &tracks.Picture1(1));
  EXPECT_EQ(tracks.Line2(1).Index, 1);
  EXPECT_EQ(shown(tracks.Picture1(1)).pixelColor(200, 10), QColor(Qt::green));
  EXPECT_ERROR(SubscriptOutOfRange, tracks.Line2(2));
}

TEST_F(Containers, AScaleThatRunsBackwardsPlacesControlsByTheirUpperLeftCorner) {
  EXPECT_EQ(tracks.lblInside.Left, 5);
  EXPECT_EQ(tracks.lblInside.Top, 80);
  EXPECT_EQ(tracks.lblInside.Width, 10) << "a size has no direction";
  EXPECT_EQ(tracks.lblInside.Height, 20);
  EXPECT_EQ(onScreen(tracks.lblInside), QRect(50, 20, 100, 20));
  tracks.lblInside.Left = -3;
  tracks.lblInside.Top = 50;
  tracks.lblInside.Width = 2;
  EXPECT_EQ(onScreen(tracks.lblInside), QRect(130, 50, 20, 20));
}

TEST_F(Containers, AFrameAndAFormHaveAScaleOfTheirOwnToo) {
  EXPECT_EQ(tracks.lblFramed.Left, 2);
  EXPECT_EQ(tracks.lblFramed.Top, 3);
  EXPECT_EQ(tracks.lblFramed.Width, 1);
  EXPECT_EQ(tracks.lblFramed.Height, 1);
  tracks.lblFramed.Top = 2;
  EXPECT_EQ(onScreen(tracks.lblFramed), QRect(50, 25, 50, 25));

  Upright& upright = the<Upright>();
  upright.Show();
  EXPECT_EQ(upright.lblBelow.Left, 50);
  EXPECT_EQ(upright.lblBelow.Top, 25);
  upright.lblBelow.Top = 50;
  EXPECT_EQ(onScreen(upright.lblBelow), QRect(100, 0, 20, 20));
}

TEST_F(Containers, ANewScaleNamesThePlacesAnewAndMovesNothing) {
  const QRect before = onScreen(tracks.lblInside);
  tracks.picMirror.setUserScale({-1, 0}, {2, 1});
  EXPECT_FLOAT_EQ(tracks.lblInside.Left, -0.5f);
  EXPECT_FLOAT_EQ(tracks.lblInside.Top, 0.2f);
  EXPECT_FLOAT_EQ(tracks.lblInside.Width, 1);
  tracks.lblInside.Visible = false;
  tracks.lblInside.Visible = true;
  tracks.lblInside.Left = tracks.lblInside.Left;
  EXPECT_EQ(onScreen(tracks.lblInside), before);
  tracks.Picture1(1).setUserScale({0, 0}, {20, 20});
  EXPECT_FLOAT_EQ(tracks.Line2(1).X1, 200 / 15.f);
  EXPECT_EQ(tracks.Line2(1).pixelEnds().x1, 200);
}

TEST_F(Containers, AUserScaleIsStretchedWithItsContainerAndItsControlsStay) {
  const QRect before = onScreen(tracks.lblInside);
  tracks.picMirror.Width = 6000;
  EXPECT_EQ(tracks.picMirror.ScaleWidth(), -20);
  EXPECT_EQ(tracks.lblInside.pixelPlace().left, before.left());
  EXPECT_FLOAT_EQ(tracks.lblInside.Left, 7.5f);
  EXPECT_FLOAT_EQ(tracks.lblInside.Width, 5);
}

TEST_F(Containers, AScaleWithoutAnExtentIsRefusedAndTheFormerOneStays) {
  EXPECT_ERROR(BadPropertyValue, tracks.picMirror.setUserScale({0, 0}, {0, 1}));
  EXPECT_ERROR(BadPropertyValue, tracks.fraInside.setUserScale({0, 0}, {1, 0}));
  EXPECT_EQ(tracks.picMirror.ScaleWidth(), -20);
  EXPECT_EQ(tracks.picMirror.ScaleLeft(), 10);
  EXPECT_EQ(tracks.picMirror.ScaleTop(), 100);
}

namespace {

class Pile : public Form {
 public:
  Pile() : Form({.Width = 3000, .Height = 3000}) {}
  ImageControl image{*this, {.Width = 1500, .Height = 1500}};
  LineControl first{*this, {.X1 = 0, .Y1 = 300, .X2 = 3000, .Y2 = 300, .BorderColor = Red}};
  Label label{*this, {.Left = 750, .Width = 750, .Height = 1500, .BackColor = White}};
  ShapeControl second{
      *this,
      {.Left = 0, .Top = 600, .Width = 3000, .Height = 300, .Filled = true, .FillColor = Green}};
};

}  // namespace

TEST_F(Containers, LinesAndShapesLieAboveWhatIsDeclaredBeforeThemAndBelowWhatComesAfter) {
  Pile& pile = the<Pile>();
  pile.Show();
  pile.image.Picture = tracks.Image();
  const QImage screen = shown(pile);
  EXPECT_EQ(screen.pixelColor(20, 20), QColor(Qt::red)) << "above the image";
  EXPECT_EQ(screen.pixelColor(70, 20), QColor(Qt::white)) << "below the label that comes later";
  EXPECT_EQ(screen.pixelColor(70, 45), QColor(Qt::green)) << "above image and label";
  EXPECT_EQ(screen.pixelColor(20, 45), QColor(Qt::green));
}

TEST_F(Containers, APressOnALineReachesWhatLiesBeneath) {
  Pile& pile = the<Pile>();
  int clicks = 0;
  pile.image.Click = [&] { ++clicks; };
  pile.Show();
  press(pile.image, 20, 20);
  release(pile.image, 20, 20);
  EXPECT_EQ(clicks, 1);
}
