// The system's request that the program end, brought from the signal handler into the event loop.
#pragma once

#include <functional>

namespace surface::qt {

/// Runs `act` in the event loop when the system asks the program to end (SIGTERM, SIGHUP, SIGINT),
/// once. It has two seconds; then the program ends in the middle of it, as if it had ended well.
/// Needs a running application. Where there are no such signals nothing ever happens.
void whenAskedToEnd(std::function<void()> act);

}  // namespace surface::qt
