// Rectangles: frames of every pen and what the brush paints inside them.
#include "surface/raster/thin.h"
#include "surface/raster/wide.h"

namespace raster {
namespace {

/// The corner pixels of a box, in order.
struct Corners {
  int left, top, right, bottom;
};

Corners ordered(int x1, int y1, int x2, int y2) {
  return {std::min(x1, x2), std::min(y1, y2), std::max(x1, x2), std::max(y1, y2)};
}

// The rows of a small box are far apart in memory and no processor foresees the next one: asking
// for it some rows ahead hides the way to the slower memory.
void fillPlain(Bitmap& bitmap, Pixel color, const Rect& area) {
  constexpr int kRowsAhead = 2, kPixelsOfCacheLine = 16;
  const int ahead = std::min(kRowsAhead, bitmap.height() - area.bottom);
  for (int y = area.top; y < area.bottom; ++y) {
    const Pixel* later = bitmap.row(y + ahead) + area.left;
    for (int x = 0; x < area.width(); x += kPixelsOfCacheLine) __builtin_prefetch(later + x, 1);
    __builtin_prefetch(later + area.width() - 1, 1);
    fillPixels(bitmap.row(y) + area.left, area.width(), color);
  }
}

Rect fill(const Target& target, const Brush& brush, const Corners& c) {
  const SpanPainter painter(target, brush);
  if (painter.idle()) return {};
  const Rect area = changed(target.bitmap, c.left, c.top, c.right, c.bottom);
  const Ink ink = inkOf(target.rop, brush.color);
  if (brush.style == BrushStyle::Solid && ink.covers()) {
    fillPlain(target.bitmap, ink.flip, area);
  } else {
    for (int y = area.top; y < area.bottom; ++y) painter.span(y, area.left, area.right - 1);
  }
  return area;
}

// Four lines, each without its last point, counterclockwise from the top right corner. A box one
// pixel wide is painted down and up again, and the gaps run on over the corners.
Rect thinFrame(const Target& target, const Pen& pen, const Corners& c) {
  const Ink ink = inkOf(target.rop, pen.color);
  if (ink.leaves()) return {};
  const int xs[] = {c.right, c.left, c.left, c.right, c.right};
  const int ys[] = {c.top, c.top, c.bottom, c.bottom, c.top};
  std::int64_t step = 0;
  for (int i = 0; i < 4; ++i) {
    if (hasGaps(pen.style)) {
      brokenThinLine(target.bitmap, ink, Pattern(pen.style), xs[i], ys[i], xs[i + 1], ys[i + 1],
                     step);
    } else {
      solidThinLine(target.bitmap, ink, xs[i], ys[i], xs[i + 1], ys[i + 1]);
    }
    step += i % 2 == 0 ? c.right - c.left : c.bottom - c.top;
  }
  return changed(target.bitmap, c.left, c.top, c.right, c.bottom);
}

/// True if frame and inside are painted alike, so that they are one area.
bool isOneFill(const Target& target, const Pen& pen, const Brush& brush) {
  return pen.style == PenStyle::Solid && brush.style == BrushStyle::Solid &&
         pen.color == brush.color && inkOf(target.rop, pen.color).covers();
}

// The pixels within half the pen's width of the sides: round outer corners, square inner ones.
Rect wideFrame(const Target& target, const Pen& pen, const Corners& outer, const Corners& hole,
               const Corners& c) {
  const SpanPainter painter(target, pen);
  if (painter.idle()) return {};
  const int even = isEven(pen.width);
  const std::uint8_t* reach = discs.of(pen.width);
  const Rows rows = visibleRows(target.bitmap, outer.top, outer.bottom);
  for (int y = rows.first; y <= rows.last; ++y) {
    const int beyond = y < c.top ? y - c.top : std::max(0, y - c.bottom);
    const int r = reach[pen.width / 2 + beyond];
    if (y < hole.top || y > hole.bottom) {
      painter.span(y, c.left - r, c.right + r - even);
    } else {
      painter.spanAround(y, c.left - r, c.right + r - even, hole.left, hole.right);
    }
  }
  return changed(target.bitmap, outer.left, outer.top, outer.right, outer.bottom);
}

Rect wideBox(const Target& target, const Pen& pen, const Brush& brush, const Corners& c) {
  const int before = pen.width / 2, after = pen.width - 1 - before;
  const Corners outer{c.left - before, c.top - before, c.right + after, c.bottom + after};
  const Corners hole{c.left + after + 1, c.top + after + 1, c.right - before - 1,
                     c.bottom - before - 1};
  const Rect framed = wideFrame(target, pen, outer, hole, c);
  return unite(framed, fill(target, brush, hole));
}

}  // namespace

Rect box(Target target, const Pen& pen, const Brush& brush, int x1, int y1, int x2, int y2) {
  if (x1 == x2 && y1 == y2) return dot(target, pen, x1, y1);
  const Corners c = ordered(x1, y1, x2, y2);
  // Without a pen the platform leaves out the last column and row.
  if (pen.style == PenStyle::Null) {
    return fill(target, brush, {c.left, c.top, c.right - 1, c.bottom - 1});
  }
  if (isWide(pen)) return wideBox(target, pen, brush, c);
  if (isOneFill(target, pen, brush)) return fill(target, brush, c);
  const Rect filled = fill(target, brush, {c.left + 1, c.top + 1, c.right - 1, c.bottom - 1});
  return unite(filled, thinFrame(target, pen, c));
}

Rect filledBox(Target target, const Pen& pen, int x1, int y1, int x2, int y2) {
  return box(target, pen, {BrushStyle::Solid, pen.color}, x1, y1, x2, y2);
}

}  // namespace raster
