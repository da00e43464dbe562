// The widget of the line and shape controls: nothing but their dots, above the widgets declared
// before it and out of the pointer's reach.
#pragma once

#include <QWidget>

#include "surface/control.h"

namespace surface::qt {

class FigureWidget : public QWidget {
 public:
  FigureWidget(Control& owner, QWidget& parent);
  void sync(Aspect aspect);

  Control* control;

 protected:
  void paintEvent(QPaintEvent*) override;
};

}  // namespace surface::qt
