// Lines one pixel wide: which pixels they hit, and how they are clipped without moving a pixel.
#include "surface/raster/thin.h"

namespace raster {
namespace {

using Wide = std::int64_t;

Wide floorDiv(Wide a, Wide b) { return a / b - (a % b < 0 ? 1 : 0); }
Wide ceilDiv(Wide a, Wide b) { return a / b + (a % b > 0 ? 1 : 0); }

/// The pixels first..last of a line, both included.
struct Part {
  Wide first, last;
};

/// A line as steps along its longer axis. At step i it stands at height start + i slope, in units
/// of 2^-40, over its first pixel; the whole part of that counts its steps along the shorter axis.
///
/// The true height there is i d / n + 1/2, for the shorter extent d and the longer n below 2^17;
/// unless it is whole, it is at least 1 / 2n > 2^-18 away from a whole number. Slope is rounded up,
/// by at most 2^-40 for each of less than 2^17 steps. So a nudge of 2^-20 outweighs all rounding and
/// moves nothing but the ties: those go to the smaller coordinate, whatever the direction.
class Course {
 public:
  Course(int x1, int y1, int x2, int y2) {
    const int dx = x2 - x1, dy = y2 - y1;
    const int width = dx < 0 ? -dx : dx, height = dy < 0 ? -dy : dy;
    flat = width >= height;
    length = flat ? width : height;
    major = flat ? x1 : y1;
    minor = flat ? y1 : x1;
    majorSign = (flat ? dx : dy) < 0 ? -1 : 1;
    minorSign = (flat ? dy : dx) < 0 ? -1 : 1;
    start = kOne / 2 - minorSign * kNudge;
    slope = flat ? height : width;
  }

  /// To be called before the heights are used; a line of no length has none.
  void divide() { slope = slope * kOne / length + 1; }

  Wide heightAt(Wide i) const { return start + i * slope; }

  /// The steps whose pixel has its longer coordinate in 0..size-1.
  void clipMajor(int size, Part& part) const {
    const int low = majorSign > 0 ? -major : major - (size - 1);
    part.first = std::max<Wide>(part.first, low);
    part.last = std::min<Wide>(part.last, low + size - 1);
  }

  /// The same for the shorter coordinate.
  void clipMinor(int size, Part& part) const {
    const int low = minorSign > 0 ? -minor : minor - (size - 1);
    part.first = std::max(part.first, ceilDiv(low * kOne - start, slope));
    part.last = std::min(part.last, floorDiv((Wide{low} + size) * kOne - start - 1, slope));
  }

  static constexpr int kBits = 40;
  static constexpr Wide kOne = Wide{1} << kBits, kNudge = Wide{1} << 20;

  bool flat;
  int length, major, minor, majorSign, minorSign;
  Wide start, slope;
};

/// Calls plot(pixel, i) for the steps of the part in order.
template <class Plot>
inline void walk(Bitmap& bitmap, const Course& c, const Part& part, Plot plot) {
  const std::ptrdiff_t stride = bitmap.width();
  const std::ptrdiff_t minorStep = c.minorSign * (c.flat ? stride : 1);
  std::ptrdiff_t step = c.majorSign * (c.flat ? 1 : stride);
  const Wide height = c.heightAt(part.first);
  Pixel* p = bitmap.row(0) + (c.flat ? c.minor * stride + c.major : c.major * stride + c.minor) +
             part.first * step + (height >> Course::kBits) * minorStep;
  // The fraction fills all 64 bits, so that its carry is the step aside. A diagonal steps aside
  // always, which no fraction can say.
  constexpr int kShift = 64 - Course::kBits;
  const std::uint64_t slope = static_cast<std::uint64_t>(c.slope) << kShift;
  std::uint64_t fraction = static_cast<std::uint64_t>(height) << kShift;
  if (c.slope > Course::kOne) step += minorStep;
  for (Wide i = part.first; i <= part.last; ++i) {
    plot(p, i);
    fraction += slope;
    p += step + (minorStep & -static_cast<std::ptrdiff_t>(fraction < slope));
  }
}

template <class Plot>
inline void drawLine(Bitmap& bitmap, int x1, int y1, int x2, int y2, Plot plot) {
  Course course(x1, y1, x2, y2);
  if (course.length == 0) return;
  course.divide();
  Part part{0, course.length - 1};
  if (!bitmap.contains(x1, y1) || !bitmap.contains(x2, y2)) {
    course.clipMajor(course.flat ? bitmap.width() : bitmap.height(), part);
    course.clipMinor(course.flat ? bitmap.height() : bitmap.width(), part);
    if (part.last < part.first) return;
  }
  walk(bitmap, course, part, plot);
}

}  // namespace

void solidThinLine(Bitmap& bitmap, Ink ink, int x1, int y1, int x2, int y2) {
  if (ink.covers()) {
    drawLine(bitmap, x1, y1, x2, y2, [color = ink.flip](Pixel* p, Wide) { *p = color; });
  } else {
    drawLine(bitmap, x1, y1, x2, y2, [ink](Pixel* p, Wide) { *p = ink.over(*p); });
  }
}

void dottedThinLine(Bitmap& bitmap, Ink ink, int x1, int y1, int x2, int y2, std::int64_t step) {
  drawLine(bitmap, x1, y1, x2, y2, [ink, step](Pixel* p, Wide i) {
    if (isDotOn(step + i)) *p = ink.over(*p);
  });
}

}  // namespace raster
