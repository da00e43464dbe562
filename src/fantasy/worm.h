// A fat worm of discs, each in a new colour, that wriggles over a picture.
#pragma once

#include <cstdint>

#include "surface/drawing.h"
#include "surface/random.h"

struct Worm {
  std::int32_t wormX = 0, wormY = 0;  ///< the head, twips

  /// One disc down and to the right.
  void kruipHeen(surface::DrawingSurface& blad, surface::Random& random);
  /// One disc up and to the left, where the worm is fatter and in more of a hurry.
  void kruipTerug(surface::DrawingSurface& blad, surface::Random& random);

 private:
  void schijf(surface::DrawingSurface& blad, surface::Random& random, float straal) const;
};
