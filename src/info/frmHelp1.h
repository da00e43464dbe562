// Help of the small studio.
#pragma once

#include "info/text_screen.h"

class frmHelp1 : public TextScreen {
 public:
  frmHelp1();

 private:
  void cmdEinde_Click();
};
