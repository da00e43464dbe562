// Polygons are filled row by row from where their sides cross the row.
#include "surface/raster/polygons.h"

#include <vector>

#include "surface/raster/ink.h"

namespace raster {
namespace {

/// A side that crosses the rows top..bottom-1, directed downwards or upwards.
struct Side {
  int top, bottom;
  Spot upper;
  int dx, dy;
  int winding;

  /// The first column at or to the right of the crossing with row y.
  int columnAt(int y) const {
    const std::int64_t run = std::int64_t{dx} * (y - upper.y);
    const std::int64_t down = run / dy;
    return upper.x + static_cast<int>(down + (run > down * dy ? 1 : 0));
  }
};

template <class Use>
void forSides(std::span<const Spot> corners, std::span<const int> counts, const Use& use) {
  std::size_t first = 0;
  for (const int count : counts) {
    for (int i = 0; i < count; ++i)
      use(corners[first + static_cast<std::size_t>(i)],
          corners[first + static_cast<std::size_t>((i + 1) % count)]);
    first += static_cast<std::size_t>(count);
  }
}

// The visible rows that a side crosses; the lower end belongs to the next side.
Rows crossedRows(const Bitmap& bitmap, Spot a, Spot b) {
  return visibleRows(bitmap, std::min(a.y, b.y), std::max(a.y, b.y) - 1);
}

std::vector<Side> sidesOf(const Bitmap& bitmap, std::span<const Spot> corners,
                          std::span<const int> counts) {
  std::vector<Side> sides;
  forSides(corners, counts, [&](Spot a, Spot b) {
    const Rows rows = crossedRows(bitmap, a, b);
    if (rows.last < rows.first) return;
    const bool downwards = a.y < b.y;
    const Spot upper = downwards ? a : b, lower = downwards ? b : a;
    sides.push_back({rows.first, rows.last + 1, upper, lower.x - upper.x, lower.y - upper.y,
                     downwards ? 1 : -1});
  });
  std::sort(sides.begin(), sides.end(), [](const Side& a, const Side& b) { return a.top < b.top; });
  return sides;
}

struct Crossing {
  int column, winding;
};

void fillRow(const SpanPainter& painter, int y, const std::vector<Crossing>& crossings,
             FillRule rule) {
  int inside = 0;
  for (std::size_t i = 0; i + 1 < crossings.size(); ++i) {
    inside = rule == FillRule::Alternate ? inside ^ 1 : inside + crossings[i].winding;
    if (inside != 0) painter.span(y, crossings[i].column, crossings[i + 1].column - 1);
  }
}

Rect fill(const Target& target, const Brush& brush, std::span<const Spot> corners,
          std::span<const int> counts, FillRule rule) {
  const SpanPainter painter(target, brush);
  if (painter.idle()) return {};
  const std::vector<Side> sides = sidesOf(target.bitmap, corners, counts);
  if (sides.empty()) return {};
  std::vector<const Side*> active;
  std::vector<Crossing> row;
  auto next = sides.begin();
  int left = target.bitmap.width(), right = -1, y = sides.front().top;
  const int top = y;
  for (; next != sides.end() || !active.empty(); ++y) {
    std::erase_if(active, [y](const Side* side) { return side->bottom <= y; });
    for (; next != sides.end() && next->top <= y; ++next) active.push_back(&*next);
    row.clear();
    for (const Side* side : active) row.push_back({side->columnAt(y), side->winding});
    std::sort(row.begin(), row.end(),
              [](const Crossing& a, const Crossing& b) { return a.column < b.column; });
    fillRow(painter, y, row, rule);
    if (row.empty()) continue;
    left = std::min(left, row.front().column);
    right = std::max(right, row.back().column);
  }
  return changed(target.bitmap, left, top, right, y - 1);
}

}  // namespace

Rect polyline(Target target, const Pen& pen, std::span<const Spot> spots) {
  Rect area;
  for (std::size_t i = 1; i < spots.size(); ++i)
    area = unite(area, line(target, pen, spots[i - 1].x, spots[i - 1].y, spots[i].x, spots[i].y));
  return area;
}

Rect polygons(Target target, const Pen& pen, const Brush& brush, std::span<const Spot> corners,
              std::span<const int> counts, FillRule rule) {
  Rect area = fill(target, brush, corners, counts, rule);
  if (pen.style == PenStyle::Null) return area;
  forSides(corners, counts,
           [&](Spot a, Spot b) { area = unite(area, line(target, pen, a.x, a.y, b.x, b.y)); });
  return area;
}

std::int64_t crossings(const Bitmap& bitmap, std::span<const Spot> corners,
                       std::span<const int> counts) {
  std::int64_t total = 0;
  forSides(corners, counts, [&](Spot a, Spot b) {
    const Rows rows = crossedRows(bitmap, a, b);
    total += std::max(0, rows.last - rows.first + 1);
  });
  return total;
}

}  // namespace raster
