// The dialog that turns the drawing: an angle, a preview, and the sheet itself.
#pragma once

#include "surface/surface.h"

class frmRoteren : public surface::Form {
  static constexpr Color Pale = 0xC0FFFF;

 public:
  frmRoteren();

  Label lbl1{*this,
             {.Left = 120,
              .Top = 120,
              .Width = 8895,
              .Height = 615,
              .Caption = "Klik eerst een gewenste hoek aan in de keuzelijst. Daarna klik je op "
                         "\"Vooraf bekijken\" (eventueel verander je nog eens) en met "
                         "\"INVOEGEN\" wordt je tekening aangepast.",
              .BackColor = Pale}};
  Label lblAngle{*this,
                 {.Left = 120,
                  .Top = 960,
                  .Width = 1455,
                  .Height = 495,
                  .Caption = "De gewenste hoek is :",
                  .BackColor = Pale}};
  ComboBox cboHoek{*this, {.Left = 120, .Top = 1500, .Width = 1455}};
  CommandButton cmdPreview{
      *this,
      {.Left = 120, .Top = 2100, .Width = 1455, .Height = 615, .Caption = "Vooraf bekijken"}};
  CommandButton cmdInvoegen{
      *this, {.Left = 120, .Top = 2880, .Width = 1455, .Height = 495, .Caption = "INVOEGEN"}};
  CommandButton cmdSluiten{
      *this, {.Left = 120, .Top = 3540, .Width = 1455, .Height = 495, .Caption = "Annuleren"}};
  PictureBox picPreview{*this,
                        {.Left = 1680,
                         .Top = 840,
                         .Width = 7335,
                         .Height = 7095,
                         .ScaleMode = surface::ScalePixels,
                         .AutoRedraw = true,
                         .BackColor = surface::White}};

 private:
  void Form_Load();
  void cmdPreview_Click();
  void cmdInvoegen_Click();
  bool hasAngle() const { return cboHoek.ListIndex != -1; }
  float angle() const;
};
