// The rose curve r = k sin(10 t), point by point in single precision.
#include "fantasy/bloem.h"

#include <cmath>
#include <vector>

#include "surface/numbers.h"

using namespace surface;

namespace {

float grens(Tempo tempo) {
  return static_cast<float>(std::atan(1.0) * (tempo == Tempo::Traag ? 15 : 150));
}

struct Stap {
  float t;
  double sin10t, cosT, sinT;
};

// The same for every curve, so worked out once: the sines are nearly all of its work.
const std::vector<Stap>& stappen() {
  static const std::vector<Stap> alle = [] {
    std::vector<Stap> made;
    const float einde = grens(Tempo::Snel);
    for (float t = 0; t <= einde; t += 0.01f) {
      const double hoek = t;
      made.push_back({t, std::sin(static_cast<double>(t * 10)), std::cos(hoek), std::sin(hoek)});
    }
    return made;
  }();
  return alle;
}

}  // namespace

void bloemTekenen(DrawingSurface& blad, Random& random, Tempo tempo) {
  random.Randomize();
  blad.setUserScale({3, -3}, {-6, 6});
  const float einde = grens(tempo);
  blad.ForeColor = QBColor(toInt16(random.Rnd() * 15.0));
  const auto k = static_cast<float>(random.Rnd() * 3.0);
  for (const Stap& stap : stappen()) {
    if (stap.t > einde) break;
    const auto r = static_cast<float>(k * stap.sin10t);
    blad.PSet({static_cast<float>(r * stap.cosT), static_cast<float>(r * stap.sinT)});
  }
}
