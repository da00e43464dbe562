// How events enter the program's logic: one at a time, each handler to its end. What must wait
// until the outermost handler has returned (unloaded forms, repainting) waits here.
#pragma once

#include <functional>
#include <string>

namespace surface {

/// Marks that a handler is running. When the outermost one ends, whatever was put off happens.
class HandlerScope {
 public:
  HandlerScope() { ++depth_; }
  ~HandlerScope() {
    if (--depth_ == 0) finish();
  }
  HandlerScope(const HandlerScope&) = delete;
  HandlerScope& operator=(const HandlerScope&) = delete;

  static bool running() { return depth_ > 0; }

 private:
  static void finish();
  static int depth_;
};

/// Puts an action off until the outermost handler has returned; at once if none runs.
void whenHandlersReturned(std::function<void()> action);

/// Puts repainting off until the event that is being handled has been dealt with; at once if none
/// is. Unlike the above it also happens when the event came in while a dialog of an outer handler
/// is open.
void whenIdle(std::function<void()> action);
/// Does now what whenIdle has put off: before a dialog opens.
void showPending();

/// Lets the events that wait be handled in the middle of a handler, and shows what it has drawn.
/// Ends the handler if one of them has ended the program.
void DoEvents();

/// The one entry from the toolkit. Runs `handler`; an untrapped error is shown in the platform's
/// error report and ends the program, End() ends it silently. After the end no handler runs any
/// more.
void dispatch(const std::function<void()>& handler);

/// Runs `body`; its first error is shown in the platform's error report, and the program goes on
/// behind it. Gives true when it ran to its end.
bool trapAndReport(const std::function<void()>& body);

/// Ends the program at once: nothing behind it in the handler runs, and no further event arrives.
[[noreturn]] void End();
/// True once the program has ended; the event loop is left as soon as it gets the turn.
bool ended();
/// For tests: takes the end back.
void restart();

}  // namespace surface
