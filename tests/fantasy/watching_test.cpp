// The screens that a child watches: fireworks, kaleidoscope, lightning, stars, flower and wind.
#include <algorithm>
#include <cmath>

#include "fantasy/frmFantasie1.h"
#include "fantasy/frmFantasie2.h"
#include "fantasy/frmFantasie3.h"
#include "fantasy/frmFantasie5.h"
#include "fantasy/frmFantasie7.h"
#include "fantasy/frmFantasie8.h"
#include "fantasy/paper.h"
#include "support/script.h"

using namespace surface;

namespace {

int painted(const DrawingSurface& surface) {
  const auto pixels = surface.bitmap();
  int count = 0;
  for (int y = 0; y < pixels->height(); ++y)
    for (int x = 0; x < pixels->width(); ++x)
      count += pixels->at(x, y) != toPixel(surface.BackColor);
  return count;
}

/// The one that can be pressed shows, the other one waits hidden.
void expectPair(CommandButton& seen, CommandButton& waiting) {
  EXPECT_TRUE(seen.Visible && seen.Enabled) << seen.Caption.get();
  EXPECT_FALSE(waiting.Visible || waiting.Enabled) << waiting.Caption.get();
}

template <class F>
class Watching : public script::Stage {
 protected:
  Watching() { the<F>().Show(); }
  F& screen = the<F>();
};

}  // namespace

class FireworksScreen : public Watching<frmFantasie5> {};

TEST_F(FireworksScreen, LaunchesTheFirstBurstAfterATenthOfASecondAndGoesOnForever) {
  advance(99);
  EXPECT_EQ(painted(screen.picVuurwerk), 0);
  advance(100);
  EXPECT_GT(painted(screen.picVuurwerk), 100);
  advance(60'000);
  EXPECT_GT(painted(screen.picVuurwerk), 1000);
}

TEST_F(FireworksScreen, KeepsItsSizeWhateverTheWindows) {
  EXPECT_EQ(screen.picVuurwerk.Width, 11895);
  EXPECT_EQ(screen.picVuurwerk.Height, 8295);
  dispatch([&] { screen.windowResized(1920, 1080); });
  EXPECT_EQ(screen.picVuurwerk.innerPixels(), (raster::Rect{0, 0, 793, 553}));
}

TEST_F(FireworksScreen, ChangesBetweenFineAndCoarseAndClearsTheTrailsButNotTheSparks) {
  advance(1000);
  const auto active = screen.vuurwerk.vonkActief;
  click(screen.cmdHemel);
  EXPECT_EQ(painted(screen.picVuurwerk), 0);
  EXPECT_EQ(screen.vuurwerk.vonkActief, active);
  EXPECT_EQ(screen.picVuurwerk.DrawStyle, 2);
  expectPair(screen.cmdHemel2, screen.cmdHemel);
  advance(1000);
  click(screen.cmdHemel2);
  EXPECT_EQ(painted(screen.picVuurwerk), 0);
  EXPECT_EQ(screen.picVuurwerk.DrawStyle, 0);
  expectPair(screen.cmdHemel, screen.cmdHemel2);
}

TEST_F(FireworksScreen, TheQuietTempoIsSlowerThanTheOneItOpenedWith) {
  EXPECT_EQ(screen.Timer2.Interval, 100);
  click(screen.cmdMeer);
  EXPECT_EQ(screen.Timer1.Interval, 1);
  EXPECT_EQ(screen.Timer2.Interval, 10);
  expectPair(screen.cmdMinder, screen.cmdMeer);
  click(screen.cmdMinder);
  EXPECT_EQ(screen.Timer1.Interval, 10);
  EXPECT_EQ(screen.Timer2.Interval, 200);
  expectPair(screen.cmdMeer, screen.cmdMinder);
}

TEST_F(FireworksScreen, ARisingSparkLeavesATrailThatStaysWhenItHasGone) {
  auto& sky = screen.vuurwerk;
  screen.Timer2.Enabled = false;
  sky.vonkActief[1] = true;
  sky.vonkHoek[1] = 90;
  sky.vonkSnelheid[1] = 250;
  sky.vonkX[1] = 4000;
  sky.vonkY[1] = 8295;
  sky.vonkKleur[1] = {255, 200, 150};
  advance(1000);
  EXPECT_FALSE(sky.vonkActief[1]);
  EXPECT_GT(painted(screen.picVuurwerk), 100);
}

TEST_F(FireworksScreen, HevigAndRustigPutTheSizesBackAndLeaveTheSparksInFlight) {
  for (CommandButton* button : {&screen.cmdMeer, &screen.cmdMinder}) {
    advance(1000);
    auto& sky = screen.vuurwerk;
    sky.hoekSpreiding = sky.valSpreiding = sky.snelheidSpreiding = sky.vonkMaat = 1;
    const auto places = sky.vonkX;
    click(*button);
    EXPECT_EQ(sky.hoekSpreiding, 5);
    EXPECT_EQ(sky.valSpreiding, 60);
    EXPECT_EQ(sky.snelheidSpreiding, 30);
    EXPECT_EQ(sky.vonkMaat, 40);
    EXPECT_EQ(sky.vonkX, places);
  }
}

class KaleidoscopeScreen : public Watching<frmFantasie2> {};

TEST_F(KaleidoscopeScreen, TheFirstFigureIsDrawnDuringTheLoadAndTheTimerGoesOn) {
  EXPECT_GT(screen.modKaleidos.lijnTeller, 0);
  EXPECT_TRUE(screen.Timer1.Enabled);
  const int before = screen.modKaleidos.lijnTeller;
  advance(500);
  EXPECT_GT(screen.modKaleidos.lijnTeller, before + 40);
}

TEST_F(KaleidoscopeScreen, ANewPictureBeginsEveryThirtySeconds) {
  advance(29'990);
  const int lines = screen.modKaleidos.lijnTeller;
  EXPECT_GT(lines, 10'000);
  advance(100);
  EXPECT_LT(screen.modKaleidos.lijnTeller, 500);
}

TEST_F(KaleidoscopeScreen, GroterStartsOverAndItsFirstFigureIsWiped) {
  advance(300);
  click(screen.cmdVergroten);
  EXPECT_EQ(painted(screen), 0);
  EXPECT_TRUE(screen.modKaleidos.hoekMarkeren);
  EXPECT_FALSE(screen.modKaleidos.nieuwBeeld)
      << "the next figure joins the picture of the wiped one";
  EXPECT_LE(screen.modKaleidos.lijnTeller, 22);
  EXPECT_EQ(screen.BackColor, 0xE0E0E0);
  advance(300);
  EXPECT_GT(painted(screen), 0);
}

TEST_F(KaleidoscopeScreen, EnormLeavesTheSpokesAwayUntilTheNextStart) {
  click(screen.cmdHoekmarkering);
  EXPECT_FALSE(screen.modKaleidos.hoekMarkeren);
  EXPECT_TRUE(screen.modKaleidos.nieuwBeeld);
  click(screen.cmdNacht);
  EXPECT_TRUE(screen.modKaleidos.hoekMarkeren);
}

TEST_F(KaleidoscopeScreen, TragerWaitsFourTenthsOfASecondAndTheOthersHurryAgain) {
  click(screen.cmdLangzaam);
  EXPECT_TRUE(screen.modKaleidos.nieuwBeeld);
  EXPECT_EQ(screen.Timer1.Interval, 400);
  advance(400);
  const int before = screen.modKaleidos.lijnTeller;
  advance(399);
  EXPECT_EQ(screen.modKaleidos.lijnTeller, before);
  for (CommandButton* button : {&screen.cmdVergroten, &screen.cmdHoekmarkering, &screen.cmdNacht}) {
    click(screen.cmdLangzaam);
    click(*button);
    EXPECT_EQ(screen.Timer1.Interval, 1) << button->Caption.get();
  }
}

TEST_F(KaleidoscopeScreen, NachtIsBlackAndGroterGreyAgain) {
  click(screen.cmdNacht);
  EXPECT_EQ(screen.Point({15, 15}), Black);
  advance(100);
  EXPECT_EQ(screen.Point({15, 15}), Black);
  click(screen.cmdVergroten);
  EXPECT_EQ(screen.Point({15, 15}), 0xE0E0E0);
}

TEST_F(KaleidoscopeScreen, APictureBegunByAButtonLivesForTheRestOfTheThirtySeconds) {
  advance(20'000);
  click(screen.cmdVergroten);
  advance(9'990);
  EXPECT_GT(screen.modKaleidos.lijnTeller, 3'000);
  advance(100);
  EXPECT_LT(screen.modKaleidos.lijnTeller, 500);
}

TEST_F(KaleidoscopeScreen, EnormWipesThePictureAndEndsTheNight) {
  click(screen.cmdNacht);
  advance(500);
  click(screen.cmdHoekmarkering);
  EXPECT_EQ(screen.BackColor, 0xE0E0E0);
  EXPECT_EQ(painted(screen), 0);
}

class LightningScreen : public Watching<frmFantasie8> {};

TEST_F(LightningScreen, DrawsItsKindFirstThenThePlaceThenTheWayAndTheStepOfEachOuterRow) {
  seedRandom(9);
  Random told;
  told.fix(9);
  const SizeF outer{screen.Width, screen.Height};  // the window may still settle after the bolt
  advance(10);
  EXPECT_EQ(screen.bliksem.bliksemSoort, std::floor(told.Rnd() * 5.0));
  EXPECT_EQ(static_cast<float>(screen.bliksem.PosL.size()), outer.Height / 15);
  double x = std::floor(outer.Width * static_cast<double>(told.Rnd()) + 1);
  for (const float place : screen.bliksem.PosL) {
    const bool left = told.Rnd() < 0.5f;
    const double step = std::floor(told.Rnd() * 25.0) + 1;
    x += left ? -step : step;
    ASSERT_EQ(place, static_cast<float>(x));
  }
}

TEST_F(LightningScreen, GoesThroughItsThreeStagesInAStrictCycle) {
  for (int bolt = 0; bolt < 20; ++bolt) {
    advance(10);
    const int wide = painted(screen);
    EXPECT_GT(wide, 0);
    EXPECT_TRUE(screen.Timer2.Enabled && !screen.Timer1.Enabled);
    advance(10);
    const int thin = painted(screen);

    EXPECT_LT(thin, wide);
    advance(10);
    EXPECT_EQ(painted(screen), 0);
    EXPECT_TRUE(screen.Timer1.Enabled && !screen.Timer2.Enabled);
  }
}

class StarsScreen : public Watching<frmFantasie7> {};

TEST_F(StarsScreen, AreSpreadOverTheWindowFromTheFirstTickOn) {
  advance(100);
  EXPECT_EQ(screen.sterren.sterRij, screen.innerPixels().height() / 40 + 1);
  EXPECT_GE(painted(screen), 35);
  EXPECT_LE(painted(screen), 41);
}

TEST_F(StarsScreen, TheFirstPlacesUseTheWholeWidthOfTheWindow) {
  const auto& places = screen.sterren.sterX;
  const int width = screen.innerPixels().width();
  EXPECT_LT(*std::min_element(places.begin(), places.end()), width / 8);
  EXPECT_GT(*std::max_element(places.begin(), places.end()), width * 7 / 8);
}

TEST_F(StarsScreen, SpreadAnewInAWindowOfAnotherHeight) {
  dispatch([&] { screen.windowResized(640, 1000); });
  EXPECT_EQ(screen.sterren.sterRij, 26);
}

TEST_F(StarsScreen, SnellerAndTragerGiveAllStarsNewPlacesAndSpeeds) {
  const Sterren opened = screen.sterren;
  click(screen.cmdSneller);
  EXPECT_EQ(screen.Timer1.Interval, 1);
  const Sterren faster = screen.sterren;
  EXPECT_NE(faster.sterX, opened.sterX);
  EXPECT_NE(faster.sterSnelheid, opened.sterSnelheid);
  expectPair(screen.cmdTrager, screen.cmdSneller);
  click(screen.cmdTrager);
  EXPECT_EQ(screen.Timer1.Interval, 100);
  EXPECT_NE(screen.sterren.sterX, faster.sterX);
  EXPECT_NE(screen.sterren.sterSnelheid, faster.sterSnelheid);
  expectPair(screen.cmdSneller, screen.cmdTrager);
}

TEST_F(StarsScreen, KleurrijkShowsColoursAndGewoonWhiteAgain) {
  click(screen.cmdKleurrijk);
  EXPECT_EQ(screen.txtKleurrijk.Text, "1");
  expectPair(screen.cmdWitzwart, screen.cmdKleurrijk);
  advance(200);
  EXPECT_GT(painted(screen), 60);
  click(screen.cmdWitzwart);
  EXPECT_EQ(screen.txtKleurrijk.Text, "0");
  expectPair(screen.cmdKleurrijk, screen.cmdWitzwart);
  advance(200);
  EXPECT_LE(painted(screen), 41);
}

class FlowerScreen : public Watching<frmFantasie3> {};

TEST_F(FlowerScreen, SnellerStartsTheFlowerOverAtTheFastTempo) {
  advance(300);
  EXPECT_GT(painted(screen), 100);
  click(screen.cmdSnel);
  EXPECT_EQ(screen.txt1.Text, "2");
  EXPECT_EQ(painted(screen), 0);
  expectPair(screen.cmdTraag, screen.cmdSnel);
  advance(300);
  EXPECT_GT(painted(screen), 1000);
  click(screen.cmdTraag);
  EXPECT_EQ(screen.txt1.Text, "1");
  EXPECT_EQ(painted(screen), 0);
  expectPair(screen.cmdSnel, screen.cmdTraag);
}

TEST_F(FlowerScreen, MiddagStartsTheFlowerOverAndLastsUntilTheNextTempo) {
  advance(300);
  click(screen.cmdMiddag);
  EXPECT_EQ(painted(screen), 0);
  EXPECT_EQ(screen.BackColor, 0xC0FFFF);
  EXPECT_EQ(screen.lblBloem.BackColor, 0xC0FFFF);
  click(screen.cmdSnel);
  EXPECT_EQ(screen.BackColor, 0xE0E0E0);
  EXPECT_EQ(screen.lblBloem.BackColor, 0xE0E0E0);
}

TEST_F(FlowerScreen, ItsScaleNeverMovesTheButtons) {
  const raster::Rect place = screen.cmdSluiten.pixelPlace();
  const float left = (advance(10), screen.cmdSluiten.Left.get());
  advance(60'000);
  EXPECT_EQ(screen.cmdSluiten.pixelPlace(), place);
  EXPECT_EQ(screen.cmdSluiten.Left, left);
}

class WindScreen : public script::Stage {
 protected:
  frmFantasie1* screen = &showNew<frmFantasie1>();
};

TEST_F(WindScreen, IsEmptyAndStillBeforeStart) {
  screen->Slider1.scrolled(40);
  advance(5000);
  EXPECT_EQ(painted(*screen), 0);
  EXPECT_EQ(screen->txt1.Text, "100");
}

TEST_F(WindScreen, TheSliderTakesEffectAtTheNextTick) {
  click(screen->cmdStart);
  expectPair(screen->cmdOpnieuw, screen->cmdStart);
  advance(50);
  EXPECT_EQ(screen->txt1.Text, "10");
  screen->Slider1.scrolled(50);
  EXPECT_EQ(screen->txt1.Text, "10");
  advance(50);
  EXPECT_EQ(screen->txt1.Text, "50");
}

TEST_F(WindScreen, OpnieuwGivesAnEmptyScreenWithTheSliderAtTen) {
  click(screen->cmdStart);
  screen->Slider1.scrolled(33);
  advance(500);
  click(screen->cmdOpnieuw);
  ASSERT_EQ(FormRegistry::instance().forms().size(), 1u);
  auto& fresh = dynamic_cast<frmFantasie1&>(*FormRegistry::instance().forms().front());
  advance(1000);
  EXPECT_EQ(painted(fresh), 0);
  EXPECT_EQ(fresh.Slider1.Value, 10);
  expectPair(fresh.cmdStart, fresh.cmdOpnieuw);
}
