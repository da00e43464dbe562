// The menu of the fantasy screens.
#pragma once

#include "surface/surface.h"

class frmFantasie : public surface::Form {
 public:
  frmFantasie();

  ImageControl Image9{
      *this, {.Left = 120, .Top = 840, .Width = 7575, .Height = 7215, .Picture = "fantasie"}};
  Label lblReken{*this,
                 {.Left = 240,
                  .Top = 0,
                  .Width = 11415,
                  .Height = 735,
                  .Caption = "KRAS PRET : wat je ZELF maakt is KUNST",
                  .BackColor = 0xC0FFC0,
                  .ForeColor = 0xFF0000,
                  .Font = {"Arial", 27.75f, true}}};
  Label Label2{*this,
               {.Left = 8040,
                .Top = 720,
                .Width = 3135,
                .Height = 855,
                .Caption = "Fantasie in lijnen en kleuren :",
                .BackColor = 0xC0FFC0,
                .ForeColor = 0x0000FF,
                .Font = {"Arial", 18, true}}};
  CommandButton cmdTekenen1{*this, keuze(1680, "Herfstwindje", 0x00FFFF)};
  CommandButton cmdTekenen2{*this, keuze(2400, "Lentekriebels", 0x00FF00)};
  CommandButton Command3{*this, keuze(3120, "Sterrenpracht", 0x80C0FF)};
  CommandButton cmdFantasie{*this, keuze(3840, "Zomervreugde", 0xFFFF00)};
  CommandButton Command2{*this, keuze(4560, "Feestvuurwerk", 0xC0C0FF)};
  CommandButton cmdKleurplaten{*this, keuze(5280, "Regenwormen", 0xFFC0C0)};
  CommandButton Command1{*this, keuze(6000, "Windmolentje", 0xC0E0FF)};
  CommandButton Command4{*this, keuze(6720, "Bliksemschicht", 0xFFC0FF)};
  CommandButton cmdInfo{*this,
                        {.Left = 8040,
                         .Top = 7560,
                         .Width = 1335,
                         .Height = 615,
                         .Caption = "    &INFO    KRAS PRET",
                         .BackColor = 0xFFC0C0,
                         .Font = {"Arial", 9.75f, true}}};
  CommandButton cmdSluiten{*this,
                           {.Left = 9600,
                            .Top = 7440,
                            .Width = 1575,
                            .Height = 735,
                            .Caption = "Sluiten",
                            .BackColor = 0xC0C0C0,
                            .Font = {"Arial", 18, true}}};

 private:
  static CommandButton::Design keuze(float top, const char* tekst, Color kleur);
  /// Shows the one instance of a screen in place of the menu.
  template <class Scherm>
  void opent();
  void cmdInfo_Click();
  void cmdSluiten_Click();
};
