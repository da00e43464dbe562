// The race: every workload in our raster and in the peers that can paint it, on two sizes of sheet,
// and a table of our time over the best peer's at the end.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "../times.h"
#include "contender.h"

namespace {

using race::Contender;
using race::Job;
using workloads::Size;

/// Everything that is painted on one size of sheet.
struct Pictures {
  explicit Pictures(Size s)
      : size(s),
        strokes(workloads::strokes(s)),
        lines(workloads::randomLines(s)),
        boxes(workloads::boxes(s)),
        ovals(workloads::ovals(s)),
        empty(workloads::emptySheet(s)),
        spiral(workloads::spiral(s)),
        noise(workloads::noise(s)),
        hatched(workloads::hatchedArea(s)) {}

  Size size;
  std::vector<std::vector<workloads::Point>> strokes;
  std::vector<workloads::Segment> lines;
  std::vector<workloads::Point> boxes;
  std::vector<workloads::Oval> ovals;
  workloads::Maze empty, spiral, noise, hatched;
};

/// A discipline: what is painted, and the ratio to the best peer that we want to stay below.
struct Discipline {
  const char* name;
  double bar;
  Job (*job)(Contender&, const Pictures&);
};

const Discipline kDisciplines[] = {
    {"780 short lines, width 1", 0.5,
     [](Contender& c, const Pictures& p) { return c.chains(p.strokes, 1); }},
    {"  the same, a call for each", 0.5,
     [](Contender& c, const Pictures& p) { return c.pieces(p.strokes); }},
    {"780 short lines, width 8", 0.2,
     [](Contender& c, const Pictures& p) { return c.chains(p.strokes, 8); }},
    {"10000 random lines", 0.5, [](Contender& c, const Pictures& p) { return c.lines(p.lines); }},
    {"1000 filled boxes", 0.67, [](Contender& c, const Pictures& p) { return c.boxes(p.boxes); }},
    {"500 ellipses, outlined", 0.6,
     [](Contender& c, const Pictures& p) { return c.outlines(p.ovals); }},
    {"500 ellipses, filled", 0.6, [](Contender& c, const Pictures& p) { return c.discs(p.ovals); }},
    {"fill: empty sheet", 0.77, [](Contender& c, const Pictures& p) { return c.flood(p.empty); }},
    {"fill: spiral", 0.77, [](Contender& c, const Pictures& p) { return c.flood(p.spiral); }},
    {"fill: noise", 0.77, [](Contender& c, const Pictures& p) { return c.flood(p.noise); }},
    {"fill: hatched area", 0.77,
     [](Contender& c, const Pictures& p) { return c.flood(p.hatched); }},
    {"snapshot", 1.15, [](Contender& c, const Pictures&) { return c.snapshot(); }},
};
constexpr double kFillSumBar = 0.33, kFillLimitMs = 8;

struct Entrant {
  const char* name;
  race::Maker make;
};
const Entrant kOurs{"KrasPret", race::makeOurs};
const Entrant kPeers[] = {{"QPainter", race::makeQPainter}, {"Cairo", race::makeCairo},
                          {"OpenCV", race::makeOpenCv},     {"AGG", race::makeAgg},
                          {"SDL2_gfx", race::makeSdl},      {"memcpy", race::makeMemcpy}};

std::string sizeName(Size size) {
  return std::to_string(size.width) + "x" + std::to_string(size.height);
}

std::string runName(const Discipline& discipline, Size size, const Entrant& entrant) {
  return std::string(discipline.name) + "/" + sizeName(size) + "/" + entrant.name;
}

/// Stops the race if a peer paints another picture: then its time says nothing. The widest gap is
/// that of OpenCV, which knows odd widths only and makes 9 of 8.
void checkPainted(const std::string& name, long ours, long theirs) {
  constexpr double kTolerance = 0.12;
  const double ratio = ours == 0 ? 1 : double(theirs) / double(ours);
  if (std::abs(ratio - 1) <= kTolerance) return;
  std::fprintf(stderr, "%s paints %.3f times our pixels\n", name.c_str(), ratio);
  std::exit(1);
}

/// Paints the workload once and registers it; gives the pixels painted, -1 if there is no job.
long enter(const Discipline& discipline, const Pictures& pictures, const Entrant& entrant,
           std::vector<std::unique_ptr<Contender>>& contenders) {
  std::unique_ptr<Contender> contender = entrant.make(pictures.size);
  const Job job = discipline.job(*contender, pictures);
  if (!job) return -1;
  job();
  const long painted = contender->painted();
  contenders.push_back(std::move(contender));
  benchmark::RegisterBenchmark(runName(discipline, pictures.size, entrant).c_str(),
                               [job](benchmark::State& state) {
                                 for (auto _ : state) job();
                               })
      ->Unit(benchmark::kMillisecond);
  return painted;
}

void enterAll(const std::vector<Pictures>& sheets,
              std::vector<std::unique_ptr<Contender>>& contenders) {
  for (const Pictures& pictures : sheets) {
    for (const Discipline& discipline : kDisciplines) {
      const long ours = enter(discipline, pictures, kOurs, contenders);
      for (const Entrant& peer : kPeers) {
        const long theirs = enter(discipline, pictures, peer, contenders);
        if (theirs >= 0) checkPainted(runName(discipline, pictures.size, peer), ours, theirs);
      }
    }
  }
}

struct Best {
  const char* name = "";
  double time = 0;
};

Best bestPeer(const Times& times, const Discipline& discipline, Size size) {
  Best best;
  for (const Entrant& peer : kPeers) {
    const double time = times.milliseconds(runName(discipline, size, peer));
    if (time > 0 && (best.time == 0 || time < best.time)) best = {peer.name, time};
  }
  return best;
}

void printRow(const char* name, Size size, double ours, const Best& best, double bar) {
  const double ratio = ours / best.time;
  std::printf("%-27s %-10s %10.4f %10.4f  %-9s %6.3f %6.2f  %s\n", name, sizeName(size).c_str(),
              ours, best.time, best.name, ratio, bar, ratio <= bar ? "reached" : "MISSED");
}

void printTable(const Times& times, const std::vector<Pictures>& sheets) {
  std::printf("\n%-27s %-10s %10s %10s  %-9s %6s %6s\n", "workload", "sheet", "ours ms", "best ms",
              "peer", "ratio", "bar");
  for (const Pictures& pictures : sheets) {
    Best sum{"", 0};
    double ourSum = 0, slowest = 0;
    for (const Discipline& discipline : kDisciplines) {
      const double ours = times.milliseconds(runName(discipline, pictures.size, kOurs));
      const Best best = bestPeer(times, discipline, pictures.size);
      if (std::isnan(ours) || best.time == 0) continue;
      printRow(discipline.name, pictures.size, ours, best, discipline.bar);
      if (std::string(discipline.name).rfind("fill", 0) != 0) continue;
      sum = {best.name, sum.time + best.time};
      ourSum += ours;
      slowest = std::max(slowest, ours);
    }
    if (ourSum == 0) continue;
    printRow("fill: all four", pictures.size, ourSum, sum, kFillSumBar);
    printRow("fill: slowest, limit in ms", pictures.size, slowest, {"", kFillLimitMs}, 1);
  }
}

/// The times behind the ratios, for all contenders.
void printAll(const Times& times, const std::vector<Pictures>& sheets) {
  std::printf("\n%-27s %-10s %10s", "milliseconds", "sheet", kOurs.name);
  for (const Entrant& peer : kPeers) std::printf(" %10s", peer.name);
  for (const Pictures& pictures : sheets) {
    for (const Discipline& discipline : kDisciplines) {
      const double ours = times.milliseconds(runName(discipline, pictures.size, kOurs));
      if (std::isnan(ours)) continue;
      std::printf("\n%-27s %-10s %10.4f", discipline.name, sizeName(pictures.size).c_str(), ours);
      for (const Entrant& peer : kPeers) {
        const double time = times.milliseconds(runName(discipline, pictures.size, peer));
        std::isnan(time) ? std::printf(" %10s", "-") : std::printf(" %10.4f", time);
      }
    }
  }
  std::printf("\n");
}

}  // namespace

int main(int argc, char** argv) {
  // Interleaved short repetitions, unless the caller asks for others.
  std::vector<char*> arguments(argv, argv + argc);
  std::string defaults[] = {"--benchmark_enable_random_interleaving=true",
                            "--benchmark_repetitions=9", "--benchmark_min_time=0.02"};
  for (std::string& each : defaults) arguments.insert(arguments.begin() + 1, each.data());
  int count = static_cast<int>(arguments.size());
  benchmark::Initialize(&count, arguments.data());
  if (benchmark::ReportUnrecognizedArguments(count, arguments.data())) return 1;

  std::vector<Pictures> sheets;
  sheets.emplace_back(Size{617, 537});
  sheets.emplace_back(Size{1500, 1500});
  std::vector<std::unique_ptr<Contender>> contenders;
  enterAll(sheets, contenders);
  Times times;
  benchmark::RunSpecifiedBenchmarks(&times);
  printAll(times, sheets);
  printTable(times, sheets);
}
