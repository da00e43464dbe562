// Marking tiles, and reading them back as rectangles.
#include "surface/tiles.h"

#include <algorithm>

namespace surface {

void Tiles::reset(int width, int height) {
  surface_ = {0, 0, width, height};
  columns_ = (width + Side - 1) / Side;
  // One more than there are: even a surface of no size has one to look at.
  marks_.assign(index(0, (height + Side - 1) / Side) + 1, None);
  bounds_ = {};
}

void Tiles::mark(const raster::Rect& area) {
  const raster::Rect seen = intersect(area, surface_);
  if (seen.empty()) return;
  bounds_ = unite(bounds_, seen);
  const int first = seen.left / Side, last = (seen.right - 1) / Side;
  for (int row = seen.top / Side; row <= (seen.bottom - 1) / Side; ++row)
    std::fill(&marks_[index(first, row)], &marks_[index(last, row)] + 1, Both);
}

std::vector<raster::Rect> Tiles::takeUnshown() {
  const raster::Rect within = bounds_;
  bounds_ = {};
  return change(Unshown, None, within);
}

std::vector<raster::Rect> Tiles::clear() {
  std::vector<raster::Rect> cleared = change(Painted, Unshown, surface_);
  for (const raster::Rect& area : cleared) bounds_ = unite(bounds_, area);
  return cleared;
}

// The tiles with the mark `from` lose it and get `to`.
std::vector<raster::Rect> Tiles::change(Mark from, Mark to, const raster::Rect& within) {
  std::vector<raster::Rect> found;
  if (within.empty()) return found;
  const int first = within.left / Side, last = (within.right - 1) / Side;
  for (int row = within.top / Side; row <= (within.bottom - 1) / Side; ++row) {
    std::uint8_t* const tiles = &marks_[index(0, row)];
    for (int column = first; column <= last; ++column) {
      if ((tiles[column] & from) == 0) continue;
      const int begin = column;
      for (; column <= last && (tiles[column] & from) != 0; ++column)
        tiles[column] = static_cast<std::uint8_t>((tiles[column] & ~from) | to);
      found.push_back(
          intersect({begin * Side, row * Side, column * Side, (row + 1) * Side}, within));
    }
  }
  return found;
}

}  // namespace surface
