// The large studio at work: what a pointer event, a press, a fill and a panel cost, from the
// handler to the repainted window, beside a plain copy of the sheet or the best peer's lines; and
// the screens that open while a child waits.
// Closes with a table of the bars.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "../raster/contender.h"
#include "../times.h"
#include "small/frmKleurplaat.h"
#include "studio/frmTekenen2.h"
#include "surface/host.h"
#include "surface/qt/toolkit.h"
#include "text/frmTekst.h"

using namespace surface;

namespace {

constexpr workloads::Size Standard{617, 537}, Large{1500, 1500};

frmTekenen2& studioWith(workloads::Size size) {
  auto& studio = the<frmTekenen2>();
  studio.Show();
  studio.cmdNieuw.Click();
  studio.picBlad.Width = static_cast<float>(size.width) * 15;
  studio.picBlad.Height = static_cast<float>(size.height) * 15;
  QApplication::processEvents();
  return studio;
}

// The pointer between the two ends of one pencil stroke.
void pencilMove(benchmark::State& state, workloads::Size size) {
  auto& studio = studioWith(size);
  studio.cmdTekenen.Click();
  studio.picBlad.MouseDown({1, 0, 100, 100});
  float x = 100;
  for (auto _ : state) {
    x = x == 100.0f ? 108.0f : 100.0f;
    dispatch([&] { studio.picBlad.MouseMove({1, 0, x, 105}); });
  }
  studio.picBlad.MouseUp({1, 0, 100, 100});
}

// A brisk hand: once round a circle in 24 moves of 26 pixels.
constexpr int Moves = 24;

Mouse onCircle(int move) {
  const double angle = 2 * std::acos(-1.0) * move / Moves;
  return {1, 0, static_cast<float>(std::lround(300 + 100 * std::cos(angle))),
          static_cast<float>(std::lround(260 + 100 * std::sin(angle)))};
}

void artMove(benchmark::State& state) {
  auto& studio = studioWith(Standard);
  studio.cmdTekenen.Click();
  studio.cmdArt.Click();
  std::vector<Mouse> path;
  for (int move = 1; move <= Moves; ++move) path.push_back(onCircle(move));
  studio.picBlad.MouseDown(onCircle(0));
  for (auto _ : state)
    for (const Mouse& at : path) dispatch([&] { studio.picBlad.MouseMove(at); });
  studio.picBlad.MouseUp(onCircle(0));
}

// The same lines for the peers: the chain written out once more, run until it goes round steadily.
std::vector<std::vector<workloads::Point>> artStrokes() {
  const auto pixel = [](float x) { return static_cast<int>(std::nearbyint(x * 15)); };
  float x[40], y[40];
  std::fill_n(x, 40, onCircle(0).X / 15);
  std::fill_n(y, 40, onCircle(0).Y / 15);
  std::vector<std::vector<workloads::Point>> strokes;
  for (int move = 1; move <= 10 * Moves; ++move) {
    if (move == 9 * Moves + 1) strokes.clear();
    const float tx = onCircle(move).X / 15, ty = std::nearbyint(onCircle(move).Y / 15);
    const float dx = std::abs(tx - x[0]) / 20, dy = std::abs(ty - y[0]) / 20;
    for (int round = 0; round < 20; ++round) {
      auto& stroke = strokes.emplace_back();
      stroke.push_back({pixel(x[0]), pixel(y[0])});
      for (int k = 1; k < 40; ++k) {
        x[k] += (x[k - 1] - x[k]) / 4;
        y[k] += (y[k - 1] - y[k]) / 4;
        stroke.push_back({pixel(x[k]), pixel(y[k])});
      }
      x[0] += x[0] < tx ? dx : x[0] > tx ? -dx : 0;
      y[0] += y[0] < ty ? dy : y[0] > ty ? -dy : 0;
    }
  }
  return strokes;
}

void press(benchmark::State& state) {
  auto& studio = studioWith(Standard);
  studio.cmdTekenen.Click();
  for (auto _ : state) dispatch([&] { studio.picBlad.MouseDown({1, 0, 200, 200}); });
}

void copyOfTheSheet(benchmark::State& state) {
  const std::size_t bytes = std::size_t{617} * 537 * 4;
  std::vector<char> from(bytes, 1), to(bytes, 2);
  for (auto _ : state) {
    std::memcpy(to.data(), from.data(), bytes);
    benchmark::ClobberMemory();
  }
}

void fillToScreen(benchmark::State& state) {
  auto& studio = studioWith(Standard);
  studio.cmdTekenen.Click();
  studio.cmdOpvullen.Click();
  Color color = 0;
  for (auto _ : state) {
    color = color == 0 ? 0x40A0FF : 0;
    studio.picBlad.ForeColor = color;
    dispatch([&] { studio.picBlad.MouseDown({1, 0, 300, 300}); });
    QApplication::processEvents();
  }
}

void panels(benchmark::State& state) {
  auto& studio = studioWith(Standard);
  for (auto _ : state) {
    for (CommandButton* button :
         {&studio.cmdLijnen, &studio.cmdGommen, &studio.cmdLineaal, &studio.cmdVulling,
          &studio.cmdBorstels, &studio.cmdGradient, &studio.cmdEffecten}) {
      dispatch([&] { button->Click(); });
      QApplication::processEvents();
    }
    dispatch([&] { studio.cmdTekenen.Click(); });
    QApplication::processEvents();
  }
}

frmTekst& textForm() {
  auto& studio = the<frmTekenen2>();
  studio.cmdTekst.Click();
  dispatch([&] { studio.picBlad.MouseDown({1, 0, 100, 100}); });
  QApplication::processEvents();
  return dynamic_cast<frmTekst&>(*FormRegistry::instance().forms().back());
}

// From the click on the sheet to the window, on a system of many fonts.
void openTextForm(benchmark::State& state) {
  studioWith(Standard);
  const auto former = host().screenFonts;
  host().screenFonts = [&former] {
    std::vector<std::string> many = former();
    for (std::size_t i = 0; many.size() < 300; ++i) many.push_back(many[i]);
    return many;
  };
  for (auto _ : state) textForm().cmdAnnuleren.Click();
  host().screenFonts = former;
}

// From the click on "Voeg in" to the repainted sheet: eleven prints.
void placeDeepText(benchmark::State& state) {
  studioWith(Standard);
  for (auto _ : state) {
    state.PauseTiming();
    frmTekst& form = textForm();
    form.txtTekst.Text = "Hiep hiep hoera, het is feest";
    form.chk3Deffect.Value = 1;
    form.Slider1.Value = 10;
    QApplication::processEvents();
    state.ResumeTiming();
    dispatch([&] { form.cmdInvoegen.Click(); });
    QApplication::processEvents();
  }
}

// A screen of colouring pages, from the click to fifteen pictures on the screen.
void openPages(benchmark::State& state) {
  if (!std::filesystem::exists(app().Path + "/Beeld/01.gif"))
    return state.SkipWithError("the colouring pages are not beside the program");
  for (auto _ : state) {
    dispatch([] { showNew<frmKleurplaat>(); });
    QApplication::processEvents();
    state.PauseTiming();
    unloadAll<frmKleurplaat>();
    QApplication::processEvents();
    state.ResumeTiming();
  }
}

// The slowest first opening of a panel, when its controls are made.
double slowestFirstOpening() {
  auto& studio = studioWith(Standard);
  double slowest = 0;
  for (CommandButton* button :
       {&studio.cmdLijnen, &studio.cmdGommen, &studio.cmdLineaal, &studio.cmdVulling,
        &studio.cmdBorstels, &studio.cmdGradient, &studio.cmdEffecten}) {
    const auto begun = std::chrono::steady_clock::now();
    dispatch([&] { button->Click(); });
    QApplication::processEvents();
    slowest = std::max(
        slowest, std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - begun)
                     .count());
  }
  return slowest;
}

// The first text form, for which the toolkit looks at every font.
double firstTextForm() {
  studioWith(Standard);
  const auto begun = std::chrono::steady_clock::now();
  frmTekst& form = textForm();
  const std::chrono::duration<double, std::milli> taken = std::chrono::steady_clock::now() - begun;
  form.cmdAnnuleren.Click();
  return taken.count();
}

bool row(const char* what, double value, double bar, const char* unit) {
  std::printf("%-44s %9.3f  at most %7.2f %-24s%s\n", what, value, bar, unit,
              value <= bar ? "" : "  MISSED");
  return value <= bar;
}

bool table(const Times& times, double firstOpening, double firstText) {
  bool good = true;
  std::printf("\nart line: ours %.1f us, the best peer's lines %.1f us\n",
              1000 * times.milliseconds("art line"), 1000 * times.leastMilliseconds("peer: "));
  good &= row("pencil move, 617 x 537", 1000 * times.milliseconds("pencil 617"), 50, "us");
  good &= row("pencil move, 1500 x 1500", 1000 * times.milliseconds("pencil 1500"), 50, "us");
  good &= row("art line, 24 moves of the real handler",
              times.milliseconds("art line") / times.leastMilliseconds("peer: "), 0.5,
              "of the best peer's lines");
  good &= row("press: snapshots and first dot",
              times.milliseconds("press") / times.milliseconds("memcpy"), 2.3,
              "of a memcpy of the sheet");
  good &= row("fill, press to repainted window", times.milliseconds("fill"), 3, "ms");
  good &= row("seven panels and closing, each", times.milliseconds("panels") / 7, 16, "ms");
  good &= row("a panel's first opening, the slowest", firstOpening, 16, "ms");
  good &= row("a text form's first opening", firstText, 100, "ms");
  good &= row("a text form of 300 fonts opens", times.milliseconds("text form"), 100, "ms");
  good &=
      row("text of depth 10, click to repainted sheet", times.milliseconds("deep text"), 30, "ms");
  good &= row("a screen of colouring pages opens", times.milliseconds("pages"), 150, "ms");
  return good;
}

}  // namespace

int main(int argc, char** argv) {
  int onlyName = 1;
  QApplication application(onlyName, argv);
  surface::qt::install();
  app().Path = (std::filesystem::path(argv[0]).parent_path() / "../kraspret").string();
  std::vector<char*> arguments(argv, argv + argc);
  std::string defaults[] = {"--benchmark_enable_random_interleaving=true",
                            "--benchmark_repetitions=7", "--benchmark_min_time=0.05"};
  for (std::string& each : defaults) arguments.insert(arguments.begin() + 1, each.data());
  int count = static_cast<int>(arguments.size());
  benchmark::Initialize(&count, arguments.data());

  const double firstOpening = slowestFirstOpening(), firstText = firstTextForm();
  const auto enter = [](const char* name, auto run) {
    benchmark::RegisterBenchmark(name, run)->Unit(benchmark::kMicrosecond);
  };
  enter("pencil 617", [](benchmark::State& state) { pencilMove(state, Standard); });
  enter("pencil 1500", [](benchmark::State& state) { pencilMove(state, Large); });
  enter("art line", artMove);
  enter("press", press);
  enter("memcpy", copyOfTheSheet);
  enter("fill", fillToScreen);
  enter("panels", panels);
  enter("text form", openTextForm);
  enter("deep text", placeDeepText);
  enter("pages", openPages);
  const auto strokes = artStrokes();
  std::vector<std::unique_ptr<race::Contender>> peers;
  for (const race::Maker make :
       {race::makeQPainter, race::makeCairo, race::makeOpenCv, race::makeAgg, race::makeSdl})
    peers.push_back(make(Standard));
  const char* const names[] = {"peer: QPainter", "peer: Cairo", "peer: OpenCV", "peer: AGG",
                               "peer: SDL2_gfx"};
  for (std::size_t i = 0; i < peers.size(); ++i)
    if (const race::Job job = peers[i]->chains(strokes, 1))
      enter(names[i], [job](benchmark::State& state) {
        for (auto _ : state) job();
      });
  Times times;
  benchmark::RunSpecifiedBenchmarks(&times);
  const bool good = table(times, firstOpening, firstText);
  FormRegistry::instance().clear();
  return good ? 0 : 1;
}
