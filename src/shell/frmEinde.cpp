// The farewell.
#include "shell/frmEinde.h"

using namespace surface;

frmEinde::frmEinde() : Form({.Caption = "KRAS PRET", .BackColor = 0xC0FFC0, .Maximised = true}) {
  Image9.AccessibleName = "welkomstprent";
  txtNaam2.AccessibleName = "je naam";
  Timer1.Timer = [this] { Timer1_Timer(); };
}

void frmEinde::Timer1_Timer() {
  if (Timer1.Interval == 3500) End();
}
