// The stage for a form script: real widgets on the offscreen screen, a clock that is turned by
// hand, dialogs that are answered from a script, and a pointer that presses through the window.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "surface/surface.h"

class QImage;
class QWidget;

namespace script {

/// What a dialog was asked, in the order of the asking: message boxes, input boxes, file and colour
/// dialogs, the printer's.
struct Asked {
  std::string kind;  ///< "message", "input", "open", "save", "color", "printer"
  std::string text = {};
  std::string title = {};
  int buttons = 0;
  std::string initial = {};
  std::string filter = {};
  int filterIndex = 0;
};

/// Base of every form test. A dialog that no answer was given for fails the test and quotes the
/// dialog; so does an answer that was never asked for.
class Stage : public ::testing::Test {
 public:
  Stage();
  ~Stage() override;

  // The answers to come, one queue a kind of dialog.
  void answerMessage(int answer) { messages_.push_back(answer); }
  void answerInput(const std::string& text) { inputs_.push_back(text); }
  void cancelInput() { inputs_.push_back(std::nullopt); }
  void answerFile(const std::string& path) { files_.push_back(path); }
  void cancelFile() { files_.push_back(std::nullopt); }
  void answerColor(surface::Color color) { colors_.push_back(color); }
  void cancelColor() { colors_.push_back(std::nullopt); }
  void answerPrinter(bool chosen) { printers_.push_back(chosen); }
  const std::vector<Asked>& asked() const { return asked_; }

  /// Lets the clock run: every timer that falls due fires at its moment.
  void advance(std::int64_t milliseconds);

  /// The report of an error, untrapped or survived, if one was shown. A test that expects one takes
  /// it; otherwise it fails the test.
  std::optional<std::string> takeErrorReport();
  /// The next report that offers to save a drawing is answered with yes, once; otherwise with no.
  void saveInErrorReport() { rescue_ = true; }

  /// The pages that were printed.
  std::vector<std::vector<surface::Printed>> pages;

  // The clipboard, kept in the test.
  surface::Picture clipboard;

  // A real pointer, in pixels of the control; the control's window must be shown.
  void press(surface::Control& control, int x, int y, int button = 1);
  void move(surface::Control& control, int x, int y, int button = 0);
  void release(surface::Control& control, int x, int y, int button = 1);
  /// Press, moves on the way, release.
  void drag(surface::Control& control, int x1, int y1, int x2, int y2, int button = 1);
  /// Press and release in the middle.
  void click(surface::Control& control, int button = 1);
  void type(const std::string& text);
  void pressOnForm(surface::Form& form, int x, int y, int button = 1);
  void releaseOnForm(surface::Form& form, int x, int y, int button = 1);
  /// Presses the window's close box.
  void closeBox(surface::Form& form);

  /// What the window shows of a control right now.
  static QImage shown(surface::Control& control);
  static QImage shown(surface::Form& form);

  /// A fresh folder of the test's own, removed at its end.
  const std::string& folder();

 private:
  template <class Answer>
  Answer take(std::deque<Answer>& answers, Answer otherwise, const Asked& asked);
  void installSeams();

  std::deque<int> messages_;
  std::deque<std::optional<std::string>> inputs_, files_;
  std::deque<std::optional<surface::Color>> colors_;
  std::deque<bool> printers_;
  std::vector<Asked> asked_;
  std::optional<std::string> errorReport_;
  bool rescue_ = false;
  std::int64_t now_ = 0;
  std::string folder_;
};

/// The widget of a control that is on the screen; a failure and null otherwise.
QWidget* widgetOf(surface::Control& control);

}  // namespace script
