// The shape tools, with a real pointer.
#include "studio/frmTekenen2.h"
#include "support/script.h"

using namespace surface;

class Shapes : public script::Stage {
 protected:
  Shapes() { studio.Show(); }
  frmTekenen2& studio = the<frmTekenen2>();
  PictureBox& sheet = studio.picBlad;
};

TEST_F(Shapes, LineRunsFromPressToRelease) {
  click(studio.cmdLijn);
  drag(sheet, 10, 20, 50, 20);
  EXPECT_EQ(sheet.Point({10, 20}), Black);
  EXPECT_EQ(sheet.Point({49, 20}), Black);
  EXPECT_EQ(sheet.Point({51, 20}), White);
}

TEST_F(Shapes, LineBegunInTheLeftColumnIsNotDrawn) {
  click(studio.cmdLijn);
  drag(sheet, 0, 20, 50, 20);
  EXPECT_EQ(sheet.Point({10, 20}), White);
}
