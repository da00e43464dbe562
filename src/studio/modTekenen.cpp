// Module-level values and routines of the large studio.
#include "studio/modTekenen.h"

#include "effects/rotation.h"
#include "studio/frmTekenen2.h"

using surface::the;

std::int16_t ZoomOpen = 0;
double ScanKolom = 0;
std::int16_t ScanRij = 0;

void UndoShift() {
  auto& studio = the<frmTekenen2>();
  for (int i = 4; i >= 1; --i) {
    studio.UndoPic(i).Picture = studio.UndoPic(i - 1).Image();
    studio.UndoPic(i).Refresh();
  }
  studio.UndoPic(0).Picture = studio.picBlad.Image();
  studio.UndoPic(0).Refresh();
}

void StartProgress() {
  auto& studio = the<frmTekenen2>();
  studio.Timer2.Enabled = true;
  studio.ProgressBar1.Visible = true;
}

void RotateInto(const surface::PictureBox& source, surface::PictureBox& target, float angle) {
  effects::rotateInto(*source.bitmap(), target.writableBitmap(), angle);
  target.damage(target.innerPixels());
}
