// The frame of the large studio as a child finds it: every button and surface at its place.
#include <QWidget>

#include "studio/frmTekenen2.h"
#include "support/script.h"

using namespace surface;

namespace {

struct Button {
  CommandButton frmTekenen2::*button;
  float left, top;
  const char* tip;
};

const Button Buttons[] = {
    {&frmTekenen2::cmdSpiegelV, 1200, 1320, "VERTICAAL spiegelbeeld"},
    {&frmTekenen2::cmdSpiegelH, 1680, 1320, "HORIZONTAAL spiegelbeeld"},
    {&frmTekenen2::cmdFormaat, 2160, 1320, "het formaat van het tekenblad wijzigen"},
    {&frmTekenen2::cmdPalet, 240, 1800, "de kleur van de achtergrond kiezen uit kleurenpalet"},
    {&frmTekenen2::cmdDrop, 720, 1800,
     "het kleurenpipetje om kleuren uit afbeeldingen te gebruiken"},
    {&frmTekenen2::cmdOpvullen, 1200, 1800, "opvullen van een gesloten oppervlak"},
    {&frmTekenen2::cmdSpuitbus, 1680, 1800, "een spuitbus om mee te tekenen"},
    {&frmTekenen2::cmdGom, 2160, 1800, "gommetje om foutjes te verbeteren"},
    {&frmTekenen2::cmdTekenen, 240, 2280, "je tekenpotlood"},
    {&frmTekenen2::cmdArt, 720, 2280, "kunstlijnen trekken"},
    {&frmTekenen2::cmdLijn, 1200, 2280, "een rechte lijn trekken"},
    {&frmTekenen2::cmdClear, 1680, 2280, "het hele blad wissen"},
    {&frmTekenen2::cmdCirkel, 240, 2760, "een gewone cirkel"},
    {&frmTekenen2::cmdCirkelGevuld, 720, 2760, "een GEVULDE cirkel"},
    {&frmTekenen2::cmdEllips, 240, 3240, "een gewone ellips"},
    {&frmTekenen2::cmdEllipsGevuld, 720, 3240, "een GEVULDE ellips"},
    {&frmTekenen2::cmdRechthoek, 1200, 3240, "een gewone rechthoek tekenen"},
    {&frmTekenen2::cmdRechthoekgevuld, 1680, 3240, "een GEVULDE rechthoek"},
    {&frmTekenen2::cmdTekst, 2160, 3240, "TEKST invoeren"},
    {&frmTekenen2::cmdKnippen, 240, 3720, "Knippen"},
    {&frmTekenen2::cmdCopy, 720, 3720, "Kopiëren"},
    {&frmTekenen2::cmdPlakken, 1200, 3720, "Plakken"},
    {&frmTekenen2::cmdUndo, 1680, 3720, "de LAATSTE lijn of vorm ONGEDAAN maken"},
    {&frmTekenen2::cmdRedo, 2160, 3720, "ONGEDAAN maken tenietdoen"},
    {&frmTekenen2::cmdNieuw, 240, 4200, "een NIEUWE tekening"},
    {&frmTekenen2::cmdOpenbestand, 720, 4200, "een tekening uit een bestand ophalen"},
    {&frmTekenen2::cmdSaveAs, 1200, 4200, "een tekening OPSLAAN ALS ..."},
    {&frmTekenen2::cmdPrint, 1680, 4200, "je tekening AFDRUKKEN"},
    {&frmTekenen2::Command1, 2160, 4200, "ONGEDAAN maken tenietdoen"},
    {&frmTekenen2::cmdLijnen, 240, 4680, "het menu LIJNEN"},
    {&frmTekenen2::cmdGommen, 720, 4680, "het menu GOMMEN"},
    {&frmTekenen2::cmdLineaal, 1200, 4680, "het menu LINEALEN"},
    {&frmTekenen2::cmdVulling, 1680, 4680, "het menu OPVULLEN"},
    {&frmTekenen2::cmdBorstels, 2160, 4680, "het menu BORSTELSTREKEN"},
    {&frmTekenen2::cmdGradient, 2160, 5160, "overgang achtergrond van kleur 1 naar kleur 2"},
    {&frmTekenen2::cmdEffecten, 2160, 5640, "het menu KLEUREFFECTEN"},
    {&frmTekenen2::cmdZoom, 2160, 6120, "het menu INZOOMEN"},
    {&frmTekenen2::cmdRoteren, 2160, 6600, "het menu ROTEREN"},
};

struct Surface {
  const char* name;
  PictureBox& box;
  float left, top, width, height;
  ScaleUnit scale;
  bool autoRedraw, shown;
};

}  // namespace

class StudioFrame : public script::Stage {
 protected:
  StudioFrame() { studio.Show(); }
  static void expectPlace(const Control& control, float left, float top, float width,
                          float height) {
    EXPECT_EQ(control.Left, left);
    EXPECT_EQ(control.Top, top);
    EXPECT_EQ(control.Width, width);
    EXPECT_EQ(control.Height, height);
  }
  frmTekenen2& studio = the<frmTekenen2>();
};

TEST_F(StudioFrame, IsAMaximisedWindow) {
  EXPECT_EQ(studio.Caption, "KRAS PRET - TEKENEN GROOT");
  EXPECT_TRUE(script::widgetOf(studio.picBlad)->window()->isMaximized());
}

TEST_F(StudioFrame, EveryButtonIsSmallAtItsPlaceWithItsTooltipAndAPicture) {
  for (const Button& row : Buttons) {
    SCOPED_TRACE(row.tip);
    CommandButton& button = studio.*row.button;
    expectPlace(button, row.left, row.top, 375, 375);
    EXPECT_EQ(button.ToolTipText, row.tip);
    EXPECT_TRUE(script::widgetOf(button)->isVisible());
    const QImage with = shown(button);
    button.Picture = "";
    EXPECT_NE(shown(button), with) << "there is no picture on it";
  }
}

TEST_F(StudioFrame, TheButtonToLeaveIsWideAndGreen) {
  expectPlace(studio.cmdEinde, 240, 1320, 855, 375);
  EXPECT_EQ(studio.cmdEinde.Caption, "Einde");
  EXPECT_EQ(studio.cmdEinde.BackColor, 0x80FF80);
  EXPECT_EQ(studio.cmdEinde.ToolTipText, "om af te SLUITEN");
}

TEST_F(StudioFrame, EverySurfaceHasItsSizeAndScale) {
  const Surface surfaces[] = {
      {"picBlad", studio.picBlad, 2640, 120, 9255, 8055, ScalePixels, true, true},
      {"picUndo", studio.picUndo, 2640, 120, 9255, 8055, ScaleTwips, false, false},
      {"picRedo", studio.picRedo, 2640, 120, 9255, 8055, ScaleTwips, false, false},
      {"Tempory", studio.Tempory, 0, 0, 9255, 8055, ScalePixels, true, false},
      {"picTemp", studio.picTemp, 2640, 120, 9255, 8055, ScalePixels, true, false},
      {"TempZoom", studio.TempZoom, 360, 7440, 615, 615, ScalePixels, true, false},
      {"picNieuw", studio.picNieuw, 1080, 8280, 255, 255, ScalePixels, false, false},
      {"picRoteren", studio.picRoteren, 1440, 8280, 255, 255, ScalePixels, false, false},
      {"UndoPic(0)", studio.UndoPic(0), 1800, 8280, 255, 255, ScalePixels, true, false},
      {"UndoPic(1)", studio.UndoPic(1), 2160, 8280, 255, 255, ScalePixels, true, false},
      {"UndoPic(2)", studio.UndoPic(2), 2520, 8280, 255, 255, ScalePixels, true, false},
      {"UndoPic(3)", studio.UndoPic(3), 2880, 8280, 255, 255, ScalePixels, true, false},
      {"UndoPic(4)", studio.UndoPic(4), 3240, 8280, 255, 255, ScalePixels, true, false},
  };
  for (const Surface& row : surfaces) {
    SCOPED_TRACE(row.name);
    expectPlace(row.box, row.left, row.top, row.width, row.height);
    EXPECT_EQ(row.box.ScaleMode(), row.scale);
    EXPECT_EQ(row.box.AutoRedraw, row.autoRedraw);
    EXPECT_EQ(row.box.Visible, row.shown);
    // Paper; only the magnifier shows its block on a button's grey.
    EXPECT_EQ(row.box.BackColor, &row.box == &studio.TempZoom ? ButtonFace : White);
  }
}

TEST_F(StudioFrame, TheWorkImageOfRotationLiesInTheOneOfRedo) {
  EXPECT_EQ(&studio.Tempory.Control::container(), static_cast<Container*>(&studio.picRedo));
}

TEST_F(StudioFrame, TheSheetHas617By537PixelsAndWritesInVerdana) {
  EXPECT_EQ(studio.picBlad.ScaleWidth(), 617);
  EXPECT_EQ(studio.picBlad.ScaleHeight(), 537);
  EXPECT_EQ(studio.picBlad.FillColor, White);
  EXPECT_EQ(studio.picBlad.Font.Name, "Verdana");
  EXPECT_EQ(shown(studio.picBlad).size(), QSize(617, 537));
}

TEST_F(StudioFrame, TheStatusLineTheReadOutAndTheRadiusStandAtTheirPlaces) {
  expectPlace(studio.lblModus, 240, 7320, 2295, 855);
  EXPECT_EQ(studio.lblModus.BackColor, 0x404040);
  EXPECT_EQ(studio.lblModus.ForeColor, White);
  EXPECT_EQ(studio.lblModus.Font.Name, "Arial");
  EXPECT_TRUE(studio.lblModus.Font.Bold);
  EXPECT_EQ(studio.lblModus.ToolTipText, "je MEDEDELINGENBORDJE");
  EXPECT_EQ(studio.Label8.Caption, "coördinaten");
  EXPECT_EQ(studio.Label8.Left, 120);
  EXPECT_EQ(studio.Label8.Top, 7080);
  expectPlace(studio.lblCoordinaten, 1320, 7080, 1215, 255);
  EXPECT_EQ(studio.lblCoordinaten.BackColor, 0xE0E0E0);
  EXPECT_EQ(studio.lblCoordinaten.ToolTipText, "de coördinaten van je potlood");
  expectPlace(studio.Label2, 240, 5160, 1815, 1935);
  EXPECT_EQ(studio.Label2.BackColor, 0xC0FFC0);
  EXPECT_EQ(studio.Slider2.Left, 1200);
  EXPECT_EQ(studio.Slider2.Top, 2760);
  EXPECT_EQ(studio.Slider2.Width, 975);
  EXPECT_EQ(studio.Slider2.Min, 0);
  EXPECT_EQ(studio.Slider2.Max, 150);
  EXPECT_EQ(studio.Slider2.ToolTipText, "INSTELLEN van de diameter van de cirkel");
  EXPECT_EQ(studio.lblStraal.Left, 2160);
  EXPECT_EQ(studio.lblStraal.Top, 2760);
  EXPECT_EQ(studio.lblStraal.ToolTipText, "diameter van de cirkel");
}

TEST_F(StudioFrame, TheSwatchShowsTheDrawingColour) {
  expectPlace(studio.Shape1, 2160, 120, 375, 1095);
  studio.Shape1.FillColor = 0x0000FF;
  EXPECT_EQ(shown(studio).pixelColor(2160 / 15 + 12, 120 / 15 + 36), QColor(255, 0, 0));
}

TEST_F(StudioFrame, ThePaletteStandsAtTheUpperLeft) {
  EXPECT_EQ(studio.picPalet.Left, 240);
  EXPECT_EQ(studio.picPalet.Top, 120);
}

TEST_F(StudioFrame, TheSevenPanelsShareOneSpotAndAreHidden) {
  const struct {
    Frame& panel;
    const char* caption;
    float height;
  } panels[] = {
      {studio.fraLijnen, "LIJNEN", 1455},          {studio.fraBorstels, "BORSTELS", 1695},
      {studio.fraVulling, "   VULLINGEN  ", 1935}, {studio.fraGradient, "KLEUROVERGANG", 1695},
      {studio.fraLineaal, "LINEAAL", 1695},        {studio.fraEffecten, "EFFECTEN", 1335},
      {studio.fraGommen, "GOMMEN", 1455}};
  for (const auto& row : panels) {
    SCOPED_TRACE(row.caption);
    expectPlace(row.panel, 240, 5160, 1815, row.height);
    EXPECT_EQ(row.panel.Caption, row.caption);
    EXPECT_FALSE(row.panel.Visible);
  }
}

TEST_F(StudioFrame, ThreeWindowlessControlsLieHiddenInTheSheet) {
  // In the sheet's own pixels.
  expectPlace(studio.ShpOval, 0, 0, 25, 17);
  EXPECT_TRUE(studio.ShpOval.Oval);
  EXPECT_EQ(studio.ShpOval.FillColor, White);
  EXPECT_EQ(studio.Line1.pixelEnds(), (surface::LineEnds{48, 24, 96, 48}));
  expectPlace(studio.Shape2, 56, 80, 57, 41);
  for (const Control* control :
       {static_cast<Control*>(&studio.ShpOval), static_cast<Control*>(&studio.Line1),
        static_cast<Control*>(&studio.Shape2)}) {
    EXPECT_FALSE(control->Visible);
    EXPECT_EQ(&control->container(), static_cast<Container*>(&studio.picBlad));
  }
}

TEST_F(StudioFrame, TheCursorsAreHiddenPictures) {
  for (const ImageControl* cursor : {&studio.curPen, &studio.curBrush, &studio.curVullen,
                                     &studio.curGom, &studio.curDrop, &studio.curVizier}) {
    SCOPED_TRACE(cursor->PictureName);
    EXPECT_FALSE(cursor->Visible);
    studio.picBlad.MousePointer = PointerCustom;
    studio.picBlad.MouseIcon = cursor->PictureName;
    EXPECT_EQ(script::widgetOf(studio.picBlad)->cursor().shape(), Qt::BitmapCursor);
  }
}
