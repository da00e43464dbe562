// Timers that tick while the thread is idle, on a clock that a test can turn by hand.
#pragma once

#include <cstdint>
#include <optional>

#include "surface/event.h"
#include "surface/prop.h"

namespace surface {

class Form;

/// Fires `Timer` every Interval milliseconds (0 = never, no faster than every 10) while Enabled. A
/// tick that comes late comes once, and none comes while its own handler runs. The timers of a form
/// that is being unloaded are dead.
class TimerControl {
  void restart();

 public:
  struct Design {
    int Interval = 0;
    bool Enabled = true;
  };
  TimerControl(const Form& form, const Design& design) : TimerControl(&form, design) {}
  /// A timer of no form.
  explicit TimerControl(const Design& design) : TimerControl(nullptr, design) {}
  ~TimerControl();
  TimerControl(const TimerControl&) = delete;
  TimerControl& operator=(const TimerControl&) = delete;

  Prop<int, &TimerControl::restart> Interval;
  Prop<bool, &TimerControl::restart> Enabled;
  Event<> Timer;

  bool runs() const;
  std::int64_t due() const { return due_; }

 private:
  friend void fireDueTimer();
  TimerControl(const Form* form, const Design& design);
  std::int64_t period() const;

  const Form* form_;
  bool firing_ = false;
  std::int64_t due_ = 0;
};

/// Fires the timer that has been due for longest by the clock; of two, the one that was declared
/// first. For the event loop when it is idle: it shows what a tick has drawn before the next one.
void fireDueTimer();
/// The clock's milliseconds at which the next timer is due, if one runs.
std::optional<std::int64_t> nextTimerDue();

}  // namespace surface
