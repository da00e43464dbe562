// The start from a shell or a launcher, and the signals: a handler does nothing but write a byte
// into a pipe, which the event loop reads.
#include <fcntl.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QFileInfo>
#include <QSettings>
#include <QSocketNotifier>
#include <QStandardPaths>
#include <array>
#include <cerrno>
#include <csignal>
#include <string>
#include <utility>

#include "surface/qt/system.h"

namespace surface::qt {
namespace {

// The folder of the path that was typed, with links left as they are: an installed launcher gives
// each user a folder of his own.
std::string folderOf(const char* typed) {
  QString path = QString::fromLocal8Bit(typed);
  if (!path.contains('/')) path = QStandardPaths::findExecutable(path);
  return QFileInfo(path).absolutePath().toStdString();
}

std::string joined(int argc, char** argv) {
  std::string all;
  for (int i = 1; i < argc; ++i) all += (i > 1 ? " " : "") + std::string(argv[i]);
  return all;
}

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

App startedAs(int argc, char** argv) { return {folderOf(argv[0]), joined(argc, argv)}; }

void prepareToolkit() {}

// Beneath a file nothing can be made.
NothingKept::NothingKept() {
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope,
                     QCoreApplication::applicationFilePath());
}

NothingKept::~NothingKept() = default;

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
