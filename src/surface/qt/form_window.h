// The window of a form.
#pragma once

#include <QPointer>
#include <QWidget>

#include "surface/form.h"

namespace surface::qt {

class FormWindow : public QWidget {
 public:
  explicit FormWindow(Form& owner);
  /// Takes over caption, pointer, size, place and top-most state.
  void sync();

  Form* form;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  void applyPlace();
};

std::unique_ptr<FormPeer> makeFormPeer(Form& form);

}  // namespace surface::qt
