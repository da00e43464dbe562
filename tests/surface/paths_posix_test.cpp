// A backslash in a file's name, where that can be: on Windows it parts folders and nothing else.
#include <fstream>

#include "support/script.h"
#include "surface/picture.h"

using namespace surface;

class PathsWithBackslashes : public script::Stage {};

TEST_F(PathsWithBackslashes, AFileWhoseNameHoldsABackslashIsFoundByIt) {
  const std::string odd = folder() + "/een\\twee.bmp";
  std::ofstream(odd) << "iets";
  EXPECT_EQ(toPath(odd), odd);
  SavePicture(Picture(std::make_shared<const raster::Bitmap>(3, 2, 0xFF336699)), odd);
  EXPECT_EQ(LoadPicture(odd).height(), 2);
}
