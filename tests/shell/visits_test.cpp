// A class of children comes and goes all day: what the program holds must not grow with the visits.
#include "course/frmTekenen3.h"
#include "shell/frmStart.h"
#include "small/frmKleurplaat.h"
#include "small/frmKleurplaat2.h"
#include "small/frmTekenen1.h"
#include "support/held_bytes.h"
#include "support/script.h"
#include "support/tree_folder.h"

using namespace surface;

namespace {

// One sheet is more than a megabyte, a screen of pages twenty: what stays of a visit would be seen
// at once.
constexpr std::size_t Slack = 512 * 1024;

}  // namespace

class Visits : public script::Stage {
 protected:
  Visits() {
    app().Path = KRASPRET_TREE;
    menu.Show();
  }

  frmStart& menu = the<frmStart>();

  Form& newest() { return *FormRegistry::instance().forms().back(); }
  template <class Visit>
  void expectFlat(int visits, Visit visit) {
    for (int i = 0; i < 5; ++i) visit();
    const std::size_t before = heldBytes();
    for (int i = 0; i < visits; ++i) visit();
    const std::size_t after = heldBytes();
    EXPECT_LE(after, before + Slack) << "grown by " << after - before << " bytes";
    EXPECT_TRUE(menu.shown());
  }
};

TEST_F(Visits, ToTheSmallStudioLeaveNothingBehind) {
  expectFlat(40, [&] {
    menu.cmdTekenen1.Click();
    auto& studio = dynamic_cast<frmTekenen1&>(newest());
    drag(studio.picBlad, 20, 20, 200, 200);
    studio.cmdEinde.Click();
    advance(0);
  });
}

TEST_F(Visits, ToTheCourseLeaveNothingBehind) {
  expectFlat(40, [&] {
    menu.Command1.Click();
    closeBox(newest());
    auto& lesson = showNew<frmTekenen3>();
    for (int step = 0; step < 4; ++step) lesson.buttons()[static_cast<std::size_t>(step)]->Click();
    lesson.cmdSluiten.Click();
    advance(0);
  });
}

TEST_F(Visits, ToTheInformationScreensLeaveNothingBehind) {
  expectFlat(40, [&] {
    menu.cmdInfo.Click();
    newest().CloseBox();
    menu.cmdOlmwerk.Click();
    newest().CloseBox();
    advance(0);
  });
}

TEST_F(Visits, ToTheColouringPagesLeaveNothingBehind) {
  expectFlat(15, [&] {
    menu.cmdKleurplaten.Click();
    dynamic_cast<frmKleurplaat&>(newest()).cmdKleurplaat2.Click();
    dynamic_cast<frmKleurplaat2&>(newest()).pic4.Click();
    the<frmTekenen1>().cmdEinde.Click();
    advance(0);
  });
}
