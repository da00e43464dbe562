// The pointer on the sheet of a small studio.
#include <algorithm>
#include <cmath>

#include "effects/frmZoom.h"
#include "small/small_studio.h"

using namespace surface;

void SmallStudio::picBlad_MouseDown(const Mouse& at) {
  // After a file dialog the pen draws nothing until here, so that the release which closed the
  // dialog leaves no mark.
  picBlad.DrawStyle = 0;
  if (Gereedschap == 1) {
    PenX = at.X;
    PenY = at.Y;
    picBlad.Line({at.X, at.Y}, {at.X, at.Y}, picBlad.ForeColor);
  }
  if (Gereedschap == 6) fill(at);
  if (Gereedschap == 12 && at.Button == 1) beginOval(at);
  if (Gereedschap == 2 || Gereedschap == 3 || Gereedschap == 12) {
    BeginX = at.X;
    BeginY = toInt16(at.Y);
    if (Gereedschap == 2) LijnBezig = 1;
    if (Gereedschap == 3) RechthoekBezig = 1;
  }
  // A magnifier that the large studio has left open.
  unloadAll<frmZoom>();
  // Last, so that what the press has drawn is in the snapshot.
  UndoBuffer();
}

void SmallStudio::picBlad_MouseMove(const Mouse& at) {
  if (at.Button == 1 && Gereedschap == 9) spray(at);
  if (at.Button == 1 && Gereedschap == 1) followPencil(at);
  // The first drag leaves its sample standing above the sheet; it follows nothing.
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
  if (Gereedschap == 12) followOval(at);
}

void SmallStudio::picBlad_MouseUp(const Mouse& at) {
  if (Gereedschap == 2) {
    LijnBezig = 0;
    endShape(at, BoxFlag::None);
  }
  if (Gereedschap == 3) {
    RechthoekBezig = 0;
    endShape(at, BoxFlag::B);
  }
  if (Gereedschap == 12) endOval();
}

void SmallStudio::endShape(const Mouse& at, BoxFlag flag) {
  if (BeginX != 0 && BeginY != 0)
    picBlad.Line({BeginX, static_cast<float>(BeginY)}, {at.X, at.Y}, picBlad.ForeColor, flag);
  BeginX = 0;
  BeginY = 0;
}

void SmallStudio::fill(const Mouse& at) {
  picBlad.FillColor = picBlad.ForeColor;
  picBlad.FillStyle = 0;
  const Color c = picBlad.Point({at.X, at.Y});
  ExtFloodFill(picBlad.hDC(), toInt32(at.X), toInt32(at.Y), c, FloodFillSurface);
  picBlad.FillStyle = 1;
}

void SmallStudio::spray(const Mouse& at) {
  const auto scatter = [] { return static_cast<float>(Int(Rnd() * 14 - 7)); };
  for (int i = 0; i <= 25; ++i) {
    const float dx = scatter();
    const float dy = scatter();
    picBlad.PSet({at.X + dx, at.Y + dy}, Shape1.FillColor);
  }
}

void SmallStudio::followPencil(const Mouse& at) {
  VorigePenX = PenX;
  VorigePenY = PenY;
  PenX = at.X;
  PenY = at.Y;
  picBlad.Line({static_cast<float>(PenX), static_cast<float>(PenY)},
               {static_cast<float>(VorigePenX), static_cast<float>(VorigePenY)}, picBlad.ForeColor);
}

void SmallStudio::beginOval(const Mouse& at) {
  OvaalX = at.X;
  OvaalY = at.Y;
  ShpOval.Width = 15;
  ShpOval.Height = 15;
  ShpOval.BorderColor = Shape1.FillColor;
  ShpOval.Visible = true;
  ShpOval.DrawMode = 13;
}

// The rubber band grows round the point of the press, also without a button held.
void SmallStudio::followOval(const Mouse& at) {
  OvaalDX = std::abs(at.X - OvaalX);
  OvaalDY = std::abs(at.Y - OvaalY);
  ShpOval.Left = OvaalX - OvaalDX;
  ShpOval.Top = OvaalY - OvaalDY;
  ShpOval.Width = 2 * OvaalDX + 15;
  ShpOval.Height = 2 * OvaalDY + 15;
}

void SmallStudio::endOval() {
  const float w = ShpOval.Width, h = ShpOval.Height;
  resumeNext([&] { OvaalStraal = toInt16(std::max(w, h) / 2 - 0.5); },
             [&] {
               // 7 makes up for the 15 pixels that the rubber band is larger.
               picBlad.Circle({BeginX + 7, static_cast<float>(BeginY + 7)}, OvaalStraal,
                              picBlad.ForeColor, h / w);
             },
             [&] { ShpOval.Visible = false; });
}
