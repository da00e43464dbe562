// What becomes of a drawing when the desktop logs out or the machine goes down.
#include <unistd.h>

#include <QCoreApplication>
#include <csignal>
#include <filesystem>

#include "files/disk.h"
#include "files/picture_files.h"
#include "files/redding.h"
#include "studio/frmTekenen2.h"
#include "support/errors.h"
#include "support/script.h"
#include "surface/host.h"
#include "surface/qt/system.h"
#include "surface/qt/toolkit.h"

using namespace surface;
using namespace picture_files;

class GoingDown : public script::Stage {
 protected:
  GoingDown() { studio.Show(); }

  void draw() { drag(studio.picBlad, 40, 50, 140, 50); }
  std::string path(const std::string& name) { return folder() + "/" + name; }
  void expectDrawing(const std::string& name) {
    const SavedBmp saved(path(name));
    ASSERT_EQ(saved.width(), 617);
    ASSERT_EQ(saved.height(), 537);
    EXPECT_EQ(saved.at(100, 50), 0u);
    EXPECT_EQ(saved.at(100, 51), 0xFFFFFFu);
  }

  frmTekenen2& studio = the<frmTekenen2>();
};

TEST_F(GoingDown, TakesTheDrawingAlong) {
  draw();
  redTekeningen(folder());
  EXPECT_EQ(disk::names(folder()), std::vector<std::string>{"KrasPret redding 1.bmp"});
  expectDrawing("KrasPret redding 1.bmp");
}

TEST_F(GoingDown, TakesANewNumberEachTimeAndOverwritesNothing) {
  draw();
  write(path("KrasPret redding 2.bmp"), "van iemand anders");
  for (int times = 0; times < 2; ++times) redTekeningen(folder());
  expectDrawing("KrasPret redding 1.bmp");
  expectDrawing("KrasPret redding 3.bmp");
  EXPECT_EQ(read(path("KrasPret redding 2.bmp")), "van iemand anders");
  EXPECT_EQ(disk::names(folder()).size(), 3u);
}

TEST_F(GoingDown, LeavesASheetWithNothingOnItsBackground) {
  redTekeningen(folder());
  studio.picBlad.BackColor = 0x80FFFF;
  redTekeningen(folder());
  EXPECT_TRUE(disk::names(folder()).empty());
}

TEST_F(GoingDown, EndsQuietlyWhereNothingCanBeWritten) {
  draw();
  redTekeningen(path("nergens"));
  {
    const disk::SizeLimit full(100'000);
    redTekeningen(folder());
  }
  EXPECT_TRUE(disk::names(folder()).empty()) << "debris";
}

TEST_F(GoingDown, TakesTheDrawingAlongBehindAnOpenMessageAndAnOpenReportOfAnError) {
  const surface::qt::Program program{
      .start = {}, .logOut = {}, .rescue = [this](const std::string&) { redTekeningen(folder()); }};
  const auto goDown = [&] { surface::qt::endFromOutside(program); };
  draw();
  host().msgBox = [&](const std::string&, int, const std::string&) {
    goDown();
    return Ok;
  };
  dispatch([] { MsgBox("Klaar"); });
  EXPECT_TRUE(ended());
  expectDrawing("KrasPret redding 1.bmp");
  restart();
  host().errorReportBeforeLoss = [&](const std::string&) {
    goDown();
    return false;
  };
  dispatch([] { throw RuntimeError(ErrorKind::BadFile, "mis"); });
  EXPECT_TRUE(ended());
  expectDrawing("KrasPret redding 2.bmp");
  EXPECT_EQ(disk::names(folder()).size(), 2u);
}

// The system waits no longer: a disk that does not answer must not hold the machine up.
TEST_F(GoingDown, TheEndComesAfterTwoSecondsAtTheLatest) {
  EXPECT_EXIT(
      {
        surface::qt::whenAskedToEnd([] {
          if (alarm(0) != 2) _exit(1);
          std::raise(SIGALRM);  // as if they had passed
          _exit(2);
        });
        std::raise(SIGTERM);
        for (int turns = 0; turns < 100; ++turns) QCoreApplication::processEvents();
        _exit(3);
      },
      testing::ExitedWithCode(0), "");
}

TEST_F(GoingDown, ALogOutAsksWhetherToSaveTheDrawing) {
  draw();
  answerMessage(Yes);
  answerFile(path("mooi.bmp"));
  vraagBijAfmelden();
  ASSERT_EQ(asked().size(), 2u);
  EXPECT_EQ(asked()[0].text, "Wil je de huidige tekening opslaan ?");
  EXPECT_EQ(asked()[0].title, "Opslaan");
  EXPECT_EQ(asked()[0].buttons, YesNo);
  expectDrawing("mooi.bmp");
}

TEST_F(GoingDown, ALogOutAsksNothingAboutAnEmptySheet) {
  vraagBijAfmelden();
  EXPECT_TRUE(asked().empty());
}
