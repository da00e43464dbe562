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

// A channel that has come to its end hands over to the next one.
double Wiel::omhoog(double kanaal) {
  kanaal += kleurStap;
  if (kanaal <= 255) return kanaal;
  kleurFase = kleurFase % 6 + 1;
  return 255;
}

double Wiel::omlaag(double kanaal) {
  kanaal -= kleurStap;
  if (kanaal >= kleurStap) return kanaal;
  kleurFase = kleurFase % 6 + 1;
  return 0;
}

void Wiel::kleurVerder() {
  switch (kleurFase) {
    case 1:
      huidigGroen = omhoog(huidigGroen);
      break;
    case 2:
      huidigRood = omlaag(huidigRood);
      break;
    case 3:
      huidigBlauw = toInt16(omhoog(huidigBlauw));
      break;
    case 4:
      huidigGroen = omlaag(huidigGroen);
      break;
    case 5:
      huidigRood = omhoog(huidigRood);
      break;
    default:
      huidigBlauw = toInt16(omlaag(huidigBlauw));
      break;
  }
}
