// Help of the large studio.
#pragma once

#include "info/text_screen.h"

class frmHelp2 : public TextScreen {
 public:
  frmHelp2();

 private:
  void cmdEinde_Click();
};
