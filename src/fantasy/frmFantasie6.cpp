// The wheel's controls and its run. They set each other's values, and a value set here fires its
// handler as a value set by the child does.
#include "fantasy/frmFantasie6.h"

#include "fantasy/frmFantasie.h"

using namespace surface;

frmFantasie6::frmFantasie6()
    : Form(fantasie::scherm("WINDMOLENTJE ( of is het een FIETSWIEL ? )", fantasie::Lichtgrijs)) {
  HScroll4.AccessibleName = "beginkleur";
  HScroll2.AccessibleName = "verkleinen";
  Slider1.AccessibleName = "de snelheid";
  cmdPauze.Enabled = false;
  txtBeginkleur.AccessibleName = "beginkleur";
  Load = [this] { Form_Load(); };
  HScroll4.Change = [this] { HScroll4_Change(); };
  HScroll2.Change = [this] { HScroll2_Change(); };
  txtKleiner.Change = [this] { txtKleiner_Change(); };
  Slider1.Scroll = [this] { Slider1_Scroll(); };
  cmdStart.Click = [this] { cmdStart_Click(); };
  cmdPauze.Click = [this] { cmdPauze_Click(); };
  cmdKleurrijk.Click = [this] { cmdKleurrijk_Click(); };
  cmdSluiten.Click = [this] { cmdSluiten_Click(); };
  Timer1.Timer = [this] { Timer1_Timer(); };
}

void frmFantasie6::Form_Load() {
  wielToestand = Gestopt;
  wiel.stelIn();
  kleurVakje(RGB(255, 0, 0));
  HScroll4.Value = 0;
  txtAantalKleuren.Text = "2";
  txtKleiner.Text = "10";
  HScroll2.Value = 0;
  txtSnelheid.Text = "100";
  DrawMode = 16;
  toonSnelheid(true);
}

void frmFantasie6::kleurVakje(Color kleur) {
  txtBeginkleur.BackColor = kleur;
  txtBeginkleur.ForeColor = kleur;
}

void frmFantasie6::toonSnelheid(bool zichtbaar) {
  Slider1.Visible = zichtbaar;
  lblSnelheid.Visible = zichtbaar;
  lblSnelheid2.Visible = zichtbaar;
}

void frmFantasie6::toonVerkleinen(bool zichtbaar) {
  HScroll2.Visible = zichtbaar;
  lblVerklein.Visible = zichtbaar;
}

void frmFantasie6::HScroll4_Change() {
  wiel.kiesBeginkleur(HScroll4.Value);
  kleurVakje(RGB(toInt16(wiel.beginRood), toInt16(wiel.beginGroen), wiel.beginBlauw));
}

void frmFantasie6::HScroll2_Change() {
  txtKleiner.Text = toText(HScroll2.Value);
  Slider1.Value = 3;
  toonSnelheid(false);
}

void frmFantasie6::txtKleiner_Change() { HScroll2.Value = toInt16(Val(txtKleiner.Text)); }

void frmFantasie6::Slider1_Scroll() {
  // This puts the slider itself back to the middle and hides it.
  if (HScroll2.Value >= 1) HScroll2.Value = 0;
  toonVerkleinen(false);
  struct Snelheid {
    const char *wachttijd, *getoond;
  };
  static constexpr Snelheid snelheden[] = {
      {"5", "300"}, {"75", "225"}, {"150", "150"}, {"225", "75"}, {"300", "5"}};
  const Snelheid& gekozen = snelheden[Slider1.Value - Slider1.Min];
  txtSnelheid.Text = gekozen.wachttijd;
  lblSnelheid.Caption = gekozen.getoond;
}

void frmFantasie6::cmdStart_Click() {
  fantasie::toon(cmdKleurrijk);
  switch (wielToestand) {
    case Gestopt:
      return begin();
    case Bezig:
      return stopBezig();
    default:
      return stopGepauzeerd();
  }
}

void frmFantasie6::begin() {
  wielToestand = Bezig;
  Cls();
  cmdPauze.Enabled = true;
  cmdStart.Caption = "Stop";
  cmdStart.BackColor = Roze;
  toonVerkleinen(true);
  wiel.hoek = 0;
  wiel.straal = 3900;
  // The line from where the last run ended to the first point does not show.
  DrawMode = 16;
  DrawStyle = 5;
  wiel.verkleinStap = static_cast<float>(Val(txtKleiner.Text));
  wiel.kleurStap = toInt32(Val(txtAantalKleuren.Text));
  wiel.huidigRood = wiel.beginRood;
  wiel.huidigGroen = wiel.beginGroen;
  wiel.huidigBlauw = wiel.beginBlauw;
  const double wachttijd = Val(txtSnelheid.Text);
  if (wachttijd > 0) {
    Timer1.Interval = toInt32(wachttijd);
    Timer1.Enabled = true;
    return;
  }
  while (cmdPauze.Enabled && !unloading()) {
    Timer1_Timer();
    DoEvents();
  }
}

void frmFantasie6::stopBezig() {
  wielToestand = Gestopt;
  Timer1.Enabled = false;
  cmdStart.Caption = "Start";
  cmdStart.BackColor = Groen;
  cmdPauze.Enabled = false;
  toonSnelheid(true);
  txtAantalKleuren.Text = "2";
}

void frmFantasie6::stopGepauzeerd() {
  wielToestand = Gestopt;
  Timer1.Enabled = false;
  cmdStart.Caption = "Start";
  cmdPauze.Caption = "Pause";
  cmdPauze.Enabled = false;
}

void frmFantasie6::cmdPauze_Click() {
  if (wielToestand == Bezig) {
    Timer1.Enabled = false;
    cmdPauze.Caption = "Verder";
    cmdPauze.BackColor = Roze;
    wielToestand = Gepauzeerd;
  } else if (wielToestand == Gepauzeerd) {
    Timer1.Enabled = true;
    cmdPauze.Caption = "Pauze";
    cmdPauze.BackColor = Geel;
    wielToestand = Bezig;
  }
}

void frmFantasie6::cmdKleurrijk_Click() {
  Form_Load();
  txtAantalKleuren.Text = "255";
  cmdStart_Click();
  fantasie::verberg(cmdKleurrijk);
}

void frmFantasie6::Timer1_Timer() {
  if (wielToestand == Gestopt) return;
  if (!wiel.klaar()) return wiel.stap(*this);
  wielToestand = Gestopt;
  Timer1.Enabled = false;
  cmdStart.Caption = "Start";
  cmdPauze.Caption = "Pause";
  cmdPauze.Enabled = false;
}

void frmFantasie6::cmdSluiten_Click() {
  fantasie::stop(Timer1);
  showNew<frmFantasie>();
  Unload(*this);
}
