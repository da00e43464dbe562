// Which parts of a surface were painted, in small tiles: sparks all over a window must not cost as
// much as the window.
#pragma once

#include <cstdint>
#include <vector>

#include "surface/raster/bitmap.h"

namespace surface {

/// Keeps, tile by tile, what was painted since the screen last showed it and since the surface was
/// last cleared.
class Tiles {
 public:
  static constexpr int Side = 16;  ///< pixels; a star or a spark takes as many as it touches

  /// Starts anew for a surface of this size in pixels, with nothing painted.
  void reset(int width, int height);

  /// A rectangle of pixels was painted; what lies outside of the surface counts for nothing.
  void paint(const raster::Rect& area) {
    if (!known(area)) mark(area);
  }
  /// Whether anything was painted that the screen has not shown.
  bool unshown() const { return !bounds_.empty(); }
  /// All that the screen has not shown, as rectangles without overlaps: from top to bottom, those
  /// of one row of tiles from left to right and equally high. It counts as shown from now on.
  std::vector<raster::Rect> takeUnshown();
  /// All that was painted since the last clearing, in the same order. It counts as cleared from now
  /// on, which the screen has not shown.
  std::vector<raster::Rect> clear();

 private:
  enum Mark : std::uint8_t { None = 0, Unshown = 1, Painted = 2, Both = 3 };

  // The many dots of an animation fall into few tiles.
  bool known(const raster::Rect& area) const {
    if (area.left < bounds_.left || area.top < bounds_.top || area.right > bounds_.right ||
        area.bottom > bounds_.bottom)
      return false;
    const int column = area.left / Side, row = area.top / Side;
    return (area.right - 1) / Side == column && (area.bottom - 1) / Side == row &&
           marks_[index(column, row)] == Both;
  }
  std::size_t index(int column, int row) const {
    return static_cast<std::size_t>(row) * static_cast<std::size_t>(columns_) +
           static_cast<std::size_t>(column);
  }
  void mark(const raster::Rect& area);
  std::vector<raster::Rect> change(Mark from, Mark to, const raster::Rect& within);

  raster::Rect surface_;
  int columns_ = 0;
  std::vector<std::uint8_t> marks_;
  raster::Rect bounds_;  ///< the smallest rectangle that holds all that is unshown
};

}  // namespace surface
