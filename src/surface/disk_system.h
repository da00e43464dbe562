// What each system does in its own way with a file on disk: disk_posix.cpp and disk_windows.cpp.
#pragma once

#include <cstdio>
#include <filesystem>

namespace surface {

enum class Access {
  Read,
  Change,  ///< to be read and written from its start; it keeps its contents
  Make,    ///< to be written; fails if there is one of this name
};

/// Null if the system refuses.
std::FILE* openNamed(const std::filesystem::path& path, Access access);

/// Hands all that was written to the disk itself; false if not every byte got there. Until then a
/// full disk may not have shown itself.
bool onDisk(std::FILE* file);

}  // namespace surface
