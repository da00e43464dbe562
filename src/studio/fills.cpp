// Fill, pattern fill and colour pick: all three act at the press, before the snapshot for undo.
#include "studio/frmTekenen2.h"

using namespace surface;

void frmTekenen2::fill(const Mouse& at) {
  picBlad.FillColor = picBlad.ForeColor;
  picBlad.FillStyle = 0;
  const Color c = picBlad.Point({at.X, at.Y});
  ExtFloodFill(picBlad.hDC(), toInt32(at.X), toInt32(at.Y), c, FloodFillSurface);
  picBlad.FillStyle = 1;
  picBlad.FillColor = Shape1.FillColor;
}

// In the FillColor that the pointer's way to the sheet has set.
void frmTekenen2::fillWithPattern(const Mouse& at) {
  picBlad.FillStyle = Patroon;
  const Color c = picBlad.Point({at.X, at.Y});
  ExtFloodFill(picBlad.hDC(), toInt32(at.X), toInt32(at.Y), c, FloodFillSurface);
}

// While one button holds the pointer, a second one can go down beyond the sheet, where there is no
// colour.
void frmTekenen2::pickColor(const Mouse& at) {
  const Color c = picBlad.Point({at.X, at.Y});
  if (c == NoColor) return;
  Shape1.FillColor = c;
  picBlad.ForeColor = c;
}
