// How the sparks fly. Each random number is drawn in its place: the order is what a seed repeats.
#include "fantasy/vuurwerk.h"

#include <cmath>

#include "surface/numbers.h"

using namespace surface;

namespace {

constexpr double Pi = 3.141592654;
constexpr int Versnelling = 7;    // twips a tick, each tick
constexpr int Doofsnelheid = 80;  // a falling spark that is faster has gone out

struct Burst {
  double kleurRood, kleurGroen, kleurBlauw;
};

// Not greyish: at least two of the channels lie 30 or more apart.
Burst kiesKleur(Random& random) {
  const auto kanaal = [&] { return Int(random.Rnd() * 128.0) + 128; };
  for (;;) {
    const double rood = kanaal();
    const double groen = kanaal();
    const double blauw = kanaal();
    const bool grijs =
        std::abs(rood - groen) < 30 && std::abs(groen - blauw) < 30 && std::abs(rood - blauw) < 30;
    if (!grijs) return {rood, groen, blauw};
  }
}

}  // namespace

void Vuurwerk::stelIn() {
  hoekSpreiding = 5;
  valSpreiding = 60;
  snelheidSpreiding = 30;
  vonkMaat = 40;
}

void Vuurwerk::schiet(const DrawingSurface& blad, Random& random) {
  random.Randomize();
  const Burst kleur = kiesKleur(random);
  const double startX = Int(random.Rnd() * (blad.ScaleWidth() - 2000.0)) + 1000;
  const std::int16_t startHoek = toInt16(Int(random.Rnd() * 40.0) + 70);
  const double startSnelheid = Int(random.Rnd() * 101.0) + blad.ScaleHeight() / 40.0 + 50;
  for (std::size_t i = 1; i <= Vonken; ++i) {
    if (vonkActief[i]) continue;
    vonkActief[i] = true;
    vonkX[i] = startX;
    vonkY[i] = toInt16(blad.ScaleHeight());
    vonkKleur[i] = {toInt32(kleur.kleurRood), toInt32(kleur.kleurGroen), toInt32(kleur.kleurBlauw)};
    vonkHoek[i] = toInt16(Int(2.0 * hoekSpreiding * random.Rnd()) + startHoek - hoekSpreiding);
    vonkSnelheid[i] =
        toInt16(startSnelheid + Int(2.0 * snelheidSpreiding * random.Rnd()) - snelheidSpreiding);
  }
}

void Vuurwerk::vlieg(DrawingSurface& blad, Random& random) {
  for (std::size_t i = 1; i <= Vonken; ++i) {
    if (!vonkActief[i]) continue;
    // Always the plain size: the rim of a larger square stays, and that is the trail.
    vierkant(blad, i, vonkMaat, Black);
    beweeg(i);
    if (vonkHoek[i] > 180 || vonkHoek[i] < 0)
      val(blad, i);
    else
      stijg(blad, random, i);
  }
}

void Vuurwerk::beweeg(std::size_t i) {
  const double hoek = vonkHoek[i] * Pi / 180;
  vonkX[i] -= std::cos(hoek) * vonkSnelheid[i];
  vonkY[i] = toInt16(vonkY[i] - vonkSnelheid[i] * std::sin(hoek));
}

void Vuurwerk::val(DrawingSurface& blad, std::size_t i) {
  vonkSnelheid[i] = toInt16(vonkSnelheid[i] + Versnelling);
  if (vonkSnelheid[i] > Doofsnelheid) {
    vonkActief[i] = false;
    return;
  }
  const auto dovend = [&](std::int32_t kanaal) {
    return toInt16((Doofsnelheid - vonkSnelheid[i]) * kanaal / static_cast<double>(Doofsnelheid));
  };
  const auto& [rood, groen, blauw] = vonkKleur[i];
  vierkant(blad, i, vonkMaat, RGB(dovend(rood), dovend(groen), dovend(blauw)));
}

void Vuurwerk::stijg(DrawingSurface& blad, Random& random, std::size_t i) {
  vonkSnelheid[i] = toInt16(vonkSnelheid[i] - Versnelling);
  if (vonkSnelheid[i] < 0) {
    vonkSnelheid[i] = 0;
    vonkHoek[i] = toInt16(Int(random.Rnd() * 2.0 * valSpreiding) + 270 - valSpreiding);
  }
  const float hoogte = blad.ScaleHeight() / 40;
  const double diepte = hoogte + 150 + static_cast<float>(snelheidSpreiding);
  const double schaal = diepte / (diepte / 2 + (diepte - vonkSnelheid[i]) / 2);
  const auto& [rood, groen, blauw] = vonkKleur[i];
  vierkant(blad, i, vonkMaat * schaal, RGB(rood, groen, blauw));
}

void Vuurwerk::vierkant(DrawingSurface& blad, std::size_t i, double maat, Color kleur) const {
  blad.Line({static_cast<float>(vonkX[i] - maat), static_cast<float>(vonkY[i] - maat)},
            {static_cast<float>(vonkX[i] + maat), static_cast<float>(vonkY[i] + maat)}, kleur, BF);
}
