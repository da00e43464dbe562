// The magnifier: a small window in the upper left corner that shows an enlarged square of the sheet
// around the pointer.
#pragma once

#include "surface/surface.h"

class frmZoom : public surface::Form {
 public:
  frmZoom();

  Slider Slider1{*this,
                 {.Left = 120,
                  .Top = 120,
                  .Width = 495,
                  .Height = 3015,
                  .Min = 1,
                  .Max = 10,
                  .Value = 1,
                  .SmallChange = 1,
                  .LargeChange = 1,
                  .Vertical = true}};
  ImageControl imgStretch{*this, {.Left = 1230, .Top = 120, .Width = 3015, .Height = 3015}};
  LineControl Line1{*this, {}};
  LineControl Line2{*this, {}};

 private:
  void Form_Load();
  void Form_Unload();
  void Slider1_Change();
};
