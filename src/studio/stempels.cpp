// The stamps, as lines and circles round a point.
#include "studio/stempels.h"

#include "surface/numbers.h"
#include "surface/random.h"

using namespace surface;

namespace {

// Draws with offsets from the stamp's point, always in its colour.
struct Stamp {
  DrawingSurface& sheet;
  PointF at;
  Color color;

  PointF offset(float dx, float dy) const { return {at.X + dx, at.Y + dy}; }
  void line(float x1, float y1, float x2, float y2) const {
    sheet.Line(offset(x1, y1), offset(x2, y2), color);
  }
  void plus() const {
    line(0, 5, 0, -5);
    line(5, 0, -5, 0);
  }
};

void star(const Stamp& stamp) {
  stamp.line(-5, 5, 5, -2);
  stamp.line(5, -2, -5, -2);
  stamp.line(-5, -2, 5, 5);
  stamp.line(5, 5, 0, -5);
  stamp.line(0, -5, -5, 5);
}

void diamond(const Stamp& stamp, float& Teller) {
  for (Teller = -5; Teller <= 5; ++Teller) {
    stamp.line(0, -5, Teller, 0);
    stamp.line(0, 5, Teller, 0);
  }
  // One further than the figure is wide: a line's last pixel is not painted.
  stamp.line(-5, 0, 6, 0);
}

// One match-stick in a random direction, the longer the thicker.
void matchStick(const Stamp& stamp, int thickness) {
  stamp.sheet.DrawWidth = thickness;
  const auto length = [thickness] {
    return static_cast<float>(Int(Rnd() * static_cast<float>(thickness + 10)) + 1);
  };
  const auto coin = [] { return Int(Rnd() * 2) + 1 == 1; };
  float a = length();
  float b = length();
  if (coin()) b = -b;
  if (coin()) a = -a;
  stamp.line(0, 0, a, b);
}

}  // namespace

void stempel(DrawingSurface& sheet, int figure, PointF at, Color color, int thickness,
             float& Teller) {
  const Stamp stamp{sheet, at, color};
  switch (figure) {
    case 1:
      stamp.line(-5, 5, 5, -5);
      break;
    case 2:
      stamp.line(5, 5, -5, -5);
      break;
    case 3:
      stamp.plus();
      break;
    case 4:
      stamp.plus();
      stamp.line(-5, 5, 5, -5);
      stamp.line(5, 5, -5, -5);
      break;
    case 5:
      for (Teller = 0; Teller <= 5; Teller += 0.5f) sheet.Circle(at, Teller, color);
      break;
    case 6:
      sheet.Line(stamp.offset(-5, -5), stamp.offset(5, 5), color, BF);
      break;
    case 7:
      for (Teller = -5; Teller <= 5; ++Teller) stamp.line(Teller, 5, 0, -5);
      break;
    case 8:
      for (Teller = -5; Teller <= 5; ++Teller) stamp.line(Teller, -5, 0, 5);
      break;
    case 9:
      for (Teller = -5; Teller <= 5; ++Teller) stamp.line(-5, 0, 5, Teller);
      break;
    case 10:
      for (Teller = -5; Teller <= 5; ++Teller) stamp.line(-5, Teller, 5, 0);
      break;
    case 11:
      star(stamp);
      break;
    case 12:
      diamond(stamp, Teller);
      break;
    case 13:
      matchStick(stamp, thickness);
      break;
    default:
      break;
  }
}
