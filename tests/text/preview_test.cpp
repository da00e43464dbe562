// The sample in the text dialog: each effect in red and black, and the angle of the depth.
#include "support/colors.h"
#include "text/text_tool.h"

using namespace surface;

namespace {

constexpr Color Backdrop = 0x00E0C0A0;
constexpr double Pi = 3.14159265359;

}  // namespace

class TextPreview : public TextTool {
 protected:
  // On a ground of another colour than white, where white dots show.
  frmTekst& open() {
    frmTekst& form = openAt(100, 50);
    form.picVoorbeeld.BackColor = Backdrop;
    return form;
  }
  LiteralText sample(frmTekst& form) {
    const auto& inner = form.picVoorbeeld.innerPixels();
    return {raster::Bitmap(inner.width(), inner.height(), toPixel(Backdrop)),
            form.picVoorbeeld.Font, "Voorbeeld"};
  }
  LiteralText deep(frmTekst& form, int depth, double angle) {
    LiteralText should = sample(form);
    for (int i = 1; i <= depth; ++i)
      should.print(15 + i * std::cos(angle), 15 + i * std::sin(angle), Red, Red);
    should.print(15, 15, Black, Black);
    return should;
  }
};

TEST_F(TextPreview, WithoutAnEffectIsBlack) {
  frmTekst& form = open();
  form.DrawPreview();
  LiteralText should = sample(form);
  should.print(15, 15, Black, Black);
  EXPECT_TRUE(shows(form.picVoorbeeld, should.canvas()));
}

TEST_F(TextPreview, RaisedIsRedToTheUpperLeftAndBlackToTheLowerRight) {
  frmTekst& form = open();
  click(form.chkVerhoogd);
  LiteralText should = sample(form);
  for (const int x : {14, 15})
    for (const int y : {14, 15}) should.print(x, y, Red, White);
  for (const int x : {15, 16})
    for (const int y : {15, 16}) should.print(x, y, Black, Black);
  should.print(15, 15, Black, Black);
  EXPECT_TRUE(shows(form.picVoorbeeld, should.canvas()));
}

TEST_F(TextPreview, OutlineIsRedOnAllSides) {
  frmTekst& form = open();
  click(form.chkBuiten);
  LiteralText should = sample(form);
  for (const int x : {14, 15, 16})
    for (const int y : {14, 15, 16}) should.print(x, y, Red, Red);
  should.print(15, 15, Black, Black);
  EXPECT_TRUE(shows(form.picVoorbeeld, should.canvas()));
}

TEST_F(TextPreview, DepthGoesRedInTheAnglesDirection) {
  frmTekst& form = open();
  click(form.chk3Deffect);
  for (const int degrees : {45, 90, 180, 270, 360, 1}) {
    fill(form.txtHoek, toText(degrees));
    for (const int depth : {1, 5, 10}) {
      slide(form.Slider1, depth);
      const LiteralText should = deep(form, depth, Pi / 2 + 6.28318530718 / (360.0 / degrees));
      EXPECT_TRUE(shows(form.picVoorbeeld, should.canvas())) << degrees << " degrees, " << depth;
    }
  }
}

TEST_F(TextPreview, ADepthOfZeroShowsThePlainText) {
  frmTekst& form = open();
  click(form.chk3Deffect);
  EXPECT_TRUE(shows(form.picVoorbeeld, deep(form, 0, 0).canvas()));
}

TEST_F(TextPreview, UsesNeitherOfTheTwoChosenColours) {
  frmTekst& form = open();
  form.Shape1.FillColor = 0x00FF00;
  form.Shape2.FillColor = 0xFF0000;
  click(form.chk3Deffect);
  slide(form.Slider1, 3);
  const LiteralText should = deep(form, 3, Pi / 2 + 6.28318530718 / (360.0 / 45));
  EXPECT_TRUE(shows(form.picVoorbeeld, should.canvas()));
}

TEST_F(TextPreview, AnAngleOfFourHundredTurnsIntoForty) {
  frmTekst& form = open();
  click(form.chk3Deffect);
  slide(form.Slider1, 10);
  fill(form.txtHoek, "400");
  EXPECT_EQ(form.txtHoek.Text, "40");
  const LiteralText should = deep(form, 10, Pi / 2 + 6.28318530718 / (360.0 / 40));
  EXPECT_TRUE(shows(form.picVoorbeeld, should.canvas()));
}

TEST_F(TextPreview, AnAngleThatWasTypedBeforeIsTurnedDownAsSoonAsDepthIsTicked) {
  frmTekst& form = open();
  fill(form.txtHoek, "720");
  EXPECT_EQ(form.txtHoek.Text, "720");
  click(form.chk3Deffect);
  EXPECT_EQ(form.txtHoek.Text, "360");
}

TEST_F(TextPreview, AHugeAngleIsWrittenOnlyOnce) {
  frmTekst& form = open();
  click(form.chk3Deffect);
  int changes = 0;
  form.txtHoek.Change = [&] {
    ++changes;
    form.DrawPreview();
  };
  const struct {
    std::string typed, becomes;
  } rows[] = {{"9999999", "279"},
              {"361", "1"},
              {"36000000000000000000000360", "360"},
              {"045", "045"},
              {"360", "360"}};
  for (const auto& row : rows) {
    changes = 0;
    fill(form.txtHoek, row.typed);
    EXPECT_EQ(form.txtHoek.Text, row.becomes);
    EXPECT_EQ(changes, row.typed == row.becomes ? 1 : 2) << row.typed;
  }
}

TEST_F(TextPreview, AnEmptiedAngleBecomesZeroAtOnceAndKeepsTheFormerDirection) {
  frmTekst& form = open();
  click(form.chk3Deffect);
  slide(form.Slider1, 8);
  fill(form.txtHoek, "90");
  const raster::Bitmap before = *form.picVoorbeeld.bitmap();
  fill(form.txtHoek, "");
  EXPECT_EQ(form.txtHoek.Text, "0");
  EXPECT_TRUE(shows(form.picVoorbeeld, before));
}

TEST_F(TextPreview, AnythingButDigitsInTheAngleIsRefusedAndTheSampleStaysCleared) {
  frmTekst& form = open();
  click(form.chk3Deffect);
  const auto& inner = form.picVoorbeeld.innerPixels();
  const raster::Bitmap cleared(inner.width(), inner.height(), toPixel(Backdrop));
  for (const char* text : {"-5", "4x", "1.5", " 9", "é"}) {
    answerMessage(Ok);
    fill(form.txtHoek, text);
    EXPECT_EQ(asked().back().text, "Het tekstvak mag enkel getallen bevatten !");
    EXPECT_EQ(asked().back().title, "Oeps ! Een foutje !");
    EXPECT_EQ(asked().back().buttons, Critical);
    EXPECT_EQ(form.txtHoek.Text, text);
    EXPECT_TRUE(shows(form.picVoorbeeld, cleared));
  }
}

TEST_F(TextPreview, TheAngleIsNotLookedAtWithoutDepth) {
  frmTekst& form = open();
  fill(form.txtHoek, "abc");
  click(form.chkBuiten);
  EXPECT_TRUE(asked().empty());
  EXPECT_EQ(form.txtHoek.Text, "abc");
}

TEST_F(TextPreview, EndsWithTheStudiosPenWidth) {
  click(studio.cmdLijnen);
  slide(studio.Slider1, 9);
  frmTekst& form = open();
  click(form.chkBuiten);
  EXPECT_EQ(form.picVoorbeeld.DrawWidth, 9);
  click(form.chkBuiten);
  LiteralText should = sample(form);
  should.print(15, 15, Black, Black);
  EXPECT_TRUE(shows(form.picVoorbeeld, should.canvas()));
}
