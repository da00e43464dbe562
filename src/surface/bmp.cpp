// Both ways of the Windows bitmap.
#include "surface/bmp.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <cstdlib>
#include <vector>

#include "surface/errors.h"

namespace surface {
namespace {

using raster::Bitmap;
using raster::Pixel;
using Byte = unsigned char;

constexpr Pixel Opaque = 0xFF000000;
constexpr int FileHeader = 14, OldestHeader = 12, PlainHeader = 40, MaskedHeader = 52,
              AlphaHeader = 56, LongestHeader = 124;
constexpr long long MostRunBytes = 64LL << 20;
constexpr long long FurthestStart = 1LL << 30;

[[noreturn]] void badFile() { throw RuntimeError(ErrorKind::BadFile, "Invalid picture"); }

std::uint32_t number(const Byte* at, int bytes) {
  std::uint32_t value = 0;
  while (bytes-- > 0) value = value << 8 | at[bytes];
  return value;
}
std::uint32_t number32(const Byte* at) { return number(at, 4); }
std::int32_t signed32(const Byte* at) { return static_cast<std::int32_t>(number32(at)); }

/// Where in a pixel's number a colour stands.
class Channel {
 public:
  explicit Channel(std::uint32_t mask)
      : mask_(mask), shift_(mask ? std::countr_zero(mask) : 0), bits_(std::popcount(mask)) {}

  bool there() const { return bits_ > 0; }
  /// From 0 to 255. The brightest of 32 shades is white, not 248.
  std::uint32_t of(std::uint32_t pixel) const {
    const std::uint32_t value = (pixel & mask_) >> shift_;
    if (bits_ >= 8) return value >> (bits_ - 8) & 0xFF;
    std::uint32_t shade = 0;
    for (int place = 8 - bits_; bits_ > 0 && place > -bits_; place -= bits_)
      shade |= place >= 0 ? value << place : value >> -place;
    return shade;
  }

 private:
  std::uint32_t mask_;
  int shift_, bits_;
};

struct Masks {
  Channel red, green, blue, alpha;
};

enum Compression : std::uint32_t { Plain = 0, Runs8 = 1, Runs4 = 2, OwnMasks = 3, AlphaMasks = 6 };

struct Header {
  long long start = 0, width = 0, height = 0;
  bool downwards = false;
  int bits = 0;
  std::uint32_t compression = Plain;
  long long pixelBytes = 0;
  Masks masks{Channel(0), Channel(0), Channel(0), Channel(0)};
  std::array<Pixel, 256> palette{};

  bool runs() const { return compression == Runs8 || compression == Runs4; }
  long long stride() const { return (width * bits + 31) / 32 * 4; }
};

class Reader {
 public:
  explicit Reader(std::FILE* file) : file_(file) {}

  Picture read() {
    readHeaders();
    readPixels();
    return made();
  }

  /// A bitmap within an icon: without the first header, and with a mask behind its rows, which
  /// count twice for it.
  Picture readIcon(long long place) {
    const long long behind = readInfo(place);
    header_.height /= 2;
    if (header_.bits == 32) {
      header_.compression = OwnMasks;
      header_.masks.alpha = Channel(Opaque);
    }
    header_.start = behind + (header_.bits > 8 ? 0 : 4LL * (named_ ? named_ : 1 << header_.bits));
    check();
    if (oldest_ || header_.runs()) badFile();
    readPalette(behind, 4);
    readPixels();
    if (coverage_.empty()) readIconMask();
    return made();
  }

 private:
  void readPixels() {
    if (!header_.runs()) mustReach(header_.start + header_.stride() * header_.height);
    const int width = static_cast<int>(std::min<long long>(header_.width, LargestSideKept));
    bitmap_ =
        std::make_shared<Bitmap>(width, rowsKept(header_.width, header_.height, MostPixelsKept),
                                 Opaque | header_.palette[0]);
    if (header_.runs()) return readRuns();
    readRows();
    // Many programs leave the bytes for it unset.
    if (std::any_of(coverage_.begin(), coverage_.end(), [](Byte c) { return c > 0; })) return;
    header_.masks.alpha = Channel(0);
    if (!coverage_.empty()) readRows();
  }

  Picture made() {
    const bool opaque =
        std::all_of(coverage_.begin(), coverage_.end(), [](Byte c) { return c == 255; });
    if (opaque) return Picture(std::move(bitmap_));
    return Picture(std::move(bitmap_), std::move(coverage_));
  }

  void take(Byte* to, std::size_t count) {
    if (std::fread(to, 1, count, file_) != count) badFile();
  }
  void seek(long long place) {
    if (std::fseek(file_, static_cast<long>(place), SEEK_SET) != 0) badFile();
  }
  // Before any memory is taken for it.
  void mustReach(long long end) {
    seek(end - 1);
    if (std::getc(file_) == EOF) badFile();
  }

  void readHeaders() {
    std::array<Byte, FileHeader> bytes{};
    seek(0);
    take(bytes.data(), bytes.size());
    if (bytes[0] != 'B' || bytes[1] != 'M') badFile();
    header_.start = number32(bytes.data() + 10);
    const long long behind = readInfo(FileHeader);
    check();
    readPalette(behind, oldest_ ? 3 : 4);
  }

  // Gives the place behind the second header and its masks.
  long long readInfo(long long place) {
    std::array<Byte, LongestHeader> bytes{};
    Byte* const info = bytes.data();
    seek(place);
    take(info, 4);
    const std::uint32_t length = number32(info);
    const bool oldest = oldest_ = length == OldestHeader;
    if (!oldest && (length < PlainHeader || length > LongestHeader)) badFile();
    take(info + 4, length - 4);
    header_.width = oldest ? 0LL + number(info + 4, 2) : signed32(info + 4);
    const long long height = oldest ? 0LL + number(info + 6, 2) : signed32(info + 8);
    header_.downwards = height < 0;
    header_.height = std::llabs(height);
    header_.bits = static_cast<int>(number(info + (oldest ? 10 : 14), 2));
    long long extra = 0;
    if (!oldest) {
      header_.compression = number32(info + 16);
      header_.pixelBytes = number32(info + 20);
      extra = readMasks(info, length);
    }
    named_ = oldest ? 0 : number32(info + 32);
    return place + length + extra;
  }

  // Gives how many bytes of masks stand behind the header.
  int readMasks(Byte* info, std::uint32_t length) {
    if (header_.compression != OwnMasks && header_.compression != AlphaMasks) {
      header_.masks = header_.bits == 16
                          ? Masks{Channel(0x7C00), Channel(0x03E0), Channel(0x001F), Channel(0)}
                          : Masks{Channel(0xFF0000), Channel(0xFF00), Channel(0xFF), Channel(0)};
      return 0;
    }
    int behind = 0;
    if (length < MaskedHeader) {
      behind = header_.compression == AlphaMasks ? 16 : 12;
      take(info + PlainHeader, static_cast<std::size_t>(behind));
    }
    const bool alpha = length >= AlphaHeader || behind == 16;
    header_.masks = {Channel(number32(info + 40)), Channel(number32(info + 44)),
                     Channel(number32(info + 48)), Channel(alpha ? number32(info + 52) : 0)};
    return behind;
  }

  void check() const {
    const Header& h = header_;
    if (h.width < 1 || h.height < 1 || h.width > MostPixelsInFile / h.height) badFile();
    const bool indexed = h.bits == 1 || h.bits == 4 || h.bits == 8;
    const bool masked = h.bits == 16 || h.bits == 32;
    const bool known = h.compression == Plain      ? indexed || masked || h.bits == 24
                       : h.compression == Runs8    ? h.bits == 8 && !h.downwards
                       : h.compression == Runs4    ? h.bits == 4 && !h.downwards
                       : h.compression == OwnMasks ? masked
                                                   : h.compression == AlphaMasks && masked;
    if (!known || h.start < FileHeader + OldestHeader || h.start > FurthestStart) badFile();
  }

  // What the file names no colour for is black.
  void readPalette(long long place, int entryBytes) {
    header_.palette.fill(Opaque);
    if (header_.bits > 8) {
      header_.palette[0] = 0xFFFFFFFF;
      return;
    }
    long long count = 1LL << header_.bits;
    if (named_ > 0) count = std::min<long long>(count, named_);
    count = std::clamp<long long>((header_.start - place) / entryBytes, 0, count);
    std::array<Byte, 4 * 256> bytes{};
    seek(place);
    take(bytes.data(), static_cast<std::size_t>(count * entryBytes));
    for (long long i = 0; i < count; ++i)
      header_.palette[static_cast<std::size_t>(i)] =
          Opaque | number(bytes.data() + i * entryBytes, 3);
  }

  void readRows() {
    const long long stride = header_.stride();
    const int rows = bitmap_->height();
    // Upside down, the upper rows come last.
    const long long first = header_.downwards ? 0 : header_.height - rows;
    const long long wanted =
        (static_cast<long long>(bitmap_->width()) * header_.bits + 31) / 32 * 4;
    std::vector<Byte> line(static_cast<std::size_t>(wanted));
    const bool alpha = header_.masks.alpha.there();
    coverage_.resize(alpha ? static_cast<std::size_t>(bitmap_->width()) * rows : 0);
    seek(header_.start + stride * first);
    for (int i = 0; i < rows; ++i) {
      if (wanted < stride) seek(header_.start + stride * (first + i));
      take(line.data(), line.size());
      toPixels(line.data(), header_.downwards ? i : rows - 1 - i);
    }
  }

  // A bit for each pixel, set where the icon lets through what is behind it.
  void readIconMask() {
    const long long stride = (header_.width + 31) / 32 * 4;
    const long long start = header_.start + header_.stride() * header_.height;
    mustReach(start + stride * header_.height);
    const int width = bitmap_->width(), rows = bitmap_->height();
    coverage_.assign(static_cast<std::size_t>(width) * rows, 255);
    std::vector<Byte> line(static_cast<std::size_t>(stride));
    for (int y = 0; y < rows; ++y) {
      seek(start + stride * (header_.height - 1 - y));
      take(line.data(), line.size());
      for (int x = 0; x < width; ++x) {
        if ((line[x / 8] >> (7 - x % 8) & 1) == 0) continue;
        coverage_[static_cast<std::size_t>(y) * width + x] = 0;
        bitmap_->row(y)[x] = 0xFFFFFFFF;
      }
    }
  }

  void toPixels(const Byte* line, int y) {
    const int width = bitmap_->width(), bits = header_.bits;
    Pixel* const row = bitmap_->row(y);
    Byte* cover = coverage_.empty() ? nullptr : &coverage_[static_cast<std::size_t>(y) * width];
    if (bits <= 8) {
      const int perByte = 8 / bits, mask = (1 << bits) - 1;
      for (int x = 0; x < width; ++x) {
        const int shift = 8 - bits - x % perByte * bits;
        row[x] = header_.palette[static_cast<std::size_t>(line[x / perByte] >> shift & mask)];
      }
    } else if (bits == 24) {
      for (int x = 0; x < width; ++x, line += 3) row[x] = Opaque | number(line, 3);
    } else if (bits == 32 && header_.compression == Plain) {
      for (int x = 0; x < width; ++x, line += 4) row[x] = Opaque | number(line, 3);
    } else {
      for (int x = 0; x < width; ++x, line += bits / 8) {
        const std::uint32_t pixel = number(line, bits / 8);
        row[x] = masked(pixel);
        if (cover) *cover++ = static_cast<Byte>(header_.masks.alpha.of(pixel));
      }
    }
  }

  Pixel masked(std::uint32_t pixel) const {
    const Masks& masks = header_.masks;
    const std::uint32_t cover = masks.alpha.there() ? masks.alpha.of(pixel) : 255;
    const auto onWhite = [&](const Channel& channel) {
      return (channel.of(pixel) * cover + 255 * (255 - cover) + 127) / 255;
    };
    return Opaque | onWhite(masks.red) << 16 | onWhite(masks.green) << 8 | onWhite(masks.blue);
  }

  Byte runByte() {
    const int byte = ++taken_ > MostRunBytes ? EOF : std::getc(file_);
    if (byte == EOF) badFile();
    return static_cast<Byte>(byte);
  }

  // Runs of one colour (of two in turn at four bits), single colours, and leaps.
  void readRuns() {
    constexpr int EndOfRow = 0, EndOfPicture = 1, Leap = 2;
    if (header_.pixelBytes > 0) mustReach(header_.start + header_.pixelBytes);
    seek(header_.start);
    while (y_ < header_.height) {
      const int count = runByte(), second = runByte();
      if (count > 0) {
        putRun(count, second);
      } else if (second == EndOfRow) {
        x_ = 0;
        ++y_;
      } else if (second == EndOfPicture) {
        return;
      } else if (second == Leap) {
        x_ += runByte();
        y_ += runByte();
      } else {
        putSingles(second);
      }
    }
  }

  void putRun(int count, int colors) {
    for (int i = 0; i < count; ++i)
      put(header_.bits == 8 ? colors : i % 2 ? colors & 15 : colors >> 4);
  }

  void putSingles(int count) {
    const int bytes = header_.bits == 8 ? count : (count + 1) / 2;
    int colors = 0;
    for (int i = 0; i < count; ++i) {
      if (header_.bits == 8 || i % 2 == 0) colors = runByte();
      put(header_.bits == 8 ? colors : i % 2 ? colors & 15 : colors >> 4);
    }
    if (bytes % 2) runByte();
  }

  void put(int index) {
    const long long row = header_.height - 1 - y_;
    if (x_ < bitmap_->width() && row >= 0 && row < bitmap_->height())
      bitmap_->row(static_cast<int>(row))[x_] = header_.palette[static_cast<std::size_t>(index)];
    ++x_;
  }

  std::FILE* file_;
  Header header_;
  bool oldest_ = false;
  std::uint32_t named_ = 0;  ///< colours, as the file has it; 0: all
  std::shared_ptr<Bitmap> bitmap_;
  std::vector<std::uint8_t> coverage_;  ///< empty without transparent parts
  // Of the runs: the next pixel, rows from below, and the bytes read.
  long long x_ = 0, y_ = 0, taken_ = 0;
};

void append(std::vector<Byte>& bytes, std::uint32_t value) {
  for (int i = 0; i < 4; ++i, value >>= 8) bytes.push_back(static_cast<Byte>(value & 0xFF));
}

bool written(std::FILE* file, const std::vector<Byte>& bytes) {
  return std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size();
}

}  // namespace

int rowsKept(long long width, long long height, long long mostPixels) {
  const long long columns = std::min<long long>(width, LargestSideKept);
  return static_cast<int>(std::min({height, mostPixels / columns, 0LL + LargestSideKept}));
}

Picture readBmp(std::FILE* file) { return Reader(file).read(); }

std::optional<Picture> readIcon(std::FILE* file) {
  constexpr int ListStart = 6, ListEntry = 16;
  constexpr std::uint32_t Png = 0x474E5089;
  std::array<Byte, ListStart + ListEntry> bytes{};
  const auto readAt = [&](long long place, std::size_t count) {
    if (std::fseek(file, static_cast<long>(place), SEEK_SET) != 0 ||
        std::fread(bytes.data(), 1, count, file) != count)
      badFile();
  };
  readAt(0, bytes.size());
  const std::uint32_t kind = number32(bytes.data());
  const std::uint32_t place = number32(bytes.data() + ListStart + 12);
  if ((kind != 0x10000 && kind != 0x20000) || number(bytes.data() + 4, 2) == 0 ||
      place > FurthestStart)
    badFile();
  readAt(place, 4);
  if (number32(bytes.data()) == Png) return std::nullopt;
  return Reader(file).readIcon(place);
}

bool writeBmp(std::FILE* file, const Bitmap& bitmap) {
  constexpr std::uint32_t Start = FileHeader + PlainHeader, DotsPerMetre = 3780;
  const auto width = static_cast<std::uint32_t>(bitmap.width());
  const auto height = static_cast<std::uint32_t>(bitmap.height());
  if (width == 0 || height == 0) return false;
  const std::uint32_t stride = (width * 3 + 3) / 4 * 4;
  std::vector<Byte> bytes = {'B', 'M'};
  for (const std::uint32_t field :
       {Start + stride * height, 0u, Start, 0u + PlainHeader, width, height, 1u | 24u << 16, 0u,
        stride * height, DotsPerMetre, DotsPerMetre, 0u, 0u})
    append(bytes, field);
  if (!written(file, bytes)) return false;
  for (int y = bitmap.height() - 1; y >= 0; --y) {
    bytes.assign(stride, 0);
    Byte* to = bytes.data();
    const Pixel* const row = bitmap.row(y);
    for (int x = 0; x < bitmap.width(); ++x, to += 3) {
      to[0] = static_cast<Byte>(row[x] & 0xFF);
      to[1] = static_cast<Byte>(row[x] >> 8 & 0xFF);
      to[2] = static_cast<Byte>(row[x] >> 16 & 0xFF);
    }
    if (!written(file, bytes)) return false;
  }
  return true;
}

}  // namespace surface
