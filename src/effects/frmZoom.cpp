// The magnifier's window. What it shows comes from the studio, at each move over the sheet.
#include "effects/frmZoom.h"

#include "studio/modTekenen.h"
#include "text/frmTekst.h"

using namespace surface;

frmZoom::frmZoom()
    : Form({.Caption = std::string(22, ' ') + "IN / UIT ZOOMEN",
            .Width = 4740,
            .Height = 3255,
            .BorderStyle = Border::Fixed}) {
  Slider1.AccessibleName = "vergroting";
  Load = [this] { Form_Load(); };
  FormUnload = [this] { Form_Unload(); };
  Slider1.Scroll = [this] { Slider1_Change(); };
  Slider1.Change = [this] { Slider1_Change(); };
}

void frmZoom::Form_Load() {
  ZoomOpen = -1;
  KeepOnTop();
  Left = 0;
  Top = 0;
  imgStretch.Width = ScaleX(200, ScalePixels, ScaleTwips);
  imgStretch.Height = ScaleY(200, ScalePixels, ScaleTwips);
  const float L = imgStretch.Left, T = imgStretch.Top, W = imgStretch.Width, H = imgStretch.Height;
  Line1.X1 = L + W / 2;
  Line1.Y1 = T;
  Line1.X2 = L + W / 2;
  Line1.Y2 = T + H;
  Line2.X1 = L;
  Line2.Y1 = T + H / 2;
  Line2.X2 = L + W;
  Line2.Y2 = T + H / 2;
}

void frmZoom::Form_Unload() { ZoomOpen = 0; }

void frmZoom::Slider1_Change() {
  Caption = "Vergroting tekening =   " + toText(Slider1.Value.get()) + "   X";
}
