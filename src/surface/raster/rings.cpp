// Ellipses with a wide pen: all pixels within half the pen's width of the exact curve.
#include <cmath>

#include "surface/raster/round.h"
#include "surface/raster/wide.h"

namespace raster {
namespace {

// Far above the rounding errors of the arithmetic below, far below the distance between pixels
// that differ: pixels exactly on a rim count the same on every machine.
constexpr double kSlack = 1e-9;

/// One rim of a ring: the curve at a fixed distance outside (offset > 0) or inside (offset < 0) of
/// an ellipse, one quarter of it. Both rims bound convex shapes, so a row meets them once.
///
/// A point of the rim belongs to the ellipse's point (a cos t, b sin t) and lies `offset` further
/// along the normal there. With s = sin t and g = sqrt(b^2 + (a^2 - b^2) s^2) that is
/// y = s (b + offset a / g), x = cos t (a + offset b / g).
class Rim {
 public:
  Rim(double a, double b, double offset)
      : a_(a), b_(b), offset_(offset), a2_(a * a), b2_(b * b), low_(0), high_(1) {
    if (offset >= 0) return;
    exists_ = a + offset > 0 && b + offset > 0;
    if (exists_) trim();
  }

  /// The distance from the middle column to the rim in row y >= 0; negative if the row misses it.
  double at(double y) {
    if (!exists_) return -1;
    if (a_ == b_) return circleAt(y);
    const double below = rise(high_) - y;
    if (below < kSlack) return below < -kSlack ? -1 : 0;
    const double s = solve(y);
    return std::max(0.0, std::sqrt((1 - s) * (1 + s)) * (a_ + offset_ * b_ / gradient(s)));
  }

 private:
  double circleAt(double y) const {
    const double radius = a_ + offset_;
    if (y > radius + kSlack) return -1;
    return std::sqrt(std::max(0.0, radius * radius - y * y));
  }

  // Where the pen is wider than the ellipse is bent, the inner rim has corners on the longer axis:
  // beyond them its formula runs over to the other side.
  void trim() {
    const double difference = a2_ - b2_;
    if (difference > 0) {
      const double g = -offset_ * a_ / b_;
      low_ = std::sqrt(std::clamp((g * g - b2_) / difference, 0.0, 1.0));
    } else if (difference < 0) {
      const double g = -offset_ * b_ / a_;
      high_ = std::sqrt(std::clamp((g * g - b2_) / difference, 0.0, 1.0));
    }
  }

  double gradient(double s) const { return std::sqrt(b2_ + (a2_ - b2_) * s * s); }
  double rise(double s) const { return s * (b_ + offset_ * a_ / gradient(s)); }
  double slope(double s) const {
    const double g = gradient(s);
    return b_ * (1 + offset_ * a_ * b_ / (g * g * g));
  }

  /// The s with rise(s) = y. The rise is monotone between low_ and high_; Newton's steps are kept
  /// inside the bracket that every evaluation narrows.
  double solve(double y) {
    double low = low_, high = high_;
    double s = std::clamp(last_, low, high);
    for (int i = 0; i < 60 && low < high; ++i) {
      const double error = rise(s) - y;
      (error < 0 ? low : high) = s;
      if (error == 0) break;
      double next = s - error / slope(s);
      if (!(next > low && next < high)) next = 0.5 * (low + high);
      if (std::abs(next - s) < 1e-15) break;
      s = next;
    }
    return last_ = s;
  }

  double a_, b_, offset_, a2_, b2_, low_, high_;
  double last_ = 0;
  bool exists_ = true;
};

/// How many columns from the middle a row of a ring reaches. An even pen's centre lies between two
/// columns: there the distances are 0.5, 1.5, ...
int reachWithin(double x, int even) {
  return x < 0 ? -1 : static_cast<int>(std::floor(x + 0.5 * even + kSlack));
}
int reachBefore(double x, int even) {
  return x < 0 ? -1 : static_cast<int>(std::ceil(x + 0.5 * even - kSlack)) - 1;
}

}  // namespace

Rect wideEllipse(const SpanPainter& ring, const SpanPainter& inside, Bitmap& bitmap, int width,
                 int cx, int cy, double rx, double ry) {
  if (ring.idle() && inside.idle()) return {};
  const double half = 0.5 * width;
  const int even = isEven(width);
  const int columns = reachWithin(rx + half, even), rows = reachWithin(ry + half, even);
  const Rect area = changed(bitmap, cx - columns, cy - rows, cx + columns - even, cy + rows - even);
  if (area.empty()) return area;
  Rim outer(rx, ry, half), inner(rx, ry, -half);
  const Rows distances = visibleDistances(bitmap, cy, even, rows);
  for (int j = distances.first; j <= distances.last; ++j) {
    const int reach = reachWithin(outer.at(j - 0.5 * even), even);
    const int hole = reachBefore(inner.at(j - 0.5 * even), even);
    forBothRows(bitmap, cy, even, j, [&](int y) {
      if (hole < even) return ring.span(y, cx - reach, cx + reach - even);
      ring.spanAround(y, cx - reach, cx + reach - even, cx - hole, cx + hole - even);
      inside.span(y, cx - hole, cx + hole - even);
    });
  }
  return area;
}

}  // namespace raster
