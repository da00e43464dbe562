// The small studio's screen: where its controls stand, what they say and which one is in hand.
#include <QFontMetrics>
#include <QWidget>

#include "small/stage.h"

using namespace surface;

class SmallScreen : public SmallStudioStage {};

TEST_F(SmallScreen, TheButtonsStandOnAGridOfThreeColumnsAndFourRows) {
  const Control* const grid[4][3] = {{&studio.cmdTekenen, &studio.cmdLijn, &studio.cmdRechthoek},
                                     {&studio.cmdEllips, &studio.cmdOpvullen, &studio.cmdSpuitbus},
                                     {&studio.cmdUndo, &studio.cmdClear, &studio.cmdGom},
                                     {&studio.cmdOpenbestand, &studio.cmdSaveAs, &studio.cmdPrint}};
  for (int row = 0; row < 4; ++row)
    for (int column = 0; column < 3; ++column) {
      const Control& button = *grid[row][column];
      EXPECT_EQ(button.Left, 120 + 840 * column);
      EXPECT_EQ(button.Top, 120 + 840 * row);
      EXPECT_EQ(button.Width, 735);
      EXPECT_EQ(button.Height, 735);
      EXPECT_FALSE(button.ToolTipText->empty());
    }
  EXPECT_EQ(studio.cmdKleurplaat.Left, studio.cmdOpenbestand.Left.get());
  EXPECT_EQ(studio.cmdKleurplaat.Top, studio.cmdOpenbestand.Top.get());
}

TEST_F(SmallScreen, ThicknessMessagesHelpAndColourStandBelowTheButtons) {
  struct Place {
    const Control& control;
    float left, top;
  };
  const Place places[] = {{studio.Slider1, 120, 3480}, {studio.lblModus, 120, 3960},
                          {studio.cmdHelp, 120, 4560}, {studio.cmdEinde, 1440, 4560},
                          {studio.Shape1, 120, 5160},  {sheet, 2640, 120}};
  for (const auto& [control, left, top] : places) {
    EXPECT_EQ(control.Left, left) << control.ToolTipText.get();
    EXPECT_EQ(control.Top, top) << control.ToolTipText.get();
  }
  EXPECT_EQ(studio.Line2.Y1, studio.Line2.Y2.get());
  EXPECT_EQ(studio.Line2.Y1, studio.Slider1.Top + studio.Slider1.Height / 2)
      << "the line beside it";
  const float thickest = 15 * static_cast<float>(studio.Slider1.Max);
  EXPECT_LE(studio.Line2.Y1 + thickest / 2, studio.lblModus.Top);
}

TEST_F(SmallScreen, TheToolInHandLooksPressedAndNoOther) {
  CommandButton* const tools[] = {&studio.cmdTekenen,  &studio.cmdLijn,     &studio.cmdRechthoek,
                                  &studio.cmdOpvullen, &studio.cmdSpuitbus, &studio.cmdEllips,
                                  &studio.cmdGom};
  EXPECT_TRUE(studio.cmdTekenen.Pressed);
  for (CommandButton* tool : tools) {
    click(*tool);
    for (CommandButton* other : tools) EXPECT_EQ(other->Pressed, other == tool);
  }
  click(studio.cmdClear);
  EXPECT_TRUE(studio.cmdTekenen.Pressed);
  EXPECT_FALSE(studio.cmdGom.Pressed);
}

TEST_F(SmallScreen, NoKeyLeavesAFreshStudio) {
  type(" ");
  EXPECT_TRUE(studio.shown());
  EXPECT_EQ(studio.lblModus.Caption, "WILLEKEURIGE LIJNEN tekenen") << "the pencil has the focus";
}

TEST_F(SmallScreen, EveryButtonSaysWhatItIsFor) {
  const std::pair<Control*, const char*> tips[] = {
      {&studio.cmdTekenen, "je tekenpotlood"},
      {&studio.cmdLijn, "een rechte lijn trekken"},
      {&studio.cmdRechthoek, "een gewone rechthoek tekenen"},
      {&studio.cmdEllips, "een gewone ellips"},
      {&studio.cmdOpvullen, "opvullen van een gesloten oppervlak"},
      {&studio.cmdSpuitbus, "een spuitbus om mee te tekenen"},
      {&studio.cmdUndo, "de LAATSTE lijn of vorm ONGEDAAN maken"},
      {&studio.cmdClear, "het hele blad wissen"},
      {&studio.cmdGom, "gommetje om foutjes te verbeteren"},
      {&studio.cmdOpenbestand, "een tekening uit een bestand ophalen"},
      {&studio.cmdKleurplaat, "een andere KLEURPLAAT uitkiezen"},
      {&studio.cmdSaveAs, "een tekening OPSLAAN ALS ..."},
      {&studio.cmdPrint, "je tekening AFDRUKKEN"},
      {&studio.Slider1, "de dikte van de lijn veranderen"},
      {&studio.lblModus, "je MEDEDELINGENBORDJE"},
      {&studio.picPalet, "het KLEURENPALET"},
      {&studio.cmdHelp, "uitleg bij alle knoppen"},
      {&studio.cmdEinde, "om af te SLUITEN"}};
  for (const auto& [control, tip] : tips) EXPECT_EQ(control->ToolTipText, tip);
  EXPECT_EQ(studio.cmdHelp.Caption, "Help");
  EXPECT_EQ(studio.cmdEinde.Caption, "Einde");
}

TEST_F(SmallScreen, TheMessageBoardSaysWhatItIs) {
  click(studio.lblModus);
  EXPECT_EQ(studio.lblModus.Caption, "het MEDEDELINGENBORD");
}

TEST_F(SmallScreen, EveryVisibleControlLiesOnTheScreenAndOverlapsNoOther) {
  const auto& controls = studio.controls();
  for (std::size_t i = 0; i < controls.size(); ++i) {
    if (!controls[i]->Visible) continue;
    const raster::Rect place =
        controls[i]->windowless() ? controls[i]->paintedPixels() : controls[i]->pixelPlace();
    EXPECT_EQ(intersect(place, {0, 0, 800, 550}), place) << controls[i]->ToolTipText.get();
    for (std::size_t j = i + 1; j < controls.size(); ++j) {
      if (!controls[j]->Visible) continue;
      const raster::Rect other =
          controls[j]->windowless() ? controls[j]->paintedPixels() : controls[j]->pixelPlace();
      EXPECT_TRUE(intersect(place, other).empty())
          << controls[i]->ToolTipText.get() << " and " << controls[j]->ToolTipText.get();
    }
  }
}

TEST_F(SmallScreen, EveryMessageFitsTheBoard) {
  const QFontMetrics metrics = script::widgetOf(studio.lblModus)->fontMetrics();
  const raster::Rect board = studio.lblModus.pixelPlace();
  for (const char* text :
       {"WILLEKEURIGE LIJNEN tekenen", "RECHTE LIJNEN tekenen", "een VIERKANT of RECHTHOEK tekenen",
        "VLAKKEN OPVULLEN met kleuren", "het SPUITBUSJE gebruiken", "een CIRKEL of ELLIPS tekenen",
        "de DIKTE van de LIJNEN veranderen", "een andere KLEUR kiezen",
        "ONGEDAAN MAKEN van de LAATSTE bewerking", "ALLES WISSEN voor een NIEUWE TEKENING",
        "je kunt nu KLEUREN maar OOK TEKENEN", "je TEKENING OPSLAAN (bewaren)",
        "je TEKENING AFDRUKKEN", "een KLEURPLAAT uitkiezen", "een andere TEKENING OPENEN"}) {
    const QRect needed =
        metrics.boundingRect(0, 0, board.width() - 4, 1000, Qt::TextWordWrap, text);
    EXPECT_LE(needed.height(), board.height()) << text;
  }
}
