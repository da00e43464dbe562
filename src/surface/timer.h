// Timers that tick while the thread is idle, on a clock that a test can turn by hand.
#pragma once

#include <cstdint>
#include <optional>

#include "surface/event.h"
#include "surface/prop.h"

namespace surface {

/// Fires `Timer` every Interval milliseconds (0 = never, no faster than every 10) while Enabled. A
/// tick that comes late comes once.
class TimerControl {
  void restart();

 public:
  struct Design {
    int Interval = 0;
    bool Enabled = true;
  };
  explicit TimerControl(const Design& design);
  ~TimerControl();
  TimerControl(const TimerControl&) = delete;
  TimerControl& operator=(const TimerControl&) = delete;

  Prop<int, &TimerControl::restart> Interval;
  Prop<bool, &TimerControl::restart> Enabled;
  Event<> Timer;

  bool runs() const { return Enabled && Interval > 0; }
  std::int64_t due() const { return due_; }

 private:
  friend void fireDueTimers();
  std::int64_t period() const;

  std::int64_t due_ = 0;
};

/// Fires, once each, the timers that are due by the clock. For the event loop when it is idle.
void fireDueTimers();
/// The clock's milliseconds at which the next timer is due, if one runs.
std::optional<std::int64_t> nextTimerDue();

}  // namespace surface
