// What a child sees of the controls: exact colours, captions and their blanks, tooltips, windowless
// lines and shapes; and what a screen reader hears.
#include <QAccessible>
#include <QApplication>
#include <QImage>
#include <QWidget>

#include "support/colors.h"
#include "support/errors.h"
#include "support/script.h"

using namespace surface;

namespace {

class ShopWindow : public Form {
 public:
  ShopWindow() : Form({.BackColor = 0x336699, .Width = 7500, .Height = 6000}) {}

  CommandButton cmdRood{*this,
                        {.Left = 150,
                         .Top = 150,
                         .Width = 1500,
                         .Height = 600,
                         .Caption = "&Rood",
                         .ToolTipText = "kies rood",
                         .BackColor = 0x1122EE}};
  CommandButton cmdPlaatje{*this,
                           {.Left = 150,
                            .Top = 900,
                            .Width = 375,
                            .Height = 375,
                            .Picture = "lijn",
                            .ToolTipText = "een rechte lijn trekken"}};
  Label lblTekst{*this,
                 {.Left = 1800,
                  .Top = 150,
                  .Width = 1500,
                  .Height = 900,
                  .BackColor = 0x00FFFF,
                  .ForeColor = 0x800000,
                  .Font = {"Arial", 9}}};
  TextBox txtNaam{*this,
                  {.Left = 3450,
                   .Top = 150,
                   .Width = 1500,
                   .Height = 600,
                   .BackColor = 0xC0FFFF,
                   .ForeColor = 0x800080}};
  Frame fraRand{*this,
                {.Left = 3450,
                 .Top = 900,
                 .Width = 1500,
                 .Height = 900,
                 .Caption = "RAND",
                 .BackColor = 0xC0FFC0}};
  LineControl lnRand{fraRand, {.X1 = 300, .Y1 = 600, .X2 = 900, .Y2 = 600, .BorderColor = Red}};
  OptionButton Option1{*this,
                       {.Left = 150,
                        .Top = 1500,
                        .Width = 1500,
                        .Height = 375,
                        .Caption = "een",
                        .BackColor = 0xC0FFC0}};
  CheckBox chkAan{*this,
                  {.Left = 150,
                   .Top = 2100,
                   .Width = 1500,
                   .Height = 375,
                   .Caption = "aan",
                   .BackColor = 0xFFC0FF}};
  PictureBox sheet{*this, PictureBox::Design{.Left = 150,
                                             .Top = 2700,
                                             .Width = 1500,
                                             .Height = 1500,
                                             .ScaleMode = ScalePixels,
                                             .AutoRedraw = true,
                                             .ToolTipText = "het blad",
                                             .BackColor = White}};
  ImageControl imgPlaat{*this, {.Left = 1800, .Top = 2700, .Width = 600, .Height = 600}};
  LineControl Line1{sheet,
                    {.X1 = 150,
                     .Y1 = 150,
                     .X2 = 1200,
                     .Y2 = 150,
                     .BorderColor = Red,
                     .BorderWidth = 3,
                     .Visible = false}};
  ShapeControl Shape1{sheet,
                      {.Left = 300,
                       .Top = 450,
                       .Width = 600,
                       .Height = 450,
                       .Filled = true,
                       .FillColor = Green,
                       .BorderColor = Red,
                       .Visible = false}};
  ShapeControl Oval{sheet,
                    {.Left = 300,
                     .Top = 450,
                     .Width = 600,
                     .Height = 450,
                     .Oval = true,
                     .BorderColor = Red,
                     .Visible = false}};
};

QColor color(Color c) { return QColor::fromRgb(toPixel(c)); }

/// The first column that shows anything but the ground.
int firstInk(const QImage& image, QRgb ground) {
  for (int x = 0; x < image.width(); ++x)
    for (int y = 0; y < image.height(); ++y)
      if (image.pixel(x, y) != ground) return x;
  return -1;
}

/// How many lines of text there are.
int inkedRows(const QImage& image, QRgb ground) {
  int rows = 0;
  bool before = false;
  for (int y = 0; y < image.height(); ++y) {
    bool inked = false;
    for (int x = 0; x < image.width(); ++x) inked |= image.pixel(x, y) != ground;
    if (inked && !before) ++rows;
    before = inked;
  }
  return rows;
}

}  // namespace

class Looks : public script::Stage {
 protected:
  Looks() { show.Show(); }
  /// What a screen reader says of a control.
  static std::string spokenName(Control& control) {
    auto* heard = QAccessible::queryAccessibleInterface(script::widgetOf(control));
    return heard->text(QAccessible::Name).toStdString();
  }
  ShopWindow& show = the<ShopWindow>();
};

TEST_F(Looks, EveryKindShowsExactlyItsBackColor) {
  EXPECT_EQ(shown(show).pixelColor(499, 399), color(0x336699));
  // Inside the edges and beside the captions.
  EXPECT_EQ(shown(show.cmdRood).pixelColor(6, 20), color(0x1122EE));
  EXPECT_EQ(shown(show.cmdPlaatje).pixelColor(3, 3), color(0xC0C0C0));
  EXPECT_EQ(shown(show.lblTekst).pixelColor(50, 50), color(0x00FFFF));
  EXPECT_EQ(shown(show.lblTekst).pixelColor(0, 0), color(0x00FFFF));
  EXPECT_EQ(shown(show.txtNaam).pixelColor(80, 20), color(0xC0FFFF));
  EXPECT_EQ(shown(show.fraRand).pixelColor(90, 50), color(0xC0FFC0));
  EXPECT_EQ(shown(show.Option1).pixelColor(95, 12), color(0xC0FFC0));
  EXPECT_EQ(shown(show.chkAan).pixelColor(95, 12), color(0xFFC0FF));
}

TEST_F(Looks, AButtonKeepsItsColourWhenItIsSwitchedOff) {
  show.cmdRood.Enabled = false;
  EXPECT_EQ(shown(show.cmdRood).pixelColor(6, 20), color(0x1122EE));
}

TEST_F(Looks, AButtonSinksWhilePressed) {
  const QImage before = shown(show.cmdRood);
  press(show.cmdRood, 20, 20);
  EXPECT_NE(shown(show.cmdRood), before);
  release(show.cmdRood, 20, 20);
}

TEST_F(Looks, AButtonShowsItsPicture) {
  const QImage with = shown(show.cmdPlaatje);
  show.cmdPlaatje.Picture = "";
  EXPECT_NE(shown(show.cmdPlaatje), with);
}

TEST_F(Looks, ACaptionThatIsTooLongBreaksAtBlanks) {
  const QRgb ground = color(0x00FFFF).rgb();
  show.lblTekst.Caption = "een";
  EXPECT_EQ(inkedRows(shown(show.lblTekst), ground), 1);
  show.lblTekst.Caption = "een woord en nog een woord";
  EXPECT_GE(inkedRows(shown(show.lblTekst), ground), 2);
}

TEST_F(Looks, RunsOfBlanksKeepTheirWidth) {
  const auto column = [&](const char* caption) {
    show.lblTekst.Caption = caption;
    return firstInk(shown(show.lblTekst), color(0x00FFFF).rgb());
  };
  const int none = column("I"), four = column("    I"), eight = column("        I");
  ASSERT_GE(none, 0);
  EXPECT_GT(four, none + 8);
  EXPECT_NEAR(eight - four, four - none, 1);
}

TEST_F(Looks, BlanksInTheMiddlePushAWordToTheNextLine) {
  const QRgb ground = color(0x00FFFF).rgb();
  show.lblTekst.Caption = "dag kind";
  EXPECT_EQ(inkedRows(shown(show.lblTekst), ground), 1);
  show.lblTekst.Caption = "dag                              kind";
  EXPECT_GE(inkedRows(shown(show.lblTekst), ground), 2);
}

TEST_F(Looks, TheAccessKeyMarkIsNotShownAsALetter) {
  show.cmdRood.Caption = "Rood";
  const QImage plain = shown(show.cmdRood);
  show.cmdRood.Caption = "&Rood";
  const QImage marked = shown(show.cmdRood);
  // Only the stroke under the R is new.
  int others = 0;
  for (int y = 0; y < plain.height(); ++y)
    for (int x = 0; x < plain.width(); ++x) others += plain.pixel(x, y) != marked.pixel(x, y);
  EXPECT_GT(others, 3);
  EXPECT_LT(others, 16);
}

TEST_F(Looks, AScreenReaderHearsTheCaptionOrElseTheTooltip) {
  EXPECT_EQ(spokenName(show.cmdRood), "Rood");
  EXPECT_EQ(script::widgetOf(show.cmdRood)->accessibleDescription(), "kies rood");
  EXPECT_EQ(spokenName(show.cmdPlaatje), "een rechte lijn trekken");
  EXPECT_EQ(spokenName(show.sheet), "het blad");
  EXPECT_EQ(spokenName(show.fraRand), "RAND");
  show.lblTekst.Caption = "    Dag vriendje.      Vul in.";
  EXPECT_EQ(spokenName(show.lblTekst), "Dag vriendje. Vul in.");
}

TEST_F(Looks, ASurfaceIsADrawingToAScreenReader) {
  const auto* heard = QAccessible::queryAccessibleInterface(script::widgetOf(show.sheet));
  EXPECT_EQ(heard->role(), QAccessible::Graphic);
}

TEST_F(Looks, ANameOfItsOwnGoesBeforeCaptionAndTooltip) {
  show.cmdRood.AccessibleName = "de rode knop";
  show.cmdRood.ToolTipText = "kies nu rood";
  EXPECT_EQ(spokenName(show.cmdRood), "de rode knop");
}

TEST_F(Looks, TooltipsFollowTheProperty) {
  EXPECT_EQ(script::widgetOf(show.cmdRood)->toolTip(), "kies rood");
  show.cmdRood.ToolTipText = "iets anders";
  EXPECT_EQ(script::widgetOf(show.cmdRood)->toolTip(), "iets anders");
}

TEST_F(Looks, AWindowlessLineIsSeenAboveTheSheetButIsNoPartOfIt) {
  show.sheet.PSet({50, 10}, Green);
  show.Line1.Visible = true;
  EXPECT_EQ(shown(show.sheet).pixelColor(50, 10), color(Red)) << "the drawing covers the line";
  EXPECT_EQ(show.sheet.Point({50, 10}), Green);
  EXPECT_EQ(show.sheet.Point({40, 10}), White);
  EXPECT_EQ(GetPixel(show.sheet.hDC(), 40, 10), White);
  EXPECT_EQ(toColor(show.sheet.Image().bitmap()->at(40, 10)), White);
  show.Line1.Visible = false;
  EXPECT_EQ(shown(show.sheet).pixelColor(40, 10), color(White));
  EXPECT_EQ(shown(show.sheet).pixelColor(50, 10), color(Green));
}

TEST_F(Looks, AWindowlessLineHasItsWidthAndColour) {
  show.Line1.Visible = true;
  const auto rows = [&] {
    int painted = 0;
    const QImage screen = shown(show.sheet);
    for (int y = 0; y < 100; ++y) painted += screen.pixelColor(40, y) != color(White);
    return painted;
  };
  EXPECT_EQ(rows(), 3);
  show.Line1.BorderWidth = 8;
  EXPECT_EQ(rows(), 8);
  show.Line1.BorderColor = Green;
  EXPECT_EQ(shown(show.sheet).pixelColor(40, 10), color(Green));
}

TEST_F(Looks, AWindowlessShapeIsSeenAboveTheSheetButIsNoPartOfIt) {
  show.Shape1.Visible = true;
  // 20..59 by 30..59 pixels.
  QImage screen = shown(show.sheet);
  EXPECT_EQ(screen.pixelColor(20, 30), color(Red));
  EXPECT_EQ(screen.pixelColor(59, 59), color(Red));
  EXPECT_EQ(screen.pixelColor(40, 45), color(Green));
  EXPECT_EQ(screen.pixelColor(60, 60), color(White));
  EXPECT_EQ(screen.pixelColor(19, 45), color(White));
  EXPECT_EQ(show.sheet.Point({40, 45}), White);
  show.Shape1.FillColor = 0x808080;
  EXPECT_EQ(shown(show.sheet).pixelColor(40, 45), color(0x808080));
}

TEST_F(Looks, AWindowlessShapeKeepsItsCornersHoweverThickItsBorder) {
  show.Shape1.Visible = true;
  for (const int width : {1, 2, 5, 8}) {
    SCOPED_TRACE(width);
    show.Shape1.BorderWidth = width;
    const QImage screen = shown(show.sheet);
    for (int y = 25; y < 65; ++y)
      for (int x = 15; x < 65; ++x) {
        const auto within = [&](int border) {
          return x >= 20 + border && x < 60 - border && y >= 30 + border && y < 60 - border;
        };
        const Color expected = within(width) ? Green : within(0) ? Red : White;
        ASSERT_EQ(screen.pixelColor(x, y), color(expected)) << x << ", " << y;
      }
  }
}

TEST_F(Looks, AnOvalTouchesTheMiddlesOfItsSidesOnly) {
  show.Oval.Visible = true;
  const QImage screen = shown(show.sheet);
  EXPECT_EQ(screen.pixelColor(40, 30), color(Red));
  EXPECT_EQ(screen.pixelColor(20, 45), color(Red));
  EXPECT_EQ(screen.pixelColor(20, 30), color(White));
  EXPECT_EQ(screen.pixelColor(40, 45), color(White)) << "it is not filled";
}

TEST_F(Looks, AMovedShapeLeavesNoTraceWhereItWas) {
  show.Shape1.Visible = true;
  show.Shape1.Left = 60;
  show.Shape1.Width = 20;
  const QImage screen = shown(show.sheet);
  EXPECT_EQ(screen.pixelColor(20, 30), color(White));
  EXPECT_EQ(screen.pixelColor(60, 30), color(Red));
  EXPECT_EQ(screen.pixelColor(79, 59), color(Red));
}

TEST_F(Looks, AWindowlessLineLiesInAFrameToo) {
  EXPECT_EQ(shown(show.fraRand).pixelColor(40, 40), color(Red));
  show.lnRand.Visible = false;
  EXPECT_EQ(shown(show.fraRand).pixelColor(40, 40), color(0xC0FFC0));
}

TEST_F(Looks, AWidthOfNoneIsRefusedForLinesAndShapes) {
  EXPECT_ERROR(BadPropertyValue, show.Line1.BorderWidth = 0);
  EXPECT_ERROR(BadPropertyValue, show.Shape1.BorderWidth = -2);
  EXPECT_EQ(show.Line1.BorderWidth, 3);
}

TEST_F(Looks, AShapeFarBeyondTheSheetHarmsNothing) {
  show.Line1.Visible = true;
  EXPECT_NO_THROW(show.Line1.X2 = 1e30f);
  EXPECT_NO_THROW(show.Line1.Y1 = -1e30f);
  show.Shape1.Visible = true;
  EXPECT_NO_THROW(show.Shape1.Left = -1e30f);
  EXPECT_FALSE(shown(show.sheet).isNull());
}

TEST_F(Looks, AnImageIsEnlargedInSquaresAndShrunkSmoothly) {
  const auto striped = [](int width) {
    raster::Bitmap stripes(width, 1, toPixel(White));
    for (int x = 0; x < width; x += 2) stripes.row(0)[x] = toPixel(Black);
    return Picture(std::make_shared<const raster::Bitmap>(stripes));
  };
  show.imgPlaat.Picture = striped(4);
  QImage screen = shown(show.imgPlaat);
  for (int x = 0; x < 40; ++x)
    EXPECT_EQ(screen.pixelColor(x, 20), QColor(x / 10 % 2 ? Qt::white : Qt::black)) << x;
  // Three to one: each dot is the mean of its three, or nearly so.
  show.imgPlaat.Picture = striped(120);
  screen = shown(show.imgPlaat);
  for (int x = 1; x < 39; ++x) {
    EXPECT_GT(screen.pixelColor(x, 20).red(), 60) << x;
    EXPECT_LT(screen.pixelColor(x, 20).red(), 195) << x;
  }
}

TEST_F(Looks, TransparentPartsOfAnImageShowWhatItStandsOn) {
  auto red = std::make_shared<raster::Bitmap>(2, 1, toPixel(Red));
  red->row(0)[1] = toPixel(White);
  show.imgPlaat.Picture = Picture(std::move(red), {255, 0});
  EXPECT_EQ(shown(show.imgPlaat).pixelColor(10, 20), color(Red));
  EXPECT_EQ(shown(show.imgPlaat).pixelColor(30, 20), color(0x336699));
  show.BackColor = 0x00FFFF;
  EXPECT_EQ(shown(show.imgPlaat).pixelColor(30, 20), color(0x00FFFF));
  show.sheet.BackColor = Green;
  show.sheet.PaintPicture(show.imgPlaat.Picture, {10, 10});
  show.sheet.PaintPicture(show.imgPlaat.Picture, {20, 20}, SizeF{8, 4});
  EXPECT_EQ(show.sheet.Point({10, 10}), Red);
  EXPECT_EQ(show.sheet.Point({11, 10}), Green);
  EXPECT_EQ(show.sheet.Point({20, 20}), Red);
  EXPECT_EQ(show.sheet.Point({27, 23}), Green);
}

TEST_F(Looks, AnOrnamentIsNotToldToAScreenReader) {
  const auto told = [](Control& control) {
    return !QAccessible::queryAccessibleInterface(script::widgetOf(control))->state().invisible;
  };
  EXPECT_FALSE(told(show.lblTekst));
  EXPECT_FALSE(told(show.imgPlaat));
  EXPECT_FALSE(told(show.lnRand));
  show.lblTekst.Caption = "dag";
  EXPECT_TRUE(told(show.lblTekst));
  show.imgPlaat.AccessibleName = "oma";
  show.imgPlaat.ToolTipText = "een plaat";
  EXPECT_TRUE(told(show.imgPlaat));
  EXPECT_EQ(spokenName(show.imgPlaat), "oma");
}

TEST_F(Looks, ControlsAreStackedInTheOrderOfTheirDeclaration) {
  class Stack : public Form {
   public:
    Stack() : Form({.Width = 3000, .Height = 3000}) {}
    Label under{*this, {.Width = 1500, .Height = 1500, .BackColor = Red}};
    Label between{*this, {.Width = 1500, .Height = 1500, .BackColor = Green, .Visible = false}};
    Label over{*this, {.Left = 750, .Width = 1500, .Height = 1500, .BackColor = White}};
  };
  Stack& stack = the<Stack>();
  stack.Show();
  EXPECT_EQ(shown(stack).pixelColor(75, 50), color(White));
  // Also one that appears later.
  stack.between.Visible = true;
  EXPECT_EQ(shown(stack).pixelColor(25, 50), color(Green));
  EXPECT_EQ(shown(stack).pixelColor(75, 50), color(White));
}
