// An event of a control or form: at most one handler, set by assignment, fired by a call - by the
// toolkit, by code or by a test.
#pragma once

#include <functional>
#include <utility>

#include "surface/dispatch.h"

namespace surface {

template <class... Args>
class Event {
 public:
  Event() = default;
  Event(const Event&) = delete;
  Event& operator=(const Event&) = delete;

  template <class Handler>
  Event& operator=(Handler handler) {
    handler_ = std::move(handler);
    return *this;
  }

  /// Runs the handler, if there is one. The form that holds the event may be unloaded by it.
  void operator()(Args... args) const {
    HandlerScope scope;
    if (handler_) handler_(args...);
  }

  bool handled() const { return static_cast<bool>(handler_); }

 private:
  std::function<void(Args...)> handler_;
};

/// A pointer event: `Button` is the button pressed or released (1 left, 2 right, 4 middle), or in a
/// move the sum of those held down; `Shift` the sum of 1 shift, 2 control, 4 alt; X and Y in the
/// surface's own scale.
struct Mouse {
  int Button = 0;
  int Shift = 0;
  float X = 0;
  float Y = 0;
};

}  // namespace surface
