// When the animations read the clock for their random numbers, and into which pixels the points
// that come of them fall.
#include <cmath>
#include <functional>
#include <set>

#include "fantasy/bliksem.h"
#include "fantasy/bloem.h"
#include "fantasy/frmFantasie4.h"
#include "fantasy/modKaleidos.h"
#include "fantasy/paper.h"
#include "fantasy/sterren.h"
#include "fantasy/vuurwerk.h"
#include "fantasy/wind.h"
#include "support/script.h"
#include "surface/host.h"

using namespace surface;
using fantasy::paper;

namespace {

class FantasyChance : public script::Stage {
 protected:
  FantasyChance() {
    host().seed = [this] { return ++readings_ * 77; };
  }

  template <class Tick>
  std::uint64_t readings(Tick tick) {
    const auto before = readings_;
    tick();
    return readings_ - before;
  }

  Form blad{paper(600, 400, Black)};
  Random chance;  // that of a child: no seed is fixed

 private:
  std::uint64_t readings_ = 0;
};

}  // namespace

TEST_F(FantasyChance, EachBurstFigureBoltCurveAndCurlReadsTheClockOnceAndEachStarTwice) {
  Vuurwerk vuurwerk;
  EXPECT_EQ(readings([&] { vuurwerk.schiet(blad, chance); }), 1u);
  EXPECT_EQ(readings([&] { vuurwerk.vlieg(blad, chance); }), 0u);
  Kaleidos kaleidos;
  kaleidos.nieuwBeeld = true;
  EXPECT_EQ(readings([&] { kaleidos.figuurTekenen(blad, chance); }), 1u);
  EXPECT_EQ(readings([&] { kaleidos.figuurTekenen(blad, chance); }), 1u);
  Bliksem bliksem;
  EXPECT_EQ(readings([&] { bliksem.MakeFX(blad, chance, {blad.Width, blad.Height}); }), 1u);
  EXPECT_EQ(readings([&] { bliksem.dooft(blad); }), 0u);
  EXPECT_EQ(readings([&] { bloemTekenen(blad, chance, Tempo::Traag); }), 1u);
  EXPECT_EQ(readings([&] { windTekenen(blad, chance, 10); }), 1u);
  Sterren sterren;
  EXPECT_EQ(readings([&] { sterren.strooi(blad, chance); }), 2u * 41);
  EXPECT_EQ(readings([&] { sterren.drijf(blad, chance, Sterren::Kleurrijk); }), 0u);
}

TEST_F(FantasyChance, EachWormReadsTheClockWhenItIsBorn) {
  generator() = Random();
  auto& screen = the<frmFantasie4>();
  EXPECT_EQ(readings([&] { screen.Load(); }), 1u);
  screen.Timer1.Enabled = true;
  EXPECT_EQ(readings([&] { advance(20'000); }), 0u);
  EXPECT_EQ(readings([&] { dispatch([&] { screen.cmdWorm2.Click(); }); }), 1u);
}

TEST_F(FantasyChance, TheClockCountsForTheVeryFirstNumber) {
  const auto firstValues = [](const std::function<double(Random&)>& first) {
    std::set<double> seen;
    for (int child = 0; child < 50; ++child) {
      Random sameAsEver;
      seen.insert(first(sameAsEver));
    }
    return seen.size();
  };
  EXPECT_GT(firstValues([&](Random& random) {
              Vuurwerk vuurwerk;
              vuurwerk.schiet(blad, random);
              return vuurwerk.vonkKleur[1][0];
            }),
            1u);
  EXPECT_GT(firstValues([&](Random& random) {
              Kaleidos kaleidos;
              kaleidos.nieuwBeeld = true;
              kaleidos.figuurTekenen(blad, random);
              return kaleidos.aantalSpaken;
            }),
            1u);
  EXPECT_GT(firstValues([&](Random& random) {
              bloemTekenen(blad, random, Tempo::Traag);
              return blad.ForeColor.get();
            }),
            1u);
  EXPECT_GT(firstValues([&](Random& random) {
              windTekenen(blad, random, 3);
              return blad.ForeColor & 0xFF;
            }),
            1u);
  EXPECT_GT(firstValues([&](Random& random) {
              Sterren sterren;
              sterren.strooi(blad, random);
              return sterren.sterSnelheid[0];
            }),
            1u);
}

TEST_F(FantasyChance, APointOfTheFlowerFallsIntoThePixelOfItsExactPlace) {
  constexpr int Side = 796;
  Form form(paper(Side, Side, 0xE0E0E0));
  Random random, told;
  random.fix(7);
  told.fix(7);
  const auto pixel = [](double place) { return std::nearbyint((3 - place) * Side / 6); };
  for (int tick = 0; tick < 40; ++tick) {
    const Tempo tempo = tick < 20 ? Tempo::Traag : Tempo::Snel;
    const auto drawn = script::traceOf([&] { bloemTekenen(form, random, tempo); });
    told.Rnd();
    const auto k = static_cast<float>(told.Rnd() * 3.0);
    float t = 0;
    for (const auto& dot : drawn) {
      const double angle = t, tenfold = t * 10;
      const auto r = static_cast<float>(k * std::sin(tenfold));
      ASSERT_EQ(dot.place[0], pixel(static_cast<float>(r * std::cos(angle)))) << tick << ", " << t;
      ASSERT_EQ(dot.place[1], pixel(-static_cast<float>(r * std::sin(angle)))) << tick << ", " << t;
      t += 0.01f;
    }
  }
}

TEST_F(FantasyChance, AChannelOfTheWindThatIsRoundedUpTo256IsFull) {
  std::uint32_t seed = 0;
  for (float red = 0; red < 0.9981f; ++seed) {
    chance.fix(seed + 1);
    red = chance.Rnd();
  }
  chance.fix(seed);
  windTekenen(blad, chance, 3);
  EXPECT_EQ(blad.ForeColor & 0xFF, 255);
}
