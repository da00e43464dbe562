// Ellipses with a thin pen or none: the exact curve rounded to pixels.
#include <cmath>

#include "surface/raster/round.h"
#include "surface/raster/thin.h"
#include "surface/raster/wide.h"

namespace raster {
namespace {

/// One quarter of an ellipse in pixels. A pixel belongs to the shape if the curve or its inside
/// comes within half a pixel of its centre along a row or a column; that rounds the curve to the
/// nearest pixel wherever it runs, and half axes of any size and fraction stay exact.
class Quarter {
 public:
  Quarter(double rx, double ry)
      : b_(ry),
        a2_(rx * rx),
        b2_(ry * ry),
        limit_((rx * rx) * (ry * ry)),
        ratio_(rx / ry),
        rows_(static_cast<int>(std::floor(ry + 0.5))) {}

  /// The last row, counted from the centre.
  int rows() const { return rows_; }

  /// The last column of row j, both counted from the centre; -1 above the last row.
  int reach(int j) const {
    if (j > rows_) return -1;
    const double x = std::max(halfWidth(j) + 0.5, halfWidth(std::abs(j - 0.5)));
    const int whole = static_cast<int>(x);
    const double part = x - whole;
    // Roots are rounded, which matters only next to a whole number.
    constexpr double kDoubt = 1e-6;
    return part > kDoubt && part < 1 - kDoubt ? whole : exactReach(whole, j);
  }

 private:
  double halfWidth(double y) const { return y >= b_ ? 0 : ratio_ * std::sqrt(b2_ - y * y); }

  int exactReach(int x, int j) const {
    while (x > 0 && !inside(x, j)) --x;
    while (inside(x + 1, j)) ++x;
    return x;
  }
  bool inside(double x, double y) const {
    return touches(std::max(x - 0.5, 0.0), y) || touches(x, std::max(y - 0.5, 0.0));
  }
  bool touches(double x, double y) const { return x * x * b2_ + y * y * a2_ <= limit_; }

  double b_, a2_, b2_, limit_, ratio_;
  int rows_;
};

/// Where a thin ellipse stands and what of it is visible.
struct Place {
  Bitmap& bitmap;
  int cx, cy;
  Rows distances;
};

/// The outline pixels of row j of a quarter: the columns first..last, both included.
struct Run {
  int first, last;
};

/// Calls visit(j, run) for the visible rows of a quarter, from the middle row outwards.
template <class Visit>
void forRuns(const Quarter& quarter, const Rows& distances, Visit visit) {
  int reach = quarter.reach(distances.first);
  for (int j = distances.first; j <= distances.last; ++j) {
    const int next = quarter.reach(j + 1);
    visit(j, Run{std::min(reach, next + 1), reach});
    reach = next;
  }
}

void fillInside(const SpanPainter& painter, const Quarter& quarter, const Place& place,
                bool withOutline) {
  forRuns(quarter, place.distances, [&](int j, Run run) {
    const int reach = withOutline ? run.last : run.first - 1;
    forBothRows(place.bitmap, place.cy, 0, j, [&](int y) {
      if (reach >= 0) painter.span(y, place.cx - reach, place.cx + reach);
    });
  });
}

void solidOutline(const SpanPainter& painter, const Quarter& quarter, const Place& place) {
  forRuns(quarter, place.distances, [&](int j, Run run) {
    forBothRows(place.bitmap, place.cy, 0, j, [&](int y) {
      painter.spanAround(y, place.cx - run.last, place.cx + run.last, place.cx - run.first + 1,
                         place.cx + run.first - 1);
    });
  });
}

// The same where all of it is visible and the ink covers: the four quarters at once.
void solidOutlineInside(Pixel color, const Quarter& quarter, const Place& place) {
  const std::ptrdiff_t stride = place.bitmap.width();
  Pixel* upper = place.bitmap.row(place.cy) + place.cx;
  Pixel* lower = upper;
  forRuns(quarter, place.distances, [&](int, Run run) {
    for (Pixel* row : {upper, lower}) {
      __builtin_prefetch(row + run.last, 1);
      __builtin_prefetch(row - run.last, 1);
    }
    if (run.first == run.last) {
      upper[run.last] = upper[-run.last] = lower[run.last] = lower[-run.last] = color;
    } else {
      const int count = run.last - run.first + 1;
      fillPixels(upper + run.first, count, color);
      fillPixels(upper - run.last, count, color);
      fillPixels(lower + run.first, count, color);
      fillPixels(lower - run.last, count, color);
    }
    upper -= stride;
    lower += stride;
  });
}

// The gaps run from the right end over the top, counterclockwise. Steps are counted along the
// quarter: its mirror images count forth and back.
void brokenOutline(const SpanPainter& painter, Pattern pattern, const Quarter& quarter,
                   const Place& place) {
  std::int64_t steps = -1;
  forRuns(quarter, {0, quarter.rows()}, [&](int, Run run) { steps += run.last - run.first + 1; });
  const auto dot = [&](int x, int y, std::int64_t step) {
    if (y >= 0 && y < place.bitmap.height() && pattern.isOn(step)) painter.span(y, x, x);
  };
  std::int64_t step = 0;
  forRuns(quarter, {0, place.distances.last}, [&](int j, Run run) {
    for (int x = run.last; x >= run.first; --x, ++step) {
      dot(place.cx + x, place.cy - j, step);
      if (x > 0) dot(place.cx - x, place.cy - j, 2 * steps - step);
      if (j == 0) continue;
      dot(place.cx - x, place.cy + j, 2 * steps + step);
      if (x > 0) dot(place.cx + x, place.cy + j, 4 * steps - step);
    }
  });
}

int nearest(double halfAxis) { return static_cast<int>(std::floor(halfAxis + 0.5)); }

// An ellipse without width is the line between its ends, and both ends belong to it.
Rect flatEllipse(const Target& target, const Pen& pen, int cx, int cy, int rx, int ry) {
  if (rx == 0 && ry == 0) return dot(target, pen, cx, cy);
  const Rect body = line(target, pen, cx - rx, cy - ry, cx + rx, cy + ry);
  if (!isThin(pen)) return body;
  const bool on =
      pen.style == PenStyle::Solid || Pattern(pen.style).isOn(2 * std::int64_t{rx + ry});
  return on ? unite(body, dot(target, pen, cx + rx, cy + ry)) : body;
}

/// True if the brush leaves nothing for the pen to do.
bool brushDoesAll(const Pen& pen, const Brush& brush, Ink ink) {
  return brush.style == BrushStyle::Solid && pen.color == brush.color && ink.covers();
}

Rect thinEllipse(const Target& target, const Pen& pen, const Brush& brush, int cx, int cy,
                 double rx, double ry) {
  const Quarter quarter(rx, ry);
  const int reach = quarter.reach(0), rows = quarter.rows();
  Bitmap& bitmap = target.bitmap;
  const Rect area = changed(bitmap, cx - reach, cy - rows, cx + reach, cy + rows);
  if (area.empty()) return area;
  const Place place{bitmap, cx, cy, visibleDistances(bitmap, cy, 0, rows)};
  const SpanPainter inside(target, brush);
  if (!inside.idle()) fillInside(inside, quarter, place, pen.style != PenStyle::Null);
  const Ink ink = inkOf(target.rop, pen.color);
  if (pen.style == PenStyle::Null || ink.leaves()) return inside.idle() ? Rect{} : area;
  const bool whole = area == Rect{cx - reach, cy - rows, cx + reach + 1, cy + rows + 1};
  if (hasGaps(pen.style)) {
    brokenOutline(SpanPainter(bitmap, ink), Pattern(pen.style), quarter, place);
  } else if (brushDoesAll(pen, brush, ink)) {
    return area;
  } else if (whole && ink.covers()) {
    solidOutlineInside(ink.flip, quarter, place);
  } else {
    solidOutline(SpanPainter(bitmap, ink), quarter, place);
  }
  return area;
}

}  // namespace

Rect ellipse(Target target, const Pen& pen, const Brush& brush, int cx, int cy, double rx,
             double ry) {
  const bool noWidth = std::nearbyint(rx) == 0, noHeight = std::nearbyint(ry) == 0;
  if (noWidth || noHeight) {
    return flatEllipse(target, pen, cx, cy, noWidth ? 0 : nearest(rx), noHeight ? 0 : nearest(ry));
  }
  if (!isWide(pen)) return thinEllipse(target, pen, brush, cx, cy, rx, ry);
  return wideEllipse(SpanPainter(target, pen), SpanPainter(target, brush), target.bitmap, pen.width,
                     cx, cy, rx, ry);
}

}  // namespace raster
