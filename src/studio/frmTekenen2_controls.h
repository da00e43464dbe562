// The controls of the large studio: its table of places, pictures and tooltips, in stacking order.
#pragma once

#include "surface/surface.h"

class frmTekenen2_controls : public surface::Form {
 protected:
  static constexpr Color Sand = 0xE0E0E0;       // the window
  static constexpr Color PanelBack = 0xC0FFC0;  // where the panels fold out
  static constexpr Color PanelButton = 0xFFE6CF;

  frmTekenen2_controls();

  static CommandButton::Design tool(float left, float top, const char* picture, const char* tip,
                                    const char* key = "");
  static CommandButton::Design panelTool(float left, float top, const char* picture,
                                         const char* tip);
  static CommandButton::Design unoffered(float left, const char* tip);
  static Frame::Design panel(float height, const char* caption);
  static PictureBox::Design sheetSized(surface::ScaleUnit scale, bool autoRedraw);
  static PictureBox::Design small(float left, float top, float size, bool autoRedraw,
                                  Color back = surface::White);
  static PictureBox::Design stamp(float left, float top, const char* picture, const char* tip);
  static OptionButton::Design hatch(float top, const char* caption);
  static OptionButton::Design choice(float top, const char* caption, bool value = false);
  static ImageControl::Design cursor(const char* name);
  static Label::Design text(float left, float top, float width, const char* caption,
                            Color back = Sand);

 public:
  // Colour and sheet operations
  PictureBox picPalet{*this,
                      {.Left = 240,
                       .Top = 120,
                       .Width = 1815,
                       .Height = 1095,
                       .Picture = "regenboog",
                       .ToolTipText = "het KLEURENPALET",
                       .BackColor = Sand,
                       .MousePointer = surface::PointerCross}};
  ShapeControl Shape1{*this,
                      {.Left = 2160, .Top = 120, .Width = 375, .Height = 1095, .Filled = true}};
  CommandButton cmdEinde{*this,
                         {.Left = 240,
                          .Top = 1320,
                          .Width = 855,
                          .Height = 375,
                          .Caption = "Einde",
                          .ToolTipText = "om af te SLUITEN",
                          .BackColor = 0x80FF80,
                          .Font = {"Arial", 9.75f, true}}};
  CommandButton cmdSpiegelV{*this, tool(1200, 1320, "spiegelv", "VERTICAAL spiegelbeeld")};
  CommandButton cmdSpiegelH{*this, tool(1680, 1320, "spiegelh", "HORIZONTAAL spiegelbeeld")};
  CommandButton cmdFormaat{*this,
                           tool(2160, 1320, "formaat", "het formaat van het tekenblad wijzigen")};
  CommandButton cmdPalet{
      *this, tool(240, 1800, "palet", "de kleur van de achtergrond kiezen uit kleurenpalet")};

  // Tools
  CommandButton cmdDrop{*this, tool(720, 1800, "drop",
                                    "het kleurenpipetje om kleuren uit afbeeldingen te gebruiken")};
  CommandButton cmdOpvullen{*this,
                            tool(1200, 1800, "opvullen", "opvullen van een gesloten oppervlak")};
  CommandButton cmdSpuitbus{*this, tool(1680, 1800, "spuitbus", "een spuitbus om mee te tekenen")};
  CommandButton cmdGom{*this, tool(2160, 1800, "gom", "gommetje om foutjes te verbeteren")};
  CommandButton cmdTekenen{*this, tool(240, 2280, "tekenen", "je tekenpotlood")};
  CommandButton cmdArt{*this, tool(720, 2280, "art", "kunstlijnen trekken")};
  CommandButton cmdLijn{*this, tool(1200, 2280, "lijn", "een rechte lijn trekken")};
  CommandButton cmdClear{*this, tool(1680, 2280, "clear", "het hele blad wissen")};
  CommandButton cmdCirkel{*this, tool(240, 2760, "cirkel", "een gewone cirkel")};
  CommandButton cmdCirkelGevuld{*this, tool(720, 2760, "cirkelgevuld", "een GEVULDE cirkel")};
  Slider Slider2{*this,
                 {.Left = 1200,
                  .Top = 2760,
                  .Width = 975,
                  .Height = 375,
                  .Min = 0,
                  .Max = 150,
                  .ToolTipText = "INSTELLEN van de diameter van de cirkel",
                  .BackColor = Sand}};
  Label lblStraal{*this,
                  {.Left = 2160,
                   .Top = 2760,
                   .Width = 375,
                   .Height = 375,
                   .ToolTipText = "diameter van de cirkel",
                   .BackColor = Sand,
                   .Font = {"Arial", 9.75f, true},
                   .Centred = true}};
  CommandButton cmdEllips{*this, tool(240, 3240, "ellips", "een gewone ellips")};
  CommandButton cmdEllipsGevuld{*this, tool(720, 3240, "ellipsgevuld", "een GEVULDE ellips")};
  CommandButton cmdRechthoek{*this, tool(1200, 3240, "rechthoek", "een gewone rechthoek tekenen")};
  CommandButton cmdRechthoekgevuld{*this,
                                   tool(1680, 3240, "rechthoekgevuld", "een GEVULDE rechthoek")};
  CommandButton cmdTekst{*this, tool(2160, 3240, "tekst", "TEKST invoeren")};

  // Clipboard, undo, files
  CommandButton cmdKnippen{*this, tool(240, 3720, "knippen", "Knippen", "Ctrl+X")};
  CommandButton cmdCopy{*this, tool(720, 3720, "copy", "Kopiëren", "Ctrl+C")};
  CommandButton cmdPlakken{*this, tool(1200, 3720, "plakken", "Plakken", "Ctrl+V")};
  CommandButton cmdUndo{
      *this, tool(1680, 3720, "undo", "de LAATSTE lijn of vorm ONGEDAAN maken", "Ctrl+Z")};
  CommandButton cmdRedo{*this, tool(2160, 3720, "redo", "ONGEDAAN maken tenietdoen", "Ctrl+Y")};
  CommandButton cmdNieuw{*this, tool(240, 4200, "nieuw", "een NIEUWE tekening", "Ctrl+N")};
  CommandButton cmdOpenbestand{
      *this, tool(720, 4200, "openbestand", "een tekening uit een bestand ophalen", "Ctrl+O")};
  CommandButton cmdSaveAs{*this,
                          tool(1200, 4200, "saveas", "een tekening OPSLAAN ALS ...", "Ctrl+S")};
  CommandButton cmdPrint{*this, tool(1680, 4200, "print", "je tekening AFDRUKKEN", "Ctrl+P")};
  CommandButton Command1{*this, tool(2160, 4200, "help", "ONGEDAAN maken tenietdoen", "F1")};

  // Buttons of the panels
  CommandButton cmdLijnen{*this, panelTool(240, 4680, "lijnen", "het menu LIJNEN")};
  CommandButton cmdGommen{*this, panelTool(720, 4680, "gommen", "het menu GOMMEN")};
  CommandButton cmdLineaal{*this, panelTool(1200, 4680, "lineaal", "het menu LINEALEN")};
  CommandButton cmdVulling{*this, panelTool(1680, 4680, "vulling", "het menu OPVULLEN")};
  CommandButton cmdBorstels{*this, panelTool(2160, 4680, "borstels", "het menu BORSTELSTREKEN")};
  CommandButton cmdGradient{
      *this, panelTool(2160, 5160, "gradient", "overgang achtergrond van kleur 1 naar kleur 2")};
  CommandButton cmdEffecten{*this, panelTool(2160, 5640, "effecten", "het menu KLEUREFFECTEN")};
  CommandButton cmdZoom{*this, panelTool(2160, 6120, "zoom", "het menu INZOOMEN")};
  CommandButton cmdRoteren{*this, panelTool(2160, 6600, "roteren", "het menu ROTEREN")};

  // The panels, all in one spot
  Label Label2{*this,
               {.Left = 240, .Top = 5160, .Width = 1815, .Height = 1935, .BackColor = PanelBack}};

  Frame fraLijnen{*this, panel(1455, "LIJNEN")};
  ComboBox cboStijl{
      fraLijnen,
      {.Left = 120,
       .Top = 240,
       .Width = 1575,
       .List = {"Doorlopend", "Stippellijn", "Kleurrijk", "Kraaltjes", "Ritssluiting"},
       .ToolTipText = "kies een SOORT LIJN"}};
  Slider Slider1{fraLijnen,
                 {.Left = 120,
                  .Top = 720,
                  .Width = 975,
                  .Height = 315,
                  .Min = 1,
                  .Max = 20,
                  .Value = 1,
                  .ToolTipText = "de dikte van de lijn veranderen",
                  .BackColor = PanelBack}};
  LineControl Line2{fraLijnen, {.X1 = 1320, .Y1 = 960, .X2 = 1560, .Y2 = 960}};
  Label Label5{fraLijnen, text(240, 1080, 1545, "lijndikte veranderen", surface::NoColor)};

  Frame fraBorstels{*this, panel(1695, "BORSTELS")};
  PictureBox picBorstel1{fraBorstels, stamp(120, 240, "borstel1", "LIJNTJES OMHOOG")};
  PictureBox picBorstel13{fraBorstels, stamp(480, 240, "borstel13", "LUCIFERTJES")};
  PictureBox picBorstel3{fraBorstels, stamp(960, 240, "borstel3", "PLUSJES")};
  PictureBox picBorstel4{fraBorstels, stamp(1320, 240, "borstel4", "KRUISKOPJES IN")};
  PictureBox picBorstel5{fraBorstels, stamp(120, 720, "borstel5", "KRUISKOPJES UIT")};
  PictureBox picBorstel7{fraBorstels, stamp(480, 720, "borstel7", "PIJLTJES OMHOOG")};
  PictureBox picBorstel8{fraBorstels, stamp(960, 720, "borstel8", "PIJLTJES OMLAAG")};
  PictureBox picBorstel10{fraBorstels, stamp(1320, 720, "borstel10", "PIJLTJES RECHTS")};
  PictureBox picBorstel9{fraBorstels, stamp(120, 1200, "borstel9", "PIJLTJES LINKS")};
  PictureBox picBorstel6{fraBorstels, stamp(480, 1200, "borstel6", "VIERKANTJES")};
  PictureBox picBorstel11{fraBorstels, stamp(960, 1200, "borstel11", "STERRETJES")};
  PictureBox picBorstel12{fraBorstels, stamp(1320, 1200, "borstel12", "RUITJES")};
  // No panel offers it.
  PictureBox picBorstel2{*this,
                         {.Top = 8280,
                          .Width = 375,
                          .Height = 375,
                          .ToolTipText = "LIJNTJES OMLAAG",
                          .BackColor = surface::White,
                          .Visible = false}};

  Frame fraVulling{*this, panel(1935, "   VULLINGEN  ")};
  ControlArray<OptionButton, 7> Option5{
      fraVulling,
      {hatch(240, "_________"), hatch(480, "|||||||||||||||||||||||||||"),
       hatch(720, "\\\\\\\\\\\\\\\\\\\\\\"), hatch(960, "///////////"), hatch(1200, "+++++++++"),
       hatch(1440, "xxxxxxxxxxx"), hatch(1680, "PALETkleur")}};

  Frame fraGradient{*this, panel(1695, "KLEUROVERGANG")};
  PictureBox Picture3{fraGradient,
                      {.Left = 240,
                       .Top = 240,
                       .Width = 375,
                       .Height = 375,
                       .ToolTipText = "kleur achtergrond links / boven",
                       .BackColor = 0xFF0000}};
  ImageControl Image2{
      fraGradient, {.Left = 720, .Top = 240, .Width = 375, .Height = 375, .Picture = "overgang"}};
  PictureBox Picture4{fraGradient,
                      {.Left = 1200,
                       .Top = 240,
                       .Width = 375,
                       .Height = 375,
                       .ToolTipText = "kleur achtergrond rechts / onder",
                       .BackColor = 0x0000FF}};
  ComboBox cboGradient{fraGradient,
                       {.Left = 120,
                        .Top = 720,
                        .Width = 1575,
                        .List = {"Verticaal", "Horizontaal"},
                        .ListIndex = 0,
                        .ToolTipText = "kies verticale of horizontale overgang"}};
  CommandButton cmdGradient2{fraGradient,
                             {.Left = 240,
                              .Top = 1170,
                              .Width = 1335,
                              .Height = 375,
                              .Caption = "UITVOEREN",
                              .ToolTipText = "UITVOEREN OVERGANG",
                              .BackColor = PanelButton}};

  Frame fraLineaal{*this, panel(1695, "LINEAAL")};
  OptionButton Option1{fraLineaal, choice(300, "verticaal")};
  OptionButton Option2{fraLineaal, choice(630, "horizontaal")};
  OptionButton Option4{fraLineaal, choice(960, "BEIDE")};
  OptionButton Option3{fraLineaal, choice(1290, "GEEN", true)};

  Frame fraEffecten{*this, panel(1335, "EFFECTEN")};
  CommandButton cmdVervagen{fraEffecten, panelTool(120, 300, "vervagen", "VERVAGEN")};
  CommandButton cmdRelief{fraEffecten, panelTool(525, 300, "relief", "GRIJS RELIEF")};
  CommandButton cmdVerspreiden{fraEffecten, panelTool(930, 300, "verspreiden", "VERSPREIDEN")};
  CommandButton cmdOmkeren{fraEffecten, panelTool(1335, 300, "omkeren", "KLEUREN OMKEREN")};
  CommandButton cmdHelderheid{fraEffecten,
                              panelTool(120, 780, "helderheid", "HELDERHEID VERANDEREN")};
  CommandButton cmdHamerslag{fraEffecten, panelTool(525, 780, "hamerslag", "HAMERSLAG")};
  CommandButton cmdZaagrand{fraEffecten, panelTool(930, 780, "zaagrand", "ZAAGRAND")};
  CommandButton cmdVervangKleur{fraEffecten,
                                panelTool(1335, 780, "vervangkleur", "KLEUREN VERVANGEN")};
  // No panel offers these two.
  CommandButton cmdGrijswaarden{*this, unoffered(3600, "GRIJSWAARDEN")};
  CommandButton cmdVerscherpen{*this, unoffered(4080, "VERSCHERPEN")};

  Frame fraGommen{*this, panel(1455, "GOMMEN")};
  Label Label7{fraGommen,
               {.Left = 120,
                .Top = 360,
                .Width = 1155,
                .Height = 255,
                .Caption = "klik=veranderen",
                .BackColor = PanelBack,
                .Font = {.Size = 7.5f}}};
  PictureBox picGommen{fraGommen,
                       {.Left = 1320,
                        .Top = 240,
                        .Width = 375,
                        .Height = 375,
                        .ToolTipText = "kies de kleur voor het gommetje",
                        .BackColor = surface::White}};
  Slider Slider3{fraGommen,
                 {.Left = 120,
                  .Top = 720,
                  .Width = 975,
                  .Height = 315,
                  .Min = 1,
                  .Max = 20,
                  .Value = 1,
                  .ToolTipText = "de dikte van het gommetje regelen",
                  .BackColor = PanelBack}};
  LineControl Line3{fraGommen,
                    {.X1 = 1320, .Y1 = 960, .X2 = 1560, .Y2 = 960, .BorderColor = surface::White}};
  Label Label6{fraGommen, text(360, 1080, 1395, "dikte veranderen", surface::NoColor)};

  // Messages
  Label Label8{*this, text(120, 7080, 1155, "coördinaten")};
  Label lblCoordinaten{*this,
                       {.Left = 1320,
                        .Top = 7080,
                        .Width = 1215,
                        .Height = 255,
                        .ToolTipText = "de coördinaten van je potlood",
                        .BackColor = 0xE0E0E0}};
  Label lblModus{*this,
                 {.Left = 240,
                  .Top = 7320,
                  .Width = 2295,
                  .Height = 855,
                  .ToolTipText = "je MEDEDELINGENBORDJE",
                  .BackColor = 0x404040,
                  .ForeColor = surface::White,
                  .Font = {"Arial", 8.25f, true}}};

  // The sheet, with its rubber bands
  PictureBox picBlad{*this,
                     {.Left = 2640,
                      .Top = 120,
                      .Width = 9255,
                      .Height = 8055,
                      .ScaleMode = surface::ScalePixels,
                      .AutoRedraw = true,
                      .BackColor = surface::White,
                      .FillColor = surface::White,
                      .Font = {"Verdana"},
                      .MousePointer = surface::PointerCross}};
  ShapeControl ShpOval{
      picBlad,
      {.Width = 375, .Height = 255, .Oval = true, .FillColor = surface::White, .Visible = false}};
  LineControl Line1{picBlad, {.X1 = 720, .Y1 = 360, .X2 = 1440, .Y2 = 720, .Visible = false}};
  ShapeControl Shape2{picBlad,
                      {.Left = 840, .Top = 1200, .Width = 855, .Height = 615, .Visible = false}};
  Label picTekst{picBlad,
                 {.Left = 15,
                  .Top = 15,
                  .Width = 1500,
                  .Height = 600,
                  .BackColor = surface::White,
                  .Framed = true,
                  .Visible = false}};
  ProgressBar ProgressBar1{
      *this, {.Left = 5760, .Top = 3960, .Width = 3495, .Height = 375, .Visible = false}};

  // Hidden surfaces: they hold bitmaps only from the first drawing on, and are white like paper
  PictureBox picUndo{*this, sheetSized(surface::ScaleTwips, false)};
  PictureBox picRedo{*this, sheetSized(surface::ScaleTwips, false)};
  PictureBox Tempory{picRedo,
                     {.Width = 9255,
                      .Height = 8055,
                      .ScaleMode = surface::ScalePixels,
                      .AutoRedraw = true,
                      .BackColor = surface::White,
                      .Visible = false}};
  PictureBox picTemp{*this, sheetSized(surface::ScalePixels, true)};
  PictureBox TempZoom{*this, small(360, 7440, 615, true, surface::ButtonFace)};
  PictureBox picNieuw{*this, small(1080, 8280, 255, false)};
  PictureBox picRoteren{*this, small(1440, 8280, 255, false)};
  ControlArray<PictureBox, 5> UndoPic{
      *this,
      {small(1800, 8280, 255, true), small(2160, 8280, 255, true), small(2520, 8280, 255, true),
       small(2880, 8280, 255, true), small(3240, 8280, 255, true)}};

  // Cursors
  ImageControl curPen{*this, cursor("curPen")};
  ImageControl curBrush{*this, cursor("curBrush")};
  ImageControl curVullen{*this, cursor("curVullen")};
  ImageControl curGom{*this, cursor("curGom")};
  ImageControl curDrop{*this, cursor("curDrop")};
  ImageControl curVizier{*this, cursor("curVizier")};

  TimerControl Timer2{*this, {.Interval = 0, .Enabled = false}};
  CommonDialog CommonDialog1;  // colours
  CommonDialog CommonDialog2;  // files, and the colours of the gradient
};
