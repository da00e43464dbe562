// The dialog of the printer where the toolkit has one of its own. On Windows the toolkit leaves it
// to the system, and there is nothing of ours to look into.
#include <QDialog>
#include <QLineEdit>

#include "surface/real_dialogs.h"

using namespace surface;

// What it would read for that has held it up for seconds.
TEST_F(RealDialogs, TheDialogOfThePrinterOffersNoFilesWhileANameIsTyped) {
  whenOpen<QDialog>([](QDialog& dialog) {
    EXPECT_FALSE(dialog.findChildren<QLineEdit*>().empty());
    for (const QLineEdit* field : dialog.findChildren<QLineEdit*>())
      EXPECT_EQ(field->completer(), nullptr);
    dialog.reject();
  });
  EXPECT_FALSE(host().printerDialog());
}

TEST_F(RealDialogs, TheDialogOfThePrinterCannotBeMadeSmallOrLarge) {
  whenOpen<QDialog>([](QDialog& dialog) {
    EXPECT_EQ(dialog.windowTitle(), "Afdrukken");
    EXPECT_FALSE(dialog.windowFlags() & Qt::WindowMinMaxButtonsHint);
    EXPECT_TRUE(dialog.windowFlags() & Qt::WindowCloseButtonHint);
    dialog.reject();
  });
  EXPECT_FALSE(host().printerDialog());
}

TEST_F(RealDialogs, AWindowAboveAllOthersDoesNotCoverTheDialogOfThePrinter) {
  const auto expectAbove = [](bool above) {
    whenOpen<QDialog>([above](QDialog& dialog) {
      EXPECT_EQ(bool(dialog.windowFlags() & Qt::WindowStaysOnTopHint), above);
      dialog.reject();
    });
    EXPECT_FALSE(host().printerDialog());
  };
  expectAbove(false);
  the<AboveAll>().setTopMost();
  the<AboveAll>().Show();
  expectAbove(true);
}
