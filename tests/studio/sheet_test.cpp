// Starting over: wiping the sheet, a new one, one of another size.
#include <QImage>

#include "studio/studio.h"

using namespace surface;

class Sheet : public Studio {
 protected:
  void draw() {
    click(studio.cmdRechthoekgevuld);
    drag(sheet, 20, 20, 600, 500);
  }
  void expectSize(int width, int height) {
    EXPECT_EQ(sheet.innerPixels().width(), width);
    EXPECT_EQ(sheet.innerPixels().height(), height);
    EXPECT_EQ(sheet.bitmap()->width(), width);
    EXPECT_EQ(sheet.bitmap()->height(), height);
    EXPECT_EQ(script::widgetOf(sheet)->width(), width);
    EXPECT_EQ(script::widgetOf(sheet)->height(), height);
  }
  // Asks for another size without saving first.
  void ask(const std::string& width, const std::string& height) {
    answerMessage(No);
    answerInput(width);
    answerInput(height);
    click(studio.cmdFormaat);
  }
  // A picture of one colour in the test's folder.
  std::string pictureFile(int width, int height, QRgb color) {
    QImage picture(width, height, QImage::Format_RGB32);
    picture.fill(color);
    std::string path = folder() + "/plaatje.bmp";
    EXPECT_TRUE(picture.save(QString::fromStdString(path)));
    return path;
  }
};

TEST_F(Sheet, StartsWhiteAtTheStandardSize) {
  expectPlaced({{sheet, 2640, 120, 9255, 8055}});
  expectSize(617, 537);
  EXPECT_TRUE(shows(sheet, raster::Bitmap(617, 537, toPixel(White))));
}

TEST_F(Sheet, WipingClearsDrawingAndPictureWithoutAQuestion) {
  draw();
  click(studio.cmdUndo);
  draw();
  click(studio.cmdClear);
  EXPECT_EQ(studio.lblModus.Caption, "hiermee zul je ALLES op je tekening WISSEN");
  EXPECT_TRUE(shows(sheet, blank()));
  EXPECT_TRUE(sheet.Picture->empty());
  EXPECT_TRUE(asked().empty());
}

TEST_F(Sheet, WipingLeavesAColouredSheetColoured) {
  answerColor(0x00FFFF);
  click(studio.cmdPalet);
  draw();
  click(studio.cmdClear);
  EXPECT_EQ(sheet.BackColor, 0x00FFFF);
  EXPECT_TRUE(shows(sheet, raster::Bitmap(617, 537, toPixel(0x00FFFF))));
}

TEST_F(Sheet, WipingPutsToolColoursAndUndoAtTheirStart) {
  click(studio.cmdArt);
  pickColor(60);
  sheet.DrawWidth = 5;
  draw();
  slide(studio.Slider2, 90);
  click(studio.cmdClear);
  EXPECT_EQ(sheet.ForeColor, Black);
  EXPECT_EQ(studio.Shape1.FillColor, Black);
  EXPECT_EQ(sheet.DrawWidth, 1);
  EXPECT_EQ(sheet.MouseIcon, "curPen");
  EXPECT_EQ(studio.Slider2.Value, 3);
  EXPECT_EQ(studio.lblStraal.Caption, "3");
  // The pencil is the tool, and undo gives the empty sheet.
  drag(sheet, 50, 50, 90, 50);
  EXPECT_EQ(sheet.Point({70, 50}), Black);
  click(studio.cmdClear);
  click(studio.cmdUndo);
  EXPECT_TRUE(shows(sheet, blank()));
}

TEST_F(Sheet, AWipedDrawingDoesNotComeBackByRedo) {
  for (CommandButton* startsOver : {&studio.cmdClear, &studio.cmdNieuw}) {
    draw();
    click(studio.cmdUndo);
    ASSERT_TRUE(studio.cmdRedo.Enabled);
    click(*startsOver);
    EXPECT_TRUE(studio.cmdUndo.Enabled);
    EXPECT_FALSE(studio.cmdRedo.Enabled);
  }
}

TEST_F(Sheet, WipingTurnsUndoOnAgain) {
  click(studio.cmdOpvullen);
  ASSERT_FALSE(studio.cmdUndo.Enabled);
  click(studio.cmdClear);
  EXPECT_TRUE(studio.cmdUndo.Enabled);
}

TEST_F(Sheet, WipingKeepsTheSizeOfTheSheet) {
  ask("10", "8");
  click(studio.cmdClear);
  expectSize(378, 302);
}

TEST_F(Sheet, WipingBringsThePictureOfTheCommandLineBack) {
  click(studio.cmdEinde);
  app().Command = pictureFile(40, 30, 0xFF3366FF);
  auto& again = the<frmTekenen2>();
  again.Show();
  ASSERT_EQ(again.picBlad.Point({39, 29}), RGB(0x33, 0x66, 0xFF));
  drag(again.picBlad, 10, 10, 30, 10);
  ASSERT_EQ(again.picBlad.Point({20, 10}), Black);
  click(again.cmdClear);
  EXPECT_EQ(again.picBlad.Point({20, 10}), RGB(0x33, 0x66, 0xFF));
  EXPECT_EQ(again.picBlad.Point({40, 30}), White);
  EXPECT_EQ(again.lblModus.Caption, "hiermee zul je ALLES op je tekening WISSEN");
}

TEST_F(Sheet, ANewOneBringsThePictureOfTheCommandLineBackToo) {
  click(studio.cmdEinde);
  app().Command = pictureFile(40, 30, 0xFF3366FF);
  auto& again = the<frmTekenen2>();
  again.Show();
  drag(again.picBlad, 10, 10, 30, 10);
  click(again.cmdNieuw);
  EXPECT_EQ(again.picBlad.Point({20, 10}), RGB(0x33, 0x66, 0xFF));
  EXPECT_EQ(again.lblModus.Caption, "een NIEUW tekenblad met dezelfde grootte openen");
  // The snapshot was taken before the picture came.
  click(again.cmdUndo);
  EXPECT_EQ(again.picBlad.Point({20, 10}), White);
  click(again.cmdRedo);
  EXPECT_EQ(again.picBlad.Point({20, 10}), RGB(0x33, 0x66, 0xFF));
}

TEST_F(Sheet, StartingOverTellsAgainThatThePictureOfTheCommandLineIsGone) {
  app().Command = folder() + "/weg.bmp";
  for (CommandButton* startsOver : {&studio.cmdClear, &studio.cmdNieuw}) {
    draw();
    answerMessage(Ok);
    click(*startsOver);
    EXPECT_EQ(asked().back().title, app().Command);
    EXPECT_TRUE(shows(sheet, blank()));
  }
  EXPECT_EQ(studio.lblModus.Caption, "een NIEUW tekenblad met dezelfde grootte openen");
}

TEST_F(Sheet, ANewOneIsWhiteEmptyAndOfTheStandardSize) {
  ask("10", "8");
  answerColor(0x00FFFF);
  click(studio.cmdPalet);
  draw();
  click(studio.cmdUndo);
  click(studio.cmdNieuw);
  EXPECT_EQ(studio.lblModus.Caption, "een NIEUW tekenblad met dezelfde grootte openen");
  EXPECT_EQ(sheet.Width.get(), 9255);
  EXPECT_EQ(sheet.Height.get(), 8055);
  expectSize(617, 537);
  EXPECT_EQ(sheet.BackColor, White);
  EXPECT_TRUE(shows(sheet, raster::Bitmap(617, 537, toPixel(White))));
  EXPECT_TRUE(studio.cmdUndo.Enabled);
  EXPECT_EQ(asked().size(), 4u) << "no question about saving";
}

TEST_F(Sheet, ANewOneTurnsUndoOnAndStartsWithThePencil) {
  click(studio.cmdOpvullen);
  pickColor(60);
  ASSERT_FALSE(studio.cmdUndo.Enabled);
  click(studio.cmdNieuw);
  EXPECT_TRUE(studio.cmdUndo.Enabled);
  drag(sheet, 50, 50, 90, 50);
  EXPECT_EQ(sheet.Point({70, 50}), Black);
  EXPECT_EQ(sheet.Point({70, 60}), White);
}

TEST_F(Sheet, AnotherSizeIsAskedForInCentimetres) {
  setDecimalSeparator(',');
  answerMessage(No);
  cancelInput();
  cancelInput();
  click(studio.cmdFormaat);
  ASSERT_EQ(asked().size(), 3u);
  EXPECT_EQ(asked()[0].title, "Nieuwe tekening met aangepast formaat");
  EXPECT_EQ(asked()[0].text,
            "Je gaat een NIEUWE tekening met een ANDER FORMAAT maken.\n\nWil je de huidige "
            "tekening opslaan ?");
  EXPECT_EQ(asked()[0].buttons, YesNo);
  EXPECT_EQ(asked()[1].title, "Afmetingen van de tekening : breedte wijzigen");
  EXPECT_EQ(asked()[1].text,
            "De gewenste breedte ( maximaal = 16,32.. centimeter ) opgeven a.u.b.");
  EXPECT_EQ(asked()[2].title, "Afmetingen van de tekening : hoogte wijzigen");
  EXPECT_EQ(asked()[2].text, "De gewenste hoogte ( maximaal = 14,20.. centimeter ) opgeven a.u.b.");
  // 9255 and 8055 twips of 1440 to 2.54 centimetres.
  const std::string width = asked()[1].initial, height = asked()[2].initial;
  EXPECT_EQ(width.substr(0, 3), "16,");
  EXPECT_EQ(height.substr(0, 3), "14,");
  EXPECT_NEAR(toNumber(width), 9255 * 2.54 / 1440, 1e-5);
  EXPECT_NEAR(toNumber(height), 8055 * 2.54 / 1440, 1e-5);
  EXPECT_EQ(studio.lblModus.Caption, "wijzig hiermee het FORMAAT van je tekenBLAD");
  setDecimalSeparator('.');
}

TEST_F(Sheet, SavesFirstWhenTheChildWantsIt) {
  draw();
  const raster::Bitmap drawn = canvas();
  const std::string path = folder() + "/eerst.bmp";
  answerMessage(Yes);
  answerFile(path);
  answerInput("5");
  answerInput("5");
  click(studio.cmdFormaat);
  const Picture saved = LoadPicture(path);
  EXPECT_TRUE(same(*saved.bitmap(), drawn));
  expectSize(189, 189);
}

TEST_F(Sheet, ACancelledSaveDoesNotKeepTheSizeFromChanging) {
  answerMessage(Yes);
  cancelFile();
  answerInput("5");
  answerInput("5");
  click(studio.cmdFormaat);
  expectSize(189, 189);
}

TEST_F(Sheet, TheWidthKeepsItsFractionAndTheHeightIsRoundedToWholeCentimetres) {
  ask("10.5", "7.4");
  // 10.5 cm are 396.85 pixels, 7 cm 264.57.
  expectSize(397, 265);
  ask("10.25", "7.6");
  expectSize(387, 302);
}

TEST_F(Sheet, HalvesOfAHeightGoToTheEvenCentimetre) {
  ask("10", "6.5");
  expectSize(378, 227);
  ask("10", "7.5");
  expectSize(378, 302);
}

TEST_F(Sheet, ADutchSystemReadsACommaAndNoPoint) {
  setDecimalSeparator(',');
  ask("10,5", "7,4");
  expectSize(397, 265);
  ask("9.5", "6");
  expectSize(397, 265);
  setDecimalSeparator('.');
}

TEST_F(Sheet, AcceptingBothDefaultsMakesTheSheetLower) {
  setDecimalSeparator(',');
  answerMessage(No);
  answerInput(toText(ScaleX(sheet.Width, ScaleTwips, ScaleCentimetres)));
  answerInput(toText(ScaleY(sheet.Height, ScaleTwips, ScaleCentimetres)));
  click(studio.cmdFormaat);
  ASSERT_EQ(asked().size(), 3u);
  EXPECT_EQ(asked()[1].initial, toText(ScaleX(9255, ScaleTwips, ScaleCentimetres)));
  // 14 cm are 529.13 pixels.
  expectSize(617, 529);
  setDecimalSeparator('.');
}

TEST_F(Sheet, AWiderSheetThanTheWindowIsTakenWithoutAMessage) {
  draw();
  const raster::Bitmap before = canvas();
  ask("20", "14");
  EXPECT_EQ(asked().size(), 3u);
  expectSize(756, 529);
  raster::Bitmap should(756, 529, toPixel(White));
  raster::blit(should, 0, 0, 617, 529, before, 0, 0);
  EXPECT_TRUE(shows(sheet, should));
  EXPECT_GT(2640 / 15 + 756, script::widgetOf(sheet)->window()->width());
}

TEST_F(Sheet, ASmallerSheetKeepsItsUpperLeftPart) {
  draw();
  const raster::Bitmap before = canvas();
  ask("5", "4");
  expectSize(189, 151);
  raster::Bitmap should(189, 151, toPixel(White));
  raster::blit(should, 0, 0, 189, 151, before, 0, 0);
  EXPECT_TRUE(shows(sheet, should));
}

TEST_F(Sheet, ALargerSheetShowsTheBackgroundInTheNewArea) {
  ask("5", "4");
  answerColor(0x00FFFF);
  click(studio.cmdPalet);
  click(studio.cmdRechthoekgevuld);
  drag(sheet, 10, 10, 300, 300);
  ask("6", "6");
  expectSize(227, 227);
  EXPECT_EQ(sheet.Point({188, 150}), Black);
  EXPECT_EQ(sheet.Point({189, 150}), 0x00FFFF);
  EXPECT_EQ(sheet.Point({188, 151}), 0x00FFFF);
}

TEST_F(Sheet, AnotherSizeLeavesTheToolAndTheColoursAlone) {
  click(studio.cmdSpuitbus);
  const Color color = pickColor(60);
  ask("5", "4");
  EXPECT_EQ(studio.Shape1.FillColor, color);
  EXPECT_EQ(sheet.ForeColor, color);
  EXPECT_EQ(sheet.MouseIcon, "curBrush");
}

TEST_F(Sheet, ANewOneAfterAnotherSizeIsStandardAgain) {
  ask("5", "4");
  click(studio.cmdNieuw);
  EXPECT_EQ(sheet.Width.get(), 9255);
  EXPECT_EQ(sheet.Height.get(), 8055);
  expectSize(617, 537);
}

struct Refused {
  const char* width;  ///< null for a cancel
  const char* height;
};

class RefusedSizes : public Sheet, public testing::WithParamInterface<Refused> {};

TEST_P(RefusedSizes, LeaveTheSheetAsItWas) {
  draw();
  const raster::Bitmap before = canvas();
  answerMessage(No);
  const auto answer = [&](const char* text) { text ? answerInput(text) : cancelInput(); };
  answer(GetParam().width);
  answer(GetParam().height);
  click(studio.cmdFormaat);
  EXPECT_EQ(asked().size(), 3u) << "the height is asked for whatever the width was";
  EXPECT_EQ(sheet.Width.get(), 9255);
  EXPECT_EQ(sheet.Height.get(), 8055);
  expectSize(617, 537);
  EXPECT_TRUE(shows(sheet, before));
  EXPECT_EQ(takeErrorReport(), std::nullopt);
}

INSTANTIATE_TEST_SUITE_P(
    Each, RefusedSizes,
    testing::Values(Refused{"5", nullptr}, Refused{"5", ""}, Refused{"5", "hoog"},
                    Refused{"5", "4 cm"}, Refused{nullptr, "4"}, Refused{"", "4"},
                    Refused{"breed", "4"}, Refused{"5", "32768"}, Refused{"5", "1e300"},
                    Refused{"5", "-32769"}, Refused{"-5", "4"}, Refused{"1e30", "4"},
                    Refused{"100000", "4"}, Refused{"nan", "4"}, Refused{"5", "inf"},
                    // Without a pixel the sheet would vanish.
                    Refused{"0", "0"}, Refused{"0", "4"}, Refused{"5", "0"}, Refused{"5", "0.4"},
                    Refused{"0.001", "4"},
                    // 32768 pixels, and more than 64 million in all.
                    Refused{"866.99", "4"}, Refused{"5", "867"}, Refused{"5", "32767"},
                    Refused{"300", "300"}));

TEST_F(Sheet, ANegativeHeightIsRefusedWhenTheWidthHasChanged) {
  ask("5", "-4");
  expectSize(189, 537);
  EXPECT_EQ(sheet.Height.get(), 8055);
}

TEST_F(Sheet, FromTallAndNarrowToWideAndLowGoesWithoutASheetThatIsBoth) {
  ask("1", "860");
  ASSERT_EQ(sheet.innerPixels().height(), 32504);
  ask("860", "1");
  expectSize(32504, 38);
}

TEST_F(Sheet, OfNoSizeAtAllCanBeDrawnOnAndLeft) {
  sheet.Width = 0;
  sheet.Height = 0;
  EXPECT_EQ(sheet.bitmap()->width(), 0);
  studio.picBlad_MouseDown({1, 0, 5, 5});
  studio.picBlad_MouseMove({1, 0, 9, 9});
  studio.picBlad_MouseUp({1, 0, 9, 9});
  click(studio.cmdUndo);
  click(studio.cmdNieuw);
  expectSize(617, 537);
  EXPECT_TRUE(shows(sheet, raster::Bitmap(617, 537, toPixel(White))));
}
