// The greeting before the course.
#pragma once

#include "surface/surface.h"

class frmCursus : public surface::Form {
 public:
  frmCursus();

  CommandButton cmdTekenen2{*this,
                            {.Left = 8280,
                             .Top = 5040,
                             .Width = 3135,
                             .Height = 855,
                             .Caption = "Start met de les",
                             .BackColor = 0x00FF00,
                             .Font = {"Arial", 18, true}}};
  Label lblReken{*this,
                 {.Left = 240,
                  .Top = 0,
                  .Width = 11415,
                  .Height = 735,
                  .Caption = "KRAS PRET : wat je ZELF maakt is KUNST",
                  .BackColor = Back,
                  .ForeColor = 0xFF0000,
                  .Font = {"Arial", 27.75f, true}}};
  Label lblNaam{*this,
                {.Left = 8040,
                 .Top = 840,
                 .Width = 3615,
                 .Height = 2295,
                 .Caption = "Dag vriendje. Laten we eens samen stap voor stap leren hoe we met een "
                            "computer een eigen tekening kunnen maken.",
                 .BackColor = Back,
                 .ForeColor = 0x0000FF,
                 .Font = {"Arial", 15.75f, true}}};
  Label Label2{*this,
               {.Left = 8040,
                .Top = 3240,
                .Width = 3615,
                .Height = 1575,
                .Caption = "We beginnen met het eenvoudige en je kunt zo ver gaan als je zelf wil.",
                .BackColor = Back,
                .ForeColor = 0xFF0000,
                .Font = {"Arial", 15.75f, true}}};
  // These two lead nowhere: the lesson is the way on, the close box the way back.
  CommandButton cmdInfo{*this,
                        {.Left = 10080,
                         .Top = 7560,
                         .Width = 1335,
                         .Height = 615,
                         .Caption = "    &INFO    KRAS PRET",
                         .BackColor = 0xFFC0C0,
                         .Font = {"Arial", 9.75f, true}}};
  CommandButton cmdEinde{*this,
                         {.Left = 8280,
                          .Top = 7560,
                          .Width = 1335,
                          .Height = 615,
                          .Caption = "Sluiten",
                          .BackColor = 0xC0C0C0,
                          .Font = {"Arial", 9.75f, true}}};
  ImageControl Image9{
      *this, {.Left = 120, .Top = 840, .Width = 7575, .Height = 7215, .Picture = "welkom"}};

 private:
  static constexpr Color Back = 0xC0E0FF;

  void cmdTekenen2_Click();
};
