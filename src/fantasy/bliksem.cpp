// How a bolt runs and fades.
#include "fantasy/bliksem.h"

#include <array>
#include <cmath>

#include "surface/errors.h"
#include "surface/numbers.h"

using namespace surface;

namespace {

constexpr float Pixel = 15;  // twips

struct Kleuren {
  Color kern, naast, rand;
  int rood, groen, blauw;
};

constexpr std::array<Kleuren, 5> Soorten = {{
    {RGB(150, 150, 255), RGB(50, 50, 255), RGB(0, 0, 150), 0, 0, 255},
    {RGB(255, 150, 255), RGB(255, 50, 255), RGB(150, 0, 150), 255, 0, 255},
    {RGB(150, 255, 150), RGB(50, 255, 50), RGB(0, 150, 0), 0, 255, 0},
    {RGB(255, 150, 150), RGB(255, 50, 50), RGB(150, 0, 0), 255, 0, 0},
    {RGB(255, 255, 150), RGB(255, 255, 50), RGB(150, 150, 0), 255, 255, 0},
}};

// Five pixels side by side, the middle one first.
void rij(DrawingSurface& blad, float x, float y, Color kern, Color naast, Color rand) {
  blad.PSet({x, y}, kern);
  blad.PSet({x + Pixel, y}, naast);
  blad.PSet({x + 2 * Pixel, y}, rand);
  blad.PSet({x - Pixel, y}, naast);
  blad.PSet({x - 2 * Pixel, y}, rand);
}

}  // namespace

void Bliksem::wis(DrawingSurface& blad) {
  // One row more than there are: it lies below the bolt, at the left edge.
  for (std::size_t i = 0; i <= PosL.size(); ++i)
    rij(blad, plaats(i), static_cast<float>(i + 1) * Pixel, Black, Black, Black);
}

void Bliksem::MakeFX(DrawingSurface& blad, Random& random, SizeF venster) {
  random.Randomize();
  if (!PosL.empty()) wis(blad);
  PosL.clear();
  const bool bekend = bliksemSoort >= 0 && bliksemSoort < static_cast<int>(Soorten.size());
  const Kleuren* kleuren = bekend ? &Soorten[static_cast<std::size_t>(bliksemSoort)] : nullptr;
  auto x = static_cast<float>(Int(random.Rnd() * static_cast<double>(venster.Width) + 1));
  const float rijen = venster.Height / Pixel;
  for (int r = 1; static_cast<float>(r) <= rijen; ++r) {
    const bool linksaf = Int(random.Rnd() * 2.0 + 1) == 1;
    const auto stap = static_cast<float>(Int(random.Rnd() * 25.0 + 1));
    x += linksaf ? -stap : stap;
    PosL.push_back(x);
    if (!kleuren) continue;
    rij(blad, x, static_cast<float>(r) * Pixel, kleuren->kern, kleuren->naast, kleuren->rand);
    if (static_cast<float>(r) != rijen) continue;
    flitsRood = kleuren->rood;
    flitsGroen = kleuren->groen;
    flitsBlauw = toInt16(kleuren->blauw);
  }
}

bool Bliksem::dooft(DrawingSurface& blad) {
  // Rows are counted in 16 bits. On a window with more of them the rest of the bolt stays, and the
  // next one strikes all the same.
  if (!PosL.empty()) trapAndLeave([&] { doofRijen(blad); });
  if (doofStap != 1) {
    ++doofStap;
    return false;
  }
  PosL.clear();
  doofStap = 0;
  return true;
}

void Bliksem::doofRijen(DrawingSurface& blad) {
  const Color kern = RGB(flitsRood - flitsRood * doofStap, flitsGroen - flitsGroen * doofStap,
                         flitsBlauw - flitsBlauw * doofStap);
  for (std::size_t i = 0; i <= PosL.size(); ++i) {
    const std::int16_t y = toInt16(static_cast<double>(i + 1) * Pixel);
    rij(blad, plaats(i), y, kern, Black, Black);
  }
}
