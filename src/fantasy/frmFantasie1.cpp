// The wind blows from Start on.
#include "fantasy/frmFantasie1.h"

#include "fantasy/frmFantasie.h"
#include "fantasy/wind.h"

using namespace surface;

frmFantasie1::frmFantasie1() : Form(fantasie::scherm("HERFSTWIND", fantasie::Lichtgrijs)) {
  Slider1.AccessibleName = "windsnelheid";
  Timer1.Timer = [this] { Timer1_Timer(); };
  cmdStart.Click = [this] { cmdStart_Click(); };
  cmdOpnieuw.Click = [this] { cmdOpnieuw_Click(); };
  cmdSluiten.Click = [this] { cmdSluiten_Click(); };
}

void frmFantasie1::Timer1_Timer() {
  txt1.Text = toText(Slider1.Value);
  windTekenen(*this, generator(), Val(txt1.Text));
}

void frmFantasie1::cmdStart_Click() {
  Timer1.Enabled = true;
  fantasie::verberg(cmdStart);
  fantasie::toon(cmdOpnieuw);
}

void frmFantasie1::cmdOpnieuw_Click() {
  Unload(*this);
  showNew<frmFantasie1>();
}

void frmFantasie1::cmdSluiten_Click() {
  fantasie::stop(Timer1);
  showNew<frmFantasie>();
  Unload(*this);
}
