// The eraser: the pencil, thick and in the colour of the background.
#include "studio/frmTekenen2.h"

using namespace surface;

void frmTekenen2::cmdGom_Click() {
  ClosePanels();
  lblModus.Caption = "Je kunt hiermee foutjes ongedaan GOMMEN";
  Gereedschap = 1;
  picBlad.MousePointer = PointerCustom;
  picBlad.MouseIcon = curGom.PictureName;
  Slider3.Value = 10;
  Line3.BorderWidth = Slider3.Value;
  picBlad.DrawWidth = Slider3.Value;
  picBlad.ForeColor = picBlad.BackColor;
}

void frmTekenen2::cmdGommen_Click() {
  ClosePanels();
  lblModus.Caption = "hulpkader : je kan ook met het gommetje tekenen";
  fraGommen.Visible = true;
  Gereedschap = 1;
  picBlad.MousePointer = PointerCustom;
  picBlad.MouseIcon = curGom.PictureName;
  Slider3.Value = 10;
  picGommen.BackColor = White;
  Line3.BorderColor = White;
  Line3.BorderWidth = Slider3.Value;
  picBlad.DrawWidth = Slider3.Value;
  picBlad.ForeColor = picBlad.BackColor;
}

void frmTekenen2::picGommen_Click() {
  lblModus.Caption = "een KLEUR voor het gommetje kiezen";
  trapAndLeave([&] {
    CommonDialog1.CancelError = true;
    CommonDialog1.Flags = 4;
    CommonDialog1.ShowColor();
    picBlad.ForeColor = CommonDialog1.Color;
    picGommen.BackColor = CommonDialog1.Color;
    Line3.BorderColor = CommonDialog1.Color;
    Shape1.FillColor = CommonDialog1.Color;
  });
}

void frmTekenen2::Slider3_Scroll() {
  Line3.BorderWidth = Slider3.Value;
  picBlad.DrawWidth = Slider3.Value;
}
