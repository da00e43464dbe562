// The dialog that makes more or less of a drawing's red, green and blue, with three sliders of its
// own making.
#pragma once

#include <array>

#include "surface/surface.h"

class frmVervangKleur : public surface::Form {
  static constexpr Color Pale = 0xC0FFFF;

  static PictureBox::Design track(float top);
  static LineControl::Design line(Color color);
  static LineControl::Design marker(Color color);
  static Label::Design text(float left, float top, float width, const char* caption);

 public:
  frmVervangKleur();

  Label Label5{*this, text(120, 120, 5880, "")};
  Label Label1{*this, text(120, 690, 615, "-100")};
  Label Label2{*this, text(4140, 690, 435, "+100")};
  // Red, green and blue
  ControlArray<PictureBox, 3> Picture1{*this, {track(960), track(1440), track(1920)}};
  LineControl Line1[3] = {
      {Picture1(0), line(0x0000FF)}, {Picture1(1), line(0x00FF00)}, {Picture1(2), line(0xFF0000)}};
  LineControl Line2[3] = {{Picture1(0), marker(0x0000FF)},
                          {Picture1(1), marker(0x00FF00)},
                          {Picture1(2), marker(0xFF0000)}};
  ControlArray<Label, 3> Label3{*this,
                                {text(4680, 1020, 735, "Rood"), text(4680, 1500, 735, "Groen"),
                                 text(4680, 1980, 735, "Blauw")}};
  ControlArray<Label, 3> Label4{
      *this, {text(5400, 1020, 600, ""), text(5400, 1500, 600, ""), text(5400, 1980, 600, "")}};
  CommandButton cmdUitvoeren{
      *this, {.Left = 1200, .Top = 2520, .Width = 1695, .Height = 435, .Caption = "Uitvoeren"}};
  CommandButton cmdSluiten{
      *this, {.Left = 3240, .Top = 2520, .Width = 1695, .Height = 435, .Caption = "Annuleren"}};

 private:
  void Form_Load();
  void KeepOnTop() { setTopMost(); }
  void Picture1_Mouse(int Index, const Mouse& at);
  void cmdUitvoeren_Click();
  void ApplyColourFactors();

  std::array<double, 3> Stand = {};  // of the sliders when they are carried out, 0..200
};
