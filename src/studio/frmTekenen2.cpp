// The frame of the large studio: load, tools, panels closing, leaving.
#include "studio/frmTekenen2.h"

#include <array>

#include "effects/frmRoteren.h"
#include "effects/frmVervangKleur.h"
#include "effects/frmZoom.h"
#include "info/frmHelp2.h"
#include "shell/frmStart.h"
#include "studio/frmLineaalH.h"
#include "studio/frmLineaalV.h"
#include "studio/modTekenen.h"
#include "text/frmTekst.h"

using namespace surface;

namespace {

// What choosing a tool sets.
struct ToolRow {
  std::int16_t number;
  CommandButton frmTekenen2::*button;  // null: chosen in a panel
  int pointer;
  ImageControl frmTekenen2::*icon;
  bool undo;
  const char* message;
};

constexpr int Own = PointerCustom, Cross = PointerCross;

const std::array<ToolRow, 15> ToolTable = {{
    {1, &frmTekenen2::cmdTekenen, Own, &frmTekenen2::curPen, true,
     "VRIJE HAND : willekeurige lijnen tekenen"},
    {2, &frmTekenen2::cmdLijn, Own, &frmTekenen2::curPen, true, "je bent bezig met LIJNEN TREKKEN"},
    {3, &frmTekenen2::cmdRechthoek, Cross, nullptr, true, "je tekent nu een LEGE RECHTHOEK"},
    {4, &frmTekenen2::cmdRechthoekgevuld, Cross, nullptr, true,
     "je tekent nu een GEVULDE RECHTHOEK"},
    {5, &frmTekenen2::cmdCirkel, Cross, nullptr, true,
     "LEGE cirkels maken : stel eerst de diameter in"},
    {6, &frmTekenen2::cmdOpvullen, Own, &frmTekenen2::curVullen, false,
     "je kunt nu vlakken in je tekening OPVULLEN"},
    {7, &frmTekenen2::cmdDrop, Cross, nullptr, false, "een kleur vanuit de afbeelding zelf kiezen"},
    {8, &frmTekenen2::cmdTekst, PointerText, nullptr, true,
     "klik op de plaats WAAR je de tekst op het blad wil"},
    {9, &frmTekenen2::cmdSpuitbus, Own, &frmTekenen2::curBrush, true,
     "figuurtjes tekenen met het SPUITBUSJE"},
    {10, &frmTekenen2::cmdArt, Own, &frmTekenen2::curBrush, true,
     "KUNSTLIJNEN maken - willekeurige kleuren - lijndikte kan aangepast"},
    {11, &frmTekenen2::cmdCirkelGevuld, Cross, nullptr, true,
     "GEVULDE cirkels maken : stel eerst de diameter in"},
    {12, &frmTekenen2::cmdEllips, Cross, nullptr, true,
     "je tekent nu een     LEGE ELLIPS     (=ovaal, eivorm)"},
    {13, &frmTekenen2::cmdEllipsGevuld, Cross, nullptr, true,
     "je tekent nu een GEVULDE ELLIPS (=ovaal, eivorm)"},
    {19, nullptr, Own, &frmTekenen2::curDrop, false,
     "kies een lijn om vlakken in je tekening mee op te vullen"},
    {20, nullptr, Own, &frmTekenen2::curPen, true, "een punt of lijn tekenen met figuurtjes"},
}};

}  // namespace

frmTekenen2::frmTekenen2() {
  Load = [this] { Form_Load(); };
  MouseUp = [this](const Mouse& at) { Form_MouseUp(at); };
  // Leaving by the close box is leaving: the rulers go too, and the menu comes back.
  CloseBox = [this] { cmdEinde_Click(); };
  LogOut = [this] { askToSave(); };
  SaveSheet = [this] { cmdSaveAs_Click(); };
  wireTools();
  wireSheet();
  wireRest();
  wireEffects();
}

void frmTekenen2::wireTools() {
  cmdTekenen.Click = [this] { chooseToolClosingPanels(1); };
  cmdLijn.Click = [this] { chooseToolClosingPanels(2); };
  cmdRechthoek.Click = [this] { chooseToolClosingPanels(3); };
  cmdRechthoekgevuld.Click = [this] { chooseToolClosingPanels(4); };
  cmdCirkel.Click = [this] { chooseToolClosingPanels(5); };
  cmdSpuitbus.Click = [this] { chooseToolClosingPanels(9); };
  cmdCirkelGevuld.Click = [this] { chooseToolClosingPanels(11); };
  cmdEllips.Click = [this] { chooseToolClosingPanels(12); };
  cmdEllipsGevuld.Click = [this] { chooseToolClosingPanels(13); };
  cmdOpvullen.Click = [this] { chooseTool(6); };
  cmdDrop.Click = [this] { chooseTool(7); };
  cmdTekst.Click = [this] { chooseTool(8); };
  cmdArt.Click = [this] { chooseTool(10); };
  for (int i = 0; i < Option5.count(); ++i) Option5(i).Click = [this, i] { Option5_Click(i); };
  int number = 0;
  for (PictureBox* stamp : stamps()) stamp->Click = [this, n = ++number] { picBorstel_Click(n); };
}

void frmTekenen2::wireSheet() {
  picBlad.MouseDown = [this](const Mouse& at) { picBlad_MouseDown(at); };
  picBlad.MouseMove = [this](const Mouse& at) { picBlad_MouseMove(at); };
  picBlad.MouseUp = [this](const Mouse& at) { picBlad_MouseUp(at); };
  picPalet.MouseDown = [this](const Mouse& at) { picPalet_MouseDown(at); };
  picPalet.MouseMove = [this](const Mouse& at) { picPalet_MouseMove(at); };
  picPalet.MouseUp = [this](const Mouse& at) { picPalet_MouseUp(at); };
  cmdPalet.Click = [this] { cmdPalet_Click(); };
  Picture3.Click = [this] { chooseGradientColor(Picture3); };
  Picture4.Click = [this] { chooseGradientColor(Picture4); };
}

void frmTekenen2::wireRest() {
  cmdLijnen.Click = [this] { cmdLijnen_Click(); };
  cmdGommen.Click = [this] { cmdGommen_Click(); };
  cmdLineaal.Click = [this] { cmdLineaal_Click(); };
  cmdVulling.Click = [this] {
    openPanel(fraVulling, "hulpkader : kies een soort lijn om een vlak mee op te vullen");
  };
  cmdBorstels.Click = [this] {
    openPanel(fraBorstels, "hulpkader : kies een soort borstel om met figuren te tekenen");
  };
  cmdGradient.Click = [this] {
    openPanel(fraGradient, "hulpkader : van kleur 1 naar kleur 2 de achtergrond schakeren");
  };
  cmdEffecten.Click = [this] {
    openPanel(fraEffecten, "hulpkader : kies een effect om je tekening te veranderen");
  };
  Slider1.Scroll = [this] { Slider1_Scroll(); };
  Slider2.Scroll = [this] { Slider2_Scroll(); };
  Slider3.Scroll = [this] { Slider3_Scroll(); };
  cboStijl.Click = [this] { cboStijl_Click(); };
  cmdGom.Click = [this] { cmdGom_Click(); };
  picGommen.Click = [this] { picGommen_Click(); };
  cmdUndo.Click = [this] { cmdUndo_Click(); };
  cmdRedo.Click = [this] { cmdRedo_Click(); };
  cmdClear.Click = [this] { cmdClear_Click(); };
  cmdNieuw.Click = [this] { cmdNieuw_Click(); };
  cmdFormaat.Click = [this] { cmdFormaat_Click(); };
  Option1.Click = [this] { Option1_Click(); };
  Option2.Click = [this] { Option2_Click(); };
  Option3.Click = [this] { Option3_Click(); };
  Option4.Click = [this] { Option4_Click(); };
  cmdKnippen.Click = [this] { cmdKnippen_Click(); };
  cmdCopy.Click = [this] { cmdCopy_Click(); };
  cmdPlakken.Click = [this] { cmdPlakken_Click(); };
  cmdSaveAs.Click = [this] { cmdSaveAs_Click(); };
  cmdOpenbestand.Click = [this] { cmdOpenbestand_Click(); };
  Command1.Click = [this] { Command1_Click(); };
  cmdPrint.Click = [this] { cmdPrint_Click(); };
  cmdEinde.Click = [this] { cmdEinde_Click(); };
}

void frmTekenen2::wireEffects() {
  cmdVervagen.Click = [this] { cmdVervagen_Click(); };
  cmdVerscherpen.Click = [this] { cmdVerscherpen_Click(); };
  cmdRelief.Click = [this] { cmdRelief_Click(); };
  cmdVerspreiden.Click = [this] { cmdVerspreiden_Click(); };
  cmdOmkeren.Click = [this] { cmdOmkeren_Click(); };
  cmdHelderheid.Click = [this] { cmdHelderheid_Click(); };
  cmdHamerslag.Click = [this] { cmdHamerslag_Click(); };
  cmdZaagrand.Click = [this] { cmdZaagrand_Click(); };
  cmdGrijswaarden.Click = [this] { cmdGrijswaarden_Click(); };
  cmdVervangKleur.Click = [this] { cmdVervangKleur_Click(); };
  Timer2.Timer = [this] { Timer2_Timer(); };
  cmdGradient2.MouseDown = [this](const Mouse& at) { cmdGradient2_MouseDown(at); };
  cmdGradient2.Click = [this] { cmdGradient2_Click(); };
  cmdSpiegelH.Click = [this] { cmdSpiegelH_Click(); };
  cmdSpiegelV.Click = [this] { cmdSpiegelV_Click(); };
  cmdRoteren.Click = [this] { cmdRoteren_Click(); };
  cmdZoom.Click = [this] { cmdZoom_Click(); };
}

void frmTekenen2::Form_Load() { startAnew(Background::White); }

void frmTekenen2::startAnew(Background background) {
  FirstTool();
  if (background == Background::White) picBlad.BackColor = White;
  lblModus.Caption = "we wensen je veel succes toe met je tekening";
  ZoomOpen = 0;
  Randomize();
  const float red = Rnd() * 255;
  const float green = Rnd() * 255;
  const float blue = Rnd() * 255;
  BeginBlauw = blue;
  kunst.start(red, green, blue, picBlad.Width / 15 / 2, picBlad.Height / 15 / 2);
  ProgressMax = 50;
  SetProgressMax();
  Timer2.Enabled = false;
  Timer2.Interval = 100;
  // A sheet that is wiped while the bar still runs keeps none of it.
  ProgressBar1.Visible = false;
  ProgressCount = 0;
  picUndo.Picture = picBlad.Image();
  cmdRedo.Enabled = false;
  LoadCommandLine();
}

void frmTekenen2::FirstTool() {
  Gereedschap = 1;
  picBlad.MousePointer = PointerCustom;
  picBlad.MouseIcon = curPen.PictureName;
  picBlad.DrawWidth = 1;
  picBlad.ForeColor = Black;
  Shape1.FillColor = Black;
  Line2.BorderWidth = Slider1.Value;
  Line3.BorderWidth = Slider3.Value;
  cboStijl.ListIndex = 0;
  picBlad.DrawStyle = cboStijl.ListIndex;
  Slider2.Value = 3;
  lblStraal.Caption = toText(Slider2.Value.get());
  cmdUndo.Enabled = true;
  showInHand(&cmdTekenen);
}

// Of all tools and stamps the one in hand looks pressed.
void frmTekenen2::showInHand(Control* chosen) {
  if (InDeHand) InDeHand->Pressed = false;
  InDeHand = chosen;
  if (InDeHand) InDeHand->Pressed = true;
}

void frmTekenen2::ClosePanels() {
  for (Frame* panel :
       {&fraEffecten, &fraVulling, &fraBorstels, &fraGradient, &fraLineaal, &fraLijnen, &fraGommen})
    if (panel->Visible) panel->Visible = false;
  FirstTool();
}

void frmTekenen2::ApplyTool() {
  for (const ToolRow& row : ToolTable) {
    if (row.number != Gereedschap) continue;
    picBlad.MousePointer = row.pointer;
    if (row.icon) picBlad.MouseIcon = (this->*row.icon).PictureName;
    lblModus.Caption = row.message;
    cmdUndo.Enabled = row.undo;
    showInHand(row.button ? &(this->*row.button) : nullptr);
  }
  if (Gereedschap == 19) picBlad.ForeColor = Shape1.FillColor;
  if (Gereedschap == 20) picBlad.DrawWidth = 1;
}

void frmTekenen2::SetProgressMax() { ProgressBar1.Max = ProgressMax; }

void frmTekenen2::Slider2_Scroll() {
  lblModus.Caption = "hiermee verandert de DIAMETER (doorsnede) van de CIRKEL";
  lblStraal.Caption = toText(Slider2.Value.get());
}

// A release on the bare form around the sheet draws on the form itself.
void frmTekenen2::Form_MouseUp(const Mouse& at) {
  if (Gereedschap != 2 && Gereedschap != 3 && Gereedschap != 4) return;
  if (Teller == 0 || BeginBlauw == 0) return;
  const BoxFlag flag = Gereedschap == 2 ? BoxFlag::None : Gereedschap == 3 ? B : BF;
  Line({Teller, BeginBlauw}, {at.X, at.Y}, ForeColor, flag);
  Teller = 0;
  BeginBlauw = 0;
}

void frmTekenen2::Command1_Click() {
  showNew<frmHelp2>();
  Hide();
}

void frmTekenen2::cmdEinde_Click() {
  unloadAll<frmRoteren>();
  unloadAll<frmLineaalH>();
  unloadAll<frmLineaalV>();
  unloadAll<frmTekst>();
  unloadAll<frmZoom>();
  unloadAll<frmVervangKleur>();
  the<frmStart>().Show();
  Unload(*this);
}
