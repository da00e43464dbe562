// Reading trusts no name, writing destroys nothing.
#include "surface/disk.h"

#include <filesystem>
#include <random>
#include <string>
#include <system_error>

#include "surface/disk_system.h"
#include "surface/errors.h"

namespace surface {
namespace {

namespace fs = std::filesystem;
using Writer = std::function<bool(std::FILE*)>;

[[noreturn]] void cannotWrite() {
  throw RuntimeError(ErrorKind::CannotWrite, "File cannot be written");
}

File open(const fs::path& path, Access access) { return File(openNamed(path, access)); }

// A plain string would be read in the system's code page where that is not UTF-8.
fs::path pathOf(const std::string& name) { return std::u8string(name.begin(), name.end()); }

bool closed(File file) { return std::fclose(file.release()) == 0; }

// What a link stands for, also if nothing is there yet.
fs::path behindLinks(fs::path path) {
  constexpr int MostLinks = 40;
  std::error_code error;
  for (int i = 0; i < MostLinks && fs::is_symlink(path, error); ++i) {
    const fs::path target = fs::read_symlink(path, error);
    path = target.is_absolute() ? target : path.parent_path() / target;
  }
  return path;
}

// A name beside the target that nothing has yet.
fs::path nameBeside(const fs::path& target) {
  static constexpr char letters[] = "abcdefghijklmnopqrstuvwxyz";
  std::random_device random;
  fs::path name = target;
  name += ".";
  for (int i = 0; i < 8; ++i) name += letters[random() % (sizeof letters - 1)];
  return name;
}

std::string contents(std::FILE* file) {
  std::string all;
  char part[65536];
  while (const std::size_t count = std::fread(part, 1, sizeof part, file)) all.append(part, count);
  return all;
}

// Leaves a file of exactly these bytes, or gives false.
bool overwrite(std::FILE* file, const fs::path& path, const Writer& write) {
  std::rewind(file);
  if (!write(file)) return false;
  const long size = std::ftell(file);
  std::error_code error;
  if (size < 0 || std::fflush(file) != 0) return false;
  fs::resize_file(path, static_cast<std::uintmax_t>(size), error);
  return !error && onDisk(file);
}

void writeInPlace(const fs::path& target, const Writer& write) {
  std::error_code error;
  if (!fs::exists(target, error)) {
    File file = open(target, Access::Make);
    if (!file) cannotWrite();
    const bool good = write(file.get()) && onDisk(file.get());
    if (closed(std::move(file)) && good) return;
    fs::remove(target, error);
    cannotWrite();
  }
  const File file = open(target, Access::Change);
  if (!file) cannotWrite();
  const std::string former = contents(file.get());
  if (overwrite(file.get(), target, write)) return;
  // There is room for it, since it was there before.
  std::clearerr(file.get());
  overwrite(file.get(), target, [&](std::FILE* to) {
    return std::fwrite(former.data(), 1, former.size(), to) == former.size();
  });
  cannotWrite();
}

}  // namespace

File openFile(const std::string& path) {
  std::error_code error;
  const fs::path named = pathOf(path);
  const fs::file_status status = fs::status(named, error);
  if (!fs::exists(status)) throw RuntimeError(ErrorKind::FileNotFound, "File not found");
  File file = fs::is_regular_file(status) ? open(named, Access::Read) : nullptr;
  if (!file) throw RuntimeError(ErrorKind::BadFile, "Invalid picture");
  return file;
}

void replaceFile(const std::string& path, const Writer& write) {
  const fs::path target = behindLinks(pathOf(path));
  std::error_code error;
  const fs::file_status former = fs::status(target, error);
  if (fs::exists(former) && !(fs::is_regular_file(former) && open(target, Access::Change)))
    cannotWrite();

  const fs::path beside = nameBeside(target);
  File file = open(beside, Access::Make);
  // Some folders, above all on networks, take no second file beside the first.
  if (!file) return writeInPlace(target, write);
  const bool good = write(file.get()) && onDisk(file.get());
  if (!closed(std::move(file)) || !good) {
    fs::remove(beside, error);
    cannotWrite();
  }
  if (fs::exists(former)) fs::permissions(beside, former.permissions(), error);
  fs::rename(beside, target, error);
  if (!error) return;
  // In a folder that many share nobody may take the name of another's file. The new contents stay
  // beside it until the target has them.
  const bool inPlace = trapAndLeave([&] { writeInPlace(target, write); });
  fs::remove(beside, error);
  if (!inPlace) cannotWrite();
}

bool makeFile(const std::string& path) { return open(pathOf(path), Access::Make) != nullptr; }

void removeFile(const std::string& path) {
  std::error_code error;
  fs::remove(pathOf(path), error);
}

bool fileExists(const std::string& path) {
  std::error_code error;
  return fs::exists(pathOf(path), error) && !error;
}

}  // namespace surface
