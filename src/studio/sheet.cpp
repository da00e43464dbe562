// Starting over: wiping the sheet, a new sheet, a sheet of another size.
#include "studio/frmTekenen2.h"

using namespace surface;

namespace {

constexpr float StandardWidth = 9255, StandardHeight = 8055;  // twips

}  // namespace

void frmTekenen2::cmdClear_Click() {
  picBlad.Cls();
  picBlad.Picture = LoadPicture();
  // A coloured sheet stays coloured.
  StartAnew(Sheet::AsItIs);
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
    picBlad.Width = ScaleX(static_cast<float>(toNumber(breedte)), ScaleCentimetres, ScaleTwips);
    picBlad.Height = ScaleY(static_cast<float>(hoogte), ScaleCentimetres, ScaleTwips);
  });
}
