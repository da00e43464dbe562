// The art line: a chain of forty points that chases the pointer and leaves a fan of curves from
// white to one random colour.
#pragma once

#include <array>
#include <cstdint>

#include "surface/drawing.h"

class Kunstlijn {
 public:
  static constexpr int Points = 40;

  /// The colours run from white towards the given components (0 to 255); every point stands at (x,
  /// y), pixels divided by 15.
  void start(float r, float g, float b, float x, float y);
  /// One move of the pointer (pixels): twenty rounds in which each point follows the one before it,
  /// all lines drawn on `sheet`.
  void chase(surface::DrawingSurface& sheet, float X, float Y);

 private:
  // A hundred places, as the chain could be; the points in use come first. Positions are single
  // precision pixels divided by 15.
  std::array<float, 100> KunstX{}, KunstY{};
  std::array<std::int16_t, 100> KunstR{}, KunstG{}, KunstB{};
};
