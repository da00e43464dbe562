// About the program. It goes back to the screen whose mark the caller has left in `txtInfo`.
#pragma once

#include "info/text_screen.h"

class frmInfo : public TextScreen {
 public:
  frmInfo();

  /// "1" the main menu, "2" the fantasy menu, "3" the colouring pages.
  TextBox txtInfo{*this, {.Width = 375, .Height = 375, .Visible = false}};

 private:
  void cmdEinde_Click();
};
