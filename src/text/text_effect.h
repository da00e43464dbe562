// Text printed on a surface several times over, so that it gets an edge, depth or a rim.
#pragma once

#include <string>

#include "surface/surface.h"

enum class TextEffect { None, Raised, Deep, Outlined };

struct TextInks {
  surface::Color effect;  ///< the copies: upper left edge, depth or rim
  surface::Color shadow;  ///< the lower right edge of raised text
  surface::Color dot;     ///< the dot that places a copy of depth or rim
  surface::Color text;    ///< the text itself, on top
};

/// How far and where to the copies of TextEffect::Deep go.
struct TextDepth {
  int steps = 0;     ///< copies, one pixel apart
  double angle = 0;  ///< radians, clockwise from the right
};

/// Prints the text with the upper left corner of its first letter's cell at `at`, in the surface's
/// font. Each print is placed by a line of no length, which leaves a dot there. The surface keeps
/// the pen width 1 and the text's colour.
void printText(surface::DrawingSurface& onto, const std::string& text, surface::PointF at,
               TextEffect effect, const TextInks& inks, const TextDepth& depth);

/// The angle, radians, of a number of degrees above 0. Y points down and 0 degrees would mean
/// straight down, so 90 goes to the left, 180 up.
double radiansOf(int degrees);

/// What is left of a whole number, written in digits, when 360 is taken away for as long as it is
/// above 360: the number itself or 1 to 360. An empty text is 0.
int foldedDegrees(const std::string& digits);
