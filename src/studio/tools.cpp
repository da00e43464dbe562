// Choosing a tool, and the panels of lines, brushes and fills.
#include "studio/frmTekenen2.h"

using namespace surface;

void frmTekenen2::chooseTool(std::int16_t tool) {
  Gereedschap = tool;
  ApplyTool();
}

void frmTekenen2::chooseToolClosingPanels(std::int16_t tool) {
  ClosePanels();
  chooseTool(tool);
}

void frmTekenen2::openPanel(Frame& panel, const char* message) {
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
  openPanel(fraLineaal, "hulpkader : de beide linealen kan je over het blad slepen");
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
  chooseTool(19);
  Patroon = styles[index];
}

std::array<PictureBox*, 13> frmTekenen2::stamps() {
  return {&picBorstel1,  &picBorstel2,  &picBorstel3, &picBorstel4, &picBorstel5,
          &picBorstel6,  &picBorstel7,  &picBorstel8, &picBorstel9, &picBorstel10,
          &picBorstel11, &picBorstel12, &picBorstel13};
}

void frmTekenen2::picBorstel_Click(int number) {
  chooseTool(20);
  Borstel = number;
  showInHand(stamps()[static_cast<std::size_t>(number - 1)]);
}
