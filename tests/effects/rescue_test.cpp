// What happens to a drawing when an error ends the program.
#include "course/frmTekenen3.h"
#include "effects/effect_stage.h"
#include "small/frmTekenen1.h"
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

class RescueOfASmallSheet : public script::Stage {
 protected:
  void expectRescued(SmallStudio& studio) {
    studio.Show();
    studio.picBlad.Line({10, 20}, {90, 70}, 0x0000FF, BF);
    const Bitmap before = *studio.picBlad.bitmap();
    saveInErrorReport();
    answerFile(folder() + "/gered.bmp");
    dispatch([] { throw RuntimeError(ErrorKind::Overflow, "Overflow"); });
    EXPECT_EQ(takeErrorReport(), "Overflow");
    EXPECT_TRUE(ended());
    EXPECT_TRUE(pictures::same(*LoadPicture(folder() + "/gered.bmp").bitmap(), before));
  }
};

TEST_F(RescueOfASmallSheet, SavesTheDrawingOfTheSmallStudio) { expectRescued(the<frmTekenen1>()); }

TEST_F(RescueOfASmallSheet, SavesTheDrawingOfTheCourse) { expectRescued(the<frmTekenen3>()); }

TEST_F(RescueOfASmallSheet, IsNotOfferedForAnEmptyOne) {
  bool offered = false;
  surface::host().errorReportBeforeLoss = [&](const std::string&) { return offered = true; };
  the<frmTekenen1>().Show();
  dispatch([] { throw RuntimeError(ErrorKind::Overflow, "Overflow"); });
  EXPECT_EQ(takeErrorReport(), "Overflow");
  EXPECT_FALSE(offered);
}
