// What a moving pointer leaves besides plain lines: line styles, spray, art line, stamps.
#include "studio/frmTekenen2.h"
#include "studio/spuitbus.h"
#include "studio/stempels.h"

using namespace surface;

namespace {

Color randomColor() {
  const auto component = [] { return static_cast<int>(roundEven(Rnd() * 255)); };
  const int red = component();
  const int green = component();
  const int blue = component();
  return RGB(red, green, blue);
}

}  // namespace

void frmTekenen2::followLineStyle(const Mouse& at) {
  if (cboStijl.Text() == "Kleurrijk") picBlad.ForeColor = randomColor();
  if (cboStijl.Text() == "Kraaltjes" && at.Button == 1) {
    Shape1.FillColor = randomColor();
    picBlad.Circle({at.X, at.Y}, 10, Shape1.FillColor);
    LaatsteX = toInt32(at.X);
    LaatsteY = toInt32(at.Y);
  }
  if (cboStijl.Text() == "Ritssluiting" && at.Button == 1) {
    Shape1.FillColor = randomColor();
    picBlad.Line({at.X - 10, at.Y - 10}, {at.X + 10, at.Y + 10}, Shape1.FillColor);
    LaatsteX = toInt32(at.X);
    LaatsteY = toInt32(at.Y);
  }
}

void frmTekenen2::spray(const Mouse& at) { spuit(picBlad, {at.X, at.Y}, Shape1.FillColor); }

void frmTekenen2::beginArtLine(const Mouse& at) {
  KunstActief = -1;
  const float red = Rnd() * 255;
  const float green = Rnd() * 255;
  // Only the blue loses its fraction.
  const std::int16_t blue = toInt16(Rnd() * 255);
  kunst.start(red, green, blue, at.X / 15, at.Y / 15);
}

void frmTekenen2::chaseArtLine(const Mouse& at) { kunst.chase(picBlad, at.X, at.Y); }

void frmTekenen2::StampAt(float X, float Y) {
  stempel(picBlad, Borstel, {X, Y}, Shape1.FillColor, Slider1.Value, Teller);
}
