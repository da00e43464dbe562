// The worm crawls to and fro until its time is up.
#include "fantasy/frmFantasie4.h"

#include "fantasy/frmFantasie.h"
#include "studio/modTekenen.h"

using namespace surface;

frmFantasie4::frmFantasie4()
    : Form(fantasie::scherm("WRIEMELENDE REGENWORMEN", fantasie::Lichtgrijs)) {
  Picture1.AccessibleName = "regenwormen";
  Picture1.FillStyle = 0;
  Load = [this] { Form_Load(); };
  Timer1.Timer = [this] { Timer1_Timer(); };
  Timer2.Timer = [this] { Timer2_Timer(); };
  Timer3.Timer = [this] { Timer3_Timer(); };
  // A worm starts where the colour replacement of the large studio left off.
  cmdWorm2.Click = [this] {
    nieuweWorm(cmdWorm2, 21000, ScanKolom + 6000, toInt16(ScanRij + 3000));
  };
  cmdWorm3.Click = [this] { nieuweWorm(cmdWorm3, 22000, ScanKolom + 6000, ScanRij); };
  cmdWorm4.Click = [this] {
    nieuweWorm(cmdWorm4, 23000, ScanKolom + 8000, toInt16(ScanRij + 8000));
  };
  cmdWorm5.Click = [this] { nieuweWorm(cmdWorm5, 25000, ScanKolom + 9000, ScanRij); };
  cmdSluiten.Click = [this] { cmdSluiten_Click(); };
}

void frmFantasie4::Form_Load() {
  Randomize();
  Timer1.Enabled = !Timer1.Enabled;
  Timer2.Enabled = false;
}

void frmFantasie4::Timer1_Timer() {
  const auto buiten = [](std::int32_t plaats, float grens) {
    return static_cast<double>(plaats) >= grens;
  };
  if (buiten(worm.wormX, Picture1.Width) || buiten(worm.wormY, Picture1.Height)) {
    Timer2.Enabled = true;
    Timer1.Enabled = false;
    keer(&frmFantasie4::Timer2_Timer);
  }
  worm.kruipHeen(Picture1, generator());
}

void frmFantasie4::Timer2_Timer() {
  if (worm.wormX < 1 || worm.wormY < 1) {
    Timer2.Enabled = false;
    Timer1.Enabled = true;
    keer(&frmFantasie4::Timer1_Timer);
  }
  worm.kruipTerug(Picture1, generator());
}

// A worm that has come to both ends at once, in the lower left corner, would turn without end.
void frmFantasie4::keer(void (frmFantasie4::*tik)()) {
  if (keert) return;
  keert = true;
  (this->*tik)();
  keert = false;
}

void frmFantasie4::Timer3_Timer() {
  Timer1.Enabled = false;
  Timer2.Enabled = false;
  lblAntwoord.Visible = true;
  fantasie::toon(cmdSluiten);
  switch (Timer3.Interval) {
    case 20000:
      return fantasie::toon(cmdWorm2);
    case 21000:
      return antwoord("Blijkbaar is het leuk. Ermee stoppen of nog een worm ?", cmdWorm2, cmdWorm3);
    case 22000:
      return antwoord("Nog niet genoeg gehad ? Ermee stoppen of nog een worm ?", cmdWorm3,
                      cmdWorm4);
    case 23000:
      return antwoord("Dit scherm is verslavend ! Ermee stoppen of nog een worm ?", cmdWorm4,
                      cmdWorm5);
    case 25000:
      lblAntwoord.Caption = "Je bent verslaafd geraakt. Daarom kun je nu beter ermee stoppen !";
      return;
    default:
      return;
  }
}

void frmFantasie4::antwoord(const char* tekst, CommandButton& vorige, CommandButton& volgende) {
  lblAntwoord.Caption = tekst;
  fantasie::verberg(vorige);
  fantasie::toon(volgende);
}

void frmFantasie4::nieuweWorm(CommandButton& knop, int wachttijd, double x, std::int16_t y) {
  lblAntwoord.Visible = false;
  fantasie::verberg(cmdSluiten);
  fantasie::verberg(knop);
  Timer3.Interval = wachttijd;
  Form_Load();
  worm.wormX = toInt32(x);
  worm.wormY = y;
}

void frmFantasie4::cmdSluiten_Click() {
  fantasie::stop(Timer1);
  fantasie::stop(Timer2);
  fantasie::stop(Timer3);
  showNew<frmFantasie>();
  Unload(*this);
}
