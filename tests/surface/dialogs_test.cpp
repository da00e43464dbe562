// Message and input boxes and the dialog control: what is asked, and what a cancel does.
#include "surface/dialogs.h"

#include "support/errors.h"
#include "support/script.h"

using namespace surface;

class Dialogs : public script::Stage {
 protected:
  CommonDialog dialog;
};

TEST_F(Dialogs, AMessageGivesTheAnswer) {
  answerMessage(Yes);
  answerMessage(No);
  EXPECT_EQ(MsgBox("Doorgaan ?", YesNo, "Vraag"), 6);
  EXPECT_EQ(MsgBox("Doorgaan ?", YesNo, "Vraag"), 7);
  EXPECT_EQ(asked()[0].text, "Doorgaan ?");
  EXPECT_EQ(asked()[0].title, "Vraag");
  EXPECT_EQ(asked()[0].buttons, 4);
}

TEST_F(Dialogs, AMessageWithoutButtonsHasOnlyOkAndTheProgramsName) {
  answerMessage(Ok);
  EXPECT_EQ(MsgBox("Klaar"), 1);
  EXPECT_EQ(asked()[0].buttons, 0);
  EXPECT_EQ(asked()[0].title, "KRAS PRET");
}

TEST_F(Dialogs, AnInputBoxGivesWhatWasTypedAndNothingOnCancel) {
  answerInput("12,5");
  EXPECT_EQ(InputBox("Hoe breed ?", "Maat", "10"), "12,5");
  EXPECT_EQ(asked()[0].initial, "10");
  cancelInput();
  EXPECT_EQ(InputBox("Hoe breed ?", "Maat", "10"), "");
}

TEST_F(Dialogs, AFileDialogHandsItsFilterOverAndTakesTheName) {
  dialog.Filter = "Alle bestanden|*.*";
  dialog.FilterIndex = 3;
  answerFile("een.bmp");
  dialog.ShowOpen();
  EXPECT_EQ(dialog.FileName, "een.bmp");
  answerFile("twee.bmp");
  dialog.ShowSave();
  EXPECT_EQ(dialog.FileName, "twee.bmp");
  EXPECT_EQ(asked()[0].kind, "open");
  EXPECT_EQ(asked()[1].kind, "save");
  EXPECT_EQ(asked()[0].filter, "Alle bestanden|*.*");
  EXPECT_EQ(asked()[0].filterIndex, 3);
}

TEST_F(Dialogs, ACancelRaisesAnErrorIfItShall) {
  dialog.CancelError = true;
  dialog.FileName = "eerder.bmp";
  dialog.Color = 0x123456;
  cancelFile();
  EXPECT_ERROR(Cancelled, dialog.ShowOpen());
  cancelFile();
  EXPECT_ERROR(Cancelled, dialog.ShowSave());
  cancelColor();
  EXPECT_ERROR(Cancelled, dialog.ShowColor());
  EXPECT_EQ(dialog.FileName, "eerder.bmp");
  EXPECT_EQ(dialog.Color, 0x123456);
}

TEST_F(Dialogs, OtherwiseACancelKeepsTheFormerResult) {
  dialog.FileName = "eerder.bmp";
  dialog.Color = 0x123456;
  cancelFile();
  dialog.ShowOpen();
  cancelColor();
  dialog.ShowColor();
  EXPECT_EQ(dialog.FileName, "eerder.bmp");
  EXPECT_EQ(dialog.Color, 0x123456);
}

TEST_F(Dialogs, AColourDialogStartsAtTheFormerColour) {
  dialog.Color = 7;
  dialog.Flags = 4;
  answerColor(0x0000FF);
  dialog.ShowColor();
  EXPECT_EQ(dialog.Color, 0x0000FF);
  EXPECT_EQ(asked()[0].initial, "7");
  EXPECT_EQ(asked()[0].buttons, 4);
}

TEST_F(Dialogs, TheClipboardTakesBitmapsOnly) {
  const Picture picture(std::make_shared<raster::Bitmap>(2, 2, 0xFF00FF00));
  Clipboard::SetData(picture, Clipboard::Bitmap);
  EXPECT_EQ(Clipboard::GetData(Clipboard::Bitmap), picture);
  EXPECT_ERROR(BadPropertyValue, Clipboard::SetData(picture, 1));
  EXPECT_ERROR(BadPropertyValue, Clipboard::GetData(1));
  Clipboard::Clear();
  EXPECT_TRUE(Clipboard::GetData(Clipboard::Bitmap).empty());
}
