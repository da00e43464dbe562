// Recorded cases of drawing operations: reading their files, playing them on a bitmap and writing
// the pixels that came out.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "surface/raster/bitmap.h"

namespace replay {

using Words = std::vector<std::string>;

/// One case: a canvas, the operations on it, and the pixels that the file says come out.
struct Case {
  std::string name;
  int width = 0, height = 0;
  raster::Pixel background = 0;
  std::vector<Words> operations;
  raster::Bitmap expected;
};

/// All cases of a file; throws std::runtime_error where it breaks the format.
std::vector<Case> readCases(std::istream& in);

/// The canvas after the operations that prepare it, before the first that draws.
raster::Bitmap prepared(const Case& which);
/// The canvas after all operations; throws std::runtime_error at an unknown one.
raster::Bitmap play(const Case& which);

/// Writes a case and its pixels, without the operations.
void writeCase(std::ostream& out, const Case& which, const raster::Bitmap& pixels);

}  // namespace replay
