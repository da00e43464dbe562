// How the wheel turns.
#include "fantasy/wiel.h"

#include <cmath>

#include "surface/numbers.h"

using namespace surface;

void Wiel::stelIn() {
  middenX = 6000;
  middenY = 4100;
  straal = 3900;
  hoek = 0;
  kleurFase = 1;
  beginRood = 255;
  beginGroen = 0;
  beginBlauw = 0;
  kleurStap = 2;
  verkleinStap = 10;
  hoekStap = 3;
  minStraal = 10;
  huidigRood = 256;
  huidigGroen = 0;
  huidigBlauw = 0;
}

void Wiel::kiesBeginkleur(int plaats) {
  const auto kies = [this](int rood, int groen, int blauw) {
    beginRood = rood;
    beginGroen = groen;
    beginBlauw = toInt16(blauw);
  };
  switch (plaats / 256) {
    case 0:
      return kies(255, plaats, 0);
    case 1:
      return kies(512 - plaats, 255, 0);
    case 2:
      return kies(0, 255, plaats - 512);
    case 3:
      return kies(0, 1024 - plaats, 255);
    case 4:
      return kies(plaats - 1024, 0, 255);
    case 5:
      return kies(255, 0, 1536 - plaats);
    default:
      return kies(0, 0, 0);
  }
}

void Wiel::stap(DrawingSurface& blad) {
  lijnTekenen(blad);
  kleurVerder();
}

void Wiel::lijnTekenen(DrawingSurface& blad) {
  puntX = std::sin(static_cast<double>(hoek)) * straal + middenX;
  puntY = std::cos(static_cast<double>(hoek)) * straal + middenY;
  blad.Line({static_cast<float>(vorigeX), static_cast<float>(vorigeY)},
            {static_cast<float>(puntX), static_cast<float>(puntY)},
            RGB(toInt16(huidigRood), toInt16(huidigGroen), huidigBlauw));
  // The first line of a run is drawn in a style that leaves nothing: from here on they show.
  blad.DrawMode = 13;
  blad.DrawStyle = 0;
  vorigeX = puntX;
  vorigeY = toInt32(puntY);
  hoek = hoekStap + hoek;
  straal = straal - verkleinStap;
}

void Wiel::kleurVerder() {
  switch (kleurFase) {
    case 1:
      huidigGroen += kleurStap;
      if (huidigGroen > 255) huidigGroen = 255, kleurFase = 2;
      break;
    case 2:
      huidigRood -= kleurStap;
      if (huidigRood < kleurStap) huidigRood = 0, kleurFase = 3;
      break;
    case 3:
      huidigBlauw = toInt16(huidigBlauw + kleurStap);
      if (huidigBlauw >= 256) huidigBlauw = 255, kleurFase = 4;
      break;
    case 4:
      huidigGroen -= kleurStap;
      if (huidigGroen < kleurStap) huidigGroen = 0, kleurFase = 5;
      break;
    case 5:
      huidigRood += kleurStap;
      if (huidigRood > 255) huidigRood = 255, kleurFase = 6;
      break;
    case 6:
      huidigBlauw = toInt16(huidigBlauw - kleurStap);
      if (huidigBlauw < kleurStap) huidigBlauw = 0, kleurFase = 1;
      break;
    default:
      break;
  }
}
