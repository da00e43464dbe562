// What the controls of one kind have in common.
#include "studio/frmTekenen2_controls.h"

using namespace surface;

frmTekenen2_controls::frmTekenen2_controls()
    : Form({.Caption = "KRAS PRET - TEKENEN GROOT", .BackColor = Sand, .Maximised = true}) {
  ForeColor = 0x404040;
  picBlad.AccessibleName = "tekenblad";
  cboStijl.AccessibleName = "Lijnstijl";
  cboGradient.AccessibleName = "richting van de overgang";
  Command1.AccessibleName = "Help";
  // The captions draw the hatches; these say them.
  static constexpr const char* hatches[] = {
      "liggende lijnen",       "staande lijnen", "schuine lijnen omlaag",
      "schuine lijnen omhoog", "kruisjes",       "schuine kruisjes"};
  int i = 0;
  for (const char* name : hatches) Option5(i++).AccessibleName = name;
  FirstStop = &cmdTekenen;
  Sheet = &picBlad;
  cmdRedo.Enabled = false;
}

CommandButton::Design frmTekenen2_controls::tool(float left, float top, const char* picture,
                                                 const char* tip, const char* key) {
  return {.Left = left,
          .Top = top,
          .Width = 375,
          .Height = 375,
          .Picture = picture,
          .ToolTipText = tip,
          .Shortcut = key};
}

CommandButton::Design frmTekenen2_controls::panelTool(float left, float top, const char* picture,
                                                      const char* tip) {
  CommandButton::Design design = tool(left, top, picture, tip);
  design.BackColor = PanelButton;
  return design;
}

CommandButton::Design frmTekenen2_controls::unoffered(float left, const char* tip) {
  CommandButton::Design design = tool(left, 8280, "", tip);
  design.Enabled = false;
  design.Visible = false;
  return design;
}

Frame::Design frmTekenen2_controls::panel(float height, const char* caption) {
  return {.Left = 240,
          .Top = 5160,
          .Width = 1815,
          .Height = height,
          .Caption = caption,
          .BackColor = PanelBack,
          .Visible = false};
}

PictureBox::Design frmTekenen2_controls::sheetSized(ScaleUnit scale, bool autoRedraw) {
  return {.Left = 2640,
          .Top = 120,
          .Width = 9255,
          .Height = 8055,
          .ScaleMode = scale,
          .AutoRedraw = autoRedraw,
          .BackColor = White,
          .Visible = false};
}

PictureBox::Design frmTekenen2_controls::small(float left, float top, float size, bool autoRedraw,
                                               Color back) {
  return {.Left = left,
          .Top = top,
          .Width = size,
          .Height = size,
          .ScaleMode = ScalePixels,
          .AutoRedraw = autoRedraw,
          .BackColor = back,
          .Visible = false};
}

PictureBox::Design frmTekenen2_controls::stamp(float left, float top, const char* picture,
                                               const char* tip) {
  return {.Left = left,
          .Top = top,
          .Width = 375,
          .Height = 375,
          .Picture = picture,
          .ToolTipText = tip,
          .BackColor = White,
          .Raised = true};
}

OptionButton::Design frmTekenen2_controls::hatch(float top, const char* caption) {
  return {.Left = 360,
          .Top = top,
          .Width = 1215,
          .Height = 255,
          .Caption = caption,
          .BackColor = PanelBack};
}

OptionButton::Design frmTekenen2_controls::choice(float top, const char* caption, bool value) {
  return {.Left = 240,
          .Top = top,
          .Width = 1335,
          .Height = 285,
          .Caption = caption,
          .Value = value,
          .BackColor = PanelBack};
}

ImageControl::Design frmTekenen2_controls::cursor(const char* name) {
  return {.Width = 480, .Height = 480, .Picture = name, .Visible = false};
}

Label::Design frmTekenen2_controls::text(float left, float top, float width, const char* caption,
                                         Color back) {
  return {.Left = left,
          .Top = top,
          .Width = width,
          .Height = 255,
          .Caption = caption,
          .BackColor = back};
}
