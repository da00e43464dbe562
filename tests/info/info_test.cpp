// The information screens: the ways back, and texts that can be read, scrolled and believed.
#include <QGuiApplication>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTest>

#include "fantasy/frmFantasie.h"
#include "info/frmGebruik.h"
#include "info/frmHelp1.h"
#include "info/frmHelp2.h"
#include "info/frmInfo.h"
#include "info/frmSysInfo.h"
#include "shell/frmStart.h"
#include "small/frmKleurplaat.h"
#include "small/frmTekenen1.h"
#include "studio/frmTekenen2.h"
#include "support/script.h"
#include "support/tree_folder.h"

using namespace surface;

namespace {

// The terms of a help text: what stands between an asterisk and a colon at the start of a line.
std::vector<std::string> terms(const std::string& text) {
  std::vector<std::string> found;
  std::size_t at = 0;
  while ((at = text.find("* ", at)) != std::string::npos) {
    if (at == 0 || text[at - 1] == '\n')
      found.push_back(text.substr(at + 2, text.find(" :", at) - at - 2));
    at += 2;
  }
  return found;
}

QPlainTextEdit& editOf(TextBox& box) {
  auto* edit = qobject_cast<QPlainTextEdit*>(script::widgetOf(box));
  EXPECT_NE(edit, nullptr);
  return *edit;
}

}  // namespace

class Information : public script::Stage {
 protected:
  Information() { app().Path = KRASPRET_TREE; }
  Form& newest() { return *FormRegistry::instance().forms().back(); }
  std::size_t loaded() { return FormRegistry::instance().forms().size(); }
};

TEST_F(Information, TheMenusInfoComesBackToTheMenu) {
  auto& menu = the<frmStart>();
  menu.Show();
  click(menu.cmdInfo);
  EXPECT_FALSE(menu.shown());
  EXPECT_EQ(the<frmInfo>().txtInfo.Text, "1");
  click(the<frmInfo>().cmdEinde);
  EXPECT_TRUE(menu.shown());
  EXPECT_FALSE(isLoaded<frmInfo>());
}

TEST_F(Information, ItsCloseBoxIsAWayBackToo) {
  auto& menu = the<frmStart>();
  menu.Show();
  click(menu.cmdInfo);
  closeBox(the<frmInfo>());
  EXPECT_TRUE(menu.shown());
}

TEST_F(Information, FromTheFantasyMenuItComesBackThere) {
  auto& info = the<frmInfo>();
  info.Show();
  info.txtInfo.Text = "2";
  click(info.cmdEinde);
  EXPECT_TRUE(the<frmFantasie>().shown());
  EXPECT_EQ(loaded(), 1u);
}

TEST_F(Information, AltAndTheUnderlinedLetterLeadBackFromEveryScreen) {
  // A button that is pressed by its letter stays down for a tenth of a second.
  const auto leadsBack = [this](Form& from, Qt::Key letter, auto arrived) {
    from.Show();
    advance(0);
    QTest::keyClick(QGuiApplication::focusWindow(), letter, Qt::AltModifier);
    return QTest::qWaitFor(arrived) && loaded() == 1;
  };
  const auto inMenu = [] { return isLoaded<frmStart>() && the<frmStart>().shown(); };
  the<frmInfo>().txtInfo.Text = "1";
  EXPECT_TRUE(leadsBack(the<frmInfo>(), Qt::Key_S, inMenu));
  Unload(the<frmStart>());
  EXPECT_TRUE(leadsBack(loadNew<frmGebruik>(), Qt::Key_A, inMenu));
  Unload(the<frmStart>());
  EXPECT_TRUE(leadsBack(loadNew<frmHelp1>(), Qt::Key_S, [] { return isLoaded<frmTekenen1>(); }));
  Unload(the<frmTekenen1>());
  EXPECT_TRUE(leadsBack(loadNew<frmHelp2>(), Qt::Key_S, [] { return isLoaded<frmTekenen2>(); }));
}

TEST_F(Information, ItsButtonsAndTitlesAreToldToTheLetter) {
  EXPECT_EQ(the<frmInfo>().cmdEinde.Caption, "&Sluiten");
  EXPECT_EQ(loadNew<frmHelp1>().cmdEinde.Caption, "&Sluiten");
  EXPECT_EQ(loadNew<frmHelp2>().cmdEinde.Caption, "&Sluiten");
  EXPECT_EQ(loadNew<frmGebruik>().cmdSluit.Caption,
            "Ik heb de overeenkomst gelezen en ga &akkoord");
  EXPECT_EQ(the<frmStart>().cmdInfo.Caption, "    &INFO    KRAS PRET");
  EXPECT_EQ(loadNew<frmKleurplaat>().cmdInfo.Caption, "    &INFO    KRAS PRET");
  EXPECT_EQ(loadNew<frmKleurplaat>().cmdEinde.Caption, "Sluiten");
}

TEST_F(Information, FromThePagesItComesBackToTheFirstOfThem) {
  auto& info = the<frmInfo>();
  info.Show();
  info.txtInfo.Text = "3";
  click(info.cmdEinde);
  EXPECT_TRUE(the<frmKleurplaat>().shown());
  EXPECT_EQ(loaded(), 1u);
}

TEST_F(Information, HelpOfTheLargeStudioGivesTheDrawingBack) {
  auto& studio = the<frmTekenen2>();
  studio.Show();
  drag(studio.picBlad, 50, 50, 90, 50);
  click(studio.Command1);
  EXPECT_FALSE(studio.shown());
  auto& help = dynamic_cast<frmHelp2&>(newest());
  click(help.cmdEinde);
  EXPECT_TRUE(studio.shown());
  EXPECT_EQ(studio.picBlad.Point({70, 50}), Black);
  EXPECT_EQ(loaded(), 1u);
  click(studio.Command1);
  closeBox(newest());
  EXPECT_TRUE(studio.shown());
}

TEST_F(Information, HelpOfTheSmallStudioComesBackToTheOneInstance) {
  auto& help = showNew<frmHelp1>();
  click(help.cmdEinde);
  EXPECT_TRUE(the<frmTekenen1>().shown());
  EXPECT_EQ(loaded(), 1u);
}

TEST_F(Information, TheTermsLeadBackToTheMenuWhateverOneClicks) {
  auto& menu = the<frmStart>();
  menu.Show();
  click(menu.cmdOlmwerk);
  EXPECT_FALSE(menu.shown());
  auto& first = dynamic_cast<frmGebruik&>(newest());
  EXPECT_EQ(first.lblGebruik.Caption, "GEBRUIKSOVEREENKOMST");
  EXPECT_EQ(first.lblWebsite.Caption, "Website : ");
  EXPECT_EQ(first.lblEmail.Caption, "E-mail : ");
  click(first.cmdSluit);
  EXPECT_TRUE(menu.shown());
  click(menu.cmdOlmwerk);
  closeBox(newest());
  EXPECT_TRUE(menu.shown());
  EXPECT_EQ(loaded(), 1u);
}

TEST_F(Information, TheButtonsOfTheSystemScreenDoNothingAndItsCloseBoxEndsIt) {
  auto& studio = the<frmTekenen2>();
  studio.Show();
  auto& system = showNew<frmSysInfo>();
  EXPECT_EQ(system.lblDescription.Caption,
            "Informatie over de hardware en de systeembronnen van je pc.");
  EXPECT_EQ(system.cmdSysInfo.Caption, "Info systeem");
  EXPECT_EQ(system.cmdSluiten.Caption, "Sluiten");
  click(system.cmdSysInfo);
  click(system.cmdSluiten);
  EXPECT_TRUE(system.shown());
  EXPECT_TRUE(studio.shown());
  closeBox(system);
  EXPECT_EQ(loaded(), 1u);
  EXPECT_TRUE(studio.shown());
}

TEST_F(Information, SmallHelpHasAnEntryForEachControlInTheOrderOfTheScreen) {
  const std::string text = showNew<frmHelp1>().Text1.Text;
  EXPECT_TRUE(
      text.starts_with("Tekenen door middel van de basisgereedschappen : éénmaal klikken op de"));
  EXPECT_TRUE(
      text.ends_with("Laat je muis er dan even op rusten : er verschijnt een schermpje met "
                     "uitleg.\n\nVeel succes !"));
  const std::vector<std::string> wanted = {"het potlood",
                                           "de rechte lijn",
                                           "de rechthoek",
                                           "de cirkel",
                                           "opvullen (verfpotje)",
                                           "spuitbusje",
                                           "ongedaan maken (pijl terug)",
                                           "alles wissen (rood kruis)",
                                           "het gommetje",
                                           "bestand openen (open mapje)",
                                           "kleurplaat openen (bloemetjes)",
                                           "bestand opslaan (diskette)",
                                           "afdrukken (printer)",
                                           "de schuifregelaar",
                                           "het mededelingenbordje",
                                           "de knop Einde",
                                           "het kleurenpalet"};
  EXPECT_EQ(terms(text), wanted);
}

TEST_F(Information, LargeHelpHasAnEntryForEachControlAndForEachMenu) {
  const std::string text = showNew<frmHelp2>().Text1.Text;
  EXPECT_TRUE(text.starts_with(
      "Tekenen door middel van de gereedschappen : het volstaat om éénmaal te klikken"));
  const std::vector<std::string> wanted = {"het kleurenpalet",
                                           "de knop Einde",
                                           "verticaal spiegelbeeld",
                                           "horizontaal spiegelbeeld",
                                           "formaat veranderen",
                                           "achtergrondkleur",
                                           "het kleurenpipetje",
                                           "opvullen",
                                           "de spuitbus",
                                           "het gommetje",
                                           "het potlood",
                                           "kunstlijnen",
                                           "de rechte lijn",
                                           "alles wissen (rood kruis)",
                                           "de cirkel",
                                           "de gevulde cirkel",
                                           "de ellips",
                                           "de gevulde ellips",
                                           "de rechthoek",
                                           "de gevulde rechthoek",
                                           "tekst invoegen",
                                           "knippen",
                                           "kopiëren",
                                           "plakken",
                                           "ongedaan maken (pijl terug)",
                                           "herstellen",
                                           "nieuwe tekening",
                                           "openen (open mapje)",
                                           "opslaan (diskette)",
                                           "afdrukken (printer)",
                                           "help (vraagteken)",
                                           "Lijnen",
                                           "Gommen",
                                           "Maatlatten",
                                           "Opvullen",
                                           "Borstelstreken",
                                           "Kleurovergang",
                                           "Effecten",
                                           "Inzoomen",
                                           "Roteren",
                                           "het mededelingenbordje",
                                           "de coördinaten"};
  EXPECT_EQ(terms(text), wanted);
  const auto menus =
      text.find("De knoppen met een lichtblauwe achtergrond roepen hulpschermen op :");
  ASSERT_NE(menus, std::string::npos);
  EXPECT_LT(text.find("* help (vraagteken)"), menus);
  EXPECT_LT(menus, text.find("* Lijnen"));
}

TEST_F(Information, BothHelpsTellWhereAPrintedDrawingComes) {
  const char* const place = "linksboven een pagina (marge 2 cm)";
  EXPECT_NE(showNew<frmHelp1>().Text1.Text->find(place), std::string::npos);
  EXPECT_NE(showNew<frmHelp2>().Text1.Text->find(place), std::string::npos);
}

TEST_F(Information, ALongTextScrollsByKeysWheelAndAVisibleBarAndCannotBeChanged) {
  auto& help = showNew<frmHelp2>();
  QPlainTextEdit& edit = editOf(help.Text1);
  QScrollBar& bar = *edit.verticalScrollBar();
  EXPECT_TRUE(bar.isVisible());
  EXPECT_EQ(edit.lineWrapMode(), QPlainTextEdit::WidgetWidth);
  QTest::keyClick(&edit, Qt::Key_PageDown);
  const int afterKey = bar.value();
  EXPECT_GT(afterKey, 0);
  QTest::keyClick(&edit, Qt::Key_Down);
  EXPECT_GT(bar.value(), afterKey);
  QTest::keyClick(&edit, Qt::Key_X);
  EXPECT_FALSE(edit.toPlainText().contains("xTekenen"));
  EXPECT_EQ(edit.toPlainText().toStdString(), help.Text1.Text.get());
  for (int page = 0; page < 20; ++page) QTest::keyClick(&edit, Qt::Key_PageDown);
  EXPECT_EQ(bar.value(), bar.maximum()) << "the last line cannot be reached";
  EXPECT_GE(edit.fontInfo().pixelSize(), 16);
}
