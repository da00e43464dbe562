// The one random generator.
#include "surface/random.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <set>
#include <utility>
#include <vector>

#include "surface/host.h"

using namespace surface;

namespace {

std::vector<float> numbers(int count) {
  std::vector<float> all;
  for (int i = 0; i < count; ++i) all.push_back(Rnd());
  return all;
}

}  // namespace

TEST(Random, NumbersLieFromZeroToJustBelowOneAndFillTheRangeEvenly) {
  seedRandom(7);
  constexpr int Count = 100'000, Bins = 20;
  std::array<int, Bins> bins{};
  for (const float r : numbers(Count)) {
    ASSERT_GE(r, 0.f);
    ASSERT_LT(r, 1.f);
    ++bins[static_cast<std::size_t>(r * Bins)];
  }
  // Six standard deviations of a bin of an even generator are about 420.
  for (const int n : bins) EXPECT_NEAR(n, Count / Bins, 420);
}

TEST(Random, TheSameSeedGivesTheSameSequence) {
  seedRandom(7);
  const auto first = numbers(100);
  seedRandom(7);
  EXPECT_EQ(numbers(100), first);
  seedRandom(8);
  EXPECT_NE(numbers(100), first);
}

TEST(Random, AFixedSeedSurvivesRandomize) {
  seedRandom(7);
  const auto first = numbers(10);
  seedRandom(7);
  Randomize();
  EXPECT_EQ(numbers(10), first);
}

// In a process of its own: here the seed is fixed.
TEST(RandomDeathTest, RandomizeStartsAnotherSequenceEachTime) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_EXIT(
      {
        const auto unseeded = numbers(10);
        host().seed = [] { return std::uint64_t{1}; };
        Randomize();
        const auto one = numbers(10);
        host().seed = [] { return std::uint64_t{2}; };
        Randomize();
        const auto two = numbers(10);
        std::exit(one != two && one != unseeded ? 0 : 1);
      },
      testing::ExitedWithCode(0), "");
}

TEST(Random, TwoReseedsWithinOneTickOfTheClockGoOnWithDifferentNumbers) {
  const auto seed = std::exchange(host().seed, [] { return std::uint64_t{7}; });
  Random random;
  std::set<float> seen;
  for (int i = 0; i < 1000; ++i) {
    random.Randomize();
    seen.insert(random.Rnd());
  }
  host().seed = seed;
  EXPECT_GT(seen.size(), 990u);
}

TEST(Random, TheClockDecidesWhereAReseedLeads) {
  const auto seed = std::exchange(host().seed, [] { return std::uint64_t{7}; });
  Random morning, evening;
  morning.Randomize();
  host().seed = [] { return std::uint64_t{8}; };
  evening.Randomize();
  host().seed = seed;
  EXPECT_NE(morning.Rnd(), evening.Rnd());
}
