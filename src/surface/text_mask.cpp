// The painting of text, run by run.
#include "surface/text_mask.h"

#include <algorithm>
#include <cstddef>

namespace surface {

raster::Rect paintMask(raster::Target onto, const TextMask& mask, int x, int y,
                       raster::Pixel color) {
  const raster::Pen ink{raster::PenStyle::Solid, 1, color};
  const int left = x + mask.left, top = y + mask.top;
  // A text may be far longer than the surface.
  const raster::Rect seen =
      intersect({left, top, left + mask.width, top + mask.height}, onto.bitmap.bounds());
  raster::Rect changed;
  for (int line = seen.top; line < seen.bottom; ++line) {
    const std::uint8_t* row =
        mask.dots.data() + static_cast<std::ptrdiff_t>(line - top) * mask.width;
    const std::uint8_t* end = row + seen.right - left;
    // A line leaves its last pixel out.
    for (auto run = std::find(row + seen.left - left, end, 1); run != end;) {
      const auto after = std::find(run, end, 0);
      changed = unite(changed, raster::line(onto, ink, left + static_cast<int>(run - row), line,
                                            left + static_cast<int>(after - row), line));
      run = std::find(after, end, 1);
    }
  }
  return changed;
}

}  // namespace surface
