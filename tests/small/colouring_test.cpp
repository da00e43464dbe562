// The colouring pages: choosing one of sixty, finding the way between the screens, colouring it.
#include <gmock/gmock.h>

#include <QAccessible>
#include <QApplication>
#include <QKeyEvent>
#include <QTest>
#include <array>
#include <filesystem>
#include <vector>

#include "info/frmInfo.h"
#include "small/frmKleurplaat.h"
#include "small/frmKleurplaat2.h"
#include "small/frmKleurplaat3.h"
#include "small/frmKleurplaat4.h"
#include "small/stage.h"
#include "support/tree_folder.h"

using namespace surface;

namespace {

std::string pageFile(int number) {
  return std::string(KRASPRET_TREE) + "/Beeld/" + (number < 10 ? "0" : "") +
         std::to_string(number) + ".gif";
}

// The page as the toolkit reads it, without the program's own reader.
QImage pageImage(int number) {
  return QImage(QString::fromStdString(pageFile(number))).convertToFormat(QImage::Format_RGB32);
}

int differences(const raster::Bitmap& sheet, const QImage& page) {
  if (page.width() != 617 || page.height() != 537) return -1;
  int count = 0;
  for (int y = 0; y < page.height(); ++y)
    for (int x = 0; x < page.width(); ++x)
      count += (sheet.at(x, y) & 0xFFFFFF) != (page.pixel(x, y) & 0xFFFFFF);
  return count;
}

template <class F>
F* newest() {
  F* found = nullptr;
  for (const auto& form : FormRegistry::instance().forms())
    if (auto* match = dynamic_cast<F*>(form.get())) found = match;
  return found;
}

template <class F>
int count() {
  int number = 0;
  for (const auto& form : FormRegistry::instance().forms())
    number += dynamic_cast<F*>(form.get()) != nullptr;
  return number;
}

}  // namespace

class Colouring : public script::Stage {
 protected:
  Colouring() { app().Path = KRASPRET_TREE; }

  /// Opens the screen that holds a page and gives the control that stands for it.
  Control& open(int number) {
    const auto n = static_cast<std::size_t>((number - 1) % 15);
    switch ((number - 1) / 15) {
      case 0:
        return *showNew<frmKleurplaat>().pictures()[n];
      case 1:
        return *showNew<frmKleurplaat2>().pictures()[n];
      case 2:
        return *showNew<frmKleurplaat3>().pictures()[n];
      default:
        return *showNew<frmKleurplaat4>().titles()[n];
    }
  }
  void choose(int number) { click(open(number)); }
  void key(Qt::Key code) {
    QTest::keyClick(QGuiApplication::focusWindow(), code);
    advance(0);
  }
  frmTekenen1& studio() { return the<frmTekenen1>(); }
};

TEST_F(Colouring, EachOfSixtyPagesLiesOnTheSheetPixelByPixel) {
  for (int number = 1; number <= 60; ++number) {
    SCOPED_TRACE(number);
    choose(number);
    ASSERT_TRUE(isLoaded<frmTekenen1>());
    EXPECT_TRUE(studio().shown());
    EXPECT_EQ(differences(*studio().picBlad.bitmap(), pageImage(number)), 0);
    EXPECT_EQ(studio().txtKleurplaat.Text, std::to_string((number - 1) / 15 + 1));
    EXPECT_EQ(FormRegistry::instance().forms().size(), 1u) << "the chooser is still there";
  }
}

TEST_F(Colouring, TheFlowerButtonStandsWhereTheOpenButtonWas) {
  choose(7);
  EXPECT_TRUE(studio().cmdOpenbestand.Visible);
  EXPECT_TRUE(studio().cmdOpenbestand.Enabled);
  EXPECT_TRUE(studio().cmdKleurplaat.Visible);
  EXPECT_TRUE(studio().cmdKleurplaat.Enabled);
  answerMessage(Yes);
  cancelFile();
  click(studio().cmdOpenbestand);  // the pointer meets what lies in front
  EXPECT_EQ(studio().lblModus.Caption, "je kunt nu KLEUREN maar OOK TEKENEN");
}

TEST_F(Colouring, ThumbnailsStandColumnByColumn) {
  auto& page = showNew<frmKleurplaat>();
  const float lefts[] = {360, 2640, 4920, 7200, 9480}, tops[] = {1320, 3360, 5400};
  int n = 0;
  for (ImageControl* picture : page.pictures()) {
    EXPECT_EQ(picture->Left, lefts[n / 3]);
    EXPECT_EQ(picture->Top, tops[n % 3]);
    EXPECT_EQ(picture->Width, 2055);
    EXPECT_EQ(picture->Height, 1935);
    EXPECT_TRUE(picture->Border);
    ++n;
  }
  EXPECT_EQ(page.pic15.Left, 9480);
  EXPECT_EQ(page.pic15.Top, 5400);
  EXPECT_EQ(showNew<frmKleurplaat2>().pic1.Left, 360);
}

TEST_F(Colouring, AThumbnailIsTheVeryPage) {
  auto& page = showNew<frmKleurplaat3>();
  int number = 31;
  for (ImageControl* picture : page.pictures())
    EXPECT_EQ(differences(*picture->Picture->bitmap(), pageImage(number++)), 0) << number - 1;
}

TEST_F(Colouring, AThumbnailShowsItsOutlines) {
  auto& page = showNew<frmKleurplaat>();
  for (ImageControl* picture : page.pictures()) {
    const QImage small = shown(*picture);
    int dark = 0;
    for (int y = 4; y < small.height() - 4; ++y)
      for (int x = 4; x < small.width() - 4; ++x) dark += qGray(small.pixel(x, y)) < 200;
    EXPECT_GT(dark, small.width() * small.height() / 20) << picture->AccessibleName;
  }
}

TEST_F(Colouring, TheTitlesAndTheirInstructionsAreToldToTheLetter) {
  auto& last = showNew<frmKleurplaat4>();
  const char* const titles[] = {
      "even de dieren voeren",      "een stevige burcht",      "even gezellig kleuren",
      "indiaan in zijn kamp",       "dolle pret met carnaval", "een dag aan het strand",
      "kijk naar de leuke vlieger", "daar komt de trein",      "eendjes in het park",
      "leuke picnic in het bos",    "schip van de piraten",    "indianen in hun kano",
      "met de blokken spelen",      "jongleur in het circus",  "nog een picnic in het bos"};
  int n = 0;
  for (Label* label : last.titles()) EXPECT_EQ(label->Caption, titles[n++]);
  EXPECT_EQ(last.lblNaam.Caption, "Klik even op de tekst over de kleurplaat die je wenst.");
  EXPECT_EQ(showNew<frmKleurplaat>().lblNaam.Caption, "Klik even op de kleurplaat die je wenst.");
  EXPECT_EQ(showNew<frmKleurplaat3>().lblNaam.Caption, "Klik even op de kleurplaat die je wenst.");
  EXPECT_EQ(showNew<frmKleurplaat2>().lblNaam.Caption,
            "Klik eerst op de kleurplaat die je wenst en dan op de knop Kleuren.");
  EXPECT_EQ(last.lblReken.Caption, "KRAS PRET : wat je ZELF maakt is KUNST");
}

TEST_F(Colouring, TheLastScreenReadsNoFileUntilOneIsChosen) {
  app().Path = folder();
  showNew<frmKleurplaat4>();
  EXPECT_EQ(takeErrorReport(), std::nullopt);
}

TEST_F(Colouring, AMissingPageAtTheLoadIsReportedAndTheScreenStaysOpen) {
  app().Path = folder();
  std::filesystem::create_directory(folder() + "/Beeld");
  std::filesystem::copy_file(pageFile(1), folder() + "/Beeld/01.gif");
  auto& page = showNew<frmKleurplaat>();
  EXPECT_NE(takeErrorReport(), std::nullopt);
  EXPECT_FALSE(ended());
  EXPECT_TRUE(page.shown());
  EXPECT_FALSE(page.pic1.Picture->empty());
  EXPECT_TRUE(page.pic2.Picture->empty());
  click(page.pic1);
  EXPECT_EQ(differences(*studio().picBlad.bitmap(), pageImage(1)), 0);
}

TEST_F(Colouring, AMissingPageAtTheChoiceIsReportedAndBothScreensStay) {
  auto& page = showNew<frmKleurplaat>();
  app().Path = folder();
  dispatch([&] { page.pic3.Click(); });
  EXPECT_NE(takeErrorReport(), std::nullopt);
  EXPECT_FALSE(ended());
  EXPECT_TRUE(page.shown());
  EXPECT_TRUE(studio().shown());
  EXPECT_FALSE(page.pic3.Visible);
  EXPECT_FALSE(studio().cmdKleurplaat.Visible);
  EXPECT_EQ(studio().txtKleurplaat.Text, "1");
}

TEST_F(Colouring, ASecondChoiceReplacesOnlyThePicture) {
  choose(3);
  studio().picBlad.DrawWidth = 7;
  click(studio().cmdEllips);
  press(studio().picPalet, 49, 33);
  release(studio().picPalet, 49, 33);
  const Color red = studio().picBlad.ForeColor;
  studio().Hide();
  choose(20);
  EXPECT_EQ(studio().picBlad.DrawWidth, 7);
  EXPECT_EQ(studio().picBlad.ForeColor, red);
  EXPECT_EQ(studio().picBlad.MousePointer, PointerCross);
  EXPECT_EQ(differences(*studio().picBlad.bitmap(), pageImage(20)), 0);
}

TEST_F(Colouring, ThePagesAreReachedByTabAndChosenByEnter) {
  auto& page = showNew<frmKleurplaat>();
  advance(0);
  for (ImageControl* picture : page.pictures()) {
    EXPECT_EQ(QApplication::focusWidget(), script::widgetOf(*picture));
    key(Qt::Key_Tab);
  }
  EXPECT_EQ(QApplication::focusWidget(), script::widgetOf(page.cmdKleurplaat2));
  key(Qt::Key_Backtab);
  key(Qt::Key_Up);
  key(Qt::Key_Return);
  EXPECT_EQ(differences(*studio().picBlad.bitmap(), pageImage(14)), 0);
}

TEST_F(Colouring, TheTitlesAreReachedByTabAndChosenByTheSpaceBar) {
  auto& page = showNew<frmKleurplaat4>();
  advance(0);
  for (Label* title : page.titles()) {
    EXPECT_EQ(QApplication::focusWidget(), script::widgetOf(*title));
    key(Qt::Key_Tab);
  }
  key(Qt::Key_Backtab);
  key(Qt::Key_Left);
  key(Qt::Key_Right);
  key(Qt::Key_Space);
  EXPECT_EQ(differences(*studio().picBlad.bitmap(), pageImage(60)), 0);
}

TEST_F(Colouring, ThePageThatHasTheKeyboardIsMarked) {
  auto& page = showNew<frmKleurplaat>();
  advance(0);
  script::widgetOf(page.pic2)->setFocus();
  const QImage with = shown(page.pic2);
  script::widgetOf(page.pic3)->setFocus();
  EXPECT_NE(shown(page.pic2), with);
}

TEST_F(Colouring, AScreenReaderCanPressAPage) {
  auto& page = showNew<frmKleurplaat>();
  auto* heard = QAccessible::queryAccessibleInterface(script::widgetOf(page.pic7));
  ASSERT_TRUE(heard->actionInterface()->actionNames().contains("Press"));
  heard->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  advance(0);
  EXPECT_EQ(differences(*studio().picBlad.bitmap(), pageImage(7)), 0);
}

TEST_F(Colouring, AKeyThatIsHeldDownChoosesNothingMore) {
  auto& page = showNew<frmKleurplaat>();
  QKeyEvent held(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, " ", true);
  QApplication::sendEvent(script::widgetOf(page.pic1), &held);
  EXPECT_TRUE(page.shown());
  EXPECT_FALSE(isLoaded<frmTekenen1>());
}

TEST_F(Colouring, AChosenPictureIsThereAgainWhenItsScreenIsMadeAnew) {
  choose(3);
  EXPECT_TRUE(showNew<frmKleurplaat>().pic3.Visible);
}

TEST_F(Colouring, WipingTakesThePageAwayAndTheFlowersStay) {
  choose(3);
  click(studio().cmdClear);
  EXPECT_EQ(studio().picBlad.Point({300, 2}), White);
  EXPECT_TRUE(studio().cmdKleurplaat.Visible);
  EXPECT_EQ(studio().txtKleurplaat.Text, "1");
}

TEST_F(Colouring, TheScreensLeadToOneAnother) {
  auto& menu = the<frmStart>();
  menu.Show();
  click(menu.cmdKleurplaten);
  EXPECT_FALSE(menu.shown());
  EXPECT_FALSE(isLoaded<frmKleurplaat>()) << "the menu opens a new instance";
  click(newest<frmKleurplaat>()->cmdKleurplaat2);
  EXPECT_EQ(count<frmKleurplaat>(), 0);
  click(newest<frmKleurplaat2>()->cmdKleurplaat2);
  EXPECT_EQ(count<frmKleurplaat2>(), 0);
  click(newest<frmKleurplaat3>()->cmdKleurplaat2);
  EXPECT_EQ(count<frmKleurplaat3>(), 0);
  click(newest<frmKleurplaat4>()->cmdVorige);
  EXPECT_EQ(count<frmKleurplaat4>(), 0);
  click(newest<frmKleurplaat3>()->cmdVorige);
  click(newest<frmKleurplaat2>()->cmdVorige);
  EXPECT_TRUE(newest<frmKleurplaat>()->shown());
  closeBox(*newest<frmKleurplaat>());
  EXPECT_TRUE(menu.shown());
  EXPECT_EQ(FormRegistry::instance().forms().size(), 1u);
}

TEST_F(Colouring, ClosingLeavesTheHiddenStudioAlone) {
  choose(3);
  const auto before = studio().picBlad.Image();
  studio().Hide();
  the<frmStart>().MousePointer = PointerHourglass;
  click(showNew<frmKleurplaat2>().cmdEinde);
  EXPECT_TRUE(the<frmStart>().shown());
  EXPECT_EQ(the<frmStart>().MousePointer, PointerDefault);
  EXPECT_FALSE(studio().shown());
  EXPECT_TRUE(samePicture(*studio().picBlad.Image().bitmap(), *before.bitmap()));
}

TEST_F(Colouring, InfoFromTheFirstScreenComesBackToTheOneInstance) {
  auto& own = showNew<frmKleurplaat>();
  click(own.cmdInfo);
  EXPECT_FALSE(own.shown());
  EXPECT_EQ(the<frmInfo>().txtInfo.Text, "3");
  click(the<frmInfo>().cmdEinde);
  EXPECT_TRUE(the<frmKleurplaat>().shown());
  EXPECT_NE(&the<frmKleurplaat>(), &own);
  EXPECT_FALSE(isLoaded<frmInfo>());
}

class Flowers : public Colouring, public testing::WithParamInterface<int> {};

TEST_P(Flowers, LeadBackToTheScreenFromWhichThePageCame) {
  const int screen = GetParam();
  choose(15 * screen - 3);
  answerMessage(No);
  click(studio().cmdKleurplaat);
  ASSERT_EQ(asked().size(), 1u);
  EXPECT_EQ(asked()[0].text, "Wil je de huidige tekening opslaan ?");
  EXPECT_EQ(asked()[0].title, "Opslaan");
  EXPECT_FALSE(studio().shown());
  EXPECT_EQ(studio().MousePointer, PointerHourglass);
  EXPECT_TRUE(studio().cmdUndo.Enabled);
  const std::array<int, 4> open = {count<frmKleurplaat>(), count<frmKleurplaat2>(),
                                   count<frmKleurplaat3>(), count<frmKleurplaat4>()};
  std::array<int, 4> wanted{};
  wanted[static_cast<std::size_t>(screen - 1)] = 1;
  EXPECT_EQ(open, wanted);
  EXPECT_TRUE(FormRegistry::instance().forms().back()->shown());
}
INSTANTIATE_TEST_SUITE_P(Screens, Flowers, testing::Values(1, 2, 3, 4));

TEST_F(Colouring, AYesAtTheFlowersSavesAndStaysUnderTheHourglass) {
  choose(5);
  answerMessage(Yes);
  answerFile(folder() + "/kleur.bmp");
  click(studio().cmdKleurplaat);
  EXPECT_TRUE(studio().shown());
  EXPECT_EQ(studio().MousePointer, PointerHourglass);
  EXPECT_EQ(studio().lblModus.Caption, "je kunt nu KLEUREN maar OOK TEKENEN");
  EXPECT_TRUE(std::filesystem::exists(folder() + "/kleur.bmp"));
  EXPECT_EQ(count<frmKleurplaat>(), 0);
  answerMessage(No);
  click(studio().cmdKleurplaat);
  click(newest<frmKleurplaat>()->pic2);
  EXPECT_EQ(studio().MousePointer, PointerDefault);
}

TEST_F(Colouring, HelpFromAPageComesBackToThatPage) {
  choose(12);
  const auto before = studio().picBlad.Image();
  click(studio().cmdHelp);
  EXPECT_FALSE(studio().shown());
  dispatch([] { FormRegistry::instance().forms().back()->closeBoxPressed(); });
  EXPECT_TRUE(studio().shown());
  EXPECT_TRUE(samePicture(*studio().picBlad.Image().bitmap(), *before.bitmap()));
}

// The white areas of a page, told by a flood of the test's own.
struct Area {
  std::vector<std::pair<int, int>> pixels;
};

std::vector<Area> areasOf(const raster::Bitmap& page) {
  std::vector<Area> areas;
  std::vector<bool> seen(static_cast<std::size_t>(page.width() * page.height()));
  const auto open = [&](int x, int y) {
    return page.contains(x, y) && page.at(x, y) == 0xFFFFFFFF &&
           !seen[static_cast<std::size_t>(y * page.width() + x)];
  };
  for (int y = 0; y < page.height(); ++y)
    for (int x = 0; x < page.width(); ++x) {
      if (!open(x, y)) continue;
      Area area;
      std::vector<std::pair<int, int>> todo = {{x, y}};
      seen[static_cast<std::size_t>(y * page.width() + x)] = true;
      while (!todo.empty()) {
        const auto [px, py] = todo.back();
        todo.pop_back();
        area.pixels.emplace_back(px, py);
        for (const auto& [nx, ny] : {std::pair{px - 1, py}, std::pair{px + 1, py},
                                     std::pair{px, py - 1}, std::pair{px, py + 1}}) {
          if (!open(nx, ny)) continue;
          seen[static_cast<std::size_t>(ny * page.width() + nx)] = true;
          todo.emplace_back(nx, ny);
        }
      }
      areas.push_back(std::move(area));
    }
  return areas;
}

class ColouredPage : public Colouring, public testing::WithParamInterface<int> {};

TEST_P(ColouredPage, HasEveryAreaFilledByAClickAndUndoKeepsTheLastFill) {
  choose(GetParam());
  PictureBox& sheet = studio().picBlad;
  raster::Bitmap wanted = *sheet.bitmap();
  const auto areas = areasOf(wanted);
  EXPECT_GT(areas.size(), 10u);
  click(studio().cmdOpvullen);
  int turn = 0;
  for (const Area& area : areas) {
    // Another colour than the former one; never white, the last of the first row.
    const int field = turn++ % 4 + 5;
    press(studio().picPalet, 33 * (field % 5) + 16, 22 * (field / 5) + 11);
    release(studio().picPalet, 33 * (field % 5) + 16, 22 * (field / 5) + 11);
    const auto [x, y] = area.pixels[area.pixels.size() / 2];
    press(sheet, x, y);
    release(sheet, x, y);
    for (const auto& [px, py] : area.pixels) wanted.row(py)[px] = toPixel(sheet.ForeColor);
  }
  EXPECT_TRUE(samePicture(*sheet.bitmap(), wanted));
  EXPECT_FALSE(studio().cmdUndo.Enabled);
  click(studio().cmdTekenen);
  drag(sheet, 5, 5, 600, 500);
  click(studio().cmdUndo);
  wanted.row(5)[5] = 0xFF000000;  // the first dot of the stroke stays
  EXPECT_TRUE(samePicture(*sheet.bitmap(), wanted));
}
INSTANTIATE_TEST_SUITE_P(Pages, ColouredPage,
                         testing::Values(1, 7, 13, 19, 25, 31, 37, 43, 49, 55));
