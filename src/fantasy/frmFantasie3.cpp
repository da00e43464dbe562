// One curve a tick; every change of the background starts the flower over.
#include "fantasy/frmFantasie3.h"

#include "fantasy/bloem.h"
#include "fantasy/frmFantasie.h"

using namespace surface;

frmFantasie3::frmFantasie3() : Form(fantasie::scherm("ZOMERVREUGDE", fantasie::Lichtgrijs)) {
  Timer1.Timer = [this] { Timer1_Timer(); };
  cmdSnel.Click = [this] { cmdSnel_Click(); };
  cmdTraag.Click = [this] { cmdTraag_Click(); };
  cmdMiddag.Click = [this] { kleurAchtergrond(0xC0FFFF); };
  cmdSluiten.Click = [this] { cmdSluiten_Click(); };
}

void frmFantasie3::Timer1_Timer() {
  bloemTekenen(*this, generator(), Val(txt1.Text) == 1 ? Tempo::Traag : Tempo::Snel);
}

void frmFantasie3::kleurAchtergrond(Color kleur) {
  BackColor = kleur;
  lblBloem.BackColor = kleur;
}

void frmFantasie3::cmdSnel_Click() {
  txt1.Text = "2";
  fantasie::verberg(cmdSnel);
  fantasie::toon(cmdTraag);
  kleurAchtergrond(fantasie::Lichtgrijs);
}

void frmFantasie3::cmdTraag_Click() {
  txt1.Text = "1";
  fantasie::verberg(cmdTraag);
  fantasie::toon(cmdSnel);
  kleurAchtergrond(fantasie::Lichtgrijs);
}

void frmFantasie3::cmdSluiten_Click() {
  fantasie::stop(Timer1);
  showNew<frmFantasie>();
  Unload(*this);
}
