// The recorded cases of the platform's own calls: what has to be the same to the bit, and how much
// of the round and wide shapes has to agree.
#include <gtest/gtest.h>

#include <fstream>
#include <numeric>

#include "replay.h"
#include "support/tree_folder.h"

namespace {

using raster::Bitmap;

std::vector<replay::Case> casesOf(const std::string& family) {
  std::ifstream in(std::string(KRASPRET_TREE) + "/tests/reference/gdi/" + family + ".txt");
  EXPECT_TRUE(in) << "no recorded cases for " << family;
  return replay::readCases(in);
}

/// The share of agreeing pixels among those that either side painted.
double agreement(const replay::Case& recorded, const Bitmap& got) {
  const Bitmap before = replay::prepared(recorded);
  int painted = 0, same = 0;
  for (int y = 0; y < recorded.height; ++y) {
    for (int x = 0; x < recorded.width; ++x) {
      const auto was = before.at(x, y), want = recorded.expected.at(x, y), is = got.at(x, y);
      if (was == want && was == is) continue;
      ++painted;
      same += want == is ? 1 : 0;
    }
  }
  return painted == 0 ? 1.0 : double(same) / painted;
}

/// A family of cases and the mean share of painted pixels that has to agree.
struct Bar {
  const char* family;
  double share;
};

void PrintTo(const Bar& bar, std::ostream* out) { *out << bar.family << ' ' << bar.share; }

class Recorded : public testing::TestWithParam<Bar> {};

TEST_P(Recorded, ShapesAgreeWithThePlatform) {
  const auto cases = casesOf(GetParam().family);
  ASSERT_GE(cases.size(), 10u);
  double sum = 0;
  for (const replay::Case& each : cases) sum += agreement(each, replay::play(each));
  EXPECT_GE(sum / static_cast<double>(cases.size()), GetParam().share);
}

INSTANTIATE_TEST_SUITE_P(
    Families, Recorded,
    testing::Values(Bar{"line1", 1}, Bar{"linedot", 1}, Bar{"box", 1}, Bar{"flood", 1},
                    Bar{"floodhatch", 1}, Bar{"blit", 1}, Bar{"stretch", 1}, Bar{"boxw", 0.98},
                    Bar{"boxhatch", 0.98}, Bar{"filledbox", 0.98}, Bar{"clip", 0.98},
                    Bar{"ellipsefill", 0.97}, Bar{"rop2", 0.97}, Bar{"ellipsehatch", 0.96},
                    Bar{"ellipse1", 0.95}, Bar{"linew", 0.89}, Bar{"stroke", 0.94},
                    Bar{"pset", 0.92}, Bar{"ellipsew", 0.94}),
    [](const auto& instance) { return std::string(instance.param.family); });

/// True if no pen of the case is wider than a pixel and no shape of it is round.
bool isThinAndStraight(const replay::Case& each) {
  for (const replay::Words& words : each.operations) {
    if (words[0] == "circle") return false;
    if (words[0] == "pen" && words[1] != "null" && std::stoi(words[2]) > 1) return false;
  }
  return true;
}

TEST(RecordedCases, ThinLinesAndBoxesAreTheSameToTheBit) {
  int checked = 0;
  for (const char* family : {"line1", "linedot", "box", "boxhatch", "filledbox", "clip", "rop2"}) {
    for (const replay::Case& each : casesOf(family)) {
      if (!isThinAndStraight(each)) continue;
      EXPECT_EQ(agreement(each, replay::play(each)), 1.0) << each.name;
      ++checked;
    }
  }
  EXPECT_GT(checked, 100);
}

}  // namespace
