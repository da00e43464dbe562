// The splash screen, the menu and the farewell.
#include "shell/frmEinde.h"
#include "shell/frmIntro.h"
#include "shell/frmStart.h"
#include "studio/frmTekenen2.h"
#include "support/script.h"

using namespace surface;

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

TEST_F(Start, AnsweringNoLeavesTheNameAndTheMenuAsTheyWere) {
  auto& menu = the<frmStart>();
  menu.Show();
  menu.txtNaam.Text = "Fien";
  answerMessage(No);
  click(menu.cmdEinde);
  ASSERT_EQ(asked().size(), 1u);
  EXPECT_EQ(asked()[0].text, "Ben je zeker dat je wil stoppen ?");
  EXPECT_EQ(asked()[0].title, "Spijtig - berichtje");
  EXPECT_TRUE(menu.shown());
  EXPECT_EQ(menu.txtNaam.Text, "Fien");
}

TEST_F(Start, OpeningTheStudioHidesTheMenuAndKeepsTheName) {
  auto& menu = the<frmStart>();
  menu.Show();
  menu.txtNaam.Text = "Fien";
  click(menu.cmdTekenen2);
  EXPECT_FALSE(menu.shown());
  EXPECT_TRUE(the<frmTekenen2>().shown());
  click(the<frmTekenen2>().cmdEinde);
  EXPECT_FALSE(isLoaded<frmTekenen2>());
  EXPECT_TRUE(menu.shown());
  EXPECT_EQ(menu.txtNaam.Text, "Fien");
}
