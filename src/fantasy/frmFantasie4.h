// The worms, and what they say to the child who can't get enough of them.
#pragma once

#include "fantasy/scherm.h"
#include "fantasy/worm.h"

class frmFantasie4 : public surface::Form {
 public:
  frmFantasie4();

  PictureBox Picture1{*this,
                      {.Left = 0,
                       .Top = 0,
                       .Width = 11895,
                       .Height = 8295,
                       .BackColor = fantasie::Lichtgrijs,
                       .FillColor = 0x0000C0}};
  Label lblBloem{*this, fantasie::opschrift({1080, 0, 3855, 375}, "volg de kleurrijke regenwormen",
                                            fantasie::Lichtgrijs)};
  Label lblAntwoord{*this,
                    {.Left = 7800,
                     .Top = 0,
                     .Width = 3735,
                     .Height = 2055,
                     .Caption = "Dit kan zo nog uren doorgaan ! Ermee stoppen of nog een worm ?",
                     .BackColor = 0xC0FFFF,
                     .ForeColor = 0x0000FF,
                     .Font = {"Arial", 21.75f, true},
                     .Centred = true,
                     .Visible = false}};
  // A plain button: it keeps the colour of the desktop's buttons.
  CommandButton cmdSluiten{
      *this, fantasie::reserve({8040, 2040, 1575, 735}, "Stoppen", surface::ButtonFace)};
  CommandButton cmdWorm2{*this, fantasie::reserve({9960, 2040, 1575, 735}, "Worm 2", 0x00FF00)};
  CommandButton cmdWorm3{*this, fantasie::reserve({9960, 2040, 1575, 735}, "Worm 3", 0x00FFFF)};
  CommandButton cmdWorm4{*this, fantasie::reserve({9960, 2040, 1575, 735}, "Worm 4", 0xFFFF80)};
  CommandButton cmdWorm5{*this, fantasie::reserve({9960, 2040, 1575, 735}, "Worm 5", 0xFF80FF)};
  TimerControl Timer1{*this, {.Interval = 100, .Enabled = false}};  ///< down and to the right
  TimerControl Timer2{*this, {.Interval = 100, .Enabled = false}};  ///< up and to the left
  TimerControl Timer3{*this, {.Interval = 20000}};  ///< the talk; its interval counts the worms
  Worm worm;

 private:
  void Form_Load();
  void Timer1_Timer();
  void Timer2_Timer();
  void keer(void (frmFantasie4::*tik)());
  void Timer3_Timer();
  void antwoord(const char* tekst, CommandButton& vorige, CommandButton& volgende);
  void nieuweWorm(CommandButton& knop, int wachttijd, double x, std::int16_t y);
  void cmdSluiten_Click();

  bool keert = false;  ///< the tick of the other way is being run
};
