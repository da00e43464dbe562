// The program inside the toolkit: the event loop, and the model's seams filled in with real
// windows, dialogs, files and clocks.
#pragma once

#include <functional>
#include <string>

namespace surface::qt {

/// Fills in every seam of the model; needs a running QApplication.
void install();

/// What the program does, and when.
struct Program {
  std::function<void()> start;   ///< the first event
  std::function<void()> logOut;  ///< the desktop logs out, and waits for an answer
  /// The system ends the program at once; what is to be kept goes into the user's pictures folder.
  std::function<void(const std::string& pictures)> rescue;
};

/// The system ends the program: rescues the drawings, whatever dialog or report is open, and lets
/// no handler run any more.
void endFromOutside(const Program& program);

/// Runs the program: makes the application, fills in the seams, starts the program and then the
/// event loop. Gives the exit status: 0 when the program ended by itself, by its last window or by
/// the system, 1 when there is no screen to show it on.
int run(int argc, char** argv, const Program& program);

}  // namespace surface::qt
