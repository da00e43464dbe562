// How the stars drift.
#include "fantasy/sterren.h"

#include "surface/numbers.h"

using namespace surface;

void Sterren::strooi(const DrawingSurface& blad, Random& random) {
  for (std::size_t i = 0; i <= sterAantal; ++i) {
    random.Randomize();
    sterSnelheid[i] = toInt16(Int(random.Rnd() * 6.0) + 1);
    random.Randomize();
    sterX[i] = toInt16(Int(random.Rnd() * static_cast<double>(blad.ScaleWidth())));
  }
}

void Sterren::verdeel(const DrawingSurface& blad) {
  sterRij = toInt16(Int(static_cast<double>(blad.ScaleHeight()) / sterAantal) + 1);
}

void Sterren::drijf(DrawingSurface& blad, Random& random, Soort soort) {
  blad.Cls();
  for (std::size_t i = 0; i <= sterAantal; ++i) {
    const auto x = static_cast<float>(sterX[i]);
    const auto y = static_cast<float>(toInt16(sterRij * static_cast<double>(i)));
    blad.PSet({static_cast<float>(sterVorigeX[i]), y}, Black);
    if (soort == Gewoon) {
      blad.PSet({x, y}, White);
      blad.DrawWidth = 1;
    } else {
      // In the colour that was picked at the star before.
      blad.PSet({x, y});
      blad.ForeColor = QBColor(toInt16(random.Rnd() * 15.0));
      blad.DrawWidth = 2;
    }
    sterVorigeX[i] = sterX[i];
    sterX[i] = toInt16(sterX[i] + sterSnelheid[i]);
    if (sterX[i] > blad.ScaleWidth()) sterX[i] = 0;
  }
}
