// The pictures that every contender paints: the same numbers for all of them, from fixed seeds.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace workloads {

struct Size {
  int width, height;
};

struct Point {
  int x, y;
};

struct Segment {
  Point from, to;
};

struct Oval {
  Point centre;
  int rx, ry;
};

/// A sheet of walls (true) and the region to fill, which holds the pixel `seed`.
struct Maze {
  Size size;
  std::vector<char> walls;
  Point seed;

  bool wall(int x, int y) const {
    return walls[static_cast<std::size_t>(y) * static_cast<std::size_t>(size.width) +
                 static_cast<std::size_t>(x)] != 0;
  }
};

/// Twenty freehand strokes, each a chain of 39 lines of 1 to 12 pixels.
std::vector<std::vector<Point>> strokes(Size size);
/// 10,000 lines between random pixels of the sheet.
std::vector<Segment> randomLines(Size size);
/// The upper left corners of 1,000 boxes of kBoxSide pixels.
std::vector<Point> boxes(Size size);
constexpr int kBoxSide = 40;
/// 500 ellipses, every other one a circle, with half axes of 5 to 80 pixels, inside the sheet.
std::vector<Oval> ovals(Size size);

Maze emptySheet(Size size);
Maze spiral(Size size);
Maze noise(Size size);
Maze hatchedArea(Size size);

}  // namespace workloads
