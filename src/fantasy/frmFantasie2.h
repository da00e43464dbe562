// The kaleidoscope, painted straight onto the window figure by figure.
#pragma once

#include "fantasy/modKaleidos.h"
#include "fantasy/scherm.h"

class frmFantasie2 : public surface::Form {
 public:
  frmFantasie2();

  Label Label2{*this, fantasie::opschrift({240, 120, 3255, 375}, "Je kan het beeld veranderen",
                                          fantasie::Lichtgrijs, 0x0000FF)};
  CommandButton cmdVergroten{*this, fantasie::knop({240, 600, 1455, 615}, "Groter", 0x00FFFF)};
  CommandButton cmdHoekmarkering{*this, fantasie::knop({240, 1320, 1455, 615}, "Enorm", 0x00FF00)};
  CommandButton cmdLangzaam{*this, fantasie::knop({240, 2040, 1455, 615}, "Trager", 0xFFFF00)};
  CommandButton cmdNacht{*this, fantasie::knop({240, 2760, 1455, 615}, "Nacht", 0xFFC0FF)};
  CommandButton cmdSluiten{*this, fantasie::knop({240, 3480, 1455, 615}, "Sluiten", 0xC0C0C0)};
  TimerControl Timer1{*this, {.Interval = 1, .Enabled = false}};
  TimerControl Timer2{*this, {.Interval = 30000}};
  Kaleidos modKaleidos;

 private:
  void Form_Load();
  void figuurTekenen();
  void herstart();
  void Timer1_Timer();
  void cmdHoekmarkering_Click();
  void cmdLangzaam_Click();
  void cmdNacht_Click();
  void cmdSluiten_Click();
};
