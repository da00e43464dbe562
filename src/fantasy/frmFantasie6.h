// The windmill wheel, with its colours, its speed and the way in which it shrinks.
#pragma once

#include "fantasy/scherm.h"
#include "fantasy/wiel.h"

class frmFantasie6 : public surface::Form {
 public:
  frmFantasie6();

  Label lblBloem{*this,
                 fantasie::opschrift({240, 120, 6015, 375},
                                     "Er zijn allerlei instellingen om het wiel te veranderen",
                                     fantasie::Lichtgrijs)};
  Label Label4{*this,
               fantasie::opschrift({240, 1920, 1575, 375}, "beginkleur is", fantasie::Lichtgrijs)};
  Label lblVerklein{
      *this, fantasie::opschrift({240, 2760, 1455, 375}, "verkleinen", fantasie::Lichtgrijs)};
  Label lblSnelheid2{
      *this, fantasie::opschrift({240, 3600, 1575, 375}, "de snelheid", fantasie::Lichtgrijs)};
  Label lblSnelheid{*this, fantasie::opschrift({1200, 4080, 495, 375}, "100", surface::White)};
  CommandButton cmdStart{*this, fantasie::knop({240, 480, 1455, 615}, "Start", Groen)};
  CommandButton cmdPauze{*this, fantasie::knop({240, 1200, 1455, 615}, "Pauze", Geel)};
  HScrollBar HScroll4{*this,
                      {.Left = 240,
                       .Top = 2280,
                       .Width = 1095,
                       .Height = 375,
                       .Max = 1536,
                       .SmallChange = 64,
                       .LargeChange = 100}};  ///< the first colour
  TextBox txtBeginkleur{*this,
                        {.Left = 1320, .Top = 2280, .Width = 375, .Height = 405, .Locked = true}};
  HScrollBar HScroll2{*this,
                      {.Left = 240,
                       .Top = 3120,
                       .Width = 1455,
                       .Height = 375,
                       .Max = 100,
                       .LargeChange = 10}};  ///< what the radius loses a step
  Slider Slider1{*this,
                 {.Left = 240,
                  .Top = 4080,
                  .Width = 975,
                  .Height = 375,
                  .Min = 1,
                  .Max = 5,
                  .Value = 3,
                  .BackColor = fantasie::Lichtgrijs}};
  CommandButton cmdKleurrijk{*this, fantasie::knop({240, 4560, 1455, 615}, "Kleurrijk", 0xFFFF00)};
  CommandButton cmdSluiten{*this, fantasie::knop({240, 5280, 1455, 615}, "Sluiten", 0xC0C0C0)};
  TextBox txtKleiner{*this, {.Left = 2400, .Top = 1080, .Visible = false}};
  TextBox txtAantalKleuren{*this, {.Left = 1920, .Top = 600, .Text = "2", .Visible = false}};
  TextBox txtSnelheid{*this, {.Left = 2400, .Top = 600, .Visible = false}};  ///< milliseconds
  TimerControl Timer1{*this, {.Interval = 0}};
  Wiel wiel;

  enum Toestand { Gestopt = 0, Bezig = 1, Gepauzeerd = 2 };
  std::int16_t wielToestand = Gestopt;

 private:
  static constexpr Color Groen = 0x00FF00, Geel = 0x00FFFF, Roze = 0xFF80FF;

  void Form_Load();
  void HScroll4_Change();
  void HScroll2_Change();
  void txtKleiner_Change();
  void Slider1_Scroll();
  void toonSnelheid(bool zichtbaar);
  void toonVerkleinen(bool zichtbaar);
  void kleurVakje(Color kleur);
  void cmdStart_Click();
  void begin();
  void stopBezig();
  void stopGepauzeerd();
  void cmdPauze_Click();
  void cmdKleurrijk_Click();
  void Timer1_Timer();
  void cmdSluiten_Click();
};
