// Effects that change each pixel by itself. The pixels of a bitmap lie without gaps, so each loop
// runs over all rows at once.
#include "effects/point_effects.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstddef>
#include <optional>

#include "surface/numbers.h"
#include "surface/raster/versions.h"

namespace effects {
namespace {

using raster::Bitmap;
using raster::Pixel;

constexpr Pixel Opaque = 0xFF000000;
// Adding it to a float from 0 to 2^22 leaves the nearest whole number (ties to even) in the low
// bits.
constexpr float Rounder = 0x1.8p23f;

inline Pixel roundedBits(float value) {
  return std::bit_cast<Pixel>(value + Rounder) - std::bit_cast<Pixel>(Rounder);
}

inline std::size_t pixelsOf(const Bitmap& picture) {
  return static_cast<std::size_t>(picture.width()) * static_cast<std::size_t>(picture.height());
}

WIDE_VERSIONS
void invert(const Pixel* __restrict from, Pixel* __restrict to, std::size_t count) {
  for (std::size_t i = 0; i < count; ++i) to[i] = from[i] ^ ~Opaque;
}

// What a factor makes of the values 0..255.
using Table = std::array<std::uint8_t, 256>;

Table tableOf(double factor) {
  Table table;
  for (int c = 0; c < 256; ++c)
    table[static_cast<std::size_t>(c)] =
        static_cast<std::uint8_t>(std::min(surface::roundEven(std::abs(factor * c)), 255.0));
  return table;
}

inline Pixel multiplied(Pixel channel, float factor) {
  return roundedBits(std::min(static_cast<float>(static_cast<int>(channel)) * factor, 255.0f));
}

// A single-precision factor with which the quick product gives exactly the table's values. The
// nearest one may round some products onto a half that is none; its neighbours do not.
std::optional<float> quickFactor(double factor, const Table& table) {
  const auto gives = [&](float candidate) {
    for (Pixel c = 0; c < 256; ++c)
      if (multiplied(c, candidate) != table[c]) return false;
    return true;
  };
  const float nearest = static_cast<float>(factor);
  float above = nearest, below = nearest;
  for (int step = 0; step < 8; ++step) {
    if (gives(above)) return above;
    if (gives(below)) return below;
    above = std::nextafter(above, 3.0f);
    below = std::nextafter(below, 0.0f);
  }
  return {};
}

WIDE_VERSIONS
void multiply(const Pixel* __restrict from, Pixel* __restrict to, std::size_t count, float red,
              float green, float blue) {
  for (std::size_t i = 0; i < count; ++i) {
    const Pixel p = from[i];
    to[i] = Opaque | multiplied(p >> 16 & 0xFF, red) << 16 | multiplied(p >> 8 & 0xFF, green) << 8 |
            multiplied(p & 0xFF, blue);
  }
}

void lookUp(const Pixel* from, Pixel* to, std::size_t count, const Table& red, const Table& green,
            const Table& blue) {
  for (std::size_t i = 0; i < count; ++i) {
    const Pixel p = from[i];
    to[i] = Opaque | Pixel{red[p >> 16 & 0xFF]} << 16 | Pixel{green[p >> 8 & 0xFF]} << 8 |
            blue[p & 0xFF];
  }
}

// The first two products are whole numbers below 2^24 over a power of two, exact in single
// precision. The third is not: a factor one bit below 1/256 keeps it from reaching a half that the
// exact one stays below, and brings no green and blue to another pixel.
WIDE_VERSIONS
void chain(const Pixel* __restrict from, Pixel* __restrict to, std::size_t count) {
  for (std::size_t i = 0; i < count; ++i) {
    const float g = static_cast<float>(static_cast<int>(from[i] >> 8 & 0xFF));
    const float b = static_cast<float>(static_cast<int>(from[i] & 0xFF));
    const float newRed = b * g * 0x1p-8f;
    const float newGreen = newRed * b * 0x1p-8f;
    const float newBlue = newGreen * newRed * 0x1.fffffep-9f;
    to[i] = Opaque | roundedBits(newRed) << 16 | roundedBits(newGreen) << 8 | roundedBits(newBlue);
  }
}

}  // namespace

Bitmap inverted(const Bitmap& picture) {
  Bitmap result = Bitmap::unfilled(picture.width(), picture.height());
  invert(picture.row(0), result.row(0), pixelsOf(picture));
  return result;
}

Bitmap scaled(const Bitmap& picture, const Factors& factors) {
  const Table red = tableOf(factors.red), green = tableOf(factors.green),
              blue = tableOf(factors.blue);
  const auto quickRed = quickFactor(factors.red, red),
             quickGreen = quickFactor(factors.green, green),
             quickBlue = quickFactor(factors.blue, blue);
  Bitmap result = Bitmap::unfilled(picture.width(), picture.height());
  if (quickRed && quickGreen && quickBlue)
    multiply(picture.row(0), result.row(0), pixelsOf(picture), *quickRed, *quickGreen, *quickBlue);
  else
    lookUp(picture.row(0), result.row(0), pixelsOf(picture), red, green, blue);
  return result;
}

Bitmap chained(const Bitmap& picture) {
  Bitmap result = Bitmap::unfilled(picture.width(), picture.height());
  chain(picture.row(0), result.row(0), pixelsOf(picture));
  return result;
}

}  // namespace effects
