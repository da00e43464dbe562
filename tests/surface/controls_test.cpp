// The kinds of control: which changes fire which event, by code and by hand.
#include "surface/controls.h"

#include <QComboBox>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QSlider>
#include <QTest>

#include "support/errors.h"
#include "support/script.h"

using namespace surface;

namespace {

class Box : public Form {
 public:
  Box() : Form({.Width = 6000, .Height = 4500}) {}

  TextBox txtKort{*this, {.Left = 150, .Top = 150, .Width = 1500, .Height = 375, .MaxLength = 4}};
  TextBox txtVast{
      *this,
      {.Left = 150, .Top = 600, .Width = 1500, .Height = 375, .Text = "vast", .Locked = true}};
  TextBox txtLang{*this,
                  {.Left = 3750, .Top = 2400, .Width = 1500, .Height = 900, .MultiLine = true}};
  Frame fraKeuze{*this, {.Left = 1800, .Top = 150, .Width = 1800, .Height = 1800}};
  OptionButton Option1{fraKeuze,
                       {.Left = 150, .Top = 300, .Width = 1500, .Height = 300, .Caption = "een"}};
  OptionButton Option2{fraKeuze,
                       {.Left = 150, .Top = 750, .Width = 1500, .Height = 300, .Caption = "twee"}};
  OptionButton Apart{*this,
                     {.Left = 150, .Top = 1050, .Width = 1500, .Height = 300, .Value = true}};
  CheckBox chkAan{*this, {.Left = 150, .Top = 1500, .Width = 1500, .Height = 300}};
  ComboBox cboKleur{*this,
                    {.Left = 150,
                     .Top = 1950,
                     .Width = 1500,
                     .List = {"rood", "groen", "blauw"},
                     .ListIndex = 0}};
  ListBox lstRijen{
      *this, {.Left = 5400, .Top = 150, .Width = 1500, .Height = 1200, .List = {"een", "twee"}}};
  Slider Slider1{*this, {.Left = 150, .Top = 2400, .Width = 1500, .Min = 1, .Max = 20, .Value = 5}};
  HScrollBar Scroll1{
      *this, {.Left = 150, .Top = 2850, .Width = 1500, .Height = 300, .Max = 100, .Value = 10}};
  Slider Slider2{*this,
                 {.Left = 5400,
                  .Top = 1500,
                  .Width = 450,
                  .Height = 2250,
                  .Min = 1,
                  .Max = 20,
                  .Value = 1,
                  .SmallChange = 2,
                  .LargeChange = 4,
                  .Vertical = true}};
  HScrollBar Scroll2{*this,
                     {.Left = 3750,
                      .Top = 3450,
                      .Width = 1500,
                      .Height = 300,
                      .Max = 1536,
                      .SmallChange = 64,
                      .LargeChange = 100}};
  CommandButton cmdKnop{
      *this, {.Left = 150, .Top = 3300, .Width = 1500, .Height = 450, .Caption = "Druk &hier"}};
  CommandButton cmdUit{*this,
                       {.Left = 150, .Top = 3900, .Width = 1500, .Height = 300, .Enabled = false}};
  Label lblTekst{*this, {.Left = 3750, .Top = 150, .Width = 1500, .Height = 450, .Caption = "tik"}};
  ImageControl imgPlaat{*this, {.Left = 3750, .Top = 750, .Width = 1500, .Height = 1500}};
  ControlArray<TextBox, 3> txtRij{
      *this, {TextBox::Design{.Text = "a"}, TextBox::Design{.Text = "b"}, TextBox::Design{}}};
};

}  // namespace

class Controls : public script::Stage {
 protected:
  Controls() { box.Show(); }
  Box& box = the<Box>();
  int fired = 0;
  std::function<void()> count = [this] { ++fired; };
};

TEST_F(Controls, MembersOfAnArrayAreFoundByIndexAndKnowIt) {
  EXPECT_EQ(box.txtRij(0).Text, "a");
  EXPECT_EQ(box.txtRij(1).Text, "b");
  for (int i = 0; i < 3; ++i) EXPECT_EQ(box.txtRij(i).Index, i);
  EXPECT_EQ(box.txtRij.count(), 3);
}

TEST_F(Controls, AnIndexBeyondTheArrayIsASubscriptError) {
  EXPECT_ERROR(SubscriptOutOfRange, box.txtRij(-1));
  EXPECT_ERROR(SubscriptOutOfRange, box.txtRij(3));
}

TEST_F(Controls, TypedTextIsCutOffAtTheMaximum) {
  box.txtKort.SetFocus();
  type("Sofietje");
  EXPECT_EQ(box.txtKort.Text, "Sofi");
}

TEST_F(Controls, TextByCodeIsCutOffAtTheMaximumToo) {
  box.txtKort.Text = "Sofietje";
  EXPECT_EQ(box.txtKort.Text, "Sofi");
  box.Hide();
  // Characters, not bytes.
  box.txtKort.Text = "ééééé";
  EXPECT_EQ(box.txtKort.Text, "éééé");
  auto& unseen = loadNew<Box>();
  unseen.txtKort.Text = "Sofietje";
  EXPECT_EQ(unseen.txtKort.Text, "Sofi");
}

TEST_F(Controls, EveryKeyFiresChangeWithTheTextSoFar) {
  std::string seen;
  box.txtKort.Change = [&] { seen += box.txtKort.Text.get() + ","; };
  box.txtKort.SetFocus();
  type("Jan");
  EXPECT_EQ(seen, "J,Ja,Jan,");
}

TEST_F(Controls, TextByCodeFiresChange) {
  box.txtKort.Change = count;
  box.txtKort.Text = "Jan";
  EXPECT_EQ(fired, 1);
}

TEST_F(Controls, AHandlerThatWritesTheSameTextIsNotCalledAgain) {
  box.txtKort.Change = [this] {
    if (++fired < 10) box.txtKort.Text = "ab";
  };
  box.txtKort.Text = "abc";
  EXPECT_EQ(fired, 2) << "once for each text";
  // Cut off at the maximum it is the same as before.
  box.txtKort.Text = "abcd";
  fired = 0;
  box.txtKort.Change = count;
  box.txtKort.Text = "abcdefg";
  EXPECT_EQ(fired, 1);
  box.txtKort.Text = "abcdxyz";
  EXPECT_EQ(fired, 1);
}

TEST_F(Controls, ALockedTextCannotBeTypedOverButSetByCode) {
  box.txtVast.SetFocus();
  type("x");
  EXPECT_EQ(box.txtVast.Text, "vast");
  box.txtVast.Text = "anders";
  EXPECT_EQ(box.txtVast.Text, "anders");
}

TEST_F(Controls, ATextOfSeveralLinesIsTypedAndSetLikeAnyOther) {
  box.txtLang.Change = count;
  box.txtLang.SetFocus();
  type("ab");
  EXPECT_EQ(box.txtLang.Text, "ab");
  EXPECT_EQ(fired, 2);
  box.txtLang.Text = "een\ntwee";
  EXPECT_EQ(fired, 3);
  EXPECT_EQ(qobject_cast<QPlainTextEdit*>(script::widgetOf(box.txtLang))->toPlainText(),
            "een\ntwee");
}

TEST_F(Controls, ChoosingAnOptionTakesTheMarkFromItsNeighbourOnly) {
  box.Option1.Value = true;
  box.Option2.Value = true;
  EXPECT_FALSE(box.Option1.Value);
  EXPECT_TRUE(box.Option2.Value);
  EXPECT_TRUE(box.Apart.Value) << "an option of another container has lost its mark";
}

TEST_F(Controls, AnOptionFiresClickWhenItBecomesChosenByCode) {
  box.Option1.Click = count;
  box.Option1.Value = true;
  EXPECT_EQ(fired, 1);
  box.Option1.Value = true;
  EXPECT_EQ(fired, 1) << "it was chosen already";
  box.Option2.Value = true;
  EXPECT_EQ(fired, 1) << "losing the mark is no click";
}

TEST_F(Controls, AClickOnAChosenOptionFiresOnceMoreAndKeepsIt) {
  box.Option1.Click = count;
  click(box.Option1);
  EXPECT_TRUE(box.Option1.Value);
  EXPECT_EQ(fired, 1);
  click(box.Option1);
  EXPECT_TRUE(box.Option1.Value);
  EXPECT_EQ(fired, 2);
}

TEST_F(Controls, ATickChangesOnEachClick) {
  box.chkAan.Click = count;
  click(box.chkAan);
  EXPECT_EQ(box.chkAan.Value, 1);
  click(box.chkAan);
  EXPECT_EQ(box.chkAan.Value, 0);
  EXPECT_EQ(fired, 2);
}

TEST_F(Controls, ATickByCodeFiresClickOnlyWhenItChanges) {
  box.chkAan.Click = count;
  box.chkAan.Value = 0;
  EXPECT_EQ(fired, 0);
  box.chkAan.Value = 1;
  EXPECT_EQ(fired, 1);
}

TEST_F(Controls, SelectingAnotherRowByCodeFiresClick) {
  EXPECT_EQ(box.cboKleur.Text(), "rood");
  box.cboKleur.Click = count;
  box.cboKleur.ListIndex = 2;
  EXPECT_EQ(box.cboKleur.Text(), "blauw");
  EXPECT_EQ(fired, 1);
  box.cboKleur.ListIndex = 2;
  EXPECT_EQ(fired, 1) << "the row was selected already";
  box.cboKleur.ListIndex = -1;
  EXPECT_EQ(box.cboKleur.Text(), "");
}

TEST_F(Controls, PickingARowFiresClickAlsoForTheSelectedOne) {
  box.cboKleur.Click = count;
  auto* list = qobject_cast<QComboBox*>(script::widgetOf(box.cboKleur));
  ASSERT_NE(list, nullptr);
  QTest::keyClick(list, Qt::Key_Down);
  EXPECT_EQ(box.cboKleur.Text(), "groen");
  EXPECT_EQ(fired, 1);
  emit list->activated(1);
  EXPECT_EQ(fired, 2);
}

TEST_F(Controls, ARowBeyondTheListIsRefused) {
  box.cboKleur.Click = count;
  EXPECT_ERROR(BadPropertyValue, box.cboKleur.ListIndex = 3);
  EXPECT_ERROR(BadPropertyValue, box.cboKleur.ListIndex = -2);
  EXPECT_EQ(box.cboKleur.ListIndex, 0);
  EXPECT_EQ(fired, 0);
}

TEST_F(Controls, ARowAddedLaterCanBePickedAndKeepsTheSelection) {
  box.cboKleur.AddItem("geel");
  EXPECT_EQ(box.cboKleur.List(3), "geel");
  auto* list = qobject_cast<QComboBox*>(script::widgetOf(box.cboKleur));
  EXPECT_EQ(list->count(), 4);
  EXPECT_EQ(list->currentText(), "rood");
  box.cboKleur.ListIndex = 3;
  EXPECT_EQ(list->currentText(), "geel");
}

TEST_F(Controls, AListBoxShowsItsRowsAndFiresClickForTheOnePicked) {
  box.lstRijen.Click = count;
  auto* list = qobject_cast<QListWidget*>(script::widgetOf(box.lstRijen));
  ASSERT_NE(list, nullptr);
  box.lstRijen.AddItem("drie");
  EXPECT_EQ(list->count(), 3);
  EXPECT_EQ(box.lstRijen.ListIndex, -1);
  EXPECT_EQ(box.lstRijen.Text(), "");
  EXPECT_EQ(fired, 0);
  list->setCurrentRow(2);
  EXPECT_EQ(box.lstRijen.Text(), "drie");
  EXPECT_EQ(fired, 1);
  box.lstRijen.ListIndex = 0;
  EXPECT_EQ(list->currentRow(), 0);
  EXPECT_EQ(fired, 2);
}

TEST_F(Controls, AClearedListBoxHasNoRowsAndReadsAsEmptyTexts) {
  box.lstRijen.ListIndex = 1;
  box.lstRijen.Clear();
  EXPECT_EQ(box.lstRijen.ListCount(), 0);
  EXPECT_EQ(box.lstRijen.ListIndex, -1);
  EXPECT_EQ(box.lstRijen.List(0), "");
  EXPECT_EQ(box.lstRijen.List(-1), "");
  EXPECT_ERROR(BadPropertyValue, box.lstRijen.ListIndex = 0);
}

TEST_F(Controls, OnlyTheChildsOwnMoveOfASliderFiresScroll) {
  box.Slider1.Scroll = count;
  box.Slider1.Value = 8;
  EXPECT_EQ(fired, 0);
  auto* knob = qobject_cast<QSlider*>(script::widgetOf(box.Slider1));
  ASSERT_NE(knob, nullptr);
  EXPECT_EQ(knob->value(), 8);
  QTest::keyClick(knob, Qt::Key_Right);
  EXPECT_EQ(box.Slider1.Value, 9);
  EXPECT_EQ(fired, 1);
}

TEST_F(Controls, ASliderFiresChangeByCodeAndAfterTheScrollOfTheChild) {
  std::string order;
  box.Slider1.Scroll = [&] { order += "scroll "; };
  box.Slider1.Change = [&] { order += "change" + toText(box.Slider1.Value) + " "; };
  box.Slider1.Value = 8;
  box.Slider1.Value = 8;
  EXPECT_EQ(order, "change8 ");
  QTest::keyClick(script::widgetOf(box.Slider1), Qt::Key_Right);
  EXPECT_EQ(order, "change8 scroll change9 ");
}

TEST_F(Controls, AVerticalSliderHasItsLeastValueAtTheTop) {
  EXPECT_EQ(box.Slider2.Value, 1);
  QWidget* knob = script::widgetOf(box.Slider2);
  EXPECT_GT(knob->height(), knob->width());
  QTest::keyClick(knob, Qt::Key_Down);
  EXPECT_EQ(box.Slider2.Value, 3);
  QTest::keyClick(knob, Qt::Key_Up);
  EXPECT_EQ(box.Slider2.Value, 1);
  QTest::keyClick(knob, Qt::Key_PageDown);
  EXPECT_EQ(box.Slider2.Value, 5);
  // Beside the knob at the very bottom.
  QTest::mouseClick(knob, Qt::LeftButton, {}, {knob->width() / 2, knob->height() - 2});
  EXPECT_EQ(box.Slider2.Value, 9);
}

TEST_F(Controls, ASlidersValueStaysWithinItsEnds) {
  box.Slider1.Value = 100;
  EXPECT_EQ(box.Slider1.Value, 20);
  box.Slider1.Value = -3;
  EXPECT_EQ(box.Slider1.Value, 1);
}

TEST_F(Controls, AScrollBarFiresChangeByCodeAndByHand) {
  box.Scroll1.Change = count;
  box.Scroll1.Value = 20;
  EXPECT_EQ(fired, 1);
  box.Scroll1.Value = 20;
  EXPECT_EQ(fired, 1);
  QTest::keyClick(script::widgetOf(box.Scroll1), Qt::Key_Right);
  EXPECT_EQ(box.Scroll1.Value, 21);
  EXPECT_EQ(fired, 2);
}

TEST_F(Controls, AScrollBarMovesByItsSmallAndItsLargeStep) {
  QTest::keyClick(script::widgetOf(box.Scroll2), Qt::Key_Right);
  EXPECT_EQ(box.Scroll2.Value, 64);
  QTest::keyClick(script::widgetOf(box.Scroll2), Qt::Key_PageUp);
  EXPECT_EQ(box.Scroll2.Value, 164);
}

TEST_F(Controls, AScrollBarRefusesAValueBeyondItsEnds) {
  EXPECT_ERROR(BadPropertyValue, box.Scroll1.Value = 101);
  EXPECT_ERROR(BadPropertyValue, box.Scroll1.Value = -1);
  EXPECT_EQ(box.Scroll1.Value, 10);
}

TEST_F(Controls, AButtonFiresMouseDownThenClickThenMouseUp) {
  std::string order;
  box.cmdKnop.MouseDown = [&](const Mouse& at) {
    order += "down" + toText(at.Button) + "@" + toText(at.X) + "," + toText(at.Y) + " ";
  };
  box.cmdKnop.Click = [&] { order += "click "; };
  box.cmdKnop.MouseUp = [&](const Mouse& at) { order += "up" + toText(at.Button); };
  click(box.cmdKnop);
  EXPECT_EQ(order, "down1@750,225 click up1");
}

TEST_F(Controls, TheRightButtonPressesNoButtonButItsReleaseIsTold) {
  std::string order;
  box.cmdKnop.Click = [&] { order += "click "; };
  box.cmdKnop.MouseUp = [&](const Mouse& at) { order += "up" + toText(at.Button); };
  click(box.cmdKnop, 2);
  EXPECT_EQ(order, "up2");
  click(box.cmdKnop, 8);
  EXPECT_EQ(order, "up2") << "a side button";
}

TEST_F(Controls, AButtonLetGoBesideItselfIsNotClicked) {
  box.cmdKnop.Click = count;
  press(box.cmdKnop, 5, 5);
  release(box.cmdKnop, 300, 5);
  EXPECT_EQ(fired, 0);
}

TEST_F(Controls, AButtonSwitchedOffIsDeadUntilItIsSwitchedOn) {
  box.cmdKnop.Click = count;
  box.cmdKnop.Enabled = false;
  click(box.cmdKnop);
  EXPECT_EQ(fired, 0);
  box.cmdKnop.Enabled = true;
  click(box.cmdKnop);
  EXPECT_EQ(fired, 1);
}

TEST_F(Controls, CodeFiresTheEventOfAButtonThatIsSwitchedOff) {
  box.cmdKnop.Click = count;
  box.cmdKnop.Enabled = false;
  box.cmdKnop.Click();
  EXPECT_EQ(fired, 1);
}

TEST_F(Controls, TheKeyboardPressesAButton) {
  box.cmdKnop.Click = count;
  advance(0);  // until the window is the active one
  box.cmdKnop.SetFocus();
  QTest::keyClick(script::widgetOf(box.cmdKnop), Qt::Key_Space);
  EXPECT_EQ(fired, 1);
  QTest::keyClick(script::widgetOf(box.cmdKnop), Qt::Key_Return);
  EXPECT_EQ(fired, 2);
  QTest::keyClick(script::widgetOf(box.cmdKnop), Qt::Key_Enter);
  EXPECT_EQ(fired, 3);
  QTest::keyClick(script::widgetOf(box.cmdKnop)->window(), Qt::Key_H, Qt::AltModifier);
  QTest::qWait(150);  // the toolkit animates the press of an access key
  EXPECT_EQ(fired, 4);
}

TEST_F(Controls, EnterHeldDownPressesAButtonOnce) {
  box.cmdKnop.Click = count;
  for (const bool repeated : {false, true, true}) {
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", repeated);
    QCoreApplication::sendEvent(script::widgetOf(box.cmdKnop), &enter);
  }
  EXPECT_EQ(fired, 1);
}

TEST_F(Controls, LabelsAndImagesAreClickedWithTheLeftButtonOnly) {
  box.lblTekst.Click = count;
  box.imgPlaat.Click = count;
  click(box.lblTekst);
  EXPECT_EQ(fired, 1);
  click(box.imgPlaat);
  EXPECT_EQ(fired, 2);
  click(box.lblTekst, 2);
  click(box.imgPlaat, 2);
  EXPECT_EQ(fired, 2);
}

TEST_F(Controls, NoClickOnAControlFallsThroughToTheForm) {
  box.MouseUp = [this](const Mouse&) { ++fired; };
  const std::initializer_list<Control*> controls = {&box.lblTekst, &box.imgPlaat, &box.fraKeuze,
                                                    &box.cmdKnop,  &box.Slider1,  &box.Apart,
                                                    &box.chkAan,   &box.cmdUit};
  for (Control* control : controls)
    for (const int button : {1, 2, 4, 8}) click(*control, button);
  EXPECT_EQ(fired, 0);
  // Let go on the bare form, but pressed on the button.
  press(box.cmdKnop, 5, 5, 2);
  release(box.cmdKnop, -4, 5, 2);
  EXPECT_EQ(fired, 0);
}

TEST_F(Controls, APartOfAFontIsSetByItselfAndShows) {
  const QFont before = script::widgetOf(box.lblTekst)->font();
  box.lblTekst.Font.Bold = true;
  EXPECT_TRUE(script::widgetOf(box.lblTekst)->font().bold());
  EXPECT_EQ(script::widgetOf(box.lblTekst)->font().pixelSize(), before.pixelSize());
  box.lblTekst.Font.Size = 24;
  EXPECT_EQ(script::widgetOf(box.lblTekst)->font().pixelSize(), 32);
  EXPECT_TRUE(script::widgetOf(box.lblTekst)->font().bold());
  box.cmdKnop.Font = box.lblTekst.Font;
  EXPECT_EQ(script::widgetOf(box.cmdKnop)->font().pixelSize(), 32);
  box.cmdKnop.Font = {"Arial", 9};
  EXPECT_EQ(script::widgetOf(box.cmdKnop)->font().pixelSize(), 12);
  EXPECT_FALSE(script::widgetOf(box.cmdKnop)->font().bold());
}

TEST_F(Controls, AFrameHidesAndShowsAllItContains) {
  EXPECT_TRUE(script::widgetOf(box.Option1)->isVisible());
  box.fraKeuze.Visible = false;
  EXPECT_FALSE(script::widgetOf(box.Option1)->isVisible());
  EXPECT_TRUE(box.Option1.Visible) << "a control's own Visible is not its container's";
  box.fraKeuze.Visible = true;
  EXPECT_TRUE(script::widgetOf(box.Option1)->isVisible());
}

TEST_F(Controls, ALengthThatIsNoneIsRefused) {
  EXPECT_ERROR(BadPropertyValue, box.cmdKnop.Width = -1);
  EXPECT_ERROR(BadPropertyValue, box.cmdKnop.Height = std::numeric_limits<float>::infinity());
  EXPECT_EQ(box.cmdKnop.Width, 1500);
}

TEST_F(Controls, APlaceByCodeMovesTheControlOnTheScreen) {
  box.cmdKnop.Left = 300;
  box.cmdKnop.Top = 3450;
  box.cmdKnop.Width = 750;
  box.cmdKnop.Height = 600;
  EXPECT_EQ(script::widgetOf(box.cmdKnop)->geometry(), QRect(20, 230, 50, 40));
}
