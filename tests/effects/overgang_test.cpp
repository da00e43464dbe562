// The gradient panel by the pointer and the keyboard.
#include <QTest>
#include <QWidget>

#include "effects/effect_stage.h"
#include "effects/gradient.h"

using namespace surface;
using raster::Bitmap;

class GradientPanel : public EffectStage {
 protected:
  Bitmap swept(Color from, Color to, bool alongX) {
    const auto colors = effects::gradientColors(from, to, alongX ? 617 : 537);
    Bitmap result(617, 537, 0);
    for (int y = 0; y < 537; ++y)
      for (int x = 0; x < 617; ++x)
        result.row(y)[x] = toPixel(colors[static_cast<std::size_t>(alongX ? x : y)]);
    return result;
  }
  void open() { click(studio.cmdGradient); }
  static constexpr Color Blue = 0xFF0000, Red = 0x0000FF;
};

TEST_F(GradientPanel, StandsAsTheTableSays) {
  open();
  EXPECT_EQ(studio.cboGradient.Text(), "Verticaal");
  EXPECT_EQ(studio.cboGradient.List(1), "Horizontaal");
  EXPECT_EQ(studio.cboGradient.ListCount(), 2);
  EXPECT_EQ(studio.cboGradient.ToolTipText.get(), "kies verticale of horizontale overgang");
  EXPECT_EQ(studio.cmdGradient2.ToolTipText.get(), "UITVOEREN OVERGANG");
  EXPECT_EQ(studio.cmdGradient2.Caption.get(), "UITVOEREN");
}

TEST_F(GradientPanel, SweepsFromTopToBottomAtThePressAndCloses) {
  open();
  studio.UndoPic(0).Picture = LoadPicture();
  press(studio.cmdGradient2, 40, 12);
  EXPECT_TRUE(studio.cmdUndo.Enabled) << "undo is left as it was";
  EXPECT_TRUE(shows(sheet, swept(Blue, Red, false)));
  EXPECT_FALSE(studio.fraGradient.Visible);
  EXPECT_FALSE(animates());
  EXPECT_TRUE(studio.UndoPic(0).Picture->empty()) << "no step of its own";
  EXPECT_TRUE(same(*studio.picUndo.Picture->bitmap(), blank()));
  releaseOnForm(studio, 5, 5);
}

TEST_F(GradientPanel, OfTwoEqualColoursMakesOneFlatColour) {
  open();
  studio.Picture4.BackColor = Blue;
  for (const int row : {0, 1}) {
    open();
    studio.cboGradient.picked(row);
    click(studio.cmdGradient2);
    EXPECT_TRUE(shows(sheet, effects_test::plain(617, 537, Blue)));
  }
}

TEST_F(GradientPanel, SweepsFromLeftToRight) {
  open();
  studio.cboGradient.picked(1);
  click(studio.cmdGradient2);
  EXPECT_TRUE(shows(sheet, swept(Blue, Red, true)));
  open();
  studio.cboGradient.ListIndex = -1;
  sheet.BackColor = White;
  click(studio.cmdGradient2);
  EXPECT_TRUE(shows(sheet, swept(Blue, Red, true))) << "an empty box counts as horizontal";
}

TEST_F(GradientPanel, IsReversedByAnyOtherButton) {
  for (const int button : {2, 4}) {
    open();
    press(studio.cmdGradient2, 40, 12, button);
    releaseOnForm(studio, 5, 5, button);
    EXPECT_TRUE(shows(sheet, swept(Red, Blue, false)));
    EXPECT_FALSE(studio.fraGradient.Visible);
    sheet.BackColor = White;
  }
}

TEST_F(GradientPanel, TakesThePickedColours) {
  open();
  answerColor(0x123456);
  click(studio.Picture3);
  answerColor(0xFEDCBA);
  click(studio.Picture4);
  click(studio.cmdGradient2);
  EXPECT_TRUE(shows(sheet, swept(0x123456, 0xFEDCBA, false)));
}

TEST_F(GradientPanel, CountsAPressByTheKeyboardAsOneOfTheLeftButton) {
  open();
  QTest::keyClick(script::widgetOf(studio.cmdGradient2), Qt::Key_Space);
  advance(0);
  EXPECT_TRUE(shows(sheet, swept(Blue, Red, false)));
  EXPECT_FALSE(studio.fraGradient.Visible);
}

TEST_F(GradientPanel, LetsTheReleaseReachNothingElse) {
  click(studio.cmdLijn);
  open();
  studio.Label2.Click = [] { ADD_FAILURE() << "what lies beneath was clicked"; };
  press(studio.cmdGradient2, 40, 12);
  const Bitmap painted = canvas();
  const int x = studio.cmdGradient2.pixelPlace().left + studio.fraGradient.pixelPlace().left + 40;
  const int y = studio.cmdGradient2.pixelPlace().top + studio.fraGradient.pixelPlace().top + 12;
  releaseOnForm(studio, x, y);
  EXPECT_TRUE(shows(sheet, painted));
  click(studio.cmdTekenen);
  EXPECT_EQ(studio.lblModus.Caption.get(), "VRIJE HAND : willekeurige lijnen tekenen");
}

TEST_F(GradientPanel, PaintsWithThePenInForce) {
  shrinkSheet(40, 30);
  open();
  sheet.DrawStyle = 2;
  click(studio.cmdGradient2);
  int white = 0;
  for (int y = 0; y < 30; ++y)
    for (int x = 0; x < 40; ++x) white += sheet.bitmap()->at(x, y) == toPixel(White) ? 1 : 0;
  EXPECT_GT(white, 400) << "a dotted pen leaves gaps";
}
