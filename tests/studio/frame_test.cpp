// The life of the large studio: what holds when it opens, choosing tools, the panels, leaving.
#include <QSlider>
#include <QWidget>
#include <set>

#include "shell/frmStart.h"
#include "studio/frmLineaalH.h"
#include "studio/frmLineaalV.h"
#include "studio/frmTekenen2.h"
#include "studio/modTekenen.h"
#include "support/colors.h"
#include "support/script.h"

using namespace surface;

namespace {

struct Tool {
  CommandButton frmTekenen2::*button;
  bool closes;
  int pointer;
  ImageControl frmTekenen2::*icon;  ///< null: the pointer tells all
  bool undo;
  const char* message;
};

const Tool Tools[] = {
    {&frmTekenen2::cmdTekenen, true, 99, &frmTekenen2::curPen, true,
     "VRIJE HAND : willekeurige lijnen tekenen"},
    {&frmTekenen2::cmdLijn, true, 99, &frmTekenen2::curPen, true,
     "je bent bezig met LIJNEN TREKKEN"},
    {&frmTekenen2::cmdRechthoek, true, 2, nullptr, true, "je tekent nu een LEGE RECHTHOEK"},
    {&frmTekenen2::cmdRechthoekgevuld, true, 2, nullptr, true,
     "je tekent nu een GEVULDE RECHTHOEK"},
    {&frmTekenen2::cmdCirkel, true, 2, nullptr, true,
     "LEGE cirkels maken : stel eerst de diameter in"},
    {&frmTekenen2::cmdOpvullen, false, 99, &frmTekenen2::curVullen, false,
     "je kunt nu vlakken in je tekening OPVULLEN"},
    {&frmTekenen2::cmdDrop, false, 2, nullptr, false, "een kleur vanuit de afbeelding zelf kiezen"},
    {&frmTekenen2::cmdTekst, false, 3, nullptr, true,
     "klik op de plaats WAAR je de tekst op het blad wil"},
    {&frmTekenen2::cmdSpuitbus, true, 99, &frmTekenen2::curBrush, true,
     "figuurtjes tekenen met het SPUITBUSJE"},
    {&frmTekenen2::cmdArt, false, 99, &frmTekenen2::curBrush, true,
     "KUNSTLIJNEN maken - willekeurige kleuren - lijndikte kan aangepast"},
    {&frmTekenen2::cmdCirkelGevuld, true, 2, nullptr, true,
     "GEVULDE cirkels maken : stel eerst de diameter in"},
    {&frmTekenen2::cmdEllips, true, 2, nullptr, true,
     "je tekent nu een     LEGE ELLIPS     (=ovaal, eivorm)"},
    {&frmTekenen2::cmdEllipsGevuld, true, 2, nullptr, true,
     "je tekent nu een GEVULDE ELLIPS (=ovaal, eivorm)"},
};

struct Panel {
  CommandButton frmTekenen2::*button;
  Frame frmTekenen2::*frame;
  const char* message;
};

const Panel Panels[] = {
    {&frmTekenen2::cmdLijnen, &frmTekenen2::fraLijnen,
     "hulpkader : bepaal de instellingen van de lijnen"},
    {&frmTekenen2::cmdBorstels, &frmTekenen2::fraBorstels,
     "hulpkader : kies een soort borstel om met figuren te tekenen"},
    {&frmTekenen2::cmdVulling, &frmTekenen2::fraVulling,
     "hulpkader : kies een soort lijn om een vlak mee op te vullen"},
    {&frmTekenen2::cmdGradient, &frmTekenen2::fraGradient,
     "hulpkader : van kleur 1 naar kleur 2 de achtergrond schakeren"},
    {&frmTekenen2::cmdLineaal, &frmTekenen2::fraLineaal,
     "hulpkader : de beide linealen kan je over het blad slepen"},
    {&frmTekenen2::cmdEffecten, &frmTekenen2::fraEffecten,
     "hulpkader : kies een effect om je tekening te veranderen"},
    {&frmTekenen2::cmdGommen, &frmTekenen2::fraGommen,
     "hulpkader : je kan ook met het gommetje tekenen"},
};

}  // namespace

class TheStudio : public script::Stage {
 protected:
  TheStudio() { studio.Show(); }

  void expectFirstPen() {
    EXPECT_EQ(sheet.ForeColor, Black);
    EXPECT_EQ(studio.Shape1.FillColor, Black);
    EXPECT_EQ(sheet.DrawWidth, 1);
    EXPECT_EQ(sheet.DrawStyle, 0);
    EXPECT_EQ(studio.cboStijl.Text(), "Doorlopend");
    EXPECT_EQ(studio.Slider2.Value, 3);
    EXPECT_EQ(studio.lblStraal.Caption, "3");
    EXPECT_EQ(studio.Line2.BorderWidth, studio.Slider1.Value);
    EXPECT_EQ(studio.Line3.BorderWidth, studio.Slider3.Value);
  }
  /// A red, thick, dotted pen and a large radius.
  void spoilPen() {
    studio.cboStijl.ListIndex = 1;
    sheet.ForeColor = Red;
    studio.Shape1.FillColor = Red;
    sheet.DrawWidth = 7;
    studio.Slider2.Value = 40;
    studio.lblStraal.Caption = "40";
  }
  /// The pencil, and no other tool, leaves a dot at the press.
  bool pencilInHand() {
    press(sheet, 500, 500);
    const bool dot = sheet.Point({500, 500}) != White;
    release(sheet, 500, 500);
    return dot;
  }
  std::set<const Frame*> openPanels() {
    std::set<const Frame*> open;
    for (const Panel& row : Panels)
      if ((studio.*row.frame).Visible) open.insert(&(studio.*row.frame));
    return open;
  }

  frmTekenen2& studio = the<frmTekenen2>();
  PictureBox& sheet = studio.picBlad;
};

TEST_F(TheStudio, OpensWithThePencilABlackThinPenAndAnEmptyWhiteSheet) {
  expectFirstPen();
  EXPECT_EQ(sheet.MousePointer, 99);
  EXPECT_EQ(sheet.MouseIcon, studio.curPen.PictureName);
  EXPECT_EQ(sheet.BackColor, White);
  EXPECT_EQ(studio.lblModus.Caption, "we wensen je veel succes toe met je tekening");
  EXPECT_TRUE(openPanels().empty());
  EXPECT_EQ(ZoomOpen, 0);
  EXPECT_TRUE(pencilInHand());
}

TEST_F(TheStudio, OpensWithTheProgressTimerReadyButStill) {
  EXPECT_FALSE(studio.Timer2.Enabled);
  EXPECT_EQ(studio.Timer2.Interval, 100);
  EXPECT_EQ(studio.ProgressBar1.Max, 50);
  EXPECT_FALSE(studio.ProgressBar1.Visible);
}

TEST_F(TheStudio, OpensWithTheEmptySheetAsItsUndoImage) {
  EXPECT_EQ(studio.picUndo.Picture->width(), 617);
  EXPECT_EQ(studio.picUndo.Picture->height(), 537);
  EXPECT_EQ(toColor(studio.picUndo.Picture->bitmap()->at(300, 300)), White);
}

TEST_F(TheStudio, IsLoadedAnewEachTimeAndTheSheetIsEmptyAgain) {
  drag(sheet, 40, 50, 140, 50);
  ASSERT_EQ(sheet.Point({90, 50}), Black);
  click(studio.cmdRechthoek);
  click(studio.cmdEinde);
  ASSERT_FALSE(isLoaded<frmTekenen2>());
  auto& again = the<frmTekenen2>();
  again.Show();
  EXPECT_EQ(again.picBlad.Point({90, 50}), White);
  EXPECT_EQ(again.lblModus.Caption, "we wensen je veel succes toe met je tekening");
  EXPECT_EQ(again.picBlad.MousePointer, 99);
}

TEST_F(TheStudio, LeavingWithUnsavedWorkAsksNothingAndBringsTheMenu) {
  drag(sheet, 40, 50, 140, 50);
  click(studio.cmdEinde);
  EXPECT_TRUE(asked().empty());
  EXPECT_FALSE(isLoaded<frmTekenen2>());
  EXPECT_TRUE(the<frmStart>().shown());
}

TEST_F(TheStudio, LeavingTakesTheRulersAlong) {
  the<frmLineaalH>().Show();
  the<frmLineaalV>().Show();
  advance(0);  // until the rulers stand there
  click(studio.cmdEinde);
  EXPECT_FALSE(isLoaded<frmTekenen2>());
  EXPECT_FALSE(isLoaded<frmLineaalH>());
  EXPECT_FALSE(isLoaded<frmLineaalV>());
}

TEST_F(TheStudio, TheCloseBoxLeavesAsTheButtonDoes) {
  the<frmLineaalH>().Show();
  closeBox(studio);
  EXPECT_FALSE(isLoaded<frmTekenen2>());
  EXPECT_FALSE(isLoaded<frmLineaalH>());
  EXPECT_TRUE(the<frmStart>().shown());
}

TEST_F(TheStudio, EveryToolTellsWhatItDoesAndShowsItsPointer) {
  for (const Tool& row : Tools) {
    SCOPED_TRACE(row.message);
    sheet.MousePointer = 0;
    sheet.MouseIcon = "";
    studio.cmdUndo.Enabled = !row.undo;
    click(studio.*row.button);
    EXPECT_EQ(studio.lblModus.Caption, row.message);
    EXPECT_EQ(sheet.MousePointer, row.pointer);
    if (row.icon) {
      EXPECT_EQ(sheet.MouseIcon, (studio.*row.icon).PictureName);
    }
    EXPECT_EQ(studio.cmdUndo.Enabled, row.undo);
  }
}

TEST_F(TheStudio, APatternIsAToolThatDrawsInTheSwatchsColour) {
  click(studio.cmdVulling);
  studio.Shape1.FillColor = Red;
  for (int i = 0; i < studio.Option5.count(); ++i) {
    SCOPED_TRACE(i);
    sheet.ForeColor = Black;
    studio.cmdUndo.Enabled = true;
    click(studio.Option5(i));
    EXPECT_EQ(studio.lblModus.Caption, "kies een lijn om vlakken in je tekening mee op te vullen");
    EXPECT_EQ(sheet.MousePointer, 99);
    EXPECT_EQ(sheet.MouseIcon, studio.curDrop.PictureName);
    EXPECT_FALSE(studio.cmdUndo.Enabled);
    EXPECT_EQ(sheet.ForeColor, Red);
    EXPECT_TRUE(studio.fraVulling.Visible);
  }
}

TEST_F(TheStudio, AStampIsAToolWithAThinPen) {
  click(studio.cmdBorstels);
  PictureBox* const stamps[] = {&studio.picBorstel1,  &studio.picBorstel3,  &studio.picBorstel4,
                                &studio.picBorstel5,  &studio.picBorstel6,  &studio.picBorstel7,
                                &studio.picBorstel8,  &studio.picBorstel9,  &studio.picBorstel10,
                                &studio.picBorstel11, &studio.picBorstel12, &studio.picBorstel13};
  for (PictureBox* stamp : stamps) {
    SCOPED_TRACE(stamp->ToolTipText.get());
    sheet.DrawWidth = 9;
    studio.cmdUndo.Enabled = false;
    studio.lblModus.Caption = "";
    click(*stamp);
    EXPECT_EQ(studio.lblModus.Caption, "een punt of lijn tekenen met figuurtjes");
    EXPECT_EQ(sheet.MouseIcon, studio.curPen.PictureName);
    EXPECT_TRUE(studio.cmdUndo.Enabled);
    EXPECT_EQ(sheet.DrawWidth, 1);
    EXPECT_TRUE(studio.fraBorstels.Visible);
  }
}

TEST_F(TheStudio, NineToolsCloseThePanelAndPutThePenBack) {
  for (const Tool& row : Tools) {
    SCOPED_TRACE(row.message);
    click(studio.cmdLijnen);
    spoilPen();
    click(studio.*row.button);
    EXPECT_EQ(studio.fraLijnen.Visible, !row.closes);
    if (row.closes) {
      expectFirstPen();
    } else {
      EXPECT_EQ(sheet.ForeColor, Red);
      EXPECT_EQ(sheet.DrawWidth, 7);
      EXPECT_EQ(sheet.DrawStyle, 2);
      EXPECT_EQ(studio.Slider2.Value, 40);
    }
  }
}

TEST_F(TheStudio, FillingLeavesTheLinesPanelOpenAndTheRectangleClosesIt) {
  click(studio.cmdLijnen);
  click(studio.cmdOpvullen);
  EXPECT_TRUE(studio.fraLijnen.Visible);
  click(studio.cmdRechthoek);
  EXPECT_FALSE(studio.fraLijnen.Visible);
}

TEST_F(TheStudio, EveryPanelOpensWithItsMessageAndAlone) {
  for (const Panel& former : Panels)
    for (const Panel& row : Panels) {
      SCOPED_TRACE(row.message);
      click(studio.*former.button);
      click(studio.*row.button);
      EXPECT_EQ(openPanels(), std::set<const Frame*>{&(studio.*row.frame)});
      EXPECT_EQ(studio.lblModus.Caption, row.message);
      EXPECT_TRUE(script::widgetOf(studio.*row.frame)->isVisible());
    }
}

TEST_F(TheStudio, OpeningAPanelPutsThePencilInHandAndThePenBack) {
  for (const Panel& row : Panels) {
    SCOPED_TRACE(row.message);
    click(studio.cmdRechthoek);
    spoilPen();
    sheet.Cls();
    click(studio.*row.button);
    EXPECT_EQ(studio.Shape1.FillColor, Black);
    EXPECT_EQ(studio.Slider2.Value, 3);
    EXPECT_EQ(sheet.DrawStyle, 0);
    // The eraser's panel goes on to set the eraser's own pen.
    if (row.frame != &frmTekenen2::fraGommen) {
      EXPECT_EQ(sheet.ForeColor, Black);
      EXPECT_EQ(sheet.DrawWidth, 1);
      EXPECT_TRUE(pencilInHand());
    }
  }
}

TEST_F(TheStudio, TheEraserClosesAPanelToo) {
  click(studio.cmdLijnen);
  studio.Slider2.Value = 40;
  click(studio.cmdGom);
  EXPECT_TRUE(openPanels().empty());
  EXPECT_EQ(studio.Slider2.Value, 3);
}

TEST_F(TheStudio, PreparingAnEffectClosesThePanelAndPutsThePenBack) {
  click(studio.cmdEffecten);
  spoilPen();
  studio.PrepareEffect();
  EXPECT_TRUE(openPanels().empty());
  expectFirstPen();
  EXPECT_FALSE(studio.cmdUndo.Enabled);
}

TEST_F(TheStudio, AColourPickedBeforeAToolIsGoneAndOnePickedAfterwardsStays) {
  const auto pickRed = [&] {
    press(studio.picPalet, 1, 36);
    release(studio.picPalet, 1, 36);
  };
  pickRed();
  const Color picked = studio.Shape1.FillColor;
  ASSERT_NE(picked, Black);
  click(studio.cmdLijn);
  drag(sheet, 40, 50, 140, 50);
  EXPECT_EQ(sheet.Point({90, 50}), Black);
  pickRed();
  drag(sheet, 40, 60, 140, 60);
  EXPECT_EQ(sheet.Point({90, 60}), picked);
  drag(sheet, 40, 70, 140, 70);
  EXPECT_EQ(sheet.Point({90, 70}), picked);
  click(studio.cmdTekenen);
  EXPECT_EQ(sheet.ForeColor, Black);
}

TEST_F(TheStudio, ATextPanelOrFillTakesThePenAlongAsItStands) {
  spoilPen();
  for (CommandButton* tool :
       {&studio.cmdOpvullen, &studio.cmdDrop, &studio.cmdTekst, &studio.cmdArt})
    click(*tool);
  EXPECT_EQ(sheet.ForeColor, Red);
  EXPECT_EQ(sheet.DrawWidth, 7);
}

TEST_F(TheStudio, TheRadiusSliderTellsItsValue) {
  auto* knob = qobject_cast<QSlider*>(script::widgetOf(studio.Slider2));
  ASSERT_NE(knob, nullptr);
  knob->setValue(77);
  EXPECT_EQ(studio.lblModus.Caption, "hiermee verandert de DIAMETER (doorsnede) van de CIRKEL");
  EXPECT_EQ(studio.lblStraal.Caption, "77");
}

// A release beside the sheet, from where the stamps' counter and the first random blue left it.
class TheBareForm : public TheStudio {
 protected:
  static constexpr int X = 8, Y = 530;  // pixels, beneath the tools
  /// The diamond stamp leaves its counter behind at 6.
  void stampDiamond() {
    click(studio.cmdBorstels);
    click(studio.picBorstel12);
    click(sheet);
  }
  void letGo() {
    pressOnForm(studio, X, Y);
    releaseOnForm(studio, X, Y);
  }
  bool marked() {
    const auto pixels = studio.bitmap();
    for (int y = 0; y < pixels->height(); ++y)
      for (int x = 0; x < pixels->width(); ++x)
        if (toColor(pixels->at(x, y)) == 0x404040) return true;
    return false;
  }
};

TEST_F(TheBareForm, TakesALineInDarkGreyBehindTheControlsOnce) {
  stampDiamond();
  click(studio.cmdLijn);
  letGo();
  EXPECT_TRUE(marked());
  studio.Cls();
  letGo();
  EXPECT_FALSE(marked()) << "the stamp's counter must be 0 after the first release";
  // Another stamp sets the counter; the blue comes back only with the next load.
  stampDiamond();
  click(studio.cmdLijn);
  letGo();
  EXPECT_FALSE(marked());
}

TEST_F(TheBareForm, AReleaseThatDrawsNothingUsesNothingUp) {
  click(studio.cmdLijn);
  letGo();
  ASSERT_FALSE(marked());
  stampDiamond();
  click(studio.cmdLijn);
  letGo();
  EXPECT_TRUE(marked());
}

TEST_F(TheBareForm, TakesABoxAndAFilledBoxToo) {
  for (CommandButton* tool : {&studio.cmdRechthoek, &studio.cmdRechthoekgevuld}) {
    // The load colours give the other corner anew.
    studio.Form_Load();
    studio.Cls();
    stampDiamond();
    click(*tool);
    letGo();
    EXPECT_EQ(studio.Point({X * 15, Y * 15}), 0x404040);
    const bool filled = tool == &studio.cmdRechthoekgevuld;
    EXPECT_EQ(studio.Point({4 * 15, 200 * 15}) == 0x404040, filled);
  }
}

TEST_F(TheBareForm, TakesNothingWithoutAStampBefore) {
  click(studio.cmdLijn);
  letGo();
  EXPECT_FALSE(marked());
}

TEST_F(TheBareForm, TakesNothingFromAnyOtherTool) {
  stampDiamond();
  letGo();
  for (CommandButton* tool : {&studio.cmdTekenen, &studio.cmdCirkel, &studio.cmdEllips}) {
    click(*tool);
    letGo();
  }
  EXPECT_FALSE(marked());
}

TEST_F(TheBareForm, AReleaseOnAControlIsNotItsOwn) {
  stampDiamond();
  click(studio.cmdLijn);
  click(studio.lblModus);
  click(studio.cmdTekenen, 2);
  click(studio.Slider2, 4);
  drag(sheet, 40, 50, 140, 50);
  studio.Cls();
  letGo();
  EXPECT_TRUE(marked()) << "a release elsewhere has used the values up";
}
