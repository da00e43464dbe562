// What a sheet shows beneath a picture, and when it holds a drawing that must not be lost.
#include <QImage>

#include "studio/studio.h"

using namespace surface;

class Paper : public Studio {
 protected:
  // A picture whose right half is transparent, in the test's folder.
  std::string halfPicture() {
    QImage image(40, 20, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    for (int y = 0; y < 20; ++y)
      for (int x = 0; x < 20; ++x) image.setPixelColor(x, y, Qt::red);
    QImage icon = image.copy(0, 0, 40, 20);
    const std::string path = folder() + "/half.ico";
    EXPECT_TRUE(icon.save(QString::fromStdString(path), "ICO"));
    return path;
  }
};

TEST_F(Paper, ShowsThroughWhereAPictureIsTransparent) {
  answerColor(0x00FFFF);
  click(studio.cmdPalet);
  sheet.Picture = LoadPicture(halfPicture());
  EXPECT_EQ(sheet.Point({5, 5}), 0x0000FF);
  EXPECT_EQ(sheet.Point({30, 5}), 0x00FFFF);
  EXPECT_EQ(sheet.Point({300, 5}), 0x00FFFF);
  // And so it does in another colour, since the picture stays in its place.
  answerColor(0xFF8000);
  click(studio.cmdPalet);
  EXPECT_EQ(sheet.Point({5, 5}), 0x0000FF);
  EXPECT_EQ(sheet.Point({30, 5}), 0xFF8000);
}

TEST_F(Paper, HoldsADrawingFromTheFirstDotOn) {
  EXPECT_TRUE(formsWithDrawing().empty());
  press(sheet, 50, 50);
  release(sheet, 50, 50);
  EXPECT_EQ(formsWithDrawing(), std::vector<Form*>{&studio});
  click(studio.cmdClear);
  EXPECT_TRUE(formsWithDrawing().empty());
  answerColor(0x00FFFF);
  click(studio.cmdPalet);
  EXPECT_TRUE(formsWithDrawing().empty()) << "a coloured sheet is no drawing";
}

TEST_F(Paper, IsAskedAboutAtALogoutAsBeforeOpening) {
  press(sheet, 50, 50);
  release(sheet, 50, 50);
  answerMessage(No);
  studio.LogOut();
  ASSERT_EQ(asked().size(), 1u);
  EXPECT_EQ(asked()[0].text, "Wil je de huidige tekening opslaan ?");
  EXPECT_EQ(asked()[0].title, "Opslaan");
  EXPECT_EQ(asked()[0].buttons, YesNo);
  answerMessage(Yes);
  answerFile(folder() + "/bewaard.bmp");
  studio.LogOut();
  EXPECT_EQ(LoadPicture(folder() + "/bewaard.bmp").width(), 617);
}

TEST_F(Paper, TheHiddenStampHasItsTooltipToo) {
  EXPECT_EQ(studio.picBorstel2.ToolTipText, "LIJNTJES OMLAAG");
  EXPECT_FALSE(studio.picBorstel2.Visible);
}
