// A linear transition between two colours over a whole surface.
#pragma once

#include <vector>

#include "surface/drawing.h"

namespace effects {

/// The colours of the steps 0..length of the way from one colour to the other; none for a length of
/// 0 or less.
std::vector<surface::Color> gradientColors(surface::Color from, surface::Color to, float length);

/// Sweeps over the surface, along x or y, with lines in these colours, drawn with the pen in force:
/// a dotted or wide one shows.
void paintGradient(surface::DrawingSurface& sheet, surface::Color from, surface::Color to,
                   bool alongX);

}  // namespace effects
