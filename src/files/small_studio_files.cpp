// Pictures from and to disk in the small studio and the course.
#include "files/bestand.h"
#include "small/small_studio.h"

using namespace surface;

void SmallStudio::cmdSaveAs_Click() {
  cmdUndo.Enabled = true;
  lblModus.Caption = "je TEKENING OPSLAAN (bewaren)";
  bewaarTekening(CommonDialog2, picBlad);
}

void SmallStudio::cmdOpenbestand_Click() {
  cmdUndo.Enabled = true;
  lblModus.Caption = "een andere TEKENING OPENEN";
  picBlad.DrawStyle = 5;
  if (layout.AsksToSave && MsgBox("Wil je de huidige tekening opslaan ?", YesNo, "Opslaan") == Yes)
    cmdSaveAs_Click();
  trapAndLeave([&] {
    picBlad.Picture = LoadPicture(kiesBestand(CommonDialog2));
    lblModus.Caption = "je kunt opnieuw TEKENEN";
  });
}

void SmallStudio::LoadCommandLine() { opdrachtregelNaarBlad(picBlad); }
