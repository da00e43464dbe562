// The calls of the raster, overheard: the linker (--wrap, see tests/CMakeLists.txt) leads each call
// of a function of the raster to its `heard...` here, which passes it on to the raster's own. So
// the program needs no hook for it.
#include "support/trace.h"

#include <gtest/gtest.h>

#include <ostream>

namespace script {
namespace {

Listener* listening = nullptr;

void hear(Drawn::Shape shape, const raster::Target& target, const raster::Pen& pen,
          const raster::Brush& brush, const std::array<double, 4>& place) {
  if (listening)
    listening->heard.push_back(
        {shape, pen.style, pen.width, pen.color, brush.style, brush.color, target.rop, place});
}

}  // namespace

Listener::Listener() {
  if (listening) ADD_FAILURE() << "somebody listens already";
  listening = this;
}

Listener::~Listener() { listening = nullptr; }

std::ostream& operator<<(std::ostream& out, const Drawn& drawn) {
  static constexpr const char* shapes[] = {"line", "dot", "filled box", "ellipse"};
  out << shapes[drawn.shape] << std::hex << " in " << drawn.color << " over " << drawn.fill
      << std::dec << ", styles " << static_cast<int>(drawn.style) << " and "
      << static_cast<int>(drawn.brush) << ", width " << drawn.width << ", operation " << drawn.rop
      << ", at";
  for (const double number : drawn.place) out << ' ' << number;
  return out;
}

}  // namespace script

using script::Drawn;
using script::hear;

raster::Rect ownLine(raster::Target, const raster::Pen&, int, int, int,
                     int) asm("__real__ZN6raster4lineENS_6TargetERKNS_3PenEiiii");
raster::Rect heardLine(raster::Target, const raster::Pen&, int, int, int,
                       int) asm("__wrap__ZN6raster4lineENS_6TargetERKNS_3PenEiiii");
raster::Rect ownDot(raster::Target, const raster::Pen&, int,
                    int) asm("__real__ZN6raster3dotENS_6TargetERKNS_3PenEii");
raster::Rect heardDot(raster::Target, const raster::Pen&, int,
                      int) asm("__wrap__ZN6raster3dotENS_6TargetERKNS_3PenEii");
raster::Rect ownFilledBox(raster::Target, const raster::Pen&, int, int, int,
                          int) asm("__real__ZN6raster9filledBoxENS_6TargetERKNS_3PenEiiii");
raster::Rect heardFilledBox(raster::Target, const raster::Pen&, int, int, int,
                            int) asm("__wrap__ZN6raster9filledBoxENS_6TargetERKNS_3PenEiiii");
raster::Rect ownEllipse(
    raster::Target, const raster::Pen&, const raster::Brush&, int, int, double,
    double) asm("__real__ZN6raster7ellipseENS_6TargetERKNS_3PenERKNS_5BrushEiidd");
raster::Rect heardEllipse(
    raster::Target, const raster::Pen&, const raster::Brush&, int, int, double,
    double) asm("__wrap__ZN6raster7ellipseENS_6TargetERKNS_3PenERKNS_5BrushEiidd");

raster::Rect heardLine(raster::Target target, const raster::Pen& pen, int x1, int y1, int x2,
                       int y2) {
  hear(Drawn::Line, target, pen, {}, {double(x1), double(y1), double(x2), double(y2)});
  return ownLine(target, pen, x1, y1, x2, y2);
}

raster::Rect heardDot(raster::Target target, const raster::Pen& pen, int x, int y) {
  hear(Drawn::Dot, target, pen, {}, {double(x), double(y)});
  return ownDot(target, pen, x, y);
}

raster::Rect heardFilledBox(raster::Target target, const raster::Pen& pen, int x1, int y1, int x2,
                            int y2) {
  hear(Drawn::FilledBox, target, pen, {}, {double(x1), double(y1), double(x2), double(y2)});
  return ownFilledBox(target, pen, x1, y1, x2, y2);
}

raster::Rect heardEllipse(raster::Target target, const raster::Pen& pen, const raster::Brush& brush,
                          int cx, int cy, double rx, double ry) {
  hear(Drawn::Ellipse, target, pen, brush, {double(cx), double(cy), rx, ry});
  return ownEllipse(target, pen, brush, cx, cy, rx, ry);
}
