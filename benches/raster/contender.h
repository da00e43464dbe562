// What every contender of the race can do: one drawing library on a sheet of its own.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

#include "workloads.h"

namespace race {

using Job = std::function<void()>;

constexpr std::uint32_t kPaper = 0xFFFFFFFF, kInk = 0xFF2040C0;

/// A library on a sheet that starts as paper. Each function gives the job that paints one workload
/// once, in ink, without anti-aliasing; none if the library has nothing like it. Jobs and the
/// workloads they were made from live as long as the contender.
class Contender {
 public:
  virtual ~Contender() = default;

  virtual Job chains(const std::vector<std::vector<workloads::Point>>&, int /*width*/) {
    return {};
  }
  /// The same chains, width 1, with a call for every line where that is not the only way anyhow.
  virtual Job pieces(const std::vector<std::vector<workloads::Point>>& strokes) {
    return chains(strokes, 1);
  }
  virtual Job lines(const std::vector<workloads::Segment>&) { return {}; }
  virtual Job boxes(const std::vector<workloads::Point>&) { return {}; }
  virtual Job outlines(const std::vector<workloads::Oval>&) { return {}; }
  virtual Job discs(const std::vector<workloads::Oval>&) { return {}; }
  /// Fills the open region of the maze, by turns with ink and with paper: so the sheet is the same
  /// again after two runs and no copy is timed.
  virtual Job flood(const workloads::Maze&) { return {}; }
  virtual Job snapshot() { return {}; }

  /// How many pixels are not paper.
  virtual long painted() const = 0;
};

using Maker = std::unique_ptr<Contender> (*)(workloads::Size);

std::unique_ptr<Contender> makeOurs(workloads::Size size);
std::unique_ptr<Contender> makeQPainter(workloads::Size size);
std::unique_ptr<Contender> makeCairo(workloads::Size size);
std::unique_ptr<Contender> makeOpenCv(workloads::Size size);
std::unique_ptr<Contender> makeAgg(workloads::Size size);
std::unique_ptr<Contender> makeSdl(workloads::Size size);
/// Not a drawing library: a copy of the sheet's bytes into memory that is already there.
std::unique_ptr<Contender> makeMemcpy(workloads::Size size);

/// The pixels of `memory` whose colour is not paper.
inline long countPainted(const std::uint32_t* memory, std::size_t pixels) {
  long found = 0;
  for (std::size_t i = 0; i < pixels; ++i) {
    found += (memory[i] & 0xFFFFFF) != (kPaper & 0xFFFFFF) ? 1 : 0;
  }
  return found;
}

}  // namespace race
