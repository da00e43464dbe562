// The spray can.
#include "studio/spuitbus.h"

#include "surface/numbers.h"
#include "surface/random.h"

using namespace surface;

void spuit(DrawingSurface& sheet, PointF at, Color color) {
  const auto scatter = [] { return static_cast<float>(Int(Rnd() * 14 - 7)); };
  for (int i = 0; i <= 25; ++i) {
    const float dx = scatter();
    const float dy = scatter();
    sheet.PSet({at.X + dx, at.Y + dy}, color);
  }
}
