// The star field, plain or colourful.
#pragma once

#include "fantasy/scherm.h"
#include "fantasy/sterren.h"

class frmFantasie7 : public surface::Form {
 public:
  frmFantasie7();

  Label lblSnelheid2{*this,
                     fantasie::opschrift({120, 240, 3975, 375}, "je kan de sterrenhemel aanpassen",
                                         surface::Black, 0x0000FF)};
  CommandButton cmdSneller{*this, fantasie::knop({120, 600, 1455, 615}, "Sneller", 0x00FFFF)};
  CommandButton cmdTrager{*this, fantasie::reserve({120, 600, 1455, 615}, "Trager", 0x00FF00)};
  CommandButton cmdKleurrijk{*this, fantasie::knop({120, 1320, 1455, 615}, "Kleurrijk", 0xFF80FF)};
  CommandButton cmdWitzwart{*this, fantasie::reserve({120, 1320, 1455, 615}, "Gewoon", 0xFFFF00)};
  CommandButton cmdSluiten{*this, fantasie::knop({120, 2040, 1455, 615}, "Sluiten", 0xC0C0C0)};
  TextBox txtKleurrijk{*this, {.Text = "0", .Visible = false}};  ///< "0" plain, "1" colourful
  TimerControl Timer1{*this, {.Interval = 100}};
  Sterren sterren;

 private:
  void Form_Load();
  void Timer1_Timer();
  void cmdSneller_Click();
  void cmdTrager_Click();
  void cmdKleurrijk_Click();
  void cmdWitzwart_Click();
  void cmdSluiten_Click();
};
