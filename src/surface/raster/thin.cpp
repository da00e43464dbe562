// Lines one pixel wide: which pixels they hit, and how they are clipped without moving a pixel.
#include "surface/raster/thin.h"

namespace raster {
namespace {

constexpr int kBits = 40;
constexpr Wide kOne = Wide{1} << kBits, kNudge = Wide{1} << 20;

/// kOne / length for the pieces of a freehand stroke: there a division would take longer than the
/// pixels.
struct Reciprocals {
  static constexpr int kCount = 64;
  Wide of[kCount];

  constexpr Reciprocals() : of{} {
    for (int length = 1; length < kCount; ++length) of[length] = (kOne + length - 1) / length;
  }
};
constexpr Reciprocals kReciprocals;

/// Picks without a branch, since nothing foretells the octant of a line. `mask` is 0 or -1.
template <class T>
T pick(T mask, T ifSet, T ifClear) {
  return ifClear ^ ((ifSet ^ ifClear) & mask);
}

/// The pixels first..last of a line, both included.
struct Part {
  Wide first, last;
};

/// A line as steps along its longer axis. At step i it stands at height start + i slope over its
/// first pixel, in units of 2^-40; the whole part of that counts the steps along the shorter axis.
///
/// The true height is i d / n + 1/2 for the extents n >= d, both below 2^17; unless it is whole, it
/// is at least 1 / 2n > 2^-18 away from a whole number. The slope is rounded up, in all by less
/// than 2^-22. So a nudge of 2^-20 outweighs all rounding and moves nothing but the ties: those go
/// to the smaller coordinate, whatever the direction.
class LineCourse {
 public:
  LineCourse(int x1, int y1, int x2, int y2) {
    const int dx = x2 - x1, dy = y2 - y1;
    const int left = dx >> 31, up = dy >> 31;
    xSign_ = left | 1;
    ySign_ = up | 1;
    const int width = (dx ^ left) - left, height = (dy ^ up) - up;
    steep_ = (width - height) >> 31;
    length = pick(steep_, height, width);
    rise = pick(steep_, width, height);
    const int minorSign = pick(steep_, xSign_, ySign_);
    climbs = minorSign > 0;
    start = kOne / 2 - minorSign * kNudge;
    if (length < Reciprocals::kCount) {
      slope = rise * kReciprocals.of[length] + 1;
    } else {
      slope = rise * kOne / length + 1;
    }
  }

  /// The steps whose pixel lies on the bitmap.
  Part visible(const Bitmap& bitmap, int x1, int y1) const {
    Part part{0, length - 1};
    if (steep_ != 0) {
      clipLonger(y1, ySign_, bitmap.height(), part);
      clipShorter(x1, xSign_, bitmap.width(), part);
    } else {
      clipLonger(x1, xSign_, bitmap.width(), part);
      clipShorter(y1, ySign_, bitmap.height(), part);
    }
    return part;
  }

  /// The way in memory from pixel to pixel along the longer axis, and for a step aside.
  std::ptrdiff_t along(std::ptrdiff_t stride) const {
    return pick<std::ptrdiff_t>(steep_, ySign_ * stride, xSign_);
  }
  std::ptrdiff_t aside(std::ptrdiff_t stride) const {
    return pick<std::ptrdiff_t>(steep_, xSign_, ySign_ * stride);
  }

  bool isFlat() const { return steep_ == 0 && 2 * rise <= length; }

  int length, rise;  ///< extents of the longer and the shorter axis
  bool climbs;       ///< the coordinate of the shorter axis increases
  Wide start, slope;

 private:
  static void clipLonger(int from, int sign, int size, Part& part) {
    const int low = sign > 0 ? -from : from - (size - 1);
    part.first = std::max<Wide>(part.first, low);
    part.last = std::min<Wide>(part.last, low + size - 1);
  }

  void clipShorter(int from, int sign, int size, Part& part) const {
    const Wide low = sign > 0 ? -from : from - (size - 1);
    part.first = std::max(part.first, ceilDiv(low * kOne - start, slope));
    part.last = std::min(part.last, floorDiv((low + size) * kOne - start - 1, slope));
  }

  int xSign_, ySign_, steep_;
};

/// Calls plot(pixel, i) for the steps of a part in order.
template <class Plot>
inline void walk(Bitmap& bitmap, const LineCourse& course, const Part& part, int x1, int y1,
                 Plot plot) {
  const std::ptrdiff_t stride = bitmap.width();
  const std::ptrdiff_t along = course.along(stride), aside = course.aside(stride);
  const Wide slope = course.slope;
  Wide height = course.start + part.first * slope;
  std::ptrdiff_t offset = y1 * stride + x1 + part.first * along;
  Pixel* const pixels = bitmap.row(0);
  for (Wide i = part.first; i <= part.last; ++i) {
    plot(pixels + (offset + (height >> kBits) * aside), i);
    offset += along;
    height += slope;
  }
}

/// The same for the visible pixels of a line.
template <class Plot>
inline void draw(Bitmap& bitmap, int x1, int y1, int x2, int y2, Plot plot) {
  if (x1 == x2 && y1 == y2) return;
  const LineCourse course(x1, y1, x2, y2);
  const Part part = course.visible(bitmap, x1, y1);
  if (part.first <= part.last) walk(bitmap, course, part, x1, y1, plot);
}

/// A line that lies on the bitmap in one colour: walk() with nothing but what the pixels need.
template <bool kFetch>
inline void copySteps(Bitmap& bitmap, Pixel color, const LineCourse& course, int x, int y) {
  const std::ptrdiff_t stride = bitmap.width();
  const std::ptrdiff_t along = course.along(stride), both = along + course.aside(stride);
  Pixel* p = bitmap.row(y) + x;
  // A diagonal steps aside always, which no fraction can say.
  if (course.slope >= kOne) {
    for (int count = course.length; count > 0; --count, p += both) *p = color;
    return;
  }
  // The fraction of the height fills all bits, so that its carry is the step aside.
  constexpr int kShift = 64 - kBits;
  const auto slope = static_cast<std::uint64_t>(course.slope) << kShift;
  std::uint64_t fraction = static_cast<std::uint64_t>(course.start) << kShift;
  for (int count = course.length; count > 0; --count) {
    // A steep line meets another line of the cache with every pixel. Stores wait for each other,
    // but the fetches that they need may overtake.
    if constexpr (kFetch) __builtin_prefetch(p, 1);
    *p = color;
    fraction += slope;
    p += fraction < slope ? both : along;
  }
}

/// Stores `kPixels` pixels at both ends of a run; they overlap unless it is twice as long.
template <int kPixels>
inline void storeEnds(Pixel* first, Pixel* behind, Pixel color) {
  Pixel pixels[kPixels];
  for (Pixel& pixel : pixels) pixel = color;
  std::memcpy(first, pixels, sizeof pixels);
  std::memcpy(behind - kPixels, pixels, sizeof pixels);
}

/// Paints a flat line run by run, all of it visible: for each row the pixels first..behind-1. Run k
/// ends behind the pixel at (k + 1/2) n / d, rounded down; ties as for the heights, of which this
/// is the course with its axes exchanged. All runs but the outer two have one of two lengths.
template <class Paint>
inline void paintRuns(Pixel* p, const LineCourse& course, std::ptrdiff_t aside, bool leftwards,
                      Pixel color, Paint paintInner) {
  const Wide advance = course.length * kOne / course.rise + 1;
  Wide end = advance / 2 + kOne + (course.climbs ? kNudge : -kNudge);
  Wide from = 0, to = end >> kBits;
  const auto paintOuter = [color](Pixel* first, Pixel* behind) {
    fillPixels(first, static_cast<int>(behind - first), color);
  };
  const auto step = [&](auto paint) {
    Pixel* const first = leftwards ? p - to + 1 : p + from;
    __builtin_prefetch(first, 1);
    paint(first, first + (to - from));
    p += aside;
    end += advance;
    from = to;
  };
  step(paintOuter);
  for (int row = course.rise - 1; row > 0; --row) {
    to = end >> kBits;
    step(paintInner);
  }
  to = course.length;
  step(paintOuter);
}

void copyFlatLine(Bitmap& bitmap, Pixel color, const LineCourse& course, int x, int y) {
  const bool leftwards = course.along(0) < 0;
  Pixel* const p = bitmap.row(y) + x;
  if (course.rise == 0) {
    return fillPixels(leftwards ? p - course.length + 1 : p, course.length, color);
  }
  const std::ptrdiff_t aside = course.aside(bitmap.width());
  const int shortest = course.length / course.rise;
  if (shortest < 4) {
    paintRuns(p, course, aside, leftwards, color,
              [color](Pixel* first, Pixel* behind) { storeEnds<2>(first, behind, color); });
  } else if (shortest < 8) {
    paintRuns(p, course, aside, leftwards, color,
              [color](Pixel* first, Pixel* behind) { storeEnds<4>(first, behind, color); });
  } else {
    paintRuns(p, course, aside, leftwards, color, [color](Pixel* first, Pixel* behind) {
      fillPixels(first, static_cast<int>(behind - first), color);
    });
  }
}

}  // namespace

Rect copyThinLine(Bitmap& bitmap, Pixel color, int x1, int y1, int x2, int y2) {
  // Nearly all lines lie on the sheet, and most are a few pixels long: there every instruction
  // that is not for a pixel counts.
  if (bitmap.contains(x1, y1) && bitmap.contains(x2, y2)) {
    const LineCourse course(x1, y1, x2, y2);
    if (course.length < Reciprocals::kCount) {
      copySteps<false>(bitmap, color, course, x1, y1);
    } else if (course.isFlat()) {
      copyFlatLine(bitmap, color, course, x1, y1);
    } else {
      copySteps<true>(bitmap, color, course, x1, y1);
    }
    return {std::min(x1, x2), std::min(y1, y2), std::max(x1, x2) + 1, std::max(y1, y2) + 1};
  }
  draw(bitmap, x1, y1, x2, y2, [color](Pixel* p, Wide) { *p = color; });
  return changed(bitmap, std::min(x1, x2), std::min(y1, y2), std::max(x1, x2), std::max(y1, y2));
}

void solidThinLine(Bitmap& bitmap, Ink ink, int x1, int y1, int x2, int y2) {
  if (ink.covers()) {
    copyThinLine(bitmap, ink.flip, x1, y1, x2, y2);
  } else {
    draw(bitmap, x1, y1, x2, y2, [ink](Pixel* p, Wide) { *p = ink.over(*p); });
  }
}

void brokenThinLine(Bitmap& bitmap, Ink ink, Pattern pattern, int x1, int y1, int x2, int y2,
                    std::int64_t step) {
  if (x1 == x2 && y1 == y2) return;
  const LineCourse course(x1, y1, x2, y2);
  const Part part = course.visible(bitmap, x1, y1);
  if (part.first > part.last) return;
  // The pattern turns along with the pixels: a remainder for each would cost more than the pixel.
  pattern.turn(step + part.first);
  if (ink.covers()) {
    walk(bitmap, course, part, x1, y1, [&pattern, color = ink.flip](Pixel* p, Wide) {
      __builtin_prefetch(p, 1);
      if (pattern.next()) *p = color;
    });
  } else {
    walk(bitmap, course, part, x1, y1, [&pattern, ink](Pixel* p, Wide) {
      if (pattern.next()) *p = ink.over(*p);
    });
  }
}

}  // namespace raster
