// Timers on a clock that is turned by hand.
#include <memory>

#include "support/script.h"
#include "surface/dialogs.h"
#include "surface/errors.h"
#include "surface/form.h"
#include "surface/host.h"
#include "surface/timer.h"

using namespace surface;

class Timers : public script::Stage {
 protected:
  /// Puts the clock on without giving the timers a turn: a handler is busy.
  void beBusy(std::int64_t milliseconds) { *lag += milliseconds; }

  Timers() {
    host().clock = [inner = host().clock, lag = lag] { return inner() + *lag; };
  }
  static void count(TimerControl& timer, int& ticks) {
    timer.Timer = [&ticks] { ++ticks; };
  }

 private:
  std::shared_ptr<std::int64_t> lag = std::make_shared<std::int64_t>(0);
};

TEST_F(Timers, TickEveryIntervalMilliseconds) {
  TimerControl timer({.Interval = 100});
  int ticks = 0;
  count(timer, ticks);
  advance(99);
  EXPECT_EQ(ticks, 0);
  advance(1);
  EXPECT_EQ(ticks, 1);
  advance(950);
  EXPECT_EQ(ticks, 10);
}

TEST_F(Timers, AnIntervalOfZeroNeverTicksWhateverEnabledSays) {
  TimerControl timer({.Interval = 0, .Enabled = true});
  int ticks = 0;
  count(timer, ticks);
  timer.Enabled = true;
  advance(100'000);
  EXPECT_EQ(ticks, 0);
  EXPECT_FALSE(nextTimerDue().has_value());
}

TEST_F(Timers, ADisabledTimerNeverTicks) {
  TimerControl timer({.Interval = 50, .Enabled = false});
  int ticks = 0;
  count(timer, ticks);
  advance(1000);
  EXPECT_EQ(ticks, 0);
  timer.Enabled = true;
  advance(50);
  EXPECT_EQ(ticks, 1);
}

TEST_F(Timers, NoneTicksFasterThanEveryTenMilliseconds) {
  TimerControl timer({.Interval = 1});
  int ticks = 0;
  count(timer, ticks);
  advance(9);
  EXPECT_EQ(ticks, 0);
  advance(991);
  EXPECT_EQ(ticks, 100);
}

TEST_F(Timers, ALateTickComesOnce) {
  TimerControl timer({.Interval = 100});
  int ticks = 0;
  count(timer, ticks);
  beBusy(1030);
  fireDueTimer();
  EXPECT_EQ(ticks, 1);
  fireDueTimer();
  EXPECT_EQ(ticks, 1) << "a burst";
  // From then on the beat goes on.
  beBusy(100);
  fireDueTimer();
  EXPECT_EQ(ticks, 2);
}

TEST_F(Timers, ATickThatIsALittleLateDoesNotShiftTheBeat) {
  TimerControl timer({.Interval = 100});
  int ticks = 0;
  count(timer, ticks);
  beBusy(130);
  fireDueTimer();
  beBusy(70);
  fireDueTimer();
  EXPECT_EQ(ticks, 2);
}

TEST_F(Timers, ANewIntervalStartsTheWaitAnew) {
  TimerControl timer({.Interval = 100});
  int ticks = 0;
  count(timer, ticks);
  advance(90);
  timer.Interval = 50;
  advance(49);
  EXPECT_EQ(ticks, 0);
  advance(1);
  EXPECT_EQ(ticks, 1);
}

TEST_F(Timers, OneThatATickDisablesDoesNotTickInTheSameTurn) {
  TimerControl first({.Interval = 100}), second({.Interval = 100});
  int ticks = 0;
  first.Timer = [&] { second.Enabled = false; };
  count(second, ticks);
  advance(100);
  EXPECT_EQ(ticks, 0);
}

TEST_F(Timers, OneThatATickDestroysDoesNotTickInTheSameTurn) {
  TimerControl first({.Interval = 100});
  auto second = std::make_unique<TimerControl>(TimerControl::Design{.Interval = 100});
  int ticks = 0;
  first.Timer = [&] { second.reset(); };
  count(*second, ticks);
  advance(100);
  EXPECT_EQ(ticks, 0);
  EXPECT_EQ(second, nullptr);
}

TEST_F(Timers, OneThatATickMakesWaitsItsOwnInterval) {
  TimerControl first({.Interval = 100});
  std::unique_ptr<TimerControl> second;
  int ticks = 0;
  first.Timer = [&] {
    if (second) return;
    second = std::make_unique<TimerControl>(TimerControl::Design{.Interval = 30});
    count(*second, ticks);
  };
  advance(129);
  EXPECT_EQ(ticks, 0);
  advance(1);
  EXPECT_EQ(ticks, 1);
}

TEST_F(Timers, ATickMayUnloadTheFormOfItsTimer) {
  class Moment : public Form {
   public:
    Moment() : Form({}) {
      Timer1.Timer = [this] {
        Unload(*this);
        gone = true;
      };
    }
    bool gone = false;
    TimerControl Timer1{*this, {.Interval = 20}};
  };
  the<Moment>().Show();
  advance(20);
  EXPECT_FALSE(isLoaded<Moment>());
  EXPECT_FALSE(nextTimerDue().has_value()) << "its timer still runs";
}

TEST_F(Timers, AnErrorInATickEndsTheProgramAndNoOtherTicks) {
  TimerControl first({.Interval = 100}), second({.Interval = 100});
  int ticks = 0;
  first.Timer = [] { throw RuntimeError(ErrorKind::DivisionByZero, "Division by zero"); };
  count(second, ticks);
  advance(1000);
  EXPECT_EQ(takeErrorReport(), "Division by zero");
  EXPECT_TRUE(ended());
  EXPECT_EQ(ticks, 0);
}

TEST_F(Timers, GoOnWhileTheMessageBoxOfATickStands) {
  TimerControl asks({.Interval = 100}), other({.Interval = 30});
  int ticks = 0, boxes = 0;
  count(other, ticks);
  asks.Timer = [&] {
    asks.Enabled = false;
    MsgBox("Klaar !!!");
  };
  host().msgBox = [&](const std::string&, int, const std::string&) {
    ++boxes;
    const int before = ticks;
    advance(300);
    EXPECT_EQ(ticks - before, 10);
    return static_cast<int>(Ok);
  };
  advance(100);
  EXPECT_EQ(boxes, 1);
}

TEST_F(Timers, ATimerThatAsksSomethingAsksItOnce) {
  TimerControl asks({.Interval = 100});
  int boxes = 0;
  asks.Timer = [&] { MsgBox("Klaar !!!"); };
  host().msgBox = [&](const std::string&, int, const std::string&) {
    if (++boxes < 5) advance(1000);
    return static_cast<int>(Ok);
  };
  advance(100);
  EXPECT_EQ(boxes, 1);
  advance(100);
  EXPECT_EQ(boxes, 2) << "it goes on when its own box is closed";
}

TEST_F(Timers, OfAnUnloadedFormAreDeadAtOnce) {
  class Clock : public Form {
   public:
    Clock() : Form({}) {
      Timer1.Timer = [this] { ++ticks; };
    }
    int ticks = 0;
    TimerControl Timer1{*this, {.Interval = 20}};
  };
  Clock& clock = the<Clock>();
  dispatch([&] {
    Unload(clock);
    EXPECT_FALSE(nextTimerDue().has_value());
    // As behind a message box of the same handler.
    advance(100);
    EXPECT_EQ(clock.ticks, 0) << "the object lives until the handler has returned";
  });
}

TEST_F(Timers, TwoThatAreDueAtOnceTickInTheOrderOfTheirDeclarationOneATurn) {
  TimerControl slow({.Interval = 100}), fast({.Interval = 10});
  std::string ticks;
  slow.Timer = [&] { ticks += 's'; };
  fast.Timer = [&] { ticks += 'f'; };
  advance(90);
  ticks.clear();
  beBusy(10);
  fireDueTimer();
  EXPECT_EQ(ticks, "s");
  fireDueTimer();
  EXPECT_EQ(ticks, "sf");
}

TEST_F(Timers, TheOneThatHasWaitedLongestTicksFirst) {
  TimerControl slow({.Interval = 100}), fast({.Interval = 30});
  std::string ticks;
  slow.Timer = [&] { ticks += 's'; };
  fast.Timer = [&] { ticks += 'f'; };
  beBusy(100);
  for (int turn = 0; turn < 3; ++turn) fireDueTimer();
  EXPECT_EQ(ticks, "fs");
}
