// The flower that unfolds, petal upon petal.
#pragma once

#include "fantasy/scherm.h"

class frmFantasie3 : public surface::Form {
 public:
  frmFantasie3();

  Label lblBloem{*this,
                 fantasie::opschrift({240, 120, 4335, 375}, "Laat de bloem eens verder ontluiken.",
                                     fantasie::Lichtgrijs, 0x0000FF)};
  CommandButton cmdSnel{*this, fantasie::knop({240, 600, 1455, 615}, "Sneller", 0x00FF00)};
  CommandButton cmdTraag{*this, fantasie::reserve({240, 600, 1455, 615}, "Trager", 0xFFFF00)};
  CommandButton cmdMiddag{*this, fantasie::knop({240, 1320, 1455, 615}, "Middag", 0x00FFFF)};
  CommandButton cmdSluiten{*this, fantasie::knop({240, 2040, 1455, 615}, "Sluiten", 0xC0C0C0)};
  TextBox txt1{*this, {.Text = "1", .Visible = false}};  ///< the tempo: "1" slow, "2" fast
  TimerControl Timer1{*this, {.Interval = 5}};

 private:
  void kleurAchtergrond(Color kleur);
  void Timer1_Timer();
  void cmdSnel_Click();
  void cmdTraag_Click();
  void cmdSluiten_Click();
};
