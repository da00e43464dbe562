// The bytes of a metafile, read with an eye on every bound.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

#include "surface/raster/bitmap.h"

namespace surface {

using Bytes = std::span<const std::uint8_t>;

/// Refuses the file: a BadFile error.
[[noreturn]] void damagedMetafile();

/// Little-endian numbers at places counted in bytes; a place beyond the end is a BadFile error.
class BytesReader {
 public:
  explicit BytesReader(Bytes bytes) : bytes_(bytes) {}

  std::size_t size() const { return bytes_.size(); }
  unsigned byte(std::size_t at) const;
  unsigned u16(std::size_t at) const { return byte(at) | byte(at + 1) << 8; }
  int i16(std::size_t at) const { return static_cast<std::int16_t>(u16(at)); }
  std::uint32_t u32(std::size_t at) const { return u16(at) | std::uint32_t{u16(at + 2)} << 16; }
  std::int32_t i32(std::size_t at) const { return static_cast<std::int32_t>(u32(at)); }
  Bytes part(std::size_t at, std::size_t length) const;
  Bytes from(std::size_t at) const;

 private:
  Bytes bytes_;
};

/// One call: its number and its arguments, words counted from 0.
class Record {
 public:
  Record(unsigned function, Bytes arguments) : function_(function), arguments_(arguments) {}

  unsigned function() const { return function_; }
  std::size_t words() const { return arguments_.size() / 2; }
  int i16(std::size_t word) const { return arguments_.i16(2 * word); }
  unsigned u16(std::size_t word) const { return arguments_.u16(2 * word); }
  std::uint32_t u32(std::size_t word) const { return arguments_.u32(2 * word); }
  /// A colour 0x00BBGGRR as a pixel.
  raster::Pixel color(std::size_t word) const;
  Bytes bytes(std::size_t word, std::size_t length) const {
    return arguments_.part(2 * word, length);
  }
  Bytes bytes(std::size_t word) const { return arguments_.from(2 * word); }

 private:
  unsigned function_;
  BytesReader arguments_;
};

/// What stands before the first record.
struct MetafileHeader {
  std::optional<raster::Rect> bounds;  ///< of a placeable file, in its own units
  int unitsPerInch = 0;                ///< of a placeable file
  unsigned objects = 0;                ///< pens, brushes and fonts at a time
  std::size_t firstRecord = 0;         ///< bytes
};

MetafileHeader readMetafileHeader(Bytes file);

/// The records one after the other, up to the end mark, which must be there.
class RecordWalk {
 public:
  RecordWalk(Bytes file, std::size_t first) : file_(file), at_(first) {}

  /// Nothing behind the last one.
  std::optional<Record> next();

 private:
  BytesReader file_;
  std::size_t at_;
};

/// A picture inside a metafile; none if it is of a kind that this program does not know. BadFile if
/// it is cut off or has more than `mostPixels` pixels.
std::optional<raster::Bitmap> readMetafileBitmap(Bytes dib, std::int64_t mostPixels);

}  // namespace surface
