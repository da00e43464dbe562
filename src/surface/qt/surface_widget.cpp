// The sheet on the screen. The bitmap's own memory is painted, without a copy.
#include "surface/qt/surface_widget.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QMouseEvent>
#include <QPainter>

#include "surface/qt/button.h"
#include "surface/qt/images.h"
#include "surface/qt/pointer.h"

namespace surface::qt {
namespace {

QAccessibleInterface* makeAccessible(const QString& className, QObject* object) {
  if (className != "surface::qt::SurfaceWidget") return nullptr;
  return new QAccessibleWidget(qobject_cast<QWidget*>(object), QAccessible::Graphic);
}

}  // namespace

void installSurfaceAccessibility() { QAccessible::installFactory(makeAccessible); }

void paintSurface(QPainter& painter, const DrawingSurface& surface, const QRect& area) {
  if (surface.blank()) {
    painter.fillRect(area, toQColor(surface.BackColor));
    return;
  }
  const auto bitmap = surface.bitmap();
  if (!area.isEmpty()) painter.drawImage(area, wrapped(*bitmap), area);
}

SurfaceWidget::SurfaceWidget(PictureBox& owner, QWidget& parent)
    : QWidget(&parent), control(&owner) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMouseTracking(true);
  makePeers(owner, *this);
}

void SurfaceWidget::sync(Aspect aspect) {
  if (aspect == Aspect::Look && control->Raised) update();
  applyCommon(*this, *control, aspect);
}

void SurfaceWidget::paintEvent(QPaintEvent* event) {
  if (!control) return;
  QPainter painter(this);
  paintSurface(painter, *control, event->rect());
  if (control->Raised) drawClassicEdge(painter, rect(), control->Pressed);
}

void SurfaceWidget::mousePressEvent(QMouseEvent* event) {
  event->accept();
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

}  // namespace surface::qt
