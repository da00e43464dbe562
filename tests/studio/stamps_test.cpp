// The thirteen stamps: their panel, each figure against its list of lines, and the trail of a drag.
#include <array>
#include <cmath>
#include <random>

#include "studio/studio.h"

using namespace surface;

namespace {

struct Stroke {
  int x1, y1, x2, y2;
};

// The figures that are lines, as offsets from the pointer.
std::vector<Stroke> strokesOf(int figure) {
  std::vector<Stroke> strokes;
  switch (figure) {
    case 1:
      return {{-5, 5, 5, -5}};
    case 2:
      return {{5, 5, -5, -5}};
    case 3:
      return {{0, 5, 0, -5}, {5, 0, -5, 0}};
    case 4:
      return {{0, 5, 0, -5}, {5, 0, -5, 0}, {-5, 5, 5, -5}, {5, 5, -5, -5}};
    case 7:
      for (int i = -5; i <= 5; ++i) strokes.push_back({i, 5, 0, -5});
      return strokes;
    case 8:
      for (int i = -5; i <= 5; ++i) strokes.push_back({i, -5, 0, 5});
      return strokes;
    case 9:
      for (int i = -5; i <= 5; ++i) strokes.push_back({-5, 0, 5, i});
      return strokes;
    case 10:
      for (int i = -5; i <= 5; ++i) strokes.push_back({-5, i, 5, 0});
      return strokes;
    case 11:
      return {{-5, 5, 5, -2}, {5, -2, -5, -2}, {-5, -2, 5, 5}, {5, 5, 0, -5}, {0, -5, -5, 5}};
    case 12:
      for (int i = -5; i <= 5; ++i) {
        strokes.push_back({0, -5, i, 0});
        strokes.push_back({0, 5, i, 0});
      }
      strokes.push_back({-5, 0, 6, 0});
      return strokes;
    default:
      return {};
  }
}

void literalStamp(raster::Bitmap& paper, int figure, int x, int y, Color color, int width = 1) {
  const raster::Pen pen{raster::PenStyle::Solid, width, toPixel(color)};
  if (figure == 5)
    for (int half = 0; half <= 10; ++half)
      oracle::ellipse({paper}, pen, {}, x, y, half / 2.0, half / 2.0);
  if (figure == 6)
    oracle::box({paper}, pen, {raster::BrushStyle::Solid, pen.color}, x - 5, y - 5, x + 5, y + 5);
  for (const Stroke& s : strokesOf(figure))
    oracle::line({paper}, pen, x + s.x1, y + s.y1, x + s.x2, y + s.y2);
}

// A match-stick takes four random numbers: two lengths, then the sign of the second and of the
// first.
void literalMatch(raster::Bitmap& paper, int x, int y, Color color, int thickness) {
  const auto length = [&] {
    return static_cast<int>(std::floor(Rnd() * static_cast<float>(thickness + 10))) + 1;
  };
  int a = length(), b = length();
  if (std::floor(Rnd() * 2) + 1 == 1) b = -b;
  if (std::floor(Rnd() * 2) + 1 == 1) a = -a;
  oracle::line({paper}, {raster::PenStyle::Solid, thickness, toPixel(color)}, x, y, x + a, y + b);
}

struct StampPlace {
  int number;
  float left, top;
  const char* tip;
};

constexpr std::array<StampPlace, 12> Places = {{{1, 120, 240, "LIJNTJES OMHOOG"},
                                                {3, 960, 240, "PLUSJES"},
                                                {4, 1320, 240, "KRUISKOPJES IN"},
                                                {5, 120, 720, "KRUISKOPJES UIT"},
                                                {6, 480, 1200, "VIERKANTJES"},
                                                {7, 480, 720, "PIJLTJES OMHOOG"},
                                                {8, 960, 720, "PIJLTJES OMLAAG"},
                                                {9, 120, 1200, "PIJLTJES LINKS"},
                                                {10, 1320, 720, "PIJLTJES RECHTS"},
                                                {11, 960, 1200, "STERRETJES"},
                                                {12, 1320, 1200, "RUITJES"},
                                                {13, 480, 240, "LUCIFERTJES"}}};

}  // namespace

class Stamps : public Studio {
 protected:
  PictureBox& box(int number) {
    PictureBox* const all[] = {&studio.picBorstel1,  &studio.picBorstel2,  &studio.picBorstel3,
                               &studio.picBorstel4,  &studio.picBorstel5,  &studio.picBorstel6,
                               &studio.picBorstel7,  &studio.picBorstel8,  &studio.picBorstel9,
                               &studio.picBorstel10, &studio.picBorstel11, &studio.picBorstel12,
                               &studio.picBorstel13};
    return *all[number - 1];
  }
  void choose(int number) {
    if (!studio.fraBorstels.Visible) click(studio.cmdBorstels);
    if (number == 2)
      box(number).Click();  // its picture is hidden
    else
      click(box(number));
  }
  // The slider of thickness keeps its place when its panel is left.
  void setThickness(int thickness) {
    click(studio.cmdLijnen);
    slide(studio.Slider1, thickness);
  }
  void pressAndRelease(int x, int y, int button = 1) {
    press(sheet, x, y, button);
    release(sheet, x, y, button);
  }
};

TEST_F(Stamps, ThePanelShowsTwelveFigures) {
  click(studio.cmdBorstels);
  EXPECT_EQ(studio.fraBorstels.Caption, "BORSTELS");
  expectPlaced({{studio.fraBorstels, 240, 5160, 1815, 1695}});
  for (const StampPlace& place : Places) {
    SCOPED_TRACE(place.number);
    PictureBox& stamp = box(place.number);
    expectPlaced({{stamp, place.left, place.top, 375, 375, place.tip}});
    EXPECT_TRUE(stamp.Visible);
    EXPECT_EQ(&stamp.container(), static_cast<Container*>(&studio.fraBorstels));
    EXPECT_EQ(stamp.Picture->width(), 25);
    EXPECT_EQ(stamp.Picture->height(), 25);
  }
  EXPECT_FALSE(studio.picBorstel2.Visible);
  EXPECT_NE(&studio.picBorstel2.container(), static_cast<Container*>(&studio.fraBorstels));
}

TEST_F(Stamps, EveryPictureOfThePanelDiffersFromTheOthers) {
  for (const StampPlace& one : Places)
    for (const StampPlace& other : Places)
      if (one.number < other.number) {
        EXPECT_FALSE(same(*box(one.number).Picture->bitmap(), *box(other.number).Picture->bitmap()))
            << one.number << " and " << other.number;
      }
}

TEST_F(Stamps, ChoosingOneKeepsThePanelOpenAndSetsTheTool) {
  for (int number = 1; number <= 13; ++number) {
    studio.cmdUndo.Enabled = false;
    sheet.DrawWidth = 8;
    choose(number);
    EXPECT_TRUE(studio.fraBorstels.Visible) << number;
    EXPECT_EQ(sheet.DrawWidth, 1) << number;
    EXPECT_EQ(sheet.MousePointer, PointerCustom) << number;
    EXPECT_EQ(sheet.MouseIcon, "curPen") << number;
    EXPECT_TRUE(studio.cmdUndo.Enabled) << number;
    EXPECT_EQ(studio.lblModus.Caption, "een punt of lijn tekenen met figuurtjes") << number;
  }
}

class Figures : public Stamps, public testing::WithParamInterface<int> {};

TEST_P(Figures, AreTheLinesOfTheirList) {
  choose(GetParam());
  const Color color = pickColor(70);
  raster::Bitmap should = canvas();
  literalStamp(should, GetParam(), 100, 80, color);
  pressAndRelease(100, 80);
  EXPECT_TRUE(shows(sheet, should));
  EXPECT_FALSE(shows(sheet, blank()));
}

TEST_P(Figures, AreDrawnWithThePenAsItIs) {
  shrinkSheet(80, 80);
  choose(GetParam());
  sheet.DrawWidth = 4;
  raster::Bitmap should = canvas();
  literalStamp(should, GetParam(), 40, 40, Black, 4);
  pressAndRelease(40, 40);
  EXPECT_TRUE(shows(sheet, should));
}

TEST_P(Figures, AreClippedByTheSheet) {
  choose(GetParam());
  raster::Bitmap should = canvas();
  for (const auto& [x, y] : {std::pair{1, 2}, {615, 300}, {300, 536}}) {
    literalStamp(should, GetParam(), x, y, Black);
    pressAndRelease(x, y);
  }
  EXPECT_TRUE(shows(sheet, should));
}

INSTANTIATE_TEST_SUITE_P(Each, Figures, testing::Range(1, 13));

TEST_F(Stamps, TheDiscIsFilledAndTheDiamondReachesItsLastPixel) {
  choose(5);
  pressAndRelease(50, 50);
  for (int y = -5; y <= 5; ++y)
    for (int x = -5; x <= 5; ++x) {
      if (x * x + y * y <= 25) {
        EXPECT_EQ(sheet.bitmap()->at(50 + x, 50 + y), toPixel(Black)) << x << ", " << y;
      }
    }
  choose(12);
  pressAndRelease(150, 50);
  EXPECT_EQ(sheet.Point({145, 50}), Black);
  EXPECT_EQ(sheet.Point({155, 50}), Black);
  EXPECT_EQ(sheet.Point({156, 50}), White);
}

TEST_F(Stamps, ADragLeavesATrailAndTheReleaseAddsNothing) {
  choose(3);
  raster::Bitmap should = canvas();
  drag(sheet, 50, 50, 90, 50);
  for (const int x : {50, 70, 90}) literalStamp(should, 3, x, 50, Black);
  EXPECT_TRUE(shows(sheet, should));
  press(sheet, 200, 200);
  literalStamp(should, 3, 200, 200, Black);
  release(sheet, 200, 200);
  EXPECT_TRUE(shows(sheet, should));
}

TEST_F(Stamps, AnyButtonStampsAtThePressButOnlyTheLeftOneLeavesATrail) {
  choose(3);
  raster::Bitmap should = canvas();
  for (const int button : {2, 4}) {
    drag(sheet, 50 * button, 50, 50 * button + 40, 50, button);
    literalStamp(should, 3, 50 * button, 50, Black);
  }
  move(sheet, 300, 300);
  EXPECT_TRUE(shows(sheet, should));
}

TEST_F(Stamps, TheFirstOneIsInTheSnapshotAndTheTrailIsNot) {
  choose(6);
  drag(sheet, 50, 50, 130, 50);
  raster::Bitmap first = blank();
  literalStamp(first, 6, 50, 50, Black);
  click(studio.cmdUndo);
  EXPECT_TRUE(shows(sheet, first));
}

TEST_F(Stamps, UseTheSwatchAndNotThePensColour) {
  choose(3);
  const Color swatch = pickSwatchOnly(30);
  ASSERT_EQ(sheet.ForeColor, Black);
  pressAndRelease(100, 100);
  EXPECT_EQ(sheet.Point({100, 98}), swatch);

  // The eraser's white pen does not reach them either.
  click(studio.cmdGom);
  ASSERT_EQ(sheet.ForeColor, White);
  studio.picBorstel3.Click();
  pressAndRelease(200, 100);
  EXPECT_EQ(sheet.Point({200, 98}), Black);
}

TEST_F(Stamps, MatchSticksFallAtRandomAndGrowWithTheThickness) {
  shrinkSheet(100, 100);
  for (const int thickness : {1, 5, 20}) {
    setThickness(thickness);
    choose(13);
    const Color color = pickColor(100);
    sheet.Cls();
    raster::Bitmap should = canvas();
    const auto seed = static_cast<std::uint32_t>(40 + thickness);
    seedRandom(seed);
    for (int i = 0; i < 12; ++i) pressAndRelease(50, 50);
    seedRandom(seed);
    for (int i = 0; i < 12; ++i) literalMatch(should, 50, 50, color, thickness);
    EXPECT_TRUE(shows(sheet, should)) << thickness;
  }
}

TEST_F(Stamps, ASheetFullOfThemIsTheSumOfTheirFigures) {
  std::mt19937 hand(44);
  raster::Bitmap should = canvas();
  for (int i = 0; i < 60; ++i) {
    const int figure = 1 + static_cast<int>(hand() % 12);
    choose(figure);
    const Color color = pickColor(static_cast<int>(hand() % 120));
    const int x = static_cast<int>(hand() % 617), y = static_cast<int>(hand() % 537);
    literalStamp(should, figure, x, y, color);
    pressAndRelease(x, y);
  }
  EXPECT_TRUE(shows(sheet, should));
}

TEST_F(Stamps, AMatchStickLeavesThePenThickUntilAStampIsChosenAnew) {
  setThickness(9);
  choose(13);
  EXPECT_EQ(sheet.DrawWidth, 1);
  pressAndRelease(100, 100);
  EXPECT_EQ(sheet.DrawWidth, 9);
  // The figure may change behind the tool's back; the pen stays.
  pressAndRelease(150, 150);
  EXPECT_EQ(sheet.DrawWidth, 9);
  choose(3);
  EXPECT_EQ(sheet.DrawWidth, 1);
}

// The figures' loop counter is where a line on the bare form begins; the other end of that start is
// the third random number of the load.
TEST_F(Stamps, TheLoopCounterIsWhereALineOnTheBareFormBegins) {
  seedRandom(1);
  Rnd();
  Rnd();
  const float beginY = Rnd() * 255;
  choose(6);  // a figure without a loop leaves the counter at 0, and nothing is drawn
  pressAndRelease(100, 100);
  click(studio.cmdLijn);
  const raster::Bitmap bare = *studio.bitmap();
  pressOnForm(studio, 400, 580);
  releaseOnForm(studio, 400, 580);
  ASSERT_TRUE(shows(studio, bare));

  // The release has cleared the start, so the studio begins anew.
  click(studio.cmdEinde);
  seedRandom(1);
  auto& again = the<frmTekenen2>();
  again.Show();
  again.picBorstel7.Click();
  press(again.picBlad, 100, 100);
  release(again.picBlad, 100, 100);
  click(again.cmdLijn);
  raster::Bitmap should = *again.bitmap();
  pressOnForm(again, 400, 580);
  releaseOnForm(again, 400, 580);
  // Seven's loop ends at 6 twips, which is column 0.
  oracle::line({should}, thinPen(0x404040), 0, static_cast<int>(std::nearbyint(beginY / 15)), 400,
               580);
  EXPECT_TRUE(shows(again, should));
}
