// raster_replay IN_DIR OUT_DIR: plays every file of recorded cases in IN_DIR with the raster and
// writes the pixels that came out, in the same format, to files of the same names in OUT_DIR.
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <stdexcept>

#include "replay.h"

namespace {

namespace fs = std::filesystem;

void replayFile(const fs::path& from, const fs::path& to) {
  std::ifstream in(from);
  std::ofstream out(to);
  for (const replay::Case& each : replay::readCases(in)) {
    replay::writeCase(out, each, replay::play(each));
  }
  if (!out.flush()) throw std::runtime_error("cannot write " + to.string());
}

}  // namespace

int main(int argc, char** argv) try {
  if (argc != 3) {
    std::cerr << "usage: raster_replay IN_DIR OUT_DIR\n";
    return 2;
  }
  fs::create_directories(argv[2]);
  for (const auto& entry : fs::directory_iterator(argv[1])) {
    if (entry.path().extension() != ".txt") continue;
    replayFile(entry.path(), fs::path(argv[2]) / entry.path().filename());
  }
  return 0;
} catch (const std::exception& error) {
  std::cerr << "raster_replay: " << error.what() << '\n';
  return 1;
}
