// A class of children comes and goes all day: what the program holds must not grow with the visits.
#include <QPixmapCache>
#include <filesystem>

#include "course/frmTekenen3.h"
#include "files/picture_files.h"
#include "shell/frmStart.h"
#include "small/frmKleurplaat.h"
#include "small/frmKleurplaat2.h"
#include "small/frmTekenen1.h"
#include "support/held_bytes.h"
#include "support/script.h"
#include "support/tree_folder.h"

using namespace surface;

namespace {

// One sheet is more than a megabyte, two screens of even the smallest pages half of one: what stays
// of a hundred visits would be seen at once.
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
  // The toolkit keeps the icons of windows that are gone until they come to ten megabytes.
  static std::size_t held() {
    QPixmapCache::clear();
    return heldBytes();
  }
  template <class Visit>
  void expectFlat(Visit visit) {
    for (int i = 0; i < 5; ++i) visit();
    const std::size_t before = held();
    for (int i = 0; i < 100; ++i) visit();
    const std::size_t after = held();
    EXPECT_LE(after, before + Slack) << "grown by " << after - before << " bytes";
    EXPECT_TRUE(menu.shown());
  }
};

TEST_F(Visits, ToTheSmallStudioLeaveNothingBehind) {
  expectFlat([&] {
    menu.cmdTekenen1.Click();
    auto& studio = dynamic_cast<frmTekenen1&>(newest());
    press(studio.picBlad, 20, 20);
    move(studio.picBlad, 200, 200, 1);
    release(studio.picBlad, 200, 200);
    studio.cmdEinde.Click();
    advance(0);
  });
}

TEST_F(Visits, ToTheCourseLeaveNothingBehind) {
  expectFlat([&] {
    menu.Command1.Click();
    closeBox(newest());
    auto& lesson = showNew<frmTekenen3>();
    for (int step = 0; step < 4; ++step) lesson.buttons()[static_cast<std::size_t>(step)]->Click();
    lesson.cmdSluiten.Click();
    advance(0);
  });
}

TEST_F(Visits, ToTheInformationScreensLeaveNothingBehind) {
  expectFlat([&] {
    menu.cmdInfo.Click();
    newest().CloseBox();
    menu.cmdOlmwerk.Click();
    newest().CloseBox();
    advance(0);
  });
}

// Pages of 64 pixels a side: what counts is that none of them stays.
TEST_F(Visits, ToTheColouringPagesLeaveNothingBehind) {
  std::filesystem::create_directory(folder() + "/Beeld");
  for (int page = 1; page <= 30; ++page)
    picture_files::write(
        folder() + "/Beeld/" + (page < 10 ? "0" : "") + std::to_string(page) + ".gif",
        picture_files::trueColorBmp(64, 64, 24,
                                    [](int x, int y) { return x % 8 == y % 8 ? 0u : 0xFFFFFFu; }));
  app().Path = folder();
  expectFlat([&] {
    menu.cmdKleurplaten.Click();
    dynamic_cast<frmKleurplaat&>(newest()).cmdKleurplaat2.Click();
    dynamic_cast<frmKleurplaat2&>(newest()).pic4.Click();
    the<frmTekenen1>().cmdEinde.Click();
    advance(0);
  });
}
