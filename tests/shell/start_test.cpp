// The splash screen, the menu and the farewell.
#include <QLineEdit>
#include <QScreen>
#include <QWidget>
#include <stdexcept>
#include <string>
#include <vector>

#include "shell/frmEinde.h"
#include "shell/frmIntro.h"
#include "shell/frmStart.h"
#include "studio/frmTekenen2.h"
#include "support/script.h"
#include "surface/host.h"
#include "surface/qt/text_layout.h"

using namespace surface;

namespace {

void expectPlace(const Control& control, float left, float top, float width, float height) {
  EXPECT_EQ(control.Left, left);
  EXPECT_EQ(control.Top, top);
  EXPECT_EQ(control.Width, width);
  EXPECT_EQ(control.Height, height);
}

/// The lines into which a text breaks in its place, without the blanks at their ends; a failure if
/// they do not fit its height.
std::vector<std::string> lines(const std::string& text, const Font& font, const QRect& place) {
  const QFontMetrics metrics(surface::qt::toQFont(font));
  std::vector<std::string> all;
  for (const QString& line :
       surface::qt::wrapped(QString::fromStdString(text), metrics, place.width()))
    all.push_back(line.trimmed().toStdString());
  EXPECT_LE(static_cast<int>(all.size()) * metrics.height(), place.height()) << text;
  return all;
}

std::vector<std::string> lines(Label& label) {
  const QSize size = script::widgetOf(label)->size();
  return lines(label.Caption, label.Font, QRect({}, size).adjusted(2, 0, -2, 0));
}

std::vector<std::string> lines(CommandButton& button) {
  std::string text = button.Caption;
  std::erase(text, '&');
  const QSize size = script::widgetOf(button)->size();
  return lines(text, button.Font, QRect({}, size).adjusted(3, 3, -3, -3));
}

QWidget* windowOf(Control& control) { return script::widgetOf(control)->window(); }

}  // namespace

class Start : public script::Stage {};

TEST_F(Start, SplashGivesWayToTheMenuAfterThreeSeconds) {
  the<frmIntro>().Show();
  advance(2999);
  EXPECT_TRUE(isLoaded<frmIntro>());
  EXPECT_FALSE(isLoaded<frmStart>());
  advance(1);
  EXPECT_FALSE(isLoaded<frmIntro>());
  EXPECT_TRUE(the<frmStart>().shown());
}

TEST_F(Start, TheNameMayBeTypedAtOnce) {
  the<frmIntro>().Show();
  advance(3000);
  type("Fien");
  EXPECT_EQ(the<frmStart>().txtNaam.Text, "Fien");
}

TEST_F(Start, ASplashWithAnotherIntervalStays) {
  auto& splash = the<frmIntro>();
  splash.Show();
  splash.Timer1.Interval = 2000;
  advance(10'000);
  EXPECT_TRUE(isLoaded<frmIntro>());
  EXPECT_FALSE(isLoaded<frmStart>());
}

TEST_F(Start, TheSplashIsAFixedWindowInTheMiddleOfTheScreen) {
  auto& splash = the<frmIntro>();
  splash.Show();
  QWidget* window = windowOf(splash.FrameIntro);
  EXPECT_EQ(window->size(), QSize(7620 / 15, 6090 / 15));
  EXPECT_EQ(window->minimumSize(), window->maximumSize());
  EXPECT_FALSE(window->windowFlags().testFlag(Qt::WindowMaximizeButtonHint));
  EXPECT_FALSE(window->windowFlags().testFlag(Qt::WindowMinimizeButtonHint));
  const QPoint middle = window->screen()->availableGeometry().center();
  EXPECT_NEAR(window->geometry().center().x(), middle.x(), 2);
  EXPECT_NEAR(window->geometry().center().y(), middle.y(), 2);
  EXPECT_EQ(splash.BackColor, 0xE0E0E0);
}

TEST_F(Start, TheSplashSaysItsTextsAtTheirPlaces) {
  auto& splash = the<frmIntro>();
  splash.Show();
  expectPlace(splash.FrameIntro, 240, 240, 7200, 5490);
  expectPlace(splash.imgOlmwerk, 120, 240, 3495, 2175);
  const struct {
    Label& label;
    float left, top, width, height;
    const char* text;
    Color color;
  } labels[] = {
      {splash.Label3, 3840, 600, 3030, 765, "KrasPret", 0x0000FF},
      {splash.lblVersion, 4755, 1680, 1125, 285, "Versie 1.0", 0xFF0000},
      {splash.lblIntro1, 600, 2880, 6375, 255, " HET VOLGENDE SCHERM BEVAT INFORMATIE :", 0xFF0000},
      {splash.lblIntro2, 600, 3480, 6375, 255, " DEZE SOFTWARE IS \"FREEWARE\" (GRATIS).",
       0xFF0000},
      {splash.lblIntro3, 600, 3720, 6375, 255, " KLIK OP DE KNOP \"INFO OLMWERK\" VOOR UITLEG.",
       0xFF0000},
      {splash.lblIntro4, 600, 4200, 5055, 255, " WIL JE WETEN HOE HET PROGRAMMA WERKT ?", 0xFF0000},
      {splash.lblIntro5, 600, 4440, 5415, 255, " DAN KLIK JE OP DE KNOP \"INFO KRAS PRET\". ",
       0xFF0000},
      {splash.Label1, 4200, 2880, 2715, 720, "OLMWERK", 0x0000FF},
  };
  for (const auto& row : labels) {
    SCOPED_TRACE(row.text);
    expectPlace(row.label, row.left, row.top, row.width, row.height);
    EXPECT_EQ(row.label.Caption, row.text);
    EXPECT_EQ(row.label.ForeColor, row.color);
    EXPECT_EQ(row.label.BackColor, 0xE0E0E0);
  }
  expectPlace(splash.lblDank, 720, 4800, 5775, 495);
  EXPECT_EQ(splash.lblDank.Caption->rfind("Met dank aan :", 0), 0u);
  EXPECT_EQ(splash.lblDank.BackColor, 0xE0E0E0);
}

TEST_F(Start, EveryLineOfTheSplashFitsItsPlace) {
  auto& splash = the<frmIntro>();
  splash.Show();
  for (Label* label : {&splash.Label3, &splash.lblVersion, &splash.lblIntro1, &splash.lblIntro2,
                       &splash.lblIntro3, &splash.lblIntro4, &splash.lblIntro5})
    EXPECT_EQ(lines(*label).size(), 1u) << label->Caption.get();
  EXPECT_LE(lines(splash.lblDank).size(), 2u);
}

TEST_F(Start, OneNameStandsBehindTheSplashsFrame) {
  auto& splash = the<frmIntro>();
  splash.Show();
  EXPECT_EQ(&splash.Label1.container(), static_cast<Container*>(&splash));
  const QImage before = shown(splash);
  splash.Label1.Caption = "iets anders";
  EXPECT_EQ(shown(splash), before) << "it shows through the frame";
}

class Menu : public script::Stage {
 protected:
  Menu() { menu.Show(); }
  frmStart& menu = the<frmStart>();
};

TEST_F(Menu, IsAMaximisedGreenWindow) {
  EXPECT_EQ(menu.Caption, "KRAS PRET");
  EXPECT_EQ(menu.BackColor, 0xC0FFC0);
  EXPECT_TRUE(windowOf(menu.txtNaam)->isMaximized());
}

TEST_F(Menu, EveryButtonHasItsPlaceTextColourAndFont) {
  const struct {
    CommandButton& button;
    float left, top, width, height;
    const char* text;
    Color color;
    float size;
  } buttons[] = {
      {menu.cmdTekenen1, 8280, 2880, 3135, 615, "Tekenen Klein", 0x00FFFF, 18},
      {menu.cmdFantasie, 8280, 3600, 3135, 615, "Fantasie Kijken", 0xFFFF00, 18},
      {menu.cmdKleurplaten, 8280, 4320, 3135, 615, "Kleurplaten", 0xFFC0FF, 18},
      {menu.Command1, 8280, 5040, 3135, 615, "Hoe doe ik het ?", 0xC0E0FF, 18},
      {menu.cmdTekenen2, 8280, 5760, 3135, 615, "Tekenen Groot", 0x00FF00, 18},
      {menu.cmdEinde, 8880, 6600, 1935, 735, "Stoppen", 0xC0C0C0, 18},
      {menu.cmdOlmwerk, 8280, 7560, 1335, 615, " INFO &OLMWERK", 0xFFC0C0, 9.75f},
      {menu.cmdInfo, 10080, 7560, 1335, 615, "    &INFO    KRAS PRET", 0xFFC0C0, 9.75f},
  };
  for (const auto& row : buttons) {
    SCOPED_TRACE(row.text);
    expectPlace(row.button, row.left, row.top, row.width, row.height);
    EXPECT_EQ(row.button.Caption, row.text);
    EXPECT_EQ(row.button.Font, (Font{"Arial", row.size, true}));
    EXPECT_EQ(shown(row.button).pixelColor(5, 5), QColor::fromRgb(toPixel(row.color)));
  }
}

TEST_F(Menu, ItsTextsAndItsPictureStandAtTheirPlaces) {
  const struct {
    Label& label;
    float left, top, width, height;
    const char* text;
    Color color;
    float size;
  } labels[] = {
      {menu.lblReken, 240, 0, 11415, 735, "KRAS PRET : wat je ZELF maakt is KUNST", 0xFF0000,
       27.75f},
      {menu.lblNaam, 8040, 720, 3615, 855, "    Dag vriendje.      Vul even je naam in.", 0x0000FF,
       18},
      {menu.Label2, 8160, 2280, 3255, 495, "Begin en klik op :", 0x0000FF, 0},
  };
  for (const auto& row : labels) {
    SCOPED_TRACE(row.text);
    expectPlace(row.label, row.left, row.top, row.width, row.height);
    EXPECT_EQ(row.label.Caption, row.text);
    EXPECT_EQ(row.label.ForeColor, row.color);
    EXPECT_EQ(row.label.BackColor, menu.BackColor);
    // No size: it is free.
    const float size = row.size > 0 ? row.size : row.label.Font.Size;
    EXPECT_EQ(row.label.Font, (Font{"Arial", size, true}));
  }
  expectPlace(menu.Image9, 120, 840, 7575, 7215);
}

TEST_F(Menu, ItsTextsFitTheirPlacesAndBreakAtTheirBlanks) {
  using Lines = std::vector<std::string>;
  EXPECT_EQ(lines(menu.lblReken), (Lines{"KRAS PRET : wat je ZELF maakt is KUNST"}));
  EXPECT_EQ(lines(menu.lblNaam), (Lines{"Dag vriendje.", "Vul even je naam in."}));
  EXPECT_EQ(lines(menu.Label2), (Lines{"Begin en klik op :"}));
  EXPECT_EQ(lines(menu.cmdFantasie), (Lines{"Fantasie Kijken"}));
  EXPECT_EQ(lines(menu.Command1), (Lines{"Hoe doe ik het ?"}));
  EXPECT_EQ(lines(menu.cmdEinde), (Lines{"Stoppen"}));
  EXPECT_EQ(lines(menu.cmdOlmwerk), (Lines{"INFO", "OLMWERK"}));
  EXPECT_EQ(lines(menu.cmdInfo), (Lines{"INFO", "KRAS PRET"}));
}

TEST_F(Menu, TheNamesFieldIsCentredColouredAndEmpty) {
  expectPlace(menu.txtNaam, 8280, 1680, 3135, 495);
  EXPECT_EQ(menu.txtNaam.Text, "");
  EXPECT_EQ(menu.txtNaam.BackColor, 0xC0FFFF);
  EXPECT_EQ(menu.txtNaam.ForeColor, 0x800080);
  EXPECT_EQ(menu.txtNaam.Font, (Font{"Arial", 15.75f, true}));
  const auto* field = qobject_cast<QLineEdit*>(script::widgetOf(menu.txtNaam));
  EXPECT_TRUE(field->alignment().testFlag(Qt::AlignHCenter));
}

TEST_F(Menu, TheNamesFieldIsFirstInTheTabOrder) {
  advance(0);  // until the window is the active one
  EXPECT_TRUE(script::widgetOf(menu.txtNaam)->hasFocus());
}

TEST_F(Menu, TheArtHasTheSizeItsPlacesAskFor) {
  const auto size = [](const char* name) {
    const Picture picture = host().artPicture(name);
    return std::pair{picture.width(), picture.height()};
  };
  EXPECT_EQ(size("logo"), (std::pair{360, 204}));
  EXPECT_EQ(size("welkom"), (std::pair{490, 416}));
  EXPECT_EQ(menu.Image9.PictureName, "welkom");
}

TEST_F(Menu, ANameOfMoreThanSixteenCharactersCannotBeTyped) {
  menu.txtNaam.SetFocus();
  type("abcdefghijklmnopqrstuvwxyz");
  EXPECT_EQ(menu.txtNaam.Text, "abcdefghijklmnop");
}

// Whether all of a field's text can be seen at once.
bool showsAll(TextBox& box) {
  const auto* field = qobject_cast<QLineEdit*>(script::widgetOf(box));
  return field->fontMetrics().horizontalAdvance(field->text()) <= field->width() - 8;
}

TEST_F(Menu, TheWidestNameCanBeSeenWhole) {
  menu.txtNaam.SetFocus();
  type("WWWWWWWWWWWWWWWW");
  EXPECT_TRUE(showsAll(menu.txtNaam));
  const QFont wide = script::widgetOf(menu.txtNaam)->font();
  menu.txtNaam.Text = "Fien";
  EXPECT_GT(script::widgetOf(menu.txtNaam)->font().pixelSize(), wide.pixelSize())
      << "a short name stays small";
  EXPECT_EQ(script::widgetOf(menu.txtNaam)->font().pixelSize(), 21);
}

TEST_F(Menu, OpeningTheStudioHidesTheMenuAndKeepsTheName) {
  menu.txtNaam.Text = "Fien";
  click(menu.cmdTekenen2);
  EXPECT_FALSE(menu.shown());
  EXPECT_TRUE(isLoaded<frmTekenen2>()) << "not the default instance";
  EXPECT_TRUE(the<frmTekenen2>().shown());
  click(the<frmTekenen2>().cmdEinde);
  EXPECT_FALSE(isLoaded<frmTekenen2>());
  EXPECT_TRUE(menu.shown());
  EXPECT_EQ(menu.txtNaam.Text, "Fien");
}

TEST_F(Menu, AnsweringNoLeavesTheNameAndTheMenuAsTheyWere) {
  menu.txtNaam.Text = "Fien";
  answerMessage(No);
  click(menu.cmdEinde);
  ASSERT_EQ(asked().size(), 1u);
  EXPECT_EQ(asked()[0].text, "Ben je zeker dat je wil stoppen ?");
  EXPECT_EQ(asked()[0].title, "Spijtig - berichtje");
  EXPECT_EQ(asked()[0].buttons, YesNo);
  EXPECT_TRUE(menu.shown());
  EXPECT_EQ(menu.txtNaam.Text, "Fien");
  advance(60'000);
  EXPECT_FALSE(ended());
}

TEST_F(Menu, ClosingItsWindowEndsTheProgramAtOnce) {
  closeBox(menu);
  EXPECT_TRUE(ended());
  EXPECT_TRUE(asked().empty());
}

class Farewell : public Menu {
 protected:
  /// Leaves with this name in the field; gives the farewell.
  frmEinde& leave(const std::string& name) {
    menu.txtNaam.Text = name;
    answerMessage(Yes);
    click(menu.cmdEinde);
    for (const auto& form : FormRegistry::instance().forms())
      if (auto* farewell = dynamic_cast<frmEinde*>(form.get())) return *farewell;
    throw std::logic_error("no farewell is shown");
  }
};

TEST_F(Farewell, ThanksTheChildByNameAndTheMenuIsGone) {
  frmEinde& farewell = leave("Fien");
  EXPECT_TRUE(farewell.shown());
  EXPECT_EQ(farewell.Label2.Caption, "Bedankt,  ");
  EXPECT_EQ(farewell.txtNaam2.Text, "Fien");
  EXPECT_FALSE(isLoaded<frmStart>());
  EXPECT_FALSE(isLoaded<frmEinde>()) << "a new instance, not the default one";
}

TEST_F(Farewell, TheWidestNameCanBeSeenWhole) {
  EXPECT_TRUE(showsAll(leave("WWWWWWWWWWWWWWWW").txtNaam2));
}

TEST_F(Farewell, AnEmptyNameIsAFriend) { EXPECT_EQ(leave("").txtNaam2.Text, "vriendje"); }

TEST_F(Farewell, EndsTheProgramByItselfAfterThreeAndAHalfSeconds) {
  leave("Fien");
  advance(3499);
  EXPECT_FALSE(ended());
  advance(1);
  EXPECT_TRUE(ended());
}

TEST_F(Farewell, WithAnotherIntervalItStays) {
  leave("Fien").Timer1.Interval = 1000;
  advance(10'000);
  EXPECT_FALSE(ended());
}

TEST_F(Farewell, ItsTextsStandAtTheirPlaces) {
  frmEinde& farewell = leave("Fien");
  EXPECT_EQ(farewell.Caption, "KRAS PRET");
  EXPECT_EQ(farewell.BackColor, 0xC0FFC0);
  EXPECT_TRUE(windowOf(farewell.Label1)->isMaximized());
  expectPlace(farewell.Image9, 120, 0, 6375, 6135);
  EXPECT_EQ(farewell.Image9.PictureName, "welkom");
  expectPlace(farewell.Label2, 3960, 6120, 1455, 375);
  EXPECT_EQ(farewell.Label2.ForeColor, 0x0000FF);
  expectPlace(farewell.txtNaam2, 5520, 6120, 3375, 465);
  EXPECT_EQ(farewell.txtNaam2.BackColor, 0xC0FFC0);
  EXPECT_EQ(farewell.txtNaam2.ForeColor, 0x800080);
  EXPECT_EQ(farewell.txtNaam2.Font, (Font{"Arial", 18, true}));
  EXPECT_FALSE(farewell.txtNaam2.Border);
  expectPlace(farewell.Label1, 3960, 6600, 4815, 1455);
  EXPECT_EQ(farewell.Label1.Caption,
            "Vond je het de moeite waard ?                  Fijn zo !                Bedankt voor "
            "je moeite en ...          tot een volgende keer !");
}

TEST_F(Farewell, ItsTextBreaksAtItsRunsOfBlanks) {
  frmEinde& farewell = leave("Fien");
  EXPECT_EQ(lines(farewell.Label1),
            (std::vector<std::string>{"Vond je het de moeite waard ?", "Fijn zo !",
                                      "Bedankt voor je moeite en ...", "tot een volgende keer !"}));
  EXPECT_EQ(lines(farewell.Label2), std::vector<std::string>{"Bedankt,"});
}

TEST_F(Farewell, TheNameCannotBeTypedOver) {
  frmEinde& farewell = leave("Fien");
  farewell.txtNaam2.SetFocus();
  type("x");
  EXPECT_EQ(farewell.txtNaam2.Text, "Fien");
}

class TheLastWindow : public script::Stage {
 protected:
  TheLastWindow() { FormRegistry::instance().noWindowLeft = ToonMenuOfStop; }
};

TEST_F(TheLastWindow, ClosedBeforeAHiddenMenuBringsTheMenuBack) {
  auto& menu = the<frmStart>();
  menu.Show();
  menu.txtNaam.Text = "Fien";
  auto& other = showNew<frmIntro>();
  menu.Hide();
  closeBox(other);
  EXPECT_TRUE(menu.shown());
  EXPECT_EQ(menu.txtNaam.Text, "Fien");
  EXPECT_FALSE(ended());
}

TEST_F(TheLastWindow, ClosedBesideAnotherWindowChangesNothing) {
  auto& menu = the<frmStart>();
  auto& other = showNew<frmIntro>();
  showNew<frmIntro>();
  closeBox(other);
  EXPECT_FALSE(menu.shown());
  EXPECT_FALSE(ended());
}

TEST_F(TheLastWindow, TheSplashOrTheFarewellClosedEndsTheProgram) {
  the<frmIntro>().Show();
  closeBox(the<frmIntro>());
  EXPECT_TRUE(ended());
  restart();
  closeBox(showNew<frmEinde>());
  EXPECT_TRUE(ended());
}
