// The toolkit's own dialogs behind the seams, answered by hand: Dutch buttons, answers, cancels.
#include <QAbstractButton>
#include <QApplication>
#include <QColorDialog>
#include <QComboBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <fstream>
#include <functional>

#include "support/script.h"
#include "surface/host.h"
#include "surface/qt/dialogs.h"
#include "surface/qt/toolkit.h"

using namespace surface;

namespace {

/// Does something with the dialog of this kind once it is open.
template <class Dialog>
void whenOpen(std::function<void(Dialog&)> act) {
  QTimer::singleShot(0, [act = std::move(act)] {
    auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
    if (dialog)
      act(*dialog);
    else
      ADD_FAILURE() << "another dialog is open, or none";
    // Whatever the test found, nothing stays open for ever.
    if (QWidget* left = QApplication::activeModalWidget()) left->close();
  });
}

void choose(QMessageBox& box, const QString& text) {
  for (QAbstractButton* button : box.buttons())
    if (button->text().remove('&') == text) return button->click();
  ADD_FAILURE() << "there is no button " << text.toStdString();
}

}  // namespace

class RealDialogs : public script::Stage {
 protected:
  RealDialogs() { surface::qt::install(); }
};

TEST_F(RealDialogs, AQuestionHasDutchButtonsAndTheirAnswers) {
  for (const auto& [text, answer] : {std::pair{"Ja", Yes}, {"Nee", No}}) {
    whenOpen<QMessageBox>([text = text](QMessageBox& box) {
      EXPECT_EQ(box.windowTitle(), "Titel");
      EXPECT_EQ(box.text(), "Ga je door ?");
      EXPECT_EQ(box.buttons().size(), 2);
      choose(box, text);
    });
    EXPECT_EQ(MsgBox("Ga je door ?", YesNo, "Titel"), answer);
  }
}

TEST_F(RealDialogs, EscapeOnAQuestionIsANo) {
  whenOpen<QMessageBox>([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); });
  EXPECT_EQ(MsgBox("Ga je door ?", YesNo), No);
}

TEST_F(RealDialogs, AnErrorHasTheStopSignAndOneButton) {
  whenOpen<QMessageBox>([](QMessageBox& box) {
    EXPECT_EQ(box.icon(), QMessageBox::Critical);
    EXPECT_EQ(box.buttons().size(), 1);
    choose(box, "OK");
  });
  EXPECT_EQ(MsgBox("Mis", Critical, "Titel"), Ok);
}

TEST_F(RealDialogs, ATextIsShownAsItIs) {
  whenOpen<QMessageBox>([](QMessageBox& box) {
    EXPECT_EQ(box.textFormat(), Qt::PlainText);
    choose(box, "OK");
  });
  MsgBox("<b>geen</b> &opmaak");
}

TEST_F(RealDialogs, AnInputBoxStartsWithItsDefaultAndGivesWhatWasTyped) {
  whenOpen<QDialog>([](QDialog& dialog) {
    auto* field = dialog.findChild<QLineEdit*>();
    EXPECT_EQ(field->text(), "10");
    field->setText("12,5");
    dialog.accept();
  });
  EXPECT_EQ(InputBox("Hoe breed ?", "Maat", "10"), "12,5");
  whenOpen<QDialog>([](QDialog& dialog) { dialog.reject(); });
  EXPECT_EQ(InputBox("Hoe breed ?", "Maat", "10"), "");
}

TEST_F(RealDialogs, TheOpenDialogShowsTheRowsOfTheFilterAndTheOneSelected) {
  whenOpen<QFileDialog>([](QFileDialog& dialog) {
    EXPECT_EQ(dialog.nameFilters(), QStringList({"Windows bitmap (*.BMP)", "Compuserve GIF (*.gif)",
                                                 "JPEG Filter (*.jpg)", "Alle bestanden (*)"}));
    EXPECT_EQ(dialog.selectedNameFilter(), "Compuserve GIF (*.gif)");
    EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptOpen);
    dialog.reject();
  });
  EXPECT_EQ(host().fileDialog({false,
                               "Windows bitmap (*.BMP)|*.bmp|Compuserve GIF (*.gif)|*.gif|JPEG "
                               "Filter (*.jpg)|*.jpg|Alle bestanden|*.*",
                               2}),
            std::nullopt);
}

TEST_F(RealDialogs, TheSaveDialogTakesAnyNameAndAsksNothingItself) {
  const std::string path = folder() + "/er al.bmp";
  std::ofstream(path) << "x";
  for (const std::string& name : {path, folder() + "/nieuw"}) {
    whenOpen<QFileDialog>([&](QFileDialog& dialog) {
      EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptSave);
      EXPECT_TRUE(dialog.testOption(QFileDialog::DontConfirmOverwrite));
      EXPECT_EQ(dialog.defaultSuffix(), "");
      dialog.selectFile(QString::fromStdString(name));
      QMetaObject::invokeMethod(&dialog, "accept");
    });
    EXPECT_EQ(host().fileDialog({true, "Windows bitmap (*.BMP)|*.bmp", 1}), name);
  }
}

TEST_F(RealDialogs, TheColourDialogStartsAtItsColourAndGivesTheChosenOne) {
  whenOpen<QColorDialog>([](QColorDialog& dialog) {
    EXPECT_EQ(dialog.currentColor(), QColor(0x11, 0x22, 0x33));
    dialog.setCurrentColor(QColor(0xAA, 0xBB, 0xCC));
    dialog.accept();
  });
  EXPECT_EQ(host().colorDialog(RGB(0x11, 0x22, 0x33), 0), RGB(0xAA, 0xBB, 0xCC));
  whenOpen<QColorDialog>([](QColorDialog& dialog) { dialog.reject(); });
  EXPECT_EQ(host().colorDialog(Black, 0), std::nullopt);
}

TEST_F(RealDialogs, AnUntrappedErrorIsShownWithItsText) {
  whenOpen<QMessageBox>([](QMessageBox& box) {
    EXPECT_EQ(box.icon(), QMessageBox::Critical);
    EXPECT_TRUE(box.text().contains("Division by zero"));
    choose(box, "OK");
  });
  host().errorReport("Division by zero");
}

TEST_F(RealDialogs, TheSystemsClipboardKeepsAPicture) {
  auto bitmap = std::make_shared<raster::Bitmap>(3, 2, 0xFF102030);
  bitmap->row(1)[2] = 0xFFFFEE01;
  Clipboard::SetData(Picture(std::move(bitmap)), Clipboard::Bitmap);
  const Picture back = Clipboard::GetData(Clipboard::Bitmap);
  ASSERT_EQ(back.width(), 3);
  ASSERT_EQ(back.height(), 2);
  EXPECT_EQ(back.bitmap()->at(0, 0), 0xFF102030);
  EXPECT_EQ(back.bitmap()->at(2, 1), 0xFFFFEE01);
  Clipboard::Clear();
  EXPECT_TRUE(Clipboard::GetData(Clipboard::Bitmap).empty());
}
