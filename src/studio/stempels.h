// The thirteen stamps of the brush: little figures about 11 pixels across.
#pragma once

#include "surface/drawing.h"

/// Stamps figure 1..13 at a point (pixels) in a colour at the surface's DrawWidth; any other number
/// stamps nothing. Figure 13 sets DrawWidth to `thickness` (1..20) and takes random numbers.
/// `Teller` is the loop counter of the figures that need one; its last value stays.
void stempel(surface::DrawingSurface& sheet, int figure, surface::PointF at, surface::Color color,
             int thickness, float& Teller);
