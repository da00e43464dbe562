// The main menu: asks the child's name and leads to every screen. It hides while another screen is
// open, so that the name stays.
#pragma once

#include "surface/surface.h"

class frmStart : public surface::Form {
 public:
  frmStart();

  TextBox txtNaam{*this,
                  {.Left = 8280,
                   .Top = 1680,
                   .Width = 3135,
                   .Height = 495,
                   .BackColor = 0xC0FFFF,
                   .ForeColor = 0x800080,
                   .Font = {"Arial", 15.75f, true},
                   .MaxLength = 16,
                   .Shrinks = true,
                   .Centred = true}};
  Label lblReken{*this,
                 {.Left = 240,
                  .Top = 0,
                  .Width = 11415,
                  .Height = 735,
                  .Caption = "KRAS PRET : wat je ZELF maakt is KUNST",
                  .BackColor = 0xC0FFC0,
                  .ForeColor = 0xFF0000,
                  .Font = {"Arial", 27.75f, true}}};
  Label lblNaam{*this,
                {.Left = 8040,
                 .Top = 720,
                 .Width = 3615,
                 .Height = 855,
                 .Caption = "    Dag vriendje.      Vul even je naam in.",
                 .BackColor = 0xC0FFC0,
                 .ForeColor = 0x0000FF,
                 .Font = {"Arial", 18, true}}};
  Label Label2{*this,
               {.Left = 8160,
                .Top = 2280,
                .Width = 3255,
                .Height = 495,
                .Caption = "Begin en klik op :",
                .BackColor = 0xC0FFC0,
                .ForeColor = 0x0000FF,
                .Font = {"Arial", 18, true}}};
  CommandButton cmdTekenen1{*this, choice(2880, "Tekenen Klein", 0x00FFFF)};
  CommandButton cmdFantasie{*this, choice(3600, "Fantasie Kijken", 0xFFFF00)};
  CommandButton cmdKleurplaten{*this, choice(4320, "Kleurplaten", 0xFFC0FF)};
  CommandButton Command1{*this, choice(5040, "Hoe doe ik het ?", 0xC0E0FF)};
  CommandButton cmdTekenen2{*this, choice(5760, "Tekenen Groot", 0x00FF00)};
  CommandButton cmdEinde{*this,
                         {.Left = 8880,
                          .Top = 6600,
                          .Width = 1935,
                          .Height = 735,
                          .Caption = "Stoppen",
                          .BackColor = 0xC0C0C0,
                          .Font = {"Arial", 18, true}}};
  CommandButton cmdOlmwerk{*this, note(8280, " INFO &OLMWERK")};
  CommandButton cmdInfo{*this, note(10080, "    &INFO    KRAS PRET")};
  ImageControl Image9{
      *this, {.Left = 120, .Top = 840, .Width = 7575, .Height = 7215, .Picture = "welkom"}};

 private:
  static CommandButton::Design choice(float top, const char* caption, Color color);
  static CommandButton::Design note(float left, const char* caption);
  template <class Screen>
  void openNew();
  void cmdInfo_Click();
  void cmdTekenen2_Click();
  void cmdEinde_Click();
};

/// For when a close box has taken the last window away. The menu hides behind every other screen:
/// it comes back, so that the child is never left with an invisible program. Without a menu the
/// program ends.
void ToonMenuOfStop();
