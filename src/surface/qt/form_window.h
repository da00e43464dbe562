// The window of a form.
#pragma once

#include <QPointer>
#include <QWidget>

#include "surface/form.h"

namespace surface::qt {

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

  Form* form;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void moveEvent(QMoveEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  void takeSize();
  /// Where the window stands in the middle of the screen.
  QPoint middle() const;
};

std::unique_ptr<FormPeer> makeFormPeer(Form& form);

}  // namespace surface::qt
