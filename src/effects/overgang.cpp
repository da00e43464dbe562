// The gradient panel: a transition of two colours over the whole sheet.
#include "effects/gradient.h"
#include "studio/frmTekenen2.h"

using namespace surface;

// The button of the pointer decides which colour comes first.
void frmTekenen2::cmdGradient2_MouseDown(const Mouse& at) {
  const bool forth = at.Button == 1;
  effects::paintGradient(picBlad, forth ? Picture3.BackColor : Picture4.BackColor,
                         forth ? Picture4.BackColor : Picture3.BackColor,
                         cboGradient.Text() != "Verticaal");
  fraGradient.Visible = false;
}

// A press by the keyboard or a screen reader. After one by the pointer the panel is gone already.
void frmTekenen2::cmdGradient2_Click() {
  if (fraGradient.Visible) cmdGradient2_MouseDown({1, 0, 0, 0});
}
