// What systems do each in their own way: how a program is started, what its toolkit must be told,
// how it is asked to end. system_posix.cpp and system_windows.cpp.
#pragma once

#include <functional>

#include "surface/app.h"

namespace surface::qt {

/// The folder and the command line that the program was started with.
App startedAs(int argc, char** argv);

/// Before there is an application: what the toolkit has to know on this system.
void prepareToolkit();

/// Runs `act` in the event loop when the system asks the program to end (SIGTERM, SIGHUP, SIGINT),
/// once. It has two seconds; then the program ends in the middle of it, as if it had ended well.
/// Needs a running application. Where there are no such signals nothing ever happens.
void whenAskedToEnd(std::function<void()> act);

}  // namespace surface::qt
