// A child draws all afternoon: what the program holds must not grow with the number of strokes,
// undos and pastes.
#include "studio/studio.h"
#include "support/held_bytes.h"

using namespace surface;

namespace {

#ifdef __SANITIZE_ADDRESS__
constexpr int Rounds = 500;
#else
constexpr int Rounds = 10'000;
#endif

// The toolkit paints when it finds the time, and fills its caches as it goes.
constexpr int WarmUp = Rounds / 2;
// For lists that grow in leaps; fourteen bytes kept a round are more.
constexpr std::size_t Slack = 64 * 1024;

}  // namespace

class Memory : public Studio {
 protected:
  template <class Round>
  void expectNoGrowth(Round round) {
    for (int i = 0; i < WarmUp; ++i) round(i);
    const std::size_t before = heldBytes();
    for (int i = WarmUp; i < Rounds; ++i) round(i);
    const std::size_t after = heldBytes();
    EXPECT_LE(after, before + Slack) << "grown by " << after - before << " bytes";
  }
  void stroke(int i) {
    press(sheet, 20 + i % 500, 40);
    move(sheet, 60 + i % 400, 300, 1);
    release(sheet, 60 + i % 400, 300);
  }
};

TEST_F(Memory, DoesNotGrowWithStrokes) {
  expectNoGrowth([&](int i) { stroke(i); });
}

TEST_F(Memory, DoesNotGrowWithUndosAndRedos) {
  stroke(1);
  expectNoGrowth([&](int) {
    studio.cmdUndo.Click();
    studio.cmdRedo.Click();
  });
}

TEST_F(Memory, DoesNotGrowWithStrokesBetweenUndos) {
  expectNoGrowth([&](int i) {
    sheet.MouseDown({1, 0, 30, static_cast<float>(i % 500)});
    sheet.MouseMove({1, 0, 300, 200});
    sheet.MouseUp({1, 0, 300, 200});
    studio.cmdUndo.Click();
  });
}

TEST_F(Memory, DoesNotGrowWithCopiesCutsAndPastes) {
  expectNoGrowth([&](int i) {
    sheet.PSet({static_cast<float>(i % 600), 100}, Black);
    (i % 2 ? studio.cmdCopy : studio.cmdKnippen).Click();
    studio.cmdPlakken.Click();
  });
}

TEST_F(Memory, DoesNotGrowWithPanelsAndRulers) {
  expectNoGrowth([&](int i) {
    // Each panel in turn; windows cost time, so the rulers come every hundredth time.
    CommandButton* const panels[] = {&studio.cmdLijnen,  &studio.cmdGommen,   &studio.cmdLineaal,
                                     &studio.cmdVulling, &studio.cmdBorstels, &studio.cmdGradient,
                                     &studio.cmdEffecten};
    panels[i % 7]->Click();
    if (i % 100 == 0) {
      studio.Option4.Click();
      studio.Option3.Click();
    }
    advance(0);  // what the toolkit has put off
  });
}
