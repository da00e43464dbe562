// The event dispatcher, the only place where every exception is caught: beyond it lies the toolkit,
// which must never see one.
#include "surface/dispatch.h"

#include <new>
#include <utility>
#include <vector>

#include "surface/errors.h"
#include "surface/form.h"
#include "surface/host.h"

namespace surface {
namespace {

struct ProgramEnd {};

bool hasEnded = false;
// While a drawing is being saved before the end: its dialogs are answered, other events are not.
bool rescuing = false;
std::vector<std::function<void()>> postponed;
std::vector<std::function<void()>> repaints;

void finishProgram() {
  hasEnded = true;
  if (host().leaveEventLoop) host().leaveEventLoop();
}

// The report, and before the program ends the drawings that are at stake, each by its form's own
// way of saving.
void reportAndRescue(const std::string& text) {
  std::vector<Form*> atStake = formsWithDrawing();
  std::erase_if(atStake, [](const Form* form) { return !form->SaveSheet.handled(); });
  if (atStake.empty() || !host().errorReportBeforeLoss) {
    if (host().errorReport) host().errorReport(text, true);
  } else if (host().errorReportBeforeLoss(text)) {
    rescuing = true;
    for (Form* form : atStake) form->SaveSheet();
  }
}

void failProgram(const std::string& text) {
  // From here on no other handler runs, although the report lets the toolkit's events in.
  hasEnded = true;
  try {
    reportAndRescue(text);
  } catch (const std::exception&) {
    // A drawing that cannot be saved any more is lost; the program still ends in good order.
  }
  rescuing = false;
  finishProgram();
}

void guarded(const std::function<void()>& action) {
  try {
    action();
  } catch (const ProgramEnd&) {
    finishProgram();
  } catch (const std::bad_alloc&) {
    failProgram("Out of memory");
  } catch (const std::exception& error) {
    failProgram(error.what());
  } catch (...) {
    failProgram("Unexpected error");
  }
}

// An action may put off another one. One that fails keeps no other from its turn.
void runAll(std::vector<std::function<void()>>& list) {
  while (!list.empty()) {
    const auto actions = std::exchange(list, {});
    for (const auto& action : actions) guarded(action);
  }
}

}  // namespace

int HandlerScope::depth_ = 0;

void HandlerScope::finish() {
  runAll(repaints);
  runAll(postponed);
}

void whenHandlersReturned(std::function<void()> action) {
  if (HandlerScope::running())
    postponed.push_back(std::move(action));
  else
    guarded(action);
}

void whenIdle(std::function<void()> action) {
  if (HandlerScope::running())
    repaints.push_back(std::move(action));
  else
    guarded(action);
}

void showPending() { runAll(repaints); }

void DoEvents() {
  showPending();
  if (host().doEvents) host().doEvents();
  if (hasEnded) throw ProgramEnd{};
}

void dispatch(const std::function<void()>& handler) {
  if (hasEnded) return;
  guarded([&] {
    HandlerScope scope;
    handler();
    showPending();
  });
}

bool trapAndReport(const std::function<void()>& body) {
  try {
    body();
    return true;
  } catch (const RuntimeError& error) {
    showPending();
    if (host().errorReport) host().errorReport(error.what(), false);
    return false;
  }
}

void End() {
  hasEnded = true;
  throw ProgramEnd{};
}

bool ended() { return hasEnded && !rescuing; }
void restart() { hasEnded = false; }

}  // namespace surface
