// The start of the program on Windows, in wide letters: the narrow command line has lost those that
// the system's code page lacks.
#include <windows.h>
// It needs the types of the one above.
#include <shellapi.h>

#include <QAbstractNativeEventFilter>
#include <QCoreApplication>
#include <QFileInfo>
#include <QSettings>
#include <QString>
#include <QtGlobal>
#include <memory>
#include <string>
#include <utility>

#include "surface/qt/system.h"

namespace surface::qt {
namespace {

constexpr DWORD LongestPath = 32768;

std::string programFolder() {
  std::wstring path(LongestPath, L'\0');
  const DWORD length = GetModuleFileNameW(nullptr, path.data(), LongestPath);
  return QFileInfo(QString::fromWCharArray(path.data(), static_cast<int>(length)))
      .absolutePath()
      .toStdString();
}

std::string commandLine() {
  int count = 0;
  const std::unique_ptr<wchar_t*, decltype(&LocalFree)> words(
      CommandLineToArgvW(GetCommandLineW(), &count), &LocalFree);
  QStringList all;
  for (int i = 1; words && i < count; ++i) all += QString::fromWCharArray(words.get()[i]);
  return all.join(' ').toStdString();
}

// A window hears of it, inside of whatever loop runs just then. What is not forced is left to the
// toolkit, which asks for a question to the child.
class EndOfSession : public QAbstractNativeEventFilter {
 public:
  explicit EndOfSession(std::function<void()> act) : act_(std::move(act)) {}

  bool nativeEventFilter(const QByteArray&, void* message, qintptr* result) override {
    const MSG& told = *static_cast<const MSG*>(message);
    if (told.message != WM_QUERYENDSESSION || !(told.lParam & ENDSESSION_CRITICAL)) return false;
    *result = TRUE;
    // Every window is told.
    if (act_) std::exchange(act_, nullptr)();
    return true;
  }

 private:
  std::function<void()> act_;
};

}  // namespace

App startedAs(int, char**) { return {programFolder(), commandLine()}; }

void prepareToolkit() {
  // Letters by the engine that draws them elsewhere too have the same dots.
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
    qputenv("QT_QPA_PLATFORM", "windows:fontengine=freetype");
}

// The registry takes all; programs with the same toolkit share this part of it.
NothingKept::NothingKept() {
  const QSettings settings(QSettings::UserScope, "QtProject");
  for (const QString& key : settings.allKeys()) former_[key] = settings.value(key);
}

NothingKept::~NothingKept() {
  QSettings settings(QSettings::UserScope, "QtProject");
  settings.clear();
  for (const auto& [key, value] : former_) settings.setValue(key, value);
  settings.sync();
  if (!former_.empty()) return;
  RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\QtProject\\OrganizationDefaults");
  // Refused if there is something else in it.
  RegDeleteKeyW(HKEY_CURRENT_USER, L"Software\\QtProject");
}

void whenAskedToEnd(std::function<void()> act) {
  static EndOfSession forced(std::move(act));
  QCoreApplication::instance()->installNativeEventFilter(&forced);
}

}  // namespace surface::qt
