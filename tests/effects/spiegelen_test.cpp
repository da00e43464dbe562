// Mirroring the sheet by its buttons, and the file that it goes through.
#include <filesystem>

#include "effects/effect_stage.h"

using namespace surface;
using raster::Bitmap;

class Mirroring : public EffectStage {
 protected:
  static Bitmap mirrored(const Bitmap& picture, bool leftToRight) {
    Bitmap result = picture;
    for (int y = 0; y < picture.height(); ++y)
      for (int x = 0; x < picture.width(); ++x)
        result.row(y)[x] = leftToRight ? picture.at(picture.width() - 1 - x, y)
                                       : picture.at(x, picture.height() - 1 - y);
    return result;
  }
  std::string file() { return folder() + "/temp.bmp"; }
};

TEST_F(Mirroring, TurnsLeftToRightAndTopToBottom) {
  for (const auto& [width, height] : {std::pair{61, 47}, {617, 537}, {700, 20}, {1, 1}, {2, 9}}) {
    const Bitmap before = drawNoise(width, height);
    click(studio.cmdSpiegelH);
    EXPECT_EQ(studio.lblModus.Caption.get(), "de tekening HORIZONTAAL omdraaien (spiegelen)");
    EXPECT_TRUE(shows(sheet, mirrored(before, true)));
    click(studio.cmdSpiegelV);
    EXPECT_EQ(studio.lblModus.Caption.get(), "de tekening VERTICAAL omdraaien (spiegelen)");
    EXPECT_TRUE(shows(sheet, mirrored(mirrored(before, true), false)));
  }
}

TEST_F(Mirroring, TwiceGivesTheDrawingBackAlsoOnAnEnlargedSheet) {
  for (CommandButton* button : {&studio.cmdSpiegelH, &studio.cmdSpiegelV}) {
    const Bitmap before = drawNoise(800, 650);
    click(*button);
    click(*button);
    EXPECT_TRUE(shows(sheet, before));
  }
}

TEST_F(Mirroring, LeavesItsFileBehindAndTheDrawingAsThePicture) {
  const Bitmap before = drawNoise(61, 47);
  click(studio.cmdSpiegelH);
  EXPECT_TRUE(same(*LoadPicture(file()).bitmap(), mirrored(before, true)));
  EXPECT_TRUE(same(*sheet.Picture->bitmap(), mirrored(before, true)));
}

TEST_F(Mirroring, TakesAStepButLeavesPanelsPenAndUndoAsTheyAre) {
  const Bitmap before = drawNoise(61, 47);
  click(studio.cmdLijnen);
  slide(studio.Slider1, 7);
  pickColor(20);
  const Color color = sheet.ForeColor;
  studio.cmdUndo.Enabled = true;
  click(studio.cmdSpiegelV);
  EXPECT_TRUE(studio.fraLijnen.Visible);
  EXPECT_EQ(sheet.DrawWidth, 7);
  EXPECT_EQ(sheet.ForeColor, color);
  EXPECT_TRUE(studio.cmdUndo.Enabled);
  EXPECT_TRUE(same(*studio.UndoPic(0).Picture->bitmap(), before));
  EXPECT_FALSE(animates());
}

TEST_F(Mirroring, WhereTheFolderCannotBeWrittenReportsAndGoesOnWithTheSheetAsItWas) {
  const Bitmap before = drawNoise(61, 47);
  app().Path = folder() + "/nergens";
  click(studio.cmdSpiegelH);
  EXPECT_NE(takeErrorReport(), std::nullopt);
  EXPECT_FALSE(ended());
  EXPECT_TRUE(shows(sheet, before));
  EXPECT_TRUE(same(*sheet.Picture->bitmap(), before));
  app().Path = folder();
  click(studio.cmdSpiegelH);
  EXPECT_TRUE(shows(sheet, mirrored(before, true)));
}
