// Copying a block at another size, without smoothing: which source pixel a target pixel takes.
#include <algorithm>
#include <vector>

#include "surface/raster/ink.h"
#include "surface/raster/versions.h"

namespace raster {
namespace {

/// Of several source pixels that fall on one target pixel the platform keeps the last column but
/// the first row.
enum class Keeps { First, Last };

/// The source pixel for target pixel i = 0..to-1 when `from` pixels become `to`.
int sample(int i, Wide from, Wide to, Keeps keeps) {
  if (to == from) return i;
  // Enlarging: the pixel under the middle of the target pixel, the lower one if it is on a border.
  if (to >= from) return static_cast<int>(ceilDiv((2 * i + 1) * from, 2 * to) - 1);
  if (to == 1) --from;
  if (keeps == Keeps::Last) return static_cast<int>(floorDiv(2 * from * (i + 1) - to, 2 * to));
  return i == 0 ? 0 : static_cast<int>(floorDiv(2 * from * i - to, 2 * to) + 1);
}

/// One axis of a stretch: source and target as ranges that run upwards, and whether one is turned.
struct Axis {
  int target, targetSize, source, sourceSize;
  bool mirrored;

  Axis(int t, int tsize, int s, int ssize)
      : target(tsize < 0 ? t + tsize : t),
        targetSize(tsize < 0 ? -tsize : tsize),
        source(ssize < 0 ? s + ssize : s),
        sourceSize(ssize < 0 ? -ssize : ssize),
        mirrored((tsize < 0) != (ssize < 0)) {}

  /// The source pixel for a target pixel, both as coordinates.
  int sourceOf(int at, Keeps keeps) const {
    const int i = mirrored ? targetSize - 1 - (at - target) : at - target;
    return source + sample(i, sourceSize, targetSize, keeps);
  }
};

/// The source pixels for the target pixels first..last-1 of an axis; -1 where there is none.
std::vector<int> sources(const Axis& axis, int first, int last, int available, Keeps keeps) {
  std::vector<int> result(static_cast<std::size_t>(last - first));
  for (int at = first; at < last; ++at) {
    const int from = axis.sourceOf(at, keeps);
    result[at - first] = from >= 0 && from < available ? from : -1;
  }
  return result;
}

// A row of a picture that is mirrored and nothing else.
WIDE_VERSIONS
void mirrorRow(Pixel* __restrict to, const Pixel* __restrict from, int count) {
  for (int i = 0; i < count; ++i) to[i] = from[count - 1 - i];
}

void stretchRow(Pixel* to, const Pixel* from, const std::vector<int>& columns) {
  for (const int column : columns) {
    if (column >= 0) *to = from[column];
    ++to;
  }
}

/// Whether the columns go through the source one by one, forwards (1) or backwards (-1), without
/// one that is missing.
bool run(const std::vector<int>& columns, int direction) {
  for (std::size_t i = 0; i < columns.size(); ++i)
    if (columns[i] < 0 || columns[i] != columns[0] + direction * static_cast<int>(i)) return false;
  return true;
}

}  // namespace

Rect stretch(Bitmap& target, int x, int y, int width, int height, const Bitmap& source, int sx,
             int sy, int swidth, int sheight) {
  if (swidth == 0 || sheight == 0) return {};
  if (&source == &target) {
    return stretch(target, x, y, width, height, Bitmap(source), sx, sy, swidth, sheight);
  }
  const Axis across(x, width, sx, swidth), down(y, height, sy, sheight);
  const Rect area =
      intersect(target.bounds(), {across.target, down.target, across.target + across.targetSize,
                                  down.target + down.targetSize});
  if (area.empty()) return {};
  const auto columns = sources(across, area.left, area.right, source.width(), Keeps::Last);
  const auto rows = sources(down, area.top, area.bottom, source.height(), Keeps::First);
  const bool forwards = run(columns, 1), backwards = run(columns, -1);
  for (int row = area.top; row < area.bottom; ++row) {
    const int from = rows[row - area.top];
    if (from < 0) continue;
    if (forwards)
      std::copy_n(source.row(from) + columns.front(), area.width(), target.row(row) + area.left);
    else if (backwards)
      mirrorRow(target.row(row) + area.left, source.row(from) + columns.back(), area.width());
    else
      stretchRow(target.row(row) + area.left, source.row(from), columns);
  }
  return area;
}

}  // namespace raster
