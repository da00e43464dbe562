// A screen that is left on: eight hours by the clock in which it must grow by nothing. The machine
// is so busy that a tick comes only every half minute; all three million of a free one would take a
// test minutes.
#include <malloc.h>

#include <algorithm>

#include "fantasy/frmFantasie1.h"
#include "fantasy/frmFantasie2.h"
#include "fantasy/frmFantasie3.h"
#include "fantasy/frmFantasie4.h"
#include "fantasy/frmFantasie5.h"
#include "fantasy/frmFantasie6.h"
#include "fantasy/frmFantasie7.h"
#include "fantasy/frmFantasie8.h"
#include "support/script.h"
#include "surface/host.h"
#include "surface/timer.h"

#ifdef __SANITIZE_ADDRESS__
// The compiler's headers leave it out.
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();
#endif

using namespace surface;

class EightHours : public script::Stage {
 protected:
  static constexpr std::int64_t Stride = 30'000, Hour = 3'600'000, Strides = 8 * Hour / Stride;
  // A hundred bytes a tick would be more.
  static constexpr std::size_t Slack = 64 * 1024;

  EightHours() {
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

  void expectFlat(std::int64_t leastTicks) {
    pass(Hour);  // in which the toolkit fills its caches
    const std::size_t before = pass(Hour);
    const std::size_t forms = FormRegistry::instance().forms().size();
    pass(5 * Hour);
    const std::size_t after = pass(Hour);
    EXPECT_LE(after, before + Slack) << "grown by " << after - before << " bytes";
    EXPECT_EQ(FormRegistry::instance().forms().size(), forms);
    EXPECT_GE(ticks_, leastTicks);
  }

 private:
#ifdef __SANITIZE_ADDRESS__
  static std::size_t heldBytes() { return __sanitizer_get_current_allocated_bytes(); }
#else
  static std::size_t heldBytes() {
    const auto info = mallinfo2();
    return info.uordblks + info.hblkhd;
  }
#endif

  std::int64_t clock_ = 0, ticks_ = 0;
};

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
