// Colours as the logic knows them, 0x00BBGGRR, and their way to and from the pixels of a bitmap.
#pragma once

#include <algorithm>
#include <cstdint>

#include "surface/raster/bitmap.h"

namespace surface {

/// 0x00BBGGRR; with bit 31 set a system colour; NoColor (-1) is what a position outside a surface
/// has.
using Color = std::int32_t;

inline constexpr Color NoColor = -1;
inline constexpr Color Black = 0;
inline constexpr Color White = 0xFFFFFF;
inline constexpr Color ButtonFace = static_cast<Color>(0x8000000F);

/// Each component 0..255; one above 255 counts as 255, one below 0 as 0.
constexpr Color RGB(int red, int green, int blue) {
  const auto fit = [](int c) { return std::clamp(c, 0, 255); };
  return fit(red) | fit(green) << 8 | fit(blue) << 16;
}

/// The classic table of sixteen colours, n 0..15.
Color QBColor(int n);

/// A system colour's entry in the classic table; any other colour as it is.
Color resolved(Color color);

/// 0x00BBGGRR (or a system colour) to 0xFFRRGGBB.
inline raster::Pixel toPixel(Color color) {
  const auto c = static_cast<std::uint32_t>(color < 0 ? resolved(color) : color);
  return 0xFF000000u | (c & 0xFF) << 16 | (c & 0xFF00) | (c >> 16 & 0xFF);
}
/// 0xFFRRGGBB to 0x00BBGGRR.
inline Color toColor(raster::Pixel pixel) {
  return static_cast<Color>((pixel & 0xFF) << 16 | (pixel & 0xFF00) | (pixel >> 16 & 0xFF));
}

}  // namespace surface
