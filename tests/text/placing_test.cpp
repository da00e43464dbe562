// Placing text on the sheet: where, in which order and colours, and what comes after.
#include "effects/frmZoom.h"
#include "surface/host.h"
#include "text/text_tool.h"

using namespace surface;

namespace {

constexpr Color Ground = 0x0060A0E0, EffectColor = 0x0010C020, TextColor = 0x00A01030;

}  // namespace

class TextPlacing : public TextTool {
 protected:
  TextPlacing() { sheet.BackColor = Ground; }

  frmTekst& openWith(int x, int y, const std::string& text) {
    frmTekst& form = openAt(x, y);
    fill(form.txtTekst, text);
    form.Shape1.FillColor = EffectColor;
    form.Shape2.FillColor = TextColor;
    return form;
  }
  LiteralText literal(const std::string& text) { return {canvas(), sheet.Font, text}; }
};

TEST_F(TextPlacing, TheToolSaysWhereToClick) {
  click(studio.cmdTekst);
  EXPECT_EQ(studio.lblModus.Caption, "klik op de plaats WAAR je de tekst op het blad wil");
  EXPECT_EQ(sheet.MousePointer, PointerText);
}

TEST_F(TextPlacing, AClickMarksThePlaceOutsideThePicture) {
  const raster::Bitmap before = canvas();
  openAt(100, 50);
  EXPECT_TRUE(studio.picTekst.Visible);
  EXPECT_EQ(studio.picTekst.Left, 101);
  EXPECT_EQ(studio.picTekst.Top, 51);
  EXPECT_EQ(studio.picTekst.Height, 58);
  EXPECT_TRUE(shows(sheet, before));
  // A thin line, as high as a text, for a text that has no letters yet.
  const QImage seen = shown(sheet);
  EXPECT_NE(seen.pixel(101, 80) & 0xFFFFFF, toPixel(Ground) & 0xFFFFFF);
  EXPECT_EQ(seen.pixel(103, 80) & 0xFFFFFF, toPixel(Ground) & 0xFFFFFF);
}

TEST_F(TextPlacing, AClickTakesTheMagnifierAwayAndIsOneStepOfUndo) {
  drag(sheet, 20, 20, 200, 300);
  click(studio.cmdZoom);
  openAt(100, 50);
  EXPECT_FALSE(isLoaded<frmZoom>());
  EXPECT_TRUE(same(*studio.picUndo.Picture->bitmap(), canvas()));
}

TEST_F(TextPlacing, TheMarkIsAThinFrameThatLetsThePictureAndThePointerThrough) {
  openAt(100, 50);
  studio.picTekst.Width = 80;
  const QImage seen = shown(sheet);
  const auto at = [&](int x, int y) { return seen.pixel(x, y) & 0xFFFFFF; };
  const QRgb ground = toPixel(Ground) & 0xFFFFFF;
  EXPECT_NE(at(101, 80), ground);
  EXPECT_NE(at(180, 80), ground);
  EXPECT_NE(at(140, 51), ground);
  EXPECT_NE(at(140, 108), ground);
  EXPECT_EQ(at(140, 80), ground);
  press(sheet, 140, 80);
  release(sheet, 140, 80);
  EXPECT_EQ(dialogs().size(), 2u);
  EXPECT_EQ(studio.picTekst.Left, 141);
}

TEST_F(TextPlacing, TextAtAClickStartsTwoPixelsToTheRightAndBelow) {
  frmTekst& form = openWith(100, 50, "Zoë");
  LiteralText should = literal("Zoë");
  click(form.cmdInvoegen);
  should.print(102, 52, TextColor, Black);
  EXPECT_TRUE(shows(sheet, should.canvas()));
}

TEST_F(TextPlacing, RaisedIsPrintedNineTimesInItsOrder) {
  frmTekst& form = openWith(100, 50, "Kat");
  click(form.chkVerhoogd);
  LiteralText should = literal("Kat");
  click(form.cmdInvoegen);
  for (const int x : {101, 102})
    for (const int y : {51, 52}) should.print(x, y, EffectColor, White);
  for (const int x : {102, 103})
    for (const int y : {52, 53}) should.print(x, y, White, Black);
  should.print(102, 52, TextColor, Black);
  EXPECT_TRUE(shows(sheet, should.canvas()));
}

TEST_F(TextPlacing, OutlinedHasARimOfOnePixelOnAllSides) {
  frmTekst& form = openWith(100, 50, "Kat");
  click(form.chkBuiten);
  LiteralText should = literal("Kat");
  click(form.cmdInvoegen);
  for (const int x : {101, 102, 103})
    for (const int y : {51, 52, 53}) should.print(x, y, EffectColor, Black);
  should.print(102, 52, TextColor, Black);
  EXPECT_TRUE(shows(sheet, should.canvas()));
}

TEST_F(TextPlacing, ADepthOfTenAtFortyFiveEndsSevenPixelsToTheLeftAndBelow) {
  frmTekst& form = openWith(100, 50, "Kat");
  click(form.chk3Deffect);
  slide(form.Slider1, 10);
  LiteralText should = literal("Kat");
  click(form.cmdInvoegen);
  const double angle = 3.14159265359 / 2 + 6.28318530718 / (360.0 / 45);
  EXPECT_EQ(std::lround(10 * std::cos(angle)), -7);
  EXPECT_EQ(std::lround(10 * std::sin(angle)), 7);
  for (int i = 1; i <= 10; ++i)
    should.print(102 + i * std::cos(angle), 52 + i * std::sin(angle), EffectColor, Black);
  should.print(102, 52, TextColor, Black);
  EXPECT_TRUE(shows(sheet, should.canvas()));
}

TEST_F(TextPlacing, TheDepthTurnsClockwiseWithTheAngle) {
  const struct {
    const char* degrees;
    int dx, dy;
  } rows[] = {{"90", -1, 0}, {"180", 0, -1}, {"270", 1, 0}, {"360", 0, 1}};
  for (const auto& row : rows) {
    click(studio.cmdClear);
    frmTekst& form = openWith(200, 200, "Kat");
    click(form.chk3Deffect);
    fill(form.txtHoek, row.degrees);
    slide(form.Slider1, 6);
    LiteralText should = literal("Kat");
    click(form.cmdInvoegen);
    for (int i = 1; i <= 6; ++i)
      should.print(202 + i * row.dx, 202 + i * row.dy, EffectColor, Black);
    should.print(202, 202, TextColor, Black);
    EXPECT_TRUE(shows(sheet, should.canvas())) << row.degrees;
  }
}

TEST_F(TextPlacing, RaisedWinsOverDepth) {
  frmTekst& form = openWith(100, 50, "Kat");
  click(form.chkVerhoogd);
  click(form.chk3Deffect);
  slide(form.Slider1, 10);
  fill(form.txtHoek, "geen getal");
  LiteralText should = literal("Kat");
  click(form.cmdInvoegen);
  for (const int x : {101, 102})
    for (const int y : {51, 52}) should.print(x, y, EffectColor, White);
  for (const int x : {102, 103})
    for (const int y : {52, 53}) should.print(x, y, White, Black);
  should.print(102, 52, TextColor, Black);
  EXPECT_TRUE(shows(sheet, should.canvas()));
}

TEST_F(TextPlacing, HasOnlyTheTwoColoursOfTextAndGround) {
  sheet.BackColor = White;
  frmTekst& form = openWith(100, 50, "Schildpad");
  form.Shape2.FillColor = Black;
  click(form.cmdTekstBUI(1));
  click(form.cmdInvoegen);
  const raster::Bitmap picture = canvas();
  int black = 0;
  for (int y = 0; y < picture.height(); ++y)
    for (int x = 0; x < picture.width(); ++x) {
      const raster::Pixel pixel = picture.at(x, y);
      ASSERT_TRUE(pixel == toPixel(Black) || pixel == toPixel(White)) << std::hex << pixel;
      black += pixel == toPixel(Black) ? 1 : 0;
    }
  EXPECT_GT(black, 500);
}

TEST_F(TextPlacing, ClosesTheDialogAndKeepsTheTool) {
  frmTekst& form = openWith(100, 50, "Kat");
  click(studio.cmdLijnen);
  slide(studio.Slider1, 7);
  click(studio.cmdTekst);
  studio.MousePointer = PointerHourglass;
  click(form.cmdInvoegen);
  EXPECT_TRUE(dialogs().empty());
  EXPECT_FALSE(studio.picTekst.Visible);
  EXPECT_EQ(studio.picTekst.Caption, "");
  EXPECT_EQ(studio.picTekst.Width, 3 * 28);
  EXPECT_EQ(studio.picTekst.Height, 58);
  EXPECT_EQ(sheet.DrawWidth, 7);
  EXPECT_EQ(sheet.ForeColor, TextColor);
  EXPECT_EQ(studio.MousePointer, PointerDefault);
  EXPECT_EQ(sheet.MousePointer, PointerText);
  openAt(200, 200);
  EXPECT_EQ(dialogs().size(), 1u);
}

TEST_F(TextPlacing, AWidePenLeavesDotsOfOnePixelOnly) {
  click(studio.cmdLijnen);
  slide(studio.Slider1, 20);
  click(studio.cmdTekst);
  frmTekst& form = openWith(100, 50, "Kat");
  LiteralText should = literal("Kat");
  click(form.cmdInvoegen);
  should.print(102, 52, TextColor, Black);
  EXPECT_TRUE(shows(sheet, should.canvas()));
}

TEST_F(TextPlacing, UndoTakesTheTextBack) {
  const raster::Bitmap before = canvas();
  click(openWith(100, 50, "Kat").cmdInvoegen);
  EXPECT_FALSE(shows(sheet, before));
  click(studio.cmdUndo);
  EXPECT_TRUE(shows(sheet, before));
}

TEST_F(TextPlacing, TheStyleHoldsForTheNextText) {
  frmTekst& first = openWith(100, 50, "Kat");
  click(first.cmdTekstBUI(0));
  click(first.cmdTekstBUI(2));
  click(first.cmdInvoegen);
  frmTekst& second = openWith(100, 200, "Hond");
  EXPECT_FALSE(second.picVoorbeeld.Font.Bold);
  EXPECT_TRUE(sheet.Font.Bold && sheet.Font.Underline);
  LiteralText should = literal("Hond");
  click(second.cmdInvoegen);
  should.print(102, 202, TextColor, Black);
  EXPECT_TRUE(shows(sheet, should.canvas()));
}

TEST_F(TextPlacing, TwoOpenDialogsPrintAtThePlaceOfTheLastClick) {
  frmTekst& first = openWith(100, 50, "Kat");
  openWith(100, 200, "Hond");
  LiteralText should = literal("Kat");
  click(first.cmdInvoegen);
  should.print(102, 202, TextColor, Black);
  EXPECT_TRUE(shows(sheet, should.canvas()));
  EXPECT_EQ(dialogs().size(), 1u);
}

TEST_F(TextPlacing, AnEmptyTextLeavesItsDotsAndTheDialogStays) {
  frmTekst& form = openWith(100, 50, "");
  click(form.chkBuiten);
  LiteralText should = literal("");
  answerMessage(Ok);
  click(form.cmdInvoegen);
  EXPECT_EQ(asked().back().text, "Je hebt nog geen tekst ingevoerd !");
  EXPECT_EQ(asked().back().title, "Oeps ! Een foutje !");
  EXPECT_EQ(asked().back().buttons, OkOnly);
  EXPECT_EQ(dialogs().size(), 1u);
  EXPECT_TRUE(script::widgetOf(form.txtTekst)->hasFocus());
  EXPECT_FALSE(studio.picTekst.Visible);
  for (const int x : {101, 102, 103})
    for (const int y : {51, 52, 53}) should.print(x, y, EffectColor, Black);
  should.print(102, 52, TextColor, Black);
  EXPECT_TRUE(shows(sheet, should.canvas()));
}

TEST_F(TextPlacing, ALetterInTheAngleIsToldAndNothingIsPrinted) {
  frmTekst& form = openWith(100, 50, "Kat");
  click(form.chk3Deffect);
  const raster::Bitmap before = canvas();
  answerMessage(Ok);
  fill(form.txtHoek, "4x");
  answerMessage(Ok);
  click(form.cmdInvoegen);
  EXPECT_EQ(asked().back().text,
            "Het tekstvak voor de hoek in graden mag enkel cijfers bevatten !");
  EXPECT_EQ(asked().back().title, "Oeps ! Een foutje !");
  EXPECT_EQ(asked().back().buttons, Critical);
  EXPECT_TRUE(shows(sheet, before));
  EXPECT_TRUE(studio.picTekst.Visible);
  EXPECT_EQ(studio.picTekst.Caption, "Kat");
  fill(form.txtHoek, "4");
  click(form.cmdInvoegen);
  EXPECT_TRUE(dialogs().empty());
}

TEST_F(TextPlacing, AnAngleOfZeroWithDepthEndsSilentlyAndPrintsNothing) {
  frmTekst& form = openWith(100, 50, "Kat");
  click(form.chk3Deffect);
  slide(form.Slider1, 10);
  fill(form.txtHoek, "0");
  const raster::Bitmap before = canvas();
  click(form.cmdInvoegen);
  EXPECT_TRUE(shows(sheet, before));
  EXPECT_EQ(dialogs().size(), 1u);
  EXPECT_TRUE(asked().empty());
  EXPECT_FALSE(ended());
}

TEST_F(TextPlacing, ATextLongerThanTheSheetIsCutAtItsEdge) {
  const std::string text(20000, 'm');
  frmTekst& form = openWith(400, 500, text);
  LiteralText should = literal(text.substr(0, 60));
  click(form.cmdInvoegen);
  should.print(402, 502, TextColor, Black);
  EXPECT_TRUE(shows(sheet, should.canvas()));
}

TEST_F(TextPlacing, AClickAtTheSheetsCornersPrintsWhatFits) {
  const int right = sheet.innerPixels().width() - 1, bottom = sheet.innerPixels().height() - 1;
  for (const auto& [x, y] : {std::pair{0, 0}, {right, 0}, {0, bottom}, {right, bottom}}) {
    frmTekst& form = openWith(x, y, "jas");
    click(form.chkBuiten);
    click(form.cmdInvoegen);
    EXPECT_TRUE(dialogs().empty());
  }
}
