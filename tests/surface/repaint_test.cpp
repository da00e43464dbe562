// When the screen follows a drawing, and how much of it is painted anew.
#include <QCoreApplication>
#include <QPaintEvent>
#include <QWidget>

#include "studio/frmTekenen2.h"
#include "support/script.h"

using namespace surface;

namespace {

/// Notes what a widget is told to paint.
class Painted : public QObject {
 public:
  explicit Painted(QWidget* widget) { widget->installEventFilter(this); }
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint)
      area = area.united(static_cast<QPaintEvent*>(event)->region().boundingRect());
    return false;
  }
  QRect area;
};

class Meadow : public Form {
 public:
  Meadow() : Form({.Width = 3000, .Height = 3000, .ScaleMode = ScalePixels}) {}
  CommandButton button{*this, {.Left = 600, .Top = 600, .Width = 1500, .Height = 600}};
};

}  // namespace

class Repainting : public script::Stage {
 protected:
  Repainting() {
    studio.Show();
    advance(0);
  }
  frmTekenen2& studio = the<frmTekenen2>();
  PictureBox& sheet = studio.picBlad;
};

TEST_F(Repainting, AMoveOfThePencilPaintsOnlyTheStroke) {
  press(sheet, 300, 300);
  Painted painted(script::widgetOf(sheet));
  move(sheet, 310, 304, 1);
  EXPECT_TRUE(painted.area.contains(QRect(300, 300, 11, 5)));
  EXPECT_LE(painted.area.width(), 15);
  EXPECT_LE(painted.area.height(), 9);
  release(sheet, 310, 304);
}

TEST_F(Repainting, AMoveThatDrawsNothingPaintsNothingOfTheSheet) {
  Painted painted(script::widgetOf(sheet));
  move(sheet, 310, 304);
  EXPECT_TRUE(painted.area.isEmpty());
}

TEST_F(Repainting, ADrawingIsShownWhenItsHandlerHasReturnedUnlessRefreshAsksForIt) {
  Painted painted(script::widgetOf(sheet));
  bool atOnce = false;
  Event<> event;
  event = [&] {
    sheet.Line({10, 10}, {20, 20});
    QCoreApplication::processEvents();
    EXPECT_TRUE(painted.area.isEmpty());
    sheet.Refresh();
    atOnce = !painted.area.isEmpty();
  };
  event();
  EXPECT_TRUE(atOnce);
}

TEST_F(Repainting, CallsOnTheDeviceContextAreShownWithoutARefresh) {
  Painted painted(script::widgetOf(sheet));
  Event<> event;
  event = [&] { SetPixel(sheet.hDC(), 40, 50, Black); };
  event();
  advance(0);
  EXPECT_TRUE(painted.area.contains(40, 50));
}

TEST_F(Repainting, WhatIsDrawnBeneathAButtonDoesNotPaintTheButton) {
  Meadow& meadow = the<Meadow>();
  meadow.Show();
  advance(0);
  QWidget* button = script::widgetOf(meadow.button);
  Painted above(button), beneath(button->parentWidget());
  meadow.Line({0, 0}, {150, 100}, Black, BF);
  advance(0);
  EXPECT_TRUE(beneath.area.contains(QRect(0, 0, 151, 101)));
  EXPECT_TRUE(above.area.isEmpty());
}
