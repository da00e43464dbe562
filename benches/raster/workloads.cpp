// Makes the pictures that every contender paints.
#include "workloads.h"

#include <algorithm>
#include <cmath>
#include <random>

namespace workloads {
namespace {

class Dice {
 public:
  explicit Dice(std::uint32_t seed) : engine_(seed) {}

  int number(int low, int high) {
    const std::uint64_t span = static_cast<std::uint64_t>(high - low + 1);
    return low + static_cast<int>((engine_() * span) >> 32);
  }

 private:
  std::mt19937 engine_;
};

Maze open(Size size) {
  return {size,
          std::vector<char>(static_cast<std::size_t>(size.width) *
                            static_cast<std::size_t>(size.height)),
          {0, 0}};
}

void setWall(Maze& maze, int x, int y, bool wall = true) {
  if (x < 0 || y < 0 || x >= maze.size.width || y >= maze.size.height) return;
  maze.walls[static_cast<std::size_t>(y) * static_cast<std::size_t>(maze.size.width) +
             static_cast<std::size_t>(x)] = wall;
}

}  // namespace

std::vector<std::vector<Point>> strokes(Size size) {
  constexpr int kStrokes = 20, kLines = 39, kLongest = 12, kMargin = 16;
  Dice dice(101);
  std::vector<std::vector<Point>> result;
  for (int s = 0; s < kStrokes; ++s) {
    Point at{dice.number(kMargin, size.width - kMargin),
             dice.number(kMargin, size.height - kMargin)};
    double heading = dice.number(0, 628) / 100.0;
    std::vector<Point> stroke{at};
    while (stroke.size() <= kLines) {
      heading += dice.number(-60, 60) / 100.0;
      const int length = dice.number(1, kLongest);
      const Point next{std::clamp(at.x + int(std::lround(length * std::cos(heading))), kMargin,
                                  size.width - kMargin),
                       std::clamp(at.y + int(std::lround(length * std::sin(heading))), kMargin,
                                  size.height - kMargin)};
      if (next.x == at.x && next.y == at.y) {
        heading += 1;
        continue;
      }
      at = next;
      stroke.push_back(at);
    }
    result.push_back(stroke);
  }
  return result;
}

std::vector<Segment> randomLines(Size size) {
  Dice dice(102);
  const auto point = [&] {
    const int x = dice.number(0, size.width - 1);
    return Point{x, dice.number(0, size.height - 1)};
  };
  std::vector<Segment> result;
  for (int i = 0; i < 10000; ++i) {
    const Point from = point();
    result.push_back({from, point()});
  }
  return result;
}

std::vector<Point> boxes(Size size) {
  Dice dice(103);
  std::vector<Point> result;
  for (int i = 0; i < 1000; ++i) {
    const int x = dice.number(0, size.width - kBoxSide);
    result.push_back({x, dice.number(0, size.height - kBoxSide)});
  }
  return result;
}

std::vector<Oval> ovals(Size size) {
  Dice dice(104);
  std::vector<Oval> result;
  for (int i = 0; i < 500; ++i) {
    const int rx = dice.number(5, 80), other = dice.number(5, 80), ry = i % 2 == 0 ? rx : other;
    const int x = dice.number(rx, size.width - 1 - rx);
    result.push_back({{x, dice.number(ry, size.height - 1 - ry)}, rx, ry});
  }
  return result;
}

Maze emptySheet(Size size) {
  Maze maze = open(size);
  maze.seed = {size.width / 3, size.height / 2};
  return maze;
}

// Walls of two pixels round a corridor of six, wound from the corner to the middle.
Maze spiral(Size size) {
  constexpr int kWall = 2, kTurn = 8;
  Maze maze = open(size);
  for (int low = kTurn - kWall; 2 * low < std::min(size.width, size.height) - 2 * kTurn;
       low += kTurn) {
    const int right = size.width - 1 - low, bottom = size.height - 1 - low;
    for (int k = 0; k < kWall; ++k) {
      for (int x = low - kTurn + kWall; x <= right + k; ++x) setWall(maze, x, low + k);
      for (int y = low; y <= bottom + k; ++y) setWall(maze, right + k, y);
      for (int x = low; x <= right + k; ++x) setWall(maze, x, bottom + k);
      for (int y = low + kTurn; y <= bottom + k; ++y) setWall(maze, low + k, y);
    }
  }
  return maze;
}

// A third of all pixels are walls: just few enough for the rest to hang together.
Maze noise(Size size) {
  Dice dice(105);
  Maze maze = open(size);
  for (char& wall : maze.walls) wall = dice.number(1, 100) <= 33;
  maze.seed = {size.width / 2, size.height / 2};
  while (maze.wall(maze.seed.x, maze.seed.y)) ++maze.seed.x;
  return maze;
}

// An area of diagonal hatch lines, eight pixels apart, with a margin that joins what is between.
Maze hatchedArea(Size size) {
  constexpr int kMargin = 20;
  Maze maze = open(size);
  for (int y = kMargin; y < size.height - kMargin; ++y) {
    for (int x = kMargin; x < size.width - kMargin; ++x) {
      if (x % 8 == y % 8) setWall(maze, x, y);
    }
  }
  return maze;
}

}  // namespace workloads
