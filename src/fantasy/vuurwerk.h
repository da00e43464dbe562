// Fireworks: bursts of sparks that climb and slow down, turn, and fall in a fan that fades to
// black.
#pragma once

#include <array>
#include <cstdint>

#include "surface/drawing.h"
#include "surface/random.h"

/// All places and speeds in twips and twips a tick; a direction in degrees: 0 to the left, 90 up,
/// above 180 the spark is falling.
struct Vuurwerk {
  static constexpr int Vonken = 100;  ///< 1..100 are used
  template <class T>
  using PerVonk = std::array<T, Vonken + 1>;

  PerVonk<bool> vonkActief{};
  PerVonk<std::int16_t> vonkHoek{}, vonkSnelheid{}, vonkY{};
  PerVonk<double> vonkX{};
  PerVonk<std::array<std::int32_t, 3>> vonkKleur{};  ///< red, green, blue: 128..255 each
  std::int16_t hoekSpreiding, valSpreiding, snelheidSpreiding;
  std::int16_t vonkMaat;  ///< half the side of a spark

  Vuurwerk() { stelIn(); }
  /// The spreads and the size; sparks in flight go on.
  void stelIn();
  /// One tick of the slow timer: all sparks that are free make one burst.
  void schiet(const surface::DrawingSurface& blad, surface::Random& random);
  /// One tick of the fast timer: every spark in flight is wiped, moves and is drawn.
  void vlieg(surface::DrawingSurface& blad, surface::Random& random);

 private:
  void beweeg(std::size_t i);
  void val(surface::DrawingSurface& blad, std::size_t i);
  void stijg(surface::DrawingSurface& blad, surface::Random& random, std::size_t i);
  void vierkant(surface::DrawingSurface& blad, std::size_t i, double maat,
                surface::Color kleur) const;
};
