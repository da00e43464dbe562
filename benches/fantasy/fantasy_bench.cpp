// What a tick of each animation costs on a large window in its heaviest state, from the first
// random number to the list of what the screen must show anew. Closes with a table of the bars.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

#include "../times.h"
#include "fantasy/bliksem.h"
#include "fantasy/bloem.h"
#include "fantasy/modKaleidos.h"
#include "fantasy/sterren.h"
#include "fantasy/vuurwerk.h"
#include "fantasy/wiel.h"
#include "fantasy/wind.h"
#include "fantasy/worm.h"
#include "surface/dispatch.h"
#include "surface/form.h"

using namespace surface;

namespace {

constexpr int Width = 1920, Height = 1080;

// A form without a window, and a generator that starts the same in every run.
struct Stage {
  explicit Stage(ScaleUnit unit = ScaleTwips, Color back = Black)
      : form({.BackColor = back,
              .Width = Width * 15.0f,
              .Height = Height * 15.0f,
              .ScaleMode = unit}) {
    random.fix(1);
  }

  template <class Tick>
  void run(benchmark::State& state, Tick tick) {
    for (auto _ : state) dispatch(tick);
  }

  Form form;
  Random random;
};

// All hundred sparks climb as long as anybody looks.
void fireworks(benchmark::State& state) {
  Stage stage;
  Vuurwerk full;
  full.schiet(stage.form, stage.random);
  Vuurwerk vuurwerk = full;
  int tick = 0;
  stage.run(state, [&] {
    if (++tick % 20 == 0) vuurwerk = full;
    vuurwerk.vlieg(stage.form, stage.random);
  });
}

// The first figures of as many copies and steps as there can be; one tick is one of them.
void kaleidoscope(benchmark::State& state) {
  Stage stage(ScaleTwips, 0xE0E0E0);
  struct Start {
    Kaleidos kaleidos;
    Random random;
  };
  std::vector<Start> heaviest;
  for (std::uint32_t seed = 1; heaviest.size() < 12; ++seed) {
    Start start;
    start.random.fix(seed);
    start.kaleidos.nieuwBeeld = start.kaleidos.hoekMarkeren = true;
    Start after = start;
    after.kaleidos.figuurTekenen(stage.form, after.random);
    const bool large = after.kaleidos.beeldStraal > Width * 15 * 0.44;
    if (after.kaleidos.lijnTeller != 22 || after.kaleidos.aantalSpaken != 14 || !large) continue;
    if (stage.form.DrawStyle == 5) continue;
    heaviest.push_back(start);
  }
  std::size_t i = 0;
  stage.run(state, [&] {
    Start start = heaviest[i++ % heaviest.size()];
    start.kaleidos.figuurTekenen(stage.form, start.random);
  });
}

void worm(benchmark::State& state) {
  Stage stage;
  stage.form.FillStyle = 0;
  Worm worm;
  int tick = 0;
  stage.run(state, [&] {
    if (++tick % 80 == 0) worm = {};
    worm.kruipHeen(stage.form, stage.random);
  });
}

void lightning(benchmark::State& state) {
  Stage stage;
  Bliksem bliksem;
  stage.run(state, [&] {
    bliksem.doofStap = 0;
    bliksem.MakeFX(stage.form, stage.random, {stage.form.Width, stage.form.Height});
  });
}

void wheel(benchmark::State& state) {
  Stage stage;
  Wiel wiel;
  wiel.verkleinStap = 0;
  stage.run(state, [&] { wiel.stap(stage.form); });
}

void stars(benchmark::State& state) {
  Stage stage(ScalePixels);
  Sterren sterren;
  sterren.strooi(stage.form, stage.random);
  sterren.verdeel(stage.form);
  stage.run(state, [&] { sterren.drijf(stage.form, stage.random, Sterren::Kleurrijk); });
}

void flower(benchmark::State& state) {
  Stage stage;
  stage.run(state, [&] { bloemTekenen(stage.form, stage.random, Tempo::Snel); });
}

void wind(benchmark::State& state) {
  Stage stage;
  stage.run(state, [&] { windTekenen(stage.form, stage.random, 50); });
}

// What a tick would cost that always took the whole window.
void wholeWindow(benchmark::State& state) {
  const std::size_t bytes = std::size_t{Width} * Height * 4;
  std::vector<char> from(bytes, 1), to(bytes, 2);
  for (auto _ : state) {
    std::memcpy(to.data(), from.data(), bytes);
    benchmark::ClobberMemory();
  }
}

struct Contest {
  const char* name;
  void (*run)(benchmark::State&);
  double bar;  ///< milliseconds a tick
};

constexpr Contest Contests[] = {{"fireworks", fireworks, 1}, {"kaleidoscope", kaleidoscope, 1},
                                {"worm", worm, 1},           {"lightning", lightning, 1},
                                {"wheel", wheel, 1},         {"stars", stars, 1},
                                {"flower", flower, 4},       {"wind", wind, 4}};

bool table(const Times& times) {
  bool good = true;
  std::printf("\none tick on %d by %d; a copy of the whole window takes %.3f ms\n", Width, Height,
              times.milliseconds("window"));
  for (const Contest& contest : Contests) {
    const double time = times.milliseconds(contest.name);
    const bool reached = time <= contest.bar;
    good &= reached;
    std::printf("%-14s %8.4f ms  at most %4.1f%s\n", contest.name, time, contest.bar,
                reached ? "" : "  MISSED");
  }
  return good;
}

}  // namespace

int main(int argc, char** argv) {
  std::vector<char*> arguments(argv, argv + argc);
  std::string defaults[] = {"--benchmark_repetitions=5", "--benchmark_min_time=0.05"};
  for (std::string& each : defaults) arguments.insert(arguments.begin() + 1, each.data());
  int count = static_cast<int>(arguments.size());
  benchmark::Initialize(&count, arguments.data());
  for (const Contest& contest : Contests)
    benchmark::RegisterBenchmark(contest.name, contest.run)->Unit(benchmark::kMicrosecond);
  benchmark::RegisterBenchmark("window", wholeWindow)->Unit(benchmark::kMicrosecond);
  Times times;
  benchmark::RunSpecifiedBenchmarks(&times);
  return table(times) ? 0 : 1;
}
