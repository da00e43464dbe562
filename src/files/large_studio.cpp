// Pictures from and to disk and paper in the large studio.
#include "files/afdrukken.h"
#include "files/bestand.h"
#include "studio/frmTekenen2.h"

using namespace surface;

void frmTekenen2::cmdSaveAs_Click() {
  lblModus.Caption = "je tekening in de computer OPSLAAN (=bewaren voor later)";
  cmdUndo.Enabled = true;
  bewaarTekening(CommonDialog2, picBlad);
}

void frmTekenen2::cmdOpenbestand_Click() {
  lblModus.Caption = "een BESTAANDE tekening uit je computer OPENEN";
  cmdUndo.Enabled = true;
  askToSave();
  trapAndLeave([&] { picBlad.Picture = LoadPicture(kiesBestand(CommonDialog2)); });
}

// Before another picture takes the drawing's place, and when the desktop logs out.
void frmTekenen2::askToSave() {
  if (MsgBox("Wil je de huidige tekening opslaan ?", YesNo, "Opslaan") == Yes) cmdSaveAs_Click();
}

void frmTekenen2::cmdPrint_Click() {
  lblModus.Caption = "je tekening AFDRUKKEN (als er een printer is)";
  drukTekeningAf(CommonDialog2, picBlad);
}

void frmTekenen2::LoadCommandLine() { opdrachtregelNaarBlad(picBlad); }
