// Kaleidoscope, wheel, flower and wind, each held against what it means, said statement by
// statement.
#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <set>

#include "fantasy/bloem.h"
#include "fantasy/modKaleidos.h"
#include "fantasy/paper.h"
#include "fantasy/wiel.h"
#include "fantasy/wind.h"

using namespace surface;
using fantasy::painted;
using fantasy::paper;
using fantasy::Papers;

namespace {

constexpr Color Grey = 0xE0E0E0;

// Every spoke at every step, mirror sign and copy.
struct LiteralKaleidoscope {
  bool nieuwBeeld = true, enkeleSpaak = false, hoekMarkeren = true;
  double beeldStraal = 0;
  float aantalSpaken = 0;
  int lijnTeller = 0;

  void draw(Form& blad, Random& random) {
    if (nieuwBeeld) {
      nieuwBeeld = false;
      lijnTeller = 0;
      aantalSpaken = static_cast<float>(2 * std::floor(random.Rnd() * 5.0) + 6);
      const double side = random.Rnd() > 0.5 ? blad.ScaleWidth() : blad.ScaleHeight();
      beeldStraal = side * 0.9 / 2;
      blad.BackColor = Grey;  // wipes all of it, whatever was painted
    }
    const int steps = static_cast<int>(std::floor(random.Rnd() * 20.0)) + 3;
    const double unit = random.Rnd() * 3.1415926538 / aantalSpaken;
    const int kind = static_cast<int>(std::floor(random.Rnd() * 3.0));
    blad.FillStyle = 1;
    blad.DrawStyle = static_cast<int>(std::lrint(random.Rnd() * 6.0));
    double angle1 = random.Rnd() * unit;
    double angle2 = angle1 - random.Rnd() * unit;
    double radius1 = std::floor(beeldStraal * random.Rnd());
    double radius2 = std::floor(beeldStraal * random.Rnd());
    const int red = static_cast<int>(std::floor(random.Rnd() * 256.0));
    const int green = static_cast<int>(std::floor(random.Rnd() * 256.0));
    const int blue = static_cast<int>(std::floor(random.Rnd() * 256.0));
    const double radiusFactor1 = random.Rnd() / 50.0 + 0.998;
    const double radiusFactor2 = random.Rnd() / 50.0 + 0.998;
    const double angleFactor1 = random.Rnd() / 10.0 + 1;
    const double angleFactor2 = random.Rnd() / 10.0 + 1;
    const double circleFactor = random.Rnd() / 10.0 + 0.9;
    double circle = random.Rnd() * 300.0 + 50;
    const Color color = RGB(red, green, blue);
    for (int step = 1; step <= steps; ++step) {
      ++lijnTeller;
      circle *= circleFactor;
      angle1 *= angleFactor1;
      angle2 *= angleFactor2;
      radius1 *= radiusFactor1;
      radius2 *= radiusFactor2;
      for (int s = -1; s <= 1; s += 2) {
        if (enkeleSpaak && s == -1) continue;
        for (int j = 1; j <= static_cast<int>(aantalSpaken); ++j) {
          if (enkeleSpaak) j = static_cast<int>(aantalSpaken);
          const double cx = blad.ScaleWidth() / 2.0, cy = blad.ScaleHeight() / 2.0;
          const double t = j * 6.2831853076 / aantalSpaken;
          const PointF first{static_cast<float>(cx + radius1 * std::sin(s * angle1 + t)),
                             static_cast<float>(cy + radius1 * std::cos(s * angle1 + t))};
          const PointF second{static_cast<float>(cx + radius2 * std::sin(s * angle2 + t)),
                              static_cast<float>(cy + radius2 * std::cos(s * angle2 + t))};
          if (hoekMarkeren)
            blad.Line({static_cast<float>(cx), static_cast<float>(cy)},
                      {static_cast<float>(cx + beeldStraal * std::sin(t)),
                       static_cast<float>(cy + beeldStraal * std::cos(t))},
                      0xFFFFFF);
          if (kind == 1) blad.Line(first, second, color);
          if (kind == 2) {
            blad.FillColor = color;
            blad.FillStyle = 0;
            step = steps;
          }
          if (kind != 1) blad.Circle(first, static_cast<float>(circle), color);
        }
      }
    }
  }
};

bool isSpoke(const script::Drawn& drawn) {
  return drawn.shape == script::Drawn::Line && drawn.color == toPixel(White);
}

// A spoke is the same line in every step: the last time is the one that is seen.
script::Trace spokesOnce(script::Trace trace) {
  trace = fantasy::withoutClearing(std::move(trace));
  script::Trace backwards;
  for (; !trace.empty(); trace.pop_back()) {
    const auto& each = trace.back();
    if (isSpoke(each) && std::find(backwards.begin(), backwards.end(), each) != backwards.end())
      continue;
    backwards.push_back(each);
  }
  std::reverse(backwards.begin(), backwards.end());
  return backwards;
}

}  // namespace

TEST(Kaleidoscope, DrawsFigureUponFigureAsItIsToldInEveryStyleAndWithAndWithoutSpokes) {
  Papers papers(paper(800, 600, Grey), 31);
  Kaleidos kaleidos;
  LiteralKaleidoscope literal;
  for (int figure = 0; figure < 300; ++figure) {
    kaleidos.nieuwBeeld = literal.nieuwBeeld = figure % 12 == 0;
    kaleidos.hoekMarkeren = literal.hoekMarkeren = figure / 24 % 2 == 0;
    kaleidos.enkeleSpaak = literal.enkeleSpaak = figure % 25 == 24;
    ASSERT_TRUE(
        papers.agree([&](Form& blad, Random& random) { kaleidos.figuurTekenen(blad, random); },
                     [&](Form& blad, Random& random) { literal.draw(blad, random); }, spokesOnce))
        << "figure " << figure;
    ASSERT_EQ(kaleidos.beeldStraal, literal.beeldStraal);
    ASSERT_EQ(kaleidos.aantalSpaken, literal.aantalSpaken);
    ASSERT_EQ(kaleidos.lijnTeller, literal.lijnTeller);
    ASSERT_EQ(papers.ours.DrawStyle, papers.literal.DrawStyle);
    ASSERT_EQ(papers.ours.FillStyle, papers.literal.FillStyle);
  }
  EXPECT_GT(papers.calls, 10'000u);
}

TEST(Kaleidoscope, TheSpokesLieAboveTheEarlierStepsOfTheirOwnFigure) {
  Form form(paper(800, 600, Grey));
  Random random;
  random.fix(12);
  Kaleidos kaleidos;
  kaleidos.hoekMarkeren = true;
  for (int figure = 0; figure < 20; ++figure) {
    kaleidos.nieuwBeeld = true;
    const auto drawn = spokesOnce(script::traceOf([&] { kaleidos.figuurTekenen(form, random); }));
    const auto first = std::find_if(drawn.begin(), drawn.end(), isSpoke);
    const auto spokes = static_cast<int>(kaleidos.aantalSpaken);
    EXPECT_EQ(std::count_if(first, drawn.end(), isSpoke), spokes);
    EXPECT_EQ(drawn.end() - first, 2 * spokes) << "each with the copy that follows it";
  }
}

TEST(Kaleidoscope, TheDiscsLeaveTheirFillOnlyUntilTheNextFigure) {
  Form form(paper(800, 600, Grey));
  Random random;
  random.fix(9);
  Kaleidos kaleidos;
  kaleidos.nieuwBeeld = true;
  int discs = 0;
  for (int figure = 0; figure < 60; ++figure) {
    const auto drawn = script::traceOf([&] { kaleidos.figuurTekenen(form, random); });
    const bool filled = form.FillStyle == 0;
    discs += filled;
    for (const auto& each : drawn)
      if (each.shape == script::Drawn::Ellipse) {
        EXPECT_EQ(each.brush == raster::BrushStyle::Solid, filled) << "figure " << figure;
      }
  }
  EXPECT_GT(discs, 5);
}

TEST(Kaleidoscope, ANewPictureWipesTheFormerOneAndHasAnEvenNumberOfSpokes) {
  Form form(paper(800, 600, Grey));
  Random random;
  random.fix(3);
  Kaleidos kaleidos;
  for (int picture = 0; picture < 50; ++picture) {
    form.Line({0, 0}, {150, 150}, 0x0000FF, BF);
    kaleidos.nieuwBeeld = true;
    kaleidos.figuurTekenen(form, random);
    EXPECT_FALSE(kaleidos.nieuwBeeld);
    EXPECT_NE(form.Point({15, 15}), 0x0000FF);
    const int spokes = static_cast<int>(kaleidos.aantalSpaken);
    EXPECT_TRUE(spokes >= 6 && spokes <= 14 && spokes % 2 == 0) << spokes;
    EXPECT_TRUE(kaleidos.beeldStraal == 5400 || kaleidos.beeldStraal == 4050)
        << kaleidos.beeldStraal;
  }
}

TEST(Kaleidoscope, TheInvisibleStyleShowsNoLinesButTheDiscsAreFilled) {
  Form form(paper(800, 600, Grey));
  Random random;
  random.fix(1);
  Kaleidos kaleidos;
  int hidden = 0, discs = 0;
  for (int figure = 0; figure < 300; ++figure) {
    kaleidos.nieuwBeeld = true;
    kaleidos.figuurTekenen(form, random);
    if (form.DrawStyle != 5) continue;
    const bool filled = form.FillStyle == 0;
    EXPECT_EQ(painted(form, Grey) > 0, filled);
    ++(filled ? discs : hidden);
  }
  EXPECT_GT(hidden, 0);
  EXPECT_GT(discs, 0);
}

namespace {

struct LiteralWheel {
  double x = 0;
  long y = 0;
  float radius = 3900, angle = 0, shrink = 10;
  int phase = 1, step = 2;
  double red = 255, green = 0, blue = 0;

  void tick(Form& blad) {
    const double px = std::sin(static_cast<double>(angle)) * radius + 6000;
    const double py = std::cos(static_cast<double>(angle)) * radius + 4100;
    blad.Line({static_cast<float>(x), static_cast<float>(y)},
              {static_cast<float>(px), static_cast<float>(py)},
              RGB(static_cast<int>(std::lrint(red)), static_cast<int>(std::lrint(green)),
                  static_cast<int>(std::lrint(blue))));
    blad.DrawMode = 13;
    blad.DrawStyle = 0;
    x = px;
    y = std::lrint(py);
    angle = 3.0f + angle;
    radius = radius - shrink;
    double* const channels[] = {&green, &red, &blue};
    double& channel = *channels[(phase - 1) % 3];
    const bool up = phase % 2 == 1;
    channel += up ? step : -step;
    if (up ? channel > 255 : channel < step) {
      channel = up ? 255 : 0;
      phase = phase % 6 + 1;
    }
  }
};

}  // namespace

TEST(Wheel, TurnsAsItIsToldGlidingAndJumping) {
  for (const int colorStep : {2, 255, 7}) {
    Papers papers(paper(800, 600, Grey), 1);
    Wiel wiel;
    LiteralWheel literal;
    wiel.kleurStap = literal.step = colorStep;
    wiel.huidigRood = 255;
    for (Form* blad : {&papers.ours, &papers.literal}) {
      blad->DrawMode = 16;
      blad->DrawStyle = 5;
    }
    int lines = 0;
    for (; !wiel.klaar(); ++lines) {
      ASSERT_TRUE(papers.agree([&](Form& blad, Random&) { wiel.stap(blad); },
                               [&](Form& blad, Random&) { literal.tick(blad); }))
          << "line " << lines;
      ASSERT_EQ(wiel.kleurFase, literal.phase);
    }
    EXPECT_EQ(lines, 390);
    EXPECT_EQ(papers.calls, 390u);
  }
}

TEST(Wheel, ThreeRadiansAreALittleLessThanHalfATurnSoTheSpokesCrossTheMiddle) {
  Form form(paper(800, 600, Grey));
  Wiel wiel;
  wiel.stap(form);
  EXPECT_EQ(wiel.hoek, 3);
  const auto [x, y] = std::pair(wiel.puntX, wiel.puntY);
  wiel.stap(form);
  const double length = std::hypot(wiel.puntX - x, wiel.puntY - y);
  EXPECT_GT(length, 2 * 3850) << "twips; the wheel is 7800 wide";
}

TEST(Wheel, AWindowSmallerThanTheWheelCutsItOffAndTheMiddleStays) {
  Form form(paper(300, 200, Grey));
  Wiel wiel;
  wiel.verkleinStap = 0;
  for (int line = 0; line < 200; ++line) wiel.stap(form);
  EXPECT_EQ(wiel.middenX, 6000);
  EXPECT_EQ(wiel.middenY, 4100);
  EXPECT_GT(painted(form, Grey), 0) << "its left part";
}

TEST(Wheel, InJumpsItKnowsPureColoursOnly) {
  Form form(paper(800, 600, Grey));
  Wiel wiel;
  wiel.kleurStap = 255;
  wiel.huidigRood = 255;
  std::set<std::array<int, 3>> seen;
  for (int line = 0; line < 24; ++line) {
    wiel.stap(form);
    seen.insert(
        {static_cast<int>(wiel.huidigRood), static_cast<int>(wiel.huidigGroen), wiel.huidigBlauw});
  }
  const std::set<std::array<int, 3>> pure = {{255, 0, 0},   {255, 255, 0}, {0, 255, 0},
                                             {0, 255, 255}, {0, 0, 255},   {255, 0, 255}};
  EXPECT_EQ(seen, pure);
}

TEST(Wheel, TheFirstLineOfARunDoesNotShow) {
  Form form(paper(800, 600, Grey));
  form.DrawMode = 16;
  form.DrawStyle = 5;
  Wiel wiel;
  wiel.stap(form);
  EXPECT_EQ(painted(form, Grey), 0);
  wiel.stap(form);
  EXPECT_GT(painted(form, Grey), 400);
}

TEST(Wheel, TheFirstColourWalksRoundTheCircleAndTheFarEndIsBlack) {
  struct Stop {
    int at, red, green, blue;
  };
  constexpr Stop Stops[] = {{0, 255, 0, 0},      {255, 255, 255, 0},  {256, 256, 255, 0},
                            {511, 1, 255, 0},    {512, 0, 255, 0},    {767, 0, 255, 255},
                            {768, 0, 256, 255},  {1023, 0, 1, 255},   {1024, 0, 0, 255},
                            {1279, 255, 0, 255}, {1280, 255, 0, 256}, {1535, 255, 0, 1},
                            {1536, 0, 0, 0}};
  Wiel wiel;
  for (const Stop& stop : Stops) {
    wiel.kiesBeginkleur(stop.at);
    EXPECT_EQ(wiel.beginRood, stop.red) << stop.at;
    EXPECT_EQ(wiel.beginGroen, stop.green) << stop.at;
    EXPECT_EQ(wiel.beginBlauw, stop.blue) << stop.at;
  }
}

TEST(Wheel, AShrinkOfZeroNeverEnds) {
  Form form(paper(800, 600, Grey));
  Wiel wiel;
  wiel.verkleinStap = 0;
  for (int line = 0; line < 5000; ++line) wiel.stap(form);
  EXPECT_FALSE(wiel.klaar());
  EXPECT_EQ(wiel.straal, 3900);
}

namespace {

int literalFlower(Form& blad, Random& random, Tempo tempo) {
  blad.setUserScale({3, -3}, {-6, 6});
  const auto limit = static_cast<float>(std::atan(1.0) * (tempo == Tempo::Traag ? 15.0 : 150.0));
  blad.ForeColor = QBColor(static_cast<int>(std::lrint(random.Rnd() * 15.0)));
  const auto k = static_cast<float>(random.Rnd() * 3.0);
  int points = 0;
  for (float t = 0; t <= limit; t = t + 0.01f, ++points) {
    const float t10 = t * 10;
    const auto r = static_cast<float>(k * std::sin(static_cast<double>(t10)));
    const auto x = static_cast<float>(r * std::cos(static_cast<double>(t)));
    const auto y = static_cast<float>(r * std::sin(static_cast<double>(t)));
    blad.PSet({x, y}, blad.ForeColor);
  }
  return points;
}

}  // namespace

TEST(Flower, IsDottedAsItIsToldInBothTempos) {
  for (const Tempo tempo : {Tempo::Traag, Tempo::Snel}) {
    Papers papers(paper(700, 500, Grey), 41);
    int points = 0;
    const int ticks = tempo == Tempo::Traag ? 200 : 40;
    for (int tick = 0; tick < ticks; ++tick)
      ASSERT_TRUE(papers.agree(
          [&](Form& blad, Random& random) { bloemTekenen(blad, random, tempo); },
          [&](Form& blad, Random& random) { points = literalFlower(blad, random, tempo); }))
          << "tick " << tick;
    EXPECT_EQ(points, tempo == Tempo::Traag ? 1179 : 11781);
    EXPECT_EQ(papers.calls, static_cast<std::size_t>(ticks) * static_cast<std::size_t>(points));
  }
}

TEST(Flower, ItsFirstAndLastColourComeUpHalfAsOftenAsTheOthers) {
  Form form(paper(10, 10, Grey));
  Random random;
  random.fix(13);
  std::map<Color, int> times;
  for (int tick = 0; tick < 3000; ++tick) {
    bloemTekenen(form, random, Tempo::Traag);
    ++times[form.ForeColor];
  }
  ASSERT_EQ(times.size(), 16u);
  for (int n = 0; n < 16; ++n)
    EXPECT_NEAR(times[QBColor(n)], n == 0 || n == 15 ? 100 : 200, 50) << "colour " << n;
}

TEST(Flower, ASmallCurveOnlyThickensTheMiddle) {
  Form form(paper(600, 600, Grey));
  // Of a hundred seeds the one with the smallest curve.
  std::uint32_t smallest = 0;
  float least = 1;
  for (std::uint32_t seed = 0; seed < 100; ++seed) {
    Random random;
    random.fix(seed);
    random.Rnd();
    const float k = random.Rnd();
    if (k < least) least = k, smallest = seed;
  }
  Random random;
  random.fix(smallest);
  bloemTekenen(form, random, Tempo::Snel);
  const double reach = least * 300 + 1.5;
  const auto pixels = form.bitmap();
  for (int y = 0; y < 600; ++y)
    for (int x = 0; x < 600; ++x)
      if (pixels->at(x, y) != toPixel(Grey)) {
        EXPECT_LE(std::hypot(x - 300, y - 300), reach) << x << ", " << y;
      }
}

TEST(Flower, AWindowOfAnotherSizeTakesEffectAtTheNextTick) {
  Form form(paper(300, 300, Grey));
  Random random;
  random.fix(7);
  bloemTekenen(form, random, Tempo::Snel);
  form.windowResized(900, 300);
  for (int tick = 0; tick < 20; ++tick) bloemTekenen(form, random, Tempo::Snel);
  int right = 0;
  for (int x = 600; x < 900; ++x)
    for (int y = 0; y < 300; ++y) right += form.bitmap()->at(x, y) != toPixel(Grey);
  EXPECT_GT(right, 1000);
}

TEST(Flower, StretchesWithTheWindow) {
  Random random;
  random.fix(7);
  Form wide(paper(900, 300, Grey));
  bloemTekenen(wide, random, Tempo::Traag);
  EXPECT_EQ(wide.Point({3, -3}), Grey);
  EXPECT_EQ(wide.ScaleWidth(), -6);
  EXPECT_EQ(wide.ScaleHeight(), 6);
}

namespace {

int literalWind(Form& blad, Random& random, int speed) {
  blad.setUserScale({3, -3}, {-6, 6});
  const auto limit = static_cast<float>(speed * std::atan(1.0));
  const int a = static_cast<int>(std::lrint(random.Rnd() * 256.0));
  const int b = static_cast<int>(std::lrint(random.Rnd() * 256.0));
  const int c = static_cast<int>(std::lrint(random.Rnd() * 256.0));
  blad.ForeColor = RGB(a, b, c);
  const auto k = static_cast<float>(random.Rnd() * 3.0);
  int steps = 0;
  for (float t = 0.001f; t <= limit; t = t + 0.01f, ++steps) {
    const double square = static_cast<double>(k) * static_cast<double>(k);
    const auto r = static_cast<float>(std::sqrt(square / static_cast<double>(t)));
    const double cosine = std::cos(static_cast<double>(t));
    const double sine = std::sin(static_cast<double>(t));
    blad.PSet({static_cast<float>(r * cosine), static_cast<float>(r * sine)});
    blad.PSet({static_cast<float>(-r * cosine), static_cast<float>(-r * sine)});
  }
  return steps;
}

}  // namespace

TEST(Wind, BlowsAsItIsToldAtEverySpeed) {
  Papers papers(paper(700, 500, Grey), 43);
  for (int tick = 0; tick < 200; ++tick) {
    const int speed = 3 + tick % 48;
    int steps = 0;
    ASSERT_TRUE(
        papers.agree([&](Form& blad, Random& random) { windTekenen(blad, random, speed); },
                     [&](Form& blad, Random& random) { steps = literalWind(blad, random, speed); }))
        << "tick " << tick;
    if (speed == 50) {
      EXPECT_EQ(steps, 3927);
    }
  }
  EXPECT_GT(papers.calls, 200'000u);
}

TEST(Wind, TheGentlestOneStaysFarFromTheMiddle) {
  Form form(paper(600, 600, Grey));
  Random random;
  random.fix(4);
  for (int tick = 0; tick < 50; ++tick) {
    const auto drawn = script::traceOf([&] { windTekenen(form, random, 3); });
    // The arc narrows all the time, so its two ends are what comes nearest: at k / sqrt(2.36).
    ASSERT_EQ(drawn.size(), 2u * 236);
    const auto& end = drawn.back().place;
    const auto& begin = drawn.front().place;
    EXPECT_LE(std::hypot(end[0] - 300, end[1] - 300) * 10,
              std::hypot(begin[0] - 300, begin[1] - 300));
  }
  EXPECT_GT(painted(form, Grey), 1000);
}
