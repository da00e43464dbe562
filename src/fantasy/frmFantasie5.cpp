// Launch and flight, two ways of drawing and two tempos.
#include "fantasy/frmFantasie5.h"

#include "fantasy/frmFantasie.h"

using namespace surface;

frmFantasie5::frmFantasie5() : Form(fantasie::scherm("FEESTELIJK VUURWERK", 0xC0C0C0)) {
  picVuurwerk.AccessibleName = "vuurwerk";
  Load = [this] { Form_Load(); };
  Timer1.Timer = [this] { vuurwerk.vlieg(picVuurwerk, generator()); };
  Timer2.Timer = [this] { vuurwerk.schiet(picVuurwerk, generator()); };
  cmdHemel.Click = [this] { cmdHemel_Click(); };
  cmdHemel2.Click = [this] { cmdHemel2_Click(); };
  cmdMeer.Click = [this] { cmdMeer_Click(); };
  cmdMinder.Click = [this] { cmdMinder_Click(); };
  cmdSluiten.Click = [this] { cmdSluiten_Click(); };
}

void frmFantasie5::Form_Load() { vuurwerk.stelIn(); }

void frmFantasie5::cmdHemel_Click() {
  picVuurwerk.Cls();
  picVuurwerk.DrawStyle = 2;
  fantasie::toon(cmdHemel2);
  fantasie::verberg(cmdHemel);
}

void frmFantasie5::cmdHemel2_Click() {
  picVuurwerk.Cls();
  picVuurwerk.DrawStyle = 2;
  picVuurwerk.Cls();
  picVuurwerk.DrawStyle = 0;
  fantasie::toon(cmdHemel);
  fantasie::verberg(cmdHemel2);
}

void frmFantasie5::cmdMeer_Click() {
  Timer1.Interval = 1;
  Timer2.Interval = 10;
  Form_Load();
  fantasie::toon(cmdMinder);
  fantasie::verberg(cmdMeer);
}

void frmFantasie5::cmdMinder_Click() {
  Timer1.Interval = 10;
  Timer2.Interval = 200;
  Form_Load();
  fantasie::toon(cmdMeer);
  fantasie::verberg(cmdMinder);
}

void frmFantasie5::cmdSluiten_Click() {
  showNew<frmFantasie>();
  fantasie::stop(Timer1);
  fantasie::stop(Timer2);
  Unload(*this);
}
