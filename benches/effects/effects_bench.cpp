// The effects beside the best peers at the same work, on two sizes of sheet, one thread. Closes
// with a table of the bars; a copy of the sheet's bytes stands for the limit.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <functional>
#include <memory>
#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>
#include <random>
#include <string>
#include <vector>

#include "../times.h"
#include "effects/displacements.h"
#include "effects/gradient.h"
#include "effects/neighbour_effects.h"
#include "effects/point_effects.h"
#include "effects/rotation.h"
#include "studio/frmTekenen2.h"
#include "surface/app.h"
#include "surface/qt/toolkit.h"
#include "surface/random.h"

using namespace surface;
using raster::Bitmap;

namespace {

struct Size {
  int width, height;
  std::string name() const { return std::to_string(width) + "x" + std::to_string(height); }
};
constexpr Size Sizes[] = {{617, 537}, {1500, 1500}};

Bitmap noise(Size size) {
  std::mt19937 random(5);
  Bitmap picture(size.width, size.height, 0);
  for (int y = 0; y < size.height; ++y)
    for (int x = 0; x < size.width; ++x)
      picture.row(y)[x] = 0xFF000000u | static_cast<raster::Pixel>(random() & 0xFFFFFF);
  return picture;
}

// The same pixels for all, and room for each one's result.
struct Sheet {
  explicit Sheet(Size s)
      : size(s),
        picture(noise(s)),
        result(picture),
        image(QImage(reinterpret_cast<uchar*>(picture.row(0)), s.width, s.height,
                     QImage::Format_RGB32)
                  .copy()),
        imageResult(s.width, s.height, QImage::Format_RGB32),
        matrix(s.height, s.width, CV_8UC4, picture.row(0)),
        matrixResult(s.height, s.width, CV_8UC4) {
    for (int i = 0; i < 256; ++i)
      table.at<uchar>(i) = static_cast<uchar>(std::min(255.0, std::nearbyint(1.3 * i)));
  }

  // The inner pixels, moved by (dx, dy).
  cv::Mat inner(int dx, int dy) const {
    return matrix(cv::Rect(1 + dx, 1 + dy, size.width - 2, size.height - 2));
  }
  cv::Mat innerResult() { return matrixResult(cv::Rect(1, 1, size.width - 2, size.height - 2)); }

  Size size;
  Bitmap picture, result;
  QImage image, imageResult;
  cv::Mat matrix, matrixResult;
  cv::Mat table = cv::Mat(1, 256, CV_8U);
  cv::Mat step;  // what lies between two passes
};

using Job = std::function<void(Sheet&)>;
using Peer = std::pair<const char*, Job>;

// What we do, what the peers do, and how much of the best peer's time we may take, with some
// milliseconds on top. A bar in milliseconds alone has no peer and is the standard sheet's.
struct Discipline {
  const char* name;
  double share, milliseconds;
  Job ours;
  std::vector<Peer> peers;
};

Bitmap mirrored(const Bitmap& picture, bool leftToRight) {
  const int W = picture.width(), H = picture.height();
  Bitmap result = Bitmap::unfilled(W, H);
  raster::stretch(result, leftToRight ? W : 0, leftToRight ? 0 : H, leftToRight ? -W : W,
                  leftToRight ? H : -H, picture, 0, 0, W, H);
  return result;
}

void sharpenInTwo(Sheet& s) {
  cv::Mat to = s.innerResult();
  cv::addWeighted(s.inner(0, 0), 3, s.inner(-1, -1), -1, 0, s.step, CV_16S);
  s.step.convertTo(to, CV_8U, 0.5);
}
void sharpenInOne(Sheet& s) {
  cv::Mat to = s.innerResult();
  cv::addWeighted(s.inner(0, 0), 1.5, s.inner(-1, -1), -0.5, 0, to);
}
void embossInTwo(Sheet& s) {
  cv::Mat to = s.innerResult();
  cv::subtract(s.inner(0, 0), s.inner(1, 1), s.step, cv::noArray(), CV_16S);
  cv::convertScaleAbs(s.step, to, 1, 128);
}
void embossByFilter(Sheet& s) {
  static const cv::Mat slope = (cv::Mat_<float>(3, 3) << 0, 0, 0, 0, 1, 0, 0, 0, -1);
  cv::Mat to = s.innerResult();
  cv::filter2D(s.inner(0, 0), s.step, CV_16S, slope, {-1, -1}, 128);
  cv::convertScaleAbs(s.step, to);
}
void turnByPainter(Sheet& s, int degrees) {
  QPainter painter(&s.imageResult);
  painter.translate(s.size.width / 2.0, s.size.height / 2.0);
  painter.rotate(-degrees);
  painter.translate(-s.size.width / 2.0, -s.size.height / 2.0);
  painter.drawImage(0, 0, s.image);
}
void copyBytes(Sheet& s) { std::memcpy(s.matrixResult.data, s.matrix.data, s.matrix.total() * 4); }

// The result is dropped, and its memory is there for the next one, as on a sheet.
void keep(const Bitmap& result) { benchmark::DoNotOptimize(result.at(0, 0)); }

Discipline turn(const char* name, int degrees) {
  return {name,
          1,
          0,
          [angle = static_cast<float>(degrees * 3.14159265359 / 180)](Sheet& s) {
            effects::rotateInto(s.picture, s.result, angle);
          },
          {{"QPainter", [degrees](Sheet& s) { turnByPainter(s, degrees); }}}};
}

std::vector<Discipline> disciplines() {
  const Peer copy{"memcpy", copyBytes};
  const auto byOpenCv = [](Job job) { return Peer{"OpenCV", std::move(job)}; };
  return {
      {"blur",
       0.33,
       0,
       [](Sheet& s) { keep(effects::blurred(s.picture)); },
       {byOpenCv([](Sheet& s) {
         cv::blur(s.matrix, s.matrixResult, {3, 3});
       })}},
      {"sharpen",
       0.33,
       0,
       [](Sheet& s) { keep(effects::sharpened(s.picture)); },
       {byOpenCv(sharpenInTwo)}},
      {"sharpen, in one pass",
       1,
       0,
       [](Sheet& s) { keep(effects::sharpened(s.picture)); },
       {byOpenCv(sharpenInOne)}},
      {"emboss",
       0.33,
       0,
       [](Sheet& s) { keep(effects::embossed(s.picture)); },
       {byOpenCv(embossInTwo), {"filter2D", embossByFilter}}},
      {"brightness",
       0.8,
       0,
       [](Sheet& s) {
         keep(effects::scaled(s.picture, {1.3f, 1.3f, 1.3f}));
       },
       {byOpenCv([](Sheet& s) { cv::LUT(s.matrix, s.table, s.matrixResult); })}},
      {"invert", 1.15, 0, [](Sheet& s) { keep(effects::inverted(s.picture)); }, {copy}},
      {"chain", 2, 1, [](Sheet& s) { keep(effects::chained(s.picture)); }, {copy}},
      {"replace colours",
       2,
       1,
       [](Sheet& s) {
         keep(effects::scaled(s.picture, {0.27, 1.735, 1.01}));
       },
       {copy}},
      {"mirror left to right", 1.3, 0, [](Sheet& s) { keep(mirrored(s.picture, true)); }, {copy}},
      {"mirror top to bottom", 1.3, 0, [](Sheet& s) { keep(mirrored(s.picture, false)); }, {copy}},
      turn("rotate by 15", 15),
      turn("rotate by 30", 30),
      turn("rotate by 45", 45),
      turn("rotate by 75", 75),
      turn("rotate by 90", 90),
      turn("rotate by 180", 180),
      {"hammer", 0, 12, [](Sheet& s) { keep(effects::hammered(s.picture)); }, {}},
      {"scatter", 0, 10, [](Sheet& s) { keep(effects::scattered(s.picture, Rnd)); }, {}},
  };
}

// What needs a studio: through the handlers and the window.
frmTekenen2& studioWith(const Sheet& s) {
  auto& studio = the<frmTekenen2>();
  studio.picBlad.Width = static_cast<float>(s.size.width) * 15;
  studio.picBlad.Height = static_cast<float>(s.size.height) * 15;
  return studio;
}

std::vector<Discipline> studioDisciplines() {
  const Peer copy{"memcpy", copyBytes};
  const auto sweep = [](bool alongX) {
    return [alongX](Sheet& s) {
      effects::paintGradient(studioWith(s).picBlad, 0xFF0000, 0x0000FF, alongX);
    };
  };
  std::vector<Discipline> all = {
      {"gradient along x", 2, 1, sweep(true), {copy}},
      {"gradient along y", 2, 1, sweep(false), {copy}},
      {"mirror with its file",
       0,
       6,
       [](Sheet& s) { dispatch([&] { studioWith(s).cmdSpiegelH.Click(); }); },
       {}},
  };
  const std::pair<const char*, CommandButton frmTekenen2::*> buttons[] = {
      {"click: blur", &frmTekenen2::cmdVervagen},       {"click: emboss", &frmTekenen2::cmdRelief},
      {"click: scatter", &frmTekenen2::cmdVerspreiden}, {"click: invert", &frmTekenen2::cmdOmkeren},
      {"click: hammer", &frmTekenen2::cmdHamerslag},    {"click: rag", &frmTekenen2::cmdZaagrand}};
  for (const auto& [name, button] : buttons)
    all.push_back({name,
                   0,
                   50,
                   [clicked = button](Sheet& s) {
                     auto& studio = studioWith(s);
                     dispatch([&] { (studio.*clicked).Click(); });
                     studio.Timer2.Enabled = false;
                     QApplication::processEvents();
                   },
                   {}});
  return all;
}

std::string runName(const Discipline& d, const Sheet& s, const char* who) {
  return std::string(d.name) + "/" + s.size.name() + "/" + who;
}

void enter(const Discipline& d, Sheet& s) {
  const auto add = [&](const char* who, const Job& job) {
    benchmark::RegisterBenchmark(runName(d, s, who).c_str(), [job, &s](benchmark::State& state) {
      for (auto _ : state) job(s);
    })->Unit(benchmark::kMillisecond);
  };
  add("ours", d.ours);
  for (const auto& [who, job] : d.peers) add(who, job);
}

bool row(const Discipline& d, const Sheet& s, const Times& times) {
  const double ours = times.milliseconds(runName(d, s, "ours"));
  if (std::isnan(ours)) return true;  // not asked for
  double best = 0;
  const char* who = "-";
  for (const auto& [name, job] : d.peers) {
    const double time = times.milliseconds(runName(d, s, name));
    if (best == 0 || time < best) {
      best = time;
      who = name;
    }
  }
  const double bar = d.share * best + d.milliseconds;
  std::printf("%-22s %-10s %8.3f ms  %-9s %8.3f ms  ratio %6.3f  bar %7.3f ms  %s\n", d.name,
              s.size.name().c_str(), ours, who, best, best > 0 ? ours / best : 0.0, bar,
              ours <= bar ? "reached" : "MISSED");
  return ours <= bar;
}

}  // namespace

int main(int argc, char** argv) {
  int onlyName = 1;
  QApplication application(onlyName, argv);
  cv::setNumThreads(1);
  surface::qt::install();
  app().Path = std::filesystem::temp_directory_path().string();
  std::vector<char*> arguments(argv, argv + argc);
  std::string defaults[] = {"--benchmark_enable_random_interleaving=true",
                            "--benchmark_repetitions=9", "--benchmark_min_time=0.02"};
  for (std::string& each : defaults) arguments.insert(arguments.begin() + 1, each.data());
  int count = static_cast<int>(arguments.size());
  benchmark::Initialize(&count, arguments.data());

  the<frmTekenen2>().Show();
  std::vector<std::unique_ptr<Sheet>> sheets;
  for (const Size size : Sizes) sheets.push_back(std::make_unique<Sheet>(size));
  std::vector<std::pair<Discipline, Sheet*>> program;
  for (const auto& list : {disciplines(), studioDisciplines()})
    for (const auto& sheet : sheets)
      for (const Discipline& d : list)
        if (d.share > 0 || sheet == sheets.front()) program.emplace_back(d, sheet.get());
  for (const auto& [d, sheet] : program) enter(d, *sheet);
  Times times;
  benchmark::RunSpecifiedBenchmarks(&times);
  bool good = true;
  for (const auto& [d, sheet] : program) good &= row(d, *sheet, times);
  FormRegistry::instance().clear();
  return good ? 0 : 1;
}
