// The palette, the colour of the sheet, and the two colours of a gradient.
#include "studio/colours.h"

#include <algorithm>

#include "studio/frmTekenen2.h"

using namespace surface;

std::optional<Color> chosenColor(CommonDialog& dialog) {
  dialog.CancelError = true;
  dialog.Flags = 4;
  if (!trapAndLeave([&] { dialog.ShowColor(); })) return {};
  return dialog.Color;
}

// The picture is a pixel narrower than its box: the column beside it gives what its last one shows.
Color frmTekenen2::paletteColor(const Mouse& at) const {
  const auto lastColumn = static_cast<float>((picPalet.Picture->width() - 1) * TwipsPerPixel);
  const bool beside = at.X > lastColumn && at.X < picPalet.ScaleWidth();
  return picPalet.Point({beside ? lastColumn : at.X, at.Y});
}

void frmTekenen2::picPalet_MouseDown(const Mouse& at) {
  resumeNext([&] { PaletBezig = -1; }, [&] { Shape1.FillColor = paletteColor(at); },
             [&] { Line2.BorderColor = Shape1.FillColor; });
}

void frmTekenen2::picPalet_MouseMove(const Mouse& at) {
  if (PaletBezig) resumeNext([&] { Shape1.FillColor = paletteColor(at); });
}

void frmTekenen2::picPalet_MouseUp(const Mouse& at) {
  // Off the palette there is no colour, and the former one stays.
  if (const Color c = paletteColor(at); c != NoColor) picBlad.ForeColor = c;
  PaletBezig = 0;
}

void frmTekenen2::cmdPalet_Click() {
  lblModus.Caption = "een KLEUR voor de ACHTERGROND kiezen";
  if (const auto chosen = chosenColor(CommonDialog1)) picBlad.BackColor = *chosen;
}

// A cancel gives the colour chosen last, and it is taken all the same; before the first it is the
// swatch's own.
void frmTekenen2::chooseGradientColor(PictureBox& swatch) {
  CommonDialog2.CancelError = true;
  CommonDialog2.Flags = 0;
  if (!VerloopGekozen) CommonDialog2.Color = swatch.BackColor;
  if (trapAndLeave([&] { CommonDialog2.ShowColor(); })) VerloopGekozen = true;
  swatch.BackColor = CommonDialog2.Color;
}
