// The icon by which a child finds the program among other windows.
#include <QIcon>
#include <QWidget>

#include "shell/frmStart.h"
#include "support/script.h"

using namespace surface;

class Icon : public script::Stage {};

TEST_F(Icon, EveryWindowShowsThePencilDownToSixteenPixels) {
  auto& menu = the<frmStart>();
  menu.Show();
  const QIcon icon = script::widgetOf(menu.txtNaam)->window()->windowIcon();
  const auto sizes = icon.availableSizes();
  for (int size : {16, 24, 32, 48, 64}) EXPECT_TRUE(sizes.contains(QSize(size, size))) << size;
  EXPECT_EQ(
      icon.pixmap(16, 16).toImage(),
      QImage(":/art/pictogram16.png").convertToFormat(icon.pixmap(16, 16).toImage().format()));
}
