// The way of pictures from and to files.
#include "surface/picture.h"

#include <algorithm>
#include <filesystem>

#include "surface/host.h"

namespace surface {
namespace {

bool exists(const std::string& path) {
  std::error_code ignored;
  return std::filesystem::exists(path, ignored);
}

}  // namespace

std::string toPath(const std::string& written) {
  if (written.find('\\') == std::string::npos || exists(written)) return written;
  std::string path = written;
  std::replace(path.begin(), path.end(), '\\', '/');
  return path;
}

Picture LoadPicture(const std::string& path) { return host().loadPicture(toPath(path)); }

void SavePicture(const Picture& picture, const std::string& path) {
  host().savePicture(picture, toPath(path));
}

}  // namespace surface
