// From the menu to each screen, and back to the main menu.
#include "fantasy/frmFantasie.h"

#include <vector>

#include "fantasy/frmFantasie1.h"
#include "fantasy/frmFantasie2.h"
#include "fantasy/frmFantasie3.h"
#include "fantasy/frmFantasie4.h"
#include "fantasy/frmFantasie5.h"
#include "fantasy/frmFantasie6.h"
#include "fantasy/frmFantasie7.h"
#include "fantasy/frmFantasie8.h"
#include "info/frmInfo.h"
#include "shell/frmStart.h"

using namespace surface;

frmFantasie::frmFantasie()
    : Form({.Caption = "KRAS PRET", .BackColor = 0xC0FFC0, .Maximised = true}) {
  cmdTekenen1.Click = [this] {
    showNew<frmFantasie1>();
    Unload(*this);
  };
  cmdTekenen2.Click = [this] { opent<frmFantasie2>(); };
  cmdFantasie.Click = [this] { opent<frmFantasie3>(); };
  cmdKleurplaten.Click = [this] { opent<frmFantasie4>(); };
  Command2.Click = [this] { opent<frmFantasie5>(); };
  Command1.Click = [this] { opent<frmFantasie6>(); };
  // These two lie over the menu, which stays.
  Command3.Click = [] { the<frmFantasie7>().Show(); };
  Command4.Click = [] { the<frmFantasie8>().Show(); };
  cmdInfo.Click = [this] { cmdInfo_Click(); };
  cmdSluiten.Click = [this] { cmdSluiten_Click(); };
}

CommandButton::Design frmFantasie::keuze(float top, const char* tekst, Color kleur) {
  return {.Left = 8040,
          .Top = top,
          .Width = 3135,
          .Height = 615,
          .Caption = tekst,
          .BackColor = kleur,
          .Font = {"Arial", 18, true}};
}

template <class Scherm>
void frmFantasie::opent() {
  the<Scherm>().Show();
  Unload(*this);
}

void frmFantasie::cmdInfo_Click() {
  auto& info = the<frmInfo>();
  info.Show();
  info.txtInfo.Text = "2";
  Hide();
}

void frmFantasie::cmdSluiten_Click() {
  the<frmStart>().Show();
  // The main menu stands alone: the menus that the screens have left underneath go with this one,
  // those that hide behind an information screen, and a screen that is still open somewhere.
  std::vector<Form*> others;
  for (const auto& form : FormRegistry::instance().forms())
    if (form.get() != &the<frmStart>() && (form->shown() || dynamic_cast<frmFantasie*>(form.get())))
      others.push_back(form.get());
  for (Form* other : others) Unload(*other);
}
