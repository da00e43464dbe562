// The unfolding flower: one rose curve of twenty petals after the other, of random size and colour.
#pragma once

#include "surface/drawing.h"
#include "surface/random.h"

enum class Tempo { Traag, Snel };

/// Dots one curve onto the surface, stretched to its size. The fast tempo runs it ten times as far.
/// Leaves the surface with a scale of its own: (3, -3) at the upper left, (-3, 3) at the lower
/// right.
void bloemTekenen(surface::DrawingSurface& blad, surface::Random& random, Tempo tempo);
