// The push button: the classic raised face in exactly its BackColor, with a picture or a caption
// that wraps.
#pragma once

#include <QPixmap>
#include <QPushButton>
#include <memory>

#include "surface/qt/peers.h"

namespace surface::qt {

class ButtonWidget : public QPushButton {
 public:
  ButtonWidget(CommandButton& owner, QWidget& parent);
  void sync(Aspect aspect);

  CommandButton* control;

 protected:
  void paintEvent(QPaintEvent*) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QPixmap picture_;
};

/// The raised (or sunken) edge of two pixels round a face.
void drawClassicEdge(QPainter& painter, const QRect& area, bool sunken);
/// The mark of what has the keyboard, on pictures and texts of any colour.
void drawFocus(QPainter& painter, const QRect& area);

}  // namespace surface::qt
