// The windmill wheel: one long zigzag line whose spokes cross the middle, in colours that walk
// round the colour circle.
#pragma once

#include <cstdint>

#include "surface/drawing.h"

struct Wiel {
  std::int32_t middenX, middenY;  ///< twips
  float straal;                   ///< twips
  float hoek, hoekStap;           ///< radians
  float verkleinStap, minStraal;  ///< twips
  std::int32_t kleurFase;         ///< place on the colour circle, 1..6
  std::int32_t kleurStap;         ///< change of colour a step
  double beginRood, beginGroen;   ///< the first colour
  std::int16_t beginBlauw;
  double huidigRood, huidigGroen;  ///< the line's colour
  std::int16_t huidigBlauw;
  double puntX = 0, puntY = 0;  ///< the newest point, twips
  double vorigeX = 0;           ///< the one before
  std::int32_t vorigeY = 0;

  Wiel() { stelIn(); }
  /// Back to the values of a fresh wheel; the last point stays.
  void stelIn();
  /// The wheel is drawn to its end.
  bool klaar() const { return straal < minStraal; }
  /// One step of the line, and of its colour.
  void stap(surface::DrawingSurface& blad);
  /// The first colour for a position 0..1536 on the colour circle; its far end is black.
  void kiesBeginkleur(int plaats);

 private:
  void lijnTekenen(surface::DrawingSurface& blad);
  void kleurVerder();
  double omhoog(double kanaal);
  double omlaag(double kanaal);
};
