// Figure upon figure, and the buttons that start the picture in other ways.
#include "fantasy/frmFantasie2.h"

#include "fantasy/frmFantasie.h"

using namespace surface;

namespace {

constexpr Color Knopletters = static_cast<Color>(0x80000012);  // black on a plain desktop

}  // namespace

frmFantasie2::frmFantasie2() : Form(fantasie::scherm("LENTEKRIEBELS", fantasie::Lichtgrijs)) {
  Load = [this] { Form_Load(); };
  Timer1.Timer = [this] { Timer1_Timer(); };
  Timer2.Timer = [this] { modKaleidos.nieuwBeeld = true; };
  cmdVergroten.Click = [this] { herstart(); };
  cmdHoekmarkering.Click = [this] { cmdHoekmarkering_Click(); };
  cmdLangzaam.Click = [this] { cmdLangzaam_Click(); };
  cmdNacht.Click = [this] { cmdNacht_Click(); };
  cmdSluiten.Click = [this] { cmdSluiten_Click(); };
}

void frmFantasie2::Form_Load() {
  modKaleidos.enkeleSpaak = false;
  modKaleidos.hoekMarkeren = true;
  modKaleidos.nieuwBeeld = true;
  modKaleidos.lijnTeller = 999;
  figuurTekenen();
}

void frmFantasie2::figuurTekenen() {
  modKaleidos.figuurTekenen(*this, generator());
  Timer1.Enabled = true;
}

void frmFantasie2::herstart() {
  modKaleidos.enkeleSpaak = false;
  modKaleidos.hoekMarkeren = true;
  Show();
  modKaleidos.nieuwBeeld = true;
  modKaleidos.lijnTeller = 999;
  figuurTekenen();
  Timer1.Interval = 1;
  // This wipes the figure: the picture begins with the next one.
  BackColor = fantasie::Lichtgrijs;
}

void frmFantasie2::Timer1_Timer() {
  Timer1.Enabled = false;
  figuurTekenen();
}

void frmFantasie2::cmdHoekmarkering_Click() {
  modKaleidos.hoekMarkeren = false;
  modKaleidos.nieuwBeeld = true;
  Timer1.Interval = 1;
  BackColor = fantasie::Lichtgrijs;
}

void frmFantasie2::cmdLangzaam_Click() {
  modKaleidos.wachttijd = 400;
  modKaleidos.nieuwBeeld = true;
  Timer1.Interval = modKaleidos.wachttijd;
}

void frmFantasie2::cmdNacht_Click() {
  herstart();
  BackColor = Knopletters;
}

void frmFantasie2::cmdSluiten_Click() {
  fantasie::stop(Timer1);
  fantasie::stop(Timer2);
  showNew<frmFantasie>();
  Unload(*this);
}
