// The three effects: what is printed where, in which order and colour. Where copies overlap, the
// order decides.
#include "text/text_effect.h"

#include <cmath>

using namespace surface;

namespace {

// The copies of a block of places, column after column.
template <class Print>
void forBlock(float left, float right, float top, float bottom, const Print& print) {
  for (float x = left; x <= right; ++x)
    for (float y = top; y <= bottom; ++y) print(PointF{x, y});
}

}  // namespace

void printText(DrawingSurface& onto, const std::string& text, PointF at, TextEffect effect,
               const TextInks& inks, const TextDepth& depth) {
  const auto print = [&](PointF place, Color color, Color dot) {
    onto.ForeColor = color;
    onto.Line(place, place, dot);
    onto.Print(text);
  };
  const auto [x0, y0] = at;
  onto.DrawWidth = 1;
  switch (effect) {
    case TextEffect::Raised:
      forBlock(x0 - 1, x0, y0 - 1, y0, [&](PointF p) { print(p, inks.effect, White); });
      forBlock(x0, x0 + 1, y0, y0 + 1, [&](PointF p) { print(p, inks.shadow, Black); });
      break;
    case TextEffect::Deep:
      for (int i = 1; i <= depth.steps; ++i)
        print({static_cast<float>(x0 + i * std::cos(depth.angle)),
               static_cast<float>(y0 + i * std::sin(depth.angle))},
              inks.effect, inks.dot);
      break;
    case TextEffect::Outlined:
      forBlock(x0 - 1, x0 + 1, y0 - 1, y0 + 1, [&](PointF p) { print(p, inks.effect, inks.dot); });
      break;
    case TextEffect::None:
      break;
  }
  print(at, inks.text, Black);
}

double radiansOf(int degrees) { return 3.14159265359 / 2 + 6.28318530718 / (360.0 / degrees); }

int foldedDegrees(const std::string& digits) {
  int degrees = 0;
  for (const char digit : digits) {
    degrees = 10 * degrees + (digit - '0');
    // Taking a multiple of 360 away early changes nothing in what is left.
    if (degrees > 360) degrees = (degrees - 1) % 360 + 1;
  }
  return degrees;
}
