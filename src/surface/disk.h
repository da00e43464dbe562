// Files as bytes: opened only if they are files, and written so that no failure costs an older one.
// Names are the system's own bytes, whatever they mean as text; where its names are no bytes,
// UTF-8.
#pragma once

#include <cstdio>
#include <functional>
#include <memory>
#include <string>

namespace surface {

struct FileCloser {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, FileCloser>;

/// Opens a file to be read. FileNotFound; BadFile for anything but a file or a link to one (a pipe
/// would wait for ever, a device has no end) and for one that may not be read.
File openFile(const std::string& path);

/// Puts what `write` writes into the file of this name; a link stays a link. It is written beside
/// the target and takes its place once every byte is on disk. Where no new file may take its place,
/// the target is written over, and its former contents come back if that fails. CannotWrite; the
/// target is then as before. `write` may be called twice; it gives false if not every byte was
/// taken.
void replaceFile(const std::string& path, const std::function<bool(std::FILE*)>& write);

/// Makes an empty file; false if there is one of this name, or if it cannot be made.
bool makeFile(const std::string& path);

/// Takes a file away, if it is there and lets itself be taken away.
void removeFile(const std::string& path);

/// False also where one may not look.
bool fileExists(const std::string& path);

}  // namespace surface
