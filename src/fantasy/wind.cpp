// The lituus, the spiral r^2 = k^2 / t, point by point in single precision.
#include "fantasy/wind.h"

#include <cmath>

#include "surface/numbers.h"

using namespace surface;

void windTekenen(DrawingSurface& blad, Random& random, double snelheid) {
  random.Randomize();
  blad.setUserScale({3, -3}, {-6, 6});
  const auto einde = static_cast<float>(snelheid * std::atan(1.0));
  const auto kanaal = [&] { return toInt16(random.Rnd() * 256.0); };
  const int rood = kanaal();
  const int groen = kanaal();
  blad.ForeColor = RGB(rood, groen, kanaal());
  const double k = static_cast<float>(random.Rnd() * 3.0);
  for (float t = 0.001f; t <= einde; t += 0.01f) {
    const double hoek = t;
    const auto r = static_cast<float>(std::sqrt(k * k / hoek));
    const auto x = static_cast<float>(r * std::cos(hoek));
    const auto y = static_cast<float>(r * std::sin(hoek));
    blad.PSet({x, y});
    blad.PSet({-x, -y});
  }
}
