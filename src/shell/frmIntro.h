// The splash screen: three seconds of welcome, then the main menu.
#pragma once

#include "surface/surface.h"

class frmIntro : public surface::Form {
 public:
  frmIntro();

  Label Label1{*this,
               {.Left = 4200,
                .Top = 2880,
                .Width = 2715,
                .Height = 720,
                .Caption = "OLMWERK",
                .BackColor = 0xE0E0E0,
                .ForeColor = 0x0000FF,
                .Font = {"Arial", 24, true}}};
  Frame FrameIntro{*this,
                   {.Left = 240, .Top = 240, .Width = 7200, .Height = 5490, .BackColor = 0xE0E0E0}};
  ImageControl imgOlmwerk{
      FrameIntro, {.Left = 120, .Top = 240, .Width = 3495, .Height = 2175, .Picture = "logo"}};
  Label Label3{FrameIntro,
               {.Left = 3840,
                .Top = 600,
                .Width = 3030,
                .Height = 765,
                .Caption = "KrasPret",
                .BackColor = 0xE0E0E0,
                .ForeColor = 0x0000FF,
                .Font = {"Arial", 30, true},
                .Centred = true}};
  Label lblVersion{FrameIntro,
                   {.Left = 4755,
                    .Top = 1680,
                    .Width = 1125,
                    .Height = 285,
                    .Caption = "Versie 1.0",
                    .BackColor = 0xE0E0E0,
                    .ForeColor = 0xFF0000,
                    .Font = {"Arial", 9.75f, true}}};
  Label lblIntro1{FrameIntro, line(600, 2880, 6375, " HET VOLGENDE SCHERM BEVAT INFORMATIE :")};
  Label lblIntro2{FrameIntro, line(600, 3480, 6375, " DEZE SOFTWARE IS \"FREEWARE\" (GRATIS).")};
  Label lblIntro3{FrameIntro,
                  line(600, 3720, 6375, " KLIK OP DE KNOP \"INFO OLMWERK\" VOOR UITLEG.")};
  Label lblIntro4{FrameIntro, line(600, 4200, 5055, " WIL JE WETEN HOE HET PROGRAMMA WERKT ?")};
  Label lblIntro5{FrameIntro,
                  line(600, 4440, 5415, " DAN KLIK JE OP DE KNOP \"INFO KRAS PRET\". ")};
  Label lblDank{
      FrameIntro,
      {.Left = 720,
       .Top = 4800,
       .Width = 5775,
       .Height = 495,
       .Caption = "Met dank aan : alle kinderen, ouders en juffen en meesters die mee tekenden en "
                  "mee bedachten hoe het nog leuker kon.",
       .BackColor = 0xE0E0E0}};
  TimerControl Timer1{*this, {.Interval = 3000}};

 private:
  static Label::Design line(float left, float top, float width, const char* text);
  void Timer1_Timer();
};
