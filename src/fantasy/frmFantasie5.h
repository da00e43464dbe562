// The fireworks.
#pragma once

#include "fantasy/scherm.h"
#include "fantasy/vuurwerk.h"

class frmFantasie5 : public surface::Form {
 public:
  frmFantasie5();

  PictureBox picVuurwerk{
      *this, {.Left = 0, .Top = 0, .Width = 11895, .Height = 8295, .BackColor = surface::Black}};
  CommandButton Command1{*this, fantasie::reserve({240, 1680, 1575, 615}, "Sluiten", 0xC0C0C0)};
  CommandButton cmdHemel{*this, fantasie::knop({240, 240, 1575, 615}, "Fijnwerk", 0x00FFFF)};
  CommandButton cmdHemel2{*this, fantasie::reserve({240, 240, 1575, 615}, "Grofwerk", 0x00FF00)};
  CommandButton cmdMeer{*this, fantasie::knop({240, 960, 1575, 615}, "Hevig", 0xFF80FF)};
  CommandButton cmdMinder{*this, fantasie::reserve({240, 960, 1575, 615}, "Rustig", 0xFFFF00)};
  CommandButton cmdSluiten{*this, fantasie::knop({240, 1680, 1575, 615}, "Sluiten", 0xC0C0C0)};
  TimerControl Timer1{*this, {.Interval = 10}};   ///< flight
  TimerControl Timer2{*this, {.Interval = 100}};  ///< launch
  Vuurwerk vuurwerk;

 private:
  void Form_Load();
  void cmdHemel_Click();
  void cmdHemel2_Click();
  void cmdMeer_Click();
  void cmdMinder_Click();
  void cmdSluiten_Click();
};
