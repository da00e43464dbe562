// The controls of the small studio, which the course has too: places, pictures and tooltips, in
// stacking order. What stands elsewhere on the two forms comes in as their layout.
#pragma once

#include "surface/surface.h"

/// What the form of a small studio decides for itself. Places in twips.
struct SmallStudioLayout {
  const char* Caption;
  surface::Color BackColor;
  float GridLeft;  ///< of the tool buttons, which stand three to a row
  surface::Control::Place Sheet;
  surface::Control::Place Messages;    ///< lblModus
  surface::Control::Place ColourChip;  ///< Shape1
  float PaletteLeft, PaletteTop;
  bool Visible;  ///< of everything but the sheet at the start
  surface::Color PenAtStart;
  bool AsksToSave;  ///< before another picture is opened
};

class SmallStudioControls : public surface::Form {
 protected:
  explicit SmallStudioControls(const SmallStudioLayout& layout);

  const SmallStudioLayout layout;

  // The buttons in three soft colours: drawing, mending, keeping.
  static constexpr Color Draw = 0xFFFFFF, Mend = 0xC0FFFF, Keep = 0xFFE6CF;

  CommandButton::Design tool(int row, int column, Color back, const char* picture, const char* tip,
                             const char* key = "") const;
  PictureBox::Design sheet(bool visible) const;
  static ImageControl::Design cursor(const char* name);

 public:
  CommandButton cmdTekenen{*this, tool(0, 0, Draw, "kleintekenen", "je tekenpotlood")};
  CommandButton cmdLijn{*this, tool(0, 1, Draw, "kleinlijn", "een rechte lijn trekken")};
  CommandButton cmdRechthoek{*this,
                             tool(0, 2, Draw, "kleinrechthoek", "een gewone rechthoek tekenen")};
  CommandButton cmdEllips{*this, tool(1, 0, Draw, "kleinellips", "een gewone ellips")};
  CommandButton cmdOpvullen{
      *this, tool(1, 1, Draw, "kleinopvullen", "opvullen van een gesloten oppervlak")};
  CommandButton cmdSpuitbus{*this,
                            tool(1, 2, Draw, "kleinspuitbus", "een spuitbus om mee te tekenen")};
  CommandButton cmdUndo{
      *this, tool(2, 0, Mend, "kleinundo", "de LAATSTE lijn of vorm ONGEDAAN maken", "Ctrl+Z")};
  CommandButton cmdClear{*this, tool(2, 1, Mend, "kleinclear", "het hele blad wissen")};
  CommandButton cmdGom{*this, tool(2, 2, Mend, "kleingom", "gommetje om foutjes te verbeteren")};
  CommandButton cmdOpenbestand{*this, tool(3, 0, Keep, "kleinopenbestand",
                                           "een tekening uit een bestand ophalen", "Ctrl+O")};
  CommandButton cmdKleurplaat{
      *this, tool(3, 0, Keep, "kleinkleurplaat", "een andere KLEURPLAAT uitkiezen")};
  CommandButton cmdSaveAs{
      *this, tool(3, 1, Keep, "kleinsaveas", "een tekening OPSLAAN ALS ...", "Ctrl+S")};
  CommandButton cmdPrint{*this, tool(3, 2, Keep, "kleinprint", "je tekening AFDRUKKEN", "Ctrl+P")};

  Slider Slider1{*this,
                 {.Left = layout.GridLeft,
                  .Top = 3480,
                  .Width = 1575,
                  .Height = 345,
                  .Min = 1,
                  .Max = 20,
                  .Value = 1,
                  .ToolTipText = "de dikte van de lijn veranderen",
                  .BackColor = layout.BackColor,
                  .Visible = layout.Visible}};
  LineControl Line2{*this,
                    {.X1 = layout.GridLeft + 1755,
                     .Y1 = 3652.5f,
                     .X2 = layout.GridLeft + 2265,
                     .Y2 = 3652.5f,
                     .Visible = layout.Visible}};
  Label lblModus{*this,
                 {.Left = layout.Messages.Left,
                  .Top = layout.Messages.Top,
                  .Width = layout.Messages.Width,
                  .Height = layout.Messages.Height,
                  .ToolTipText = "je MEDEDELINGENBORDJE",
                  .BackColor = surface::Black,
                  .ForeColor = surface::White,
                  .Font = {"Arial", 8.25f, true},
                  .Visible = layout.Visible}};
  ShapeControl Shape1{*this,
                      {.Left = layout.ColourChip.Left,
                       .Top = layout.ColourChip.Top,
                       .Width = layout.ColourChip.Width,
                       .Height = layout.ColourChip.Height,
                       .Filled = true,
                       .Visible = layout.Visible}};
  PictureBox picPalet{*this,
                      {.Left = layout.PaletteLeft,
                       .Top = layout.PaletteTop,
                       .Width = 2475,
                       .Height = 1650,
                       .Picture = "kleurvelden",
                       .ToolTipText = "het KLEURENPALET",
                       .MousePointer = surface::PointerCross,
                       .Visible = layout.Visible}};

  // The sheet, with its rubber band and its two samples
  PictureBox picBlad{*this, sheet(true)};
  ShapeControl ShpOval{
      picBlad,
      {.Width = 375, .Height = 255, .Oval = true, .FillColor = surface::White, .Visible = false}};
  LineControl Line1{picBlad, {.X1 = 720, .Y1 = 360, .X2 = 1440, .Y2 = 720, .Visible = false}};
  ShapeControl Shape2{picBlad,
                      {.Left = 840, .Top = 1200, .Width = 855, .Height = 615, .Visible = false}};
  PictureBox picUndo{*this, sheet(false)};

  ImageControl curPen{*this, cursor("curPen")};
  ImageControl curBrush{*this, cursor("curBrush")};
  ImageControl curVullen{*this, cursor("curVullen")};
  ImageControl curGom{*this, cursor("curGom")};

  CommonDialog CommonDialog2;  // files and the printer
};
