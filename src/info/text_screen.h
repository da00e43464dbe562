// What the three screens with a long text have in common: the text, and the button that leads back.
#pragma once

#include "surface/surface.h"

class TextScreen : public surface::Form {
 protected:
  static constexpr Color Back = 0xFFE6CF;

  TextScreen(const char* caption, const char* text);

 public:
  // First, so that the keys scroll it at once.
  TextBox Text1;
  CommandButton cmdEinde{*this,
                         {.Left = 4920,
                          .Top = 7710,
                          .Width = 2160,
                          .Height = 615,
                          .Caption = "&Sluiten",
                          .BackColor = 0x80FF80,
                          .Font = {"Arial", 14.25f, true}}};
};
