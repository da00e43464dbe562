// The second screen of colouring pages, 16 to 30.
#pragma once

#include "small/page_chooser.h"

class frmKleurplaat2 : public PictureChooser {
 public:
  frmKleurplaat2();

  CommandButton cmdVorige{*this, button(360, "Vorige", 0xFFC0FF)};
  CommandButton cmdKleurplaat2{*this, button(2640, "Nog meer", 0xFFC0FF)};
  CommandButton cmdEinde{*this, button(9480, "Sluiten", 0xC0C0C0)};
};
