// Disks that fail: full ones, folders in which nothing may be made, files that may not be read.
#pragma once

#include <gtest/gtest.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <string>
#include <vector>

namespace disk {

/// No file may grow beyond this size as long as this lives: a write stops half way, as on a disk
/// that is full.
class SizeLimit {
 public:
  explicit SizeLimit(std::size_t bytes) : formerHandler_(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &former_);
    const rlimit limit{bytes, former_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~SizeLimit() {
    setrlimit(RLIMIT_FSIZE, &former_);
    std::signal(SIGXFSZ, formerHandler_);
  }
  SizeLimit(const SizeLimit&) = delete;
  SizeLimit& operator=(const SizeLimit&) = delete;

 private:
  rlimit former_{};
  void (*formerHandler_)(int);
};

/// A disk of a few pages in a folder. Only the administrator can make one; `there()` tells.
class TinyDisk {
 public:
  TinyDisk(const std::string& folder, std::size_t bytes) : folder_(folder) {
    const std::string options = "mode=755,size=" + std::to_string(bytes);
    there_ = mount("none", folder.c_str(), "tmpfs", 0, options.c_str()) == 0;
  }
  ~TinyDisk() {
    if (there_) umount2(folder_.c_str(), MNT_DETACH);
  }
  TinyDisk(const TinyDisk&) = delete;
  TinyDisk& operator=(const TinyDisk&) = delete;
  bool there() const { return there_; }

 private:
  std::string folder_;
  bool there_;
};

/// The rights of an ordinary user as long as this lives: to the administrator no folder is closed.
class OrdinaryUser {
 public:
  static constexpr uid_t Nobody = 65534;
  OrdinaryUser() { EXPECT_TRUE(!administrator_ || seteuid(Nobody) == 0); }
  ~OrdinaryUser() { EXPECT_TRUE(!administrator_ || seteuid(0) == 0); }
  OrdinaryUser(const OrdinaryUser&) = delete;
  OrdinaryUser& operator=(const OrdinaryUser&) = delete;

 private:
  const bool administrator_ = geteuid() == 0;
};

/// Gives a file or folder to the ordinary user, with these rights.
inline void give(const std::string& path, std::filesystem::perms rights) {
  constexpr uid_t user = OrdinaryUser::Nobody;
  EXPECT_TRUE(geteuid() != 0 || chown(path.c_str(), user, user) == 0);
  std::filesystem::permissions(path, rights);
}

inline std::vector<std::string> names(const std::string& folder) {
  std::vector<std::string> all;
  for (const auto& entry : std::filesystem::directory_iterator(folder))
    all.push_back(entry.path().filename().string());
  std::sort(all.begin(), all.end());
  return all;
}

}  // namespace disk
