// Lines one pixel wide, as the other shapes of this folder use them.
#pragma once

#include "surface/raster/ink.h"

namespace raster {

inline bool hasGaps(PenStyle style) { return style != PenStyle::Solid && style != PenStyle::Null; }

/// Where a pen with gaps paints, counted in pixels along the outline. All patterns of the platform
/// come round after 24 pixels, so one word says each: bit i stands for pixel i.
class Pattern {
 public:
  explicit constexpr Pattern(PenStyle style) : bits_(bitsOf(style)) {}
  constexpr bool isOn(std::int64_t step) const { return (bits_ >> step % kLength & 1) != 0; }

  /// Begins `steps` pixels further on.
  constexpr void turn(std::int64_t steps) {
    const auto by = static_cast<int>(steps % kLength);
    bits_ = (bits_ >> by | bits_ << (kLength - by)) & run(0, kLength);
  }
  /// Whether the pen paints its next pixel; it goes on to the one behind it.
  constexpr bool next() {
    const std::uint32_t on = bits_ & 1;
    bits_ = bits_ >> 1 | on << (kLength - 1);
    return on != 0;
  }

 private:
  static constexpr int kLength = 24;
  /// `count` pixels from `first` on.
  static constexpr std::uint32_t run(int first, int count) { return ((1u << count) - 1) << first; }
  static constexpr std::uint32_t bitsOf(PenStyle style) {
    switch (style) {
      case PenStyle::Dashed:
        return run(0, 18);
      case PenStyle::Dotted:
        return run(0, 3) | run(6, 3) | run(12, 3) | run(18, 3);
      case PenStyle::DashDot:
        return run(0, 9) | run(15, 3);
      case PenStyle::DashDotDot:
        return run(0, 9) | run(12, 3) | run(18, 3);
      default:
        return run(0, kLength);
    }
  }

  std::uint32_t bits_;
};

/// Paints the pixels from (x1, y1) up to but without (x2, y2) in one colour; nothing if the points
/// are equal. Gives what may have changed.
Rect copyThinLine(Bitmap& bitmap, Pixel color, int x1, int y1, int x2, int y2);

/// The same with any ink.
void solidThinLine(Bitmap& bitmap, Ink ink, int x1, int y1, int x2, int y2);

/// The same with gaps. `step` counts the pixels of the outline before this line, visible or not.
void brokenThinLine(Bitmap& bitmap, Ink ink, Pattern pattern, int x1, int y1, int x2, int y2,
                    std::int64_t step);

}  // namespace raster
