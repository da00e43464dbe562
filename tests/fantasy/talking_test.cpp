// The worms with their talk, and the wheel with its controls that set each other.
#include "fantasy/frmFantasie.h"
#include "fantasy/frmFantasie4.h"
#include "fantasy/frmFantasie6.h"
#include "studio/modTekenen.h"
#include "support/script.h"
#include "support/trace.h"
#include "surface/host.h"

using namespace surface;

class WormsScreen : public script::Stage {
 protected:
  WormsScreen() {
    ScanKolom = 0;
    ScanRij = 0;
    the<frmFantasie4>().Show();
  }
  ~WormsScreen() override {
    ScanKolom = 0;
    ScanRij = 0;
  }
  bool crawls() {
    const auto x = screen.worm.wormX, y = screen.worm.wormY;
    advance(300);
    return screen.worm.wormX != x || screen.worm.wormY != y;
  }
  frmFantasie4& screen = the<frmFantasie4>();
};

TEST_F(WormsScreen, TheFirstWormStartsInTheCornerAndCannotBeLeftWhileItCrawls) {
  EXPECT_EQ(screen.worm.wormX, 0);
  EXPECT_EQ(screen.worm.wormY, 0);
  advance(19'900);
  EXPECT_TRUE(crawls() || screen.lblAntwoord.Visible);
}

TEST_F(WormsScreen, TalksAboutEachOfTheFiveWormsAndTellsTheChildToStopAtLast) {
  struct Talk {
    int interval;
    const char* text;
    CommandButton *shown, *next;
  };
  const Talk talks[] = {
      {20000, "Dit kan zo nog uren doorgaan ! Ermee stoppen of nog een worm ?", nullptr,
       &screen.cmdWorm2},
      {21000, "Blijkbaar is het leuk. Ermee stoppen of nog een worm ?", &screen.cmdWorm2,
       &screen.cmdWorm3},
      {22000, "Nog niet genoeg gehad ? Ermee stoppen of nog een worm ?", &screen.cmdWorm3,
       &screen.cmdWorm4},
      {23000, "Dit scherm is verslavend ! Ermee stoppen of nog een worm ?", &screen.cmdWorm4,
       &screen.cmdWorm5},
      {25000, "Je bent verslaafd geraakt. Daarom kun je nu beter ermee stoppen !", nullptr,
       nullptr},
  };
  for (const Talk& talk : talks) {
    SCOPED_TRACE(talk.interval);
    EXPECT_EQ(screen.Timer3.Interval, talk.interval);
    EXPECT_FALSE(screen.lblAntwoord.Visible);
    EXPECT_FALSE(screen.cmdSluiten.Visible || screen.cmdSluiten.Enabled);
    EXPECT_TRUE(crawls());
    advance(talk.interval - 300);
    EXPECT_FALSE(crawls());
    EXPECT_TRUE(screen.lblAntwoord.Visible);
    EXPECT_EQ(screen.lblAntwoord.Caption, talk.text);
    EXPECT_TRUE(screen.cmdSluiten.Visible && screen.cmdSluiten.Enabled);
    // A child who waits longer sees no change.
    advance(2 * talk.interval);
    EXPECT_EQ(screen.lblAntwoord.Caption, talk.text);
    EXPECT_FALSE(crawls());
    if (!talk.next) break;
    EXPECT_TRUE(talk.next->Visible && talk.next->Enabled);
    click(*talk.next);
  }
  for (CommandButton* worm :
       {&screen.cmdWorm2, &screen.cmdWorm3, &screen.cmdWorm4, &screen.cmdWorm5})
    EXPECT_FALSE(worm->Visible || worm->Enabled);
}

TEST_F(WormsScreen, LaterWormsStartWhereTheColourReplacementLeftOff) {
  ScanKolom = 617.5;  // to the even neighbour
  ScanRij = 537;
  advance(20'000);
  click(screen.cmdWorm2);
  EXPECT_EQ(screen.worm.wormX, 6618);
  EXPECT_EQ(screen.worm.wormY, 3537);
  advance(21'000);
  click(screen.cmdWorm3);
  EXPECT_EQ(screen.worm.wormX, 6618);
  EXPECT_EQ(screen.worm.wormY, 537);
  advance(22'000);
  click(screen.cmdWorm4);
  EXPECT_EQ(screen.worm.wormX, 8618);
  EXPECT_EQ(screen.worm.wormY, 8537);
  advance(23'000);
  click(screen.cmdWorm5);
  EXPECT_EQ(screen.worm.wormX, 9618);
  EXPECT_EQ(screen.worm.wormY, 537);
}

TEST_F(WormsScreen, AtAnEdgeTheWormTurnsWithOneDiscOfEachKind) {
  screen.worm.wormX = 11895;
  screen.worm.wormY = 4000;
  const auto y = screen.worm.wormY;
  advance(100);
  EXPECT_TRUE(screen.Timer2.Enabled && !screen.Timer1.Enabled);
  EXPECT_LT(std::abs(screen.worm.wormY - y), 200) << "one step back and one forth";
  screen.worm.wormX = 0;
  advance(100);
  EXPECT_TRUE(screen.Timer1.Enabled && !screen.Timer2.Enabled);
}

TEST_F(WormsScreen, AtATurnTheDiscOfTheOtherWayIsDrawnFirst) {
  const auto widths = [this](TimerControl& timer) {
    const auto drawn = script::traceOf([&] { dispatch([&] { timer.Timer(); }); });
    EXPECT_EQ(drawn.size(), 2u);
    return std::pair(drawn.front().place[2], drawn.back().place[2]);
  };
  screen.worm.wormX = 11895;
  screen.worm.wormY = 4000;
  EXPECT_EQ(widths(screen.Timer1), std::pair(33.0, 27.0));
  screen.worm.wormX = 0;
  EXPECT_EQ(widths(screen.Timer2), std::pair(27.0, 33.0));
}

TEST_F(WormsScreen, AStartBeyondSixteenBitsEndsInTheErrorReport) {
  advance(20'000);
  ScanRij = 30'000;
  click(screen.cmdWorm2);
  EXPECT_NE(takeErrorReport(), std::nullopt);
  EXPECT_TRUE(ended());
}

TEST_F(WormsScreen, ThePictureCountsWithItsOuterSizeAndKeepsItWhateverTheWindows) {
  dispatch([&] { screen.windowResized(1920, 1080); });
  EXPECT_EQ(screen.Picture1.Width, 11895);
  EXPECT_EQ(screen.Picture1.Height, 8295);
  for (const int beyond : {0, 1}) {
    screen.worm.wormX = 4000;
    screen.worm.wormY = 8294 + beyond;
    screen.Timer1.Enabled = true;
    screen.Timer2.Enabled = false;
    dispatch([&] { screen.Timer1.Timer(); });
    EXPECT_EQ(screen.Timer2.Enabled, beyond == 1);
  }
}

TEST_F(WormsScreen, InTheCornerThatIsBothEndsAtOnceTheWormTurnsAndCrawlsOn) {
  screen.worm.wormX = 0;
  screen.worm.wormY = 8295;
  EXPECT_EQ(script::traceOf([&] { dispatch([&] { screen.Timer1.Timer(); }); }).size(), 2u);
  EXPECT_TRUE(screen.Timer1.Enabled != screen.Timer2.Enabled);
  advance(10'000);
  EXPECT_TRUE(crawls());
}

TEST_F(WormsScreen, AllFiveWormsStayNearThePicture) {
  // To and fro they come ever nearer to the lower left corner, and one in many gets there.
  for (unsigned seed = 1; seed <= 20; ++seed) {
    seedRandom(seed);
    auto& worms = showNew<frmFantasie4>();
    advance(20'000);
    for (CommandButton* next :
         {&worms.cmdWorm2, &worms.cmdWorm3, &worms.cmdWorm4, &worms.cmdWorm5}) {
      dispatch([&] { next->Click(); });
      advance(worms.Timer3.Interval);
      EXPECT_GT(worms.worm.wormX, -3000);
      EXPECT_GT(worms.worm.wormY, -1000);
      EXPECT_LT(worms.worm.wormX, 11895 + 1000);
      EXPECT_LT(worms.worm.wormY, 8295 + 1000);
    }
    dispatch([&] { Unload(worms); });
  }
}

TEST_F(WormsScreen, OldWormsStayOnThePicture) {
  advance(20'000);
  const auto before = screen.Picture1.Image();
  click(screen.cmdWorm2);
  EXPECT_EQ(screen.Picture1.Point({500, 500}), toColor(before.bitmap()->at(33, 33)));
}

class WheelScreen : public script::Stage {
 protected:
  WheelScreen() { the<frmFantasie6>().Show(); }
  frmFantasie6& screen = the<frmFantasie6>();
};

TEST_F(WheelScreen, AfterTheLoadItShrinksByNothingAndTurnsUntilItIsStopped) {
  EXPECT_EQ(screen.txtKleiner.Text, "0");
  EXPECT_EQ(screen.HScroll2.Value, 0);
  EXPECT_EQ(screen.txtSnelheid.Text, "100");
  EXPECT_TRUE(screen.Slider1.Visible && screen.lblSnelheid.Visible && screen.lblSnelheid2.Visible);
  EXPECT_FALSE(screen.cmdPauze.Enabled);
  click(screen.cmdStart);
  advance(100'000);
  EXPECT_EQ(screen.wielToestand, frmFantasie6::Bezig);
  EXPECT_EQ(screen.wiel.straal, 3900);
}

TEST_F(WheelScreen, AtTenItHasThreeHundredAndNinetyLinesAndStopsByItselfInPink) {
  screen.HScroll2.Value = 10;
  EXPECT_EQ(screen.txtKleiner.Text, "10");
  click(screen.cmdStart);
  advance(100 * 390);
  EXPECT_EQ(screen.wielToestand, frmFantasie6::Bezig);
  EXPECT_EQ(screen.wiel.straal, 0);
  advance(100);
  EXPECT_EQ(screen.wielToestand, frmFantasie6::Gestopt);
  EXPECT_EQ(screen.cmdStart.Caption, "Start");
  EXPECT_EQ(screen.cmdStart.BackColor, 0xFF80FF);
  EXPECT_EQ(screen.cmdPauze.Caption, "Pause");
  EXPECT_FALSE(screen.cmdPauze.Enabled);
  EXPECT_FALSE(nextTimerDue().has_value());
}

TEST_F(WheelScreen, StartBecomesStopAndBack) {
  click(screen.cmdStart);
  EXPECT_EQ(screen.cmdStart.Caption, "Stop");
  EXPECT_EQ(screen.cmdStart.BackColor, 0xFF80FF);
  EXPECT_TRUE(screen.cmdPauze.Enabled);
  click(screen.cmdStart);
  EXPECT_EQ(screen.cmdStart.Caption, "Start");
  EXPECT_EQ(screen.cmdStart.BackColor, 0x00FF00);
  EXPECT_FALSE(screen.cmdPauze.Enabled);
  EXPECT_FALSE(screen.Timer1.Enabled);
}

TEST_F(WheelScreen, AnUntouchedSliderMeansATenthOfASecondWhichItCannotGiveItself) {
  click(screen.cmdStart);
  EXPECT_EQ(screen.Timer1.Interval, 100);
  for (int value = 1; value <= 5; ++value) {
    screen.Slider1.scrolled(value);
    EXPECT_NE(screen.txtSnelheid.Text, "100");
  }
}

TEST_F(WheelScreen, PauzeDoesNothingWhileTheWheelStandsStill) {
  dispatch([&] { screen.cmdPauze.Click(); });
  EXPECT_EQ(screen.wielToestand, frmFantasie6::Gestopt);
  EXPECT_EQ(screen.cmdPauze.Caption, "Pauze");
  EXPECT_FALSE(screen.Timer1.Enabled && screen.Timer1.Interval > 0);
}

TEST_F(WheelScreen, PauzeBecomesVerderAndAStopWhilePausedNamesItPause) {
  click(screen.cmdStart);
  click(screen.cmdPauze);
  EXPECT_EQ(screen.cmdPauze.Caption, "Verder");
  EXPECT_EQ(screen.cmdPauze.BackColor, 0xFF80FF);
  EXPECT_FALSE(screen.Timer1.Enabled);
  click(screen.cmdPauze);
  EXPECT_EQ(screen.cmdPauze.Caption, "Pauze");
  EXPECT_EQ(screen.cmdPauze.BackColor, 0x00FFFF);
  EXPECT_TRUE(screen.Timer1.Enabled);
  click(screen.cmdPauze);
  click(screen.cmdStart);
  EXPECT_EQ(screen.cmdPauze.Caption, "Pause");
  EXPECT_FALSE(screen.cmdPauze.Enabled);
  EXPECT_EQ(screen.cmdStart.Caption, "Start");
  EXPECT_EQ(screen.wielToestand, frmFantasie6::Gestopt);
}

TEST_F(WheelScreen, AStopWhilePausedLeavesThePinkTheHiddenSpeedAndTheJumps) {
  click(screen.cmdKleurrijk);
  screen.HScroll2.Value = 20;
  click(screen.cmdPauze);
  click(screen.cmdStart);
  EXPECT_EQ(screen.cmdStart.BackColor, 0xFF80FF);
  EXPECT_EQ(screen.cmdPauze.BackColor, 0xFF80FF);
  EXPECT_FALSE(screen.Slider1.Visible);
  EXPECT_FALSE(nextTimerDue().has_value());
  click(screen.cmdStart);
  EXPECT_EQ(screen.wiel.kleurStap, 255);
}

TEST_F(WheelScreen, StartShowsTheShrinkBarThatTheSpeedHasHidden) {
  screen.Slider1.scrolled(2);
  EXPECT_FALSE(screen.HScroll2.Visible || screen.lblVerklein.Visible);
  click(screen.cmdStart);
  EXPECT_TRUE(screen.HScroll2.Visible && screen.lblVerklein.Visible);
  EXPECT_TRUE(screen.Slider1.Visible);
}

TEST_F(WheelScreen, ASecondRunGoesOnOnTheColourCircleAndItsFirstLineDoesNotShow) {
  click(screen.cmdStart);
  advance(100 * 130);
  EXPECT_EQ(screen.wiel.kleurFase, 2);
  click(screen.cmdStart);
  click(screen.cmdStart);
  EXPECT_EQ(screen.wiel.kleurFase, 2);
  EXPECT_EQ(screen.wiel.hoek, 0);
  const auto empty = screen.Image();
  advance(100);
  EXPECT_EQ(screen.wiel.hoek, 3);
  const auto pixels = screen.bitmap();
  for (int y = 0; y < pixels->height(); ++y)
    for (int x = 0; x < pixels->width(); ++x)
      ASSERT_EQ(pixels->at(x, y), empty.bitmap()->at(x, y)) << x << ", " << y;
}

TEST_F(WheelScreen, KleurrijkWhileItTurnsStartsAllOver) {
  screen.HScroll4.Value = 1024;
  screen.HScroll2.Value = 20;
  click(screen.cmdStart);
  advance(3000);
  click(screen.cmdKleurrijk);
  EXPECT_EQ(screen.wielToestand, frmFantasie6::Bezig);
  EXPECT_EQ(screen.HScroll4.Value, 0);
  EXPECT_EQ(screen.HScroll2.Value, 0);
  EXPECT_EQ(screen.txtBeginkleur.BackColor, 0x0000FF);
  EXPECT_EQ(screen.wiel.straal, 3900);
  EXPECT_EQ(screen.wiel.huidigRood, 255);
  EXPECT_EQ(screen.Timer1.Interval, 100);
  EXPECT_EQ(screen.cmdStart.Caption, "Stop");
  EXPECT_FALSE(screen.holdsDrawing());
}

TEST_F(WheelScreen, AFractionOfAShrinkGoesToTheEvenNeighbour) {
  screen.txtKleiner.Text = "12.5";
  EXPECT_EQ(screen.HScroll2.Value, 12);
  EXPECT_EQ(screen.txtKleiner.Text, "12");
}

TEST_F(WheelScreen, TheShrinkBarHidesTheSpeedAndTheSpeedTheShrinkBar) {
  screen.HScroll2.Value = 1;
  EXPECT_FALSE(screen.Slider1.Visible || screen.lblSnelheid.Visible || screen.lblSnelheid2.Visible);
  click(screen.cmdStart);
  click(screen.cmdStart);
  EXPECT_TRUE(screen.Slider1.Visible);
  screen.Slider1.scrolled(5);
  EXPECT_FALSE(screen.HScroll2.Visible || screen.lblVerklein.Visible);
  // The slider stood on a shrink bar in use: that puts it back to the middle and hides it.
  EXPECT_EQ(screen.HScroll2.Value, 0);
  EXPECT_EQ(screen.Slider1.Value, 3);
  EXPECT_FALSE(screen.Slider1.Visible);
  EXPECT_EQ(screen.txtSnelheid.Text, "150");
}

TEST_F(WheelScreen, EachSpeedHasItsIntervalAndShowsItTheOtherWayRound) {
  const char* const rows[][2] = {
      {"5", "300"}, {"75", "225"}, {"150", "150"}, {"225", "75"}, {"300", "5"}};
  for (int value = 1; value <= 5; ++value) {
    screen.Slider1.scrolled(value);
    EXPECT_EQ(screen.txtSnelheid.Text, rows[value - 1][0]);
    EXPECT_EQ(screen.lblSnelheid.Caption, rows[value - 1][1]);
    EXPECT_EQ(screen.Slider1.Value, value);
  }
  click(screen.cmdStart);
  EXPECT_EQ(screen.Timer1.Interval, 300);
}

TEST_F(WheelScreen, KleurrijkJumpsAndTheStartAfterItsStopGlidesAgain) {
  click(screen.cmdKleurrijk);
  EXPECT_FALSE(screen.cmdKleurrijk.Visible || screen.cmdKleurrijk.Enabled);
  EXPECT_EQ(screen.wielToestand, frmFantasie6::Bezig);
  EXPECT_EQ(screen.wiel.kleurStap, 255);
  advance(1000);
  click(screen.cmdStart);
  EXPECT_EQ(screen.txtAantalKleuren.Text, "2");
  EXPECT_TRUE(screen.cmdKleurrijk.Visible && screen.cmdKleurrijk.Enabled);
  click(screen.cmdStart);
  EXPECT_EQ(screen.wiel.kleurStap, 2);
}

TEST_F(WheelScreen, TheBoxShowsTheFirstColourAndTheNextRunBeginsWithIt) {
  EXPECT_EQ(screen.txtBeginkleur.BackColor, 0x0000FF);
  screen.HScroll4.Value = 1024;
  EXPECT_EQ(screen.txtBeginkleur.BackColor, 0xFF0000);
  EXPECT_EQ(screen.txtBeginkleur.ForeColor, 0xFF0000);
  click(screen.cmdStart);
  EXPECT_EQ(screen.wiel.huidigRood, 0);
  EXPECT_EQ(screen.wiel.huidigBlauw, 255);
  click(screen.cmdStart);
  screen.HScroll4.Value = 700;
  click(screen.cmdStart);
  EXPECT_EQ(screen.wiel.huidigGroen, 255);
  EXPECT_EQ(screen.wiel.huidigBlauw, 188);
  screen.HScroll4.Value = 1536;
  EXPECT_EQ(screen.txtBeginkleur.BackColor, Black);
}

TEST_F(WheelScreen, ItsBarsStepByTheirSteps) {
  EXPECT_EQ(screen.HScroll4.SmallChange, 64);
  EXPECT_EQ(screen.HScroll4.LargeChange, 100);
  EXPECT_EQ(screen.HScroll2.SmallChange, 1);
  EXPECT_EQ(screen.HScroll2.LargeChange, 10);
}

TEST_F(WheelScreen, WithoutAnIntervalItTurnsInALoopThatPauzeOrSluitenEnd) {
  screen.txtSnelheid.Text = "";
  int rounds = 0;
  host().doEvents = [&] {
    if (++rounds == 50) dispatch([&] { screen.cmdStart.Click(); });
  };
  click(screen.cmdStart);
  EXPECT_EQ(rounds, 50);
  EXPECT_EQ(screen.wielToestand, frmFantasie6::Gestopt);
  rounds = 0;
  host().doEvents = [&] {
    if (++rounds == 50) dispatch([&] { screen.cmdSluiten.Click(); });
  };
  click(screen.cmdStart);
  EXPECT_EQ(rounds, 50);
  EXPECT_FALSE(isLoaded<frmFantasie6>());
}

TEST_F(WheelScreen, AFinishedWheelStaysUntilTheNextStartClearsIt) {
  screen.HScroll2.Value = 100;
  click(screen.cmdStart);
  advance(10'000);
  const auto wheel = screen.Image();
  advance(10'000);
  EXPECT_EQ(wheel.bitmap(), screen.Image().bitmap());
  click(screen.cmdStart);
  EXPECT_EQ(screen.wiel.straal, 3900);
  EXPECT_EQ(screen.Point({6000, 4100}), 0xE0E0E0);
}
