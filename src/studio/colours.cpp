// The palette, the colour of the sheet, and the two colours of a gradient.
#include "studio/frmTekenen2.h"

using namespace surface;

void frmTekenen2::picPalet_MouseDown(const Mouse& at) {
  resumeNext([&] { PaletBezig = -1; },
             [&] {
               Shape1.FillColor = picPalet.Point({at.X, at.Y});
             },
             [&] { Line2.BorderColor = Shape1.FillColor; });
}

void frmTekenen2::picPalet_MouseMove(const Mouse& at) {
  if (PaletBezig) resumeNext([&] { Shape1.FillColor = picPalet.Point({at.X, at.Y}); });
}

void frmTekenen2::picPalet_MouseUp(const Mouse& at) {
  // Off the palette there is no colour, and the former one stays.
  if (const Color c = picPalet.Point({at.X, at.Y}); c != NoColor) picBlad.ForeColor = c;
  PaletBezig = 0;
}

void frmTekenen2::cmdPalet_Click() {
  lblModus.Caption = "een KLEUR voor de ACHTERGROND kiezen";
  trapAndLeave([&] {
    CommonDialog1.CancelError = true;
    CommonDialog1.Flags = 4;
    CommonDialog1.ShowColor();
    picBlad.BackColor = CommonDialog1.Color;
  });
}

// A cancel gives the colour chosen last, and it is taken all the same.
void frmTekenen2::KiesVerloopkleur(PictureBox& swatch) {
  CommonDialog2.CancelError = false;
  CommonDialog2.ShowColor();
  swatch.BackColor = CommonDialog2.Color;
}
