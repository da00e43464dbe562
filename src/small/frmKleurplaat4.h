// The last screen of colouring pages, 46 to 60: told in words, so that it is a surprise which
// picture comes.
#pragma once

#include "small/page_chooser.h"

class frmKleurplaat4 : public PageChooser {
 public:
  frmKleurplaat4();

  Label lbl1{*this, title(1, "even de dieren voeren")};
  Label lbl2{*this, title(2, "een stevige burcht")};
  Label lbl3{*this, title(3, "even gezellig kleuren")};
  Label lbl4{*this, title(4, "indiaan in zijn kamp")};
  Label lbl5{*this, title(5, "dolle pret met carnaval")};
  Label lbl6{*this, title(6, "een dag aan het strand")};
  Label lbl7{*this, title(7, "kijk naar de leuke vlieger")};
  Label lbl8{*this, title(8, "daar komt de trein")};
  Label lbl9{*this, title(9, "eendjes in het park")};
  Label lbl10{*this, title(10, "leuke picnic in het bos")};
  Label lbl11{*this, title(11, "schip van de piraten")};
  Label lbl12{*this, title(12, "indianen in hun kano")};
  Label lbl13{*this, title(13, "met de blokken spelen")};
  Label lbl14{*this, title(14, "jongleur in het circus")};
  Label lbl15{*this, title(15, "nog een picnic in het bos")};
  CommandButton cmdVorige{*this, button(360, "Vorige", 0xFFC0FF)};
  CommandButton cmdEinde{*this, button(9480, "Sluiten", 0xC0C0C0)};

  /// All fifteen, in order.
  std::array<Label*, PagesPerScreen> titles();

 private:
  static Label::Design title(int n, const char* text);
};
