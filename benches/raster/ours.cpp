// Our raster in the race.
#include <benchmark/benchmark.h>

#include <cstring>

#include "contender.h"
#include "surface/raster/draw.h"

namespace race {
namespace {

using raster::BrushStyle;
using raster::PenStyle;

class Ours : public Contender {
 public:
  explicit Ours(workloads::Size size) : sheet_(size.width, size.height, kPaper) {}

  // Thin chains all at once, as the art line is drawn.
  Job chains(const std::vector<std::vector<workloads::Point>>& strokes, int width) override {
    if (width != 1) return lineByLine(strokes, width);
    std::vector<raster::Spot> spots;
    for (const auto& stroke : strokes) {
      for (const auto& [x, y] : stroke) {
        spots.push_back({static_cast<std::int16_t>(x), static_cast<std::int16_t>(y)});
      }
    }
    const std::vector<raster::Pixel> colors(strokes.at(0).size() - 1, kInk);
    return [this, spots, colors, count = static_cast<int>(strokes.size())] {
      raster::strokes({sheet_}, kThin, spots.data(), count, colors.data(),
                      static_cast<int>(colors.size()));
    };
  }

  Job pieces(const std::vector<std::vector<workloads::Point>>& strokes) override {
    return lineByLine(strokes, 1);
  }

  Job lines(const std::vector<workloads::Segment>& segments) override {
    return [this, &segments] {
      for (const auto& [from, to] : segments) {
        raster::line({sheet_}, kThin, from.x, from.y, to.x, to.y);
      }
    };
  }

  Job boxes(const std::vector<workloads::Point>& corners) override {
    return [this, &corners] {
      constexpr int kLast = workloads::kBoxSide - 1;
      for (const auto& [x, y] : corners) {
        raster::filledBox({sheet_}, kThin, x, y, x + kLast, y + kLast);
      }
    };
  }

  Job outlines(const std::vector<workloads::Oval>& ovals) override {
    return [this, &ovals] {
      for (const auto& [centre, rx, ry] : ovals) {
        raster::ellipse({sheet_}, kThin, {}, centre.x, centre.y, rx, ry);
      }
    };
  }

  Job discs(const std::vector<workloads::Oval>& ovals) override {
    return [this, &ovals] {
      for (const auto& [centre, rx, ry] : ovals) {
        raster::ellipse({sheet_}, kThin, {BrushStyle::Solid, kInk}, centre.x, centre.y, rx, ry);
      }
    };
  }

  Job flood(const workloads::Maze& maze) override {
    for (int y = 0; y < maze.size.height; ++y) {
      for (int x = 0; x < maze.size.width; ++x) {
        if (maze.wall(x, y)) sheet_.row(y)[x] = kWall;
      }
    }
    return [this, seed = maze.seed] {
      const raster::Pixel region = sheet_.at(seed.x, seed.y);
      const raster::Brush brush{BrushStyle::Solid, region == kPaper ? kInk : kPaper};
      raster::floodFill({sheet_}, brush, seed.x, seed.y, region);
    };
  }

  Job snapshot() override {
    return [this] {
      const raster::Bitmap copy(sheet_);
      benchmark::DoNotOptimize(copy.row(0));
      benchmark::ClobberMemory();
    };
  }

  long painted() const override {
    return countPainted(sheet_.row(0), static_cast<std::size_t>(sheet_.width()) *
                                           static_cast<std::size_t>(sheet_.height()));
  }

 private:
  Job lineByLine(const std::vector<std::vector<workloads::Point>>& strokes, int width) {
    return [this, &strokes, pen = raster::Pen{PenStyle::Solid, width, kInk}] {
      for (const auto& stroke : strokes) {
        for (std::size_t i = 1; i < stroke.size(); ++i) {
          raster::line({sheet_}, pen, stroke[i - 1].x, stroke[i - 1].y, stroke[i].x, stroke[i].y);
        }
      }
    };
  }

  static constexpr raster::Pen kThin{PenStyle::Solid, 1, kInk};
  static constexpr raster::Pixel kWall = 0xFF000000;

  raster::Bitmap sheet_;
};

class Memcpy : public Contender {
 public:
  explicit Memcpy(workloads::Size size)
      : from_(static_cast<std::size_t>(size.width) * static_cast<std::size_t>(size.height), kPaper),
        to_(from_) {}

  Job snapshot() override {
    return [this] {
      std::memcpy(to_.data(), from_.data(), from_.size() * sizeof(from_[0]));
      benchmark::DoNotOptimize(to_.data());
      benchmark::ClobberMemory();
    };
  }

  long painted() const override { return 0; }

 private:
  std::vector<std::uint32_t> from_, to_;
};

}  // namespace

std::unique_ptr<Contender> makeOurs(workloads::Size size) { return std::make_unique<Ours>(size); }
std::unique_ptr<Contender> makeMemcpy(workloads::Size size) {
  return std::make_unique<Memcpy>(size);
}

}  // namespace race
