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
/// by at most 2^-40 for each of less than 2^17 steps. So a nudge of 2^-20 outweighs all rounding
/// and moves nothing but the ties: those go to the smaller coordinate, whatever the direction.
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

/// Where a part of a line runs in memory.
struct Track {
  Pixel* first;            ///< its first pixel
  std::ptrdiff_t along;    ///< from pixel to pixel along the longer axis
  std::ptrdiff_t aside;    ///< one step along the shorter axis
  std::uint64_t fraction;  ///< of the height at the first pixel, in units of 2^-64
  std::uint64_t slope;     ///< in the same units
  int count;               ///< pixels

  Track(Bitmap& bitmap, const Course& c, const Part& part) {
    const std::ptrdiff_t stride = bitmap.width();
    along = c.flat ? c.majorSign : c.majorSign * stride;
    aside = c.flat ? c.minorSign * stride : c.minorSign;
    const Wide height = c.start + part.first * c.slope;
    first = bitmap.row(0) + (c.flat ? c.minor * stride + c.major : c.major * stride + c.minor) +
            part.first * along + (height >> Course::kBits) * aside;
    // The fraction fills all bits, so that its carry is the step aside. A diagonal steps aside
    // always, which no fraction can say.
    if (c.slope > Course::kOne) along += aside;
    fraction = static_cast<std::uint64_t>(height) << kShift;
    slope = static_cast<std::uint64_t>(c.slope) << kShift;
    count = static_cast<int>(part.last - part.first + 1);
  }

  static constexpr int kShift = 64 - Course::kBits;
};

/// Calls plot(pixel, i) for the pixels i = 0..count-1 of a track.
template <class Plot>
inline void walk(const Track& track, Plot plot) {
  const std::ptrdiff_t along = track.along, aside = track.aside;
  const std::uint64_t slope = track.slope;
  std::uint64_t fraction = track.fraction;
  Pixel* p = track.first;
  for (int i = 0; i < track.count; ++i) {
    plot(p, i);
    p += along;
    fraction += slope;
    p += aside & -static_cast<std::ptrdiff_t>(fraction < slope);
  }
}

/// Paints a flat line run by run. All runs but the first and the last have one of two lengths.
void paintRuns(const Track& track, Pixel color) {
  constexpr std::uint64_t kWhole = std::uint64_t{1} << Course::kBits;
  const std::uint64_t slope = track.slope >> Track::kShift;
  const int shorter = static_cast<int>(kWhole / slope);
  const std::uint64_t rest = kWhole % slope;
  // What a run's last step climbs beyond the next whole height shortens the run that follows.
  const std::uint64_t gap = kWhole - (track.fraction >> Track::kShift);
  int length = static_cast<int>((gap + slope - 1) / slope);
  std::uint64_t beyond = length * slope - gap;
  Pixel* p = track.first;
  for (int left = track.count;;) {
    const int run = std::min(length, left);
    fillPixels(track.along > 0 ? p : p - run + 1, run, color);
    left -= run;
    if (left == 0) return;
    p += track.along * run + track.aside;
    const bool longer = beyond < rest;
    length = shorter + (longer ? 1 : 0);
    beyond += (longer ? slope : 0) - rest;
  }
}

template <class Draw>
inline void withTrack(Bitmap& bitmap, int x1, int y1, int x2, int y2, Draw draw) {
  Course course(x1, y1, x2, y2);
  if (course.length == 0) return;
  course.divide();
  Part part{0, course.length - 1};
  if (!bitmap.contains(x1, y1) || !bitmap.contains(x2, y2)) {
    course.clipMajor(course.flat ? bitmap.width() : bitmap.height(), part);
    course.clipMinor(course.flat ? bitmap.height() : bitmap.width(), part);
    if (part.last < part.first) return;
  }
  draw(course, part);
}

}  // namespace

void solidThinLine(Bitmap& bitmap, Ink ink, int x1, int y1, int x2, int y2) {
  constexpr int kWorthRuns = 16;
  withTrack(bitmap, x1, y1, x2, y2, [&](const Course& course, const Part& part) {
    const Track track(bitmap, course, part);
    if (!ink.covers()) {
      walk(track, [ink](Pixel* p, int) { *p = ink.over(*p); });
    } else if (course.flat && 2 * course.slope < Course::kOne && track.count >= kWorthRuns) {
      paintRuns(track, ink.flip);
    } else {
      walk(track, [color = ink.flip](Pixel* p, int) {
        __builtin_prefetch(p, 1);
        *p = color;
      });
    }
  });
}

void dottedThinLine(Bitmap& bitmap, Ink ink, int x1, int y1, int x2, int y2, std::int64_t step) {
  withTrack(bitmap, x1, y1, x2, y2, [&](const Course& course, const Part& part) {
    walk(Track(bitmap, course, part), [ink, from = step + part.first](Pixel* p, int i) {
      if (isDotOn(from + i)) *p = ink.over(*p);
    });
  });
}

}  // namespace raster
