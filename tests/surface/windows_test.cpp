// Where windows stand: what the child has moved stays, what is centred stays centred; which pointer
// rules; how large the screen is.
#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

#include "support/script.h"
#include "surface/host.h"

using namespace surface;

namespace {

class Panel : public Form {
 public:
  Panel() : Form({.Caption = "paneel", .Width = 3000, .Height = 1500}) {}
  CommandButton cmdKnop{*this, {.Left = 150, .Top = 150, .Width = 750, .Height = 375}};
  TextBox txtNaam{*this, {.Left = 150, .Top = 600, .Width = 750, .Height = 375}};
  TextBox txtLang{*this,
                  {.Left = 150, .Top = 1050, .Width = 750, .Height = 375, .MultiLine = true}};
  Frame fraRand{*this, {.Left = 1200, .Width = 1500, .Height = 1500}};
  PictureBox picBlad{fraRand, {.Width = 750, .Height = 750, .MousePointer = PointerCross}};
};

class Middle : public Form {
 public:
  Middle() : Form({.Width = 3000, .Height = 1500, .Centred = true, .BorderStyle = Border::Fixed}) {}
  Label lblTekst{*this, {.Width = 750, .Height = 375}};
};

template <class F>
QWidget* windowOf(F& form) {
  return script::widgetOf(*form.controls().front())->window();
}

Qt::CursorShape pointerOver(Control& control) {
  return script::widgetOf(control)->cursor().shape();
}

}  // namespace

class Windows : public script::Stage {};

TEST_F(Windows, OneThatTheChildHasMovedStaysWhateverElseIsSet) {
  Panel& panel = the<Panel>();
  panel.Left = 1500;
  panel.Top = 750;
  panel.Show();
  QWidget* window = windowOf(panel);
  ASSERT_EQ(window->pos(), QPoint(100, 50));
  window->move(37, 81);
  QCoreApplication::processEvents();
  EXPECT_EQ(panel.Left, 37 * 15);
  EXPECT_EQ(panel.Top, 81 * 15);
  panel.Caption = "iets anders";
  panel.MousePointer = PointerHourglass;
  panel.Width = 4500;
  panel.Height = 3000;
  QCoreApplication::processEvents();
  EXPECT_EQ(window->pos(), QPoint(37, 81));
  panel.Top = 150;
  QCoreApplication::processEvents();
  EXPECT_EQ(window->pos(), QPoint(37, 10));
}

TEST_F(Windows, APlaceBetweenTwoPixelsIsReadBackAsItWasSet) {
  Panel& panel = the<Panel>();
  panel.Show();
  panel.Left = 1004;
  QCoreApplication::processEvents();
  EXPECT_EQ(panel.Left, 1004);
  EXPECT_EQ(windowOf(panel)->pos().x(), 67);
}

TEST_F(Windows, ACentredOneStaysInTheMiddleWhenItsSizeIsSet) {
  Middle& middle = the<Middle>();
  middle.Show();
  QWidget* window = windowOf(middle);
  middle.Width = middle.Width + 1500;
  middle.Height = middle.Height + 3000;
  QCoreApplication::processEvents();
  EXPECT_EQ(window->size(), QSize(300, 300));
  const QPoint centre = window->screen()->availableGeometry().center();
  // But for the frame that the desktop draws round it.
  EXPECT_LE((window->geometry().center() - centre).manhattanLength(), 8);
}

TEST_F(Windows, ACentredOneThatTheChildHasMovedIsNotCentredAnew) {
  Middle& middle = the<Middle>();
  middle.Show();
  QWidget* window = windowOf(middle);
  window->move(window->pos() + QPoint(12, -7));
  QCoreApplication::processEvents();
  const QPoint stood = window->pos();
  middle.Width = middle.Width + 1500;
  EXPECT_EQ(window->pos(), stood);
}

TEST_F(Windows, AFormsPointerRulesOverThoseOfItsControlsWhileItIsNotTheDefault) {
  Panel& panel = the<Panel>();
  panel.Show();
  EXPECT_EQ(pointerOver(panel.picBlad), Qt::CrossCursor);
  EXPECT_EQ(pointerOver(panel.txtNaam), Qt::IBeamCursor);
  panel.MousePointer = PointerHourglass;
  for (Control* control :
       {static_cast<Control*>(&panel.cmdKnop), static_cast<Control*>(&panel.picBlad),
        static_cast<Control*>(&panel.txtNaam)})
    EXPECT_EQ(pointerOver(*control), Qt::WaitCursor);
  EXPECT_EQ(script::widgetOf(panel.txtLang)->childAt(5, 5)->cursor().shape(), Qt::WaitCursor);
  // What is set meanwhile shows afterwards.
  panel.picBlad.MousePointer = PointerText;
  EXPECT_EQ(pointerOver(panel.picBlad), Qt::WaitCursor);
  panel.MousePointer = PointerDefault;
  EXPECT_EQ(pointerOver(panel.picBlad), Qt::IBeamCursor);
  EXPECT_EQ(pointerOver(panel.cmdKnop), Qt::ArrowCursor);
  EXPECT_EQ(script::widgetOf(panel.txtLang)->childAt(5, 5)->cursor().shape(), Qt::IBeamCursor);
}

TEST_F(Windows, TheScreenIsMeasuredInTwips) {
  const QSize size = QGuiApplication::primaryScreen()->size();
  EXPECT_EQ(Screen::Width(), static_cast<float>(size.width() * 15));
  EXPECT_EQ(Screen::Height(), static_cast<float>(size.height() * 15));
}

class Resizing : public script::Stage {};

TEST_F(Resizing, TellsTheFormWhenItIsFirstShownAndAfterEachChange) {
  class Sheet : public Form {
   public:
    Sheet() : Form({.Width = 3000, .Height = 1500}) {
      Load = [this] { order += "load "; };
      Resize = [this] { order += "resize "; };
    }
    std::string order;
  };
  auto& sheet = the<Sheet>();
  EXPECT_EQ(sheet.order, "load ");
  sheet.Show();
  EXPECT_EQ(sheet.order, "load resize ");
  dispatch([&] { sheet.windowResized(300, 200); });
  EXPECT_EQ(sheet.order, "load resize resize ");
  dispatch([&] { sheet.windowResized(300, 200); });
  sheet.Hide();
  sheet.Show();
  EXPECT_EQ(sheet.order, "load resize resize ") << "nothing has changed";
}

TEST_F(Resizing, AMaximisedFormKnowsTheSizeOfItsWindowBeforeItIsLoaded) {
  class Sky : public Form {
   public:
    Sky() : Form({.Maximised = true}) {
      Load = [this] { atLoad = innerPixels(); };
    }
    raster::Rect atLoad;
  };
  host().maximisedSize = [] { return raster::Rect{0, 0, 1910, 1043}; };
  EXPECT_EQ(loadNew<Sky>().atLoad, (raster::Rect{0, 0, 1910, 1043}));
}

TEST_F(Resizing, TheNextMaximisedWindowIsAsLargeAsTheLastOne) {
  class Sky : public Form {
   public:
    Sky() : Form({.Maximised = true}) {}
  };
  auto& first = showNew<Sky>();
  advance(0);
  EXPECT_EQ(loadNew<Sky>().innerPixels(), first.innerPixels());
}
