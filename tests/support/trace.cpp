// The calls of the raster, overheard: the linker (--wrap, see tests/CMakeLists.txt) leads each call
// of a function of the raster to its `heard...` here, which passes it on to the raster's own. So
// the program needs no hook for it.
#include "support/trace.h"

#include <gtest/gtest.h>

#include <ostream>

using namespace raster;

namespace script {
namespace {

Listener* listening = nullptr;

void hear(Drawn::Shape shape, const Target& target, const Pen& pen, const Brush& brush,
          const std::array<double, 4>& place) {
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

Rect ownLine(Target, const Pen&, int, int, int,
             int) asm("__real__ZN6raster4lineENS_6TargetERKNS_3PenEiiii");
Rect heardLine(Target, const Pen&, int, int, int,
               int) asm("__wrap__ZN6raster4lineENS_6TargetERKNS_3PenEiiii");
Rect ownDot(Target, const Pen&, int, int) asm("__real__ZN6raster3dotENS_6TargetERKNS_3PenEii");
Rect heardDot(Target, const Pen&, int, int) asm("__wrap__ZN6raster3dotENS_6TargetERKNS_3PenEii");
Rect ownFilledBox(Target, const Pen&, int, int, int,
                  int) asm("__real__ZN6raster9filledBoxENS_6TargetERKNS_3PenEiiii");
Rect heardFilledBox(Target, const Pen&, int, int, int,
                    int) asm("__wrap__ZN6raster9filledBoxENS_6TargetERKNS_3PenEiiii");
Rect ownEllipse(Target, const Pen&, const Brush&, int, int, double,
                double) asm("__real__ZN6raster7ellipseENS_6TargetERKNS_3PenERKNS_5BrushEiidd");
Rect heardEllipse(Target, const Pen&, const Brush&, int, int, double,
                  double) asm("__wrap__ZN6raster7ellipseENS_6TargetERKNS_3PenERKNS_5BrushEiidd");

Rect heardLine(Target target, const Pen& pen, int x1, int y1, int x2, int y2) {
  hear(Drawn::Line, target, pen, {}, {double(x1), double(y1), double(x2), double(y2)});
  return ownLine(target, pen, x1, y1, x2, y2);
}

Rect heardDot(Target target, const Pen& pen, int x, int y) {
  hear(Drawn::Dot, target, pen, {}, {double(x), double(y)});
  return ownDot(target, pen, x, y);
}

Rect heardFilledBox(Target target, const Pen& pen, int x1, int y1, int x2, int y2) {
  hear(Drawn::FilledBox, target, pen, {}, {double(x1), double(y1), double(x2), double(y2)});
  return ownFilledBox(target, pen, x1, y1, x2, y2);
}

Rect heardEllipse(Target target, const Pen& pen, const Brush& brush, int cx, int cy, double rx,
                  double ry) {
  hear(Drawn::Ellipse, target, pen, brush, {double(cx), double(cy), rx, ry});
  return ownEllipse(target, pen, brush, cx, cy, rx, ry);
}
