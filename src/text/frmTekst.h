// The dialog of the text tool: font, text, style, one of three effects and two colours, with a
// sample of what comes out. A new one is made for each place on the sheet.
#pragma once

#include "surface/surface.h"
#include "text/text_effect.h"

class frmTekst : public surface::Form {
  static constexpr Color Pale = 0xC0FFFF;

  static CommandButton::Design style(float left, const char* picture, const char* name);
  static CheckBox::Design effect(float top, const char* caption, const char* tip);
  static PictureBox::Design palette(float top, const char* tip);

 public:
  frmTekst();

  Frame Frame1{*this,
               {.Left = 120,
                .Top = 60,
                .Width = 6120,
                .Height = 720,
                .Caption = "Lettertype en grootte",
                .BackColor = Pale}};
  ComboBox cboFont{Frame1, {.Left = 120, .Top = 270, .Width = 4440}};
  ComboBox cboFontSize{Frame1,
                       {.Left = 4680,
                        .Top = 270,
                        .Width = 1320,
                        .ToolTipText = "DENK aan het resultaat op je blad"}};

  Frame Frame3{*this,
               {.Left = 120,
                .Top = 840,
                .Width = 6120,
                .Height = 840,
                .Caption = "Tik hier de gewenste tekst in",
                .BackColor = Pale,
                .Font = {"Arial", 8.25f, true}}};
  TextBox txtTekst{
      Frame3, {.Left = 120, .Top = 300, .Width = 5880, .Height = 420, .Font = {"Arial", 12.0f}}};

  Frame Frame4{*this,
               {.Left = 120,
                .Top = 1740,
                .Width = 6120,
                .Height = 2580,
                .Caption = "Andere instelmogelijkheden",
                .BackColor = Pale}};
  ControlArray<CommandButton, 5> cmdTekstBUI{
      Frame4,
      {style(120, "stijlb", "vet"), style(630, "stijli", "cursief"),
       style(1140, "stijlu", "onderstreept"), style(1650, "stijlr", "gewoon"),
       style(2160, "stijls", "doorgestreept")}};
  Label Label3{Frame4,
               {.Left = 120,
                .Top = 870,
                .Width = 3660,
                .Height = 255,
                .Caption = "Toepassen van teksteffecten",
                .BackColor = Pale}};
  CheckBox chkBuiten{Frame4, effect(1200, "Buitenlijn", "de tekst krijgt een RAND")};
  CheckBox chk3Deffect{Frame4, effect(1620, "3D", "de tekst krijgt DIEPTE")};
  CheckBox chkVerhoogd{Frame4, effect(2040, "Verhoogd", "de tekst krijgt een SCHADUW")};
  Frame Frame5{Frame4,
               {.Left = 1560,
                .Top = 1170,
                .Width = 2220,
                .Height = 1230,
                .Caption = "Hoek voor het 3D-effect",
                .BackColor = Pale}};
  Slider Slider1{Frame5,
                 {.Left = 120,
                  .Top = 300,
                  .Width = 1950,
                  .Height = 375,
                  .Max = 10,
                  .ToolTipText = "DIEPTE en HOEK van het 3D-effect",
                  .BackColor = Pale}};
  TextBox txtHoek{Frame5, {.Left = 120, .Top = 780, .Width = 795, .Height = 315, .Text = "45"}};
  Label Label1{Frame5,
               {.Left = 1020,
                .Top = 825,
                .Width = 1050,
                .Height = 240,
                .Caption = "graden",
                .BackColor = Pale}};

  Label Label4{Frame4,
               {.Left = 4080,
                .Top = 270,
                .Width = 1920,
                .Height = 240,
                .Caption = "Tekst-kleur",
                .BackColor = Pale}};
  PictureBox picPalet2{Frame4, palette(540, "kies de KLEUR van de TEKST")};
  ShapeControl Shape2{Frame4,
                      {.Left = 4680, .Top = 540, .Width = 1320, .Height = 495, .Filled = true}};
  Label Label2{Frame4,
               {.Left = 4080,
                .Top = 1500,
                .Width = 1920,
                .Height = 240,
                .Caption = "Effect-kleur",
                .BackColor = Pale}};
  PictureBox picPalet{Frame4, palette(1770, "kies de KLEUR van het EFFECT")};
  ShapeControl Shape1{Frame4,
                      {.Left = 4680,
                       .Top = 1770,
                       .Width = 1320,
                       .Height = 495,
                       .Filled = true,
                       .FillColor = 0xC0C0C0}};

  PictureBox picVoorbeeld{*this,
                          {.Left = 0,
                           .Top = 4440,
                           .Width = 3135,
                           .Height = 1095,
                           .ScaleMode = surface::ScalePixels,
                           .BackColor = surface::White,
                           .Font = {.Size = 28}}};
  CommandButton cmdInvoegen{*this,
                            {.Left = 3360,
                             .Top = 4440,
                             .Width = 2880,
                             .Height = 480,
                             .Caption = "Voeg in",
                             .BackColor = 0x80FF80,
                             .Font = {"Arial", 9.75f, true}}};
  CommandButton cmdAnnuleren{
      *this, {.Left = 3360, .Top = 5040, .Width = 2880, .Height = 375, .Caption = "Annuleren"}};

  CommonDialog CommonDialog1;  // the colour of the effect
  CommonDialog CommonDialog2;  // the colour of the text

  // frmTekst.cpp: load, font and style, effects, colours, preview
  void Form_Load();
  void cboFont_Click();
  void cboFontSize_Click();
  void cmdTekstBUI_Click(int index);
  void txtTekst_Change();
  void chkBuiten_Click();
  void chk3Deffect_Click();
  void chkVerhoogd_Click();
  void chooseColor(CommonDialog& dialog, ShapeControl& swatch, const char* message);
  void cmdAnnuleren_Click();
  void DrawPreview();

  // placing.cpp: onto the sheet
  void cmdInvoegen_Click();

 private:
  void wire();
  float textWidth() const;
  TextEffect chosenEffect() const;
  bool angleIsGood() const;
  int foldAngle();

  double Hoek = 0;  // of the depth, radians; kept from one preview to the next
};

/// Keeps the window of the shared text form above all others, and so loads that form, hidden, at
/// the first call. The text forms that a child sees are new ones, which this does not pin.
void KeepOnTop();
