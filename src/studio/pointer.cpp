// The pointer on the sheet. Each handler is one sequence of blocks in a fixed order, every block
// guarded by its own test: a later block may undo what an earlier one set, and that order is how
// the studio behaves.
#include <algorithm>
#include <cmath>

#include "studio/frmTekenen2.h"

using namespace surface;

void frmTekenen2::picBlad_MouseDown(const Mouse& at) {
  if (Gereedschap == 1) PotloodNeer(at);
  if (Gereedschap == 6) Opvullen(at);
  if (Gereedschap == 7) KleurKiezen(at);
  if (Gereedschap == 10) KunstlijnBegin(at);
  if (Gereedschap == 12 && at.Button == 1) OvaalBegin(at);
  if (Gereedschap == 13) {
    if (at.Button == 1) OvaalBegin(at);
    picBlad.FillStyle = at.Button == 1 ? 0 : 1;
    picBlad.FillColor = at.Button == 1 ? Shape1.FillColor : picBlad.ForeColor;
  }
  if (Gereedschap == 19) PatroonVullen(at);
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
  // Last, so that what the press has drawn is in the snapshot.
  UndoBuffer();
  RedoBuffer();
}

void frmTekenen2::picBlad_MouseMove(const Mouse& at) {
  MuisX = toInt16(at.X);
  MuisY = toInt16(at.Y);
  lblCoordinaten.Caption = "X=" + toText(at.X) + "  Y=" + toText(at.Y);
  if (at.Button == 1 && Gereedschap == 9) Spuiten(at);
  if (Gereedschap == 10 && KunstActief) KunstlijnVolg(at);
  if (at.Button == 1 && Gereedschap == 1) PotloodVolg(at);
  ToonMonster();
  if (Gereedschap == 12) OvaalVolg(at);
  if (Gereedschap == 13) {
    OvaalVolg(at);
    picBlad.FillStyle = 0;
    picBlad.FillColor = Shape1.FillColor;
  } else {
    picBlad.FillStyle = 1;
    picBlad.FillColor = picBlad.ForeColor;
  }
  if (at.Button == 1 && Gereedschap == 20) StampAt(at.X, at.Y);
  Lijnstijlen(at);
}

void frmTekenen2::picBlad_MouseUp(const Mouse& at) {
  if (Gereedschap == 2) {
    LijnBezig = 0;
    if (BeginGeldig())
      picBlad.Line({BeginX, static_cast<float>(BeginY)}, {at.X, at.Y}, picBlad.ForeColor);
    WisBegin();
  }
  if (Gereedschap == 3 || Gereedschap == 4) {
    RechthoekBezig = 0;
    if (BeginGeldig())
      picBlad.Line({BeginX, static_cast<float>(BeginY)}, {at.X, at.Y}, picBlad.ForeColor,
                   Gereedschap == 3 ? B : BF);
    WisBegin();
  }
  if (Gereedschap == 5) {
    if (BeginGeldig())
      picBlad.Circle({BeginX, static_cast<float>(BeginY)}, static_cast<float>(Slider2.Value),
                     picBlad.ForeColor);
    WisBegin();
  }
  if (Gereedschap == 10) KunstActief = 0;
  if (Gereedschap == 11) {
    if (BeginGeldig()) GevuldeCirkel(at);
    WisBegin();
  }
  if (Gereedschap == 12) OvaalEinde();
  if (Gereedschap == 13) {
    OvaalEinde();
    picBlad.FillStyle = 0;
    picBlad.FillColor = Shape1.FillColor;
  } else {
    picBlad.FillStyle = 1;
    picBlad.FillColor = picBlad.ForeColor;
  }
}

void frmTekenen2::WisBegin() {
  BeginX = 0;
  BeginY = 0;
}

void frmTekenen2::PotloodNeer(const Mouse& at) {
  PenX = at.X;
  PenY = at.Y;
  picBlad.Line({at.X, at.Y}, {at.X, at.Y}, picBlad.ForeColor);
}

void frmTekenen2::PotloodVolg(const Mouse& at) {
  VorigePenX = PenX;
  VorigePenY = PenY;
  PenX = at.X;
  PenY = at.Y;
  picBlad.Line({static_cast<float>(PenX), static_cast<float>(PenY)},
               {static_cast<float>(VorigePenX), static_cast<float>(VorigePenY)}, picBlad.ForeColor);
}

// The first line or rectangle drag leaves its sample standing above the sheet; it follows nothing.
void frmTekenen2::ToonMonster() {
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

void frmTekenen2::OvaalBegin(const Mouse& at) {
  OvaalX = at.X;
  OvaalY = at.Y;
  ShpOval.Width = 15;
  ShpOval.Height = 15;
  ShpOval.BorderColor = Shape1.FillColor;
  ShpOval.Visible = true;
  ShpOval.DrawMode = 13;
}

// The rubber band grows round the point of the press, also without a button held.
void frmTekenen2::OvaalVolg(const Mouse& at) {
  OvaalDX = std::abs(at.X - OvaalX);
  OvaalDY = std::abs(at.Y - OvaalY);
  ShpOval.Left = OvaalX - OvaalDX;
  ShpOval.Top = OvaalY - OvaalDY;
  ShpOval.Width = 2 * OvaalDX + 15;
  ShpOval.Height = 2 * OvaalDY + 15;
}

void frmTekenen2::OvaalEinde() {
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
void frmTekenen2::GevuldeCirkel(const Mouse& at) {
  picBlad.Circle({BeginX, static_cast<float>(BeginY)}, static_cast<float>(Slider2.Value),
                 picBlad.ForeColor);
  picBlad.FillColor = picBlad.ForeColor;
  picBlad.FillStyle = 0;
  ExtFloodFill(picBlad.hDC(), toInt32(at.X), toInt32(at.Y), picBlad.Point({at.X, at.Y}),
               FloodFillSurface);
  picBlad.FillStyle = 1;
}
