// Printing the sheet: what is asked, what lands on the page, and what stays untouched.
#include "studio/studio.h"
#include "surface/host.h"
#include "surface/printer.h"

using namespace surface;

class Printing : public Studio {
 protected:
  void print(bool chosen = true) {
    answerPrinter(chosen);
    click(studio.cmdPrint);
  }
};

TEST_F(Printing, TheWholeSheetStandsTwoCentimetresFromTheLeftAndTheTop) {
  drag(sheet, 10, 20, 300, 400);
  print();
  ASSERT_EQ(pages.size(), 1u);
  ASSERT_EQ(pages[0].size(), 1u);
  EXPECT_EQ(pages[0][0].at.X, 2);
  EXPECT_EQ(pages[0][0].at.Y, 2);
  EXPECT_EQ(pages[0][0].picture, sheet.Image());
  EXPECT_EQ(asked().back().kind, "printer");
  EXPECT_EQ(studio.lblModus.Caption, "je tekening AFDRUKKEN (als er een printer is)");
}

TEST_F(Printing, ASmallerSheetGivesASmallerPicture) {
  shrinkSheet(200, 100);
  print();
  ASSERT_EQ(pages.size(), 1u);
  EXPECT_EQ(pages[0][0].picture.width(), 200);
  EXPECT_EQ(pages[0][0].picture.height(), 100);
  EXPECT_EQ(pages[0][0].at.X, 2);
}

TEST_F(Printing, ACancelPrintsNothingAndSaysNothing) {
  print(false);
  EXPECT_TRUE(pages.empty());
  EXPECT_EQ(asked().size(), 1u);
  EXPECT_EQ(studio.lblModus.Caption, "je tekening AFDRUKKEN (als er een printer is)");
  print();
  EXPECT_EQ(pages.size(), 1u);
}

TEST_F(Printing, APrinterThatFailsIsPassedOverInSilence) {
  host().printPage = [](const std::vector<Printed>&) {
    throw RuntimeError(ErrorKind::CannotWrite, "Printer error");
  };
  print();
  EXPECT_FALSE(ended());
  EXPECT_EQ(asked().size(), 1u);
}

TEST_F(Printing, LeavesTheDrawingTheToolAndUndoAsTheyWere) {
  click(studio.cmdLijn);
  drag(sheet, 10, 20, 300, 400);
  const raster::Bitmap drawn = canvas();
  const Picture undo = studio.picUndo.Picture;
  const int pointer = sheet.MousePointer;
  print();
  EXPECT_TRUE(shows(sheet, drawn));
  EXPECT_EQ(studio.picUndo.Picture, undo);
  EXPECT_EQ(sheet.MousePointer, pointer);
  EXPECT_TRUE(studio.cmdUndo.Enabled);
  drag(sheet, 300, 20, 10, 400);
  EXPECT_FALSE(shows(sheet, drawn));
}

TEST(PrinterPage, CountsInTheUnitOfItsScaleAndSendsNothingWithoutAPicture) {
  std::vector<Printed> sent;
  const auto former = host().printPage;
  host().printPage = [&](const std::vector<Printed>& page) { sent = page; };
  Printer().EndDoc();
  EXPECT_TRUE(sent.empty());
  const Picture picture(std::make_shared<raster::Bitmap>(3, 2, 0xFFFFFFFF));
  Printer().ScaleMode = ScaleTwips;
  Printer().PaintPicture(picture, {1440, 720});
  Printer().ScaleMode = ScaleCentimetres;
  Printer().PaintPicture(picture, {2, 3});
  Printer().EndDoc();
  host().printPage = former;
  ASSERT_EQ(sent.size(), 2u);
  EXPECT_FLOAT_EQ(sent[0].at.X, 2.54f);
  EXPECT_FLOAT_EQ(sent[0].at.Y, 1.27f);
  EXPECT_EQ(sent[1].at.Y, 3);
}
