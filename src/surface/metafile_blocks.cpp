// Text and bitmaps of a metafile.
#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "surface/host.h"
#include "surface/metafile_player.h"

namespace surface {
namespace {

// The fields of the ternary operation's number that say which it is.
unsigned operationOf(std::uint32_t number) { return number >> 16 & 0xFF; }
bool usesPicture(unsigned operation) { return ((operation >> 2 ^ operation) & 0x33) != 0; }

constexpr std::int64_t MostBitmapPixels = 4 << 20;
constexpr double MostTextPixels = 8 << 20;

// Western letters of one byte as UTF-8. Of those above 0x80 the first 32 stand apart.
std::string toUtf8(Bytes letters) {
  static constexpr char16_t apart[] = {
      0x20AC, 0x20,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
      0x2039, 0x0152, 0x20,   0x017D, 0x20,   0x20,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
      0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x20,   0x017E, 0x0178};
  std::string text;
  for (const std::uint8_t letter : letters) {
    const unsigned code = letter >= 0x80 && letter < 0xA0 ? apart[letter - 0x80] : letter;
    if (code < 0x20) continue;
    if (code < 0x80) {
      text += static_cast<char>(code);
    } else if (code < 0x800) {
      text += static_cast<char>(0xC0 | code >> 6);
      text += static_cast<char>(0x80 | (code & 0x3F));
    } else {
      text += static_cast<char>(0xE0 | code >> 12);
      text += static_cast<char>(0x80 | (code >> 6 & 0x3F));
      text += static_cast<char>(0x80 | (code & 0x3F));
    }
  }
  return text;
}

}  // namespace

void MetafilePlayer::textOut(const Record& r) {
  const std::size_t length = r.u16(0), words = (length + 1) / 2;
  const Bytes letters = r.bytes(1, length);
  drawText({r.i16(2 + words), r.i16(1 + words)}, letters);
}

void MetafilePlayer::extTextOut(const Record& r) {
  constexpr unsigned Opaque = 2, Clipped = 4;
  const std::size_t length = r.u16(2);
  const unsigned options = r.u16(3);
  const bool boxed = (options & (Opaque | Clipped)) != 0;
  if (options & Opaque) {
    const raster::Spot a = toPixels(r.i16(4), r.i16(5)), b = toPixels(r.i16(6), r.i16(7));
    canvas_.combine(0xF0, {a.x, a.y, b.x - a.x, b.y - a.y}, nullptr, {}, state_.ground);
  }
  drawText({r.i16(1), r.i16(0)}, r.bytes(boxed ? 8 : 4, length));
}

void MetafilePlayer::drawText(Pair at, Bytes letters) {
  constexpr unsigned FromPosition = 1, Right = 2, Centre = 6, Bottom = 8, Baseline = 24;
  constexpr int DefaultHeight = 12;
  constexpr double PointsPerPixel = 0.75, LetterOfLine = 0.87;
  const Lettering& face = state_.lettering;
  // Slanting lines of text are unknown.
  if (letters.empty() || face.escapement != 0 || !host().rasterText) return;
  double pixels = std::abs(face.height * scale().y);
  if (face.height > 0) pixels *= LetterOfLine;
  if (face.height == 0) pixels = DefaultHeight;
  const double area = (static_cast<double>(letters.size()) + 3) * pixels * 4 * pixels;
  if (pixels < 1 || area > MostTextPixels) return;
  canvas_.spend(static_cast<std::int64_t>(area));
  const TextMask mask = host().rasterText({face.name, static_cast<float>(pixels * PointsPerPixel),
                                           face.bold, face.italic, face.underline, face.strikethru},
                                          toUtf8(letters));
  if (state_.align & FromPosition) at = state_.at;
  const raster::Spot origin = toPixels(at.x, at.y);
  const int width = static_cast<int>(mask.advance);
  int x = origin.x, y = origin.y;
  if ((state_.align & Centre) == Centre)
    x -= width / 2;
  else if (state_.align & Right)
    x -= width;
  if ((state_.align & Baseline) == Baseline)
    y -= mask.ascent;
  else if (state_.align & Bottom)
    y -= mask.lineHeight;
  if (state_.opaque)
    canvas_.combine(0xF0, {x, y, width, mask.lineHeight}, nullptr, {}, state_.ground);
  canvas_.paint(13, [&](raster::Target onto) { return paintMask(onto, mask, x, y, state_.ink); });
}

void MetafilePlayer::patternBlock(const Record& r) {
  const unsigned operation = operationOf(r.u32(0));
  const MetafileCanvas::Block to = blockOf(r.i16(5), r.i16(4), r.i16(3), r.i16(2));
  if (usesPicture(operation) || state_.brush.style == raster::BrushStyle::Null) return;
  canvas_.combine(operation, to, nullptr, {}, state_.brush.color);
}

MetafileCanvas::Block MetafilePlayer::blockOf(int x, int y, int width, int height) const {
  const raster::Spot a = toPixels(x, y), b = toPixels(x + width, y + height);
  return {a.x, a.y, b.x - a.x, b.y - a.y};
}

// Three calls that differ in what stands in front of the bitmap. Without one the operation works on
// what is there.
void MetafilePlayer::bitmapBlock(const Record& r) {
  constexpr unsigned Unscaled = 0x0940, ScaledWithColours = 0x0F43, OwnColours = 0;
  const unsigned operation = operationOf(r.u32(0));
  std::size_t word = 2;
  if (r.function() == ScaledWithColours && r.u16(word++) != OwnColours) return;
  const bool scaled = r.function() != Unscaled;
  // The function's high byte is the number of words without a bitmap.
  const bool alone = r.function() != ScaledWithColours && r.words() == r.function() >> 8;
  MetafileCanvas::Block from;
  if (scaled) {
    from.height = r.i16(word++);
    from.width = r.i16(word++);
  }
  from.y = r.i16(word++);
  from.x = r.i16(word++);
  if (alone) ++word;
  const int height = r.i16(word), width = r.i16(word + 1);
  const MetafileCanvas::Block to = blockOf(r.i16(word + 3), r.i16(word + 2), width, height);
  if (!scaled) {
    from.width = width;
    from.height = height;
  }
  if (alone || !usesPicture(operation)) {
    if (!usesPicture(operation)) canvas_.combine(operation, to, nullptr, {}, state_.brush.color);
    return;
  }
  canvas_.spend(static_cast<std::int64_t>(r.words()));
  const auto picture = readMetafileBitmap(r.bytes(word + 4), MostBitmapPixels);
  if (!picture) return;
  canvas_.spend(std::int64_t{picture->width()} * picture->height());
  canvas_.combine(operation, to, &*picture, from, state_.brush.color);
}

void MetafilePlayer::bitmapPart(const Record& r) {
  constexpr unsigned OwnColours = 0;
  constexpr unsigned SourceCopy = 0xCC;
  const unsigned colours = r.u16(0);
  const MetafileCanvas::Block from{r.i16(4), r.i16(3), r.i16(6), r.i16(5)};
  const raster::Spot at = toPixels(r.i16(8), r.i16(7));
  if (colours != OwnColours) return;
  const auto picture = readMetafileBitmap(r.bytes(9), MostBitmapPixels);
  if (!picture) return;
  canvas_.spend(std::int64_t{picture->width()} * picture->height());
  canvas_.combine(SourceCopy, {at.x, at.y, from.width, from.height}, &*picture, from, 0);
}

}  // namespace surface
