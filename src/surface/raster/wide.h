// Shapes of a wide pen: discs and capsules, exact to the pixel, as rows of columns.
#pragma once

#include <array>

#include "surface/raster/ink.h"

namespace raster {

constexpr int kWidestPen = 200;

/// A wide pen of an even width has no middle pixel: its centre lies half a pixel up and left.
constexpr int isEven(int width) { return width % 2 == 0 ? 1 : 0; }

/// The discs of all pen widths. Row j = 0..width-1 of the disc round column c covers the columns
/// c - reach .. c + reach - isEven(width): all pixels with their centre within width / 2 of the
/// disc's centre.
class Discs {
 public:
  constexpr Discs() {
    for (int width = 1; width <= kWidestPen; ++width) {
      int reach = 0;
      for (int j = 0; j < width; ++j) {
        // Twice the distances, so that everything is whole; j and reach move on a circle, so the
        // next reach is found from the last.
        const int dy = 2 * j - (width - 1);
        while (inside(width, reach + 1, dy)) ++reach;
        while (reach > 0 && !inside(width, reach, dy)) --reach;
        reaches_[start(width) + j] = static_cast<std::uint8_t>(reach);
      }
    }
  }

  /// The reaches of the rows 0..width-1.
  const std::uint8_t* of(int width) const { return reaches_.data() + start(width); }

 private:
  static constexpr int start(int width) { return width * (width - 1) / 2; }
  static constexpr bool inside(int width, int reach, int dy) {
    const int dx = 2 * reach - isEven(width);
    return dx * dx + dy * dy <= width * width;
  }

  std::array<std::uint8_t, kWidestPen*(kWidestPen + 1) / 2> reaches_{};
};

extern const Discs discs;

/// Paints all pixels within width / 2 of the segment, each once. Gives what may have changed.
Rect capsule(const SpanPainter& painter, Bitmap& bitmap, int width, int x1, int y1, int x2, int y2);

}  // namespace raster
