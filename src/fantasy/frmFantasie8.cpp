// A bolt strikes, thins, goes out, and the next one strikes.
#include "fantasy/frmFantasie8.h"

#include "fantasy/frmFantasie.h"

using namespace surface;

frmFantasie8::frmFantasie8() : Form(fantasie::scherm("BLIKSEMSCHICHTEN", Black)) {
  Timer1.Timer = [this] { Timer1_Timer(); };
  Timer2.Timer = [this] { Timer2_Timer(); };
  cmdSluiten.Click = [this] { cmdSluiten_Click(); };
}

void frmFantasie8::Timer1_Timer() {
  bliksem.bliksemSoort = toInt16(Int(Rnd() * 5.0));
  bliksem.MakeFX(*this, generator(), {Width, Height});
  Timer2.Enabled = true;
  Timer1.Enabled = false;
}

void frmFantasie8::Timer2_Timer() {
  if (!bliksem.dooft(*this)) return;
  Timer1.Enabled = true;
  Timer2.Enabled = false;
}

void frmFantasie8::cmdSluiten_Click() {
  fantasie::stop(Timer1);
  fantasie::stop(Timer2);
  showNew<frmFantasie>();
  Unload(*this);
}
