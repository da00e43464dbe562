// The buttons of the effects panel. Each runs in the same frame, but the order of its steps is its
// own: which of them start the progress, and when, is what a child sees.
#include <memory>

#include "effects/displacements.h"
#include "effects/frmVervangKleur.h"
#include "effects/neighbour_effects.h"
#include "effects/point_effects.h"
#include "studio/frmTekenen2.h"
#include "studio/modTekenen.h"

using namespace surface;

namespace {

// How many rows and columns the effects that look around a pixel can hold.
constexpr float GridSide = 1501;

}  // namespace

void frmTekenen2::announceEffect(const std::string& name) {
  lblModus.Caption = "het effect " + name + " wordt nu toegepast";
  Caption = std::string(9, ' ') + std::string(21, '>') + "   HET " + name +
            "-EFFECT WORDT NU TOEGEPAST - EVEN GEDULD A.U.B. ...";
}

void frmTekenen2::beginEffect(const std::string& name) {
  PrepareEffect();
  announceEffect(name);
  MousePointer = PointerHourglass;
}

void frmTekenen2::FinishEffect() {
  Caption = "KRAS PRET";
  MousePointer = PointerDefault;
}

// A sheet that does not fit stops the effect before a pixel has changed. The rows before the first
// that does not have switched the progress on by then.
void frmTekenen2::loading() {
  const auto refuseBeyondGrid = [](float size) {
    if (size > GridSide)
      throw RuntimeError(ErrorKind::SubscriptOutOfRange, "Subscript out of range");
  };
  refuseBeyondGrid(picBlad.ScaleWidth());
  StartProgress();
  refuseBeyondGrid(picBlad.ScaleHeight());
}

// Behind the back of the sheet: its Picture stays as it is.
void frmTekenen2::replacePixels(raster::Bitmap pixels) {
  picBlad.writableBitmap() = std::move(pixels);
  picBlad.damage(picBlad.innerPixels());
}

void frmTekenen2::cmdVervagen_Click() {
  beginEffect("VERVAGEN");
  loading();
  replacePixels(effects::blurred(*picBlad.bitmap()));
  FinishEffect();
}

void frmTekenen2::cmdVerscherpen_Click() {
  beginEffect("VERSCHERPEN");
  loading();
  replacePixels(effects::sharpened(*picBlad.bitmap()));
  FinishEffect();
}

void frmTekenen2::cmdRelief_Click() {
  beginEffect("GRIJS RELIEF");
  StartProgress();
  loading();
  replacePixels(effects::embossed(*picBlad.bitmap()));
  FinishEffect();
}

void frmTekenen2::cmdVerspreiden_Click() {
  beginEffect("VERSPREIDEN");
  StartProgress();
  loading();
  replacePixels(effects::scattered(*picBlad.bitmap(), Rnd));
  FinishEffect();
}

void frmTekenen2::cmdOmkeren_Click() {
  PrepareEffect();
  announceEffect("KLEUREN OMKEREN");
  picTemp.Width = picBlad.Width;
  picTemp.Height = picBlad.Height;
  MousePointer = PointerHourglass;
  StartProgress();
  picTemp.Picture =
      surface::Picture(std::make_shared<raster::Bitmap>(effects::inverted(*picBlad.bitmap())));
  picBlad.Picture = picTemp.Image();
  picBlad.Refresh();
  FinishEffect();
}

void frmTekenen2::cmdHelderheid_Click() {
  PrepareEffect();
  announceEffect("HELDERHEID");
  StartProgress();
  const double v =
      Val(InputBox("Voer een waarde voor HELDERHEID ( tussen 0 en 200), minder dan 100 wordt de "
                   "tekening donkerder, meer dan 100 wordt ze lichter van kleur",
                   "HELDERHEID INSTELLEN", "100"));
  // The announcement and the progress stay as they are.
  if (v < 0 || v > 200) return;
  MousePointer = PointerHourglass;
  const auto f = static_cast<float>(v / 100);
  replacePixels(effects::scaled(*picBlad.bitmap(), {f, f, f}));
  picBlad.Refresh();
  FinishEffect();
}

void frmTekenen2::cmdHamerslag_Click() {
  beginEffect("HAMERSLAG");
  StartProgress();
  replacePixels(effects::hammered(*picBlad.bitmap()));
  picBlad.Refresh();
  FinishEffect();
}

void frmTekenen2::cmdZaagrand_Click() {
  beginEffect("ZAAGRAND");
  StartProgress();
  effects::ragEdge(picBlad);
  picBlad.Refresh();
  FinishEffect();
}

// Neither hourglass nor progress.
void frmTekenen2::cmdGrijswaarden_Click() {
  PrepareEffect();
  announceEffect("GRIJSWAARDEN");
  replacePixels(effects::chained(*picBlad.bitmap()));
  picBlad.Refresh();
  FinishEffect();
}

void frmTekenen2::cmdVervangKleur_Click() { the<frmVervangKleur>().Show(); }

// The bar tells nothing of the work, which is done by then: five seconds, then the message.
void frmTekenen2::Timer2_Timer() {
  if (ProgressCount != ProgressMax) {
    ++ProgressCount;
    ProgressBar1.Value = ProgressCount;
    return;
  }
  Timer2.Enabled = false;
  ProgressCount = 0;
  ProgressBar1.Visible = false;
  MsgBox("Klaar !!!");
}
