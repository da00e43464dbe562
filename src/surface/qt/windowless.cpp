// Lines and shapes in whole pixels, without smoothing, like everything on a sheet.
#include "surface/qt/windowless.h"

#include <QPainter>
#include <cmath>

#include "surface/controls.h"
#include "surface/qt/peers.h"

namespace surface::qt {
namespace {

void paintLine(QPainter& painter, const LineControl& line) {
  const double scale = line.container().twipsPerUnit() / TwipsPerPixel;
  const auto pixel = [scale](float value) {
    return static_cast<int>(std::nearbyint(value * scale));
  };
  painter.setPen(QPen(toQColor(line.BorderColor), line.BorderWidth, Qt::SolidLine, Qt::FlatCap));
  painter.drawLine(pixel(line.X1), pixel(line.Y1), pixel(line.X2), pixel(line.Y2));
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
