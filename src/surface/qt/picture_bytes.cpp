// Walks through the blocks of a picture file, without decoding anything.
#include "surface/qt/picture_bytes.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace surface::qt {
namespace {

/// Reads on through a file; beyond its end everything is 0 and `past` is set.
class Walk {
 public:
  Walk(const QByteArray& file, qint64 start) : file_(file), at_(start) {}

  quint8 byte() {
    past_ |= at_ >= file_.size();
    return past_ ? 0 : static_cast<quint8>(file_[at_++]);
  }
  quint16 bigEndian16() {
    const int high = byte();
    return static_cast<quint16>(high << 8 | byte());
  }
  qint64 place() const { return at_; }
  void goTo(qint64 place) { at_ = place; }
  void skip(qint64 bytes) { at_ += bytes; }
  /// Goes on behind the next byte of this value.
  void skipTo(char value) {
    const qint64 found = past() ? -1 : file_.indexOf(value, at_);
    past_ |= found < 0;
    at_ = found + 1;
  }
  bool past() const { return past_ || at_ > file_.size(); }

 private:
  const QByteArray& file_;
  qint64 at_;
  bool past_ = false;
};

// A GIF's colours come in tables whose size is a power of two.
qint64 tableBytes(int flags) { return flags & 0x80 ? 3 * (2 << (flags & 7)) : 0; }

void skipSubBlocks(Walk& walk) {
  for (int length = walk.byte(); length > 0; length = walk.byte()) walk.skip(length);
}

/// The segments of a JPEG file, one after the other.
class JpegReader {
 public:
  explicit JpegReader(const QByteArray& file) : walk_(file, 0) {}

  JpegFacts read() {
    constexpr int Stuffed = 0x00, Temporary = 0x01, FirstRestart = 0xD0, Start = 0xD8, End = 0xD9,
                  Fill = 0xFF;
    while (!walk_.past()) {
      // Within a scan the picture's own bytes lie between the markers.
      walk_.skipTo('\xFF');
      int marker = walk_.byte();
      while (marker == Fill) marker = walk_.byte();
      if (walk_.past()) break;
      if (marker == End) {
        facts_.ended = true;
        break;
      }
      const bool alone =
          marker <= Temporary || (marker >= FirstRestart && marker <= Start) || marker == Stuffed;
      if (!alone) readSegment(marker);
    }
    facts_.complete = count_ > 0 && std::all_of(seen_.begin(), seen_.begin() + count_,
                                                [](const auto& part) { return ~part.bits == 0; });
    return facts_;
  }

 private:
  struct Component {
    int id = 0;
    qint64 blocks = 0;
    std::uint64_t bits = 0;  ///< one for each coefficient that has come in full precision
  };

  void readSegment(int marker) {
    constexpr int FirstFrame = 0xC0, LastFrame = 0xCF, Huffman = 0xC4, Extension = 0xC8,
                  Arithmetic = 0xCC, Scan = 0xDA;
    ++facts_.segments;
    const qint64 start = walk_.place();
    const int length = walk_.bigEndian16();
    if (marker == Scan) readScan();
    if (marker >= FirstFrame && marker <= LastFrame && marker != Huffman && marker != Extension &&
        marker != Arithmetic)
      readFrame(marker);
    walk_.goTo(start + std::max(2, length));
  }

  void readFrame(int marker) {
    walk_.byte();
    const qint64 height = walk_.bigEndian16(), width = walk_.bigEndian16();
    count_ = std::min<int>(walk_.byte(), static_cast<int>(seen_.size()));
    facts_.grey = count_ == 1;
    std::array<int, 4> across{}, down{};
    for (int i = 0; i < count_; ++i) {
      seen_[i] = {walk_.byte()};
      const int sampling = walk_.byte();
      across[i] = std::clamp(sampling >> 4, 1, 4);
      down[i] = std::clamp(sampling & 15, 1, 4);
      walk_.byte();
    }
    const int widest = std::max(1, *std::max_element(across.begin(), across.end()));
    const int highest = std::max(1, *std::max_element(down.begin(), down.end()));
    const qint64 columns = width / (8 * widest) + 1, rows = height / (8 * highest) + 1;
    for (int i = 0; i < count_; ++i) seen_[i].blocks = columns * across[i] * rows * down[i];
    progressive_ = (marker & 3) == 2;
    // That way of coding takes several times as long, and no camera uses it.
    slowness_ = marker > 0xC8 ? 8 : 1;
  }

  void readScan() {
    const int parts = std::min<int>(walk_.byte(), 4);
    std::array<int, 4> ids{};
    for (int i = 0; i < parts; ++i) {
      ids[i] = walk_.byte();
      walk_.byte();
    }
    const int first = walk_.byte(), last = walk_.byte(), precision = walk_.byte() & 15;
    const bool buffered = progressive_ || parts < count_;
    qint64 all = 0;
    for (int i = 0; i < count_; ++i) {
      all += seen_[i].blocks;
      if (std::find(ids.begin(), ids.begin() + parts, seen_[i].id) == ids.begin() + parts) continue;
      facts_.blocksVisited += seen_[i].blocks * slowness_;
      for (int k = progressive_ ? first : 0; k <= (progressive_ ? last & 63 : 63); ++k)
        if (!progressive_ || precision == 0) seen_[i].bits |= std::uint64_t{1} << k;
    }
    constexpr qint64 BlockBytes = 128;
    if (buffered) facts_.coefficientBytes = all * BlockBytes;
  }

  Walk walk_;
  JpegFacts facts_;
  std::array<Component, 4> seen_{};
  int count_ = 0;
  bool progressive_ = false;
  int slowness_ = 1;
};

}  // namespace

bool isWholeGif(const QByteArray& file) {
  constexpr int Extension = 0x21, Image = 0x2C;
  Walk walk(file, 10);
  const int flags = walk.byte();
  walk.skip(2 + tableBytes(flags));
  while (!walk.past()) {
    switch (walk.byte()) {
      case Extension:
        walk.skip(1);
        skipSubBlocks(walk);
        break;
      case Image: {
        walk.skip(8);
        const int local = walk.byte();
        walk.skip(tableBytes(local) + 1);
        skipSubBlocks(walk);
        return !walk.past();
      }
      default:
        return false;
    }
  }
  return false;
}

JpegFacts readJpegFacts(const QByteArray& file) { return JpegReader(file).read(); }

}  // namespace surface::qt
