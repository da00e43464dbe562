// Starting over: wiping the sheet, a new sheet, a sheet of another size.
#include "studio/frmTekenen2.h"

using namespace surface;

namespace {

constexpr float StandardWidth = 9255, StandardHeight = 8055;  // twips

// A sheet without a pixel would vanish, and one beyond what a surface takes would stop halfway. A
// negative side is left to the control, which refuses it.
bool canBeSheet(float width, float height) {
  const double columns = roundEven(width / TwipsPerPixel);
  const double rows = roundEven(height / TwipsPerPixel);
  return columns != 0 && rows != 0 && columns <= LargestSide && rows <= LargestSide &&
         columns * rows <= static_cast<double>(MostPixels);
}

}  // namespace

void frmTekenen2::cmdClear_Click() {
  picBlad.Cls();
  picBlad.Picture = LoadPicture();
  // A coloured sheet stays coloured.
  startAnew(Background::AsItIs);
  lblModus.Caption = "hiermee zul je ALLES op je tekening WISSEN";
}

void frmTekenen2::cmdNieuw_Click() {
  picBlad.BackColor = White;
  picBlad.Picture = LoadPicture();
  picBlad.Width = StandardWidth;
  picBlad.Height = StandardHeight;
  cmdUndo.Enabled = true;
  Form_Load();
  lblModus.Caption = "een NIEUW tekenblad met dezelfde grootte openen";
}

void frmTekenen2::cmdFormaat_Click() {
  lblModus.Caption = "een NIEUWE tekening met ANDER FORMAAT maken";
  if (MsgBox("Je gaat een NIEUWE tekening met een ANDER FORMAAT maken.\n\nWil je de huidige "
             "tekening opslaan ?",
             YesNo, "Nieuwe tekening met aangepast formaat") == Yes)
    cmdSaveAs_Click();
  lblModus.Caption = "wijzig hiermee het FORMAAT van je tekenBLAD";
  trapAndLeave([&] {
    const std::string breedte =
        InputBox("De gewenste breedte ( maximaal = 16,32.. centimeter ) opgeven a.u.b.",
                 "Afmetingen van de tekening : breedte wijzigen",
                 toText(ScaleX(picBlad.Width, ScaleTwips, ScaleCentimetres)));
    // The height loses its fraction here, the width keeps it.
    const std::int16_t hoogte = toInt16(
        toNumber(InputBox("De gewenste hoogte ( maximaal = 14,20.. centimeter ) opgeven a.u.b.",
                          "Afmetingen van de tekening : hoogte wijzigen",
                          toText(ScaleY(picBlad.Height, ScaleTwips, ScaleCentimetres)))));
    const float width = ScaleX(static_cast<float>(toNumber(breedte)), ScaleCentimetres, ScaleTwips);
    const float height = ScaleY(static_cast<float>(hoogte), ScaleCentimetres, ScaleTwips);
    if (!canBeSheet(width, height)) return;
    // The sheet in between is never the larger one.
    if (width >= 0 && height >= 0 && height < picBlad.Height) picBlad.Height = height;
    picBlad.Width = width;
    picBlad.Height = height;
  });
}
