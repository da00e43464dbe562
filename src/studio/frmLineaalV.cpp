// The vertical ruler, drawn once.
#include "studio/frmLineaalV.h"

using namespace surface;

frmLineaalV::frmLineaalV()
    : Form({.BackColor = 0xC0FFFF,
            .Width = 570,
            .Height = 8070,
            .BorderStyle = Border::Tool,
            .ScaleMode = ScaleCentimetres}) {
  AutoRedraw = true;
  Load = [this] { Form_Load(); };
}

void frmLineaalV::Form_Load() {
  setTopMost();
  Left = 0;
  Top = 0;
  Height = 8400;
  for (int i = 0; i <= 60; ++i) {
    const auto y = static_cast<float>(i);
    Line({0.1f, y}, {0.4f, y}, Black);
    // The 0 stands within the window.
    const float d = i == 0 ? 0 : 0.15f;
    // A line of no length places the text.
    Line({0.5f, y - d}, {0.5f, y - d});
    Print(toText(i));
  }
  for (int tenth = 0; tenth <= 600; ++tenth) {
    const float y = static_cast<float>(tenth) / 10;
    Line({0.15f, y}, {0.35f, y}, Black);
  }
}
