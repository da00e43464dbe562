// Opening and saving in the large studio: each question, each answer, each failure.
#include "files/bestand.h"
#include "files/disk.h"
#include "files/picture_files.h"
#include "studio/frmTekenen2.h"
#include "support/colors.h"
#include "support/script.h"

using namespace surface;
using namespace picture_files;

namespace {

constexpr int SheetWidth = 617, SheetHeight = 537;

// Red, with a blue pixel in the last corner.
Bytes redPicture(int width, int height) {
  return trueColorBmp(width, height, 24, [=](int x, int y) {
    return x == width - 1 && y == height - 1 ? 0x0000FFu : 0xFF0000u;
  });
}

}  // namespace

class StudioFiles : public script::Stage {
 protected:
  StudioFiles() { studio.Show(); }

  std::string path(const std::string& name = "tekening.bmp") { return folder() + "/" + name; }
  std::string given(const std::string& name, const Bytes& bytes) {
    write(path(name), bytes);
    return path(name);
  }
  std::string bystander() { return given("oud.bmp", "not to be lost"); }
  bool untouched() { return read(path("oud.bmp")) == "not to be lost"; }

  /// One black row across the sheet, with the real pointer.
  void drawRow(int y) { drag(sheet, 40, y, 140, y); }
  void expectRowSaved(const std::string& where, int y) {
    const SavedBmp saved(where);
    EXPECT_EQ(saved.width(), SheetWidth);
    EXPECT_EQ(saved.height(), SheetHeight);
    EXPECT_EQ(saved.at(90, y), 0x000000u);
    EXPECT_EQ(saved.at(90, y + 1), 0xFFFFFFu);
  }
  bool hasRow(int y) const { return sheet.Point({90, static_cast<float>(y)}) == Black; }
  void open(const std::string& name) {
    answerMessage(No);
    answerFile(name);
    click(studio.cmdOpenbestand);
  }

  frmTekenen2& studio = the<frmTekenen2>();
  PictureBox& sheet = studio.picBlad;
};

class SavingADrawing : public StudioFiles {};
class OpeningAPicture : public StudioFiles {};

TEST_F(SavingADrawing, WritesTheSheetUnderTheNameGiven) {
  drawRow(50);
  answerFile(path());
  click(studio.cmdSaveAs);
  expectRowSaved(path(), 50);
  EXPECT_EQ(disk::names(folder()), std::vector<std::string>{"tekening.bmp"});
}

TEST_F(SavingADrawing, TellsWhatItDoesAndOffersBitmapsOnly) {
  cancelFile();
  click(studio.cmdSaveAs);
  EXPECT_EQ(studio.lblModus.Caption, "je tekening in de computer OPSLAAN (=bewaren voor later)");
  ASSERT_EQ(asked().size(), 1u);
  EXPECT_EQ(asked()[0].kind, "save");
  EXPECT_EQ(asked()[0].filter, "Windows bitmap (*.BMP)|*.bmp");
  EXPECT_EQ(studio.CommonDialog2.Flags, 4);
}

TEST_F(SavingADrawing, SwitchesUndoOn) {
  click(studio.cmdOpvullen);
  ASSERT_FALSE(studio.cmdUndo.Enabled);
  cancelFile();
  click(studio.cmdSaveAs);
  EXPECT_TRUE(studio.cmdUndo.Enabled);
}

TEST_F(SavingADrawing, ACancelWritesNothingAndKeepsTheSheet) {
  drawRow(50);
  cancelFile();
  click(studio.cmdSaveAs);
  EXPECT_TRUE(disk::names(folder()).empty());
  EXPECT_TRUE(hasRow(50));
}

TEST_F(SavingADrawing, NoNameIsRememberedFromOneSaveToTheNext) {
  answerFile(path());
  click(studio.cmdSaveAs);
  cancelFile();
  click(studio.cmdSaveAs);
  EXPECT_EQ(studio.CommonDialog2.FileName, "");
}

TEST_F(SavingADrawing, ANameThatExistsIsAskedAbout) {
  answerFile(bystander());
  answerMessage(Yes);
  drawRow(50);
  click(studio.cmdSaveAs);
  ASSERT_EQ(asked().size(), 2u);
  EXPECT_EQ(asked()[1].text, "Deze naam bestaat al ... overschrijven ?");
  EXPECT_EQ(asked()[1].title, "Bestand opslaan als ...");
  EXPECT_EQ(asked()[1].buttons, YesNo);
  expectRowSaved(path("oud.bmp"), 50);
}

TEST_F(SavingADrawing, ANoAsksForAnotherName) {
  drawRow(50);
  answerFile(bystander());
  answerMessage(No);
  answerFile(path("nieuw.bmp"));
  click(studio.cmdSaveAs);
  EXPECT_TRUE(untouched());
  expectRowSaved(path("nieuw.bmp"), 50);
}

TEST_F(SavingADrawing, TheSameNameGivenAgainAfterNoIsWrittenOverWithoutAQuestion) {
  drawRow(50);
  answerFile(bystander());
  answerMessage(No);
  answerFile(path("oud.bmp"));
  click(studio.cmdSaveAs);
  EXPECT_EQ(asked().size(), 3u) << "two dialogs and one question";
  expectRowSaved(path("oud.bmp"), 50);
}

TEST_F(SavingADrawing, ANoAndACancelWriteNothing) {
  answerFile(bystander());
  answerMessage(No);
  cancelFile();
  click(studio.cmdSaveAs);
  EXPECT_TRUE(untouched());
  EXPECT_EQ(disk::names(folder()), std::vector<std::string>{"oud.bmp"});
  EXPECT_EQ(studio.CommonDialog2.FileName, "") << "the name that was refused is kept";
}

TEST_F(SavingADrawing, AFolderCountsAsAnExistingNameAndIsNotWrittenOver) {
  std::filesystem::create_directory(path("map"));
  drawRow(50);
  answerFile(path("map"));
  answerMessage(Yes);
  click(studio.cmdSaveAs);
  EXPECT_TRUE(std::filesystem::is_directory(path("map")));
  EXPECT_TRUE(hasRow(50));
}

TEST_F(SavingADrawing, ANameWithoutExtensionStaysOneAndHoldsABitmap) {
  drawRow(50);
  answerFile(path("zonder"));
  click(studio.cmdSaveAs);
  EXPECT_EQ(disk::names(folder()), std::vector<std::string>{"zonder"});
  expectRowSaved(path("zonder"), 50);
}

TEST_F(SavingADrawing, ANameThatEndsInJpgHoldsABitmap) {
  drawRow(50);
  answerFile(path("tekening.jpg"));
  click(studio.cmdSaveAs);
  expectRowSaved(path("tekening.jpg"), 50);
}

TEST_F(SavingADrawing, AFolderThatIsNotThereEndsItSilently) {
  drawRow(50);
  answerFile(path("nergens/tekening.bmp"));
  click(studio.cmdSaveAs);
  EXPECT_TRUE(hasRow(50));
  EXPECT_TRUE(disk::names(folder()).empty());
}

TEST_F(SavingADrawing, AFullDiskEndsItSilentlyAndLeavesTheOlderFile) {
  drawRow(50);
  answerFile(bystander());
  answerMessage(Yes);
  {
    const disk::SizeLimit full(100'000);
    click(studio.cmdSaveAs);
  }
  EXPECT_TRUE(untouched());
  EXPECT_EQ(disk::names(folder()), std::vector<std::string>{"oud.bmp"});
  EXPECT_TRUE(hasRow(50));
}

TEST_F(SavingADrawing, AFolderWithoutTheRightToWriteEndsItSilently) {
  drawRow(50);
  answerFile(path());
  std::filesystem::permissions(folder(), std::filesystem::perms{0555});
  {
    const disk::OrdinaryUser user;
    click(studio.cmdSaveAs);
  }
  std::filesystem::permissions(folder(), std::filesystem::perms{0755});
  EXPECT_TRUE(disk::names(folder()).empty());
  EXPECT_TRUE(hasRow(50));
}

// The line and rectangle drags leave samples standing above the sheet.
TEST_F(SavingADrawing, TheSampleAboveTheSheetIsNotSaved) {
  click(studio.cmdLijn);
  drag(sheet, 300, 300, 320, 300);
  ASSERT_TRUE(studio.Line1.Visible);
  answerFile(path());
  click(studio.cmdSaveAs);
  const SavedBmp saved(path());
  for (int y = 0; y < 290; ++y)
    for (int x = 0; x < SheetWidth; ++x) ASSERT_EQ(saved.at(x, y), 0xFFFFFFu) << x << ',' << y;
}

TEST_F(OpeningAPicture, AsksFirstWhetherToSaveAlsoOnAnEmptySheet) {
  answerMessage(No);
  cancelFile();
  click(studio.cmdOpenbestand);
  ASSERT_EQ(asked().size(), 2u);
  EXPECT_EQ(asked()[0].text, "Wil je de huidige tekening opslaan ?");
  EXPECT_EQ(asked()[0].title, "Opslaan");
  EXPECT_EQ(asked()[0].buttons, YesNo);
  EXPECT_EQ(studio.lblModus.Caption, "een BESTAANDE tekening uit je computer OPENEN");
}

TEST_F(OpeningAPicture, OffersFourKindsAndShowsGifFilesFirst) {
  answerMessage(No);
  cancelFile();
  click(studio.cmdOpenbestand);
  EXPECT_EQ(asked()[1].kind, "open");
  EXPECT_EQ(asked()[1].filter,
            "Windows bitmap (*.BMP)|*.bmp|Compuserve GIF (*.gif)|*.gif|JPEG Filter "
            "(*.jpg)|*.jpg|Alle bestanden|*.*");
  EXPECT_EQ(asked()[1].filterIndex, 2);
  EXPECT_EQ(studio.CommonDialog2.Flags, 4);
  EXPECT_EQ(studio.CommonDialog2.FileName, "");
}

TEST_F(OpeningAPicture, PutsItInTheUpperLeftCornerOfAnEmptySheet) {
  drawRow(300);
  open(given("rood.bmp", redPicture(60, 40)));
  EXPECT_EQ(sheet.Point({0, 0}), Red);
  EXPECT_EQ(sheet.Point({59, 39}), 0xFF0000);
  EXPECT_EQ(sheet.Point({60, 39}), White);
  EXPECT_EQ(sheet.Point({59, 40}), White);
  EXPECT_FALSE(hasRow(300)) << "the former drawing shows through";
}

TEST_F(OpeningAPicture, BesideASmallPictureLiesTheSheetsOwnColour) {
  sheet.BackColor = 0x80FFFF;
  open(given("rood.bmp", redPicture(60, 40)));
  EXPECT_EQ(sheet.Point({100, 100}), 0x80FFFF);
}

TEST_F(OpeningAPicture, CutsALargePictureOffAtTheSheetsEdges) {
  open(given("groot.bmp", trueColorBmp(2000, 2000, 24, [](int x, int y) {
               return static_cast<Rgb>(x % 256) << 16 | static_cast<Rgb>(y % 256);
             })));
  EXPECT_EQ(sheet.Width, 9255);
  EXPECT_EQ(sheet.Height, 8055);
  answerFile(path());
  click(studio.cmdSaveAs);
  {
    const SavedBmp saved(path());
    ASSERT_EQ(saved.width(), SheetWidth);
    ASSERT_EQ(saved.height(), SheetHeight);
    for (int y = 0; y < SheetHeight; ++y)
      for (int x = 0; x < SheetWidth; ++x)
        ASSERT_EQ(saved.at(x, y), static_cast<Rgb>(x % 256) << 16 | static_cast<Rgb>(y % 256));
  }
  open(path());
  EXPECT_EQ(sheet.Picture->width(), SheetWidth) << "what was cut off is gone from the file";
}

TEST_F(OpeningAPicture, AYesSavesFirst) {
  drawRow(50);
  answerMessage(Yes);
  answerFile(path("eerst.bmp"));
  answerFile(given("rood.bmp", redPicture(60, 40)));
  click(studio.cmdOpenbestand);
  expectRowSaved(path("eerst.bmp"), 50);
  EXPECT_EQ(sheet.Point({0, 0}), Red);
}

TEST_F(OpeningAPicture, ACancelledSaveMakesNoDifference) {
  answerMessage(Yes);
  cancelFile();
  answerFile(given("rood.bmp", redPicture(60, 40)));
  click(studio.cmdOpenbestand);
  EXPECT_EQ(sheet.Point({0, 0}), Red);
}

TEST_F(OpeningAPicture, ACancelKeepsTheSheet) {
  drawRow(50);
  answerMessage(No);
  cancelFile();
  click(studio.cmdOpenbestand);
  EXPECT_TRUE(hasRow(50));
  EXPECT_EQ(studio.lblModus.Caption, "een BESTAANDE tekening uit je computer OPENEN");
}

TEST_F(OpeningAPicture, ABadFileKeepsTheSheetAndBringsNoMessage) {
  drawRow(50);
  const Bytes whole = redPicture(60, 40);
  for (const std::string& bad : {given("stuk.bmp", whole.substr(0, 500)), given("leeg.bmp", ""),
                                 given("brief.bmp", "Lieve oma"), path("niets.bmp"), folder()}) {
    open(bad);
    EXPECT_TRUE(hasRow(50)) << bad;
  }
  // Two dialogs each, and no message behind them.
  EXPECT_EQ(asked().size(), 10u);
}

TEST_F(OpeningAPicture, LeavesToolColourAndPenAsTheyAre) {
  click(studio.cmdRechthoek);
  sheet.ForeColor = Red;
  sheet.DrawWidth = 5;
  open(given("rood.bmp", redPicture(60, 40)));
  EXPECT_EQ(sheet.ForeColor, Red);
  EXPECT_EQ(sheet.DrawWidth, 5);
  EXPECT_EQ(sheet.DrawStyle, 0);
  drag(sheet, 200, 200, 300, 300);
  EXPECT_EQ(sheet.Point({300, 250}), Red) << "the tool is no longer the rectangle";
}

TEST_F(OpeningAPicture, UndoTakesItAwayAgainAndTheLastStrokeToo) {
  drawRow(50);
  click(studio.cmdLijn);
  drag(sheet, 40, 80, 140, 80);
  ASSERT_TRUE(hasRow(80));
  click(studio.cmdOpvullen);
  open(given("rood.bmp", redPicture(60, 40)));
  EXPECT_TRUE(studio.cmdUndo.Enabled);
  click(studio.cmdUndo);
  EXPECT_EQ(sheet.Point({0, 0}), White);
  EXPECT_TRUE(hasRow(50));
  EXPECT_FALSE(hasRow(80)) << "the snapshot is from before the last stroke";
}

TEST(ExistingNames, AFileAndAFolderExistNothingElseDoes) {
  const std::string folder = testing::TempDir() + "kraspret-naam-" + std::to_string(getpid());
  std::filesystem::create_directories(folder);
  write(folder + "/er.bmp", "x");
  EXPECT_TRUE(BestandBestaat(folder + "/er.bmp"));
  EXPECT_TRUE(BestandBestaat(folder));
  EXPECT_FALSE(BestandBestaat(folder + "/niet.bmp"));
  EXPECT_FALSE(BestandBestaat(folder + "/er.bmp/verder"));
  EXPECT_FALSE(BestandBestaat(""));
  std::filesystem::remove_all(folder);
}

class PictureOnTheCommandLine : public script::Stage {
 protected:
  frmTekenen2& openStudio(const std::string& command) {
    app().Command = command;
    the<frmTekenen2>().Show();
    return the<frmTekenen2>();
  }
  std::string picture(const std::string& name = "rood.bmp") {
    write(folder() + "/" + name, redPicture(60, 40));
    return folder() + "/" + name;
  }
  /// The studio has opened on an empty sheet, after the message about this command.
  void expectMessage(frmTekenen2& studio, const std::string& command) {
    ASSERT_EQ(asked().size(), 1u);
    EXPECT_EQ(asked()[0].text,
              "Er is iets misgegaan !\r\n\r\n" + command +
                  "\r\n\r\nKrasPret kan deze opdracht niet verwerken.  Het is mogelijk dat het "
                  "bestand niet bestaat of beschadigd is.");
    EXPECT_EQ(asked()[0].title, command);
    EXPECT_EQ(asked()[0].buttons, 16);
    EXPECT_TRUE(studio.shown());
    EXPECT_TRUE(studio.picBlad.Picture->empty());
    EXPECT_EQ(studio.picBlad.Point({0, 0}), White);
  }
};

TEST_F(PictureOnTheCommandLine, LiesOnTheSheetWhenTheStudioOpens) {
  const auto& sheet = openStudio(picture()).picBlad;
  EXPECT_EQ(sheet.Point({0, 0}), Red);
  EXPECT_EQ(sheet.Point({59, 39}), 0xFF0000);
  EXPECT_EQ(sheet.Point({60, 0}), White);
  EXPECT_TRUE(asked().empty());
}

TEST_F(PictureOnTheCommandLine, WithoutOneTheSheetIsEmptyAndNothingIsAsked) {
  EXPECT_EQ(openStudio("").picBlad.Point({0, 0}), White);
  EXPECT_TRUE(asked().empty());
}

TEST_F(PictureOnTheCommandLine, ItsWholeTextIsOneName) {
  EXPECT_EQ(openStudio(picture("mijn rode plaat.bmp")).picBlad.Point({0, 0}), Red);
}

TEST_F(PictureOnTheCommandLine, QuotesAreNotStripped) {
  const std::string command = "\"" + picture() + "\"";
  answerMessage(Ok);
  expectMessage(openStudio(command), command);
}

TEST_F(PictureOnTheCommandLine, AFileThatIsNotThereIsTold) {
  const std::string command = folder() + "/niets.bmp";
  answerMessage(Ok);
  expectMessage(openStudio(command), command);
}

TEST_F(PictureOnTheCommandLine, ADamagedFileIsTold) {
  const std::string command = picture();
  write(command, redPicture(60, 40).substr(0, 1000));
  answerMessage(Ok);
  expectMessage(openStudio(command), command);
}

TEST_F(PictureOnTheCommandLine, AFolderIsTold) {
  answerMessage(Ok);
  expectMessage(openStudio(folder()), folder());
}

TEST_F(PictureOnTheCommandLine, WipingTheSheetBringsItBack) {
  frmTekenen2& studio = openStudio(picture());
  drag(studio.picBlad, 10, 10, 40, 10);
  ASSERT_EQ(studio.picBlad.Point({20, 10}), Black);
  click(studio.cmdClear);
  EXPECT_EQ(studio.picBlad.Point({20, 10}), Red);
}

TEST_F(PictureOnTheCommandLine, ComesBackWhenTheStudioIsOpenedAnew) {
  frmTekenen2& studio = openStudio(picture());
  click(studio.cmdEinde);
  ASSERT_FALSE(isLoaded<frmTekenen2>());
  EXPECT_EQ(the<frmTekenen2>().picBlad.Point({0, 0}), Red);
}
