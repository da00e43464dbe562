// Mirroring the sheet, by way of a bitmap file in the program's folder, and the way to the dialog
// that turns it.
#include "effects/frmRoteren.h"
#include "studio/frmTekenen2.h"
#include "studio/modTekenen.h"

using namespace surface;

// Where the file cannot be written or read, the sheet stays as it was.
void frmTekenen2::mirror(bool leftToRight) {
  UndoShift();
  picTemp.Width = picBlad.Width;
  picTemp.Height = picBlad.Height;
  picTemp.Picture = LoadPicture();
  const int W = toInt16(picBlad.ScaleWidth()), H = toInt16(picBlad.ScaleHeight());
  StretchBlt(picTemp.hDC(), leftToRight ? W : 0, leftToRight ? 0 : H, leftToRight ? -W : W,
             leftToRight ? H : -H, picBlad.hDC(), 0, 0, W, H, SrcCopy);
  picTemp.Refresh();
  const std::string file = app().Path + "/temp.bmp";
  trapAndReport([&] {
    SavePicture(picTemp.Image(), file);
    picBlad.Picture = LoadPicture(file);
  });
}

void frmTekenen2::cmdSpiegelH_Click() {
  lblModus.Caption = "de tekening HORIZONTAAL omdraaien (spiegelen)";
  mirror(true);
}

void frmTekenen2::cmdSpiegelV_Click() {
  lblModus.Caption = "de tekening VERTICAAL omdraaien (spiegelen)";
  mirror(false);
}

// The effect's step is taken when the dialog opens, also if nothing is turned then.
void frmTekenen2::cmdRoteren_Click() {
  showNew<frmRoteren>();
  PrepareEffect();
  lblModus.Caption = "ROTEREN ... GRADEN NAAR LINKS wordt nu toegepast";
}
