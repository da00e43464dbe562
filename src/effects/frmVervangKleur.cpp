// The dialog that makes more or less of a drawing's red, green and blue.
#include "effects/frmVervangKleur.h"

#include <algorithm>

#include "effects/point_effects.h"
#include "studio/frmTekenen2.h"
#include "studio/modTekenen.h"

using namespace surface;

namespace {

constexpr float TrackWidth = 4455, TrackHeight = 375;  // twips
constexpr float Middle = 100, Furthest = 200;          // in the sliders' own unit

}  // namespace

PictureBox::Design frmVervangKleur::track(float top) {
  return {.Left = 120,
          .Top = top,
          .Width = TrackWidth,
          .Height = TrackHeight,
          .UserScale = {.Origin = {0, 0}, .Extent = {201, 50}},
          .AutoRedraw = true,
          .BackColor = White};
}

LineControl::Design frmVervangKleur::line(Color color) {
  return {.X1 = 0,
          .Y1 = TrackHeight / 2,
          .X2 = TrackWidth,
          .Y2 = TrackHeight / 2,
          .BorderColor = color};
}

LineControl::Design frmVervangKleur::marker(Color color) {
  return {.X1 = TrackWidth / 2,
          .Y1 = 0,
          .X2 = TrackWidth / 2,
          .Y2 = TrackHeight,
          .BorderColor = color,
          .BorderWidth = 3};
}

Label::Design frmVervangKleur::text(float left, float top, float width, const char* caption) {
  return {.Left = left,
          .Top = top,
          .Width = width,
          .Height = 255,
          .Caption = caption,
          .BackColor = Pale};
}

frmVervangKleur::frmVervangKleur()
    : Form({.Caption = "KLEUREN VERVANGEN",
            .BackColor = Pale,
            .Width = 6120,
            .Height = 3120,
            .BorderStyle = Border::Fixed}) {
  Label5.Height = 510;
  Label5.Caption = "Je kan de waarden van de drie basiskleuren verschuiven tussen -100 en +100";
  Load = [this] { Form_Load(); };
  for (int i = 0; i < Picture1.count(); ++i) {
    Picture1(i).AccessibleName = Label3(i).Caption;
    const auto slide = [this, i](const Mouse& at) { Picture1_Mouse(i, at); };
    Picture1(i).MouseDown = slide;
    Picture1(i).MouseMove = slide;
    Picture1(i).MouseUp = slide;
  }
  cmdUitvoeren.Click = [this] { cmdUitvoeren_Click(); };
  cmdSluiten.Click = [this] { Unload(*this); };
}

void frmVervangKleur::Form_Load() {
  KeepOnTop();
  Left = Screen::Width() - Width;
  Top = 0;
  for (int i = 0; i < Picture1.count(); ++i) {
    Label4(i).Caption = "0";
    Line2[i].X1 = Middle;
    Line2[i].X2 = Middle;
  }
}

// A press, a drag and a release on one of the sliders.
void frmVervangKleur::Picture1_Mouse(int Index, const Mouse& at) {
  if ((at.Button & 1) == 0) return;
  const float X = std::clamp(at.X, 0.0f, Furthest);
  Line2[Index].X1 = X;
  Line2[Index].X2 = X;
  Label4(Index).Caption = toText(Int(X) - Middle);
}

void frmVervangKleur::cmdUitvoeren_Click() {
  auto& studio = the<frmTekenen2>();
  MousePointer = PointerHourglass;
  studio.cmdUndo.Enabled = false;
  studio.announceEffect("KLEUREN VERVANGEN");
  const auto inTheMiddle = std::count_if(
      std::begin(Line2), std::end(Line2),
      [](const LineControl& marker) { return marker.X1 > Middle - 1 && marker.X1 < Middle + 1; });
  // With nothing to do the announcement stays.
  if (inTheMiddle != Picture1.count()) {
    UndoShift();
    for (std::size_t i = 0; i < Stand.size(); ++i) Stand[i] = Line2[i].X1;
    ApplyColourFactors();
    studio.Caption = "KRAS PRET";
  }
  Unload(*this);
  StartProgress();
}

void frmVervangKleur::ApplyColourFactors() {
  auto& studio = the<frmTekenen2>();
  studio.replacePixels(
      effects::scaled(*studio.picBlad.bitmap(), {Stand[0] / 100, Stand[1] / 100, Stand[2] / 100}));
  // Where the way over the columns and rows has ended.
  ScanKolom = studio.picBlad.ScaleWidth();
  ScanRij = toInt16(studio.picBlad.ScaleHeight());
  studio.picBlad.Refresh();
}
