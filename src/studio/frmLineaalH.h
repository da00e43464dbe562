// The horizontal ruler: a window that stays above the others and shows centimetres.
#pragma once

#include "surface/surface.h"

class frmLineaalH : public surface::Form {
 public:
  frmLineaalH();

  LineControl Line1{*this, {.X1 = 0, .Y1 = 30, .X2 = 9165, .Y2 = 30}};
  LineControl Line2{*this, {.X1 = 0, .Y1 = 555, .X2 = 9165, .Y2 = 555}};

 private:
  void Form_Load();
};
