// Lines and dots with any pen.
#include "surface/raster/thin.h"
#include "surface/raster/wide.h"

namespace raster {
namespace {

// Apart, so that the common line does not pay for what this one has to keep.
[[gnu::noinline]] Rect anyLine(const Target& target, const Pen& pen, int x1, int y1, int x2,
                               int y2) {
  if (pen.style == PenStyle::Null) return {};
  const Ink ink = inkOf(target.rop, pen.color);
  if (ink.leaves()) return {};
  if (isWide(pen)) {
    return capsule(SpanPainter(target.bitmap, ink), target.bitmap, pen.width, x1, y1, x2, y2);
  }
  if (hasGaps(pen.style)) {
    brokenThinLine(target.bitmap, ink, Pattern(pen.style), x1, y1, x2, y2, 0);
  } else {
    solidThinLine(target.bitmap, ink, x1, y1, x2, y2);
  }
  return changed(target.bitmap, std::min(x1, x2), std::min(y1, y2), std::max(x1, x2),
                 std::max(y1, y2));
}

}  // namespace

Rect dot(Target target, const Pen& pen, int x, int y) {
  if (pen.style == PenStyle::Null) return {};
  const SpanPainter painter(target, pen);
  if (painter.idle()) return {};
  if (isWide(pen)) return capsule(painter, target.bitmap, pen.width, x, y, x, y);
  if (!target.bitmap.contains(x, y)) return {};
  painter.span(y, x, x);
  return {x, y, x + 1, y + 1};
}

Rect line(Target target, const Pen& pen, int x1, int y1, int x2, int y2) {
  // What a child draws with most of the time takes the shortest way.
  const bool moves = x1 != x2 || y1 != y2;
  if (pen.style == PenStyle::Solid && pen.width == 1 && target.rop == kCopy && moves) {
    return copyThinLine(target.bitmap, pen.color | kOpaque, x1, y1, x2, y2);
  }
  return moves ? anyLine(target, pen, x1, y1, x2, y2) : dot(target, pen, x1, y1);
}

}  // namespace raster
