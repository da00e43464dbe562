// A screen that no button leads to; its own two do nothing. Only the close box ends it.
#pragma once

#include "surface/surface.h"

class frmSysInfo : public surface::Form {
 public:
  frmSysInfo();

  CommandButton cmdSysInfo{*this,
                           {.Left = 240,
                            .Top = 1200,
                            .Width = 1815,
                            .Height = 495,
                            .Caption = "Info systeem",
                            .Font = {"Arial", 9.75f, true}}};
  CommandButton cmdSluiten{*this,
                           {.Left = 3585,
                            .Top = 1200,
                            .Width = 1815,
                            .Height = 495,
                            .Caption = "Sluiten",
                            .Font = {"Arial", 9.75f, true}}};
  Label lblDescription{*this,
                       {.Left = 240,
                        .Top = 240,
                        .Width = 5160,
                        .Height = 735,
                        .Caption = "Informatie over de hardware en de systeembronnen van je pc.",
                        .Font = {"Arial", 12}}};
};
