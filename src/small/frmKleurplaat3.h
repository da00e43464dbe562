// The third screen of colouring pages, 31 to 45.
#pragma once

#include "small/page_chooser.h"

class frmKleurplaat3 : public PictureChooser {
 public:
  frmKleurplaat3();

  CommandButton cmdVorige{*this, button(360, "Vorige", 0xFFC0FF)};
  CommandButton cmdKleurplaat2{*this, button(2640, "Nog meer", 0xFFC0FF)};
  CommandButton cmdEinde{*this, button(9480, "Sluiten", 0xC0C0C0)};
};
