// A listener between the surfaces and the raster: it hears every shape that is drawn, in its order,
// also those that a later one has painted over.
#pragma once

#include <array>
#include <iosfwd>
#include <vector>

#include "surface/raster/draw.h"

namespace script {

/// One call of the raster.
struct Drawn {
  enum Shape { Line, Dot, FilledBox, Ellipse };

  Shape shape;
  raster::PenStyle style;
  int width;
  raster::Pixel color;
  raster::BrushStyle brush;
  raster::Pixel fill;
  int rop;
  std::array<double, 4> place;  ///< from and to; a dot; the middle and the half axes

  friend bool operator==(const Drawn&, const Drawn&) = default;
};
std::ostream& operator<<(std::ostream& out, const Drawn& drawn);

using Trace = std::vector<Drawn>;

/// Hears everything that is drawn as long as it lives; one at a time.
class Listener {
 public:
  Listener();
  ~Listener();
  Listener(const Listener&) = delete;
  Listener& operator=(const Listener&) = delete;

  Trace heard;
};

template <class Draw>
Trace traceOf(Draw draw) {
  Listener listener;
  draw();
  return listener.heard;
}

}  // namespace script
