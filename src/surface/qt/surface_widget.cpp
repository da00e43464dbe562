// The sheet on the screen. The bitmap's own memory is painted, without a copy.
#include "surface/qt/surface_widget.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

#include "surface/qt/button.h"
#include "surface/qt/factor.h"
#include "surface/qt/images.h"
#include "surface/qt/pointer.h"

namespace surface::qt {
void paintSurface(QPainter& painter, const DrawingSurface& surface, const QRegion& part) {
  if (surface.blank()) {
    for (const QRect& area : part) painter.fillRect(area, toQColor(surface.BackColor));
    return;
  }
  const auto bitmap = surface.bitmap();
  showSquares(painter, wrapped(*bitmap), part);
}

SurfaceWidget::SurfaceWidget(PictureBox& owner, QWidget& parent)
    : QWidget(&parent), control(&owner) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMouseTracking(true);
  // What is chosen from can be reached by keyboard; what is drawn on is for the pointer.
  if (!owner.AutoRedraw && (owner.Click.handled() || owner.MouseDown.handled()))
    setFocusPolicy(Qt::TabFocus);
  spot_ = toQRect(owner.innerPixels()).center();
  makePeers(owner, *this);
}

void SurfaceWidget::sync(Aspect aspect) {
  if (aspect == Aspect::Look && control->Raised) update();
  applyCommon(*this, *control, aspect);
}

void SurfaceWidget::paintEvent(QPaintEvent* event) {
  if (!control) return;
  QPainter painter(this);
  paintSurface(painter, *control, event->region());
  if (control->Raised) drawClassicEdge(painter, rect(), control->Pressed);
  if (hasFocus()) paintFocus(painter);
}

void SurfaceWidget::mousePressEvent(QMouseEvent* event) {
  event->accept();
  // The keyboard lets go of the button that was pressed last: a stray Space behind a stroke would
  // press it again, and it may be the one that wipes the sheet.
  QWidget* const former = window()->focusWidget();
  if (former && focusPolicy() == Qt::NoFocus) former->clearFocus();
  if (control) dispatch([&] { control->MouseDown(toMouse(*event, *control)); });
}

// The second press of a double click is a press like any other: two quick dots are two dots.
void SurfaceWidget::mouseDoubleClickEvent(QMouseEvent* event) { mousePressEvent(event); }

void SurfaceWidget::mouseMoveEvent(QMouseEvent* event) {
  event->accept();
  if (control) dispatch([&] { control->MouseMove(toMouse(*event, *control)); });
}

void SurfaceWidget::mouseReleaseEvent(QMouseEvent* event) {
  event->accept();
  if (control) dispatch([&] { control->MouseUp(toMouse(*event, *control)); });
  const bool inside = rect().contains(pixelUnder(*event));
  if (control && inside && event->button() == Qt::LeftButton)
    dispatch([this] { control->Click(); });
}

// A palette: it matters where it is pressed.
bool SurfaceWidget::choosesPlace() const { return control->MouseDown.handled(); }

// The arrow keys move the spot of the Space key, or else go to the neighbours.
void SurfaceWidget::keyPressEvent(QKeyEvent* event) {
  constexpr int Step = 4;
  const int key = event->key();
  const QPoint way(key == Qt::Key_Right  ? 1
                   : key == Qt::Key_Left ? -1
                                         : 0,
                   key == Qt::Key_Down ? 1
                   : key == Qt::Key_Up ? -1
                                       : 0);
  if (!control || (way.isNull() && key != Qt::Key_Space)) return QWidget::keyPressEvent(event);
  if (key == Qt::Key_Space) return press();
  if (!choosesPlace()) {
    focusNextPrevChild(way.x() + way.y() > 0);
    return;
  }
  const QPoint next = spot_ + Step * way;
  spot_ = {std::clamp(next.x(), 0, width() - 1), std::clamp(next.y(), 0, height() - 1)};
  update();
}

void SurfaceWidget::press() {
  const PointF place = control->toScale(spot_.x(), spot_.y());
  const Mouse left{.Button = 1, .Shift = 0, .X = place.X, .Y = place.Y};
  dispatch([&] { control->MouseDown(left); });
  // Each handler may take the surface away.
  if (control) dispatch([&] { control->MouseUp(left); });
  if (control) dispatch([this] { control->Click(); });
}

void SurfaceWidget::paintFocus(QPainter& painter) const {
  drawFocus(painter, rect());
  if (!choosesPlace()) return;
  const QRect ring(spot_ - QPoint(3, 3), QSize(6, 6));
  painter.setPen(Qt::black);
  painter.drawRect(ring);
  painter.setPen(Qt::white);
  painter.drawRect(ring.adjusted(-1, -1, 1, 1));
}

}  // namespace surface::qt
