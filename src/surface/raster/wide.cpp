// Wide lines: the exact capsule round a segment, row by row.
#include "surface/raster/wide.h"

#include <cmath>
#include <utility>

namespace raster {

constinit const Discs discs;

namespace {

using Wide = std::int64_t;

Wide floorDiv(Wide a, Wide b) { return a / b - (a % b < 0 ? 1 : 0); }

/// The largest whole number whose square is not above n; n stays below 2^52.
Wide floorSqrt(Wide n) {
  Wide root = static_cast<Wide>(std::sqrt(static_cast<double>(n)));
  while (root * root > n) --root;
  while ((root + 1) * (root + 1) <= n) ++root;
  return root;
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
    // A pixel lies left of the side if cross <= width / 2 * length; everything is doubled, since
    // the centre of an even pen has halves.
    limit_ = floorSqrt(Wide{width} * width * length2);
    // Where the side touches the discs: dx / length of the radius above the centres, in rows
    // counted from the disc's top. Both forms agree at the touching point, so rounding is free.
    const double touch = 0.5 * width * static_cast<double>(dx_) / std::sqrt(double(length2));
    const double offset = 0.5 * (width - 1) - touch;
    sideFirst_ = top1_ + static_cast<int>(std::ceil(offset));
    sideLast_ = top2_ + static_cast<int>(std::floor(offset));
    sideLast_ = std::min(sideLast_, top2_ + width - 1);
    y1_ = y1;
  }

  /// The last column of row y.
  int at(int y) const {
    if (y < sideFirst_) return x1_ + reach_[y - top1_] - even_;
    if (y > sideLast_) return x2_ + reach_[y - top2_] - even_;
    return side(y);
  }

 private:
  int side(int y) const {
    // (2 (x - x1) + even) dy - (2 (y - y1) + even) dx <= limit, solved for x.
    const Wide rest = limit_ + (2 * (Wide{y} - y1_) + even_) * dx_ - even_ * dy_;
    return x1_ + static_cast<int>(floorDiv(rest, 2 * dy_));
  }

  int even_;
  const std::uint8_t* reach_;
  int x1_, x2_, top1_, top2_, y1_ = 0;
  int sideFirst_ = 0, sideLast_ = 0;
  Wide dx_, dy_, limit_ = 0;
};

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
  const Rect area = changed(bitmap, std::min(x1, x2) - width / 2, top,
                            std::max(x1, x2) - width / 2 + width - 1, bottom);
  if (area.empty()) return area;
  const RightOutline outline(width, x1, y1, x2, y2);
  for (int y = area.top; y < area.bottom; ++y) {
    painter.span(y, turnX - outline.at(turnY - y), outline.at(y));
  }
  return area;
}

}  // namespace raster
