// What can go wrong at run time, and the two ways in which a handler may survive it. An error that
// nobody traps reaches the event dispatcher, which shows the platform's error report and ends the
// program.
#pragma once

#include <new>
#include <stdexcept>
#include <string>

namespace surface {

enum class ErrorKind {
  Overflow,
  SubscriptOutOfRange,
  DivisionByZero,
  TypeMismatch,
  BadPropertyValue,
  OutOfMemory,
  FileNotFound,
  BadFile,
  CannotWrite,
  Cancelled,
};

/// The one exception type of the program's logic.
class RuntimeError : public std::runtime_error {
 public:
  RuntimeError(ErrorKind what, const std::string& text) : std::runtime_error(text), kind(what) {}

  const ErrorKind kind;
};

/// Runs `body`; its first error leaves it silently. Gives true when it ran to its end.
template <class Body>
bool trapAndLeave(Body&& body) {
  try {
    body();
    return true;
  } catch (const RuntimeError&) {
    return false;
  } catch (const std::bad_alloc&) {
    // Lack of memory is an error like any other.
    return false;
  }
}

/// Runs the steps in order; a step that fails is skipped and the next one runs. Each step is one
/// statement of the handler: within a step the first error ends that step.
template <class... Steps>
void resumeNext(Steps&&... steps) {
  (trapAndLeave(steps), ...);
}

}  // namespace surface
