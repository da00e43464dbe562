// The magnifier's way to the sheet: opened by its button, fed at every move of the pointer.
#include "effects/frmZoom.h"
#include "studio/frmTekenen2.h"

using namespace surface;

void frmTekenen2::cmdZoom_Click() {
  lblModus.Caption = "de tekening vergroten (IN-ZOOMEN)";
  the<frmZoom>().Show();
}

// A square around the pointer. What of it lies beyond the sheet stays grey.
void frmTekenen2::feedMagnifier(const Mouse& at) {
  auto& zoom = the<frmZoom>();
  const double side = 200.0 / zoom.Slider1.Value;  // pixels of the sheet, with a fraction
  TempZoom.Width = ScaleX(static_cast<float>(side), ScalePixels, ScaleTwips);
  TempZoom.Height = ScaleY(static_cast<float>(side), ScalePixels, ScaleTwips);
  TempZoom.Cls();
  TempZoom.Picture = LoadPicture();
  const int pixels = toInt32(side);
  BitBlt(TempZoom.hDC(), 0, 0, pixels, pixels, picBlad.hDC(), toInt32(at.X - side / 2),
         toInt32(at.Y - side / 2), SrcCopy);
  TempZoom.Refresh();
  zoom.imgStretch.Picture = TempZoom.Image();
}
