// How the worm crawls.
#include "fantasy/worm.h"

#include "surface/numbers.h"

using namespace surface;

void Worm::kruipHeen(DrawingSurface& blad, Random& random) {
  wormX = toInt32(random.Rnd() * 200.0 + wormX);
  wormY = toInt32(random.Rnd() * 200.0 + wormY);
  schijf(blad, random, 400);
}

void Worm::kruipTerug(DrawingSurface& blad, Random& random) {
  wormX = toInt32(wormX - random.Rnd() * 300.0);
  wormY = toInt32(wormY - random.Rnd() * 200.0);
  schijf(blad, random, 500);
}

void Worm::schijf(DrawingSurface& blad, Random& random, float straal) const {
  const auto kanaal = [&] { return toInt16(random.Rnd() * 255.0); };
  const int rood = kanaal();
  const int groen = kanaal();
  blad.FillColor = RGB(rood, groen, kanaal());
  blad.Circle({static_cast<float>(wormX), static_cast<float>(wormY)}, straal);
}
