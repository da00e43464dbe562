// What systems do each in their own way: how a program is started, what its toolkit must be told,
// how it is asked to end. system_posix.cpp and system_windows.cpp.
#pragma once

#include <QVariant>
#include <functional>
#include <map>

#include "surface/app.h"

namespace surface::qt {

/// The folder and the command line that the program was started with.
App startedAs(int argc, char** argv);

/// Before there is an application: what the toolkit has to know on this system.
void prepareToolkit();

/// Dialogs of the toolkit write down their sizes and where they were when they go. While this lives
/// that leads to nothing, or is undone at its end: declare it before the dialog.
class NothingKept {
 public:
  NothingKept();
  ~NothingKept();
  NothingKept(const NothingKept&) = delete;
  NothingKept& operator=(const NothingKept&) = delete;

 private:
  std::map<QString, QVariant> former_;  ///< what other programs had written there
};

/// Runs `act` once when the system wants the program gone and nobody can be asked: SIGTERM, SIGHUP
/// or SIGINT; on Windows the forced end of a session, which waits for it. On the others it runs in
/// the event loop and has two seconds; then the program ends in the middle of it, as if it had
/// ended well. Needs a running application.
void whenAskedToEnd(std::function<void()> act);

}  // namespace surface::qt
