// Lines one pixel wide: which pixels they hit, and how they are clipped without moving a pixel.
#include "surface/raster/thin.h"

#include <cstdlib>

namespace raster {
namespace {

// Coordinates reach +-32767, so a product of two extents needs more than 32 bits.
using Wide = std::int64_t;

Wide floorDiv(Wide a, Wide b) { return a / b - (a % b < 0 ? 1 : 0); }

/// A line seen along its longer axis, turned so that the shorter one never decreases: the pixels a
/// line hits do not depend on its direction, and one set of formulas then serves all octants.
/// Pixel i = 0..length stands at major + i * majorSign, minor + floor((2 i rise + length - 1) /
/// (2 length)): to the nearest, half way to the smaller coordinate.
struct Course {
  bool flat;      ///< the longer axis is x
  bool reversed;  ///< pixel i is the (length - i)th of the drawn line
  int major, minor, majorSign;
  Wide length, rise;

  Course(int x1, int y1, int x2, int y2) {
    flat = std::abs(x2 - x1) >= std::abs(y2 - y1);
    reversed = flat ? y2 < y1 : x2 < x1;
    if (reversed) {
      std::swap(x1, x2);
      std::swap(y1, y2);
    }
    major = flat ? x1 : y1;
    minor = flat ? y1 : x1;
    const int run = flat ? x2 - x1 : y2 - y1;
    majorSign = run < 0 ? -1 : 1;
    length = std::abs(run);
    rise = flat ? y2 - y1 : x2 - x1;
  }

  Wide climb(Wide i) const { return 2 * i * rise + length - 1; }
};

/// The pixels first..last of a course, both included.
struct Part {
  Wide first, last;
  bool empty() const { return last < first; }
};

/// The pixels whose place on the longer axis is 0..size-1.
void clipMajor(const Course& c, int size, Part& part) {
  const Wide low = c.majorSign > 0 ? -Wide{c.major} : Wide{c.major} - (size - 1);
  const Wide high = c.majorSign > 0 ? Wide{size} - 1 - c.major : Wide{c.major};
  part.first = std::max(part.first, low);
  part.last = std::min(part.last, high);
}

/// The pixels whose place on the shorter axis is 0..size-1: the inverse of the rounding above.
void clipMinor(const Course& c, int size, Part& part) {
  const Wide low = -Wide{c.minor}, high = Wide{size} - 1 - c.minor;
  if (c.rise == 0) {
    if (low > 0 || high < 0) part.last = part.first - 1;
    return;
  }
  part.first = std::max(part.first, floorDiv(c.length * (2 * low - 1), 2 * c.rise) + 1);
  part.last = std::min(part.last, floorDiv(c.length * (2 * high + 1), 2 * c.rise));
}

Part visiblePart(const Bitmap& bitmap, const Course& c) {
  // The drawn line's last pixel stays unpainted.
  Part part = c.reversed ? Part{1, c.length} : Part{0, c.length - 1};
  clipMajor(c, c.flat ? bitmap.width() : bitmap.height(), part);
  clipMinor(c, c.flat ? bitmap.height() : bitmap.width(), part);
  return part;
}

/// Calls plot(pixel, i) for the pixels of the part in order.
template <class Plot>
void walk(Bitmap& bitmap, const Course& c, const Part& part, Plot plot) {
  const Wide climb = c.climb(part.first), full = 2 * c.length;
  const std::ptrdiff_t along = c.major + c.majorSign * part.first, across = c.minor + climb / full;
  const std::ptrdiff_t stride = bitmap.width();
  Pixel* p = bitmap.row(0) + (c.flat ? across * stride + along : along * stride + across);
  const std::ptrdiff_t majorStep = c.majorSign * (c.flat ? 1 : stride);
  const std::ptrdiff_t minorStep = c.flat ? stride : 1;
  // The rest below is kept negative: its sign then says whether the shorter axis advances.
  int rest = static_cast<int>(climb % full - full);
  const int up = static_cast<int>(2 * c.rise), down = static_cast<int>(full);
  for (Wide i = part.first; i <= part.last; ++i) {
    plot(p, i);
    p += majorStep;
    rest += up;
    if (rest >= 0) {
      rest -= down;
      p += minorStep;
    }
  }
}

}  // namespace

void solidThinLine(Bitmap& bitmap, Ink ink, int x1, int y1, int x2, int y2) {
  const Course course(x1, y1, x2, y2);
  if (course.length == 0) return;
  const Part part = visiblePart(bitmap, course);
  if (part.empty()) return;
  walk(bitmap, course, part, [ink](Pixel* p, Wide) { *p = ink.over(*p); });
}

void dottedThinLine(Bitmap& bitmap, Ink ink, int x1, int y1, int x2, int y2, std::int64_t step) {
  const Course course(x1, y1, x2, y2);
  if (course.length == 0) return;
  const Part part = visiblePart(bitmap, course);
  if (part.empty()) return;
  walk(bitmap, course, part, [&](Pixel* p, Wide i) {
    if (isDotOn(step + (course.reversed ? course.length - i : i))) *p = ink.over(*p);
  });
}

}  // namespace raster
