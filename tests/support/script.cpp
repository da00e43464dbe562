// The stage for form scripts.
#include "support/script.h"

#include <QApplication>
#include <QImage>
#include <QTest>
#include <QWidget>
#include <filesystem>
#include <random>

#include "surface/host.h"
#include "surface/qt/form_window.h"
#include "surface/qt/peers.h"
#include "surface/qt/toolkit.h"

using namespace surface;

namespace script {
namespace {

Qt::MouseButton toButton(int button) {
  return button == 2   ? Qt::RightButton
         : button == 4 ? Qt::MiddleButton
         : button == 1 ? Qt::LeftButton
         : button == 8 ? Qt::BackButton  // at the side of some mice
                       : Qt::NoButton;
}

// The window handle and the point in it of a place on a control.
struct Target {
  QWindow* window;
  QPoint at;
};

Target targetOf(Control& control, int x, int y) {
  QWidget* widget = widgetOf(control);
  if (!widget) return {};
  QWidget* top = widget->window();
  return {top->windowHandle(), widget->mapTo(top, QPoint(x, y))};
}

QWidget* windowOf(Form& form) {
  for (QWidget* top : QApplication::topLevelWidgets())
    if (auto* window = dynamic_cast<surface::qt::FormWindow*>(top); window && window->form == &form)
      return window;
  ADD_FAILURE() << "the form has no window";
  return nullptr;
}

// Everything that was posted meanwhile: repaints, and windows that have gone.
void settle() {
  QCoreApplication::sendPostedEvents();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  QCoreApplication::processEvents();
}

// The pointer stands in the middle of a pixel: at a broken factor its corner may lie on a device
// pixel that shows the neighbour.
void point(const Target& target, QEvent::Type type, Qt::MouseButtons held,
           Qt::MouseButton button = Qt::NoButton) {
  if (!target.window) return;
  const QPointF at = target.at + QPointF(0.5, 0.5);
  qt_handleMouseEvent(target.window, at, target.window->mapToGlobal(at), held, button, type,
                      Qt::NoModifier, ++QTest::lastMouseTimestamp);
  settle();
}

void pointerDown(const Target& target, Qt::MouseButton button) {
  QTestPrivate::qtestMouseButtons |= button;
  point(target, QEvent::MouseButtonPress, QTestPrivate::qtestMouseButtons, button);
}

void pointerUp(const Target& target, Qt::MouseButton button) {
  QTestPrivate::qtestMouseButtons &= ~button;
  point(target, QEvent::MouseButtonRelease, QTestPrivate::qtestMouseButtons, button);
  QTest::lastMouseTimestamp += QTest::mouseDoubleClickInterval;  // the next press is not its double
}

// A button that a test pressed and left down would be held in the next test too. The window that it
// was pressed in is gone, so this one gets the release, and nobody hears of it.
void releaseHeldButtons() {
  const Qt::MouseButtons held = QGuiApplication::mouseButtons() | QTestPrivate::qtestMouseButtons;
  QWindow nowhere;
  nowhere.resize(2, 2);
  for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton})
    if (held & button) QTest::mouseRelease(&nowhere, button);
}

}  // namespace

QWidget* widgetOf(Control& control) {
  const auto* peer = dynamic_cast<const surface::qt::HasWidget*>(control.peer());
  QWidget* widget = peer ? peer->widget() : nullptr;
  if (!widget) ADD_FAILURE() << "the control is not on the screen";
  return widget;
}

Stage::Stage() {
  restart();
  app().Command.clear();
  app().Path = ".";
  seedRandom(1);
  setDecimalSeparator('.');
  FormRegistry::instance().noWindowLeft = nullptr;
  installSeams();
}

Stage::~Stage() {
  FormRegistry::instance().clear();
  settle();
  releaseHeldButtons();
  if (errorReport_) ADD_FAILURE() << "the program ended with an error report: " << *errorReport_;
  if (!messages_.empty() || !inputs_.empty() || !files_.empty() || !colors_.empty() ||
      !printers_.empty())
    ADD_FAILURE() << "an answer was never asked for";
  if (!folder_.empty()) std::filesystem::remove_all(folder_);
  surface::qt::install();
}

void Stage::installSeams() {
  Host& seams = host();
  seams.clock = [this] { return now_; };
  seams.timersChanged = nullptr;
  seams.leaveEventLoop = nullptr;
  seams.seed = [] { return std::uint64_t{42}; };
  seams.errorReportBeforeLoss = [this](const std::string& text) {
    errorReport_ = text;
    return std::exchange(rescue_, false);
  };
  seams.errorReport = [this](const std::string& text, bool) { errorReport_ = text; };
  seams.setClipboard = [this](const Picture& picture) { clipboard = picture; };
  seams.getClipboard = [this] { return clipboard; };
  seams.msgBox = [this](const std::string& text, int buttons, const std::string& title) {
    return take<int>(messages_, buttons & YesNo ? No : Ok, {"message", text, title, buttons});
  };
  seams.inputBox = [this](const std::string& prompt, const std::string& title,
                          const std::string& initial) {
    return take(inputs_, {}, {"input", prompt, title, 0, initial});
  };
  seams.fileDialog = [this](const FileRequest& request) {
    return take(
        files_, {},
        {request.save ? "save" : "open", "", "", 0, "", request.filter, request.filterIndex});
  };
  seams.printerDialog = [this] { return take(printers_, false, {"printer"}); };
  seams.printPage = [this](const std::vector<Printed>& page) { pages.push_back(page); };
  seams.colorDialog = [this](Color initial, int flags) {
    return take(colors_, {}, {"color", "", "", flags, std::to_string(initial)});
  };
}

template <class Answer>
Answer Stage::take(std::deque<Answer>& answers, Answer otherwise, const Asked& asked) {
  asked_.push_back(asked);
  if (answers.empty()) {
    ADD_FAILURE() << "no answer for the " << asked.kind << " dialog: " << asked.title << ": "
                  << asked.text;
    return otherwise;
  }
  Answer answer = answers.front();
  answers.pop_front();
  return answer;
}

void Stage::advance(std::int64_t milliseconds) {
  const std::int64_t until = now_ + milliseconds;
  while (!ended()) {
    const auto due = nextTimerDue();
    if (!due || *due > until) break;
    now_ = std::max(now_, *due);
    fireDueTimer();
  }
  now_ = until;
  settle();
}

std::optional<std::string> Stage::takeErrorReport() {
  return std::exchange(errorReport_, std::nullopt);
}

void Stage::press(Control& control, int x, int y, int button) {
  pointerDown(targetOf(control, x, y), toButton(button));
}

void Stage::move(Control& control, int x, int y, int button) {
  point(targetOf(control, x, y), QEvent::MouseMove, toButton(button));
}

void Stage::release(Control& control, int x, int y, int button) {
  pointerUp(targetOf(control, x, y), toButton(button));
}

void Stage::drag(Control& control, int x1, int y1, int x2, int y2, int button) {
  press(control, x1, y1, button);
  move(control, (x1 + x2) / 2, (y1 + y2) / 2, button);
  move(control, x2, y2, button);
  release(control, x2, y2, button);
}

void Stage::click(Control& control, int button) {
  const raster::Rect place = control.pixelPlace();
  press(control, place.width() / 2, place.height() / 2, button);
  // The click may have taken the control off the screen, but only at the release.
  release(control, place.width() / 2, place.height() / 2, button);
}

void Stage::type(const std::string& text) {
  settle();
  if (QWindow* window = QGuiApplication::focusWindow())
    for (const QChar c : QString::fromStdString(text)) QTest::keyClick(window, c.toLatin1());
  settle();
}

void Stage::pressOnForm(Form& form, int x, int y, int button) {
  pointerDown({windowOf(form)->windowHandle(), {x, y}}, toButton(button));
}

void Stage::releaseOnForm(Form& form, int x, int y, int button) {
  pointerUp({windowOf(form)->windowHandle(), {x, y}}, toButton(button));
}

void Stage::closeBox(Form& form) {
  windowOf(form)->close();
  settle();
}

QImage Stage::shown(Control& control) {
  QWidget* widget = widgetOf(control);
  return widget ? widget->grab().toImage() : QImage();
}

QImage Stage::shown(Form& form) { return windowOf(form)->grab().toImage(); }

const std::string& Stage::folder() {
  if (folder_.empty()) {
    std::random_device random;
    folder_ = (std::filesystem::temp_directory_path() / ("kraspret-" + std::to_string(random())))
                  .generic_string();
    std::filesystem::create_directories(folder_);
  }
  return folder_;
}

}  // namespace script
