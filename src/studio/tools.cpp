// Choosing a tool, and the panels of lines, brushes and fills.
#include "studio/frmTekenen2.h"

using namespace surface;

void frmTekenen2::ChooseTool(std::int16_t tool) {
  Gereedschap = tool;
  ApplyTool();
}

void frmTekenen2::ChooseToolClosingPanels(std::int16_t tool) {
  ClosePanels();
  ChooseTool(tool);
}

void frmTekenen2::OpenPanel(Frame& panel, const char* message) {
  ClosePanels();
  lblModus.Caption = message;
  panel.Visible = true;
}

void frmTekenen2::cmdLijnen_Click() {
  ClosePanels();
  picBlad.MousePointer = PointerCustom;
  picBlad.MouseIcon = curPen.PictureName;
  Slider1.Value = 1;
  Line2.BorderWidth = Slider1.Value;
  picBlad.DrawWidth = Slider1.Value;
  Line2.BorderColor = Shape1.FillColor;
  lblModus.Caption = "hulpkader : bepaal de instellingen van de lijnen";
  fraLijnen.Visible = true;
}

void frmTekenen2::cmdLineaal_Click() {
  OpenPanel(fraLineaal, "hulpkader : de beide linealen kan je over het blad slepen");
}

void frmTekenen2::Slider1_Scroll() {
  Line2.BorderColor = Shape1.FillColor;
  Line2.BorderWidth = Slider1.Value;
  picBlad.DrawWidth = Slider1.Value;
}

void frmTekenen2::cboStijl_Click() {
  picBlad.DrawWidth = 1;
  Slider1.Value = 1;
  Line2.BorderWidth = 1;
  picBlad.DrawStyle = cboStijl.Text() == "Stippellijn" ? 2 : 0;
}

void frmTekenen2::Option5_Click(int index) {
  static constexpr int styles[] = {2, 3, 4, 5, 6, 7, 0};
  ChooseTool(19);
  Patroon = styles[index];
}

void frmTekenen2::picBorstel_Click(int number) {
  ChooseTool(20);
  Borstel = number;
}
