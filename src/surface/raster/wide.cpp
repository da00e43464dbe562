// Wide lines: the exact capsule round a segment, row by row.
#include "surface/raster/wide.h"

#include <cmath>
#include <utility>

namespace raster {

constinit const Discs discs;

namespace {

// The pieces of a stroke are short: their rows are worked out at once.
constexpr int kShortRows = 256;

/// The largest whole number whose square is not above n, from a guess.
Wide floorSqrt(Wide n, double guess) {
  Wide root = static_cast<Wide>(guess);
  while (root * root > n) --root;
  while ((root + 1) * (root + 1) <= n) ++root;
  return root;
}

/// std::floor is a call into the library on machines without SSE4.1.
int floorOf(double value) {
  const int whole = static_cast<int>(value);
  return whole - (value < whole ? 1 : 0);
}

/// The right-hand outline of a capsule whose segment runs downwards (or level): the upper disc down
/// to the point where the slanted side touches it, the side, then the lower disc. The left-hand
/// outline is the same, turned by half a circle.
class RightOutline {
 public:
  RightOutline(int width, int x1, int y1, int x2, int y2)
      : even_(isEven(width)),
        reach_(discs.of(width)),
        x1_(x1),
        x2_(x2),
        top1_(y1 - width / 2),
        top2_(y2 - width / 2),
        dx_(Wide{x2} - x1),
        dy_(Wide{y2} - y1) {
    const Wide length2 = dx_ * dx_ + dy_ * dy_;
    const double length = std::sqrt(static_cast<double>(length2));
    // A pixel lies left of the side if cross <= width / 2 * length; everything is doubled, since
    // the centre of an even pen has halves.
    const Wide limit = floorSqrt(Wide{width} * width * length2, width * length);
    // Where the side touches the discs: dx / length of the radius above the centres, in rows
    // counted from the disc's top. Both forms agree at the touching point, so rounding is free.
    const double touch = 0.5 * width * static_cast<double>(dx_) / length;
    const double offset = 0.5 * (width - 1) - touch;
    sideFirst_ = top1_ - floorOf(-offset);
    sideLast_ = std::min(top2_ + floorOf(offset), top2_ + width - 1);
    // (2 (x - x1) + even) dy - (2 (y - y1) + even) dx <= limit, solved for x.
    const Wide even = even_;
    rest_ = limit - (2 * Wide{y1} - even) * dx_ - even * dy_;
  }

  /// The last column of row y.
  int at(int y) const {
    if (y < sideFirst_) return x1_ + reach_[y - top1_] - even_;
    if (y > sideLast_) return x2_ + reach_[y - top2_] - even_;
    return side(y);
  }

  /// The last columns of all rows, top to bottom, for a capsule of no more than kShortRows rows.
  void all(int width, int* columns) const {
    int y = top1_;
    for (; y < sideFirst_; ++y) *columns++ = x1_ + reach_[y - top1_] - even_;
    if (y <= sideLast_) {
      // side() in units of 2^-32. Half a unit of the divided number keeps the quotient away from
      // whole numbers, by far more than some hundred steps can be wrong.
      const double scale = 4294967296.0 / static_cast<double>(2 * dy_);
      const Wide step = static_cast<Wide>(static_cast<double>(2 * dx_) * scale);
      Wide column = static_cast<Wide>((static_cast<double>(restOf(y)) + 0.5) * scale);
      for (; y <= sideLast_; ++y, column += step) *columns++ = x1_ + static_cast<int>(column >> 32);
    }
    for (; y < top2_ + width; ++y) *columns++ = x2_ + reach_[y - top2_] - even_;
  }

 private:
  Wide restOf(int y) const { return rest_ + 2 * Wide{y} * dx_; }
  int side(int y) const { return x1_ + static_cast<int>(floorDiv(restOf(y), 2 * dy_)); }

  int even_;
  const std::uint8_t* reach_;
  int x1_, x2_, top1_, top2_;
  int sideFirst_ = 0, sideLast_ = 0;
  Wide dx_, dy_, rest_ = 0;
};

/// Paints rows that reach from the mirror image of `columns`, turned by half a circle, to
/// `columns`.
void paintTurned(const SpanPainter& painter, Bitmap& bitmap, const Rect& area, int turnX,
                 const int* columns) {
  const int rows = area.height();
  if (!painter.fillsPlainly()) {
    for (int i = 0; i < rows; ++i) {
      painter.span(area.top + i, turnX - columns[rows - 1 - i], columns[i]);
    }
    return;
  }
  const Pixel color = painter.ink().flip;
  Pixel* row = bitmap.row(area.top);
  for (int i = 0; i < rows; ++i, row += bitmap.width()) {
    const int left = turnX - columns[rows - 1 - i];
    fillPixels(row + left, columns[i] - left + 1, color);
  }
}

Rect disc(const SpanPainter& painter, const Bitmap& bitmap, int width, int x, int y) {
  const int top = y - width / 2, even = isEven(width);
  const std::uint8_t* reach = discs.of(width);
  const Rows rows = visibleRows(bitmap, top, top + width - 1);
  for (int row = rows.first; row <= rows.last; ++row) {
    const int r = reach[row - top];
    painter.span(row, x - r, x + r - even);
  }
  return changed(bitmap, x - width / 2, top, x - width / 2 + width - 1, top + width - 1);
}

}  // namespace

Rect capsule(const SpanPainter& painter, Bitmap& bitmap, int width, int x1, int y1, int x2,
             int y2) {
  if (x1 == x2 && y1 == y2) return disc(painter, bitmap, width, x1, y1);
  if (y1 > y2) {
    std::swap(x1, x2);
    std::swap(y1, y2);
  }
  const int top = y1 - width / 2, bottom = y2 - width / 2 + width - 1;
  const int turnX = x1 + x2 - isEven(width), turnY = y1 + y2 - isEven(width);
  const Rect whole{std::min(x1, x2) - width / 2, top, std::max(x1, x2) - width / 2 + width,
                   bottom + 1};
  const Rect area = intersect(bitmap.bounds(), whole);
  if (area.empty()) return area;
  const RightOutline outline(width, x1, y1, x2, y2);
  if (bottom - top < kShortRows && area == whole) {
    int columns[kShortRows];
    outline.all(width, columns);
    paintTurned(painter, bitmap, area, turnX, columns);
    return area;
  }
  for (int y = area.top; y < area.bottom; ++y) {
    painter.span(y, turnX - outline.at(turnY - y), outline.at(y));
  }
  return area;
}

}  // namespace raster
