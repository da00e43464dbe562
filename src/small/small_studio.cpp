// The start of a small studio, its tools, colours, undo and wiping.
#include "small/small_studio.h"

#include <array>

using namespace surface;

namespace {

// What choosing a tool sets.
struct ToolRow {
  std::int16_t number;
  CommandButton SmallStudio::*button;
  int pointer;
  ImageControl SmallStudio::*icon;
  bool undo;
  const char* message;
};

const std::array<ToolRow, 6> ToolTable = {{
    {1, &SmallStudio::cmdTekenen, PointerCustom, &SmallStudio::curPen, true,
     "WILLEKEURIGE LIJNEN tekenen"},
    {2, &SmallStudio::cmdLijn, PointerCustom, &SmallStudio::curPen, true, "RECHTE LIJNEN tekenen"},
    {3, &SmallStudio::cmdRechthoek, PointerCross, nullptr, true,
     "een VIERKANT of RECHTHOEK tekenen"},
    // Its paint is in the snapshot already, so there would be nothing to undo.
    {6, &SmallStudio::cmdOpvullen, PointerCustom, &SmallStudio::curVullen, false,
     "VLAKKEN OPVULLEN met kleuren"},
    {9, &SmallStudio::cmdSpuitbus, PointerCustom, &SmallStudio::curBrush, true,
     "het SPUITBUSJE gebruiken"},
    {12, &SmallStudio::cmdEllips, PointerCross, nullptr, true, "een CIRKEL of ELLIPS tekenen"},
}};

}  // namespace

SmallStudioControls::SmallStudioControls(const SmallStudioLayout& design)
    : Form({.Caption = design.Caption, .BackColor = design.BackColor, .Maximised = true}),
      layout(design) {
  picBlad.AccessibleName = "tekenblad";
  FirstStop = &cmdTekenen;
  Sheet = &picBlad;
  // Only with a colouring page on the sheet.
  cmdKleurplaat.Visible = false;
  cmdKleurplaat.Enabled = false;
}

CommandButton::Design SmallStudioControls::tool(int row, int column, Color back,
                                                const char* picture, const char* tip,
                                                const char* key) const {
  constexpr float Pitch = 840;
  return {.Left = layout.GridLeft + Pitch * static_cast<float>(column),
          .Top = 120 + Pitch * static_cast<float>(row),
          .Width = 735,
          .Height = 735,
          .Picture = picture,
          .ToolTipText = tip,
          .BackColor = back,
          .Shortcut = key,
          .Visible = layout.Visible};
}

PictureBox::Design SmallStudioControls::sheet(bool visible) const {
  return {.Left = layout.Sheet.Left,
          .Top = layout.Sheet.Top,
          .Width = layout.Sheet.Width,
          .Height = layout.Sheet.Height,
          .ScaleMode = ScalePixels,
          .AutoRedraw = true,
          .BackColor = White,
          .FillColor = White,
          .Visible = visible};
}

ImageControl::Design SmallStudioControls::cursor(const char* name) {
  return {.Width = 480, .Height = 480, .Picture = name, .Visible = false};
}

SmallStudio::SmallStudio(const SmallStudioLayout& design) : SmallStudioControls(design) {
  Load = [this] { Form_Load(); };
  LogOut = [this] { askToSave(); };
  SaveSheet = [this] { cmdSaveAs_Click(); };
  cmdTekenen.Click = [this] { chooseTool(1); };
  cmdLijn.Click = [this] { chooseTool(2); };
  cmdRechthoek.Click = [this] { chooseTool(3); };
  cmdOpvullen.Click = [this] { chooseTool(6); };
  cmdSpuitbus.Click = [this] { chooseTool(9); };
  cmdEllips.Click = [this] { chooseTool(12); };
  cmdGom.Click = [this] { cmdGom_Click(); };
  cmdUndo.Click = [this] { cmdUndo_Click(); };
  cmdClear.Click = [this] { cmdClear_Click(); };
  cmdOpenbestand.Click = [this] { cmdOpenbestand_Click(); };
  cmdSaveAs.Click = [this] { cmdSaveAs_Click(); };
  cmdPrint.Click = [this] { cmdPrint_Click(); };
  Slider1.Scroll = [this] { Slider1_Scroll(); };
  lblModus.Click = [this] { lblModus.Caption = "het MEDEDELINGENBORD"; };
  picPalet.MouseDown = [this](const Mouse& at) { picPalet_MouseDown(at); };
  picPalet.MouseMove = [this](const Mouse& at) { picPalet_MouseMove(at); };
  picPalet.MouseUp = [this](const Mouse& at) { picPalet_MouseUp(at); };
  picBlad.MouseDown = [this](const Mouse& at) { picBlad_MouseDown(at); };
  picBlad.MouseMove = [this](const Mouse& at) { picBlad_MouseMove(at); };
  picBlad.MouseUp = [this](const Mouse& at) { picBlad_MouseUp(at); };
}

void SmallStudio::Form_Load() {
  picBlad.MousePointer = PointerCustom;
  picBlad.MouseIcon = curPen.PictureName;
  Slider1.Value = 1;
  Line2.BorderWidth = Slider1.Value;
  picBlad.DrawWidth = Slider1.Value;
  Shape1.FillColor = Black;
  Line2.BorderColor = Black;
  picBlad.ForeColor = layout.PenAtStart;
  Gereedschap = 1;
  showInHand(cmdTekenen);
  lblModus.Caption = "KRAS PRET !!!";
  picUndo.Picture = picBlad.Image();
  LoadCommandLine();
}

void SmallStudio::chooseTool(std::int16_t tool) {
  Gereedschap = tool;
  applyTool();
}

void SmallStudio::applyTool() {
  for (const ToolRow& row : ToolTable) {
    if (row.number != Gereedschap) continue;
    picBlad.MousePointer = row.pointer;
    if (row.icon) picBlad.MouseIcon = (this->*row.icon).PictureName;
    lblModus.Caption = row.message;
    cmdUndo.Enabled = row.undo;
    showInHand(this->*row.button);
  }
  if (Gereedschap == 9) {
    Slider1.Value = 1;
    Line2.BorderWidth = Slider1.Value;
    picBlad.DrawWidth = Slider1.Value;
  }
}

void SmallStudio::showInHand(CommandButton& chosen) {
  if (inHand) inHand->Pressed = false;
  inHand = &chosen;
  chosen.Pressed = true;
}

void SmallStudio::Slider1_Scroll() {
  Line2.BorderColor = Shape1.FillColor;
  Line2.BorderWidth = Slider1.Value;
  picBlad.DrawWidth = Slider1.Value;
  lblModus.Caption = "de DIKTE van de LIJNEN veranderen";
}

void SmallStudio::picPalet_MouseDown(const Mouse& at) {
  resumeNext([&] { lblModus.Caption = "een andere KLEUR kiezen"; }, [&] { PaletBezig = -1; },
             [&] {
               Shape1.FillColor = picPalet.Point({at.X, at.Y});
             },
             [&] { Line2.BorderColor = Shape1.FillColor; });
}

void SmallStudio::picPalet_MouseMove(const Mouse& at) {
  if (PaletBezig) resumeNext([&] { Shape1.FillColor = picPalet.Point({at.X, at.Y}); });
}

void SmallStudio::picPalet_MouseUp(const Mouse& at) {
  // Off the palette there is no colour, and the former one stays.
  if (const Color c = picPalet.Point({at.X, at.Y}); c != NoColor) picBlad.ForeColor = c;
  PaletBezig = 0;
}

// The pencil in the colour of the last fill, which counts as the background. Its thickness is shown
// only: the pen keeps the one it has.
void SmallStudio::cmdGom_Click() {
  lblModus.Caption = "FOUTJES WEG GOMMEN";
  Gereedschap = 1;
  showInHand(cmdGom);
  picBlad.MousePointer = PointerCustom;
  picBlad.MouseIcon = curGom.PictureName;
  cmdUndo.Enabled = true;
  Slider1.Value = 5;
  Line2.BorderColor = picBlad.FillColor;
  Shape1.FillColor = picBlad.FillColor;
  picBlad.ForeColor = Shape1.FillColor;
}

void SmallStudio::UndoBuffer() { picUndo.Picture = picBlad.Image(); }

void SmallStudio::cmdUndo_Click() {
  resumeNext([&] { lblModus.Caption = "ONGEDAAN MAKEN van de LAATSTE bewerking"; },
             [&] { picBlad.Picture = picUndo.Image(); }, [&] { picBlad.Refresh(); },
             [&] { cmdUndo.Enabled = false; });
}

void SmallStudio::cmdClear_Click() {
  picBlad.Cls();
  picBlad.Picture = LoadPicture();
  Form_Load();
  lblModus.Caption = "ALLES WISSEN voor een NIEUWE TEKENING";
}
