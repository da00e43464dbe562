// The widget of a picture box: shows its bitmap, and brings the pointer to it.
#pragma once

#include <QRegion>
#include <QWidget>

#include "surface/qt/peers.h"

namespace surface::qt {

class SurfaceWidget : public QWidget {
 public:
  SurfaceWidget(PictureBox& owner, QWidget& parent);
  void sync(Aspect aspect);

  PictureBox* control;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  // The mark of the focus comes and goes.
  void focusInEvent(QFocusEvent*) override { update(); }
  void focusOutEvent(QFocusEvent*) override { update(); }

 private:
  bool choosesPlace() const;
  void press();
  void paintFocus(QPainter& painter) const;

  QPoint spot_;  ///< where the Space key presses
};

class SurfaceWidgetPeer : public WidgetPeer<SurfaceWidget, SurfacePeer> {
 public:
  using WidgetPeer::WidgetPeer;
  void showPixels(std::span<const raster::Rect> areas, bool atOnce) override {
    if (widget_) qt::showPixels(*widget_, areas, atOnce);
  }
};

/// Paints a surface's bitmap, or its bare colour as long as nothing was drawn.
void paintSurface(QPainter& painter, const DrawingSurface& surface, const QRegion& part);

}  // namespace surface::qt
