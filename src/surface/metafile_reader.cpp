// The bytes of a metafile: header, records, and the bitmaps inside them.
#include "surface/metafile_reader.h"

#include <array>
#include <cstdlib>

#include "surface/color.h"
#include "surface/errors.h"
#include "surface/metafile.h"

namespace surface {
namespace {

constexpr std::uint32_t PlaceableKey = 0x9AC6CDD7;
constexpr std::size_t PlaceableBytes = 22, HeaderBytes = 18;

bool isPlaceable(const BytesReader& file) {
  return file.size() >= PlaceableBytes && file.u32(0) == PlaceableKey;
}

// The fields in front of a bitmap's pixels.
struct DibHeader {
  explicit DibHeader(const BytesReader& dib) : bytes(dib.u32(0)) {
    if (bytes == 12) {
      width = dib.u16(4);
      height = dib.u16(6);
      bits = dib.u16(10);
      return;
    }
    width = dib.i32(4);
    height = dib.i32(8);
    bits = dib.u16(14);
    compression = dib.u32(16);
    paletteUsed = dib.u32(32);
  }

  std::size_t bytes;
  std::int64_t width = 0, height = 0;  ///< a negative height: the rows run downwards
  unsigned bits = 0;
  std::uint32_t compression = 0, paletteUsed = 0;

  bool known() const {
    const bool plain = compression == 0 && (bits == 1 || bits == 4 || bits == 8 || bits == 16 ||
                                            bits == 24 || bits == 32);
    return (bytes == 12 || bytes >= 40) && plain;
  }
  std::size_t entryBytes() const { return bytes == 12 ? 3 : 4; }
  std::size_t paletteEntries() const {
    if (bits > 8) return paletteUsed;
    const std::size_t most = std::size_t{1} << bits;
    return paletteUsed == 0 || paletteUsed > most ? most : paletteUsed;
  }
};

raster::Pixel pixelOf(unsigned red, unsigned green, unsigned blue) {
  return 0xFF000000u | red << 16 | green << 8 | blue;
}

// Eight bits of five, the brightest of them white.
unsigned widened(unsigned shade) { return (shade & 31) << 3 | (shade & 31) >> 2; }

class DibPixels {
 public:
  DibPixels(const DibHeader& header, const BytesReader& dib) : bits_(header.bits) {
    const std::size_t entries = header.bits <= 8 ? header.paletteEntries() : 0;
    for (std::size_t i = 0; i < entries; ++i) {
      const std::size_t at = header.bytes + i * header.entryBytes();
      palette_[i] = pixelOf(dib.byte(at + 2), dib.byte(at + 1), dib.byte(at));
    }
  }

  raster::Pixel at(const BytesReader& row, std::size_t x) const {
    switch (bits_) {
      case 16: {
        const unsigned packed = row.u16(2 * x);
        return pixelOf(widened(packed >> 10), widened(packed >> 5), widened(packed));
      }
      case 24:
        return pixelOf(row.byte(3 * x + 2), row.byte(3 * x + 1), row.byte(3 * x));
      case 32:
        return pixelOf(row.byte(4 * x + 2), row.byte(4 * x + 1), row.byte(4 * x));
      default: {
        const std::size_t perByte = 8 / bits_;
        const unsigned shift = static_cast<unsigned>((perByte - 1 - x % perByte) * bits_);
        return palette_[row.byte(x / perByte) >> shift & ((1u << bits_) - 1)];
      }
    }
  }

 private:
  unsigned bits_;
  // An entry that the file does not have is black.
  std::array<raster::Pixel, 256> palette_ = [] {
    std::array<raster::Pixel, 256> black;
    black.fill(0xFF000000);
    return black;
  }();
};

}  // namespace

void damagedMetafile() { throw RuntimeError(ErrorKind::BadFile, "Invalid picture"); }

unsigned BytesReader::byte(std::size_t at) const {
  if (at >= bytes_.size()) damagedMetafile();
  return bytes_[at];
}

Bytes BytesReader::part(std::size_t at, std::size_t length) const {
  if (at > bytes_.size() || length > bytes_.size() - at) damagedMetafile();
  return bytes_.subspan(at, length);
}

Bytes BytesReader::from(std::size_t at) const {
  if (at > bytes_.size()) damagedMetafile();
  return bytes_.subspan(at);
}

raster::Pixel Record::color(std::size_t word) const {
  return toPixel(static_cast<Color>(u32(word) & 0xFFFFFF));
}

bool isMetafile(Bytes bytes) {
  const BytesReader file(bytes);
  if (isPlaceable(file)) return true;
  if (file.size() < HeaderBytes) return false;
  const unsigned kind = file.u16(0), version = file.u16(4);
  return (kind == 1 || kind == 2) && file.u16(2) == HeaderBytes / 2 &&
         (version == 0x0100 || version == 0x0300);
}

MetafileHeader readMetafileHeader(Bytes bytes) {
  const BytesReader file(bytes);
  MetafileHeader header;
  std::size_t at = 0;
  if (isPlaceable(file)) {
    header.bounds = raster::Rect{file.i16(6), file.i16(8), file.i16(10), file.i16(12)};
    header.unitsPerInch = static_cast<int>(file.u16(14));
    at = PlaceableBytes;
  }
  if (file.u16(at + 2) != HeaderBytes / 2) damagedMetafile();
  header.objects = file.u16(at + 10);
  header.firstRecord = at + HeaderBytes;
  return header;
}

std::optional<Record> RecordWalk::next() {
  constexpr std::uint32_t SmallestRecord = 3;
  const std::uint32_t words = file_.u32(at_);
  const unsigned function = file_.u16(at_ + 4);
  if (words < SmallestRecord) damagedMetafile();
  if (function == 0) return std::nullopt;
  const Bytes record = file_.part(at_, std::size_t{2} * words);
  at_ += record.size();
  return Record(function, record.subspan(6));
}

std::optional<raster::Bitmap> readMetafileBitmap(Bytes bytes, std::int64_t mostPixels) {
  const BytesReader dib(bytes);
  const DibHeader header(dib);
  if (!header.known()) return std::nullopt;
  const std::int64_t width = header.width, height = std::abs(header.height);
  if (width <= 0 || height <= 0 || width > 32767 || height > 32767 || width * height > mostPixels)
    damagedMetafile();
  const std::size_t stride = static_cast<std::size_t>((width * header.bits + 31) / 32 * 4);
  const std::size_t start = header.bytes + header.paletteEntries() * header.entryBytes();
  // All rows, before anything is made for them.
  const BytesReader rows(dib.part(start, stride * static_cast<std::size_t>(height)));
  const DibPixels pixels(header, dib);
  raster::Bitmap bitmap(static_cast<int>(width), static_cast<int>(height), 0xFFFFFFFF);
  for (int y = 0; y < bitmap.height(); ++y) {
    const int stored = header.height < 0 ? y : bitmap.height() - 1 - y;
    const BytesReader row(rows.part(static_cast<std::size_t>(stored) * stride, stride));
    for (int x = 0; x < bitmap.width(); ++x)
      bitmap.row(y)[x] = pixels.at(row, static_cast<std::size_t>(x));
  }
  return bitmap;
}

}  // namespace surface
