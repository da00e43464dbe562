// How a figure comes about. Each random number is drawn in its place: the order is what a seed
// repeats.
#include "fantasy/modKaleidos.h"

#include <cmath>

#include "surface/numbers.h"

using namespace surface;

namespace {

constexpr double HalveCirkel = 3.1415926538, HeleCirkel = 6.2831853076;

enum Soort { Cirkels = 0, Lijnen = 1, Schijven = 2 };

// What a figure is made of, and how it grows from step to step.
struct Figuur {
  Figuur(const Kaleidos& beeld, DrawingSurface& blad, Random& random) {
    const auto stapAantal = Int(random.Rnd() * 20.0) + 3;
    stappen = static_cast<int>(stapAantal);
    const double hoekEenheid = random.Rnd() * HalveCirkel / beeld.aantalSpaken;
    soort = static_cast<int>(Int(random.Rnd() * 3.0));
    blad.FillStyle = 1;
    blad.DrawStyle = toInt16(random.Rnd() * 6.0);
    hoek1 = random.Rnd() * hoekEenheid;
    hoek2 = hoek1 - random.Rnd() * hoekEenheid;
    straal1 = Int(beeld.beeldStraal * random.Rnd());
    straal2 = Int(beeld.beeldStraal * random.Rnd());
    const auto kanaal = [&] { return static_cast<int>(Int(random.Rnd() * 256.0)); };
    const int rood = kanaal();
    const int groen = kanaal();
    kleur = RGB(rood, groen, kanaal());
    straalFactor1 = random.Rnd() / 50.0 + 0.998;
    straalFactor2 = random.Rnd() / 50.0 + 0.998;
    hoekFactor1 = random.Rnd() / 10.0 + 1;
    hoekFactor2 = random.Rnd() / 10.0 + 1;
    cirkelFactor = random.Rnd() / 10.0 + 0.9;
    cirkelStraal = random.Rnd() * 300.0 + 50;
  }

  void groei() {
    cirkelStraal *= cirkelFactor;
    hoek1 *= hoekFactor1;
    hoek2 *= hoekFactor2;
    straal1 *= straalFactor1;
    straal2 *= straalFactor2;
  }

  int stappen, soort;
  double hoek1, hoek2, straal1, straal2;
  Color kleur;
  double straalFactor1, straalFactor2, hoekFactor1, hoekFactor2, cirkelFactor, cirkelStraal;
};

// A point at a distance from the middle; the angle counts from straight down.
PointF opCirkel(const DrawingSurface& blad, double straal, double hoek) {
  return {static_cast<float>(blad.ScaleWidth() / 2.0 + straal * std::sin(hoek)),
          static_cast<float>(blad.ScaleHeight() / 2.0 + straal * std::cos(hoek))};
}

void tekenKopie(DrawingSurface& blad, const Figuur& figuur, int teken, double draai) {
  const PointF punt1 = opCirkel(blad, figuur.straal1, teken * figuur.hoek1 + draai);
  if (figuur.soort == Lijnen) {
    blad.Line(punt1, opCirkel(blad, figuur.straal2, teken * figuur.hoek2 + draai), figuur.kleur);
    return;
  }
  if (figuur.soort == Schijven) {
    blad.FillColor = figuur.kleur;
    blad.FillStyle = 0;
  }
  blad.Circle(punt1, static_cast<float>(figuur.cirkelStraal), figuur.kleur);
}

}  // namespace

void Kaleidos::beginBeeld(DrawingSurface& blad, Random& random) {
  nieuwBeeld = false;
  lijnTeller = 0;
  aantalSpaken = static_cast<float>(2 * Int(random.Rnd() * 5.0) + 6);
  const double zijde = random.Rnd() > 0.5 ? blad.ScaleWidth() : blad.ScaleHeight();
  beeldStraal = zijde * 0.9 / 2;
  blad.Cls();
}

void Kaleidos::figuurTekenen(DrawingSurface& blad, Random& random) {
  random.Randomize();
  if (nieuwBeeld) beginBeeld(blad, random);
  Figuur figuur(*this, blad, random);
  const int kopieen = static_cast<int>(aantalSpaken);
  // A ring of discs is whole after one step.
  const int stappen = figuur.soort == Schijven ? 1 : figuur.stappen;
  for (int stap = 1; stap <= stappen; ++stap) {
    ++lijnTeller;
    figuur.groei();
    for (int teken = enkeleSpaak ? 1 : -1; teken <= 1; teken += 2) {
      // A spoke belongs above all of the figure that comes before it. It is the same line in every
      // step, so the last time is the one that stays to be seen, and the others are saved.
      const bool spaken = hoekMarkeren && stap == stappen && teken == 1;
      for (int j = enkeleSpaak ? kopieen : 1; j <= kopieen; ++j) {
        const double draai = j * HeleCirkel / aantalSpaken;
        if (spaken) blad.Line(opCirkel(blad, 0, draai), opCirkel(blad, beeldStraal, draai), White);
        tekenKopie(blad, figuur, teken, draai);
      }
    }
  }
}
