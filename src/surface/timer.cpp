// The list of timers that exist, in the order in which they were made.
#include "surface/timer.h"

#include <algorithm>
#include <vector>

#include "surface/form.h"
#include "surface/host.h"

namespace surface {
namespace {

// The shortest period that the platform's timers keep; the animations were made for it.
constexpr std::int64_t ShortestPeriod = 10;

std::vector<TimerControl*>& timers() {
  static std::vector<TimerControl*> all;
  return all;
}

bool exists(const TimerControl* timer) {
  return std::find(timers().begin(), timers().end(), timer) != timers().end();
}

TimerControl* nextTimer() {
  TimerControl* next = nullptr;
  for (TimerControl* timer : timers())
    if (timer->runs() && (!next || timer->due() < next->due())) next = timer;
  return next;
}

void tellHost() {
  if (host().timersChanged) host().timersChanged();
}

}  // namespace

TimerControl::TimerControl(const Form* form, const Design& design)
    : Interval(*this, design.Interval), Enabled(*this, design.Enabled), form_(form) {
  timers().push_back(this);
  restart();
}

TimerControl::~TimerControl() {
  std::erase(timers(), this);
  tellHost();
}

bool TimerControl::runs() const {
  return Enabled && Interval > 0 && !firing_ && !(form_ && form_->unloading());
}

std::int64_t TimerControl::period() const {
  return std::max<std::int64_t>(Interval, ShortestPeriod);
}

void TimerControl::restart() {
  if (Enabled && Interval > 0) due_ = host().clock() + period();
  tellHost();
}

void fireDueTimer() {
  const std::int64_t now = host().clock();
  TimerControl* const timer = nextTimer();
  if (timer && timer->due_ <= now) {
    timer->due_ += timer->period();
    if (timer->due_ <= now) timer->due_ = now + timer->period();
    timer->firing_ = true;
    // The handler may open a dialog, and the other timers go on meanwhile.
    tellHost();
    dispatch([timer] { timer->Timer(); });
    if (ended()) return;
    if (exists(timer)) timer->firing_ = false;
  }
  tellHost();
}

std::optional<std::int64_t> nextTimerDue() {
  const TimerControl* next = nextTimer();
  return next ? std::optional(next->due()) : std::nullopt;
}

}  // namespace surface
