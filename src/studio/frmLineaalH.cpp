// The horizontal ruler, drawn once.
#include "studio/frmLineaalH.h"

using namespace surface;

frmLineaalH::frmLineaalH()
    : Form({.Caption = std::string(49, ' ') + "LINEAAL - CENTIMETERS",
            .BackColor = 0xC0FFFF,
            .Width = 9165,
            .Height = 585,
            .BorderStyle = Border::Tool,
            .ScaleMode = ScaleCentimetres}) {
  AutoRedraw = true;
  Load = [this] { Form_Load(); };
}

void frmLineaalH::Form_Load() {
  setTopMost();
  Left = 0;
  Top = 0;
  Width = 9285;
  for (int i = 0; i <= 60; ++i) {
    const auto x = static_cast<float>(i);
    // The 0 stands within the window.
    const float d = i == 0 ? 0 : i < 10 ? 0.13f : 0.2f;
    Line({x, 0.1f}, {x, 0.4f}, Black);
    // A line of no length places the text.
    Line({x - d, 0.5f}, {x - d, 0.5f});
    Print(toText(i));
  }
  for (int tenth = 0; tenth <= 600; ++tenth) {
    const float x = static_cast<float>(tenth) / 10;
    Line({x, 0.15f}, {x, 0.35f}, Black);
  }
}
