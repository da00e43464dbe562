#pragma once
#include "surface/surface.h"
class frmTekenen2 : public surface::Form {
 public:
  frmTekenen2() : Form({.Caption = "KRAS PRET - TEKENEN GROOT", .Maximised = true}) {}
};
