// The list of timers that exist, in the order in which they were made.
#include "surface/timer.h"

#include <algorithm>
#include <vector>

#include "surface/host.h"

namespace surface {
namespace {

// The shortest period that the platform's timers keep; the animations were made for it.
constexpr std::int64_t ShortestPeriod = 10;

std::vector<TimerControl*>& timers() {
  static std::vector<TimerControl*> all;
  return all;
}

void tellHost() {
  if (host().timersChanged) host().timersChanged();
}

}  // namespace

TimerControl::TimerControl(const Design& design)
    : Interval(*this, design.Interval), Enabled(*this, design.Enabled) {
  timers().push_back(this);
  restart();
}

TimerControl::~TimerControl() {
  std::erase(timers(), this);
  tellHost();
}

std::int64_t TimerControl::period() const {
  return std::max<std::int64_t>(Interval, ShortestPeriod);
}

void TimerControl::restart() {
  if (runs()) due_ = host().clock() + period();
  tellHost();
}

void fireDueTimers() {
  const std::int64_t now = host().clock();
  // A tick may make or destroy timers, so only those that still exist are fired.
  const auto before = timers();
  for (TimerControl* timer : before) {
    const auto& all = timers();
    if (std::find(all.begin(), all.end(), timer) == all.end()) continue;
    if (!timer->runs() || timer->due_ > now) continue;
    timer->due_ += timer->period();
    if (timer->due_ <= now) timer->due_ = now + timer->period();
    dispatch([timer] { timer->Timer(); });
    if (ended()) return;
  }
  tellHost();
}

std::optional<std::int64_t> nextTimerDue() {
  std::optional<std::int64_t> next;
  for (const TimerControl* timer : timers())
    if (timer->runs() && (!next || timer->due() < *next)) next = timer->due();
  return next;
}

}  // namespace surface
