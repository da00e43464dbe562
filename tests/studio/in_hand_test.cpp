// What a child sees of its choice: the tool or stamp in hand looks pressed; samples and captions
// can be seen whole.
#include <QImage>
#include <QWidget>
#include <set>

#include "studio/studio.h"

using namespace surface;

class InHand : public Studio {
 protected:
  std::set<const Control*> pressed() {
    std::set<const Control*> found;
    for (const Container* container : {static_cast<const Container*>(&studio),
                                       static_cast<const Container*>(&studio.fraBorstels)})
      for (const Control* control : container->controls())
        if (control->Pressed) found.insert(control);
    return found;
  }
  // Light above and dark below, or the other way round.
  bool looksSunken(Control& control) {
    const QImage image = shown(control);
    return image.pixelColor(5, 0).lightness() <
               image.pixelColor(5, image.height() - 1).lightness() ||
           image.pixelColor(5, 0).lightness() < 100;
  }
};

TEST_F(InHand, ThePencilAtTheStart) {
  EXPECT_EQ(pressed(), std::set<const Control*>{&studio.cmdTekenen});
  EXPECT_TRUE(looksSunken(studio.cmdTekenen));
  EXPECT_FALSE(looksSunken(studio.cmdLijn));
}

TEST_F(InHand, EveryToolAloneAndAtItsPlace) {
  for (CommandButton* tool :
       {&studio.cmdLijn, &studio.cmdRechthoek, &studio.cmdRechthoekgevuld, &studio.cmdCirkel,
        &studio.cmdOpvullen, &studio.cmdDrop, &studio.cmdTekst, &studio.cmdSpuitbus, &studio.cmdArt,
        &studio.cmdCirkelGevuld, &studio.cmdEllips, &studio.cmdEllipsGevuld, &studio.cmdGom,
        &studio.cmdTekenen}) {
    SCOPED_TRACE(tool->ToolTipText.get());
    const raster::Rect place = tool->pixelPlace();
    click(*tool);
    EXPECT_EQ(pressed(), std::set<const Control*>{tool});
    EXPECT_TRUE(looksSunken(*tool));
    EXPECT_EQ(tool->pixelPlace(), place);
  }
}

TEST_F(InHand, ThePanelOfTheEraserTakesTheEraserAndTheOthersThePencil) {
  click(studio.cmdGommen);
  EXPECT_EQ(pressed(), std::set<const Control*>{&studio.cmdGom});
  click(studio.cmdLijnen);
  EXPECT_EQ(pressed(), std::set<const Control*>{&studio.cmdTekenen});
}

TEST_F(InHand, TheStampThatWasChosenUntilAToolIs) {
  click(studio.cmdBorstels);
  click(studio.picBorstel3);
  EXPECT_EQ(pressed(), std::set<const Control*>{&studio.picBorstel3});
  EXPECT_TRUE(looksSunken(studio.picBorstel3));
  EXPECT_FALSE(looksSunken(studio.picBorstel4));
  click(studio.picBorstel12);
  EXPECT_EQ(pressed(), std::set<const Control*>{&studio.picBorstel12});
  click(studio.cmdOpvullen);
  EXPECT_EQ(pressed(), std::set<const Control*>{&studio.cmdOpvullen});
}

TEST_F(InHand, APatternIsNoTool) {
  click(studio.cmdVulling);
  click(studio.Option5(2));
  EXPECT_TRUE(pressed().empty());
}

TEST_F(InHand, WipingPutsThePencilBackInHand) {
  click(studio.cmdSpuitbus);
  click(studio.cmdClear);
  EXPECT_EQ(pressed(), std::set<const Control*>{&studio.cmdTekenen});
}

TEST_F(InHand, NeighbouringStampsAreButtonsOfTheirOwn) {
  click(studio.cmdBorstels);
  for (PictureBox* stamp : {&studio.picBorstel1, &studio.picBorstel13}) {
    const QImage image = shown(*stamp);
    const int last = image.width() - 1;
    EXPECT_LT(image.pixelColor(last, 12).lightness(), 100);
    EXPECT_LT(image.pixelColor(12, last).lightness(), 100);
  }
}

TEST_F(InHand, TheSamplesOfLineAndEraserShowTheirWholeThickness) {
  struct Sample {
    CommandButton& button;
    Slider& slider;
    Frame& frame;
    LineControl& line;
  };
  for (const Sample& row :
       {Sample{studio.cmdLijnen, studio.Slider1, studio.fraLijnen, studio.Line2},
        Sample{studio.cmdGommen, studio.Slider3, studio.fraGommen, studio.Line3}}) {
    click(row.button);
    row.line.BorderColor = 0x0000FF;
    for (const int thickness : {17, 18, 20}) {
      row.slider.Value = thickness;
      row.line.BorderWidth = thickness;
      const QImage image = shown(row.frame);
      int rows = 0;
      for (int y = 0; y < image.height(); ++y)
        rows += image.pixelColor(96, y) == QColor(255, 0, 0) ? 1 : 0;
      EXPECT_EQ(rows, thickness);
    }
  }
}

TEST_F(InHand, TheLowestPatternDoesNotTouchItsFramesLine) {
  click(studio.cmdVulling);
  const QImage image = shown(studio.fraVulling);
  const QColor ground = QColor::fromRgb(toPixel(studio.fraVulling.BackColor));
  const int left = studio.Option5(6).pixelPlace().left;
  // From below: the frame's line, then the panel's own colour, then the circle of the option.
  int y = image.height() - 1;
  const auto rowIsGround = [&] {
    for (int x = left; x < left + 70; ++x)
      if (image.pixelColor(x, y) != ground) return false;
    return true;
  };
  while (y > 0 && rowIsGround()) --y;
  while (y > 0 && !rowIsGround()) --y;
  EXPECT_GE(y, 121) << "the option and the line are one";
  for (const Control* option : studio.fraVulling.controls())
    EXPECT_EQ(option->pixelPlace().height(), 17);
}

class Spoken : public Studio {
 protected:
  QString name(Control& control) { return script::widgetOf(control)->accessibleName(); }
};

TEST_F(Spoken, EveryHatchSaysWhatItDraws) {
  click(studio.cmdVulling);
  std::set<QString> names;
  for (int i = 0; i < 7; ++i) {
    const QString said = name(studio.Option5(i));
    EXPECT_TRUE(std::any_of(said.begin(), said.end(), [](QChar c) { return c.isLower(); }));
    EXPECT_NE(said, "xxxxxxxxxxx");
    names.insert(said);
  }
  EXPECT_EQ(names.size(), 7u);
}

TEST_F(Spoken, TheReadOutTheLineStyleAndTheHelpHaveNames) {
  EXPECT_EQ(name(studio.lblCoordinaten), "de coördinaten van je potlood");
  move(sheet, 10, 20);
  EXPECT_EQ(name(studio.lblCoordinaten), "") << "its text speaks for itself";
  click(studio.cmdLijnen);
  EXPECT_EQ(name(studio.cboStijl), "Lijnstijl");
  EXPECT_EQ(name(studio.Command1), "Help");
  EXPECT_EQ(studio.Command1.ToolTipText, "ONGEDAAN maken tenietdoen");
}
