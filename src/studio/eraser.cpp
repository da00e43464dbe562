// The eraser: the pencil, thick and in the colour of the background.
#include "studio/colours.h"
#include "studio/frmTekenen2.h"

using namespace surface;

void frmTekenen2::takeEraser() {
  Gereedschap = 1;
  picBlad.MousePointer = PointerCustom;
  picBlad.MouseIcon = curGom.PictureName;
  showInHand(&cmdGom);
}

void frmTekenen2::cmdGom_Click() {
  ClosePanels();
  lblModus.Caption = "Je kunt hiermee foutjes ongedaan GOMMEN";
  takeEraser();
  Slider3.Value = 10;
  Line3.BorderWidth = Slider3.Value;
  picBlad.DrawWidth = Slider3.Value;
  picBlad.ForeColor = picBlad.BackColor;
}

void frmTekenen2::cmdGommen_Click() {
  ClosePanels();
  lblModus.Caption = "hulpkader : je kan ook met het gommetje tekenen";
  fraGommen.Visible = true;
  takeEraser();
  Slider3.Value = 10;
  picGommen.BackColor = White;
  Line3.BorderColor = White;
  Line3.BorderWidth = Slider3.Value;
  picBlad.DrawWidth = Slider3.Value;
  picBlad.ForeColor = picBlad.BackColor;
}

void frmTekenen2::picGommen_Click() {
  lblModus.Caption = "een KLEUR voor het gommetje kiezen";
  const auto chosen = chosenColor(CommonDialog1);
  if (!chosen) return;
  picBlad.ForeColor = *chosen;
  picGommen.BackColor = *chosen;
  Line3.BorderColor = *chosen;
  Shape1.FillColor = *chosen;
}

void frmTekenen2::Slider3_Scroll() {
  Line3.BorderWidth = Slider3.Value;
  picBlad.DrawWidth = Slider3.Value;
}
