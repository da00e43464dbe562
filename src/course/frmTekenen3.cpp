// What the course does otherwise than the small studio. It rests on one line: the pen is white
// until a tool is chosen, so that nothing shows before the child has clicked the button which the
// text names.
#include "course/frmTekenen3.h"

#include "shell/frmStart.h"

using namespace surface;

namespace {

constexpr Color Ground = 0xE0F0FF;

const SmallStudioLayout Layout = {
    .Caption = "KRAS PRET - HOE DOE IK HET ?",
    .BackColor = Ground,
    .GridLeft = 1440,
    .Sheet = {5400, 3840, 6375, 4335},
    .Messages = {5400, 120, 6375, 480},
    // Under the arrow.
    .ColourChip = {900, 5520, 2475, 735},
    .PaletteLeft = 900,
    .PaletteTop = 6360,
    .Visible = false,
    .PenAtStart = White,
    .AsksToSave = false,
};

}  // namespace

void showControl(Control& control, bool shown) {
  control.Visible = shown;
  control.Enabled = shown;
}

frmTekenen3::frmTekenen3() : SmallStudio(Layout) {
  lblModus.Font = surface::Font{"Arial", 12, true};
  cmdTekenen.Click = [this] { cmdTekenen_Click(); };
  cmdGom.Click = [this] { eraseThickly(); };
  cmdSluiten.Click = [this] { cmdSluiten_Click(); };
  CloseBox = [this] { cmdSluiten_Click(); };
  int step = 0;
  for (CommandButton* button : buttons()) button->Click = [this, s = ++step] { takeStep(s); };
}

CommandButton::Design frmTekenen3::further(Color color, bool visible) {
  return {.Left = 3240,
          .Top = 3840,
          .Width = 1695,
          .Height = 735,
          .Caption = "Verder",
          .BackColor = color,
          .Font = {"Arial", 18, true},
          .Visible = visible};
}

std::array<frmTekenen3::CommandButton*, frmTekenen3::Steps> frmTekenen3::buttons() {
  return {&cmdVerder,   &cmdVerder2,  &cmdVerder3,  &cmdVerder4,  &cmdVerder5,  &cmdVerder6,
          &cmdVerder7,  &cmdVerder8,  &cmdVerder9,  &cmdVerder10, &cmdVerder11, &cmdVerder12,
          &cmdVerder13, &cmdVerder14, &cmdVerder15, &cmdVerder16, &cmdVerder17};
}

void frmTekenen3::Form_Load() {
  lblCursus.Caption =
      "In dit schermpje krijg je de uitleg over wat je moet doen. Gebruik telkens de knop Verder "
      "en voer de opdracht uit. Het gaat je zeker allemaal lukken. Veel succes !";
  SmallStudio::Form_Load();
}

void frmTekenen3::applyTool() {
  picBlad.ForeColor = Black;
  Slider1.Value = 1;
  Line2.BorderWidth = 1;
  lblModus.Caption = "";
  SmallStudio::applyTool();
  switch (Gereedschap) {
    case 1:
      if (txt1.Text == "1") picBlad.DrawWidth = 1;
      takeColour();
      break;
    case 2:
      if (txt2.Text == "1") cmdUndo.Enabled = true;
      break;
    case 3:
      takeColour();
      break;
    default:
      break;
  }
}

// In the lessons on colour the line is thick, so that its colour shows.
void frmTekenen3::takeColour() {
  if (txt3.Text == "1") {
    picBlad.DrawWidth = 5;
    picBlad.ForeColor = Shape1.FillColor;
  }
  showControl(imgPijl, false);
}

void frmTekenen3::cmdTekenen_Click() {
  txt1.Text = "1";
  chooseTool(1);
}

void frmTekenen3::eraseThickly() {
  cmdGom_Click();
  if (txt1.Text == "1") picBlad.DrawWidth = 5;
}

void frmTekenen3::cmdSluiten_Click() {
  the<frmStart>().Show();
  Unload(*this);
}
