// The spray can.
#pragma once

#include "surface/drawing.h"

/// One burst: 26 dots at random within 14 by 14 pixels round a point, at the surface's DrawWidth.
void spuit(surface::DrawingSurface& sheet, surface::PointF at, surface::Color color);
