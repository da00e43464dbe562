// Effects on a pixel and its neighbours, byte by byte: the four bytes of a pixel go through the
// same sums, and the opaque one comes out opaque or is made so.
#include "effects/neighbour_effects.h"

#include <algorithm>
#include <array>
#include <cstdint>
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

inline void sumTriples(const Byte* __restrict row, Sum* __restrict sums, Inner inner) {
  for (int i = inner.first; i < inner.last; ++i)
    sums[i] = static_cast<Sum>(row[i - PixelBytes] + row[i] + row[i + PixelBytes]);
}

// A ninth of a whole number never lies halfway, so adding half of nine rounds to the nearest; 7282
// / 65536 is a ninth closely enough for all sums up to 2295.
inline void meanOfTriples(const Sum* __restrict above, const Sum* __restrict here,
                          const Sum* __restrict below, Byte* __restrict to, Inner inner) {
  for (int i = inner.first; i < inner.last; ++i) {
    const auto sum = static_cast<Sum>(above[i] + here[i] + below[i] + 4);
    to[i] = static_cast<Byte>(std::uint32_t{sum} * 7282 >> 16);
  }
}

WIDE_VERSIONS
void blur(const Bitmap& from, Bitmap& to) {
  const Inner inner(from);
  const auto length = static_cast<std::size_t>(from.width()) * PixelBytes;
  std::vector<Sum> memory(3 * length);
  // The sums of three rows, each taken once.
  std::array<Sum*, 3> sums = {memory.data(), memory.data() + length, memory.data() + 2 * length};
  sumTriples(bytesOf(from, 0), sums[0], inner);
  sumTriples(bytesOf(from, 1), sums[1], inner);
  for (int y = 1; y < from.height() - 1; ++y) {
    sumTriples(bytesOf(from, y + 1), sums[2], inner);
    meanOfTriples(sums[0], sums[1], sums[2], bytesOf(to, y), inner);
    std::rotate(sums.begin(), sums.begin() + 1, sums.end());
  }
}

WIDE_VERSIONS
void sharpen(const Bitmap& from, Bitmap& to) {
  const Inner inner(from);
  for (int y = 1; y < from.height() - 1; ++y) {
    const Byte* __restrict here = bytesOf(from, y);
    const Byte* __restrict upperLeft = bytesOf(from, y - 1) - PixelBytes;
    Byte* __restrict result = bytesOf(to, y);
    for (int i = inner.first; i < inner.last; ++i) {
      // Twice the new value, whole; an odd one goes to the even side.
      const auto twice = static_cast<std::int16_t>(3 * here[i] - upperLeft[i]);
      const auto bounded = std::clamp<std::int16_t>(twice, 0, 510);
      result[i] = static_cast<Byte>((bounded + ((bounded >> 1) & 1)) >> 1);
    }
  }
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
    for (int i = inner.first; i < inner.last; ++i) {
      const auto slope = static_cast<std::int16_t>(here[i] - lowerRight[i] + 128);
      const auto steep = static_cast<std::int16_t>(slope < 0 ? -slope : slope);
      result[i] = static_cast<Byte>(std::min<std::int16_t>(steep, 255) | mask[i]);
    }
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
