// From the click on the sheet to the text in the picture.
#include "studio/frmTekenen2.h"
#include "text/frmTekst.h"

using namespace surface;

namespace {

constexpr int TwelfthFont = 11, Size28 = 10;

}  // namespace

// Gives true when the dialog stands ready: a system of few fonts has no twelfth one.
bool frmTekenen2::askForText(const Mouse& at) {
  return trapAndReport([&] {
    auto& form = showNew<frmTekst>();
    form.txtTekst.SetFocus();
    form.cboFont.ListIndex = TwelfthFont;
    form.cboFontSize.ListIndex = Size28;
    picTekst.Visible = true;
    picTekst.Left = at.X + 1;
    picTekst.Top = at.Y + 1;
  });
}

void frmTekst::cmdInvoegen_Click() {
  auto& studio = the<frmTekenen2>();
  Label& picTekst = studio.picTekst;
  const std::string text = txtTekst.Text;
  picTekst.Visible = true;
  picTekst.Caption = text;
  const TextEffect effect = chosenEffect();
  TextDepth depth;
  if (effect == TextEffect::Deep) {
    if (!angleIsGood()) {
      MsgBox("Het tekstvak voor de hoek in graden mag enkel cijfers bevatten !", Critical,
             "Oeps ! Een foutje !");
      return;
    }
    const int degrees = foldAngle();
    // No direction: 360 can't be divided by it.
    if (degrees == 0) return;
    Hoek = radiansOf(degrees);
    depth = {Slider1.Value, Hoek};
  }
  printText(studio.picBlad, text, {picTekst.Left + 1, picTekst.Top + 1}, effect,
            {.effect = Shape1.FillColor, .shadow = White, .dot = Black, .text = Shape2.FillColor},
            depth);
  studio.picBlad.DrawWidth = studio.Slider1.Value;
  picTekst.Caption = "";
  picTekst.Visible = false;
  studio.picBlad.Font.Name = picVoorbeeld.Font.Name;
  picTekst.Font.Name = picVoorbeeld.Font.Name;
  picTekst.Font.Size = picVoorbeeld.Font.Size;
  picTekst.Height = picVoorbeeld.Font.Size + 30;
  picTekst.Width = textWidth();
  // The check comes after all printing: an empty text has left its dots.
  if (text.empty()) {
    MsgBox("Je hebt nog geen tekst ingevoerd !", OkOnly, "Oeps ! Een foutje !");
    txtTekst.SetFocus();
  } else {
    Unload(*this);
  }
  studio.MousePointer = PointerDefault;
}
