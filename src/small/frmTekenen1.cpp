// What the small studio has beyond its engine: the ways to the colouring pages, to help and back.
#include "small/frmTekenen1.h"

#include "info/frmHelp1.h"
#include "shell/frmStart.h"
#include "small/frmKleurplaat.h"
#include "small/frmKleurplaat2.h"
#include "small/frmKleurplaat3.h"
#include "small/frmKleurplaat4.h"

using namespace surface;

namespace {

const SmallStudioLayout Layout = {
    .Caption = "KRAS PRET - TEKENEN KLEIN",
    .BackColor = 0xC0F0FF,
    .GridLeft = 120,
    .Sheet = {2640, 120, 9255, 8055},
    .Messages = {120, 3960, 2415, 555},
    .ColourChip = {120, 5160, 2475, 1260},
    .PaletteLeft = 120,
    .PaletteTop = 6525,
    .Visible = true,
    .PenAtStart = Black,
    .AsksToSave = true,
};

}  // namespace

frmTekenen1::frmTekenen1() : SmallStudio(Layout) {
  cmdKleurplaat.Click = [this] { cmdKleurplaat_Click(); };
  cmdHelp.Click = [this] { cmdHelp_Click(); };
  cmdEinde.Click = [this] { cmdEinde_Click(); };
  CloseBox = [this] { cmdEinde_Click(); };
}

// The pencil forgets the colour and shows the thinnest line, but the pen keeps its thickness.
void frmTekenen1::applyTool() {
  SmallStudio::applyTool();
  if (Gereedschap != 1) return;
  Shape1.FillColor = Black;
  picBlad.ForeColor = Black;
  Slider1.Value = 1;
  Line2.BorderWidth = Slider1.Value;
  Line2.BorderColor = Shape1.FillColor;
}

void frmTekenen1::cmdKleurplaat_Click() {
  cmdUndo.Enabled = true;
  lblModus.Caption = "een KLEURPLAAT uitkiezen";
  picBlad.DrawStyle = 5;
  MousePointer = PointerHourglass;
  // After saving the child stays with its drawing and presses the button once more.
  if (MsgBox("Wil je de huidige tekening opslaan ?", YesNo, "Opslaan") == Yes)
    cmdSaveAs_Click();
  else
    showPages();
  lblModus.Caption = "je kunt nu KLEUREN maar OOK TEKENEN";
}

void frmTekenen1::showPages() {
  if (txtKleurplaat.Text == "1") showNew<frmKleurplaat>();
  if (txtKleurplaat.Text == "2") showNew<frmKleurplaat2>();
  if (txtKleurplaat.Text == "3") showNew<frmKleurplaat3>();
  if (txtKleurplaat.Text == "4") showNew<frmKleurplaat4>();
  Hide();
}

void frmTekenen1::cmdHelp_Click() {
  showNew<frmHelp1>();
  Hide();
}

void frmTekenen1::cmdEinde_Click() {
  the<frmStart>().Show();
  Unload(*this);
}
