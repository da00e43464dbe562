// The two rulers: the choice between them, their windows, and the scale that is drawn on them.
#include <QApplication>
#include <QMessageBox>
#include <QRadioButton>
#include <QTest>
#include <QTimer>
#include <cmath>

#include "studio/frmLineaalH.h"
#include "studio/frmLineaalV.h"
#include "studio/studio.h"
#include "surface/host.h"
#include "surface/qt/dialogs.h"

using namespace surface;

namespace {

constexpr double PixelsPerCentimetre = 1440 / 2.54 / 15;
constexpr Color Yellow = 0x00C0FFFF;

int pixel(double centimetres) {
  return static_cast<int>(std::nearbyint(centimetres * PixelsPerCentimetre));
}

// A ruler as it should look: every centimetre a tick and its number, every millimetre a short tick.
class LiteralRuler {
 public:
  LiteralRuler(const Form& ruler, bool upright)
      : paper_(ruler.innerPixels().width(), ruler.innerPixels().height(), toPixel(Yellow)),
        font_(ruler.Font),
        upright_(upright) {
    for (int i = 0; i <= 60; ++i) {
      tick(i, 0.1, 0.4);
      number(i);
    }
    for (int tenth = 0; tenth <= 600; ++tenth) tick(tenth / 10.0, 0.15, 0.35);
  }

  const raster::Bitmap& paper() const { return paper_; }

 private:
  void tick(double along, double from, double to) {
    const int at = pixel(along), begin = pixel(from), end = pixel(to);
    if (upright_)
      oracle::line({paper_}, thinPen(Black), begin, at, end, at);
    else
      oracle::line({paper_}, thinPen(Black), at, begin, at, end);
  }
  void number(int i) {
    // The 0 stands within the window, all others in the middle of their tick.
    const double back = i == 0 ? 0 : upright_ ? 0.15 : i < 10 ? 0.13 : 0.2;
    const int x = upright_ ? pixel(0.5) : pixel(i - back);
    const int y = upright_ ? pixel(i - back) : pixel(0.5);
    oracle::dot({paper_}, thinPen(Black), x, y);
    const TextMask mask = host().rasterText(font_, std::to_string(i));
    for (int row = 0; row < mask.height; ++row)
      for (int column = 0; column < mask.width; ++column)
        if (mask.dots[static_cast<std::size_t>(row * mask.width + column)])
          oracle::put({paper_}, toPixel(Black), x + mask.left + column, y + mask.top + row);
  }

  raster::Bitmap paper_;
  Font font_;
  bool upright_;
};

}  // namespace

class Rulers : public Studio {
 protected:
  bool open(Form* ruler) const { return ruler && ruler->shown(); }
  bool horizontal() const { return isLoaded<frmLineaalH>() && open(&the<frmLineaalH>()); }
  bool vertical() const { return isLoaded<frmLineaalV>() && open(&the<frmLineaalV>()); }
  void choose(OptionButton& option) {
    click(studio.cmdLineaal);
    click(option);
  }
};

TEST_F(Rulers, ThePanelOffersFourChoicesAndNoneIsChosenAtFirst) {
  click(studio.cmdLineaal);
  EXPECT_EQ(studio.lblModus.Caption, "hulpkader : de beide linealen kan je over het blad slepen");
  EXPECT_TRUE(studio.fraLineaal.Visible);
  EXPECT_EQ(studio.fraLineaal.Caption, "LINEAAL");
  EXPECT_EQ(studio.Option1.Caption, "verticaal");
  EXPECT_EQ(studio.Option2.Caption, "horizontaal");
  EXPECT_EQ(studio.Option4.Caption, "BEIDE");
  EXPECT_EQ(studio.Option3.Caption, "GEEN");
  EXPECT_TRUE(studio.Option3.Value);
  for (const OptionButton* option : {&studio.Option1, &studio.Option2, &studio.Option4})
    EXPECT_FALSE(option->Value);
}

TEST_F(Rulers, TheChoicesLieInThePanelWithoutOverlapAndShowTheirWholeCaption) {
  click(studio.cmdLineaal);
  OptionButton* const options[] = {&studio.Option1, &studio.Option2, &studio.Option4,
                                   &studio.Option3};
  const raster::Rect panel{0, 0, 1815 / 15, 1695 / 15};
  int bottom = 14;  // the frame's caption
  for (OptionButton* option : options) {
    const raster::Rect place = option->pixelPlace();
    EXPECT_EQ(intersect(place, panel), place) << option->Caption.get();
    EXPECT_GE(place.top, bottom) << option->Caption.get();
    bottom = place.bottom;
    const QSize wanted = script::widgetOf(*option)->sizeHint();
    EXPECT_LE(wanted.width(), place.width()) << option->Caption.get();
  }
}

TEST_F(Rulers, OpeningThePanelClosesAnotherOne) {
  click(studio.cmdLijnen);
  click(studio.cmdLineaal);
  EXPECT_FALSE(studio.fraLijnen.Visible);
}

TEST_F(Rulers, AppearInTheCornerUntilTheChoicePlacesThem) {
  for (Form* ruler :
       {static_cast<Form*>(&loadNew<frmLineaalH>()), static_cast<Form*>(&loadNew<frmLineaalV>())}) {
    EXPECT_TRUE(ruler->placed());
    EXPECT_EQ(ruler->Left.get(), 0);
    EXPECT_EQ(ruler->Top.get(), 0);
  }
}

TEST_F(Rulers, AVerticalOneStandsAtTheSheetsLeftEdge) {
  choose(studio.Option1);
  ASSERT_TRUE(vertical());
  EXPECT_FALSE(horizontal());
  EXPECT_EQ(the<frmLineaalV>().Left.get(), sheet.Left.get());
  EXPECT_EQ(the<frmLineaalV>().Top.get(), 120);
  EXPECT_TRUE(studio.Option1.Value);
  EXPECT_FALSE(studio.Option3.Value);
  EXPECT_FALSE(studio.fraLineaal.Visible);
}

TEST_F(Rulers, AHorizontalOneLiesAtTheTop) {
  choose(studio.Option2);
  ASSERT_TRUE(horizontal());
  EXPECT_FALSE(vertical());
  EXPECT_EQ(the<frmLineaalH>().Left.get(), sheet.Left.get());
  EXPECT_EQ(the<frmLineaalH>().Top.get(), 0);
  EXPECT_TRUE(studio.Option2.Value);
  EXPECT_FALSE(studio.fraLineaal.Visible);
}

TEST_F(Rulers, OneAfterTheOtherGivesTwo) {
  choose(studio.Option1);
  choose(studio.Option2);
  EXPECT_TRUE(vertical());
  EXPECT_TRUE(horizontal());
}

TEST_F(Rulers, BothTwiceAreBackOnTheirStartPosition) {
  choose(studio.Option4);
  ASSERT_TRUE(vertical() && horizontal());
  EXPECT_FALSE(studio.fraLineaal.Visible);
  auto& h = the<frmLineaalH>();
  auto& v = the<frmLineaalV>();
  const auto windowOf = [](Form& form) {
    for (QWidget* window : QApplication::topLevelWidgets())
      if (window->isVisible() && window->minimumWidth() == form.innerPixels().width())
        return window;
    return static_cast<QWidget*>(nullptr);
  };
  QWidget* const windowH = windowOf(h);
  QWidget* const windowV = windowOf(v);
  ASSERT_TRUE(windowH && windowV);
  const QPoint startH = windowH->pos(), startV = windowV->pos();
  windowH->move(300, 300);  // as a title bar drags them
  windowV->move(400, 200);
  choose(studio.Option4);
  EXPECT_EQ(&the<frmLineaalH>(), &h);
  EXPECT_EQ(&the<frmLineaalV>(), &v);
  EXPECT_EQ(windowH->pos(), startH);
  EXPECT_EQ(windowV->pos(), startV);
}

TEST_F(Rulers, NoneTakesBothAway) {
  choose(studio.Option4);
  choose(studio.Option3);
  EXPECT_FALSE(isLoaded<frmLineaalH>());
  EXPECT_FALSE(isLoaded<frmLineaalV>());
  EXPECT_TRUE(studio.Option3.Value);
  EXPECT_FALSE(studio.fraLineaal.Visible);
}

TEST_F(Rulers, OneClosedByItsBoxLeavesTheOtherAndCanBeCalledAgain) {
  choose(studio.Option4);
  closeBox(the<frmLineaalH>());
  EXPECT_FALSE(isLoaded<frmLineaalH>());
  EXPECT_TRUE(vertical());
  EXPECT_TRUE(studio.shown());
  choose(studio.Option4);  // still marked; the click counts all the same
  ASSERT_TRUE(horizontal() && vertical());
  EXPECT_EQ(the<frmLineaalH>().Left.get(), sheet.Left.get());
  EXPECT_EQ(the<frmLineaalH>().Top.get(), 0);
}

TEST_F(Rulers, AChoiceMadeByCodeIsMarkedToo) {
  for (OptionButton* option :
       {&studio.Option1, &studio.Option2, &studio.Option4, &studio.Option3}) {
    click(studio.cmdLineaal);
    option->Click();
    EXPECT_TRUE(option->Value) << option->Caption.get();
    EXPECT_FALSE(studio.fraLineaal.Visible);
  }
}

TEST_F(Rulers, NoneWithNoRulerOpenClosesThePanelAndNothingElse) {
  choose(studio.Option3);  // chosen already; the click counts all the same
  EXPECT_FALSE(studio.fraLineaal.Visible);
  EXPECT_TRUE(studio.shown());
  EXPECT_FALSE(isLoaded<frmLineaalH>());
  EXPECT_FALSE(isLoaded<frmLineaalV>());
  EXPECT_EQ(takeErrorReport(), std::nullopt);
}

TEST_F(Rulers, GoWithTheStudio) {
  choose(studio.Option4);
  click(studio.cmdEinde);
  EXPECT_FALSE(isLoaded<frmLineaalH>());
  EXPECT_FALSE(isLoaded<frmLineaalV>());
}

TEST_F(Rulers, StayAboveTheOtherWindows) {
  choose(studio.Option4);
  for (Form* ruler :
       {static_cast<Form*>(&the<frmLineaalH>()), static_cast<Form*>(&the<frmLineaalV>())}) {
    EXPECT_TRUE(ruler->topMost());
    int windows = 0;
    for (QWidget* window : QApplication::topLevelWidgets()) {
      if (window->minimumWidth() != ruler->innerPixels().width()) continue;
      ++windows;
      EXPECT_TRUE(window->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
      EXPECT_TRUE(window->isVisible());
    }
    EXPECT_EQ(windows, 1);
  }
}

TEST_F(Rulers, HaveTheirTitlesSizesAndColour) {
  choose(studio.Option4);
  auto& h = the<frmLineaalH>();
  auto& v = the<frmLineaalV>();
  EXPECT_EQ(h.Caption, std::string(49, ' ') + "LINEAAL - CENTIMETERS");
  EXPECT_EQ(v.Caption, "");
  EXPECT_EQ(h.BackColor, Yellow);
  EXPECT_EQ(v.BackColor, Yellow);
  EXPECT_EQ(h.ScaleMode(), ScaleCentimetres);
  EXPECT_EQ(v.ScaleMode(), ScaleCentimetres);
  EXPECT_TRUE(h.AutoRedraw);
  EXPECT_TRUE(v.AutoRedraw);
  EXPECT_EQ(h.Width.get(), 9285);
  EXPECT_EQ(v.Height.get(), 8400);
  EXPECT_EQ(h.innerPixels().width(), 9165 / 15);
  EXPECT_EQ(h.innerPixels().height(), 585 / 15);
  EXPECT_EQ(v.innerPixels().width(), 570 / 15);
  EXPECT_EQ(v.innerPixels().height(), 8070 / 15);
}

TEST_F(Rulers, TheHorizontalScaleIsDrawnToTheMillimetre) {
  choose(studio.Option2);
  EXPECT_TRUE(shows(the<frmLineaalH>(), LiteralRuler(the<frmLineaalH>(), false).paper()));
}

TEST_F(Rulers, TheVerticalScaleIsDrawnToTheMillimetre) {
  choose(studio.Option1);
  EXPECT_TRUE(shows(the<frmLineaalV>(), LiteralRuler(the<frmLineaalV>(), true).paper()));
}

TEST_F(Rulers, NumbersOfTwoDigitsStandFurtherBeforeTheirTick) {
  choose(studio.Option2);
  auto& ruler = the<frmLineaalH>();
  // The dot that marks a number's upper left corner.
  const float row = 0.5f;
  EXPECT_EQ(ruler.Point({9 - 0.13f, row}), Black);
  EXPECT_EQ(ruler.Point({9 - 0.2f, row}), Yellow);
  EXPECT_EQ(ruler.Point({10 - 0.2f, row}), Black);
  EXPECT_EQ(ruler.Point({10 - 0.13f, row}), Yellow);
}

// The numbers must be read whole: no digit runs out of the window or into a tick.
TEST_F(Rulers, NumbersAreReadable) {
  choose(studio.Option4);
  auto& h = the<frmLineaalH>();
  auto& v = the<frmLineaalV>();
  for (int i = 1; i < 16; ++i) {
    const TextMask mask = host().rasterText(h.Font, std::to_string(i));
    int top = mask.height, right = -1, bottom = -1;
    for (int y = 0; y < mask.height; ++y)
      for (int x = 0; x < mask.width; ++x)
        if (mask.dots[static_cast<std::size_t>(y * mask.width + x)]) {
          top = std::min(top, y);
          right = std::max(right, x);
          bottom = std::max(bottom, y);
        }
    EXPECT_LT(pixel(0.5) + mask.top + bottom, h.innerPixels().height() - 2) << i;
    EXPECT_LT(pixel(0.5) + mask.left + right, v.innerPixels().width() - 2) << i;
    EXPECT_GE(pixel(0.5) + mask.top + top, pixel(0.4)) << i;
  }
}

TEST_F(Rulers, TwoDecorativeLinesRunAlongTheEdges) {
  choose(studio.Option4);
  const QImage h = shown(the<frmLineaalH>()), v = shown(the<frmLineaalV>());
  const auto inkedRow = [&](int y) {
    for (int x = 0; x < h.width(); ++x)
      if (h.pixel(x, y) != toPixel(Black)) return false;
    return true;
  };
  const auto inkedColumn = [&](int x) {
    for (int y = 0; y < v.height(); ++y)
      if (v.pixel(x, y) != toPixel(Black)) return false;
    return true;
  };
  EXPECT_TRUE(inkedRow(2));
  EXPECT_TRUE(inkedRow(37));
  EXPECT_TRUE(inkedColumn(2));
  EXPECT_TRUE(inkedColumn(36));
}

TEST_F(Rulers, ADialogComesUpAboveThem) {
  const auto staysOnTop = [] {
    bool stays = false;
    QTimer::singleShot(0, [&] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      ASSERT_NE(box, nullptr);
      stays = box->windowFlags().testFlag(Qt::WindowStaysOnTopHint);
      box->close();
    });
    surface::qt::msgBox("Wil je de huidige tekening opslaan ?", YesNo, "Opslaan");
    return stays;
  };
  EXPECT_FALSE(staysOnTop());
  choose(studio.Option2);
  EXPECT_TRUE(staysOnTop());
  choose(studio.Option3);
  EXPECT_FALSE(staysOnTop());
}

TEST_F(Rulers, KeysPressTheStudiosButtonsWhileARulerIsTheActiveWindow) {
  choose(studio.Option2);
  QWidget* ruler = nullptr;
  for (QWidget* window : QApplication::topLevelWidgets())
    if (window->isVisible() && window->windowTitle().contains("LINEAAL")) ruler = window;
  ASSERT_NE(ruler, nullptr);
  ruler->activateWindow();
  advance(0);
  QTest::keyClick(ruler->windowHandle(), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_FALSE(studio.cmdUndo.Enabled);
}
