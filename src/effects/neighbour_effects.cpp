// Effects on a pixel and its neighbours, byte by byte: the four bytes of a pixel go through the
// same sums, and the opaque one comes out opaque or is made so.
#include "effects/neighbour_effects.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <vector>

#include "surface/raster/versions.h"

namespace effects {
namespace {

using raster::Bitmap;
using raster::Pixel;
using Byte = std::uint8_t;
using Sum = std::uint16_t;

constexpr int PixelBytes = sizeof(Pixel);

inline const Byte* bytesOf(const Bitmap& picture, int y) {
  return reinterpret_cast<const Byte*>(picture.row(y));
}
inline Byte* bytesOf(Bitmap& picture, int y) { return reinterpret_cast<Byte*>(picture.row(y)); }

// The bytes first..last-1 of a row are those of its inner pixels.
struct Inner {
  explicit Inner(const Bitmap& picture)
      : first(PixelBytes), last((picture.width() - 1) * PixelBytes) {}
  int first, last;
};

// Two bytes next to each other; taken apart by masks, since to widen bytes takes longer.
using Pair = std::uint16_t;
constexpr int PixelPairs = sizeof(Pixel) / sizeof(Pair);

inline Pair pairAt(const Byte* row, int i) {
  Pair pair;
  std::memcpy(&pair, row + i * sizeof(Pair), sizeof(Pair));
  return pair;
}
inline void setPair(Byte* row, int i, Pair pair) {
  std::memcpy(row + i * sizeof(Pair), &pair, sizeof(Pair));
}

// To the sums of three rows, for the low and the high bytes of the pairs: one row comes, one goes.
inline void slide(const Byte* __restrict coming, const Byte* __restrict going, Sum* __restrict low,
                  Sum* __restrict high, int pairs) {
  for (int i = 0; i < pairs; ++i) {
    const Pair in = pairAt(coming, i), out = pairAt(going, i);
    low[i] = static_cast<Sum>(low[i] + (in & 0xFF) - (out & 0xFF));
    high[i] = static_cast<Sum>(high[i] + (in >> 8) - (out >> 8));
  }
}

// A ninth of a whole number never lies halfway, so adding half of nine rounds to the nearest; 7282
// / 65536 is a ninth closely enough for all sums up to 2295.
inline Sum meanOfThree(const Sum* sums, int i) {
  const auto sum = static_cast<Sum>(sums[i - PixelPairs] + sums[i] + sums[i + PixelPairs] + 4);
  return static_cast<Sum>(std::uint32_t{sum} * 7282 >> 16);
}

inline void setMeans(Byte* __restrict to, const Sum* __restrict low, const Sum* __restrict high,
                     int pairs) {
  for (int i = PixelPairs; i < pairs - PixelPairs; ++i)
    setPair(to, i, static_cast<Pair>(meanOfThree(low, i) | meanOfThree(high, i) << 8));
}

WIDE_VERSIONS
void blur(const Bitmap& from, Bitmap& to) {
  const int pairs = from.width() * PixelPairs;
  const auto length = static_cast<std::size_t>(pairs);
  std::vector<Sum> low(length), high(length);
  const std::vector<Byte> none(length * sizeof(Pair));
  slide(bytesOf(from, 0), none.data(), low.data(), high.data(), pairs);
  slide(bytesOf(from, 1), none.data(), low.data(), high.data(), pairs);
  for (int y = 1; y < from.height() - 1; ++y) {
    slide(bytesOf(from, y + 1), y > 1 ? bytesOf(from, y - 2) : none.data(), low.data(), high.data(),
          pairs);
    setMeans(bytesOf(to, y), low.data(), high.data(), pairs);
  }
}

// Half of 3 * here - there, a half going to the even side, within a byte. All of it fits into
// bytes: half the difference lies round 128.
inline Byte sharpened(Byte here, Byte there) {
  const auto inverse = static_cast<Byte>(~there);
  const auto floored = static_cast<Byte>((here + inverse + 1) >> 1);
  const auto half = static_cast<Byte>(floored + ((here ^ there) & (here ^ floored) & 1));
  const auto more = static_cast<Byte>(std::max<Byte>(half, 128) - 128);
  const auto less = static_cast<Byte>(128 - std::min<Byte>(half, 128));
  const auto room = static_cast<Byte>(~here);
  const auto raised = static_cast<Byte>(here + std::min(more, room));
  return static_cast<Byte>(std::max(raised, less) - less);
}

WIDE_VERSIONS
void sharpen(const Bitmap& from, Bitmap& to) {
  const Inner inner(from);
  for (int y = 1; y < from.height() - 1; ++y) {
    const Byte* __restrict here = bytesOf(from, y);
    const Byte* __restrict upperLeft = bytesOf(from, y - 1) - PixelBytes;
    Byte* __restrict result = bytesOf(to, y);
    for (int i = inner.first; i < inner.last; ++i) result[i] = sharpened(here[i], upperLeft[i]);
  }
}

// How far here - there + 128 lies from zero, 255 at most. One of rise and fall is zero; a fall
// beyond 128 comes back from below.
inline Byte embossed(Byte here, Byte there) {
  const auto rise = static_cast<Byte>(here - std::min(here, there));
  const auto fall = static_cast<Byte>(there - std::min(here, there));
  const auto down = std::min<Byte>(fall, 128), up = std::min<Byte>(rise, 127);
  return static_cast<Byte>(128 + up + fall - 2 * down);
}

WIDE_VERSIONS
void emboss(const Bitmap& from, Bitmap& to) {
  const Inner inner(from);
  // Keeps the pixels opaque.
  const std::vector<Pixel> opaque(static_cast<std::size_t>(from.width()), 0xFF000000);
  const Byte* __restrict mask = reinterpret_cast<const Byte*>(opaque.data());
  for (int y = 1; y < from.height() - 1; ++y) {
    const Byte* __restrict here = bytesOf(from, y);
    const Byte* __restrict lowerRight = bytesOf(from, y + 1) + PixelBytes;
    Byte* __restrict result = bytesOf(to, y);
    for (int i = inner.first; i < inner.last; ++i)
      result[i] = static_cast<Byte>(embossed(here[i], lowerRight[i]) | mask[i]);
  }
}

// Runs an effect on the inner pixels and copies the ring around them.
Bitmap withinRing(const Bitmap& picture, void (*effect)(const Bitmap&, Bitmap&)) {
  const int right = picture.width() - 1, bottom = picture.height() - 1;
  if (right < 2 || bottom < 2) return picture;
  Bitmap result = Bitmap::unfilled(picture.width(), picture.height());
  effect(picture, result);
  std::copy_n(picture.row(0), picture.width(), result.row(0));
  std::copy_n(picture.row(bottom), picture.width(), result.row(bottom));
  for (int y = 1; y < bottom; ++y) {
    result.row(y)[0] = picture.at(0, y);
    result.row(y)[right] = picture.at(right, y);
  }
  return result;
}

}  // namespace

Bitmap blurred(const Bitmap& picture) { return withinRing(picture, blur); }
Bitmap sharpened(const Bitmap& picture) { return withinRing(picture, sharpen); }
Bitmap embossed(const Bitmap& picture) { return withinRing(picture, emboss); }

}  // namespace effects
