// What every operation of the raster means, said pixel by pixel in the plainest way. Slow; the
// tests hold the real operations against it.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <functional>
#include <numeric>
#include <queue>
#include <utility>
#include <vector>

#include "surface/raster/draw.h"

namespace oracle {

using raster::Bitmap;
using raster::Brush;
using raster::BrushStyle;
using raster::Pen;
using raster::PenStyle;
using raster::Pixel;
using raster::Target;
using Wide = std::int64_t;
__extension__ using Widest = __int128;

/// One raster operation on one pixel, bit by bit: result bit 2P + D of rop - 1.
inline Pixel combine(int rop, Pixel pen, Pixel old) {
  Pixel result = 0xFF000000;
  for (int bit = 0; bit < 24; ++bit) {
    const int p = (pen >> bit) & 1, d = (old >> bit) & 1;
    if (((rop - 1) >> (2 * p + d)) & 1) result |= Pixel{1} << bit;
  }
  return result;
}

inline void put(Target target, Pixel color, Wide x, Wide y) {
  if (x < 0 || y < 0 || x >= target.bitmap.width() || y >= target.bitmap.height()) return;
  Pixel& pixel = target.bitmap.row(static_cast<int>(y))[x];
  pixel = combine(target.rop, color, pixel);
}

inline bool hatched(BrushStyle style, int x, int y) {
  const bool horizontal = y % 8 == 3, vertical = x % 8 == 4;
  const bool falling = x % 8 == y % 8, rising = (x + y) % 8 == 7;
  switch (style) {
    case BrushStyle::Null:
      return false;
    case BrushStyle::Solid:
      return true;
    case BrushStyle::Horizontal:
      return horizontal;
    case BrushStyle::Vertical:
      return vertical;
    case BrushStyle::ForwardDiagonal:
      return falling;
    case BrushStyle::BackwardDiagonal:
      return rising;
    case BrushStyle::Cross:
      return horizontal || vertical;
    case BrushStyle::DiagonalCross:
      return falling || rising;
  }
  return false;
}

using Membership = std::function<bool(int, int)>;

/// Paints all pixels of the bitmap that belong to a shape, each once.
inline void paintWhere(Target target, Pixel color, const Membership& belongs) {
  for (int y = 0; y < target.bitmap.height(); ++y) {
    for (int x = 0; x < target.bitmap.width(); ++x) {
      if (belongs(x, y)) put(target, color, x, y);
    }
  }
}

inline void brushWhere(Target target, const Brush& brush, const Membership& belongs) {
  paintWhere(target, brush.color,
             [&](int x, int y) { return hatched(brush.style, x, y) && belongs(x, y); });
}

inline Wide ceilDiv(Wide a, Wide b) { return a / b + (a % b > 0 ? 1 : 0); }

/// The pixels of a thin line in order of drawing, without the last.
inline std::vector<std::pair<Wide, Wide>> thinLinePixels(int x1, int y1, int x2, int y2) {
  std::vector<std::pair<Wide, Wide>> pixels;
  const Wide dx = Wide{x2} - x1, dy = Wide{y2} - y1, n = std::max(std::abs(dx), std::abs(dy));
  const Wide sx = dx < 0 ? -1 : 1, sy = dy < 0 ? -1 : 1;
  for (Wide i = 0; i < n; ++i) {
    if (std::abs(dx) >= std::abs(dy)) {
      pixels.emplace_back(x1 + i * sx, y1 + ceilDiv(2 * i * dy - n, 2 * n));
    } else {
      pixels.emplace_back(x1 + ceilDiv(2 * i * dx - n, 2 * n), y1 + i * sy);
    }
  }
  return pixels;
}

/// The lengths of a pen's strokes and gaps by turns; none for a pen without gaps.
inline std::vector<int> strokesAndGaps(PenStyle style) {
  switch (style) {
    case PenStyle::Dashed:
      return {18, 6};
    case PenStyle::Dotted:
      return {3, 3};
    case PenStyle::DashDot:
      return {9, 6, 3, 6};
    case PenStyle::DashDotDot:
      return {9, 3, 3, 3, 3, 3};
    default:
      return {};
  }
}

inline bool isOn(PenStyle style, Wide step) {
  const auto lengths = strokesAndGaps(style);
  if (lengths.empty()) return true;
  step %= std::accumulate(lengths.begin(), lengths.end(), 0);
  for (std::size_t i = 0;; i = (i + 1) % lengths.size()) {
    if (step < lengths[i]) return i % 2 == 0;
    step -= lengths[i];
  }
}

/// Paints pixels in order with a thin pen; the dots go on from `step`, which is returned advanced.
inline Wide paintInOrder(Target target, const Pen& pen,
                         const std::vector<std::pair<Wide, Wide>>& pixels, Wide step = 0) {
  for (const auto& [x, y] : pixels) {
    if (isOn(pen.style, step)) put(target, pen.color, x, y);
    ++step;
  }
  return step;
}

/// The square of twice the distance from a wide pen's centre, drawn at pixel (x, y), is told by
/// comparing whole numbers: coordinates are doubled and an even pen sits half a pixel up and left.
inline bool nearSegment(int width, Wide x1, Wide y1, Wide x2, Wide y2, Wide x, Wide y) {
  const Wide even = width % 2 == 0 ? 1 : 0;
  const Wide px = 2 * (x - x1) + even, py = 2 * (y - y1) + even;
  const Wide dx = 2 * (x2 - x1), dy = 2 * (y2 - y1);
  const Wide square = Wide{width} * width;
  const Wide along = px * dx + py * dy, length2 = dx * dx + dy * dy;
  if (along <= 0) return px * px + py * py <= square;
  if (along >= length2) return (px - dx) * (px - dx) + (py - dy) * (py - dy) <= square;
  const Widest cross = Widest{px} * dy - Widest{py} * dx;
  return cross * cross <= Widest{square} * length2;
}

inline void dot(Target target, const Pen& pen, int x, int y) {
  if (pen.style == PenStyle::Null) return;
  if (pen.width == 1) return put(target, pen.color, x, y);
  paintWhere(target, pen.color,
             [&](int px, int py) { return nearSegment(pen.width, x, y, x, y, px, py); });
}

inline void line(Target target, const Pen& pen, int x1, int y1, int x2, int y2) {
  if (x1 == x2 && y1 == y2) return oracle::dot(target, pen, x1, y1);
  if (pen.style == PenStyle::Null) return;
  if (pen.width == 1) {
    paintInOrder(target, pen, thinLinePixels(x1, y1, x2, y2));
    return;
  }
  paintWhere(target, pen.color,
             [&](int x, int y) { return nearSegment(pen.width, x1, y1, x2, y2, x, y); });
}

inline void box(Target target, const Pen& pen, const Brush& brush, int x1, int y1, int x2, int y2) {
  if (x1 == x2 && y1 == y2) return oracle::dot(target, pen, x1, y1);
  const int l = std::min(x1, x2), t = std::min(y1, y2), r = std::max(x1, x2), b = std::max(y1, y2);
  const auto within = [](int left, int top, int right, int bottom) {
    return [=](int x, int y) { return x >= left && x <= right && y >= top && y <= bottom; };
  };
  if (pen.style == PenStyle::Null) return brushWhere(target, brush, within(l, t, r - 1, b - 1));
  if (pen.width == 1) {
    brushWhere(target, brush, within(l + 1, t + 1, r - 1, b - 1));
    Wide step = paintInOrder(target, pen, thinLinePixels(r, t, l, t));
    step = paintInOrder(target, pen, thinLinePixels(l, t, l, b), step);
    step = paintInOrder(target, pen, thinLinePixels(l, b, r, b), step);
    paintInOrder(target, pen, thinLinePixels(r, b, r, t), step);
    return;
  }
  const auto framed = [&](int x, int y) {
    return nearSegment(pen.width, l, t, r, t, x, y) || nearSegment(pen.width, l, t, l, b, x, y) ||
           nearSegment(pen.width, l, b, r, b, x, y) || nearSegment(pen.width, r, b, r, t, x, y);
  };
  const auto inside = within(l, t, r - 1, b - 1);
  brushWhere(target, brush, [&](int x, int y) { return inside(x, y) && !framed(x, y); });
  paintWhere(target, pen.color, framed);
}

/// A thin ellipse round (0, 0): its pixels are those that the curve or its inside comes within half
/// a pixel of, along the row or the column.
class ThinEllipse {
 public:
  ThinEllipse(double rx, double ry) : a_(rx), b_(ry) {}

  bool covers(Wide x, Wide y) const {
    const long double px = std::abs(static_cast<long double>(x));
    const long double py = std::abs(static_cast<long double>(y));
    return inside(std::max(px - 0.5L, 0.0L), py) || inside(px, std::max(py - 0.5L, 0.0L));
  }
  bool outlines(Wide x, Wide y) const {
    return covers(x, y) &&
           !(covers(x - 1, y) && covers(x + 1, y) && covers(x, y - 1) && covers(x, y + 1));
  }

  /// The outline of the upper right quarter from the right end to the top.
  std::vector<std::pair<Wide, Wide>> quarter() const {
    std::vector<std::pair<Wide, Wide>> pixels;
    Wide x = static_cast<Wide>(std::floor(a_ + 0.5));
    for (Wide y = 0; y <= static_cast<Wide>(std::floor(b_ + 0.5)); ++y) {
      while (x > 0 && !covers(x, y)) --x;
      Wide at = x;
      for (; at >= 0 && outlines(at, y); --at) pixels.emplace_back(at, y);
    }
    return pixels;
  }

 private:
  bool inside(long double x, long double y) const {
    return (x * x) * (b_ * b_) + (y * y) * (a_ * a_) <= (a_ * a_) * (b_ * b_);
  }
  long double a_, b_;
};

inline void brokenEllipse(Target target, const Pen& pen, int cx, int cy, const ThinEllipse& shape) {
  const auto quarter = shape.quarter();
  const Wide last = static_cast<Wide>(quarter.size()) - 1;
  for (Wide i = 0; i <= last; ++i) {
    const auto [x, y] = quarter[i];
    // Each pixel once, at its first step counterclockwise from the right end.
    if (isOn(pen.style, i)) put(target, pen.color, cx + x, cy - y);
    if (x != 0 && isOn(pen.style, 2 * last - i)) put(target, pen.color, cx - x, cy - y);
    if (y != 0 && isOn(pen.style, 2 * last + i)) put(target, pen.color, cx - x, cy + y);
    if (x != 0 && y != 0 && isOn(pen.style, 4 * last - i)) put(target, pen.color, cx + x, cy + y);
  }
}

inline void thinEllipse(Target target, const Pen& pen, const Brush& brush, int cx, int cy,
                        double rx, double ry) {
  const ThinEllipse shape(rx, ry);
  const auto covered = [&](int x, int y) { return shape.covers(Wide{x} - cx, Wide{y} - cy); };
  const auto outlined = [&](int x, int y) { return shape.outlines(Wide{x} - cx, Wide{y} - cy); };
  if (pen.style == PenStyle::Null) {
    return brushWhere(target, brush,
                      [&](int x, int y) { return covered(x, y) && !outlined(x, y); });
  }
  brushWhere(target, brush, covered);
  if (!strokesAndGaps(pen.style).empty()) return brokenEllipse(target, pen, cx, cy, shape);
  paintWhere(target, pen.color, outlined);
}

/// The distance from a point in the first quadrant to the ellipse: bisection on the multiplier of
/// the nearest point (a^2 x / (t + a^2), b^2 y / (t + b^2)).
inline double distanceToEllipse(double a, double b, double x, double y) {
  x = std::abs(x);
  y = std::abs(y);
  if (a < b) {
    std::swap(a, b);
    std::swap(x, y);
  }
  if (a == b) return std::abs(std::hypot(x, y) - a);
  // On the longer axis near the centre the nearest point lies off the axis.
  if (y == 0) {
    const double edge = (a * a - b * b) / a;
    if (x >= edge) return std::abs(x - a);
    const double c = a * x / (a * a - b * b);
    return std::hypot(x - a * c, b * std::sqrt(std::max(0.0, 1 - c * c)));
  }
  const auto excess = [&](long double t) {
    const long double u = a * x / (t + a * a), v = b * y / (t + b * b);
    return u * u + v * v - 1;
  };
  long double low = -static_cast<long double>(b) * b + static_cast<long double>(b) * y;
  long double high = low + std::hypot(a * x, b * y) + 1;
  for (int i = 0; i < 70; ++i) {
    const long double middle = (low + high) / 2;
    (excess(middle) > 0 ? low : high) = middle;
  }
  const double u = static_cast<double>(a * a * x / (low + a * a));
  const double v = static_cast<double>(b * b * y / (low + b * b));
  return std::hypot(x - u, y - v);
}

inline void wideEllipse(Target target, const Pen& pen, const Brush& brush, int cx, int cy,
                        double rx, double ry) {
  const double half = 0.5 * pen.width, shift = pen.width % 2 == 0 ? 0.5 : 0;
  // Distances are good to far more digits than this, and it decides pixels exactly on the rim.
  const double slack = 1e-9;
  const auto ring = [&](int x, int y) {
    return distanceToEllipse(rx, ry, x - cx + shift, y - cy + shift) <= half + slack;
  };
  const auto inside = [&](int x, int y) {
    const double u = (x - cx + shift) / rx, v = (y - cy + shift) / ry;
    return u * u + v * v < 1 && !ring(x, y);
  };
  brushWhere(target, brush, inside);
  paintWhere(target, pen.color, ring);
}

inline void flatEllipse(Target target, const Pen& pen, int cx, int cy, int rx, int ry) {
  if (pen.style == PenStyle::Null) return;
  if (pen.width > 1 || (rx == 0 && ry == 0)) {
    return oracle::line(target, pen, cx - rx, cy - ry, cx + rx, cy + ry);
  }
  auto pixels = thinLinePixels(cx - rx, cy - ry, cx + rx, cy + ry);
  pixels.emplace_back(cx + rx, cy + ry);
  paintInOrder(target, pen, pixels);
}

inline void ellipse(Target target, const Pen& pen, const Brush& brush, int cx, int cy, double rx,
                    double ry) {
  const auto rounded = [](double half) {
    return half <= 0.5 ? 0 : static_cast<int>(std::floor(half + 0.5));
  };
  if (rounded(rx) == 0 || rounded(ry) == 0) {
    return flatEllipse(target, pen, cx, cy, rounded(rx), rounded(ry));
  }
  if (pen.style != PenStyle::Null && pen.width > 1) {
    return wideEllipse(target, pen, brush, cx, cy, rx, ry);
  }
  thinEllipse(target, pen, brush, cx, cy, rx, ry);
}

inline void floodFill(Target target, const Brush& brush, int x, int y, Pixel region) {
  Bitmap& bitmap = target.bitmap;
  if (brush.style == BrushStyle::Null || !bitmap.contains(x, y) || bitmap.at(x, y) != region)
    return;
  std::vector<bool> found(static_cast<std::size_t>(bitmap.width()) * bitmap.height());
  std::queue<std::pair<int, int>> open;
  const auto reach = [&](int px, int py) {
    if (!bitmap.contains(px, py) || bitmap.at(px, py) != region) return;
    const std::size_t index = static_cast<std::size_t>(py) * bitmap.width() + px;
    if (found[index]) return;
    found[index] = true;
    open.emplace(px, py);
  };
  for (reach(x, y); !open.empty(); open.pop()) {
    const auto [px, py] = open.front();
    reach(px - 1, py);
    reach(px + 1, py);
    reach(px, py - 1);
    reach(px, py + 1);
  }
  brushWhere(target, brush, [&](int px, int py) {
    return found[static_cast<std::size_t>(py) * bitmap.width() + px];
  });
}

}  // namespace oracle
