// Pictures from and to disk in the small studio and the course.
#include "files/afdrukken.h"
#include "files/bestand.h"
#include "small/small_studio.h"

using namespace surface;

void SmallStudio::cmdSaveAs_Click() {
  cmdUndo.Enabled = true;
  lblModus.Caption = "je TEKENING OPSLAAN (bewaren)";
  bewaarTekening(CommonDialog2, picBlad);
}

// Before another picture takes the drawing's place, and when the desktop logs out.
void SmallStudio::askToSave() {
  if (MsgBox("Wil je de huidige tekening opslaan ?", YesNo, "Opslaan") == Yes) cmdSaveAs_Click();
}

void SmallStudio::cmdOpenbestand_Click() {
  cmdUndo.Enabled = true;
  lblModus.Caption = "een andere TEKENING OPENEN";
  picBlad.DrawStyle = 5;
  if (layout.AsksToSave) askToSave();
  trapAndLeave([&] {
    picBlad.Picture = LoadPicture(kiesBestand(CommonDialog2));
    lblModus.Caption = "je kunt opnieuw TEKENEN";
  });
}

void SmallStudio::cmdPrint_Click() {
  lblModus.Caption = "je TEKENING AFDRUKKEN";
  drukTekeningAf(CommonDialog2, picBlad);
}

void SmallStudio::LoadCommandLine() { opdrachtregelNaarBlad(picBlad); }
