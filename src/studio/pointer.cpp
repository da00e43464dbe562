// The pointer on the sheet. Each handler is one sequence of blocks in a fixed order, every block
// guarded by its own test: a later block may undo what an earlier one set, and that order is how
// the studio behaves.
#include <algorithm>
#include <cmath>

#include "effects/frmZoom.h"
#include "studio/frmTekenen2.h"
#include "studio/modTekenen.h"

using namespace surface;

void frmTekenen2::picBlad_MouseDown(const Mouse& at) {
  if (Gereedschap == 1) penDown(at);
  if (Gereedschap == 6) fill(at);
  if (Gereedschap == 7) pickColor(at);
  if (Gereedschap == 8 && !askForText(at)) return;
  if (Gereedschap == 10) beginArtLine(at);
  if (Gereedschap == 12 && at.Button == 1) beginOval(at);
  if (Gereedschap == 13) {
    if (at.Button == 1) beginOval(at);
    setBrush(at.Button == 1);
  }
  if (Gereedschap == 19) fillWithPattern(at);
  if (Gereedschap == 20) StampAt(at.X, at.Y);
  switch (Gereedschap) {
    case 2:
    case 3:
    case 4:
    case 5:
    case 11:
    case 12:
    case 13:
      BeginX = at.X;
      BeginY = toInt16(at.Y);
      if (Gereedschap == 2) LijnBezig = 1;
      if (Gereedschap == 3 || Gereedschap == 4) RechthoekBezig = 1;
      break;
    default:
      break;
  }
  // The first press on the sheet takes the magnifier away.
  unloadAll<frmZoom>();
  // Last, so that what the press has drawn is in the snapshot.
  UndoBuffer();
  RedoBuffer();
}

void frmTekenen2::picBlad_MouseMove(const Mouse& at) {
  MuisX = toInt16(at.X);
  MuisY = toInt16(at.Y);
  lblCoordinaten.Caption = "X=" + toText(at.X) + "  Y=" + toText(at.Y);
  if (at.Button == 1 && Gereedschap == 9) spray(at);
  if (Gereedschap == 10 && KunstActief) chaseArtLine(at);
  if (at.Button == 1 && Gereedschap == 1) penMove(at);
  showSample();
  if (Gereedschap == 12 || Gereedschap == 13) stretchOval(at);
  setBrush(Gereedschap == 13);
  if (at.Button == 1 && Gereedschap == 20) StampAt(at.X, at.Y);
  followLineStyle(at);
  if (ZoomOpen) feedMagnifier(at);
}

void frmTekenen2::picBlad_MouseUp(const Mouse& at) {
  if (Gereedschap == 2) {
    LijnBezig = 0;
    if (hasBegun())
      picBlad.Line({BeginX, static_cast<float>(BeginY)}, {at.X, at.Y}, picBlad.ForeColor);
    forgetBegin();
  }
  if (Gereedschap == 3 || Gereedschap == 4) {
    RechthoekBezig = 0;
    if (hasBegun())
      picBlad.Line({BeginX, static_cast<float>(BeginY)}, {at.X, at.Y}, picBlad.ForeColor,
                   Gereedschap == 3 ? B : BF);
    forgetBegin();
  }
  if (Gereedschap == 5) {
    if (hasBegun())
      picBlad.Circle({BeginX, static_cast<float>(BeginY)}, static_cast<float>(Slider2.Value),
                     picBlad.ForeColor);
    forgetBegin();
  }
  if (Gereedschap == 10) KunstActief = 0;
  if (Gereedschap == 11) {
    if (hasBegun()) drawFilledCircle(at);
    forgetBegin();
  }
  if (Gereedschap == 12 || Gereedschap == 13) endOval();
  setBrush(Gereedschap == 13);
}

// The inside of a filled ellipse takes the chosen colour. At any other time the brush is without
// effect but holds the pen's colour, and that is what a pattern is filled in.
void frmTekenen2::setBrush(bool filling) {
  picBlad.FillStyle = filling ? 0 : 1;
  picBlad.FillColor = filling ? Shape1.FillColor : picBlad.ForeColor;
}

void frmTekenen2::forgetBegin() {
  BeginX = 0;
  BeginY = 0;
}

void frmTekenen2::penDown(const Mouse& at) {
  PenX = at.X;
  PenY = at.Y;
  picBlad.Line({at.X, at.Y}, {at.X, at.Y}, picBlad.ForeColor);
}

void frmTekenen2::penMove(const Mouse& at) {
  VorigePenX = PenX;
  VorigePenY = PenY;
  PenX = at.X;
  PenY = at.Y;
  picBlad.Line({static_cast<float>(PenX), static_cast<float>(PenY)},
               {static_cast<float>(VorigePenX), static_cast<float>(VorigePenY)}, picBlad.ForeColor);
}

// The first line or rectangle drag leaves its sample standing above the sheet; it follows nothing.
void frmTekenen2::showSample() {
  if (LijnBezig == 1) {
    Line1.Visible = true;
    Line1.BorderWidth = Slider1.Value;
    Line1.BorderColor = picBlad.ForeColor;
  }
  if (RechthoekBezig == 1) {
    Shape2.Visible = true;
    Shape2.BorderWidth = Slider1.Value;
    Shape2.BorderColor = picBlad.ForeColor;
  }
}

void frmTekenen2::beginOval(const Mouse& at) {
  OvaalX = at.X;
  OvaalY = at.Y;
  ShpOval.Width = 15;
  ShpOval.Height = 15;
  ShpOval.BorderColor = Shape1.FillColor;
  ShpOval.Visible = true;
  ShpOval.DrawMode = 13;
}

// The rubber band grows round the point of the press, also without a button held.
void frmTekenen2::stretchOval(const Mouse& at) {
  OvaalDX = std::abs(at.X - OvaalX);
  OvaalDY = std::abs(at.Y - OvaalY);
  ShpOval.Left = OvaalX - OvaalDX;
  ShpOval.Top = OvaalY - OvaalDY;
  ShpOval.Width = 2 * OvaalDX + 15;
  ShpOval.Height = 2 * OvaalDY + 15;
}

void frmTekenen2::endOval() {
  const float w = ShpOval.Width, h = ShpOval.Height;
  resumeNext([&] { OvaalStraal = toInt16(std::max(w, h) / 2 - 0.5); },
             [&] {
               // 7 makes up for the 15 pixels that the rubber band is larger.
               picBlad.Circle({BeginX + 7, static_cast<float>(BeginY + 7)}, OvaalStraal,
                              picBlad.ForeColor, h / w);
             },
             [&] { ShpOval.Visible = false; });
}

// The flood starts where the button is released: outside the circle it fills the surroundings.
void frmTekenen2::drawFilledCircle(const Mouse& at) {
  picBlad.Circle({BeginX, static_cast<float>(BeginY)}, static_cast<float>(Slider2.Value),
                 picBlad.ForeColor);
  picBlad.FillColor = picBlad.ForeColor;
  picBlad.FillStyle = 0;
  ExtFloodFill(picBlad.hDC(), toInt32(at.X), toInt32(at.Y), picBlad.Point({at.X, at.Y}),
               FloodFillSurface);
  picBlad.FillStyle = 1;
}
