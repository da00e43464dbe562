// Autumn wind: curls that blow in from the edges and wind round the middle.
#pragma once

#include "surface/drawing.h"
#include "surface/random.h"

/// Dots one curl of two arms onto the surface, stretched to its size; the higher the speed (3 to
/// 50), the longer it is. Leaves the surface with a scale of its own: (3, -3) at the upper left,
/// (-3, 3) at the lower right.
void windTekenen(surface::DrawingSurface& blad, surface::Random& random, double snelheid);
