// The course: seventeen steps, the white pen, the flags, and the way out.
#include <QSlider>
#include <fstream>
#include <map>
#include <set>
#include <sstream>

#include "course/frmCursus.h"
#include "course/frmTekenen3.h"
#include "files/picture_files.h"
#include "shell/frmStart.h"
#include "support/script.h"
#include "support/tree_folder.h"

using namespace surface;

class CourseStage : public script::Stage {
 protected:
  CourseStage() { lesson.Show(); }

  frmTekenen3& lesson = the<frmTekenen3>();
  PictureBox& sheet = lesson.picBlad;

  const std::map<std::string, Control*> named = {{"cmdTekenen", &lesson.cmdTekenen},
                                                 {"cmdLijn", &lesson.cmdLijn},
                                                 {"cmdRechthoek", &lesson.cmdRechthoek},
                                                 {"cmdEllips", &lesson.cmdEllips},
                                                 {"cmdOpvullen", &lesson.cmdOpvullen},
                                                 {"cmdSpuitbus", &lesson.cmdSpuitbus},
                                                 {"cmdUndo", &lesson.cmdUndo},
                                                 {"cmdClear", &lesson.cmdClear},
                                                 {"cmdGom", &lesson.cmdGom},
                                                 {"cmdOpenbestand", &lesson.cmdOpenbestand},
                                                 {"cmdSaveAs", &lesson.cmdSaveAs},
                                                 {"cmdPrint", &lesson.cmdPrint},
                                                 {"cmdKleurplaat", &lesson.cmdKleurplaat},
                                                 {"Slider1", &lesson.Slider1},
                                                 {"Line2", &lesson.Line2},
                                                 {"lblModus", &lesson.lblModus},
                                                 {"Shape1", &lesson.Shape1},
                                                 {"picPalet", &lesson.picPalet},
                                                 {"picBlad", &lesson.picBlad},
                                                 {"imgPijl", &lesson.imgPijl},
                                                 {"imgMuis", &lesson.imgMuis}};

  void further(int step) { click(*lesson.buttons()[static_cast<std::size_t>(step - 1)]); }
  void goTo(int step) {
    for (int s = 1; s <= step; ++s) further(s);
  }
  std::set<std::string> visible() const {
    std::set<std::string> names;
    for (const auto& [name, control] : named)
      if (control->Visible) names.insert(name);
    return names;
  }
  Color at(int x, int y) const {
    return sheet.Point({static_cast<float>(x), static_cast<float>(y)});
  }
  int painted() const {
    const auto bitmap = sheet.bitmap();
    int count = 0;
    for (int y = 0; y < bitmap->height(); ++y)
      for (int x = 0; x < bitmap->width(); ++x) count += bitmap->at(x, y) != 0xFFFFFFFF;
    return count;
  }
  Color pick(int row, int column) {
    press(lesson.picPalet, 33 * column + 16, 22 * row + 11);
    release(lesson.picPalet, 33 * column + 16, 22 * row + 11);
    return lesson.Shape1.FillColor;
  }
};

class Lessons : public CourseStage {};

TEST_F(Lessons, SeventeenTimesFurtherShowsWhatTheTableSays) {
  // What can be seen beside the text, "Sluiten" and "Verder", after each step.
  const std::set<std::string> table[] = {
      {"picBlad"},
      {"picBlad", "cmdTekenen"},
      {"picBlad", "cmdLijn"},
      {"picBlad", "cmdLijn", "cmdTekenen", "Slider1", "Line2"},
      {"picBlad", "cmdRechthoek"},
      {"picBlad", "cmdEllips"},
      {"picBlad", "cmdTekenen", "cmdGom"},
      {"picBlad", "cmdLijn", "cmdUndo"},
      {"picBlad", "cmdTekenen", "cmdClear"},
      {"picBlad", "cmdTekenen", "cmdRechthoek", "cmdEllips", "cmdLijn", "cmdUndo", "cmdGom",
       "lblModus"},
      {"picBlad", "cmdTekenen", "cmdRechthoek", "picPalet", "Shape1", "imgPijl"},
      {"picBlad", "cmdRechthoek", "picPalet", "Shape1", "cmdOpvullen"},
      {"picBlad", "picPalet", "Shape1", "cmdSpuitbus"},
      {"picBlad", "cmdTekenen", "cmdSaveAs"},
      {"picBlad", "cmdOpenbestand"},
      {"picBlad", "cmdOpenbestand", "cmdPrint"},
      {"picBlad", "cmdKleurplaat"},
      {"imgMuis"}};
  std::ifstream file(std::string(KRASPRET_TREE) + "/tests/course/lessons.txt");
  std::set<std::string> seenOnce;
  const auto buttons = lesson.buttons();
  for (int step = 0; step <= 17; ++step) {
    SCOPED_TRACE("step " + std::to_string(step));
    std::string text =
        "In dit schermpje krijg je de uitleg over wat je moet doen. Gebruik telkens de knop Verder "
        "en voer de opdracht uit. Het gaat je zeker allemaal lukken. Veel succes !";
    if (step > 0) {
      further(step);
      ASSERT_TRUE(std::getline(file, text));
    }
    EXPECT_EQ(lesson.lblCursus.Caption, text);
    EXPECT_EQ(visible(), table[step]);
    for (const auto& [name, control] : named) {
      // What a step has shown or hidden is switched with it.
      if (control->Visible) seenOnce.insert(name);
      if (seenOnce.contains(name)) {
        EXPECT_EQ(control->Enabled, control->Visible.get()) << name;
      }
    }
    for (int n = 0; n < 17; ++n) {
      const CommandButton& button = *buttons[static_cast<std::size_t>(n)];
      EXPECT_EQ(button.Visible, n == step) << n + 1;
      if (n <= step) {
        EXPECT_EQ(button.Enabled, n == step) << n + 1;
      }
      EXPECT_EQ(button.Left, 3240);
      EXPECT_EQ(button.Top, 3840);
      EXPECT_EQ(button.Width, 1695);
      EXPECT_EQ(button.Height, 735);
      EXPECT_EQ(button.BackColor, n == 0 ? 0xC0C0C0 : n % 2 ? 0x00FF00 : 0x00FFFF);
      EXPECT_EQ(button.Caption, "Verder");
    }
    EXPECT_TRUE(lesson.lblCursus.Visible);
    EXPECT_TRUE(lesson.cmdSluiten.Visible);
    EXPECT_EQ(sheet.ForeColor, White);
    EXPECT_EQ(painted(), 0);
    EXPECT_EQ(lesson.lblModus.Caption, step == 9  ? "Klik eens op elke knop."
                                       : step > 1 ? "ALLES WISSEN voor een NIEUWE TEKENING"
                                                  : "KRAS PRET !!!");
    EXPECT_EQ(lesson.lblModus.BackColor, Black);
    EXPECT_EQ(lesson.lblModus.ForeColor, White);
    EXPECT_EQ(lesson.lblCursus.BackColor, 0xC0FFFF);
    EXPECT_EQ(lesson.Shape1.FillColor, Black);
    EXPECT_EQ(lesson.Line2.BorderColor, Black);
    EXPECT_EQ(lesson.Line2.BorderWidth, 1);
    EXPECT_EQ(lesson.Slider1.Value, 1);
    EXPECT_EQ(sheet.DrawWidth, 1);
    EXPECT_EQ(sheet.MouseIcon, "curPen");
    EXPECT_EQ(lesson.txt1.Text, step >= 6 ? "1" : "");
    EXPECT_EQ(lesson.txt2.Text, step >= 7 ? "1" : "");
    EXPECT_EQ(lesson.txt3.Text, step == 10 || step == 11 ? "1" : "");
    EXPECT_EQ(lesson.cmdSluiten.Left, step == 17 ? 3720 : 120);
    EXPECT_EQ(lesson.cmdSluiten.Top, step == 17 ? 5160 : 3840);
    EXPECT_EQ(lesson.cmdSluiten.Caption, "Sluiten");
  }
  EXPECT_FALSE(std::getline(file, *std::make_unique<std::string>())) << "a lesson too many";
}

TEST_F(Lessons, TheKeysGoOnToo) {
  type(" ");
  EXPECT_TRUE(lesson.cmdVerder2.Visible);
  for (int n = 2; n <= 17; ++n) type(" ");
  EXPECT_TRUE(lesson.imgMuis.Visible);
}

TEST_F(Lessons, BeforeAToolIsChosenADragLeavesNothing) {
  goTo(2);
  drag(sheet, 50, 50, 100, 50);
  EXPECT_EQ(painted(), 0);
  click(lesson.cmdLijn);
  drag(sheet, 50, 50, 100, 50);
  EXPECT_EQ(painted(), 50);
  EXPECT_EQ(at(60, 50), Black);
}

TEST_F(Lessons, TheGreetingStepTakesTheWhitePenToo) {
  further(1);
  drag(sheet, 50, 50, 100, 50);
  EXPECT_EQ(painted(), 0);
  click(lesson.cmdTekenen);
  drag(sheet, 50, 50, 100, 50);
  EXPECT_EQ(painted(), 51);
  EXPECT_EQ(lesson.txt1.Text, "1");
}

TEST_F(Lessons, AToolDoesNotTouchTheColourChip) {
  goTo(10);
  const Color red = pick(1, 1);
  click(lesson.cmdRechthoek);
  EXPECT_EQ(lesson.Shape1.FillColor, red);
}

TEST_F(Lessons, AColourAndTheRectangleGiveAThickRectangleInThatColour) {
  goTo(10);
  const Color red = pick(1, 1);
  EXPECT_TRUE(lesson.imgPijl.Visible);
  click(lesson.cmdRechthoek);
  EXPECT_FALSE(lesson.imgPijl.Visible);
  EXPECT_EQ(sheet.DrawWidth, 5);
  drag(sheet, 50, 50, 120, 100);
  EXPECT_EQ(at(50, 50), red);
  EXPECT_EQ(at(52, 70), red);
  EXPECT_EQ(at(53, 70), White);
}

TEST_F(Lessons, ThePencilTakesThickAndColourInTheLessonOnColoursAndHidesTheArrow) {
  goTo(10);
  const Color red = pick(1, 1);
  click(lesson.cmdTekenen);
  EXPECT_FALSE(lesson.imgPijl.Visible);
  EXPECT_EQ(sheet.DrawWidth, 5);
  EXPECT_EQ(sheet.ForeColor, red);
}

TEST_F(Lessons, AfterTheLessonOnColoursThePencilIsThinOnceItIsClicked) {
  goTo(11);
  click(lesson.cmdRechthoek);
  EXPECT_EQ(sheet.DrawWidth, 5);
  further(12);
  EXPECT_EQ(sheet.DrawWidth, 1) << "every step starts with the thin pen";
  sheet.DrawWidth = 5;
  click(lesson.cmdSpuitbus);
  sheet.DrawWidth = 5;
  lesson.cmdTekenen.Click();
  EXPECT_EQ(sheet.DrawWidth, 1);
}

TEST_F(Lessons, TheEraserIsThickOncePencilHasHadItsTurn) {
  goTo(6);
  click(lesson.cmdTekenen);
  drag(sheet, 50, 50, 100, 50);
  click(lesson.cmdGom);
  EXPECT_EQ(sheet.DrawWidth, 5);
  EXPECT_EQ(lesson.Slider1.Value, 5);
  EXPECT_EQ(sheet.ForeColor, White);
  EXPECT_EQ(lesson.lblModus.Caption, "FOUTJES WEG GOMMEN");
  drag(sheet, 50, 50, 100, 50);
  EXPECT_EQ(painted(), 0);
  click(lesson.cmdTekenen);
  EXPECT_EQ(sheet.DrawWidth, 1);
}

TEST_F(Lessons, WithoutAPencilBeforeItTheEraserKeepsTheThinPen) {
  lesson.cmdGom.Click();
  EXPECT_EQ(sheet.DrawWidth, 1);
}

TEST_F(Lessons, TheThicknessHoldsUntilTheNextStep) {
  goTo(3);
  click(lesson.cmdTekenen);
  if (auto* knob = qobject_cast<QSlider*>(script::widgetOf(lesson.Slider1))) knob->setValue(9);
  EXPECT_EQ(sheet.DrawWidth, 9);
  EXPECT_EQ(lesson.Line2.BorderWidth, 9);
  click(lesson.cmdLijn);
  EXPECT_EQ(sheet.DrawWidth, 9);
  EXPECT_EQ(lesson.Slider1.Value, 1) << "the display goes back, the pen does not";
  further(4);
  EXPECT_EQ(sheet.DrawWidth, 1);
}

TEST_F(Lessons, TheLessonOnUndoTakesTheLastLineAway) {
  goTo(7);
  click(lesson.cmdLijn);
  EXPECT_TRUE(lesson.cmdUndo.Enabled);
  drag(sheet, 50, 50, 100, 50);
  drag(sheet, 50, 60, 100, 60);
  click(lesson.cmdUndo);
  EXPECT_EQ(painted(), 50);
}

TEST_F(Lessons, WipingBringsTheGreetingAndTheWhitePenBack) {
  goTo(8);
  click(lesson.cmdTekenen);
  drag(sheet, 50, 50, 100, 50);
  click(lesson.cmdClear);
  EXPECT_EQ(painted(), 0);
  EXPECT_EQ(sheet.ForeColor, White);
  EXPECT_EQ(lesson.lblModus.Caption, "ALLES WISSEN voor een NIEUWE TEKENING");
  EXPECT_TRUE(lesson.lblCursus.Caption->starts_with("In dit schermpje"));
}

TEST_F(Lessons, OpeningAsksNoQuestion) {
  goTo(14);
  picture_files::write(folder() + "/test.bmp",
                       picture_files::trueColorBmp(30, 20, 24, [](int, int) { return 0xFF0000u; }));
  answerFile(folder() + "/test.bmp");
  click(lesson.cmdOpenbestand);
  EXPECT_EQ(asked().size(), 1u);
  EXPECT_EQ(at(10, 10), 0x0000FF);
  EXPECT_EQ(lesson.lblModus.Caption, "je kunt opnieuw TEKENEN");
  cancelFile();
  click(lesson.cmdOpenbestand);
  EXPECT_EQ(lesson.lblModus.Caption, "een andere TEKENING OPENEN");
  EXPECT_EQ(sheet.DrawStyle, 5);
}

TEST_F(Lessons, SavingWritesTheSmallerSheet) {
  goTo(13);
  answerFile(folder() + "/test.bmp");
  click(lesson.cmdSaveAs);
  const picture_files::SavedBmp saved(folder() + "/test.bmp");
  EXPECT_EQ(saved.width(), 425);
  EXPECT_EQ(saved.height(), 289);
}

TEST_F(Lessons, PrintingSendsTheSmallerSheetTwoCentimetresFromTheCorner) {
  goTo(15);
  answerPrinter(true);
  click(lesson.cmdPrint);
  ASSERT_EQ(pages.size(), 1u);
  ASSERT_EQ(pages[0].size(), 1u);
  EXPECT_EQ(pages[0][0].at.X, 2);
  EXPECT_EQ(pages[0][0].at.Y, 2);
  EXPECT_EQ(pages[0][0].picture.width(), 425);
  EXPECT_EQ(pages[0][0].picture.height(), 289);
  EXPECT_EQ(lesson.lblModus.Caption, "je TEKENING AFDRUKKEN");
}

TEST_F(Lessons, TheFlowersDoNothing) {
  goTo(16);
  click(lesson.cmdKleurplaat);
  EXPECT_TRUE(lesson.shown());
  EXPECT_EQ(FormRegistry::instance().forms().size(), 1u);
  EXPECT_EQ(lesson.MousePointer, 0);
}

TEST_F(Lessons, ClosingAtAnyStepLeadsToTheMenuAndTheNextVisitStartsAtTheFirst) {
  goTo(9);
  click(lesson.cmdSluiten);
  EXPECT_FALSE(isLoaded<frmTekenen3>());
  EXPECT_TRUE(the<frmStart>().shown());
  the<frmStart>().Hide();
  auto& again = showNew<frmTekenen3>();
  EXPECT_TRUE(again.cmdVerder.Visible);
  EXPECT_EQ(again.txt1.Text, "");
  closeBox(again);
  EXPECT_TRUE(the<frmStart>().shown());
}

TEST_F(Lessons, APictureOfTheCommandLineComesAtEachStep) {
  picture_files::write(folder() + "/test.bmp",
                       picture_files::trueColorBmp(30, 20, 24, [](int, int) { return 0xFF0000u; }));
  app().Command = folder() + "/test.bmp";
  further(1);
  EXPECT_EQ(at(10, 10), White);
  further(2);
  EXPECT_EQ(at(10, 10), 0x0000FF);
}

TEST_F(Lessons, EveryLessonFitsItsPanelAndNothingOverlaps) {
  std::ifstream file(std::string(KRASPRET_TREE) + "/tests/course/lessons.txt");
  const QFontMetrics metrics = script::widgetOf(lesson.lblCursus)->fontMetrics();
  const raster::Rect panel = lesson.lblCursus.pixelPlace();
  for (std::string text; std::getline(file, text);) {
    const QRect needed = metrics.boundingRect(0, 0, panel.width() - 4, 1000, Qt::TextWordWrap,
                                              QString::fromStdString(text));
    EXPECT_LE(needed.height(), panel.height()) << text;
  }
  for (int step = 1; step <= 17; ++step) {
    further(step);
    std::vector<Control*> seen;
    for (Control* control : lesson.controls())
      if (control->Visible) seen.push_back(control);
    for (std::size_t i = 0; i < seen.size(); ++i)
      for (std::size_t j = i + 1; j < seen.size(); ++j) {
        const auto place = [](const Control& c) {
          return c.windowless() ? c.paintedPixels() : c.pixelPlace();
        };
        EXPECT_TRUE(intersect(place(*seen[i]), place(*seen[j])).empty())
            << "step " << step << ": " << seen[i]->ToolTipText.get() << " and "
            << seen[j]->ToolTipText.get();
      }
  }
}

class CourseGreeting : public script::Stage {};

TEST_F(CourseGreeting, LeadsToTheLessonAndItsOtherButtonsDoNothing) {
  auto& menu = the<frmStart>();
  menu.Show();
  click(menu.Command1);
  EXPECT_FALSE(menu.shown());
  auto& greeting = dynamic_cast<frmCursus&>(*FormRegistry::instance().forms().back());
  EXPECT_EQ(greeting.lblNaam.Caption,
            "Dag vriendje. Laten we eens samen stap voor stap leren hoe we met een computer een "
            "eigen tekening kunnen maken.");
  EXPECT_EQ(greeting.Label2.Caption,
            "We beginnen met het eenvoudige en je kunt zo ver gaan als je zelf wil.");
  EXPECT_EQ(greeting.lblReken.Caption, "KRAS PRET : wat je ZELF maakt is KUNST");
  click(greeting.cmdEinde);
  click(greeting.cmdInfo);
  EXPECT_TRUE(greeting.shown());
  EXPECT_EQ(FormRegistry::instance().forms().size(), 2u);
  click(greeting.cmdTekenen2);
  EXPECT_EQ(FormRegistry::instance().forms().size(), 2u);
  EXPECT_NE(dynamic_cast<frmTekenen3*>(FormRegistry::instance().forms().back().get()), nullptr);
}

TEST_F(CourseGreeting, ItsCloseBoxLeadsBackToTheMenu) {
  auto& greeting = showNew<frmCursus>();
  closeBox(greeting);
  EXPECT_TRUE(the<frmStart>().shown());
  EXPECT_EQ(FormRegistry::instance().forms().size(), 1u);
}
