// Lightning in a black window.
#pragma once

#include "fantasy/bliksem.h"
#include "fantasy/scherm.h"

class frmFantasie8 : public surface::Form {
 public:
  frmFantasie8();

  CommandButton cmdSluiten{*this, fantasie::knop({120, 120, 1455, 615}, "Sluiten", 0xC0C0C0)};
  TimerControl Timer1{*this, {.Interval = 1}};                    ///< strikes
  TimerControl Timer2{*this, {.Interval = 1, .Enabled = false}};  ///< fades
  Bliksem bliksem;

 private:
  void Timer1_Timer();
  void Timer2_Timer();
  void cmdSluiten_Click();
};
