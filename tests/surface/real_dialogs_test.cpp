// The toolkit's own dialogs behind the seams, answered by hand: Dutch buttons, answers, cancels.
#include "surface/real_dialogs.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QColorDialog>
#include <QComboBox>
#include <QCompleter>
#include <QFileDialog>
#include <QFileIconProvider>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QMimeData>
#include <QScreen>
#include <QTest>
#include <QTimer>
#include <QWidget>
#include <filesystem>
#include <fstream>

#include "support/errors.h"

using namespace surface;

namespace {

void choose(QMessageBox& box, const QString& text) {
  for (QAbstractButton* button : box.buttons())
    if (button->text().remove('&') == text) return button->click();
  ADD_FAILURE() << "there is no button " << text.toStdString();
}

/// The kinds of what the Tab key reaches and a screen reader has no name for.
std::vector<std::string> nameless(const QWidget& dialog) {
  std::vector<std::string> kinds;
  for (QWidget* part : dialog.findChildren<QWidget*>()) {
    if (!part->isVisible() || !(part->focusPolicy() & Qt::TabFocus) || part->focusProxy()) continue;
    auto* heard = QAccessible::queryAccessibleInterface(part);
    if (!heard || heard->text(QAccessible::Name).isEmpty())
      kinds.push_back(part->metaObject()->className() + (" " + part->objectName().toStdString()));
  }
  return kinds;
}

}  // namespace

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

TEST_F(RealDialogs, AQuestionStandsBeforeTheWindowThatItsHandlerHasJustShown) {
  const auto asksBefore = [](const QString& caption) {
    whenOpen<QMessageBox>([caption](QMessageBox& box) {
      ASSERT_TRUE(box.parentWidget());
      EXPECT_EQ(box.parentWidget()->windowTitle(), caption);
    });
    MsgBox("Ga je door ?", YesNo);
  };
  auto& former = showNew<AboveAll>();
  former.Caption = "eerste";
  advance(0);
  asksBefore("eerste");
  auto& latter = loadNew<AboveAll>();
  latter.Caption = "tweede";
  dispatch([&] {
    latter.Show();
    asksBefore("tweede");
  });
  latter.Hide();
  advance(0);
  former.Show();
  advance(0);
  asksBefore("eerste");
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

TEST_F(RealDialogs, AnInputBoxWithALongQuestionShowsAllOfItOnTheScreen) {
  std::string question;
  for (int i = 0; i < 60; ++i) question += "een lange vraag ";
  whenOpen<QDialog>([](QDialog& dialog) {
    EXPECT_LE(dialog.width(), dialog.screen()->availableSize().width());
    const auto* label = dialog.findChild<QLabel*>();
    EXPECT_GE(label->height(), label->heightForWidth(label->width()));
    const auto* field = dialog.findChild<QLineEdit*>();
    EXPECT_GT(field->y(), label->y() + label->heightForWidth(label->width()) - 1);
    dialog.reject();
  });
  InputBox(question, "Maat", "10");
}

TEST_F(RealDialogs, AShortQuestionStaysOnOneLine) {
  whenOpen<QDialog>([](QDialog& dialog) {
    const auto* label = dialog.findChild<QLabel*>();
    EXPECT_LT(label->height(), 2 * label->fontMetrics().lineSpacing());
    dialog.reject();
  });
  InputBox("De gewenste breedte opgeven a.u.b.", "Maat", "10");
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

// A child that tries keys must not lose what it has made.
TEST_F(RealDialogs, NoKeyInAFileDialogDeletesOrRenamesAnything) {
  const std::string drawings = folder() + "/tekeningen";
  std::filesystem::create_directory(drawings);
  std::ofstream(drawings + "/oma.bmp") << "x";
  std::ofstream(folder() + "/opa.bmp") << "x";
  for (const bool save : {false, true}) {
    whenOpen<QFileDialog>([&](QFileDialog& dialog) {
      EXPECT_TRUE(dialog.testOption(QFileDialog::ReadOnly));
      dialog.setDirectory(QString::fromStdString(folder()));
      for (QAbstractItemView* view : dialog.findChildren<QAbstractItemView*>("treeView")) {
        QTRY_COMPARE(view->model()->rowCount(view->rootIndex()), 2);
        EXPECT_EQ(view->contextMenuPolicy(), Qt::NoContextMenu);
        EXPECT_EQ(view->editTriggers(), QAbstractItemView::NoEditTriggers);
        for (int row = 0; row < 2; ++row) {
          view->setCurrentIndex(view->model()->index(row, 0, view->rootIndex()));
          // The dialog would ask; the Enter says yes.
          QTimer::singleShot(0, [] {
            auto* asked = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (asked) QTest::keyClick(asked, Qt::Key_Return);
          });
          QTest::keyClick(view, Qt::Key_Delete);
          QTest::keyClick(view, Qt::Key_F2);
        }
      }
      dialog.reject();
    });
    EXPECT_EQ(host().fileDialog({save, "Alle bestanden|*.*", 1}), std::nullopt);
  }
  EXPECT_TRUE(std::filesystem::exists(drawings + "/oma.bmp"));
  EXPECT_TRUE(std::filesystem::exists(folder() + "/opa.bmp"));
}

TEST_F(RealDialogs, TheRarerTextsAreDutchToo) {
  const auto dutch = [](const char* context, const char* source) {
    return QCoreApplication::translate(context, source).toStdString();
  };
  EXPECT_EQ(dutch("QFileDialog", "&Rename"), "He&rnoemen");
  EXPECT_EQ(dutch("QFileDialog", "Back"), "Terug");
  EXPECT_EQ(dutch("QPlatformTheme", "Retry"), "Opnieuw proberen");
  EXPECT_EQ(dutch("QFileSystemModel", "Type"), "Soort") << "our own word";
}

TEST_F(RealDialogs, AMessageOfManyLinesIsNoLargerThanTheScreen) {
  std::string lines, line(20'000, 'w');
  for (int i = 0; i < 200; ++i) lines += "regel " + std::to_string(i) + "\n";
  for (const std::string& text : {lines, line}) {
    whenOpen<QMessageBox>([](QMessageBox& box) {
      const QSize screen = box.screen()->availableSize();
      EXPECT_LE(box.width(), screen.width());
      EXPECT_LE(box.height(), screen.height());
      EXPECT_FALSE(box.windowTitle().contains('\n'));
      choose(box, "OK");
    });
    MsgBox(text, Critical, text);
  }
}

TEST_F(RealDialogs, AMessageCannotBeMadeSmallOrLarge) {
  whenOpen<QMessageBox>([](QMessageBox& box) {
    EXPECT_FALSE(box.windowFlags() & Qt::WindowMinMaxButtonsHint);
    EXPECT_TRUE(box.windowFlags() & Qt::WindowCloseButtonHint);
    choose(box, "OK");
  });
  MsgBox("Klaar");
}

TEST_F(RealDialogs, AFileDialogShowsFoldersAndFilesByTwoIconsOnly) {
  std::filesystem::create_directory(folder() + "/map");
  for (const char* name : {"/a.bmp", "/b.gif", "/c"}) std::ofstream(folder() + name) << "x";
  whenOpen<QFileDialog>([&](QFileDialog& dialog) {
    const auto icon = [&](const char* name) {
      return dialog.iconProvider()->icon(QFileInfo(QString::fromStdString(folder() + name)));
    };
    EXPECT_EQ(icon("/a.bmp").cacheKey(), icon("/b.gif").cacheKey());
    EXPECT_EQ(icon("/a.bmp").cacheKey(), icon("/c").cacheKey());
    EXPECT_NE(icon("/a.bmp").cacheKey(), icon("/map").cacheKey());
    EXPECT_FALSE(icon("/c").isNull());
    dialog.reject();
  });
  EXPECT_EQ(host().fileDialog({false, "Alle bestanden|*.*", 1}), std::nullopt);
}

TEST_F(RealDialogs, AWindowAboveAllOthersCoversNoDialog) {
  const auto expectAbove = [](bool above) {
    const auto look = [above](QDialog& dialog) {
      EXPECT_EQ(bool(dialog.windowFlags() & Qt::WindowStaysOnTopHint), above)
          << dialog.windowTitle().toStdString();
      dialog.reject();
    };
    whenOpen<QDialog>(look);
    MsgBox("Ga je door ?", YesNo, "vraag");
    whenOpen<QDialog>(look);
    InputBox("Hoe breed ?", "getal", "10");
    whenOpen<QDialog>(look);
    host().fileDialog({true, "Alle bestanden|*.*", 1});
    whenOpen<QDialog>(look);
    host().colorDialog(Black, 4);
    whenOpen<QDialog>(look);
    host().errorReport("Division by zero", false);
  };
  expectAbove(false);
  the<AboveAll>().setTopMost();
  the<AboveAll>().Show();
  expectAbove(true);
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

TEST_F(RealDialogs, AScreenReaderHasANameForAllThatCanBeReached) {
  const auto expectNames = [](QDialog& dialog) {
    EXPECT_EQ(nameless(dialog), std::vector<std::string>());
    dialog.reject();
  };
  whenOpen<QDialog>(expectNames);
  MsgBox("Ga je door ?", YesNo, "Titel");
  whenOpen<QDialog>(expectNames);
  InputBox("Hoe breed ?", "Maat", "10");
  for (const bool save : {false, true}) {
    whenOpen<QDialog>(expectNames);
    host().fileDialog({save, "Alle bestanden|*.*", 1});
  }
  for (const int flags : {0, 4}) {
    whenOpen<QDialog>(expectNames);
    host().colorDialog(Black, flags);
  }
}

TEST_F(RealDialogs, AnUntrappedErrorIsShownWithItsText) {
  whenOpen<QMessageBox>([](QMessageBox& box) {
    EXPECT_EQ(box.icon(), QMessageBox::Critical);
    EXPECT_TRUE(box.text().contains("Division by zero"));
    choose(box, "OK");
  });
  host().errorReport("Division by zero", true);
}

TEST_F(RealDialogs, AClipboardWithABrokenPictureIsAnErrorAndOneWithoutIsEmpty) {
  auto* broken = new QMimeData;
  broken->setData("image/png", "dit is geen plaatje");
  broken->setData("application/x-qt-image", "dit is geen plaatje");
  QGuiApplication::clipboard()->setMimeData(broken);
  EXPECT_ERROR(BadFile, Clipboard::GetData(Clipboard::Bitmap));
  QGuiApplication::clipboard()->setText("tekst");
  EXPECT_TRUE(Clipboard::GetData(Clipboard::Bitmap).empty());
}

TEST_F(RealDialogs, OfAHugePictureOnTheClipboardTheUpperLeftPartIsTaken) {
  QImage image(40'000, 20, QImage::Format_RGB32);
  image.fill(0xFF102030);
  image.setPixel(32766, 19, 0xFFFFEE01);
  QGuiApplication::clipboard()->setImage(image);
  const Picture taken = Clipboard::GetData(Clipboard::Bitmap);
  ASSERT_EQ(taken.width(), 32767);
  ASSERT_EQ(taken.height(), 20);
  EXPECT_EQ(taken.bitmap()->at(32766, 19), 0xFFFFEE01);
  QGuiApplication::clipboard()->clear();
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
