// Autumn wind: curls of wind, as long as the slider says.
#pragma once

#include "fantasy/scherm.h"

class frmFantasie1 : public surface::Form {
 public:
  frmFantasie1();

  Label Label1{*this, fantasie::opschrift({240, 120, 6855, 375},
                                          "Je kan de windsnelheid aanpassen met de schuifregelaar.",
                                          fantasie::Lichtgrijs, 0x0000FF)};
  Slider Slider1{*this,
                 {.Left = 240,
                  .Top = 600,
                  .Width = 1455,
                  .Height = 495,
                  .Min = 3,
                  .Max = 50,
                  .Value = 10,
                  .LargeChange = 10,
                  .BackColor = fantasie::Lichtgrijs}};
  CommandButton cmdStart{*this, fantasie::knop({240, 1200, 1455, 615}, "Start", 0x00FF00)};
  CommandButton cmdOpnieuw{*this, fantasie::reserve({240, 1200, 1455, 615}, "Opnieuw", 0x00FFFF)};
  CommandButton cmdSluiten{*this, fantasie::knop({240, 1920, 1455, 615}, "Sluiten", 0xC0C0C0)};
  TextBox txt1{*this, {.Text = "100", .Visible = false}};  ///< the slider's value
  TimerControl Timer1{*this, {.Interval = 50, .Enabled = false}};

 private:
  void Timer1_Timer();
  void cmdStart_Click();
  void cmdOpnieuw_Click();
  void cmdSluiten_Click();
};
