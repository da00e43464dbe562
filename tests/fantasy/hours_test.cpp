// A screen that is left on must grow by nothing: in eight hours by the clock on a machine so busy
// that a tick comes only every half minute, and in the first twenty thousand ticks of a free one.
// All its three million would take a test minutes.
#include <algorithm>

#include "fantasy/frmFantasie1.h"
#include "fantasy/frmFantasie2.h"
#include "fantasy/frmFantasie3.h"
#include "fantasy/frmFantasie4.h"
#include "fantasy/frmFantasie5.h"
#include "fantasy/frmFantasie6.h"
#include "fantasy/frmFantasie7.h"
#include "fantasy/frmFantasie8.h"
#include "support/held_bytes.h"
#include "support/script.h"
#include "surface/host.h"
#include "surface/timer.h"

using namespace surface;

class LeftOn : public script::Stage {
 protected:
  static constexpr std::int64_t Stride = 30'000, Hour = 3'600'000, Strides = 8 * Hour / Stride;
  // A hundred bytes a late tick would be more, and so would four at full tempo.
  static constexpr std::size_t Slack = 64 * 1024;

  LeftOn() {
    host().clock = [this] { return clock_; };
  }

  /// Gives the fewest bytes that are held on the way: how much of the screen waits to be painted
  /// anew goes up and down with the drawing.
  std::size_t pass(std::int64_t milliseconds) {
    std::size_t least = heldBytes();
    for (const std::int64_t until = clock_ + milliseconds; clock_ < until;) {
      clock_ += Stride;
      while (nextTimerDue().value_or(clock_ + 1) <= clock_) {
        fireDueTimer();
        ++ticks_;
      }
      advance(0);  // the screen shows what has changed
      if (clock_ % (10 * Stride) == 0) least = std::min(least, heldBytes());
    }
    return least;
  }

  /// The same for ticks that come when they are due.
  std::size_t tick(int count) {
    std::size_t least = heldBytes();
    for (int i = 1; i <= count; ++i) {
      const auto due = nextTimerDue();
      if (!due) ADD_FAILURE() << "it stands still";
      clock_ = due.value_or(clock_);
      fireDueTimer();
      if (i % 50 != 0) continue;
      advance(0);
      least = std::min(least, heldBytes());
    }
    return least;
  }

  void expectFlat(std::int64_t leastTicks) {
    pass(Hour);  // in which the toolkit fills its caches
    const std::size_t before = pass(Hour);
    const std::size_t forms = FormRegistry::instance().forms().size();
    pass(5 * Hour);
    expectNoGrowth(before, pass(Hour), forms);
    EXPECT_GE(ticks_, leastTicks);
  }

  void expectFlatAtFullTempo() {
#ifdef __SANITIZE_ADDRESS__
    constexpr int Ticks = 5'000;  // each takes several times as long
#else
    constexpr int Ticks = 20'000;
#endif
    tick(1'000);
    const std::size_t before = tick(1'000);
    const std::size_t forms = FormRegistry::instance().forms().size();
    tick(Ticks - 3'000);
    expectNoGrowth(before, tick(1'000), forms);
  }

 private:
  static void expectNoGrowth(std::size_t before, std::size_t after, std::size_t forms) {
    EXPECT_LE(after, before + Slack) << "grown by " << after - before << " bytes";
    EXPECT_EQ(FormRegistry::instance().forms().size(), forms);
  }

  std::int64_t clock_ = 0, ticks_ = 0;
};

class EightHours : public LeftOn {};
class FullTempo : public LeftOn {};

TEST_F(EightHours, OfLateTicksLeaveNothingBehindOfTheWind) {
  auto& screen = showNew<frmFantasie1>();
  screen.Slider1.scrolled(50);
  click(screen.cmdStart);
  expectFlat(Strides);
}

TEST_F(EightHours, OfLateTicksLeaveNothingBehindOfTheKaleidoscope) {
  the<frmFantasie2>().Show();
  expectFlat(2 * Strides);
}

TEST_F(EightHours, OfLateTicksLeaveNothingBehindOfTheFlower) {
  the<frmFantasie3>().Show();
  click(the<frmFantasie3>().cmdSnel);
  expectFlat(Strides);
}

TEST_F(EightHours, OfLateTicksLeaveNothingBehindOfTheWorms) {
  the<frmFantasie4>().Show();
  expectFlat(Strides);
  EXPECT_TRUE(the<frmFantasie4>().cmdWorm2.Visible) << "it still waits for the child";
}

TEST_F(EightHours, OfLateTicksLeaveNothingBehindOfTheFireworks) {
  the<frmFantasie5>().Show();
  click(the<frmFantasie5>().cmdMeer);
  expectFlat(2 * Strides);
}

TEST_F(EightHours, OfLateTicksLeaveNothingBehindOfTheWheel) {
  the<frmFantasie6>().Show();
  the<frmFantasie6>().Slider1.scrolled(1);
  click(the<frmFantasie6>().cmdStart);
  expectFlat(Strides);
  EXPECT_EQ(the<frmFantasie6>().wielToestand, frmFantasie6::Bezig);
}

TEST_F(EightHours, OfLateTicksLeaveNothingBehindOfTheStars) {
  the<frmFantasie7>().Show();
  click(the<frmFantasie7>().cmdSneller);
  click(the<frmFantasie7>().cmdKleurrijk);
  expectFlat(Strides);
}

TEST_F(EightHours, OfLateTicksLeaveNothingBehindOfTheLightning) {
  the<frmFantasie8>().Show();
  expectFlat(Strides);
}

// Points are painted by the same loop however many they are: a tenth of them at these two.
TEST_F(FullTempo, LeavesNothingBehindOfTheWind) {
  auto& screen = showNew<frmFantasie1>();
  screen.Slider1.scrolled(5);
  click(screen.cmdStart);
  expectFlatAtFullTempo();
}

TEST_F(FullTempo, LeavesNothingBehindOfTheFlower) {
  the<frmFantasie3>().Show();
  expectFlatAtFullTempo();
}

TEST_F(FullTempo, LeavesNothingBehindOfTheKaleidoscope) {
  the<frmFantasie2>().Show();
  expectFlatAtFullTempo();
}

TEST_F(FullTempo, LeavesNothingBehindOfTheWorms) {
  the<frmFantasie4>().Show();
  expectFlatAtFullTempo();
}

TEST_F(FullTempo, LeavesNothingBehindOfTheFireworks) {
  the<frmFantasie5>().Show();
  click(the<frmFantasie5>().cmdMeer);
  expectFlatAtFullTempo();
}

TEST_F(FullTempo, LeavesNothingBehindOfTheWheel) {
  the<frmFantasie6>().Show();
  the<frmFantasie6>().Slider1.scrolled(1);
  click(the<frmFantasie6>().cmdStart);
  expectFlatAtFullTempo();
  EXPECT_EQ(the<frmFantasie6>().wielToestand, frmFantasie6::Bezig);
}

TEST_F(FullTempo, LeavesNothingBehindOfTheStars) {
  the<frmFantasie7>().Show();
  click(the<frmFantasie7>().cmdSneller);
  click(the<frmFantasie7>().cmdKleurrijk);
  expectFlatAtFullTempo();
}

TEST_F(FullTempo, LeavesNothingBehindOfTheLightning) {
  the<frmFantasie8>().Show();
  expectFlatAtFullTempo();
}
