// Lightning: a jagged bolt from the top of a window to its bottom that thins and goes out.
#pragma once

#include <cstdint>
#include <vector>

#include "surface/drawing.h"
#include "surface/random.h"

struct Bliksem {
  std::int16_t bliksemSoort = 0;      ///< 0 blue, 1 purple, 2 green, 3 red, 4 yellow
  std::vector<float> PosL;            ///< the bolt's place in each row from 1 on, twips
  int flitsRood = 0, flitsGroen = 0;  ///< the bolt's pure colour
  std::int16_t flitsBlauw = 0;
  int doofStap = 0;  ///< 0 thin, 1 gone

  /// Strikes: one bolt over a window of this outer size (twips), drawn in one go. Its pure colour
  /// is known only if the height is whole rows.
  void MakeFX(surface::DrawingSurface& blad, surface::Random& random, surface::SizeF venster);
  /// One step of fading: to a line one pixel wide, then to nothing. True when the bolt is gone.
  bool dooft(surface::DrawingSurface& blad);

 private:
  void wis(surface::DrawingSurface& blad);
  void doofRijen(surface::DrawingSurface& blad);
  float plaats(std::size_t i) const { return i < PosL.size() ? PosL[i] : 0; }
};
