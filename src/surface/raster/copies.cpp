// Copying blocks from bitmap to bitmap, at equal size.
#include <cstring>

#include "surface/raster/ink.h"

namespace raster {
namespace {

/// The target pixels of a copy that have a source pixel, and the way from one to the other.
struct Block {
  Rect area;
  int toSourceX, toSourceY;
};

Block block(const Bitmap& target, int x, int y, int width, int height, const Bitmap& source, int sx,
            int sy) {
  const int dx = sx - x, dy = sy - y;
  const Rect available{-dx, -dy, source.width() - dx, source.height() - dy};
  return {intersect(intersect(target.bounds(), {x, y, x + width, y + height}), available), dx, dy};
}

Bitmap excerpt(const Bitmap& bitmap, const Rect& area) {
  Bitmap part(area.width(), area.height(), 0);
  blit(part, 0, 0, area.width(), area.height(), bitmap, area.left, area.top);
  return part;
}

}  // namespace

Rect blit(Bitmap& target, int x, int y, int width, int height, const Bitmap& source, int sx,
          int sy) {
  const Block b = block(target, x, y, width, height, source, sx, sy);
  const auto copyRow = [&](int row) {
    std::memmove(target.row(row) + b.area.left,
                 source.row(row + b.toSourceY) + b.area.left + b.toSourceX,
                 static_cast<std::size_t>(b.area.width()) * sizeof(Pixel));
  };
  // Within one bitmap a block that moves down must not overwrite the rows it still needs.
  if (b.toSourceY < 0) {
    for (int row = b.area.bottom; row-- > b.area.top;) copyRow(row);
  } else {
    for (int row = b.area.top; row < b.area.bottom; ++row) copyRow(row);
  }
  return b.area;
}

Rect blitXor(Bitmap& target, int x, int y, int width, int height, const Bitmap& source, int sx,
             int sy) {
  const Block b = block(target, x, y, width, height, source, sx, sy);
  if (b.area.empty()) return {};
  if (&source == &target) {
    const Rect from{b.area.left + b.toSourceX, b.area.top + b.toSourceY, b.area.right + b.toSourceX,
                    b.area.bottom + b.toSourceY};
    return blitXor(target, b.area.left, b.area.top, b.area.width(), b.area.height(),
                   excerpt(source, from), 0, 0);
  }
  for (int row = b.area.top; row < b.area.bottom; ++row) {
    const Pixel* from = source.row(row + b.toSourceY) + b.area.left + b.toSourceX;
    Pixel* to = target.row(row) + b.area.left;
    for (int i = 0; i < b.area.width(); ++i) to[i] = (to[i] ^ from[i]) | kOpaque;
  }
  return b.area;
}

}  // namespace raster
