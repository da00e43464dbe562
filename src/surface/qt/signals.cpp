// The handler does nothing but write a byte into a pipe; the event loop reads it.
#include "surface/qt/signals.h"

#include <QtGlobal>

#ifdef Q_OS_UNIX

#include <fcntl.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QSocketNotifier>
#include <array>
#include <cerrno>
#include <csignal>
#include <utility>

namespace surface::qt {
namespace {

constexpr unsigned SecondsToEnd = 2;

// Written before the handlers stand, and never again.
std::array<int, 2> askedPipe;

void asked(int) {
  const int former = errno;
  const char byte = 0;
  // A full pipe holds the request already.
  [[maybe_unused]] const auto count = write(askedPipe[1], &byte, 1);
  errno = former;
}

void tooLate(int) { _exit(0); }

void handle(int signal, void (*handler)(int)) {
  struct sigaction former {};
  sigaction(signal, nullptr, &former);
  // Whoever started the program may want it to outlive its terminal.
  if (former.sa_handler == SIG_IGN) return;
  struct sigaction action {};
  action.sa_handler = handler;
  action.sa_flags = SA_RESTART;
  sigemptyset(&action.sa_mask);
  sigaction(signal, &action, nullptr);
}

}  // namespace

void whenAskedToEnd(std::function<void()> act) {
  if (pipe2(askedPipe.data(), O_CLOEXEC | O_NONBLOCK) != 0) return;
  auto* notifier =
      new QSocketNotifier(askedPipe[0], QSocketNotifier::Read, QCoreApplication::instance());
  QObject::connect(notifier, &QSocketNotifier::activated, notifier,
                   [notifier, act = std::move(act)] {
                     notifier->setEnabled(false);
                     handle(SIGALRM, tooLate);
                     alarm(SecondsToEnd);
                     act();
                   });
  for (const int signal : {SIGTERM, SIGHUP, SIGINT}) handle(signal, asked);
}

}  // namespace surface::qt

#else

namespace surface::qt {
void whenAskedToEnd(std::function<void()>) {}
}  // namespace surface::qt

#endif
