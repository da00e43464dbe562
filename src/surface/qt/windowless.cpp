// Lines and shapes in whole pixels, without smoothing, like everything on a sheet.
#include "surface/qt/windowless.h"

#include <QPainter>
#include <cmath>

#include "surface/controls.h"
#include "surface/qt/peers.h"

namespace surface::qt {
namespace {

// Enlarged, the middle of an odd line is that of a pixel. It is whole device pixels wide, so that
// lines are alike wherever they stand.
void enlargePen(QPainter& painter, int width) {
  const double factor = painter.device()->devicePixelRatioF();
  if (factor <= 1) return;
  if (width % 2) painter.translate(0.5, 0.5);
  QPen pen = painter.pen();
  pen.setWidthF(std::round(width * factor) / factor);
  painter.setPen(pen);
}

void paintLine(QPainter& painter, const LineControl& line) {
  const LineEnds ends = line.pixelEnds();
  painter.setPen(QPen(toQColor(line.BorderColor), line.BorderWidth, Qt::SolidLine, Qt::FlatCap));
  enlargePen(painter, line.BorderWidth);
  painter.drawLine(ends.x1, ends.y1, ends.x2, ends.y2);
}

void paintShape(QPainter& painter, const ShapeControl& shape) {
  const int pen = shape.BorderWidth;
  const QRect outer =
      toQRect(shape.pixelPlace()).adjusted(pen / 2, pen / 2, -(pen + 1) / 2, -(pen + 1) / 2);
  // A thick border keeps its corners.
  painter.setPen(
      QPen(toQColor(shape.BorderColor), pen, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
  enlargePen(painter, pen);
  painter.setBrush(shape.Filled ? QBrush(toQColor(shape.FillColor)) : QBrush(Qt::NoBrush));
  if (shape.Oval)
    painter.drawEllipse(outer);
  else
    painter.drawRect(outer);
}

}  // namespace

FigureWidget::FigureWidget(Control& owner, QWidget& parent) : QWidget(&parent), control(&owner) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
}

void FigureWidget::sync(Aspect) {
  setGeometry(toQRect(control->paintedPixels()));
  setVisible(control->Visible);
  update();
}

void FigureWidget::paintEvent(QPaintEvent*) {
  if (!control) return;
  QPainter painter(this);
  painter.translate(-pos());
  if (const auto* line = dynamic_cast<const LineControl*>(control)) paintLine(painter, *line);
  if (const auto* shape = dynamic_cast<const ShapeControl*>(control)) paintShape(painter, *shape);
}

}  // namespace surface::qt
