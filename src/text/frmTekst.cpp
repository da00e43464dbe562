// The text dialog: what each control sets on the sample and on the sheet.
#include "text/frmTekst.h"

#include <algorithm>

#include "studio/frmTekenen2.h"

using namespace surface;

namespace {

constexpr Color Red = 255;
constexpr float SampleX = 15, SampleY = 15;

frmTekenen2& studio() { return the<frmTekenen2>(); }

}  // namespace

void KeepOnTop() { the<frmTekst>().setTopMost(); }

frmTekst::frmTekst()
    : Form({.Caption = "Hoe wil je de tekst ?",
            .BackColor = Pale,
            .Width = 6360,
            .Height = 5535,
            .BorderStyle = Border::Fixed}) {
  Frame5.Enabled = false;
  cboFont.AccessibleName = "lettertype";
  txtTekst.AccessibleName = "de tekst";
  txtHoek.AccessibleName = "hoek in graden";
  picVoorbeeld.AccessibleName = "voorbeeld";
  wire();
}

CommandButton::Design frmTekst::style(float left, const char* picture, const char* name) {
  return {.Left = left,
          .Top = 300,
          .Width = 420,
          .Height = 420,
          .Picture = picture,
          .ToolTipText = name};
}

CheckBox::Design frmTekst::effect(float top, const char* caption, const char* tip) {
  return {.Left = 240,
          .Top = top,
          .Width = 1245,
          .Height = 315,
          .Caption = caption,
          .ToolTipText = tip,
          .BackColor = Pale};
}

PictureBox::Design frmTekst::palette(float top, const char* tip) {
  return {.Left = 4080,
          .Top = top,
          .Width = 495,
          .Height = 495,
          .Picture = "tekstpalet",
          .ToolTipText = tip,
          .BackColor = Pale};
}

void frmTekst::wire() {
  Load = [this] { Form_Load(); };
  CloseBox = [this] { cmdAnnuleren_Click(); };
  cboFont.Click = [this] { cboFont_Click(); };
  cboFontSize.Click = [this] { cboFontSize_Click(); };
  for (int i = 0; i < cmdTekstBUI.count(); ++i)
    cmdTekstBUI(i).Click = [this, i] { cmdTekstBUI_Click(i); };
  txtTekst.Change = [this] { txtTekst_Change(); };
  chkBuiten.Click = [this] { chkBuiten_Click(); };
  chk3Deffect.Click = [this] { chk3Deffect_Click(); };
  chkVerhoogd.Click = [this] { chkVerhoogd_Click(); };
  txtHoek.Change = [this] { DrawPreview(); };
  Slider1.Scroll = [this] { DrawPreview(); };
  picPalet.Click = [this] {
    chooseColor(CommonDialog1, Shape1, "een KLEUR voor het EFFECT kiezen");
  };
  picPalet2.Click = [this] {
    chooseColor(CommonDialog2, Shape2, "een KLEUR voor de TEKST kiezen");
  };
  cmdInvoegen.Click = [this] { cmdInvoegen_Click(); };
  cmdAnnuleren.Click = [this] { cmdAnnuleren_Click(); };
}

void frmTekst::Form_Load() {
  KeepOnTop();
  studio().picBlad.ForeColor = Black;
  studio().picTekst.Visible = false;
  for (const std::string& name : ScreenFonts()) cboFont.AddItem(name);
  for (int size = 8; size <= 72; size += 2) cboFontSize.AddItem(toText(size));
  cboFontSize.ListIndex = 1;
  for (int row = 0; row < cboFont.ListCount(); ++row)
    if (cboFont.List(row) == studio().picBlad.Font.Name) cboFont.ListIndex = row;
  // The sheet may have a font that the list lacks: then none is selected, and the font stays.
  if (!cboFont.Text().empty()) picVoorbeeld.Font.Name = cboFont.Text();
  picVoorbeeld.Font.Size = 28;
  picVoorbeeld.ForeColor = Black;
  picVoorbeeld.DrawWidth = 1;
  picVoorbeeld.Line({0, 0}, {0, 0});
  picVoorbeeld.Print("Voorbeeld");
}

// As wide as if every letter were as wide as it is high.
float frmTekst::textWidth() const {
  const std::string& text = txtTekst.Text;
  const auto letters =
      std::count_if(text.begin(), text.end(), [](char c) { return (c & 0xC0) != 0x80; });  // UTF-8
  return picVoorbeeld.Font.Size * static_cast<float>(letters);
}

void frmTekst::cboFont_Click() {
  const std::string& name = cboFont.Text();
  picVoorbeeld.Font.Name = name;
  studio().picBlad.Font.Name = name;
  studio().picTekst.Font.Name = name;
  studio().picTekst.Width = textWidth();
  DrawPreview();
}

// The chosen size is read nowhere: all text is as large as the sample.
void frmTekst::cboFontSize_Click() {
  studio().picBlad.Font.Size = picVoorbeeld.Font.Size;
  studio().picTekst.Height = picVoorbeeld.Font.Size + 30;
  studio().picTekst.Width = textWidth();
  DrawPreview();
}

void frmTekst::cmdTekstBUI_Click(int index) {
  surface::Font& font = picVoorbeeld.Font;
  if (index == 0) font.Bold = !font.Bold;
  if (index == 1) font.Italic = !font.Italic;
  if (index == 2) font.Underline = !font.Underline;
  if (index == 3) font.Bold = font.Italic = font.Underline = font.Strikethru = false;
  if (index == 4) font.Strikethru = !font.Strikethru;
  const auto copyStyle = [&font](auto& other) {
    other.Bold = font.Bold;
    other.Italic = font.Italic;
    other.Underline = font.Underline;
    other.Strikethru = font.Strikethru;
  };
  copyStyle(studio().picBlad.Font);
  copyStyle(studio().picTekst.Font);
  DrawPreview();
}

void frmTekst::txtTekst_Change() {
  Label& picTekst = studio().picTekst;
  picTekst.Visible = false;
  picTekst.Caption = txtTekst.Text;
  picTekst.Width = textWidth();
  picTekst.ForeColor = Shape1.FillColor;
  DrawPreview();
}

// A value set here fires the other box's click in its turn: some ticks undo themselves.
void frmTekst::chkBuiten_Click() {
  chk3Deffect.Value = 0;
  chkVerhoogd.Value = 0;
  DrawPreview();
}

void frmTekst::chkVerhoogd_Click() {
  chk3Deffect.Value = 0;
  chkBuiten.Value = 0;
  DrawPreview();
}

void frmTekst::chk3Deffect_Click() {
  if (chk3Deffect.Value != 0) {
    Frame5.Enabled = true;
    chkBuiten.Value = 0;
    chkBuiten.Enabled = false;
  } else {
    Frame5.Enabled = false;
    chkBuiten.Enabled = true;
  }
  DrawPreview();
}

void frmTekst::chooseColor(CommonDialog& dialog, ShapeControl& swatch, const char* message) {
  studio().lblModus.Caption = message;
  trapAndLeave([&] {
    dialog.CancelError = true;
    dialog.Flags = 4;
    dialog.ShowColor();
    swatch.FillColor = dialog.Color;
  });
}

void frmTekst::cmdAnnuleren_Click() {
  studio().picTekst.Caption = "";
  studio().picTekst.Visible = false;
  Unload(*this);
}

TextEffect frmTekst::chosenEffect() const {
  if (chkVerhoogd.Value != 0) return TextEffect::Raised;
  if (chk3Deffect.Value != 0) return TextEffect::Deep;
  return chkBuiten.Value != 0 ? TextEffect::Outlined : TextEffect::None;
}

bool frmTekst::angleIsGood() const {
  return txtHoek.Text->find_first_not_of("0123456789") == std::string::npos;
}

// Degrees, 0 to 360. What stands in the box for another number is written anew, which draws the
// preview.
int frmTekst::foldAngle() {
  const int degrees = foldedDegrees(txtHoek.Text);
  const std::string& text = txtHoek.Text;
  const auto first = std::find_if(text.begin(), text.end(), [](char c) { return c != '0'; });
  if (std::string(first, text.end()) != toText(degrees)) txtHoek.Text = toText(degrees);
  return degrees;
}

void frmTekst::DrawPreview() {
  picVoorbeeld.Cls();
  const TextEffect effect = chosenEffect();
  TextDepth depth;
  if (effect == TextEffect::Deep) {
    if (!angleIsGood()) {
      MsgBox("Het tekstvak mag enkel getallen bevatten !", Critical, "Oeps ! Een foutje !");
      return;
    }
    const int degrees = foldAngle();
    if (degrees > 0) Hoek = radiansOf(degrees);
    depth = {Slider1.Value, Hoek};
  }
  printText(picVoorbeeld, "Voorbeeld", {SampleX, SampleY}, effect,
            {.effect = Red, .shadow = Black, .dot = Red, .text = Black}, depth);
  picVoorbeeld.DrawWidth = studio().Slider1.Value;
}
