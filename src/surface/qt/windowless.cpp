// Lines and shapes in whole pixels, without smoothing, like everything on a sheet.
#include "surface/qt/windowless.h"

#include <QPainter>

#include "surface/controls.h"
#include "surface/qt/peers.h"

namespace surface::qt {
namespace {

void paintLine(QPainter& painter, const LineControl& line) {
  const raster::Rect ends = line.pixelEnds();
  painter.setPen(QPen(toQColor(line.BorderColor), line.BorderWidth, Qt::SolidLine, Qt::FlatCap));
  painter.drawLine(ends.left, ends.top, ends.right, ends.bottom);
}

void paintShape(QPainter& painter, const ShapeControl& shape) {
  const int pen = shape.BorderWidth;
  const QRect outer =
      toQRect(shape.pixelPlace()).adjusted(pen / 2, pen / 2, -(pen + 1) / 2, -(pen + 1) / 2);
  painter.setPen(QPen(toQColor(shape.BorderColor), pen));
  painter.setBrush(shape.Filled ? QBrush(toQColor(shape.FillColor)) : QBrush(Qt::NoBrush));
  if (shape.Oval)
    painter.drawEllipse(outer);
  else
    painter.drawRect(outer);
}

}  // namespace

void paintWindowless(QPainter& painter, const Container& container) {
  for (const Control* control : container.controls()) {
    if (!control->windowless() || !control->Visible) continue;
    if (const auto* line = dynamic_cast<const LineControl*>(control)) paintLine(painter, *line);
    if (const auto* shape = dynamic_cast<const ShapeControl*>(control)) paintShape(painter, *shape);
  }
}

}  // namespace surface::qt
