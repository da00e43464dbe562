// The icon by which a child finds the program among other windows.
#include <gtest/gtest.h>

#include <QIcon>

#include "surface/qt/art.h"

TEST(Icon, ShowsThePencilDownToSixteenPixels) {
  const QIcon icon = surface::qt::programIcon();
  const auto sizes = icon.availableSizes();
  for (int size : {16, 24, 32, 48, 64}) EXPECT_TRUE(sizes.contains(QSize(size, size))) << size;
  EXPECT_EQ(
      icon.pixmap(16, 16).toImage(),
      QImage(":/art/pictogram16.png").convertToFormat(icon.pixmap(16, 16).toImage().format()));
}
