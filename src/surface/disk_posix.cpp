// Files on systems with POSIX calls.
#include <unistd.h>

#include <cerrno>

#include "surface/disk_system.h"

namespace surface {

std::FILE* openNamed(const std::filesystem::path& path, Access access) {
  const char* mode = access == Access::Read ? "rb" : access == Access::Change ? "r+b" : "wbx";
  return std::fopen(path.c_str(), mode);
}

bool onDisk(std::FILE* file) {
  if (std::fflush(file) != 0) return false;
  // Some network folders cannot tell.
  return fsync(fileno(file)) == 0 || errno == EINVAL || errno == ENOSYS;
}

}  // namespace surface
