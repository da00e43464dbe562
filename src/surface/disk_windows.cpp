// Files on Windows: names in wide letters, since its narrow calls know only one code page.
#include <fcntl.h>
#include <io.h>
#include <sys/stat.h>

#include "surface/disk_system.h"

namespace surface {

std::FILE* openNamed(const std::filesystem::path& path, Access access) {
  if (access == Access::Read) return _wfopen(path.c_str(), L"rb");
  if (access == Access::Change) return _wfopen(path.c_str(), L"r+b");
  // Its library has no mode of fopen for this.
  const int made =
      _wopen(path.c_str(), _O_CREAT | _O_EXCL | _O_WRONLY | _O_BINARY, _S_IREAD | _S_IWRITE);
  return made < 0 ? nullptr : _wfdopen(made, L"wb");
}

bool onDisk(std::FILE* file) { return std::fflush(file) == 0 && _commit(_fileno(file)) == 0; }

}  // namespace surface
