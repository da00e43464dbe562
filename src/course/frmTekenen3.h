// The course: a small studio on a smaller sheet, with a text that leads from tool to tool. It
// checks nothing that the child does; each "Verder" only changes what is on the screen.
#pragma once

#include <array>

#include "small/small_studio.h"

class frmTekenen3 : public SmallStudio {
 public:
  frmTekenen3();

  Label lblCursus{*this,
                  {.Left = 5400,
                   .Top = 720,
                   .Width = 6375,
                   .Height = 3015,
                   .ToolTipText = "dit is het scherm met de uitleg bij je lesje",
                   .BackColor = 0xC0FFFF,
                   .Font = {"Arial", 14.25f, true}}};
  CommandButton cmdVerder{*this, further(0xC0C0C0, true)};
  CommandButton cmdVerder2{*this, further(0x00FF00)};
  CommandButton cmdVerder3{*this, further(0x00FFFF)};
  CommandButton cmdVerder4{*this, further(0x00FF00)};
  CommandButton cmdVerder5{*this, further(0x00FFFF)};
  CommandButton cmdVerder6{*this, further(0x00FF00)};
  CommandButton cmdVerder7{*this, further(0x00FFFF)};
  CommandButton cmdVerder8{*this, further(0x00FF00)};
  CommandButton cmdVerder9{*this, further(0x00FFFF)};
  CommandButton cmdVerder10{*this, further(0x00FF00)};
  CommandButton cmdVerder11{*this, further(0x00FFFF)};
  CommandButton cmdVerder12{*this, further(0x00FF00)};
  CommandButton cmdVerder13{*this, further(0x00FFFF)};
  CommandButton cmdVerder14{*this, further(0x00FF00)};
  CommandButton cmdVerder15{*this, further(0x00FFFF)};
  CommandButton cmdVerder16{*this, further(0x00FF00)};
  CommandButton cmdVerder17{*this, further(0x00FFFF)};
  CommandButton cmdSluiten{*this,
                           {.Left = 120,
                            .Top = 3840,
                            .Width = 1440,
                            .Height = 615,
                            .Caption = "Sluiten",
                            .BackColor = 0xC0C0FF,
                            .Font = {"Arial", 12, true}}};
  ImageControl imgPijl{*this,
                       {.Left = 1680,
                        .Top = 4560,
                        .Width = 900,
                        .Height = 900,
                        .Picture = "pijl",
                        .Visible = false}};
  ImageControl imgMuis{*this,
                       {.Left = 5400,
                        .Top = 3840,
                        .Width = 6735,
                        .Height = 4320,
                        .Picture = "muis",
                        .Visible = false}};
  // What the steps have set going: "1" once the pencil, the line, the colours have had their turn.
  TextBox txt1{*this, {.Width = 375, .Height = 375, .Visible = false}};
  TextBox txt2{*this, {.Width = 375, .Height = 375, .Visible = false}};
  TextBox txt3{*this, {.Width = 375, .Height = 375, .Visible = false}};

  static constexpr int Steps = 17;
  /// The seventeen "Verder" buttons, in order.
  std::array<CommandButton*, Steps> buttons();

  void Form_Load() override;

 protected:
  void applyTool() override;

 private:
  static CommandButton::Design further(Color color, bool visible = false);

  // course_steps.cpp: one for each "Verder"
  void takeStep(int step);
  void showForStep(int step);

  void takeColour();
  void cmdTekenen_Click();
  void eraseThickly();
  void cmdSluiten_Click();
};

/// Shows or hides a control, and switches it on or off with that.
void showControl(surface::Control& control, bool shown);
