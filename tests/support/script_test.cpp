// The stage itself: what a test leaves behind must not reach the next one in the same program.
#include "support/script.h"

#include <gtest/gtest.h>

#include <QGuiApplication>

#include "surface/controls.h"
#include "surface/form.h"

namespace {

struct LonelyButton : surface::Form {
  LonelyButton() : Form({.Width = 3000, .Height = 3000}) {}
  surface::CommandButton button{*this, {.Width = 1500, .Height = 450}};
};

struct LeftBehind : script::Stage {
  void TestBody() override {}
  LonelyButton& form = surface::the<LonelyButton>();
  int clicks = 0;
  LeftBehind() {
    form.button.Click = [this] { ++clicks; };
    form.Show();
  }
};

}  // namespace

TEST(TheStage, LetsGoOfTheButtonsThatATestLeftDown) {
  for (const int button : {1, 2, 4}) {
    LeftBehind left;
    left.press(left.form.button, 10, 10, button);
    EXPECT_NE(QGuiApplication::mouseButtons(), Qt::NoButton);
  }
  EXPECT_EQ(QGuiApplication::mouseButtons(), Qt::NoButton);
  LeftBehind next;
  next.click(next.form.button);
  EXPECT_EQ(next.clicks, 1);
}
