// The keyboard in the large studio: where the focus is, and the keys that press buttons.
#include <QApplication>
#include <QTest>
#include <QWidget>

#include "shell/frmStart.h"
#include "studio/studio.h"

using namespace surface;

class StudioKeys : public Studio {
 protected:
  StudioKeys() { advance(0); }  // until the window is the active one

  QWidget* widget(Control& control) { return script::widgetOf(control); }
  void key(Qt::Key code, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(widget(sheet)->window()->windowHandle(), code, modifiers);
    advance(0);
  }
  void ctrl(Qt::Key code) { key(code, Qt::ControlModifier); }
  bool says(const char* text) { return studio.lblModus.Caption == text; }
};

TEST_F(StudioKeys, ThePencilHasTheFocusAtTheStart) {
  EXPECT_EQ(QApplication::focusWidget(), widget(studio.cmdTekenen));
}

TEST_F(StudioKeys, SpaceAndEnterOnAFreshStudioLoseNothing) {
  drag(sheet, 20, 20, 60, 20);
  const raster::Bitmap drawn = canvas();
  for (Qt::Key code : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape}) key(code);
  ASSERT_TRUE(isLoaded<frmTekenen2>());
  EXPECT_TRUE(studio.shown());
  EXPECT_TRUE(shows(sheet, drawn));
}

TEST_F(StudioKeys, TabGoesFromTheTopDownAndRoundAgain) {
  QWidget* const first = QApplication::focusWidget();
  key(Qt::Key_Backtab, Qt::ShiftModifier);
  QWidget* const last = QApplication::focusWidget();
  EXPECT_NE(last, widget(studio.cmdEinde));
  key(Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget(), first);
  std::vector<QWidget*> order;
  for (int stops = 0; stops < 100; ++stops) {
    key(Qt::Key_Tab);
    if (QApplication::focusWidget() == first) break;
    order.push_back(QApplication::focusWidget());
  }
  const auto place = [&](Control& control) {
    return std::find(order.begin(), order.end(), widget(control)) - order.begin();
  };
  EXPECT_EQ(order.back(), last);
  EXPECT_LT(place(studio.cmdEinde), place(studio.cmdSpiegelV));
  EXPECT_LT(place(studio.cmdGom), place(studio.cmdArt));
  EXPECT_LT(place(studio.cmdArt), place(studio.cmdLijnen));
}

TEST_F(StudioKeys, APanelsStopsComeBehindTheButtonsAboveIt) {
  click(studio.cmdLijnen);
  widget(studio.cmdRoteren)->setFocus();
  key(Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget(), widget(studio.cboStijl));
  key(Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget(), widget(studio.Slider1));
}

TEST_F(StudioKeys, AChoiceThatClosesItsPanelDoesNotPutTheFocusOnTheWayOut) {
  click(studio.cmdLineaal);
  widget(studio.Option3)->setFocus();
  key(Qt::Key_Space);
  ASSERT_FALSE(studio.fraLineaal.Visible);
  key(Qt::Key_Space);
  EXPECT_TRUE(isLoaded<frmTekenen2>());
}

TEST_F(StudioKeys, ASecondSpaceOnUndoOrRedoDoesNotWipeTheSheet) {
  drag(sheet, 20, 20, 60, 20);
  drag(sheet, 20, 40, 60, 40);
  for (CommandButton* button : {&studio.cmdUndo, &studio.cmdRedo}) {
    widget(*button)->setFocus();
    key(Qt::Key_Space);
    ASSERT_FALSE(button->Enabled);
    EXPECT_EQ(QApplication::focusWidget(), widget(studio.cmdTekenen));
    const raster::Bitmap drawn = canvas();
    for (Qt::Key code : {Qt::Key_Space, Qt::Key_Return}) key(code);
    EXPECT_TRUE(shows(sheet, drawn));
  }
}

TEST_F(StudioKeys, AKeyBehindAStrokeDoesNotPressTheButtonBeforeItAgain) {
  click(studio.cmdClear);
  ASSERT_EQ(QApplication::focusWidget(), widget(studio.cmdClear));
  drag(sheet, 20, 20, 60, 20);
  const raster::Bitmap drawn = canvas();
  for (Qt::Key code : {Qt::Key_Space, Qt::Key_Return}) key(code);
  EXPECT_TRUE(shows(sheet, drawn));
  key(Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget(), widget(studio.cmdTekenen));
}

TEST_F(StudioKeys, CtrlZAndCtrlYGoBackAndForth) {
  click(studio.cmdLijn);
  drag(sheet, 20, 20, 60, 20);
  ctrl(Qt::Key_Z);
  EXPECT_TRUE(says("de LAATSTE handeling (lijn, kleur, ...) ONGEDAAN maken"));
  EXPECT_EQ(sheet.Point({40, 20}), White);
  ctrl(Qt::Key_Y);
  EXPECT_EQ(sheet.Point({40, 20}), Black);
}

TEST_F(StudioKeys, ADisabledButtonsKeyIsSilent) {
  const std::string before = studio.lblModus.Caption;
  ASSERT_FALSE(studio.cmdRedo.Enabled);
  ctrl(Qt::Key_Y);
  EXPECT_EQ(studio.lblModus.Caption, before);
  EXPECT_TRUE(studio.cmdUndo.Enabled);
}

TEST_F(StudioKeys, AHiddenButtonsKeyIsSilent) {
  const std::string before = studio.lblModus.Caption;
  studio.cmdCopy.Visible = false;
  ctrl(Qt::Key_C);
  EXPECT_EQ(studio.lblModus.Caption, before);
  EXPECT_TRUE(clipboard.empty());
}

TEST_F(StudioKeys, CtrlXCtrlCAndCtrlVUseTheClipboard) {
  ctrl(Qt::Key_C);
  EXPECT_TRUE(says("een KOPIE van de tekening maken (om later te plakken)"));
  ctrl(Qt::Key_X);
  EXPECT_TRUE(says("de tekening KNIPPEN om ze in een NIEUW blad te plakken"));
  ctrl(Qt::Key_V);
  EXPECT_TRUE(says("de KOPIE of GEKNIPTE tekening in een NIEUW blad plakken"));
}

TEST_F(StudioKeys, CtrlSCtrlOAndCtrlNAreForFilesAndANewSheet) {
  cancelFile();
  ctrl(Qt::Key_S);
  EXPECT_TRUE(says("je tekening in de computer OPSLAAN (=bewaren voor later)"));
  answerMessage(No);
  cancelFile();
  ctrl(Qt::Key_O);
  EXPECT_TRUE(says("een BESTAANDE tekening uit je computer OPENEN"));
  ctrl(Qt::Key_N);
  EXPECT_TRUE(says("een NIEUW tekenblad met dezelfde grootte openen"));
  EXPECT_EQ(asked().size(), 3u);
}

TEST_F(StudioKeys, CtrlPAndF1PressThePrinterAndTheHelp) {
  int printed = 0, helped = 0;
  studio.cmdPrint.Click = [&] { ++printed; };
  studio.Command1.Click = [&] { ++helped; };
  ctrl(Qt::Key_P);
  key(Qt::Key_F1);
  EXPECT_EQ(printed, 1);
  EXPECT_EQ(helped, 1);
}

TEST_F(StudioKeys, WhileThePointerDrawsNoKeyPressesAButton) {
  click(studio.cmdLijn);
  press(sheet, 20, 20);
  move(sheet, 40, 20, 1);
  ctrl(Qt::Key_N);
  EXPECT_FALSE(says("een NIEUW tekenblad met dezelfde grootte openen"));
  release(sheet, 60, 20);
  EXPECT_EQ(sheet.Point({30, 20}), Black);
  ctrl(Qt::Key_N);
  EXPECT_TRUE(says("een NIEUW tekenblad met dezelfde grootte openen"));
}

TEST_F(StudioKeys, OtherKeysDoNothing) {
  const std::string before = studio.lblModus.Caption;
  const raster::Bitmap blankSheet = canvas();
  for (int code = Qt::Key_A; code <= Qt::Key_Z; ++code) {
    if (std::string("ZYSONCVXP").find(static_cast<char>(code)) != std::string::npos) continue;
    key(static_cast<Qt::Key>(code));
    ctrl(static_cast<Qt::Key>(code));
  }
  for (int code = Qt::Key_F2; code <= Qt::Key_F12; ++code) key(static_cast<Qt::Key>(code));
  EXPECT_EQ(studio.lblModus.Caption, before);
  EXPECT_TRUE(shows(sheet, blankSheet));
  EXPECT_TRUE(studio.shown());
}

class KeysInText : public script::Stage {};

namespace {
class Note : public Form {
 public:
  Note() : Form({}) {
    cmdUndo.Click = [this] { ++undone; };
  }
  TextBox txtName{*this, {.Width = 3000, .Height = 400}};
  CommandButton cmdUndo{*this, {.Top = 600, .Width = 900, .Height = 400, .Shortcut = "Ctrl+Z"}};
  int undone = 0;
};
}  // namespace

TEST_F(KeysInText, KeepTheirMeaningForText) {
  auto& note = showNew<Note>();
  advance(0);
  note.txtName.SetFocus();
  type("Fien");
  QTest::keyClick(script::widgetOf(note.txtName)->window()->windowHandle(), Qt::Key_Z,
                  Qt::ControlModifier);
  EXPECT_EQ(note.undone, 0);
  EXPECT_EQ(note.txtName.Text, "");
  script::widgetOf(note.cmdUndo)->setFocus();
  QTest::keyClick(script::widgetOf(note.txtName)->window()->windowHandle(), Qt::Key_Z,
                  Qt::ControlModifier);
  EXPECT_EQ(note.undone, 1);
}
