// Paths as they are written in the program, with backslashes, and as the system takes them.
#include <filesystem>

#include "support/script.h"
#include "surface/picture.h"

using namespace surface;

class Paths : public script::Stage {
 protected:
  static Picture dot() {
    return Picture(std::make_shared<const raster::Bitmap>(3, 2, toPixel(0x336699)));
  }
};

TEST_F(Paths, ABackslashPartsFoldersWhenAPictureIsSavedAndLoaded) {
  std::filesystem::create_directory(folder() + "/Beeld");
  SavePicture(dot(), folder() + "\\Beeld\\plaat.bmp");
  EXPECT_TRUE(std::filesystem::exists(folder() + "/Beeld/plaat.bmp"));
  const Picture back = LoadPicture(folder() + "\\Beeld\\plaat.bmp");
  EXPECT_EQ(back.width(), 3);
  EXPECT_EQ(toColor(back.bitmap()->at(1, 1)), 0x336699);
}

TEST_F(Paths, APathWithSlashesStaysAsItIs) { EXPECT_EQ(toPath("/een/twee.bmp"), "/een/twee.bmp"); }
