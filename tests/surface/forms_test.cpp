// The life of forms: default and new instances, showing, hiding, unloading in a handler.
#include <QApplication>
#include <QWidget>

#include "support/errors.h"
#include "support/script.h"
#include "surface/form.h"

using namespace surface;

namespace {

int loads = 0, unloads = 0, alive = 0;

class Room : public Form {
 public:
  Room() : Form({.Caption = "kamer", .Width = 3000, .Height = 1500}) {
    ++alive;
    Load = [] { ++loads; };
    FormUnload = [] { ++unloads; };
  }
  ~Room() override { --alive; }

  CommandButton cmdWeg{*this, {.Left = 150, .Top = 150, .Width = 750, .Height = 375}};
  TextBox txtNaam{*this, {.Left = 150, .Top = 750, .Width = 1500, .Height = 375}};
};

class OtherRoom : public Form {
 public:
  OtherRoom() : Form({.Caption = "kamertje"}) {}
};

// A form whose Load speaks of the form by its class.
class Mirror : public Form {
 public:
  Mirror() : Form({}) {
    Load = [this] { seen = &the<Mirror>(); };
  }
  Mirror* seen = nullptr;
};

bool windowOnScreen(const QString& title) {
  for (const QWidget* window : QApplication::topLevelWidgets())
    if (window->isVisible() && window->windowTitle() == title) return true;
  return false;
}

}  // namespace

class Forms : public script::Stage {
 protected:
  Forms() { loads = unloads = alive = 0; }
};

TEST_F(Forms, TheDefaultInstanceIsLoadedOnFirstUseAndFoundAgain) {
  EXPECT_FALSE(isLoaded<Room>());
  Room& first = the<Room>();
  EXPECT_TRUE(isLoaded<Room>());
  EXPECT_EQ(loads, 1);
  EXPECT_FALSE(first.shown()) << "loading does not show";
  EXPECT_EQ(&the<Room>(), &first);
  EXPECT_EQ(loads, 1) << "loaded a second time";
}

TEST_F(Forms, EachClassHasADefaultInstanceOfItsOwn) {
  EXPECT_NE(static_cast<Form*>(&the<Room>()), static_cast<Form*>(&the<OtherRoom>()));
}

TEST_F(Forms, TheLoadHandlerFindsItsOwnFormByName) {
  Mirror& mirror = the<Mirror>();
  EXPECT_EQ(mirror.seen, &mirror);
}

TEST_F(Forms, ANewInstanceIsNeverTheDefaultOne) {
  Room& one = loadNew<Room>();
  EXPECT_FALSE(isLoaded<Room>());
  Room& standard = the<Room>();
  Room& two = showNew<Room>();
  EXPECT_NE(&one, &two);
  EXPECT_NE(&standard, &one);
  EXPECT_EQ(loads, 3);
  EXPECT_TRUE(two.shown());
  EXPECT_FALSE(standard.shown());
  EXPECT_EQ(&the<Room>(), &standard);
}

TEST_F(Forms, AnUnloadedFormIsLoadedAnewAtTheNextReference) {
  the<Room>().txtNaam.Text = "Fien";
  Unload(the<Room>());
  EXPECT_EQ(unloads, 1);
  EXPECT_EQ(alive, 0);
  EXPECT_FALSE(isLoaded<Room>());
  EXPECT_EQ(the<Room>().txtNaam.Text, "") << "state has survived the unloading";
  EXPECT_EQ(loads, 2);
}

TEST_F(Forms, UnloadingANewInstanceLeavesTheDefaultOne) {
  Room& standard = the<Room>();
  Unload(showNew<Room>());
  EXPECT_EQ(&the<Room>(), &standard);
  EXPECT_EQ(alive, 1);
}

TEST_F(Forms, HidingTakesTheWindowAndKeepsTheState) {
  Room& room = the<Room>();
  room.Show();
  EXPECT_TRUE(windowOnScreen("kamer"));
  room.txtNaam.Text = "Fien";
  room.Hide();
  EXPECT_FALSE(windowOnScreen("kamer"));
  EXPECT_EQ(alive, 1);
  room.txtNaam.Text = room.txtNaam.Text.get() + "!";
  room.Show();
  EXPECT_TRUE(windowOnScreen("kamer"));
  EXPECT_EQ(room.txtNaam.Text, "Fien!");
  EXPECT_EQ(loads, 1);
}

TEST_F(Forms, ShowDoesNotWaitForAnAnswer) {
  the<Room>().Show();
  the<OtherRoom>().Show();
  EXPECT_TRUE(windowOnScreen("kamer"));
  EXPECT_TRUE(windowOnScreen("kamertje"));
}

TEST_F(Forms, AHandlerMayUnloadItsOwnFormAndGoOn) {
  Room& room = the<Room>();
  room.Show();
  bool wentOn = false;
  room.cmdWeg.Click = [&] {
    Unload(room);
    EXPECT_FALSE(windowOnScreen("kamer")) << "the window must go at once";
    EXPECT_FALSE(isLoaded<Room>());
    EXPECT_EQ(alive, 1) << "destroyed beneath the running handler";
    room.cmdWeg.Caption = "nog even";
    room.Line({0, 0}, {100, 100});
    wentOn = room.cmdWeg.Caption == "nog even";
  };
  click(room.cmdWeg);
  EXPECT_TRUE(wentOn);
  EXPECT_EQ(alive, 0);
}

TEST_F(Forms, AHandlerMayLoadTheFormAnewAfterUnloadingIt) {
  Room& room = the<Room>();
  room.Show();
  Room* fresh = nullptr;
  room.cmdWeg.Click = [&] {
    Unload(room);
    fresh = &the<Room>();
    fresh->Show();
  };
  click(room.cmdWeg);
  EXPECT_EQ(&the<Room>(), fresh);
  EXPECT_EQ(loads, 2);
  EXPECT_EQ(alive, 1);
  EXPECT_TRUE(windowOnScreen("kamer"));
}

TEST_F(Forms, UnloadingTwiceInOneHandlerDoesItOnce) {
  Room& room = the<Room>();
  room.Show();
  room.cmdWeg.Click = [&] {
    Unload(room);
    Unload(room);
  };
  click(room.cmdWeg);
  EXPECT_EQ(unloads, 1);
  EXPECT_EQ(alive, 0);
}

TEST_F(Forms, AnUnloadHandlerMayUnloadItsFormItself) {
  Room& room = the<Room>();
  room.FormUnload = [&] {
    ++unloads;
    Unload(room);
  };
  Unload(room);
  EXPECT_EQ(unloads, 1);
  EXPECT_EQ(alive, 0);
}

TEST_F(Forms, TheCloseBoxUnloadsTheForm) {
  Room& room = the<Room>();
  room.Show();
  closeBox(room);
  EXPECT_FALSE(isLoaded<Room>());
  EXPECT_EQ(unloads, 1);
}

TEST_F(Forms, AFormMayDecideItselfWhatItsCloseBoxDoes) {
  Room& room = the<Room>();
  room.Show();
  int pressed = 0;
  room.CloseBox = [&] { ++pressed; };
  closeBox(room);
  EXPECT_EQ(pressed, 1);
  EXPECT_TRUE(windowOnScreen("kamer"));
}

TEST_F(Forms, OnlyTheLastWindowThatIsClosedLeavesNone) {
  int none = 0;
  FormRegistry::instance().noWindowLeft = [&] { ++none; };
  the<Room>().Show();
  the<OtherRoom>().Show();
  closeBox(the<Room>());
  EXPECT_EQ(none, 0);
  closeBox(the<OtherRoom>());
  EXPECT_EQ(none, 1);
  FormRegistry::instance().noWindowLeft = nullptr;
}

TEST_F(Forms, ACaptionAndAColourAssignedLaterAreOnTheScreen) {
  Room& room = the<Room>();
  room.Show();
  room.Caption = "zolder";
  room.BackColor = 0x0000FF;
  EXPECT_TRUE(windowOnScreen("zolder"));
  EXPECT_EQ(shown(room).pixelColor(190, 90), QColor(255, 0, 0));
}

TEST_F(Forms, AFormCanItselfBeDrawnOnBehindItsControls) {
  Room& room = the<Room>();
  room.Show();
  room.Line({0, 0}, {2999, 1499}, 0xFF0000, BF);
  EXPECT_EQ(room.Point({2990, 1490}), 0xFF0000);
  const QImage screen = shown(room);
  EXPECT_EQ(screen.pixelColor(190, 90), QColor(0, 0, 255));
  EXPECT_NE(screen.pixelColor(35, 22), QColor(0, 0, 255)) << "drawn over the button";
}

TEST_F(Forms, ItsInnerSizeAtDesignIsInTwips) {
  Room& room = the<Room>();
  EXPECT_EQ(room.ScaleWidth(), 3000);
  EXPECT_EQ(room.ScaleHeight(), 1500);
  EXPECT_EQ(room.innerPixels(), (raster::Rect{0, 0, 200, 100}));
  EXPECT_GT(room.Width, 3000) << "the outer size includes the frame";
}

TEST_F(Forms, AWindowThatIsDraggedLargerTellsItsNewSize) {
  Room& room = the<Room>();
  room.Show();
  const float frame = room.Width - room.ScaleWidth();
  script::widgetOf(room.cmdWeg)->window()->resize(300, 150);
  QCoreApplication::processEvents();
  EXPECT_EQ(room.ScaleWidth(), 300 * 15);
  EXPECT_EQ(room.ScaleHeight(), 150 * 15);
  EXPECT_EQ(room.Width, 300 * 15 + frame);
  // Moved, it stays as large as it is.
  room.Left = 600;
  EXPECT_EQ(room.ScaleWidth(), 300 * 15);
}

TEST_F(Forms, ASizeByCodeMovesTheEdgesOfTheWindow) {
  Room& room = the<Room>();
  room.Show();
  room.Width = room.Width + 1500;
  EXPECT_EQ(shown(room).size(), QSize(300, 100));
}

TEST_F(Forms, AWindowMayBeKeptAboveAllOthers) {
  Room& room = the<Room>();
  room.Show();
  const QWidget* window = script::widgetOf(room.cmdWeg)->window();
  EXPECT_FALSE(window->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
  room.setTopMost();
  EXPECT_TRUE(window->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
  EXPECT_TRUE(windowOnScreen("kamer"));
}

TEST_F(Forms, FocusGoesWhereCodePutsIt) {
  Room& room = the<Room>();
  room.Show();
  advance(0);  // until the window is the active one
  EXPECT_TRUE(script::widgetOf(room.cmdWeg)->hasFocus()) << "the first control of the form";
  room.txtNaam.SetFocus();
  EXPECT_TRUE(script::widgetOf(room.txtNaam)->hasFocus());
  type("Fien");
  EXPECT_EQ(room.txtNaam.Text, "Fien");
}
