// The program inside the toolkit: the event loop, and the model's seams filled in with real
// windows, dialogs, files and clocks.
#pragma once

#include <functional>

namespace surface::qt {

/// Fills in every seam of the model; needs a running QApplication.
void install();

/// Runs the program: makes the application, fills in the seams, runs `start` as the first event and
/// then the event loop. Gives the exit status, 0 when the program ended by itself or by its last
/// window.
int run(int argc, char** argv, const std::function<void()>& start);

}  // namespace surface::qt
