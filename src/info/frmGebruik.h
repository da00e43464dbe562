// The terms of use. The text asks for agreement, but nothing depends on the click.
#pragma once

#include "surface/surface.h"

class frmGebruik : public surface::Form {
 public:
  frmGebruik();

  TextBox Text2;
  Label lblGebruik{*this,
                   {.Left = 4200,
                    .Top = 240,
                    .Width = 7560,
                    .Height = 615,
                    .Caption = "GEBRUIKSOVEREENKOMST",
                    .BackColor = Back,
                    .ForeColor = 0x0000FF,
                    .Font = {"Arial", 24, true}}};
  ImageControl imgOlmwerk{
      *this, {.Left = 240, .Top = 240, .Width = 3495, .Height = 2175, .Picture = "logo"}};
  Label lblWebsite{*this, line(4200, 1080, 1335, "Website : ", true)};
  Label lblWebadres{*this, line(5640, 1080, 6120, "geen : KrasPret heeft het internet niet nodig")};
  Label lblEmail{*this, line(4200, 1560, 1335, "E-mail : ", true)};
  Label lblEmailadres{*this,
                      line(5640, 1560, 6120, "geen : vraag het aan wie je dit programma gaf")};
  CommandButton cmdSluit{*this,
                         {.Left = 2640,
                          .Top = 7710,
                          .Width = 6720,
                          .Height = 615,
                          .Caption = "Ik heb de overeenkomst gelezen en ga &akkoord",
                          .BackColor = 0x80FF80,
                          .Font = {"Arial", 14.25f, true}}};

 private:
  static constexpr Color Back = 0xE0E0E0;

  static Label::Design line(float left, float top, float width, const char* text,
                            bool bold = false);
  void cmdSluit_Click();
};
