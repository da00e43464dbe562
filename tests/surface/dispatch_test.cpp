// Events, the two error regimes, untrapped errors, and the end of the program.
#include "surface/dispatch.h"

#include <QCoreApplication>
#include <QResizeEvent>
#include <QWidget>
#include <memory>
#include <new>
#include <stdexcept>

#include "support/errors.h"
#include "support/script.h"
#include "surface/form.h"
#include "surface/host.h"

using namespace surface;

namespace {

[[noreturn]] void fail(ErrorKind kind = ErrorKind::Overflow) {
  throw RuntimeError(kind, "Something happened");
}

}  // namespace

class Events : public script::Stage {};
class Errors : public script::Stage {
 protected:
  /// How often the event loop was told to leave.
  int left = 0;
  Errors() {
    host().leaveEventLoop = [this] { ++left; };
  }
};

TEST_F(Events, AnEventWithoutAHandlerDoesNothing) {
  const Event<> event;
  EXPECT_FALSE(event.handled());
  EXPECT_NO_THROW(event());
}

TEST_F(Events, AnEventHasOneHandlerTheLastOneGiven) {
  Event<int> event;
  int first = 0, second = 0;
  event = [&](int i) { first += i; };
  event = [&](int i) { second += i; };
  event(3);
  event(4);
  EXPECT_EQ(first, 0);
  EXPECT_EQ(second, 7);
}

TEST_F(Events, WhatWaitsForHandlersHappensAfterTheOutermostOne) {
  Event<> inner, outer;
  bool happened = false;
  inner = [&] { whenHandlersReturned([&] { happened = true; }); };
  outer = [&] {
    inner();
    EXPECT_FALSE(happened) << "the outer handler still runs";
  };
  outer();
  EXPECT_TRUE(happened);
}

TEST_F(Events, OutsideAnyHandlerNothingWaits) {
  bool happened = false;
  whenHandlersReturned([&] { happened = true; });
  EXPECT_TRUE(happened);
}

TEST_F(Events, AnActionThatWaitedMayPutOffAnother) {
  std::string order;
  Event<> event;
  event = [&] {
    whenHandlersReturned([&] {
      order += "a";
      const HandlerScope scope;
      whenHandlersReturned([&] { order += "c"; });
      order += "b";
    });
  };
  event();
  EXPECT_EQ(order, "abc");
}

TEST_F(Errors, TrapAndLeaveSkipsTheRestOfTheHandlerSilently) {
  int steps = 0;
  EXPECT_FALSE(trapAndLeave([&] {
    ++steps;
    fail();
  }));
  EXPECT_EQ(steps, 1);
  EXPECT_TRUE(trapAndLeave([&] { ++steps; }));
  EXPECT_EQ(steps, 2);
}

TEST_F(Errors, ResumeNextSkipsOnlyTheStepThatFails) {
  std::string order;
  resumeNext([&] { order += "a"; },
             [&] {
               order += "b";
               fail();
             },
             [&] { order += "c"; });
  EXPECT_EQ(order, "abc");
}

TEST_F(Errors, NeitherRegimeHoldsWhatIsNoErrorOfTheLogic) {
  EXPECT_THROW(trapAndLeave([] { throw std::logic_error("a mistake of ours"); }), std::logic_error);
}

TEST_F(Errors, AnUntrappedErrorIsReportedAndEndsTheProgram) {
  bool wentOn = false;
  dispatch([&] {
    fail(ErrorKind::DivisionByZero);
    wentOn = true;
  });
  EXPECT_FALSE(wentOn);
  EXPECT_EQ(takeErrorReport(), "Something happened");
  EXPECT_TRUE(ended());
  EXPECT_EQ(left, 1);
}

TEST_F(Errors, AMistakeOfAnyKindIsReportedAndNeverReachesTheToolkit) {
  EXPECT_NO_THROW(dispatch([] { throw std::out_of_range("vector"); }));
  EXPECT_EQ(takeErrorReport(), "vector");
  restart();
  EXPECT_NO_THROW(dispatch([] { throw 42; }));
  EXPECT_TRUE(takeErrorReport().has_value());
  EXPECT_TRUE(ended());
}

TEST_F(Errors, AfterTheEndNoHandlerRuns) {
  dispatch([] { fail(); });
  takeErrorReport();
  bool ran = false;
  dispatch([&] { ran = true; });
  EXPECT_FALSE(ran);
}

// The report waits for the child's OK, and meanwhile the toolkit's loop turns.
TEST_F(Errors, NoHandlerRunsBehindTheOpenErrorReport) {
  bool ran = false;
  host().errorReport = [&](const std::string&, bool) { dispatch([&] { ran = true; }); };
  dispatch([] { fail(); });
  EXPECT_FALSE(ran);
  EXPECT_TRUE(ended());
}

TEST_F(Errors, AReportedErrorLeavesItsStepsAndTheProgramLives) {
  std::string told;
  bool stops = true, behind = false, after = false;
  host().errorReport = [&](const std::string& text, bool ends) {
    told = text;
    stops = ends;
  };
  dispatch([&] {
    EXPECT_FALSE(trapAndReport([&] {
      fail();
      behind = true;
    }));
    after = true;
  });
  EXPECT_EQ(told, "Something happened");
  EXPECT_FALSE(stops);
  EXPECT_FALSE(behind);
  EXPECT_TRUE(after);
  EXPECT_FALSE(ended());
  EXPECT_TRUE(trapAndReport([] {}));
}

TEST_F(Errors, EndLeavesAtOnceAndSilently) {
  bool wentOn = false;
  dispatch([&] {
    trapAndLeave([] { End(); });
    wentOn = true;
  });
  EXPECT_FALSE(wentOn) << "the trap for errors has held the end";
  EXPECT_TRUE(ended());
  EXPECT_EQ(left, 1);
  EXPECT_FALSE(takeErrorReport().has_value());
}

// A timer's handler may end the program while an outer handler waits for a message box.
TEST_F(Errors, TheEndBehindADialogEndsTheWaitingHandlerToo) {
  host().msgBox = [](const std::string&, int, const std::string&) {
    dispatch([] { End(); });
    return static_cast<int>(No);
  };
  bool wentOn = false;
  dispatch([&] {
    MsgBox("Nog even ?", YesNo);
    wentOn = true;
  });
  EXPECT_FALSE(wentOn);
  EXPECT_TRUE(ended());
}

TEST_F(Errors, WhatWasPutOffHappensAlsoWhenTheHandlerFails) {
  auto held = std::make_shared<int>(0);
  const std::weak_ptr<int> watched = held;
  dispatch([&] {
    whenHandlersReturned([kept = std::move(held)] {});
    fail();
  });
  EXPECT_TRUE(watched.expired());
  takeErrorReport();
}

TEST_F(Errors, AnErrorInWorkThatWasPutOffIsReportedAndKeepsNoOtherFromItsTurn) {
  bool other = false;
  dispatch([&] {
    whenHandlersReturned([] { fail(); });
    whenHandlersReturned([&] { other = true; });
  });
  EXPECT_EQ(takeErrorReport(), "Something happened");
  EXPECT_TRUE(other);
  EXPECT_TRUE(ended());
}

TEST_F(Errors, WorkThatWasPutOffMayEndTheProgram) {
  dispatch([] { whenIdle([] { End(); }); });
  EXPECT_TRUE(ended());
  EXPECT_EQ(left, 1);
}

TEST_F(Errors, AWindowThatBecomesTooLargeIsReportedLikeAnyError) {
  class Wall : public Form {
   public:
    Wall() : Form({.Width = 3000, .Height = 1500}) {}
    Label lblTekst{*this, {.Width = 750, .Height = 375}};
  };
  Wall& wall = the<Wall>();
  wall.Show();
  QWidget* inside = script::widgetOf(wall.lblTekst)->parentWidget();
  // The resize of a window reaches the model as an event: 40000 pixels are more than it takes.
  QResizeEvent grown({40000, 100}, inside->size());
  QCoreApplication::sendEvent(inside, &grown);
  EXPECT_EQ(takeErrorReport(), "Out of memory");
  EXPECT_TRUE(ended());
}

TEST_F(Errors, LackOfMemoryIsTrappedAndReportedLikeAnyError) {
  EXPECT_FALSE(trapAndLeave([] { throw std::bad_alloc(); }));
  bool wentOn = false;
  resumeNext([] { throw std::bad_alloc(); }, [&] { wentOn = true; });
  EXPECT_TRUE(wentOn);
  dispatch([] { throw std::bad_alloc(); });
  EXPECT_EQ(takeErrorReport(), "Out of memory");
}

class DoingEvents : public script::Stage {};

TEST_F(DoingEvents, LetsWaitingEventsInAndShowsWhatTheHandlerHasDrawn) {
  Form paper({.Width = 1500, .Height = 1500});
  std::string order;
  host().doEvents = [&] { dispatch([&] { order += "inner "; }); };
  dispatch([&] {
    whenIdle([&] { order += "shown "; });
    DoEvents();
    order += "after";
  });
  EXPECT_EQ(order, "shown inner after");
}

TEST_F(DoingEvents, EndsTheHandlerIfAnEventHasEndedTheProgram) {
  bool wentOn = false;
  host().doEvents = [] { dispatch([] { End(); }); };
  dispatch([&] {
    DoEvents();
    wentOn = true;
  });
  EXPECT_FALSE(wentOn);
  EXPECT_TRUE(ended());
}
