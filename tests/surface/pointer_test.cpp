// The pointer on a surface, pressed through a real window: buttons, keys, capture, scale.
#include <QTest>
#include <QWidget>

#include "support/script.h"

using namespace surface;

namespace {

class Desk : public Form {
 public:
  Desk() : Form({.Width = 6000, .Height = 4500}) {
    for (PictureBox* surface : {&picPixels, &picTwips}) {
      surface->MouseDown = [this](const Mouse& at) { note("down", at); };
      surface->MouseMove = [this](const Mouse& at) { note("move", at); };
      surface->MouseUp = [this](const Mouse& at) { note("up", at); };
      surface->Click = [this] { heard += "click "; };
    }
    MouseUp = [this](const Mouse& at) { note("form", at); };
  }

  /// What the handlers were told: "down B@X,Y " and so on, with "/S" behind B if keys were held.
  std::string heard;

  PictureBox picPixels{
      *this, {.Left = 750, .Top = 600, .Width = 1500, .Height = 1500, .ScaleMode = ScalePixels}};
  PictureBox picTwips{*this, {.Left = 2400, .Top = 600, .Width = 1500, .Height = 1500}};

 private:
  void note(const char* what, const Mouse& at) {
    heard += std::string(what) + " " + toText(at.Button);
    if (at.Shift) heard += "/" + toText(at.Shift);
    heard += "@" + toText(at.X) + "," + toText(at.Y) + " ";
  }
};

}  // namespace

class PointerOnASurface : public script::Stage {
 protected:
  PointerOnASurface() { desk.Show(); }
  std::string heard() { return std::exchange(desk.heard, {}); }
  /// Brings the pointer there, so that a press is nothing but a press.
  void pointAt(PictureBox& surface, int x, int y) {
    move(surface, x, y);
    heard();
  }
  Desk& desk = the<Desk>();
};

TEST_F(PointerOnASurface, PressAndReleaseTellWhichButton) {
  for (const int button : {1, 2, 4}) {
    pointAt(desk.picPixels, 10, 20);
    press(desk.picPixels, 10, 20, button);
    release(desk.picPixels, 10, 20, button);
    const std::string b = toText(button);
    EXPECT_EQ(heard(), "down " + b + "@10,20 up " + b + "@10,20 " + (button == 1 ? "click " : ""));
  }
}

TEST_F(PointerOnASurface, AMoveTellsTheButtonsHeldAndNoneWithout) {
  move(desk.picPixels, 5, 6);
  EXPECT_EQ(heard(), "move 0@5,6 ");
  press(desk.picPixels, 5, 6, 2);
  move(desk.picPixels, 7, 8, 2);
  EXPECT_EQ(heard(), "down 2@5,6 move 2@7,8 ");
  release(desk.picPixels, 7, 8, 2);
}

TEST_F(PointerOnASurface, TwoButtonsHeldAreSummedInAMove) {
  QWidget* widget = script::widgetOf(desk.picPixels);
  const QPointF at(9, 9);
  QMouseEvent both(QEvent::MouseMove, at, widget->mapToGlobal(at), Qt::NoButton,
                   Qt::LeftButton | Qt::RightButton, Qt::NoModifier);
  QCoreApplication::sendEvent(widget, &both);
  EXPECT_EQ(heard(), "move 3@9,9 ");
}

TEST_F(PointerOnASurface, AButtonAtTheSideOfTheMouseIsNoPress) {
  QWidget* widget = script::widgetOf(desk.picPixels);
  QWindow* window = widget->window()->windowHandle();
  const QPoint at = widget->mapTo(widget->window(), QPoint(10, 20));
  QTest::mouseMove(window, at);
  heard();
  for (const Qt::MouseButton side : {Qt::BackButton, Qt::ForwardButton}) {
    QTest::mousePress(window, side, {}, at);
    QTest::mouseRelease(window, side, {}, at);
    EXPECT_EQ(heard(), "");
    QTest::mouseDClick(window, side, {}, at);
    EXPECT_EQ(heard(), "");
  }
}

TEST_F(PointerOnASurface, AButtonAtTheSideOfTheMouseDoesNotEndADrag) {
  pointAt(desk.picPixels, 10, 20);
  press(desk.picPixels, 10, 20);
  move(desk.picPixels, 30, 40, 1);
  press(desk.picPixels, 30, 40, 8);
  release(desk.picPixels, 30, 40, 8);
  EXPECT_EQ(heard(), "down 1@10,20 move 1@30,40 ");
  move(desk.picPixels, 50, 60, 1);
  release(desk.picPixels, 50, 60);
  EXPECT_EQ(heard(), "move 1@50,60 up 1@50,60 click ");
}

TEST_F(PointerOnASurface, ShiftControlAndAltAreTold) {
  QWidget* widget = script::widgetOf(desk.picPixels);
  const struct {
    Qt::KeyboardModifiers keys;
    const char* told;
  } cases[] = {{Qt::ShiftModifier, "/1"},
               {Qt::ControlModifier, "/2"},
               {Qt::AltModifier, "/4"},
               {Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier, "/7"}};
  for (const auto& c : cases) {
    QTest::mousePress(widget, Qt::LeftButton, c.keys, {3, 4});
    EXPECT_EQ(heard(), std::string("down 1") + c.told + "@3,4 ");
    QTest::mouseRelease(widget, Qt::LeftButton, c.keys, {3, 4});
    EXPECT_EQ(heard(), std::string("up 1") + c.told + "@3,4 click ");
  }
}

TEST_F(PointerOnASurface, FromPressToReleaseItFollowsBeyondEveryEdge) {
  pointAt(desk.picPixels, 50, 50);
  press(desk.picPixels, 50, 50);
  move(desk.picPixels, -20, -30, 1);
  move(desk.picPixels, 150, 120, 1);
  EXPECT_EQ(heard(), "down 1@50,50 move 1@-20,-30 move 1@150,120 ");
  release(desk.picPixels, -5, 130);
  EXPECT_EQ(heard(), "move 1@-5,130 up 1@-5,130 ") << "a release outside is no click";
}

TEST_F(PointerOnASurface, ADragOverAnotherSurfaceStaysWithTheFirst) {
  // picTwips begins 110 pixels to the right of picPixels.
  pointAt(desk.picPixels, 90, 50);
  press(desk.picPixels, 90, 50);
  move(desk.picPixels, 130, 50, 1);
  release(desk.picPixels, 130, 50);
  EXPECT_EQ(heard(), "down 1@90,50 move 1@130,50 up 1@130,50 ");
}

TEST_F(PointerOnASurface, CoordinatesAreInTheSurfacesOwnScale) {
  pointAt(desk.picTwips, 10, 20);
  drag(desk.picTwips, 10, 20, 30, 40);
  EXPECT_EQ(heard(), "down 1@150,300 move 1@300,450 move 1@450,600 up 1@450,600 click ");
}

TEST_F(PointerOnASurface, CoordinatesFollowAUserScale) {
  // 100 pixels stand for 2000 units from -1000 on, and downwards for 50 from 10 on.
  desk.picPixels.setUserScale({-1000, 10}, {2000, 50});
  pointAt(desk.picPixels, 50, 0);
  press(desk.picPixels, 50, 0);
  move(desk.picPixels, 75, 100, 1);
  release(desk.picPixels, 75, 100);
  EXPECT_EQ(heard(), "down 1@0,10 move 1@500,60 up 1@500,60 ");
}

TEST_F(PointerOnASurface, ADoubleClickIsTwoPresses) {
  QWidget* widget = script::widgetOf(desk.picPixels);
  QTest::mouseClick(widget, Qt::LeftButton, {}, {3, 4});
  // The toolkit tells the second press by another event.
  QTest::mouseDClick(widget, Qt::LeftButton, {}, {3, 4});
  QTest::mouseRelease(widget, Qt::LeftButton, {}, {3, 4});
  const std::string once = "down 1@3,4 up 1@3,4 click ";
  EXPECT_EQ(heard(), once + once);
}

TEST_F(PointerOnASurface, ASurfaceDoesNotLetItsEventsFallThroughToTheForm) {
  click(desk.picPixels);
  EXPECT_EQ(heard().find("form"), std::string::npos);
}

TEST_F(PointerOnASurface, AReleaseOnTheBareFormIsTheForms) {
  pressOnForm(desk, 10, 20);
  releaseOnForm(desk, 12, 22);
  EXPECT_EQ(heard(), "form 1@180,330 ");
}

TEST_F(PointerOnASurface, AReleaseOfTheBareFormMayBeAnywhere) {
  pressOnForm(desk, 10, 20);
  // Over a surface that begins at 50, 40, and with a second button meanwhile.
  pressOnForm(desk, 60, 70, 2);
  releaseOnForm(desk, 60, 70, 2);
  releaseOnForm(desk, 60, 70);
  EXPECT_EQ(heard(), "form 2@900,1050 form 1@900,1050 ");
}

TEST_F(PointerOnASurface, AHandlerMayUnloadTheFormDuringAPress) {
  bool wentOn = false;
  desk.picPixels.MouseDown = [&](const Mouse&) {
    Unload(desk);
    wentOn = true;
  };
  press(desk.picPixels, 10, 10);
  EXPECT_TRUE(wentOn);
  EXPECT_FALSE(isLoaded<Desk>());
}

TEST_F(PointerOnASurface, AHandlerMayUnloadTheFormDuringARelease) {
  desk.picPixels.MouseUp = [&](const Mouse&) { Unload(desk); };
  click(desk.picPixels);
  EXPECT_FALSE(isLoaded<Desk>());
}

TEST_F(PointerOnASurface, ItsShapeFollowsMousePointer) {
  QWidget* widget = script::widgetOf(desk.picPixels);
  EXPECT_EQ(widget->cursor().shape(), Qt::ArrowCursor);
  desk.picPixels.MousePointer = PointerCross;
  EXPECT_EQ(widget->cursor().shape(), Qt::CrossCursor);
  desk.picPixels.MousePointer = PointerText;
  EXPECT_EQ(widget->cursor().shape(), Qt::IBeamCursor);
  desk.picPixels.MousePointer = PointerHourglass;
  EXPECT_EQ(widget->cursor().shape(), Qt::WaitCursor);
  desk.picPixels.MouseIcon = "curPen";
  EXPECT_EQ(widget->cursor().shape(), Qt::WaitCursor) << "the icon counts at 99 only";
  desk.picPixels.MousePointer = PointerCustom;
  EXPECT_EQ(widget->cursor().shape(), Qt::BitmapCursor);
  const QImage pen = widget->cursor().pixmap().toImage();
  desk.picPixels.MouseIcon = "curGom";
  EXPECT_NE(widget->cursor().pixmap().toImage(), pen);
}

// On an enlarged screen positions are fractions of a pixel.
TEST_F(PointerOnASurface, AFractionOfAPixelBelongsToThePixelThatShowsIt) {
  QWidget* widget = script::widgetOf(desk.picPixels);
  for (const double fraction : {0.0, 0.25, 0.5, 0.75, 0.99}) {
    const QPointF at(9 + fraction, 20 + fraction);
    QMouseEvent press(QEvent::MouseButtonPress, at, widget->mapToGlobal(at), Qt::LeftButton,
                      Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &press);
    EXPECT_EQ(heard(), "down 1@9,20 ") << fraction;
  }
  const QPointF outside(-0.5, 99.5);
  QMouseEvent release(QEvent::MouseButtonRelease, outside, widget->mapToGlobal(outside),
                      Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
  QCoreApplication::sendEvent(widget, &release);
  EXPECT_EQ(heard(), "up 1@-1,99 ") << "beside the surface: no click";
}
