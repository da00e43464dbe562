// One step back and forth between two snapshots of the sheet.
#include "studio/frmTekenen2.h"
#include "studio/modTekenen.h"

using namespace surface;

void frmTekenen2::UndoBuffer() { picUndo.Picture = picBlad.Image(); }

void frmTekenen2::RedoBuffer() { picRedo.Picture = picBlad.Image(); }

void frmTekenen2::PrepareEffect() {
  ClosePanels();
  cmdUndo.Enabled = false;
  UndoShift();
}

void frmTekenen2::cmdUndo_Click() {
  resumeNext([&] { lblModus.Caption = "de LAATSTE handeling (lijn, kleur, ...) ONGEDAAN maken"; },
             [&] { picRedo.Picture = picBlad.Image(); }, [&] { picBlad.Picture = picUndo.Image(); },
             [&] { picBlad.Refresh(); }, [&] { cmdUndo.Enabled = false; },
             [&] { cmdRedo.Enabled = true; });
}

void frmTekenen2::cmdRedo_Click() {
  resumeNext(
      [&] { lblModus.Caption = "ONGEDAAN maken HERSTELLEN (= lijn, kleur, ... terug zetten)"; },
      [&] { picBlad.Picture = picRedo.Image(); }, [&] { picBlad.Refresh(); },
      [&] { cmdUndo.Enabled = true; }, [&] { cmdRedo.Enabled = false; });
}
