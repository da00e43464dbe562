// What happens to a drawing when an error ends the program.
#include "effects/effect_stage.h"
#include "surface/host.h"

using namespace surface;
using raster::Bitmap;

using Rescue = EffectStage;

TEST_F(Rescue, OfADrawingBeyondTheGridSavesItByTheOrdinaryWay) {
  const Bitmap before = drawNoise(1502, 4);
  saveInErrorReport();
  answerFile(folder() + "/gered.bmp");
  dispatch([&] { studio.cmdVervagen.Click(); });
  EXPECT_EQ(takeErrorReport(), "Subscript out of range");
  EXPECT_TRUE(ended());
  EXPECT_TRUE(same(*LoadPicture(folder() + "/gered.bmp").bitmap(), before));
}

TEST_F(Rescue, IsDeclinedWithoutAnotherQuestion) {
  drawNoise(1502, 4);
  dispatch([&] { studio.cmdVervagen.Click(); });
  EXPECT_NE(takeErrorReport(), std::nullopt);
  EXPECT_TRUE(asked().empty());
  EXPECT_TRUE(ended());
}

TEST_F(Rescue, MayStillBeCancelledAtItsFileDialog) {
  drawNoise(1502, 4);
  saveInErrorReport();
  cancelFile();
  dispatch([&] { studio.cmdVervagen.Click(); });
  EXPECT_NE(takeErrorReport(), std::nullopt);
  EXPECT_TRUE(ended());
}

TEST_F(Rescue, IsNotOfferedForAnEmptySheet) {
  bool offered = false;
  surface::host().errorReportBeforeLoss = [&](const std::string&) { return offered = true; };
  shrinkSheet(1502, 4);
  dispatch([&] { studio.cmdVervagen.Click(); });
  EXPECT_NE(takeErrorReport(), std::nullopt);
  EXPECT_FALSE(offered);
}
