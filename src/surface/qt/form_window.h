// The window of a form.
#pragma once

#include <QPointer>
#include <QScrollArea>
#include <QWidget>

#include "surface/form.h"

namespace surface::qt {

class FormWindow;

/// The inside of the window: the form's own drawing with its controls above it. It is as large as
/// the window, or as its controls need it.
class FormCanvas : public QWidget {
 public:
  explicit FormCanvas(FormWindow& owner);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  FormWindow& window_;
  bool pressed_ = false;  // on the bare form, not on a control
};

class FormWindow : public QWidget {
 public:
  explicit FormWindow(Form& owner);
  /// Takes over caption, pointer and top-most state.
  void sync();
  /// Takes the form's place over.
  void place();
  /// Takes the form's size over; a centred window that nobody has moved stays in the middle.
  void fit();
  /// Puts the stops of the Tab key into the order of the declarations.
  void orderStops();
  FormCanvas& canvas() { return *canvas_; }

  Form* form;

 protected:
  void closeEvent(QCloseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void moveEvent(QMoveEvent* event) override;

 private:
  void takeSize();
  /// Where the window stands in the middle of the screen.
  QPoint middle() const;

  // Scrolls when the window is too small for what it shows.
  QScrollArea* scroll_;
  FormCanvas* canvas_;
};

std::unique_ptr<FormPeer> makeFormPeer(Form& form);

/// The window before which a dialog opens: the one that the running handler has shown last, and the
/// active one if it has shown none. May be null.
QWidget* frontWindow();

/// The inner size of a maximised window: that of the last one, and what the screen offers before
/// there was any.
raster::Rect maximisedSize();

}  // namespace surface::qt
