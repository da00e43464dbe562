// The star field: forty-one stars, each in a row and at a speed of its own, drift from left to
// right.
#pragma once

#include <array>
#include <cstdint>

#include "surface/drawing.h"
#include "surface/random.h"

/// All in pixels, on a surface scaled in pixels.
struct Sterren {
  static constexpr std::int16_t sterAantal = 40;  ///< the highest star; they count from 0
  template <class T>
  using PerSter = std::array<T, sterAantal + 1>;

  enum Soort { Gewoon = 0, Kleurrijk = 1 };

  std::int16_t sterRij = 0;  ///< between the rows of two stars
  PerSter<std::int16_t> sterX{}, sterVorigeX{}, sterSnelheid{};

  /// New places and speeds for all.
  void strooi(const surface::DrawingSurface& blad, surface::Random& random);
  /// Spreads the rows over the surface's height.
  void verdeel(const surface::DrawingSurface& blad);
  /// One tick: all stars are drawn and move on.
  void drijf(surface::DrawingSurface& blad, surface::Random& random, Soort soort);
};
