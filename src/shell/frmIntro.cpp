// The splash screen.
#include "shell/frmIntro.h"

#include "shell/frmStart.h"

using namespace surface;

frmIntro::frmIntro()
    : Form({.Caption = "KRAS PRET",
            .BackColor = 0xE0E0E0,
            .Width = 7620,
            .Height = 6090,
            .Centred = true,
            .BorderStyle = Border::Fixed}) {
  Timer1.Timer = [this] { Timer1_Timer(); };
}

Label::Design frmIntro::line(float left, float top, float width, const char* text) {
  return {.Left = left,
          .Top = top,
          .Width = width,
          .Height = 255,
          .Caption = text,
          .BackColor = 0xE0E0E0,
          .ForeColor = 0xFF0000,
          .Font = {"Arial", 9.75f, true}};
}

void frmIntro::Timer1_Timer() {
  if (Timer1.Interval != 3000) return;
  Unload(*this);
  the<frmStart>().Show();
  the<frmStart>().txtNaam.SetFocus();
}
