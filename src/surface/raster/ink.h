// How a pixel changes: the sixteen raster operations brought to one form, and the spans of pixels
// that every shape is painted with. For the files of this folder only.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstring>

#include "surface/raster/draw.h"

namespace raster {

/// For products of two coordinates and their fractions.
using Wide = std::int64_t;

/// a / b rounded down or up; b > 0.
inline Wide floorDiv(Wide a, Wide b) { return a / b - (a % b < 0 ? 1 : 0); }
inline Wide ceilDiv(Wide a, Wide b) { return a / b + (a % b > 0 ? 1 : 0); }

constexpr Pixel kOpaque = 0xFF000000;
constexpr Pixel kColorBits = 0x00FFFFFF;
constexpr int kCopy = 13;  ///< the raster operation that paints the pen's colour

/// A raster operation with a fixed colour. Bit by bit it can only clear, set, keep or invert what
/// is there, so `(pixel & keep) ^ flip` says all sixteen of them, the top byte stays 0xFF, and a
/// shape needs one loop and not sixteen.
struct Ink {
  Pixel keep;
  Pixel flip;

  /// True if the old pixel does not matter: spans are plain fills.
  bool covers() const { return keep == 0; }
  /// True if nothing would change.
  bool leaves() const { return keep == kColorBits && flip == kOpaque; }
  Pixel over(Pixel old) const { return (old & keep) ^ flip; }
};

/// The ink of raster operation 1..16: bit 2P + D of rop - 1 is the result for pen bit P on bit D.
inline Ink inkOf(int rop, Pixel color) {
  if (rop == kCopy) return {0, color | kOpaque};
  const unsigned table = static_cast<unsigned>(rop - 1);
  const auto resultOn = [&](unsigned old) {
    const Pixel whereSet = (table >> (2 + old)) & 1 ? color : 0;
    const Pixel whereClear = (table >> old) & 1 ? ~color : 0;
    return whereSet | whereClear;
  };
  const Pixel onClear = resultOn(0), onSet = resultOn(1);
  return {(onClear ^ onSet) & kColorBits, (onClear & kColorBits) | kOpaque};
}

/// Four pixels of one colour: the widest store that every x86-64 has.
struct Quad {
  Pixel pixels[4];
};

/// Stores `kQuads` quads side by side.
template <int kQuads>
inline void storeQuads(Pixel* p, const Quad& quad) {
  for (int i = 0; i < kQuads; ++i) std::memcpy(p + 4 * i, &quad, sizeof quad);
}

/// Paints `count` pixels (0 or more) in one colour. Stores may overlap: painting some pixels twice
/// is cheaper than a branch on the length of every span, which nothing foretells.
inline void fillPixels(Pixel* p, int count, Pixel color) {
  const Quad quad{{color, color, color, color}};
  if (count >= 16) {
    Pixel* const last = p + count - 16;
    for (; p < last; p += 16) storeQuads<4>(p, quad);
    storeQuads<4>(last, quad);
  } else if (count >= 8) {
    storeQuads<2>(p, quad);
    storeQuads<2>(p + count - 8, quad);
  } else if (count >= 4) {
    storeQuads<1>(p, quad);
    storeQuads<1>(p + count - 4, quad);
  } else if (count > 0) {
    p[0] = p[count / 2] = p[count - 1] = color;
  }
}

/// Paints `count` pixels (0 or more).
inline void paintPixels(Pixel* p, int count, Ink ink) {
  if (ink.covers()) return fillPixels(p, count, ink.flip);
  for (Pixel* const end = p + count; p < end; ++p) *p = ink.over(*p);
}

/// The hatch line pixels of row y: bit b stands for the columns with x mod 8 = b.
inline unsigned hatchBits(BrushStyle style, int y) {
  const unsigned phase = static_cast<unsigned>(y) & 7;
  const unsigned horizontal = phase == 3 ? 0xFF : 0, vertical = 1u << 4;
  const unsigned falling = 1u << phase, rising = 1u << (7 - phase);
  switch (style) {
    case BrushStyle::Null:
      return 0;
    case BrushStyle::Solid:
      return 0xFF;
    case BrushStyle::Horizontal:
      return horizontal;
    case BrushStyle::Vertical:
      return vertical;
    case BrushStyle::ForwardDiagonal:
      return falling;
    case BrushStyle::BackwardDiagonal:
      return rising;
    case BrushStyle::Cross:
      return horizontal | vertical;
    case BrushStyle::DiagonalCross:
      return falling | rising;
  }
  return 0;
}

/// A bitmap together with what is painted on it. Spans clip themselves to the columns; rows must
/// lie inside.
class SpanPainter {
 public:
  SpanPainter(Bitmap& bitmap, Ink ink, BrushStyle style = BrushStyle::Solid)
      : bitmap_(bitmap), ink_(ink), style_(ink.leaves() ? BrushStyle::Null : style) {}
  SpanPainter(const Target& target, const Pen& pen)
      : SpanPainter(target.bitmap, inkOf(target.rop, pen.color)) {}
  SpanPainter(const Target& target, const Brush& brush)
      : SpanPainter(target.bitmap, inkOf(target.rop, brush.color), brush.style) {}

  bool idle() const { return style_ == BrushStyle::Null; }
  /// True if spans are plain fills in the colour ink().flip.
  bool fillsPlainly() const { return style_ == BrushStyle::Solid && ink_.covers(); }
  Ink ink() const { return ink_; }

  /// Paints the columns left..right of row y, both included; nothing if right < left.
  void span(int y, int left, int right) const {
    left = std::max(left, 0);
    right = std::min(right, bitmap_.width() - 1);
    if (left > right) return;
    if (style_ == BrushStyle::Solid) {
      paintPixels(bitmap_.row(y) + left, right - left + 1, ink_);
    } else {
      hatch(y, left, right);
    }
  }

  /// The same less the columns holeLeft..holeRight.
  void spanAround(int y, int left, int right, int holeLeft, int holeRight) const {
    if (holeLeft > holeRight) return span(y, left, right);
    span(y, left, holeLeft - 1);
    span(y, holeRight + 1, right);
  }

 private:
  void hatch(int y, int left, int right) const {
    const unsigned bits = hatchBits(style_, y);
    if (bits == 0xFF) return paintPixels(bitmap_.row(y) + left, right - left + 1, ink_);
    Pixel* const row = bitmap_.row(y);
    for (int bit = 0; bit < 8; ++bit) {
      if (((bits >> bit) & 1) == 0) continue;
      for (int x = left + ((bit - left) & 7); x <= right; x += 8) row[x] = ink_.over(row[x]);
    }
  }

  Bitmap& bitmap_;
  Ink ink_;
  BrushStyle style_;
};

/// The rows first..last, both included, that lie inside the bitmap; empty if last < first.
struct Rows {
  int first, last;
};

inline Rows visibleRows(const Bitmap& bitmap, int top, int bottom) {
  return {std::max(top, 0), std::min(bottom, bitmap.height() - 1)};
}

/// What a shape within left..right and top..bottom (both included) may have changed.
inline Rect changed(const Bitmap& bitmap, int left, int top, int right, int bottom) {
  const Rect area{std::max(left, 0), std::max(top, 0), std::min(right + 1, bitmap.width()),
                  std::min(bottom + 1, bitmap.height())};
  return area.empty() ? Rect{} : area;
}

/// A pen that paints a line one pixel wide, with or without gaps.
inline bool isThin(const Pen& pen) { return pen.style != PenStyle::Null && pen.width <= 1; }
inline bool isWide(const Pen& pen) { return pen.style != PenStyle::Null && pen.width > 1; }

}  // namespace raster
