// The dialog that turns the drawing.
#include "effects/frmRoteren.h"

#include "studio/frmTekenen2.h"
#include "studio/modTekenen.h"

using namespace surface;

frmRoteren::frmRoteren()
    : Form({.Caption = "DE TEKENING ONDER EEN HOEK DRAAIEN",
            .BackColor = Pale,
            .Width = 9135,
            .Height = 8055,
            .Centred = true,
            .BorderStyle = Border::Fixed}) {
  picPreview.AccessibleName = "voorbeeld";
  cboHoek.AccessibleName = "hoek in graden";
  Load = [this] { Form_Load(); };
  cmdPreview.Click = [this] { cmdPreview_Click(); };
  cmdInvoegen.Click = [this] { cmdInvoegen_Click(); };
  cmdSluiten.Click = [this] { Unload(*this); };
}

void frmRoteren::Form_Load() {
  for (int degrees = 15; degrees <= 360; degrees += 15) cboHoek.AddItem(toText(degrees));
  cboHoek.ListIndex = 5;
}

// The chosen degrees in radians.
float frmRoteren::angle() const {
  const auto degrees = static_cast<float>(Val(cboHoek.Text()));
  return static_cast<float>(degrees * 3.14159265359 / 180);
}

// Not cleared before: the corners of an earlier preview can stay visible.
void frmRoteren::cmdPreview_Click() {
  MousePointer = PointerHourglass;
  if (hasAngle()) RotateInto(the<frmTekenen2>().picBlad, picPreview, angle());
  MousePointer = PointerDefault;
}

void frmRoteren::cmdInvoegen_Click() {
  auto& studio = the<frmTekenen2>();
  MousePointer = PointerHourglass;
  if (hasAngle()) {
    studio.picRoteren.Height = studio.picBlad.Height;
    studio.picRoteren.Width = studio.picBlad.Width;
    RotateInto(studio.picBlad, studio.picRoteren, angle());
    studio.picRoteren.Picture = studio.picRoteren.Image();
    studio.picNieuw.Height = studio.picBlad.Height;
    studio.picNieuw.Width = studio.picBlad.Width;
    studio.picBlad.PaintPicture(studio.picNieuw.Image(), {0, 0});
    studio.picBlad.PaintPicture(studio.picRoteren.Picture, {0, 0});
  }
  Unload(*this);
  studio.MousePointer = PointerDefault;
}
