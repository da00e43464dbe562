// The large studio without a pointer: what the Tab key reaches, what keys do there, and what a
// screen reader says.
#include <QAccessible>
#include <QTest>
#include <QWidget>

#include "studio/frmTekenen2.h"
#include "support/script.h"

using namespace surface;

class Reach : public script::Stage {
 protected:
  Reach() { studio.Show(); }

  static void keys(Control& control, std::initializer_list<Qt::Key> pressed) {
    QWidget* widget = script::widgetOf(control);
    widget->setFocus();
    for (const Qt::Key key : pressed) QTest::keyClick(widget, key);
  }
  static bool stops(Control& control) {
    return script::widgetOf(control)->focusPolicy() & Qt::TabFocus;
  }

  frmTekenen2& studio = the<frmTekenen2>();
};

TEST_F(Reach, AColourIsPickedFromThePaletteByKeyboard) {
  ASSERT_TRUE(stops(studio.picPalet));
  keys(studio.picPalet, {Qt::Key_Space});
  const Color middle = studio.picBlad.ForeColor;
  EXPECT_EQ(studio.Shape1.FillColor, middle);
  EXPECT_NE(middle, NoColor);
  // As far up and left as it goes.
  for (int i = 0; i < 40; ++i) keys(studio.picPalet, {Qt::Key_Left, Qt::Key_Up});
  keys(studio.picPalet, {Qt::Key_Space});
  EXPECT_EQ(studio.picBlad.ForeColor, studio.picPalet.Point({0, 0}));
  EXPECT_NE(studio.picBlad.ForeColor, middle);
}

TEST_F(Reach, AStampIsChosenByKeyboard) {
  studio.cmdBorstels.Click();
  ASSERT_TRUE(stops(studio.picBorstel3));
  keys(studio.picBorstel3, {Qt::Key_Space});
  EXPECT_EQ(studio.lblModus.Caption, "een punt of lijn tekenen met figuurtjes");
}

TEST_F(Reach, ASwatchOpensItsDialogByKeyboard) {
  studio.cmdGradient.Click();
  answerColor(0x0000FF);
  keys(studio.Picture3, {Qt::Key_Space});
  EXPECT_EQ(studio.Picture3.BackColor, 0x0000FF);
}

TEST_F(Reach, TheSheetIsForThePointer) { EXPECT_FALSE(stops(studio.picBlad)); }

TEST_F(Reach, TheOptionsAreRadioButtonsToAScreenReader) {
  studio.cmdVulling.Click();
  const auto* spoken = QAccessible::queryAccessibleInterface(script::widgetOf(studio.Option5(1)));
  ASSERT_NE(spoken, nullptr);
  EXPECT_EQ(spoken->role(), QAccessible::RadioButton);
  studio.Option5(1).Value = true;
  EXPECT_TRUE(spoken->state().checked);
  studio.Option5(1).Value = false;
  EXPECT_FALSE(spoken->state().checked) << "the last one of a choice can be cleared, too";
}

TEST_F(Reach, TheListOfLineStylesIsToldApartFromTheStyleThatItShows) {
  studio.cmdLijnen.Click();
  auto* list = QAccessible::queryAccessibleInterface(script::widgetOf(studio.cboStijl));
  EXPECT_EQ(list->role(), QAccessible::ComboBox);
  EXPECT_EQ(list->text(QAccessible::Name), "Lijnstijl");
  EXPECT_EQ(list->text(QAccessible::Value), "Doorlopend");
  EXPECT_TRUE(list->state().collapsed);
  auto* rows = list->child(0);
  ASSERT_NE(rows, nullptr);
  EXPECT_EQ(list->indexOfChild(rows), 0);
  EXPECT_EQ(rows->text(QAccessible::Name), "Lijnstijl");
  EXPECT_EQ(rows->childCount(), 5);
  studio.cboStijl.ListIndex = 2;
  EXPECT_EQ(list->text(QAccessible::Name), "Lijnstijl");
  EXPECT_EQ(list->text(QAccessible::Value), "Kleurrijk");
}

TEST_F(Reach, AScreenReaderCanOpenTheListOfLineStyles) {
  studio.cmdLijnen.Click();
  auto* list = QAccessible::queryAccessibleInterface(script::widgetOf(studio.cboStijl));
  list->actionInterface()->doAction(QAccessibleActionInterface::showMenuAction());
  EXPECT_TRUE(list->state().expanded);
  list->actionInterface()->doAction(QAccessibleActionInterface::showMenuAction());
  EXPECT_FALSE(list->state().expanded);
}
