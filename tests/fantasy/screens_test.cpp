// The fantasy menu and what all its screens have in common: ways in, ways back, sizes.
#include <QImage>
#include <QWidget>
#include <vector>

#include "fantasy/frmFantasie.h"
#include "fantasy/frmFantasie1.h"
#include "fantasy/frmFantasie2.h"
#include "fantasy/frmFantasie3.h"
#include "fantasy/frmFantasie4.h"
#include "fantasy/frmFantasie5.h"
#include "fantasy/frmFantasie6.h"
#include "fantasy/frmFantasie7.h"
#include "fantasy/frmFantasie8.h"
#include "info/frmInfo.h"
#include "shell/frmStart.h"
#include "support/script.h"

using namespace surface;

namespace {

template <class F>
std::vector<F*> loaded() {
  std::vector<F*> found;
  for (const auto& form : FormRegistry::instance().forms())
    if (auto* is = dynamic_cast<F*>(form.get())) found.push_back(is);
  return found;
}

template <class F>
F* only() {
  const auto found = loaded<F>();
  EXPECT_EQ(found.size(), 1u);
  return found.empty() ? nullptr : found.front();
}

struct Way {
  const char* caption;
  CommandButton frmFantasie::*button;
  Form* (*screen)();
  bool menuStays;
};

template <class F>
Form* screenOf() {
  const auto found = loaded<F>();
  return found.empty() ? nullptr : found.front();
}

const Way Ways[] = {
    {"Herfstwindje", &frmFantasie::cmdTekenen1, screenOf<frmFantasie1>, false},
    {"Lentekriebels", &frmFantasie::cmdTekenen2, screenOf<frmFantasie2>, false},
    {"Sterrenpracht", &frmFantasie::Command3, screenOf<frmFantasie7>, true},
    {"Zomervreugde", &frmFantasie::cmdFantasie, screenOf<frmFantasie3>, false},
    {"Feestvuurwerk", &frmFantasie::Command2, screenOf<frmFantasie5>, false},
    {"Regenwormen", &frmFantasie::cmdKleurplaten, screenOf<frmFantasie4>, false},
    {"Windmolentje", &frmFantasie::Command1, screenOf<frmFantasie6>, false},
    {"Bliksemschicht", &frmFantasie::Command4, screenOf<frmFantasie8>, true},
};

// One that can be seen.
CommandButton* buttonOf(Form& form, const std::string& caption) {
  for (Control* control : form.controls())
    if (auto* button = dynamic_cast<CommandButton*>(control);
        button && button->Visible && button->Caption == caption)
      return button;
  return nullptr;
}

// The worms let the child go when the first one has had its time.
CommandButton* closing(Form& form) {
  CommandButton* button = buttonOf(form, "Sluiten");
  return button ? button : buttonOf(form, "Stoppen");
}

}  // namespace

class FantasyScreens : public script::Stage {
 protected:
  FantasyScreens() {
    the<frmStart>().Show();
    click(the<frmStart>().cmdFantasie);
  }
};

TEST_F(FantasyScreens, TheMainMenuHidesBehindTheirMenuAndKeepsTheName) {
  the<frmStart>().txtNaam.Text = "Fien";
  EXPECT_FALSE(the<frmStart>().shown());
  EXPECT_TRUE(only<frmFantasie>()->shown());
  click(only<frmFantasie>()->cmdSluiten);
  EXPECT_TRUE(loaded<frmFantasie>().empty());
  EXPECT_TRUE(the<frmStart>().shown());
  EXPECT_EQ(the<frmStart>().txtNaam.Text, "Fien");
}

TEST_F(FantasyScreens, EachButtonOfTheMenuOpensItsScreenAndSluitenComesBackToAFreshMenu) {
  for (const Way& way : Ways) {
    SCOPED_TRACE(way.caption);
    frmFantasie* menu = loaded<frmFantasie>().back();
    EXPECT_EQ((menu->*way.button).Caption, way.caption);
    const auto menus = loaded<frmFantasie>().size();
    click(menu->*way.button);
    EXPECT_EQ(loaded<frmFantasie>().size(), way.menuStays ? menus : menus - 1);
    if (way.menuStays) {
      EXPECT_TRUE(menu->shown()) << "it lies underneath";
    }
    Form* screen = way.screen();
    ASSERT_NE(screen, nullptr);
    EXPECT_TRUE(screen->shown());
    advance(21'000);
    ASSERT_NE(closing(*screen), nullptr);
    click(*closing(*screen));
    EXPECT_EQ(way.screen(), nullptr) << "the screen is still loaded";
    EXPECT_EQ(loaded<frmFantasie>().size(), way.menuStays ? menus + 1 : menus);
    EXPECT_TRUE(loaded<frmFantasie>().back()->shown());
    EXPECT_FALSE(nextTimerDue().has_value()) << "a timer still runs";
  }
}

TEST_F(FantasyScreens, OfEachThereIsOneThatAnOldMenuFindsAgainButTheWindIsNewEachTime) {
  auto& oldMenu = *only<frmFantasie>();
  click(oldMenu.Command3);
  dispatch([&] { oldMenu.Command3.Click(); });
  EXPECT_EQ(loaded<frmFantasie7>().size(), 1u);
  EXPECT_TRUE(isLoaded<frmFantasie7>());
  dispatch([&] { showNew<frmFantasie>().cmdFantasie.Click(); });
  EXPECT_TRUE(isLoaded<frmFantasie3>());
  for (const std::size_t winds : {1u, 2u}) {
    dispatch([&] { showNew<frmFantasie>().cmdTekenen1.Click(); });
    EXPECT_EQ(loaded<frmFantasie1>().size(), winds);
    EXPECT_FALSE(isLoaded<frmFantasie1>());
  }
}

TEST_F(FantasyScreens, BackOnTheMainMenuNoneOfTheOldMenusIsLeft) {
  for (int visit = 0; visit < 3; ++visit) {
    click(loaded<frmFantasie>().back()->Command3);
    click(the<frmFantasie7>().cmdSluiten);
  }
  EXPECT_EQ(loaded<frmFantasie>().size(), 4u);
  click(loaded<frmFantasie>().back()->cmdSluiten);
  EXPECT_TRUE(loaded<frmFantasie>().empty());
  EXPECT_TRUE(the<frmStart>().shown());
}

TEST_F(FantasyScreens, TheInformationComesBackToTheirMenuAndNoHiddenMenuIsLeftBehind) {
  for (int visit = 0; visit < 3; ++visit) {
    click(loaded<frmFantasie>().back()->cmdInfo);
    EXPECT_FALSE(loaded<frmFantasie>().front()->shown());
    EXPECT_EQ(the<frmInfo>().txtInfo.Text, "2");
    click(the<frmInfo>().cmdEinde);
    EXPECT_FALSE(isLoaded<frmInfo>());
    EXPECT_TRUE(the<frmFantasie>().shown());
  }
  click(the<frmFantasie>().cmdSluiten);
  EXPECT_TRUE(loaded<frmFantasie>().empty());
  EXPECT_TRUE(the<frmStart>().shown());
}

TEST_F(FantasyScreens, KnowTheSizeOfTheirWindowBeforeTheFirstTick) {
  const raster::Rect size = only<frmFantasie>()->innerPixels();
  for (const Way& way : Ways) {
    SCOPED_TRACE(way.caption);
    click(loaded<frmFantasie>().back()->*way.button);
    Form* screen = way.screen();
    EXPECT_EQ(screen->innerPixels(), size);
    dispatch([&] { showNew<frmFantasie>(), Unload(*screen); });
  }
}

TEST_F(FantasyScreens, MoveAsLongAsTheyAreOpen) {
  for (const Way& way : Ways) {
    SCOPED_TRACE(way.caption);
    click(loaded<frmFantasie>().back()->*way.button);
    Form* screen = way.screen();
    if (CommandButton* start = buttonOf(*screen, "Start")) click(*start);
    advance(500);
    const QImage before = shown(*screen);
    advance(1005);
    EXPECT_NE(shown(*screen), before) << "nothing has moved";
    dispatch([&] { showNew<frmFantasie>(), Unload(*screen); });
    advance(0);
  }
}

TEST_F(FantasyScreens, GoOnInAWindowThatChangesItsSize) {
  for (const Way& way : Ways) {
    SCOPED_TRACE(way.caption);
    click(loaded<frmFantasie>().back()->*way.button);
    Form* screen = way.screen();
    if (CommandButton* start = buttonOf(*screen, "Start")) click(*start);
    for (const auto& [width, height] : {std::pair{640, 480}, {1920, 1080}, {160, 60}, {1, 1}}) {
      dispatch([&, w = width, h = height] { screen->windowResized(w, h); });
      advance(700);
      EXPECT_EQ(takeErrorReport(), std::nullopt);
      ASSERT_FALSE(ended());
    }
    dispatch([&] { showNew<frmFantasie>(), Unload(*screen); });
  }
}

TEST_F(FantasyScreens, ShowTheirButtonsWholeAboveTheDrawing) {
  for (const Way& way : Ways) {
    SCOPED_TRACE(way.caption);
    click(loaded<frmFantasie>().back()->*way.button);
    Form* screen = way.screen();
    if (CommandButton* start = buttonOf(*screen, "Start")) click(*start);
    advance(0);
    std::vector<std::pair<CommandButton*, QImage>> buttons;
    for (Control* control : screen->controls())
      if (auto* button = dynamic_cast<CommandButton*>(control); button && button->Visible)
        buttons.emplace_back(button, shown(*screen).copy(script::widgetOf(*button)->geometry()));
    advance(3000);
    for (const auto& [button, image] : buttons)
      EXPECT_EQ(shown(*screen).copy(script::widgetOf(*button)->geometry()), image)
          << button->Caption.get();
    dispatch([&] { showNew<frmFantasie>(), Unload(*screen); });
    advance(0);
  }
}
