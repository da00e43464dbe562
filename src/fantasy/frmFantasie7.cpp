// The stars drift as long as the screen is open.
#include "fantasy/frmFantasie7.h"

#include "fantasy/frmFantasie.h"

using namespace surface;

frmFantasie7::frmFantasie7() : Form(fantasie::scherm("STERRENPRACHT", Black, ScalePixels)) {
  Load = [this] { Form_Load(); };
  Resize = [this] { sterren.verdeel(*this); };
  Timer1.Timer = [this] { Timer1_Timer(); };
  cmdSneller.Click = [this] { cmdSneller_Click(); };
  cmdTrager.Click = [this] { cmdTrager_Click(); };
  cmdKleurrijk.Click = [this] { cmdKleurrijk_Click(); };
  cmdWitzwart.Click = [this] { cmdWitzwart_Click(); };
  cmdSluiten.Click = [this] { cmdSluiten_Click(); };
}

void frmFantasie7::Form_Load() {
  AutoRedraw = true;
  sterren.strooi(*this, generator());
}

void frmFantasie7::Timer1_Timer() {
  sterren.drijf(*this, generator(),
                Val(txtKleurrijk.Text) == 0 ? Sterren::Gewoon : Sterren::Kleurrijk);
}

void frmFantasie7::cmdSneller_Click() {
  Timer1.Interval = 1;
  fantasie::toon(cmdTrager);
  fantasie::verberg(cmdSneller);
  Form_Load();
}

void frmFantasie7::cmdTrager_Click() {
  Timer1.Interval = 100;
  fantasie::toon(cmdSneller);
  fantasie::verberg(cmdTrager);
  Form_Load();
}

void frmFantasie7::cmdKleurrijk_Click() {
  txtKleurrijk.Text = "1";
  fantasie::toon(cmdWitzwart);
  fantasie::verberg(cmdKleurrijk);
}

void frmFantasie7::cmdWitzwart_Click() {
  txtKleurrijk.Text = "0";
  fantasie::verberg(cmdWitzwart);
  fantasie::toon(cmdKleurrijk);
}

void frmFantasie7::cmdSluiten_Click() {
  fantasie::stop(Timer1);
  showNew<frmFantasie>();
  Unload(*this);
}
