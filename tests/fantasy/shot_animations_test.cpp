// Fireworks, worms, stars and lightning, each held against what it means, said statement by
// statement.
#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

#include "fantasy/bliksem.h"
#include "fantasy/paper.h"
#include "fantasy/sterren.h"
#include "fantasy/vuurwerk.h"
#include "fantasy/worm.h"

using namespace surface;
using fantasy::painted;
using fantasy::paper;
using fantasy::Papers;

namespace {

float single(double value) { return static_cast<float>(value); }
std::int16_t even16(double value) { return static_cast<std::int16_t>(std::lrint(value)); }

struct LiteralFireworks {
  bool vonkActief[101] = {};
  std::int16_t vonkHoek[101], vonkSnelheid[101], vonkY[101];
  double vonkX[101];
  int vonkKleur[101][3];

  void launch(Form& blad, Random& random) {
    int r, g, b;
    do {
      r = static_cast<int>(std::floor(random.Rnd() * 128.0)) + 128;
      g = static_cast<int>(std::floor(random.Rnd() * 128.0)) + 128;
      b = static_cast<int>(std::floor(random.Rnd() * 128.0)) + 128;
    } while (std::abs(r - g) < 30 && std::abs(g - b) < 30 && std::abs(r - b) < 30);
    const double x = std::floor(random.Rnd() * (blad.ScaleWidth() - 2000.0)) + 1000;
    const int angle = static_cast<int>(std::floor(random.Rnd() * 40.0)) + 70;
    const double speed = std::floor(random.Rnd() * 101.0) + blad.ScaleHeight() / 40.0 + 50;
    for (int i = 1; i <= 100; ++i) {
      if (vonkActief[i]) continue;
      vonkActief[i] = true;
      vonkX[i] = x;
      vonkY[i] = even16(blad.ScaleHeight());
      vonkKleur[i][0] = r;
      vonkKleur[i][1] = g;
      vonkKleur[i][2] = b;
      vonkHoek[i] = even16(std::floor(10.0 * random.Rnd()) + angle - 5);
      vonkSnelheid[i] = even16(speed + std::floor(60.0 * random.Rnd()) - 30);
    }
  }

  void fly(Form& blad, Random& random) {
    for (int i = 1; i <= 100; ++i) {
      if (!vonkActief[i]) continue;
      blad.Line({single(vonkX[i] - 40), single(vonkY[i] - 40)},
                {single(vonkX[i] + 40), single(vonkY[i] + 40)}, 0, BF);
      vonkX[i] = vonkX[i] - std::cos(vonkHoek[i] * 3.141592654 / 180) * vonkSnelheid[i];
      vonkY[i] = even16(vonkY[i] - vonkSnelheid[i] * std::sin(vonkHoek[i] * 3.141592654 / 180));
      if (vonkHoek[i] > 180 || vonkHoek[i] < 0) {
        vonkSnelheid[i] = even16(vonkSnelheid[i] + 7);
        if (vonkSnelheid[i] > 80) {
          vonkActief[i] = false;
          continue;
        }
        std::array<int, 3> c;
        for (int channel = 0; channel < 3; ++channel)
          c[static_cast<std::size_t>(channel)] =
              even16((80 - vonkSnelheid[i]) * vonkKleur[i][channel] / 80.0);
        blad.Line({single(vonkX[i] - 40), single(vonkY[i] - 40)},
                  {single(vonkX[i] + 40), single(vonkY[i] + 40)}, RGB(c[0], c[1], c[2]), BF);
        continue;
      }
      vonkSnelheid[i] = even16(vonkSnelheid[i] - 7);
      if (vonkSnelheid[i] < 0) {
        vonkSnelheid[i] = 0;
        vonkHoek[i] = even16(std::floor(random.Rnd() * 60.0 * 2) + 270 - 60);
      }
      const float depth = blad.ScaleHeight() / 40.0f + 150.0f + 30.0f;
      const double d = depth;
      const double scale = d / (d / 2 + (d - vonkSnelheid[i]) / 2);
      blad.Line({single(vonkX[i] - 40 * scale), single(vonkY[i] - 40 * scale)},
                {single(vonkX[i] + 40 * scale), single(vonkY[i] + 40 * scale)},
                RGB(vonkKleur[i][0], vonkKleur[i][1], vonkKleur[i][2]), BF);
    }
  }
};

}  // namespace

TEST(Fireworks, FlyAsTheyAreToldForHundredsOfTicksInBothStyles) {
  for (const int style : {0, 2}) {
    Papers papers(paper(793, 553, Black), 11);
    papers.ours.DrawStyle = style;
    papers.literal.DrawStyle = style;
    Vuurwerk vuurwerk;
    LiteralFireworks literal;
    for (int tick = 0; tick < 400; ++tick) {
      const bool launch = tick % 10 == 0;
      ASSERT_TRUE(papers.agree(
          [&](Form& blad, Random& random) {
            if (launch) vuurwerk.schiet(blad, random);
            vuurwerk.vlieg(blad, random);
          },
          [&](Form& blad, Random& random) {
            if (launch) literal.launch(blad, random);
            literal.fly(blad, random);
          }))
          << "tick " << tick;
    }
    EXPECT_GT(papers.calls, 10'000u);
  }
}

TEST(Fireworks, TheFirstBurstTakesAllHundredSparksInOneColourThatIsNotGreyish) {
  for (std::uint32_t seed = 0; seed < 300; ++seed) {
    Papers papers(paper(793, 553, Black), seed);
    Vuurwerk vuurwerk;
    vuurwerk.schiet(papers.ours, papers.ourRandom);
    const auto [red, green, blue] = vuurwerk.vonkKleur[1];
    EXPECT_TRUE(std::abs(red - green) >= 30 || std::abs(green - blue) >= 30 ||
                std::abs(red - blue) >= 30);
    for (std::size_t i = 1; i <= 100; ++i) {
      EXPECT_TRUE(vuurwerk.vonkActief[i]);
      EXPECT_EQ(vuurwerk.vonkKleur[i], vuurwerk.vonkKleur[1]);
      EXPECT_GE(vuurwerk.vonkHoek[i], 65);
      EXPECT_LE(vuurwerk.vonkHoek[i], 113);
    }
  }
}

TEST(Fireworks, ASparkAtSpeedZeroStandsStillForOneTickBeforeItTurns) {
  Form sky(paper(793, 553, Black));
  Random random;
  random.fix(1);
  Vuurwerk vuurwerk;
  vuurwerk.vonkActief[1] = true;
  vuurwerk.vonkHoek[1] = 90;
  vuurwerk.vonkSnelheid[1] = 7;
  vuurwerk.vonkX[1] = vuurwerk.vonkY[1] = 4000;
  vuurwerk.vlieg(sky, random);
  EXPECT_EQ(vuurwerk.vonkSnelheid[1], 0);
  EXPECT_EQ(vuurwerk.vonkHoek[1], 90);
  const auto y = vuurwerk.vonkY[1];
  vuurwerk.vlieg(sky, random);
  EXPECT_EQ(vuurwerk.vonkY[1], y);
  EXPECT_EQ(vuurwerk.vonkSnelheid[1], 0);
  EXPECT_GE(vuurwerk.vonkHoek[1], 210);
  EXPECT_LE(vuurwerk.vonkHoek[1], 329);
}

TEST(Fireworks, AFallingSparkTakesElevenColouredStepsAndLeavesNothing) {
  Form sky(paper(793, 553, Black));
  Random random;
  Vuurwerk vuurwerk;
  vuurwerk.vonkActief[1] = true;
  vuurwerk.vonkHoek[1] = 270;
  vuurwerk.vonkX[1] = vuurwerk.vonkY[1] = 4000;
  vuurwerk.vonkKleur[1] = {255, 200, 150};
  int steps = 0;
  for (; vuurwerk.vonkActief[1]; ++steps) {
    vuurwerk.vlieg(sky, random);
    EXPECT_EQ(painted(sky, Black) > 0, vuurwerk.vonkActief[1]);
  }
  EXPECT_EQ(steps, 12);
}

TEST(Fireworks, ASkyNarrowerThanTheBurstsStartsThemLeftOfTheMargin) {
  Form sky(paper(100, 553, Black));  // 1500 twips
  Random random;
  random.fix(3);
  Vuurwerk vuurwerk;
  vuurwerk.schiet(sky, random);
  EXPECT_LT(vuurwerk.vonkX[1], 1000);
  EXPECT_GE(vuurwerk.vonkX[1], 500);
}

TEST(Fireworks, SparksBeyondTheSkyDieLikeTheOthers) {
  Form sky(paper(200, 100, Black));
  Random random;
  random.fix(3);
  Vuurwerk vuurwerk;
  vuurwerk.schiet(sky, random);
  for (int tick = 0; tick < 100; ++tick) vuurwerk.vlieg(sky, random);
  for (std::size_t i = 1; i <= 100; ++i) EXPECT_FALSE(vuurwerk.vonkActief[i]);
}

TEST(Worms, CrawlToAndFroAsTheyAreTold) {
  Papers papers(paper(793, 553, 0xE0E0E0), 5);
  for (Form* blad : {&papers.ours, &papers.literal}) blad->FillStyle = 0;
  Worm worm;
  long x = 0, y = 0;
  for (int tick = 0; tick < 300; ++tick) {
    const bool forth = tick % 100 < 60;
    const auto literal = [&](Form& blad, Random& random) {
      const double goX = random.Rnd() * (forth ? 200.0 : -300.0);
      const double goY = random.Rnd() * (forth ? 200.0 : -200.0);
      x = std::lrint(static_cast<double>(x) + goX);
      y = std::lrint(static_cast<double>(y) + goY);
      const int a = even16(random.Rnd() * 255.0);
      const int b = even16(random.Rnd() * 255.0);
      const int c = even16(random.Rnd() * 255.0);
      blad.FillColor = RGB(a, b, c);
      // Centre and radius in whole pixels: 27 on the way there, 33 on the way back.
      raster::ellipse(blad.target(), {}, blad.brush(),
                      static_cast<int>(std::lrint(static_cast<double>(x) / 15)),
                      static_cast<int>(std::lrint(static_cast<double>(y) / 15)), forth ? 27 : 33,
                      forth ? 27 : 33);
    };
    const auto ours = [&](Form& blad, Random& random) {
      forth ? worm.kruipHeen(blad, random) : worm.kruipTerug(blad, random);
    };
    ASSERT_TRUE(papers.agree(ours, literal)) << "tick " << tick;
    ASSERT_EQ(worm.wormX, x);
    ASSERT_EQ(worm.wormY, y);
  }
  EXPECT_EQ(papers.calls, 300u);
}

TEST(Worms, ADiscAtTheEdgeLiesHalfOffThePicture) {
  Form picture(paper(100, 100, 0xE0E0E0));
  picture.FillStyle = 0;
  Random random;
  random.fix(1);
  Worm worm;
  worm.wormX = 1500;
  worm.wormY = 750;
  worm.kruipHeen(picture, random);
  EXPECT_GT(worm.wormX, 1500) << "nothing keeps the head inside";
  EXPECT_GT(painted(picture, 0xE0E0E0), 0);
  EXPECT_LT(painted(picture, 0xE0E0E0), 3 * 27 * 27 / 2) << "less than half of the disc";
}

namespace {

struct LiteralStars {
  std::int16_t x[41], before[41] = {}, speed[41];

  LiteralStars(const Form& blad, Random& random) {
    for (int i = 0; i <= 40; ++i) {
      speed[i] = static_cast<std::int16_t>(std::floor(random.Rnd() * 6.0) + 1);
      x[i] = static_cast<std::int16_t>(
          std::floor(random.Rnd() * static_cast<double>(blad.ScaleWidth())));
    }
  }

  void tick(Form& blad, Random& random, bool colourful) {
    blad.BackColor = Black;  // wipes all of it, whatever was painted
    const int row = static_cast<int>(std::floor(blad.ScaleHeight() / 40.0)) + 1;
    for (int i = 0; i <= 40; ++i) {
      const auto y = static_cast<float>(row * i);
      blad.PSet({static_cast<float>(before[i]), y}, 0);
      if (!colourful) {
        blad.PSet({static_cast<float>(x[i]), y}, 0xFFFFFF);
        blad.DrawWidth = 1;
      } else {
        blad.PSet({static_cast<float>(x[i]), y}, blad.ForeColor);
        blad.ForeColor = QBColor(even16(random.Rnd() * 15.0));
        blad.DrawWidth = 2;
      }
      before[i] = x[i];
      x[i] = static_cast<std::int16_t>(x[i] + speed[i]);
      if (x[i] > blad.ScaleWidth()) x[i] = 0;
    }
  }
};

}  // namespace

TEST(Stars, DriftAsTheyAreToldInBothModes) {
  Papers papers(paper(640, 480, Black, ScalePixels), 17);
  Sterren sterren;
  sterren.strooi(papers.ours, papers.ourRandom);
  sterren.verdeel(papers.ours);
  LiteralStars literal(papers.literal, papers.literalRandom);
  for (int tick = 0; tick < 600; ++tick) {
    const bool colourful = tick / 50 % 2 == 1;
    ASSERT_TRUE(papers.agree(
        [&](Form& blad, Random& random) {
          sterren.drijf(blad, random, colourful ? Sterren::Kleurrijk : Sterren::Gewoon);
        },
        [&](Form& blad, Random& random) { literal.tick(blad, random, colourful); },
        fantasy::withoutClearing))
        << "tick " << tick;
  }
  EXPECT_EQ(papers.calls, 600u * 41 * 2);
}

TEST(Stars, WrapOnlyBeyondTheRightEdgeNotAtIt) {
  Form sky(paper(640, 480, Black, ScalePixels));
  Random random;
  Sterren sterren;
  sterren.sterX[0] = 638;
  sterren.sterSnelheid[0] = 2;
  sterren.drijf(sky, random, Sterren::Gewoon);
  EXPECT_EQ(sterren.sterX[0], 640);
  sterren.drijf(sky, random, Sterren::Gewoon);
  EXPECT_EQ(sterren.sterX[0], 0);
}

TEST(Stars, SpreadOverTheWholeHeightWithTheLastRowBelowIt) {
  Sterren sterren;
  sterren.verdeel(Form(paper(640, 480, Black, ScalePixels)));
  EXPECT_EQ(sterren.sterRij, 13);
  sterren.verdeel(Form(paper(1920, 1080, Black, ScalePixels)));
  EXPECT_EQ(sterren.sterRij, 28);
}

TEST(Stars, TheStarAfterTheSwitchIsTheFirstInTheNewWidthAndColoursPassOn) {
  Form sky(paper(640, 480, Black, ScalePixels));
  Random random;
  random.fix(8);
  Sterren sterren;
  sterren.sterRij = 10;
  sterren.sterX.fill(100);
  sky.ForeColor = 0x123456;
  sterren.drijf(sky, random, Sterren::Kleurrijk);
  EXPECT_EQ(sky.Point({100, 0}), 0x123456) << "the colour that the form had";
  EXPECT_EQ(sky.Point({99, 0}), Black) << "still one pixel wide";
  EXPECT_EQ(sky.DrawWidth, 2);
  const auto stars = script::traceOf([&] { sterren.drijf(sky, random, Sterren::Gewoon); });
  // Of each star its old place first, then the new one.
  const auto dots = fantasy::withoutClearing(stars);
  ASSERT_EQ(dots.size(), 82u);
  EXPECT_EQ(dots[1].width, 2) << "the first plain star is as wide as the last coloured one";
  EXPECT_EQ(dots[3].width, 1);
}

TEST(Stars, AllHaveNumbersOfTheirOwnAlthoughTheClockStands) {
  Form sky(paper(30000, 2, Black, ScalePixels));
  Random random;
  Sterren sterren;
  sterren.strooi(sky, random);
  auto places = sterren.sterX;
  std::sort(places.begin(), places.end());
  EXPECT_LT(places.end() - std::unique(places.begin(), places.end()), 4);
}

namespace {

constexpr int Shades[5][4][3] = {{{150, 150, 255}, {50, 50, 255}, {0, 0, 150}, {0, 0, 255}},
                                 {{255, 150, 255}, {255, 50, 255}, {150, 0, 150}, {255, 0, 255}},
                                 {{150, 255, 150}, {50, 255, 50}, {0, 150, 0}, {0, 255, 0}},
                                 {{255, 150, 150}, {255, 50, 50}, {150, 0, 0}, {255, 0, 0}},
                                 {{255, 255, 150}, {255, 255, 50}, {150, 150, 0}, {255, 255, 0}}};

// With the places kept as text, as a list of them would.
struct LiteralBolt {
  int kind = 0, step = 0;
  int pure[3] = {};
  std::vector<std::string> rows;

  static void dots(Form& blad, float x, float y, Color core, Color near, Color far) {
    blad.PSet({x, y}, core);
    blad.PSet({x + 15, y}, near);
    blad.PSet({x + 30, y}, far);
    blad.PSet({x - 15, y}, near);
    blad.PSet({x - 30, y}, far);
  }
  static Color shade(const int (&c)[3]) { return RGB(c[0], c[1], c[2]); }
  float at(std::size_t i) const {
    return i < rows.size() ? static_cast<float>(Val(rows[i])) : 0.0f;
  }

  void strike(Form& blad, Random& random) {
    const float width = blad.Width, height = blad.Height;
    auto x = static_cast<float>(std::floor((width - 1.0 + 1) * random.Rnd() + 1));
    for (float r = 1; r <= height / 15; ++r) {
      const bool negative = std::floor(2.0 * random.Rnd() + 1) == 1;
      const auto size = static_cast<float>(std::floor(random.Rnd() * 25.0 + 1));
      x = negative ? x - size : x + size;
      rows.push_back(" " + toText(x));
      dots(blad, x, r * 15, shade(Shades[kind][0]), shade(Shades[kind][1]), shade(Shades[kind][2]));
      if (height / 15 == r)
        for (int c = 0; c < 3; ++c) pure[c] = Shades[kind][3][c];
    }
  }

  void fade(Form& blad) {
    for (std::size_t i = 0; i <= rows.size(); ++i)
      dots(blad, at(i), static_cast<float>(i + 1) * 15,
           RGB(pure[0] - pure[0] * step, pure[1] - pure[1] * step, pure[2] - pure[2] * step), 0, 0);
    if (step == 1) rows.clear();
    step = step == 1 ? 0 : 1;
  }
};

}  // namespace

TEST(Lightning, StrikesAndFadesAsItIsTold) {
  Papers papers(paper(640, 480, Black), 23);
  Bliksem bliksem;
  LiteralBolt literal;
  for (int bolt = 0; bolt < 100; ++bolt) {
    bliksem.bliksemSoort = static_cast<std::int16_t>(bolt % 5);
    literal.kind = bolt % 5;
    ASSERT_TRUE(papers.agree(
        [&](Form& blad, Random& random) {
          bliksem.MakeFX(blad, random, {blad.Width, blad.Height});
        },
        [&](Form& blad, Random& random) { literal.strike(blad, random); }))
        << "bolt " << bolt;
    for (const bool gone : {false, true})
      ASSERT_TRUE(papers.agree([&](Form& blad, Random&) { EXPECT_EQ(bliksem.dooft(blad), gone); },
                               [&](Form& blad, Random&) { literal.fade(blad); }))
          << "bolt " << bolt << (gone ? " gone" : " thin");
    EXPECT_EQ(painted(papers.ours, Black), 0);
  }
  EXPECT_GT(papers.calls, 100u * 3 * 480 * 5);
}

TEST(Lightning, AKindBeyondTheFiveDrawsNothing) {
  Form sky(paper(640, 480, Black));
  Random random;
  Bliksem bliksem;
  bliksem.bliksemSoort = 5;
  bliksem.MakeFX(sky, random, {sky.Width, sky.Height});
  EXPECT_EQ(painted(sky, Black), 0);
  EXPECT_EQ(bliksem.PosL.size(), 502u) << "the outer height in rows";
}

TEST(Lightning, AHeightThatIsNoWholeNumberOfRowsKeepsTheOldPureColour) {
  Form sky(paper(640, 480, Black));
  Random random;
  Bliksem bliksem;
  bliksem.bliksemSoort = 4;
  bliksem.MakeFX(sky, random, {9600, 7208});
  EXPECT_EQ(bliksem.PosL.size(), 480u);
  EXPECT_EQ(bliksem.flitsRood, 0);
  bliksem.dooft(sky);
  EXPECT_EQ(painted(sky, Black), 0) << "the pure colour of no bolt is black";
}

TEST(Lightning, ABoltThatWasNotOutIsWipedFirst) {
  Form sky(paper(640, 480, Black));
  Random random;
  random.fix(2);
  Bliksem bliksem;
  bliksem.MakeFX(sky, random, {9600, 7200});
  bliksem.bliksemSoort = 7;
  bliksem.MakeFX(sky, random, {9600, 7200});
  EXPECT_EQ(painted(sky, Black), 0);
}

TEST(Lightning, OnAWindowOfMoreRowsThanSixteenBitsCountTheScreenLives) {
  Form sky(paper(64, 2400, Black));
  Random random;
  random.fix(2);
  Bliksem bliksem;
  for (int bolt = 0; bolt < 3; ++bolt) {
    bliksem.MakeFX(sky, random, {960, 36000});
    EXPECT_FALSE(bliksem.dooft(sky));
    EXPECT_TRUE(bliksem.dooft(sky)) << "and the next one strikes";
  }
}

TEST(Lightning, TheRowBelowABoltIsWipedAtTheLeftEdgeOnly) {
  Form sky(paper(640, 480, White));
  Random random;
  random.fix(2);
  Bliksem bliksem;
  bliksem.MakeFX(sky, random, {9600, 100 * 15});
  while (!bliksem.dooft(sky)) EXPECT_EQ(bliksem.PosL.size(), 100u);
  for (int x = 0; x < 640; ++x)
    EXPECT_EQ(sky.Point({static_cast<float>(x) * 15, 101 * 15}), x < 3 ? Black : White) << x;
}

TEST(Lightning, ABoltThatWandersPastTheEdgesComesBackUncorrected) {
  Form sky(paper(2, 480, Black));
  Random random;
  random.fix(5);
  Bliksem bliksem;
  bliksem.MakeFX(sky, random, {30, 7200});
  const auto [left, right] = std::minmax_element(bliksem.PosL.begin(), bliksem.PosL.end());
  EXPECT_TRUE(*left < -30 || *right > 60);
  for (std::size_t row = 1; row < bliksem.PosL.size(); ++row)
    EXPECT_LE(std::abs(bliksem.PosL[row] - bliksem.PosL[row - 1]), 25) << row;
}

TEST(Lightning, ThePlacesOfABoltReadBackFromTextExactly) {
  Form sky(paper(640, 480, Black));
  Random random;
  random.fix(6);
  Bliksem bliksem;
  bliksem.MakeFX(sky, random, {sky.Width, sky.Height});
  for (const float place : bliksem.PosL) EXPECT_EQ(Val(" " + toText(place)), place);
}
