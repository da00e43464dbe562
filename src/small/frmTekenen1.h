// The small studio: one sheet, six tools, for the youngest; colouring pages lie on its sheet too.
#pragma once

#include "small/small_studio.h"

class frmTekenen1 : public SmallStudio {
 public:
  frmTekenen1();

  CommandButton cmdHelp{*this,
                        {.Left = 120,
                         .Top = 4560,
                         .Width = 1215,
                         .Height = 495,
                         .Caption = "Help",
                         .ToolTipText = "uitleg bij alle knoppen",
                         .BackColor = 0xC0E0FF,
                         .Font = {"Arial", 12, true},
                         .Shortcut = "F1"}};
  CommandButton cmdEinde{*this,
                         {.Left = 1440,
                          .Top = 4560,
                          .Width = 1095,
                          .Height = 495,
                          .Caption = "Einde",
                          .ToolTipText = "om af te SLUITEN",
                          .BackColor = 0x80FF80,
                          .Font = {"Arial", 12, true}}};
  /// "1" to "4": the page of colouring pictures from which the one on the sheet came.
  TextBox txtKleurplaat{*this, {.Width = 375, .Height = 375, .Visible = false}};

 protected:
  void applyTool() override;

 private:
  void cmdKleurplaat_Click();
  void cmdHelp_Click();
  void cmdEinde_Click();
  void showPages();
};
