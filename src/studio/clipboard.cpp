// Cut, copy and paste: always the whole sheet.
#include "studio/frmTekenen2.h"

using namespace surface;

void frmTekenen2::cmdKnippen_Click() {
  lblModus.Caption = "de tekening KNIPPEN om ze in een NIEUW blad te plakken";
  Clipboard::Clear();
  Clipboard::SetData(picBlad.Image(), Clipboard::Bitmap);
  picBlad.Picture = LoadPicture();
}

void frmTekenen2::cmdCopy_Click() {
  Clipboard::Clear();
  Clipboard::SetData(picBlad.Image(), Clipboard::Bitmap);
  lblModus.Caption = "een KOPIE van de tekening maken (om later te plakken)";
}

void frmTekenen2::cmdPlakken_Click() {
  lblModus.Caption = "de KOPIE of GEKNIPTE tekening in een NIEUW blad plakken";
  // A bitmap that cannot be taken leaves the sheet as it is.
  trapAndLeave([&] { picBlad.Picture = Clipboard::GetData(Clipboard::Bitmap); });
}
