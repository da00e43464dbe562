// The first screen of colouring pages, 1 to 15.
#pragma once

#include "small/page_chooser.h"

class frmKleurplaat : public PictureChooser {
 public:
  frmKleurplaat();

  CommandButton cmdKleurplaat2{*this, button(2640, "Nog meer", 0xFFC0FF)};
  CommandButton cmdInfo{*this, infoButton()};
  CommandButton cmdEinde{*this, button(9480, "Sluiten", 0xC0C0C0)};

 private:
  static CommandButton::Design infoButton();
  void cmdInfo_Click();
};
