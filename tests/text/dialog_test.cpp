// The text dialog: its controls, and what each of them sets on the sample, the sheet and the mark.
#include <QFontMetrics>
#include <QTest>

#include "support/colors.h"
#include "surface/host.h"
#include "surface/qt/text_layout.h"
#include "text/text_tool.h"

using namespace surface;

using TextDialog = TextTool;

namespace {

LiteralText sampleOf(frmTekst& form) {
  const auto& inner = form.picVoorbeeld.innerPixels();
  return {raster::Bitmap(inner.width(), inner.height(), toPixel(form.picVoorbeeld.BackColor)),
          form.picVoorbeeld.Font, "Voorbeeld"};
}

}  // namespace

TEST_F(TextDialog, ShowsTheTextsOfItsControls) {
  frmTekst& form = openAt(100, 50);
  EXPECT_EQ(form.Caption, "Hoe wil je de tekst ?");
  EXPECT_EQ(form.Frame1.Caption, "Lettertype en grootte");
  EXPECT_EQ(form.cboFontSize.ToolTipText, "DENK aan het resultaat op je blad");
  EXPECT_EQ(form.Frame3.Caption, "Tik hier de gewenste tekst in");
  EXPECT_EQ(form.txtTekst.Text, "");
  EXPECT_FALSE(form.txtTekst.MultiLine);
  EXPECT_EQ(form.Frame4.Caption, "Andere instelmogelijkheden");
  EXPECT_EQ(form.Label3.Caption, "Toepassen van teksteffecten");
  EXPECT_EQ(form.chkBuiten.Caption, "Buitenlijn");
  EXPECT_EQ(form.chkBuiten.ToolTipText, "de tekst krijgt een RAND");
  EXPECT_EQ(form.chk3Deffect.Caption, "3D");
  EXPECT_EQ(form.chk3Deffect.ToolTipText, "de tekst krijgt DIEPTE");
  EXPECT_EQ(form.chkVerhoogd.Caption, "Verhoogd");
  EXPECT_EQ(form.chkVerhoogd.ToolTipText, "de tekst krijgt een SCHADUW");
  EXPECT_EQ(form.Frame5.Caption, "Hoek voor het 3D-effect");
  EXPECT_FALSE(form.Frame5.Enabled);
  EXPECT_EQ(form.Slider1.ToolTipText, "DIEPTE en HOEK van het 3D-effect");
  EXPECT_EQ(form.Slider1.Min, 0);
  EXPECT_EQ(form.Slider1.Max, 10);
  EXPECT_EQ(form.Slider1.Value, 0);
  EXPECT_EQ(form.txtHoek.Text, "45");
  EXPECT_EQ(form.Label1.Caption, "graden");
  EXPECT_EQ(form.Label2.Caption, "Effect-kleur");
  EXPECT_EQ(form.Label4.Caption, "Tekst-kleur");
  EXPECT_EQ(form.Shape1.FillColor, 0xC0C0C0);
  EXPECT_EQ(form.Shape2.FillColor, Black);
  EXPECT_EQ(form.cmdInvoegen.Caption, "Voeg in");
  EXPECT_EQ(form.cmdAnnuleren.Caption, "Annuleren");
  expectPlaced({{form.picVoorbeeld, 0, 4440, 3135, 1095}});
  EXPECT_EQ(form.picVoorbeeld.ScaleMode(), ScalePixels);
  EXPECT_FALSE(form.picVoorbeeld.AutoRedraw);
}

namespace {

// Every neighbour apart from every other, and all within their container.
void expectApart(const Container& container, const raster::Rect& room) {
  const auto& controls = container.controls();
  for (std::size_t i = 0; i < controls.size(); ++i) {
    const raster::Rect place = controls[i]->pixelPlace();
    EXPECT_EQ(intersect(place, room), place) << i << ": " << controls[i]->ToolTipText.get();
    for (std::size_t k = 0; k < i; ++k)
      EXPECT_TRUE(intersect(place, controls[k]->pixelPlace()).empty()) << i << " and " << k;
    if (const Container* inner = controls[i]->asContainer())
      expectApart(*inner, {0, 0, place.width(), place.height()});
  }
}

int widthOf(const Font& font, const std::string& text) {
  return QFontMetrics(surface::qt::toQFont(font)).horizontalAdvance(QString::fromStdString(text));
}

}  // namespace

TEST_F(TextDialog, OverlapsNothingAndShowsEveryCaptionWhole) {
  frmTekst& form = openAt(100, 50);
  expectApart(form, form.innerPixels());
  for (Label* label : {&form.Label1, &form.Label2, &form.Label3, &form.Label4})
    EXPECT_LT(widthOf(label->Font, label->Caption) + 4, label->pixelPlace().width())
        << label->Caption.get();
  for (CheckBox* box : {&form.chkBuiten, &form.chk3Deffect, &form.chkVerhoogd})
    EXPECT_LE(script::widgetOf(*box)->sizeHint().width(), box->pixelPlace().width())
        << box->Caption.get();
  for (Frame* frame : {&form.Frame1, &form.Frame3, &form.Frame4, &form.Frame5})
    EXPECT_LT(widthOf(frame->Font, frame->Caption) + 16, frame->pixelPlace().width())
        << frame->Caption.get();
}

TEST_F(TextDialog, OffersTheSizesFromEightToSeventyTwoAndStandsAtTwentyEight) {
  frmTekst& form = openAt(100, 50);
  ASSERT_EQ(form.cboFontSize.ListCount(), 33);
  for (int i = 0; i < 33; ++i) EXPECT_EQ(form.cboFontSize.List(i), toText(8 + 2 * i));
  EXPECT_EQ(form.cboFontSize.Text(), "28");
}

TEST_F(TextDialog, OffersTheFontsOfTheScreenAndStandsAtTheTwelfth) {
  frmTekst& form = openAt(100, 50);
  const std::vector<std::string> fonts = ScreenFonts();
  ASSERT_EQ(form.cboFont.ListCount(), static_cast<int>(fonts.size()));
  for (int i = 0; i < form.cboFont.ListCount(); ++i)
    EXPECT_EQ(form.cboFont.List(i), fonts[static_cast<std::size_t>(i)]);
  EXPECT_EQ(form.cboFont.ListIndex, 11);
  EXPECT_EQ(sheet.Font.Name, fonts[11]);
  EXPECT_EQ(form.picVoorbeeld.Font.Name, fonts[11]);
  EXPECT_EQ(studio.picTekst.Font.Name, fonts[11]);
}

TEST_F(TextDialog, IsReadyToTypeAtOnce) {
  frmTekst& form = openAt(100, 50);
  EXPECT_TRUE(script::widgetOf(form.txtTekst)->hasFocus());
  type("kat");
  EXPECT_EQ(form.txtTekst.Text, "kat");
}

TEST_F(TextDialog, SelectsTheSheetsFontAndTheSizeTenWhenItLoads) {
  sheet.Font.Name = ScreenFonts()[3];
  EXPECT_EQ(the<frmTekst>().cboFont.ListIndex, 3);
  EXPECT_EQ(the<frmTekst>().cboFontSize.Text(), "10");
  EXPECT_EQ(the<frmTekst>().picVoorbeeld.Font.Size, 28);
}

TEST_F(TextDialog, TheDepthMovesByOneWithTheArrowKeysAndByFiveWithThePageKeys) {
  frmTekst& form = openAt(100, 50);
  click(form.chk3Deffect);
  QWidget* knob = script::widgetOf(form.Slider1);
  const auto depthAfter = [&](Qt::Key key) {
    QTest::keyClick(knob, key);
    return form.Slider1.Value.get();
  };
  EXPECT_EQ(depthAfter(Qt::Key_Right), 1);
  EXPECT_EQ(depthAfter(Qt::Key_PageUp), 6);
  EXPECT_EQ(depthAfter(Qt::Key_PageUp), 10);
  EXPECT_EQ(depthAfter(Qt::Key_PageDown), 5);
  EXPECT_EQ(depthAfter(Qt::Key_Left), 4);
  EXPECT_EQ(depthAfter(Qt::Key_Home), 0);
}

TEST_F(TextDialog, LoadsWithASampleInTheCornerToo) {
  frmTekst& form = the<frmTekst>();
  LiteralText should = sampleOf(form);
  should.print(15, 15, Black, Black);
  should.print(0, 0, Black, Black);
  EXPECT_TRUE(shows(form.picVoorbeeld, should.canvas()));
  EXPECT_EQ(form.picVoorbeeld.DrawWidth, 1);
}

TEST_F(TextDialog, SelectsNoFontWhenTheSheetsIsNotInTheListAndKeepsIt) {
  sheet.Font.Name = "Bestaat Niet";
  EXPECT_EQ(the<frmTekst>().cboFont.ListIndex, -1);
  EXPECT_EQ(the<frmTekst>().picVoorbeeld.Font.Name, "Arial");
  EXPECT_EQ(sheet.Font.Name, "Bestaat Niet");
}

TEST_F(TextDialog, MakesThePenBlackAndHidesTheMarkWhenItLoads) {
  sheet.ForeColor = Red;
  studio.picTekst.Visible = true;
  loadNew<frmTekst>();
  EXPECT_EQ(sheet.ForeColor, Black);
  EXPECT_FALSE(studio.picTekst.Visible);
}

TEST_F(TextDialog, PinsTheHiddenSharedFormOnceAndNotTheOneThatShows) {
  const auto textForms = [] {
    int count = 0;
    for (const auto& form : FormRegistry::instance().forms())
      count += dynamic_cast<frmTekst*>(form.get()) ? 1 : 0;
    return count;
  };
  frmTekst& form = openAt(100, 50);
  EXPECT_EQ(textForms(), 2);
  EXPECT_NE(&form, &the<frmTekst>());
  EXPECT_TRUE(the<frmTekst>().topMost());
  EXPECT_FALSE(the<frmTekst>().shown());
  EXPECT_FALSE(form.topMost());
  openAt(200, 50);
  EXPECT_EQ(textForms(), 3);
}

TEST_F(TextDialog, AFontGoesToTheSampleTheSheetAndTheMark) {
  frmTekst& form = openAt(100, 50);
  fill(form.txtTekst, "Zoë");
  pickRow(form.cboFont, 2);
  const std::string name = form.cboFont.List(2);
  EXPECT_EQ(form.picVoorbeeld.Font.Name, name);
  EXPECT_EQ(sheet.Font.Name, name);
  EXPECT_EQ(studio.picTekst.Font.Name, name);
  EXPECT_EQ(studio.picTekst.Width, 3 * 28);
  LiteralText should = sampleOf(form);
  should.print(15, 15, Black, Black);
  EXPECT_TRUE(shows(form.picVoorbeeld, should.canvas()));
}

TEST_F(TextDialog, TheSizeListChangesNothing) {
  frmTekst& form = openAt(100, 50);
  const raster::Bitmap sample = *form.picVoorbeeld.bitmap();
  for (const int row : {0, 32}) {
    pickRow(form.cboFontSize, row);
    EXPECT_EQ(form.picVoorbeeld.Font.Size, 28);
    EXPECT_EQ(sheet.Font.Size, 28);
    EXPECT_EQ(studio.picTekst.Height, 58);
    EXPECT_TRUE(shows(form.picVoorbeeld, sample));
  }
}

TEST_F(TextDialog, TheStyleButtonsTurnBoldItalicUnderlineAndStrikeOnAndOff) {
  frmTekst& form = openAt(100, 50);
  const auto style = [](const Font& f) {
    return std::vector{f.Bold, f.Italic, f.Underline, f.Strikethru};
  };
  const int buttons[] = {0, 1, 2, 4};
  for (int i = 0; i < 4; ++i) {
    std::vector<bool> should(4);
    for (const bool on : {true, false}) {
      click(form.cmdTekstBUI(buttons[i]));
      should[static_cast<std::size_t>(i)] = on;
      EXPECT_EQ(style(form.picVoorbeeld.Font), should);
      EXPECT_EQ(style(sheet.Font), should);
      EXPECT_EQ(style(studio.picTekst.Font), should);
      LiteralText sample = sampleOf(form);
      sample.print(15, 15, Black, Black);
      EXPECT_TRUE(shows(form.picVoorbeeld, sample.canvas()));
    }
  }
}

TEST_F(TextDialog, TheRegularButtonTakesEveryStyleAway) {
  frmTekst& form = openAt(100, 50);
  for (const int button : {0, 1, 2, 4}) click(form.cmdTekstBUI(button));
  EXPECT_TRUE(sheet.Font.Bold && sheet.Font.Strikethru);
  click(form.cmdTekstBUI(3));
  const Font plain = {.Name = form.picVoorbeeld.Font.Name, .Size = 28};
  EXPECT_EQ(form.picVoorbeeld.Font, plain);
  EXPECT_EQ(sheet.Font, plain);
}

TEST_F(TextDialog, TypingHidesTheMarkAndMakesItAsWideAsTheText) {
  frmTekst& form = openAt(100, 50);
  EXPECT_TRUE(studio.picTekst.Visible);
  form.Shape1.FillColor = Red;
  fill(form.txtTekst, "één");
  EXPECT_FALSE(studio.picTekst.Visible);
  EXPECT_EQ(studio.picTekst.Caption, "één");
  EXPECT_EQ(studio.picTekst.Width, 3 * 28);
  EXPECT_EQ(studio.picTekst.ForeColor, Red);
}

TEST_F(TextDialog, TickingOutlineWhileRaisedIsTickedLeavesBothUnticked) {
  frmTekst& form = openAt(100, 50);
  click(form.chkVerhoogd);
  EXPECT_EQ(form.chkVerhoogd.Value, 1);
  click(form.chkBuiten);
  EXPECT_EQ(form.chkBuiten.Value, 0);
  EXPECT_EQ(form.chkVerhoogd.Value, 0);
}

TEST_F(TextDialog, TickingRaisedWhileOutlineIsTickedLeavesBothUnticked) {
  frmTekst& form = openAt(100, 50);
  click(form.chkBuiten);
  click(form.chkVerhoogd);
  EXPECT_EQ(form.chkBuiten.Value, 0);
  EXPECT_EQ(form.chkVerhoogd.Value, 0);
}

TEST_F(TextDialog, TickingDepthWhileOutlineIsTickedLeavesBothUntickedAndOutlineDisabled) {
  frmTekst& form = openAt(100, 50);
  click(form.chkBuiten);
  click(form.chk3Deffect);
  EXPECT_EQ(form.chk3Deffect.Value, 0);
  EXPECT_EQ(form.chkBuiten.Value, 0);
  EXPECT_FALSE(form.Frame5.Enabled);
  EXPECT_FALSE(form.chkBuiten.Enabled);
  click(form.chk3Deffect);
  EXPECT_EQ(form.chk3Deffect.Value, 1);
  EXPECT_TRUE(form.Frame5.Enabled);
  EXPECT_FALSE(form.chkBuiten.Enabled);
  click(form.chk3Deffect);
  EXPECT_FALSE(form.Frame5.Enabled);
  EXPECT_TRUE(form.chkBuiten.Enabled);
}

TEST_F(TextDialog, AnEffectThatCannotBeChosenIsGrey) {
  frmTekst& form = openAt(100, 50);
  const auto blackPixels = [&] {
    const QImage seen = shown(form.chkBuiten);
    int count = 0;
    for (int y = 0; y < seen.height(); ++y)
      for (int x = seen.height(); x < seen.width(); ++x) count += qGray(seen.pixel(x, y)) < 60;
    return count;
  };
  EXPECT_GT(blackPixels(), 20);
  click(form.chk3Deffect);
  EXPECT_EQ(blackPixels(), 0);
}

TEST_F(TextDialog, TickingDepthLeavesRaisedTickedAndRaisedWins) {
  frmTekst& form = openAt(100, 50);
  click(form.chkVerhoogd);
  const raster::Bitmap raised = *form.picVoorbeeld.bitmap();
  click(form.chk3Deffect);
  EXPECT_EQ(form.chkVerhoogd.Value, 1);
  EXPECT_EQ(form.chk3Deffect.Value, 1);
  slide(form.Slider1, 7);
  EXPECT_TRUE(shows(form.picVoorbeeld, raised));
}

TEST_F(TextDialog, TickingRaisedTakesDepthAway) {
  frmTekst& form = openAt(100, 50);
  click(form.chk3Deffect);
  click(form.chkVerhoogd);
  EXPECT_EQ(form.chk3Deffect.Value, 0);
  EXPECT_EQ(form.chkVerhoogd.Value, 1);
  EXPECT_FALSE(form.Frame5.Enabled);
  EXPECT_TRUE(form.chkBuiten.Enabled);
}

TEST_F(TextDialog, TheColourButtonsFillTheirSwatchAndTellWhatTheyAreFor) {
  frmTekst& form = openAt(100, 50);
  answerColor(0x123456);
  click(form.picPalet);
  EXPECT_EQ(form.Shape1.FillColor, 0x123456);
  EXPECT_EQ(studio.lblModus.Caption, "een KLEUR voor het EFFECT kiezen");
  answerColor(0x654321);
  click(form.picPalet2);
  EXPECT_EQ(form.Shape2.FillColor, 0x654321);
  EXPECT_EQ(studio.lblModus.Caption, "een KLEUR voor de TEKST kiezen");
  ASSERT_EQ(asked().size(), 2u);
  for (const script::Asked& dialog : asked()) EXPECT_EQ(dialog.buttons, 4);  // the flags
}

TEST_F(TextDialog, ACancelledColourDialogLeavesTheSwatches) {
  frmTekst& form = openAt(100, 50);
  cancelColor();
  click(form.picPalet);
  cancelColor();
  click(form.picPalet2);
  EXPECT_EQ(form.Shape1.FillColor, 0xC0C0C0);
  EXPECT_EQ(form.Shape2.FillColor, Black);
}

TEST_F(TextDialog, CancellingTakesTheDialogAndTheMarkAway) {
  for (const bool byCloseBox : {false, true}) {
    frmTekst& form = openAt(100, 50);
    fill(form.txtTekst, "weg");
    studio.picTekst.Visible = true;
    const raster::Bitmap before = canvas();
    byCloseBox ? closeBox(form) : click(form.cmdAnnuleren);
    EXPECT_TRUE(dialogs().empty());
    EXPECT_FALSE(studio.picTekst.Visible);
    EXPECT_EQ(studio.picTekst.Caption, "");
    EXPECT_TRUE(shows(sheet, before));
  }
}

TEST_F(TextDialog, EachClickOpensOneMoreAndLeavingTheStudioTakesThemAll) {
  openAt(100, 50);
  openAt(200, 50);
  openAt(300, 50);
  EXPECT_EQ(dialogs().size(), 3u);
  click(studio.cmdEinde);
  for (const auto& form : FormRegistry::instance().forms())
    EXPECT_EQ(dynamic_cast<frmTekst*>(form.get()), nullptr);
}

TEST_F(TextDialog, FewerThanTwelveFontsEndTheClickInTheErrorReportAndTheProgramLives) {
  host().screenFonts = [] { return std::vector<std::string>{"Caladea", "Carlito"}; };
  studio.picUndo.Picture = LoadPicture();
  frmTekst& form = openAt(100, 50);
  EXPECT_NE(takeErrorReport(), std::nullopt);
  EXPECT_FALSE(ended());
  EXPECT_TRUE(form.shown());
  EXPECT_EQ(form.cboFont.ListIndex, -1);
  EXPECT_FALSE(studio.picTekst.Visible);
  EXPECT_TRUE(studio.picUndo.Picture->empty());
  click(form.cmdAnnuleren);
  click(studio.cmdTekenen);
}
