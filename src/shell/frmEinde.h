// The farewell: greets the child by name and ends the program by itself.
#pragma once

#include "surface/surface.h"

class frmEinde : public surface::Form {
 public:
  frmEinde();

  Label Label2{*this,
               {.Left = 3960,
                .Top = 6120,
                .Width = 1455,
                .Height = 375,
                .Caption = "Bedankt,  ",
                .BackColor = 0xC0FFC0,
                .ForeColor = 0x0000FF,
                .Font = {"Arial", 16.5f, true}}};
  TextBox txtNaam2{*this,
                   {.Left = 5520,
                    .Top = 6120,
                    .Width = 3375,
                    .Height = 465,
                    .BackColor = 0xC0FFC0,
                    .ForeColor = 0x800080,
                    .Font = {"Arial", 18, true},
                    .Shrinks = true,
                    .Locked = true,
                    .Border = false}};
  // Letters of one width: with them the runs of blanks break the lines where a thought ends.
  Label Label1{
      *this,
      {.Left = 3960,
       .Top = 6600,
       .Width = 4815,
       .Height = 1455,
       .Caption = "Vond je het de moeite waard ?                  Fijn zo !                Bedankt "
                  "voor je moeite en ...          tot een volgende keer !",
       .BackColor = 0xC0FFC0,
       .ForeColor = 0x0000FF,
       .Font = {"Courier New", 12.75f, true}}};
  // Above the texts, which reach a pixel into it.
  ImageControl Image9{*this,
                      {.Left = 120, .Top = 0, .Width = 6375, .Height = 6135, .Picture = "welkom"}};
  TimerControl Timer1{*this, {.Interval = 3500}};

 private:
  void Timer1_Timer();
};
