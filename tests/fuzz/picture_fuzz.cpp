// Feeds mangled picture files to the loader: `picture_fuzz SEEDS_DIR COUNT`. Ends with 0 only if
// every file either gave a picture or a RuntimeError, in time and within its memory. A file that
// does neither is left behind as picture_fuzz.bad.
#include <sys/time.h>

#include <QGuiApplication>
#include <QTemporaryDir>
#include <algorithm>
#include <atomic>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <random>
#include <string>
#include <vector>

#include "surface/errors.h"
#include "surface/host.h"
#include "surface/qt/fonts.h"
#include "surface/qt/images.h"

namespace {

using Bytes = std::string;

constexpr int SecondsAllowed = 2;             // of work
constexpr int SecondsOfPatience = 60;         // of waiting, on a busy machine
constexpr std::size_t Largest = 256'000'000;  // bytes of one decoded picture
constexpr std::size_t Slack = 2 << 20;
// The file, what the decoder holds, and the picture.
constexpr std::size_t Together = (256 << 20) + Slack;

Bytes mangled;

void leaveBehind() { std::ofstream("picture_fuzz.bad", std::ios::binary) << mangled; }

// What the loader takes while it runs.
std::atomic<bool> watching = false;
std::atomic<std::size_t> largestBlock = 0;
std::atomic<std::int64_t> held = 0, mostHeld = 0;

template <class Number>
void raise(std::atomic<Number>& highest, Number value) {
  Number former = highest;
  while (former < value && !highest.compare_exchange_weak(former, value)) {
  }
}

void hang(int) {
  leaveBehind();
  std::fputs("a file takes too long\n", stderr);
  std::_Exit(3);
}

void setTimers(int work, int patience) {
  const itimerval cpu{{}, {work, 0}}, wall{{}, {patience, 0}};
  setitimer(ITIMER_PROF, &cpu, nullptr);
  setitimer(ITIMER_REAL, &wall, nullptr);
}

Bytes read(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

/// Changes a file in one of the ways in which files break, or are broken on purpose.
class Mangler {
 public:
  Mangler(std::vector<Bytes> seeds, unsigned seed) : seeds_(std::move(seeds)), random_(seed) {}

  Bytes next() {
    Bytes file = seeds_[below(seeds_.size())];
    for (std::size_t changes = 1 + below(6); changes > 0 && !file.empty(); --changes) change(file);
    return file;
  }

 private:
  std::size_t below(std::size_t limit) {
    return std::uniform_int_distribution<std::size_t>(0, limit - 1)(random_);
  }
  // Headers are where the damage is done.
  std::size_t place(const Bytes& file) {
    return below(below(2) ? file.size() : std::min<std::size_t>(file.size(), 64));
  }

  void change(Bytes& file) {
    switch (below(8)) {
      case 0:
        file[place(file)] ^= static_cast<char>(1 << below(8));
        break;
      case 1:
        file[place(file)] = static_cast<char>(below(256));
        break;
      case 2:
        number(file, 2);
        break;
      case 3:
        number(file, 4);
        break;
      case 4:
        file.resize(below(file.size()));
        break;
      case 5:
        file.erase(place(file), 1 + below(20));
        break;
      case 6:
        file.insert(place(file), file.substr(place(file), 1 + below(200)));
        break;
      default:
        splice(file);
        break;
    }
  }

  // A number of which too much may be made, in either order of bytes.
  void number(Bytes& file, std::size_t bytes) {
    static constexpr std::uint32_t awkward[] = {
        0,      1,      2,       0x7F,       0x80,       0xFF,       0x100,     0x3FFF,    0x7FFF,
        0x8000, 0xFFFF, 0x10000, 0x00FFFFFF, 0x7FFFFFFF, 0x80000000, 0xFFFFFFF, 0xFFFFFFFF};
    std::uint32_t value = awkward[below(std::size(awkward))];
    const std::size_t at = place(file);
    const bool bigEndian = below(2) != 0;
    for (std::size_t i = 0; i < bytes; ++i) {
      const std::size_t to = at + (bigEndian ? bytes - 1 - i : i);
      if (to < file.size()) file[to] = static_cast<char>(value & 0xFF);
      value >>= 8;
    }
  }

  void splice(Bytes& file) {
    const Bytes& other = seeds_[below(seeds_.size())];
    file = file.substr(0, place(file)) + other.substr(below(other.size()));
  }

  std::vector<Bytes> seeds_;
  std::mt19937 random_;
};

void fail(const char* what, long long figure) {
  leaveBehind();
  std::fprintf(stderr, "%s: %lld\n", what, figure);
  std::exit(1);
}

/// Loads the file and says what came of it.
std::string outcome(const std::string& path) {
  largestBlock = 0;
  held = mostHeld = 0;
  std::string result;
  setTimers(SecondsAllowed, SecondsOfPatience);
  watching = true;
  try {
    const surface::Picture picture = surface::qt::loadPicture(path);
    result = "picture";
    const auto bytes = std::size_t{4} * picture.width() * picture.height();
    if (picture.empty() || bytes == 0 || bytes > Largest)
      fail("a picture of a size that is not allowed", static_cast<long long>(bytes));
  } catch (const surface::RuntimeError& error) {
    result = error.what();
  }
  watching = false;
  setTimers(0, 0);
  if (largestBlock > Largest + Slack) fail("too much memory at once", largestBlock);
  if (mostHeld > static_cast<std::int64_t>(Together)) fail("too much memory in all", mostHeld);
  return result;
}

}  // namespace

// The sanitizer calls these at every allocation and release.
extern "C" std::size_t __sanitizer_get_allocated_size(const volatile void* block);
extern "C" void __sanitizer_malloc_hook(const volatile void*, std::size_t size) {
  if (!watching) return;
  raise(largestBlock, size);
  raise(mostHeld, held += static_cast<std::int64_t>(size));
}
extern "C" void __sanitizer_free_hook(const volatile void* block) {
  if (watching && block) held -= static_cast<std::int64_t>(__sanitizer_get_allocated_size(block));
}

int main(int argc, char** argv) {
  if (argc != 3) {
    std::fputs("usage: picture_fuzz SEEDS_DIR COUNT\n", stderr);
    return 2;
  }
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QGuiApplication application(argc, argv);
  // Text in a metafile takes the fonts; they are read once, which is no picture's fault.
  surface::host().rasterText = surface::qt::rasterText;
  surface::host().rasterText({}, "Zo");
  qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
  std::signal(SIGPROF, hang);
  std::signal(SIGALRM, hang);

  std::vector<std::filesystem::path> paths;
  for (const auto& entry : std::filesystem::directory_iterator(argv[1])) paths.push_back(entry);
  std::sort(paths.begin(), paths.end());
  std::vector<Bytes> seeds;
  QTemporaryDir folder;
  const std::string path = folder.filePath("picture").toStdString();
  const auto tryOut = [&path](const Bytes& file) {
    mangled = file;
    std::ofstream(path, std::ios::binary) << file;
    return outcome(path);
  };
  for (const auto& seed : paths) {
    seeds.push_back(read(seed));
    if (const std::string result = tryOut(seeds.back()); result != "picture")
      fail(("the seed " + seed.string() + " is no picture: " + result).c_str(), 0);
  }
  if (seeds.empty()) fail("no seeds", 0);

  Mangler mangler(seeds, 20250101);
  std::map<std::string, int> outcomes;
  std::size_t largest = 0;
  std::int64_t most = 0;
  for (int left = std::atoi(argv[2]); left > 0; --left) {
    ++outcomes[tryOut(mangler.next())];
    largest = std::max<std::size_t>(largest, largestBlock);
    most = std::max<std::int64_t>(most, mostHeld);
  }
  for (const auto& [what, count] : outcomes) std::printf("%7d %s\n", count, what.c_str());
  std::printf("largest block %zu bytes, most held %lld bytes\n", largest,
              static_cast<long long>(most));
  return 0;
}
