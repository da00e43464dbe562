// The vertical ruler: a window that stays above the others and shows centimetres.
#pragma once

#include "surface/surface.h"

class frmLineaalV : public surface::Form {
 public:
  frmLineaalV();

  LineControl Line1{*this, {.X1 = 30, .Y1 = 0, .X2 = 30, .Y2 = 8070}};
  LineControl Line2{*this, {.X1 = 540, .Y1 = 0, .X2 = 540, .Y2 = 8070}};

 private:
  void Form_Load();
};
