// The list of the screen's fonts: enough of them, each able to write Dutch, in order.
#include <QFontDatabase>
#include <QFontMetrics>
#include <QStringList>
#include <algorithm>
#include <set>

#include "support/script.h"
#include "surface/font.h"

using surface::ScreenFonts;

// The text tool starts with the twelfth font.
TEST(ScreenFonts, AreTwelveOrMore) { EXPECT_GE(ScreenFonts().size(), 12u); }

TEST(ScreenFonts, AreSortedAndEachNameStandsOnce) {
  const auto fonts = ScreenFonts();
  EXPECT_EQ(std::set<std::string>(fonts.begin(), fonts.end()).size(), fonts.size());
  const auto before = [](const std::string& a, const std::string& b) {
    return QString::fromStdString(a).compare(QString::fromStdString(b), Qt::CaseInsensitive) < 0;
  };
  EXPECT_TRUE(std::is_sorted(fonts.begin(), fonts.end(), before));
}

TEST(ScreenFonts, GrowToAnySizeAndHaveEveryDutchLetterOfTheirOwn) {
  for (const std::string& name : ScreenFonts()) {
    const QString family = QString::fromStdString(name);
    EXPECT_TRUE(QFontDatabase::isSmoothlyScalable(family)) << name;
    QFont font(family);
    font.setStyleStrategy(QFont::NoFontMerging);
    for (const QChar letter : QString::fromUtf8("abcxyzABCXYZ0189éëèïöüÉËÏ!?"))
      EXPECT_TRUE(QFontMetrics(font).inFont(letter))
          << name << ": " << QString(letter).toStdString();
  }
}

TEST(ScreenFonts, LeaveOutWhatShowsSymbolsForLetters) {
  const auto fonts = ScreenFonts();
  for (const QString& family : QFontDatabase::families(QFontDatabase::Symbol)) {
    const std::string name = family.left(family.indexOf(" [")).toStdString();
    EXPECT_EQ(std::count(fonts.begin(), fonts.end(), name), 0) << name;
  }
}
