// The small studio's ways to and from disk, and from screen to screen.
#include <filesystem>
#include <fstream>

#include "files/picture_files.h"
#include "info/frmHelp1.h"
#include "small/stage.h"

using namespace surface;

class SmallFiles : public SmallStudioStage {
 protected:
  std::string path(const std::string& name) { return folder() + "/" + name; }
  /// A red picture as a file.
  std::string redFile(int width, int height) {
    picture_files::write(
        path("rood.bmp"),
        picture_files::trueColorBmp(width, height, 24, [](int, int) { return 0xFF0000u; }));
    return path("rood.bmp");
  }
  static constexpr Color Red = 0x0000FF;
};

TEST_F(SmallFiles, SavingWritesTheSheet) {
  drag(sheet, 100, 100, 140, 100);
  click(studio.cmdOpvullen);
  answerFile(path("a.bmp"));
  click(studio.cmdSaveAs);
  EXPECT_EQ(studio.lblModus.Caption, "je TEKENING OPSLAAN (bewaren)");
  EXPECT_TRUE(studio.cmdUndo.Enabled);
  const picture_files::SavedBmp saved(path("a.bmp"));
  EXPECT_EQ(saved.width(), 617);
  EXPECT_EQ(saved.height(), 537);
  EXPECT_EQ(saved.at(120, 100), 0x000000u);
}

TEST_F(SmallFiles, OpeningAsksAboutTheDrawingAndLaysThePictureInTheCorner) {
  click(studio.cmdOpvullen);
  answerMessage(No);
  answerFile(redFile(60, 40));
  click(studio.cmdOpenbestand);
  ASSERT_EQ(asked().size(), 2u);
  EXPECT_EQ(asked()[0].text, "Wil je de huidige tekening opslaan ?");
  EXPECT_EQ(asked()[0].title, "Opslaan");
  EXPECT_EQ(asked()[1].filterIndex, 2);
  EXPECT_EQ(studio.lblModus.Caption, "je kunt opnieuw TEKENEN");
  EXPECT_TRUE(studio.cmdUndo.Enabled);
  EXPECT_EQ(at(59, 39), Red);
  EXPECT_EQ(at(60, 40), White);
}

TEST_F(SmallFiles, AYesSavesFirstAndGoesOnAlsoAfterACancel) {
  answerMessage(Yes);
  cancelFile();
  answerFile(redFile(60, 40));
  click(studio.cmdOpenbestand);
  EXPECT_EQ(at(0, 0), Red);
}

TEST_F(SmallFiles, ACancelledOpeningKeepsItsMessageAndTheSheet) {
  drag(sheet, 100, 100, 140, 100);
  answerMessage(No);
  cancelFile();
  click(studio.cmdOpenbestand);
  EXPECT_EQ(studio.lblModus.Caption, "een andere TEKENING OPENEN");
  EXPECT_EQ(at(120, 100), Black);
}

TEST_F(SmallFiles, ABrokenFileIsLeftSilently) {
  std::ofstream(path("stuk.bmp")) << "geen plaatje";
  answerMessage(No);
  answerFile(path("stuk.bmp"));
  click(studio.cmdOpenbestand);
  EXPECT_EQ(studio.lblModus.Caption, "een andere TEKENING OPENEN");
  EXPECT_EQ(painted(), 0);
}

TEST_F(SmallFiles, TheReleaseThatClosesTheDialogLeavesNoMarkAndTheNextPressDraws) {
  click(studio.cmdSpuitbus);
  answerMessage(No);
  cancelFile();
  click(studio.cmdOpenbestand);
  EXPECT_EQ(sheet.DrawStyle, 5);
  sheet.MouseMove({1, 0, 100, 100});
  sheet.MouseUp({1, 0, 100, 100});
  EXPECT_EQ(painted(), 0);
  drag(sheet, 100, 100, 140, 100);
  EXPECT_EQ(sheet.DrawStyle, 0);
  EXPECT_GT(painted(), 0);
}

TEST_F(SmallFiles, UndoTakesAnOpenedPictureAway) {
  drag(sheet, 100, 100, 140, 100);
  answerMessage(No);
  answerFile(redFile(300, 300));
  click(studio.cmdOpenbestand);
  click(studio.cmdUndo);
  EXPECT_EQ(painted(), 1) << "the sheet of the last press, with its dot";
}

TEST_F(SmallFiles, ThePictureOfTheCommandLineLiesOnTheSheetAndComesBackAfterWiping) {
  app().Command = redFile(60, 40);
  auto& other = showNew<frmTekenen1>();
  EXPECT_EQ(other.picBlad.Point({10, 10}), Red);
  other.picBlad.Line({0, 0}, {50, 30}, Black, BF);
  click(other.cmdClear);
  EXPECT_EQ(other.picBlad.Point({10, 10}), Red);
  click(other.cmdUndo);
  EXPECT_EQ(other.picBlad.Point({10, 10}), White) << "the snapshot of the start is the empty sheet";
}

TEST_F(SmallFiles, ABadPictureOfTheCommandLineIsToldEachTime) {
  app().Command = path("niets.bmp");
  answerMessage(Ok);
  auto& other = showNew<frmTekenen1>();
  ASSERT_EQ(asked().size(), 1u);
  EXPECT_EQ(asked()[0].title, app().Command);
  EXPECT_EQ(asked()[0].buttons, Critical);
  answerMessage(Ok);
  click(other.cmdClear);
  EXPECT_EQ(asked().size(), 2u);
  EXPECT_TRUE(other.shown());
}

TEST_F(SmallFiles, PrintingSendsTheSheetTwoCentimetresFromTheCornerAndChangesNothing) {
  click(studio.cmdEllips);
  drag(sheet, 100, 100, 140, 120);
  const Picture drawn = sheet.Image(), undo = studio.picUndo.Picture;
  studio.cmdUndo.Enabled = false;
  answerPrinter(true);
  click(studio.cmdPrint);
  EXPECT_EQ(asked().back().kind, "printer");
  ASSERT_EQ(pages.size(), 1u);
  ASSERT_EQ(pages[0].size(), 1u);
  EXPECT_EQ(pages[0][0].at.X, 2);
  EXPECT_EQ(pages[0][0].at.Y, 2);
  EXPECT_EQ(pages[0][0].picture, drawn);
  EXPECT_EQ(studio.lblModus.Caption, "je TEKENING AFDRUKKEN");
  EXPECT_TRUE(samePicture(*sheet.bitmap(), *drawn.bitmap()));
  EXPECT_EQ(studio.picUndo.Picture, undo);
  EXPECT_FALSE(studio.cmdUndo.Enabled);
  EXPECT_EQ(sheet.MousePointer, PointerCross);
}

TEST_F(SmallFiles, ACancelledPrinterSaysNothingAndPrintsNothing) {
  answerPrinter(false);
  click(studio.cmdPrint);
  EXPECT_TRUE(pages.empty());
  EXPECT_EQ(asked().size(), 1u);
  EXPECT_EQ(studio.lblModus.Caption, "je TEKENING AFDRUKKEN");
}

TEST_F(SmallFiles, HelpHidesTheDrawingAndBringsBackTheOneInstance) {
  // As from the menu: an instance of its own.
  auto& own = showNew<frmTekenen1>();
  drag(own.picBlad, 100, 100, 140, 100);
  click(own.cmdHelp);
  EXPECT_FALSE(own.shown());
  frmHelp1* help = nullptr;
  for (const auto& form : FormRegistry::instance().forms())
    if (auto* found = dynamic_cast<frmHelp1*>(form.get())) help = found;
  ASSERT_NE(help, nullptr);
  studio.Hide();
  click(help->cmdEinde);
  EXPECT_TRUE(studio.shown());
  EXPECT_FALSE(own.shown()) << "its drawing stays hidden until the program ends";
  EXPECT_EQ(own.picBlad.Point({120, 100}), Black);
}

TEST_F(SmallFiles, TheEndAndTheCloseBoxLeadToTheMenu) {
  click(studio.cmdEinde);
  EXPECT_TRUE(the<frmStart>().shown());
  EXPECT_FALSE(isLoaded<frmTekenen1>());
  the<frmStart>().Hide();
  auto& other = showNew<frmTekenen1>();
  closeBox(other);
  EXPECT_TRUE(the<frmStart>().shown());
}

TEST_F(SmallFiles, TheMenuOpensANewOneAtEachVisit) {
  auto& menu = the<frmStart>();
  for (int visit = 0; visit < 3; ++visit) {
    menu.Show();
    click(menu.cmdTekenen1);
    EXPECT_FALSE(menu.shown());
    auto& newest = dynamic_cast<frmTekenen1&>(*FormRegistry::instance().forms().back());
    EXPECT_NE(&newest, &studio);
    EXPECT_TRUE(newest.shown());
    click(newest.cmdEinde);
    EXPECT_TRUE(menu.shown());
  }
  EXPECT_EQ(FormRegistry::instance().forms().size(), 2u);
}
