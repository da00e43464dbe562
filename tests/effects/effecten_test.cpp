// The effects by their buttons: what each says and shows, in which order, and what it leaves.
#include <QEvent>
#include <QWidget>

#include "effects/displacements.h"
#include "effects/effect_stage.h"
#include "effects/frmVervangKleur.h"
#include "effects/neighbour_effects.h"
#include "effects/point_effects.h"
#include "surface/host.h"
#include "surface/random.h"

using namespace surface;
using effects_test::plain;

namespace {

using raster::Bitmap;

struct Row {
  const char* test;
  CommandButton frmTekenen2::*button;
  const char* name;
  Bitmap (*work)(const Bitmap&);
  bool refreshes, progress = true;
};

Bitmap scattered(const Bitmap& picture) {
  seedRandom(9);
  return effects::scattered(picture, Rnd);
}

const Row Rows[] = {
    {"Vervagen", &frmTekenen2::cmdVervagen, "VERVAGEN", effects::blurred, false},
    {"Verscherpen", &frmTekenen2::cmdVerscherpen, "VERSCHERPEN", effects::sharpened, false},
    {"Relief", &frmTekenen2::cmdRelief, "GRIJS RELIEF", effects::embossed, false},
    {"Verspreiden", &frmTekenen2::cmdVerspreiden, "VERSPREIDEN", scattered, false},
    {"Omkeren", &frmTekenen2::cmdOmkeren, "KLEUREN OMKEREN", effects::inverted, true},
    {"Hamerslag", &frmTekenen2::cmdHamerslag, "HAMERSLAG", effects::hammered, true},
    {"Grijswaarden", &frmTekenen2::cmdGrijswaarden, "GRIJSWAARDEN", effects::chained, true, false},
};

// Counts how often a widget is painted.
class Painted : public QObject {
 public:
  explicit Painted(QWidget* widget) { widget->installEventFilter(this); }
  bool eventFilter(QObject*, QEvent* event) override {
    times += event->type() == QEvent::Paint ? 1 : 0;
    return false;
  }
  int times = 0;
};

}  // namespace

class EveryEffect : public EffectStage, public testing::WithParamInterface<Row> {};

TEST_P(EveryEffect, ChangesTheSheetAndPutsTheStudioBackToThePencil) {
  const Bitmap before = drawNoise(61, 47);
  const Bitmap expected = GetParam().work(before);
  studio.cmdEffecten.Click();
  studio.cmdRedo.Enabled = false;
  sheet.ForeColor = 0x0000FF;
  sheet.DrawWidth = 9;
  seedRandom(9);
  (studio.*GetParam().button).Click();
  EXPECT_TRUE(shows(sheet, expected));
  EXPECT_EQ(studio.lblModus.Caption.get(), status(GetParam().name));
  EXPECT_EQ(studio.Caption.get(), "KRAS PRET");
  EXPECT_EQ(studio.MousePointer, PointerDefault);
  EXPECT_FALSE(studio.cmdUndo.Enabled);
  EXPECT_FALSE(studio.fraEffecten.Visible);
  EXPECT_EQ(sheet.ForeColor, Black);
  EXPECT_EQ(sheet.DrawWidth, 1);
  EXPECT_TRUE(same(*studio.UndoPic(0).Picture->bitmap(), before)) << "the step is taken";
}

TEST_P(EveryEffect, IsFollowedByFiveSecondsOfProgressOrNone) {
  drawNoise(30, 20);
  (studio.*GetParam().button).Click();
  EXPECT_EQ(animates(), GetParam().progress);
  if (GetParam().progress)
    expectOneMessageAfterFiveSeconds();
  else
    advance(10'000);
}

TEST_P(EveryEffect, AnnouncesItselfWithABannerAndAnHourglassWhileItWorks) {
  drawNoise(30, 20);
  Heard heard(script::widgetOf(sheet)->window());
  (studio.*GetParam().button).Click();
  EXPECT_EQ(heard.captions, (std::vector<std::string>{banner(GetParam().name), "KRAS PRET"}));
  EXPECT_EQ(heard.hourglass, GetParam().progress);
}

TEST_P(EveryEffect, IsShownAtOnceIfItRefreshesAndAtTheNextRepaintIfNot) {
  drawNoise(30, 20);
  advance(0);
  Painted painted(script::widgetOf(sheet));
  dispatch([&] {
    (studio.*GetParam().button).Click();
    EXPECT_EQ(painted.times > 0, GetParam().refreshes);
  });
  advance(0);
  EXPECT_GT(painted.times, 0);
}

TEST_P(EveryEffect, SurvivesASheetOfOnePixel) {
  const Bitmap before = drawNoise(1, 1);
  const Bitmap expected = GetParam().work(before);
  seedRandom(9);
  (studio.*GetParam().button).Click();
  EXPECT_TRUE(shows(sheet, expected));
}

INSTANTIATE_TEST_SUITE_P(Each, EveryEffect, testing::ValuesIn(Rows),
                         [](const auto& row) { return std::string(row.param.test); });

using Effects = EffectStage;

TEST_F(Effects, PanelStandsAsTheTableSays) {
  click(studio.cmdEffecten);
  EXPECT_TRUE(studio.fraEffecten.Visible);
  const std::pair<CommandButton*, const char*> buttons[] = {
      {&studio.cmdVervagen, "VERVAGEN"},
      {&studio.cmdRelief, "GRIJS RELIEF"},
      {&studio.cmdVerspreiden, "VERSPREIDEN"},
      {&studio.cmdOmkeren, "KLEUREN OMKEREN"},
      {&studio.cmdHelderheid, "HELDERHEID VERANDEREN"},
      {&studio.cmdHamerslag, "HAMERSLAG"},
      {&studio.cmdZaagrand, "ZAAGRAND"},
      {&studio.cmdVervangKleur, "KLEUREN VERVANGEN"}};
  for (const auto& [button, tip] : buttons) {
    EXPECT_EQ(button->ToolTipText.get(), tip);
    EXPECT_TRUE(button->Visible && button->Enabled);
    EXPECT_FALSE(host().artPicture(button->Picture).empty()) << tip << " has no picture";
  }
  for (const CommandButton* hidden : {&studio.cmdGrijswaarden, &studio.cmdVerscherpen})
    EXPECT_FALSE(hidden->Visible || hidden->Enabled);
}

TEST_F(Effects, BarLiesOverTheMiddleOfTheSheet) {
  expectPlaced({{studio.ProgressBar1, 5760, 3960, 3495, 375}});
  EXPECT_FALSE(studio.ProgressBar1.Visible);
  EXPECT_EQ(studio.ProgressBar1.Max, 50);
}

TEST_F(Effects, ByThePointerCloseTheirPanelAndChangeTheSheet) {
  const Bitmap before = drawNoise(61, 47);
  clickEffect(studio.cmdVervagen);
  EXPECT_TRUE(shows(sheet, effects::blurred(before)));
  EXPECT_FALSE(studio.fraEffecten.Visible);
}

TEST_F(Effects, OfTheRagEdgeMoveTheColumns) {
  const Bitmap before = drawNoise(61, 47);
  clickEffect(studio.cmdZaagrand);
  EXPECT_EQ(studio.lblModus.Caption.get(), status("ZAAGRAND"));
  EXPECT_EQ(studio.Caption.get(), "KRAS PRET");
  for (int y = 0; y < 44; ++y) ASSERT_EQ(sheet.bitmap()->at(0, y), before.at(0, y + 3));
  expectOneMessageAfterFiveSeconds();
}

TEST_F(Effects, InvertTwiceGivesTheDrawingBackAlsoOnAnEnlargedSheet) {
  const Bitmap before = drawNoise(700, 600);
  clickEffect(studio.cmdOmkeren);
  EXPECT_TRUE(shows(sheet, effects::inverted(before)));
  EXPECT_TRUE(same(*sheet.Picture->bitmap(), effects::inverted(before))) << "it is the Picture now";
  clickEffect(studio.cmdOmkeren);
  EXPECT_TRUE(shows(sheet, before));
}

TEST_F(Effects, TwoWithinFiveSecondsEndInOneMessage) {
  drawNoise(30, 20);
  clickEffect(studio.cmdVervagen);
  advance(3000);
  EXPECT_EQ(studio.ProgressBar1.Value, 30);
  clickEffect(studio.cmdRelief);
  EXPECT_EQ(studio.ProgressBar1.Value, 30) << "the bar goes on from where it stood";
  advance(2000);
  EXPECT_EQ(messages(), 0);
  answerMessage(Ok);
  advance(100);
  EXPECT_EQ(messages(), 1);
  advance(10'000);
  EXPECT_EQ(messages(), 1);
}

TEST_F(Effects, BarMovesOnlyAfterTheWorkAndStepByStep) {
  drawNoise(30, 20);
  clickEffect(studio.cmdHamerslag);
  EXPECT_EQ(studio.ProgressBar1.Value, 0);
  for (int tick = 1; tick <= 50; ++tick) {
    advance(100);
    ASSERT_EQ(studio.ProgressBar1.Value, tick);
    ASSERT_TRUE(studio.ProgressBar1.Visible);
  }
  answerMessage(Ok);
  advance(100);
  ASSERT_EQ(messages(), 1);
  EXPECT_EQ(asked()[0].title, "KRAS PRET") << "the program's name: it has no title of its own";
  EXPECT_EQ(asked()[0].buttons, OkOnly);
}

TEST_F(Effects, SayNothingMoreOnceTheStudioIsLeft) {
  clickEffect(studio.cmdHamerslag);
  advance(1000);
  click(studio.cmdEinde);
  advance(10'000);
  EXPECT_EQ(messages(), 0);
  auto& again = the<frmTekenen2>();
  again.Show();
  advance(10'000);
  EXPECT_EQ(messages(), 0);
  EXPECT_FALSE(again.ProgressBar1.Visible || again.Timer2.Enabled);
}

TEST_F(Effects, LeaveNoBarOnASheetThatIsWipedOrNew) {
  for (CommandButton* button : {&studio.cmdClear, &studio.cmdNieuw}) {
    clickEffect(studio.cmdHamerslag);
    advance(1000);
    click(*button);
    EXPECT_FALSE(studio.ProgressBar1.Visible || studio.Timer2.Enabled);
    advance(10'000);
    EXPECT_EQ(messages(), 0);
    clickEffect(studio.cmdHamerslag);
    advance(100);
    EXPECT_EQ(studio.ProgressBar1.Value, 1) << "the count begins anew";
  }
}

TEST_F(Effects, AreNotUndoneUntilAToolIsChosen) {
  const Bitmap white = canvas();
  press(sheet, 0, 0);
  release(sheet, 0, 0);
  const Bitmap pressed = canvas();
  clickEffect(studio.cmdOmkeren);
  EXPECT_FALSE(studio.cmdUndo.Enabled);
  click(studio.cmdLijn);
  EXPECT_TRUE(studio.cmdUndo.Enabled);
  click(studio.cmdUndo);
  EXPECT_TRUE(shows(sheet, pressed)) << "the sheet of the last press, from before the effect";
}

TEST_F(Effects, BrightnessAsksAndBrightens) {
  const Bitmap before = drawNoise(61, 47);
  answerInput("150");
  clickEffect(studio.cmdHelderheid);
  ASSERT_EQ(asked().size(), 1u);
  EXPECT_EQ(asked()[0].text,
            "Voer een waarde voor HELDERHEID ( tussen 0 en 200), minder dan 100 wordt de tekening "
            "donkerder, meer dan 100 wordt ze lichter van kleur");
  EXPECT_EQ(asked()[0].title, "HELDERHEID INSTELLEN");
  EXPECT_EQ(asked()[0].initial, "100");
  EXPECT_TRUE(shows(sheet, effects::scaled(before, {1.5, 1.5, 1.5})));
  EXPECT_EQ(studio.lblModus.Caption.get(), status("HELDERHEID"));
  EXPECT_EQ(studio.Caption.get(), "KRAS PRET");
  EXPECT_EQ(studio.MousePointer, PointerDefault);
  expectOneMessageAfterFiveSeconds();
}

TEST_F(Effects, BrightnessTakesItsStepAndStartsTheProgressBeforeItAsksAndTheHourglassAfter) {
  const Bitmap before = drawNoise(10, 10);
  bool animated = false;
  int pointer = -1;
  std::string caption;
  Heard heard(script::widgetOf(sheet)->window());
  host().inputBox = [&](const std::string&, const std::string&, const std::string&) {
    EXPECT_TRUE(same(*studio.UndoPic(0).Picture->bitmap(), before));
    EXPECT_FALSE(studio.cmdUndo.Enabled);
    animated = animates();
    pointer = studio.MousePointer;
    caption = studio.Caption;
    return std::optional<std::string>("100");
  };
  clickEffect(studio.cmdHelderheid);
  EXPECT_TRUE(animated);
  EXPECT_EQ(pointer, PointerDefault);
  EXPECT_TRUE(heard.hourglass);
  EXPECT_EQ(caption, banner("HELDERHEID"));
}

TEST_F(Effects, MessageComesAlsoAboveAnOpenInputBox) {
  drawNoise(10, 10);
  answerMessage(Ok);
  host().inputBox = [&](const std::string&, const std::string&, const std::string&) {
    advance(5100);
    EXPECT_EQ(messages(), 1);
    return std::optional<std::string>("100");
  };
  clickEffect(studio.cmdHelderheid);
  EXPECT_EQ(messages(), 1);
  EXPECT_FALSE(animates());
}

TEST_F(Effects, BrightnessBeyondItsRangeIsAbandonedHalfway) {
  for (const std::string& answer :
       {std::string("-1"), std::string("-0.001"), std::string("200.5"), std::string("201"),
        std::string("1e3"), std::string(400, '9')}) {
    const Bitmap before = drawNoise(20, 20);
    studio.UndoPic(0).Picture = LoadPicture();
    answerInput(answer);
    clickEffect(studio.cmdHelderheid);
    EXPECT_TRUE(shows(sheet, before)) << answer;
    EXPECT_EQ(studio.Caption.get(), banner("HELDERHEID")) << "the banner stays";
    EXPECT_EQ(studio.lblModus.Caption.get(), status("HELDERHEID"));
    EXPECT_EQ(studio.MousePointer, PointerDefault);
    EXPECT_TRUE(same(*studio.UndoPic(0).Picture->bitmap(), before)) << "the step was taken";
    EXPECT_TRUE(animates());
  }
  expectOneMessageAfterFiveSeconds();
}

TEST_F(Effects, BrightnessOfNoNumberIsBlack) {
  const std::optional<std::string> answers[] = {std::nullopt, "",     "abc", "0",
                                                "x50",        "&H32", "0x32"};
  for (const auto& answer : answers) {
    drawNoise(20, 20);
    answer ? answerInput(*answer) : cancelInput();
    clickEffect(studio.cmdHelderheid);
    EXPECT_TRUE(shows(sheet, plain(20, 20, Black))) << answer.value_or("a cancel");
  }
}

TEST_F(Effects, BrightnessReadsTheNumberAtTheStartOfTheAnswer) {
  const std::pair<const char*, double> answers[] = {{"  50", 50},  {"50,9", 50}, {"50.5", 50.5},
                                                    {"+150", 150}, {"5e1", 50},  {"50 procent", 50},
                                                    {"1e2", 100},  {"200", 200}, {"-0", 0}};
  for (const auto& [answer, percent] : answers) {
    const Bitmap before = drawNoise(40, 40);
    answerInput(answer);
    clickEffect(studio.cmdHelderheid);
    const double f = static_cast<float>(percent / 100);
    EXPECT_TRUE(shows(sheet, effects::scaled(before, {f, f, f}))) << answer;
  }
}

TEST_F(Effects, OfTheGridTakeASheetOf1501) {
  const Bitmap before = drawNoise(1501, 3);
  clickEffect(studio.cmdVervagen);
  EXPECT_TRUE(shows(sheet, effects::blurred(before)));
  const Bitmap tall = drawNoise(3, 1501);
  clickEffect(studio.cmdVervagen);
  EXPECT_TRUE(shows(sheet, effects::blurred(tall)));
}

class TooLargeSheet : public EffectStage, public testing::WithParamInterface<int> {};

TEST_P(TooLargeSheet, EndsInTheErrorReportBeforeAPixelHasChanged) {
  CommandButton* const buttons[] = {&studio.cmdVervagen, &studio.cmdVerscherpen, &studio.cmdRelief,
                                    &studio.cmdVerspreiden};
  const bool tall = GetParam() >= 4;
  const Bitmap before = drawNoise(tall ? 4 : 1502, tall ? 1502 : 4);
  dispatch([&] { buttons[GetParam() % 4]->Click(); });
  EXPECT_EQ(takeErrorReport(), "Subscript out of range");
  EXPECT_TRUE(ended());
  EXPECT_TRUE(shows(sheet, before));
}

INSTANTIATE_TEST_SUITE_P(OfEachGridEffect, TooLargeSheet, testing::Range(0, 8));

TEST_F(Effects, WithoutAGridTakeAnyHeight) {
  const Bitmap before = drawNoise(4, 1700);
  clickEffect(studio.cmdHamerslag);
  EXPECT_TRUE(shows(sheet, effects::hammered(before)));
  clickEffect(studio.cmdZaagrand);
  EXPECT_EQ(takeErrorReport(), std::nullopt);
}
