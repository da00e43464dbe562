// The kaleidoscope: figures of lines or circles that spiral outward, each turned and mirrored round
// the middle.
#pragma once

#include "surface/drawing.h"
#include "surface/random.h"

struct Kaleidos {
  bool nieuwBeeld = false;    ///< the next figure starts a new picture
  int wachttijd = 0;          ///< milliseconds between figures, once "Trager" was pressed
  bool enkeleSpaak = false;   ///< only the last copy, without its mirror image
  bool hoekMarkeren = false;  ///< white spokes
  int lijnTeller = 0;         ///< steps since the picture began
  double beeldStraal = 0;     ///< twips: length of a spoke and the most that a figure starts with
  float aantalSpaken = 0;     ///< copies round the middle: 6, 8, 10, 12 or 14

  /// Draws one figure on a surface scaled in twips; a new picture first if one is due.
  void figuurTekenen(surface::DrawingSurface& blad, surface::Random& random);

 private:
  void beginBeeld(surface::DrawingSurface& blad, surface::Random& random);
};
