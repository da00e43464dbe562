// Small picture files made by hand, and the reading back of a saved bitmap byte by byte: neither
// goes through the program's own reader or writer.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <fstream>
#include <functional>
#include <iterator>
#include <string>
#include <vector>

namespace picture_files {

using Bytes = std::string;

inline void put16(Bytes& bytes, unsigned value) {
  bytes += static_cast<char>(value & 0xFF);
  bytes += static_cast<char>(value >> 8 & 0xFF);
}
inline void put32(Bytes& bytes, std::uint32_t value) {
  put16(bytes, value & 0xFFFF);
  put16(bytes, value >> 16);
}
inline unsigned get16(const Bytes& bytes, std::size_t at) {
  return static_cast<unsigned char>(bytes.at(at)) |
         static_cast<unsigned>(static_cast<unsigned char>(bytes.at(at + 1))) << 8;
}
inline std::uint32_t get32(const Bytes& bytes, std::size_t at) {
  return get16(bytes, at) | get16(bytes, at + 2) << 16;
}

inline void write(const std::string& path, const Bytes& bytes) {
  std::ofstream(path, std::ios::binary) << bytes;
}
inline Bytes read(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

/// 0xRRGGBB, the same for every format below.
using Rgb = std::uint32_t;
using Pixels = std::function<Rgb(int x, int y)>;

/// The two headers of a Windows bitmap, without palette and pixels.
inline Bytes bmpHeader(int width, int height, int bits, std::uint32_t paletteEntries,
                       std::uint32_t pixelBytes) {
  Bytes bytes = "BM";
  const std::uint32_t start = 54 + 4 * paletteEntries;
  put32(bytes, start + pixelBytes);
  put32(bytes, 0);
  put32(bytes, start);
  put32(bytes, 40);
  put32(bytes, static_cast<std::uint32_t>(width));
  put32(bytes, static_cast<std::uint32_t>(height));
  put16(bytes, 1);
  put16(bytes, static_cast<unsigned>(bits));
  for (const std::uint32_t field : {0u, pixelBytes, 2835u, 2835u, paletteEntries, 0u})
    put32(bytes, field);
  return bytes;
}

/// A Windows bitmap of 1, 4 or 8 bits a pixel; every colour must be in the palette.
inline Bytes paletteBmp(int width, int height, int bits, const std::vector<Rgb>& palette,
                        const Pixels& pixels) {
  const int stride = (width * bits + 31) / 32 * 4;
  Bytes bytes = bmpHeader(width, height, bits, static_cast<std::uint32_t>(palette.size()),
                          static_cast<std::uint32_t>(stride * height));
  for (const Rgb color : palette) put32(bytes, color);
  for (int y = height - 1; y >= 0; --y) {
    Bytes row(static_cast<std::size_t>(stride), '\0');
    for (int x = 0; x < width; ++x) {
      unsigned index = 0;
      while (palette.at(index) != pixels(x, y)) ++index;
      const int bit = x * bits;
      char& byte = row[static_cast<std::size_t>(bit / 8)];
      byte = static_cast<char>(static_cast<unsigned char>(byte) | index << (8 - bits - bit % 8));
    }
    bytes += row;
  }
  return bytes;
}

/// A Windows bitmap of 16 (five bits a colour), 24 or 32 bits a pixel.
inline Bytes trueColorBmp(int width, int height, int bits, const Pixels& pixels) {
  const int stride = (width * bits + 31) / 32 * 4;
  Bytes bytes = bmpHeader(width, height, bits, 0, static_cast<std::uint32_t>(stride * height));
  for (int y = height - 1; y >= 0; --y) {
    const std::size_t start = bytes.size();
    for (int x = 0; x < width; ++x) {
      const Rgb c = pixels(x, y);
      if (bits == 16) {
        put16(bytes, (c >> 19 & 31) << 10 | (c >> 11 & 31) << 5 | (c >> 3 & 31));
      } else {
        put16(bytes, c & 0xFFFF);
        bytes += static_cast<char>(c >> 16 & 0xFF);
        if (bits == 32) bytes += '\0';
      }
    }
    bytes.resize(start + static_cast<std::size_t>(stride));
  }
  return bytes;
}

/// A Windows bitmap of 24 bits with the oldest, shortest kind of second header.
inline Bytes oldestBmp(int width, int height, const Pixels& pixels) {
  const Bytes body = trueColorBmp(width, height, 24, pixels).substr(54);
  Bytes bytes = "BM";
  put32(bytes, static_cast<std::uint32_t>(26 + body.size()));
  put32(bytes, 0);
  put32(bytes, 26);
  put32(bytes, 12);
  put16(bytes, static_cast<unsigned>(width));
  put16(bytes, static_cast<unsigned>(height));
  put16(bytes, 1);
  put16(bytes, 24);
  return bytes + body;
}

/// A GIF without compression: 128 colours, so that a code is a byte, and a clear code often enough
/// that codes never grow. `transparent` is a palette index, or -1.
inline Bytes gif(int width, int height, const std::vector<Rgb>& palette, const Pixels& pixels,
                 int transparent = -1) {
  Bytes bytes = "GIF89a";
  put16(bytes, static_cast<unsigned>(width));
  put16(bytes, static_cast<unsigned>(height));
  bytes += Bytes("\xF6\0\0", 3);
  for (std::size_t i = 0; i < 128; ++i) {
    const Rgb c = i < palette.size() ? palette[i] : 0;
    bytes += {static_cast<char>(c >> 16), static_cast<char>(c >> 8), static_cast<char>(c)};
  }
  if (transparent >= 0)
    bytes += Bytes("\x21\xF9\x04\x01\0\0", 6) + static_cast<char>(transparent) + '\0';
  bytes += Bytes("\x2C\0\0\0\0", 5);
  put16(bytes, static_cast<unsigned>(width));
  put16(bytes, static_cast<unsigned>(height));
  bytes += '\0';
  bytes += '\x07';
  Bytes codes;
  for (int y = 0; y < height; ++y)
    for (int x = 0; x < width; ++x) {
      if ((y * width + x) % 100 == 0) codes += '\x80';
      char index = 0;
      while (palette.at(static_cast<std::size_t>(index)) != pixels(x, y)) ++index;
      codes += index;
    }
  codes += '\x81';
  for (std::size_t at = 0; at < codes.size(); at += 255) {
    const Bytes block = codes.substr(at, 255);
    bytes += static_cast<char>(block.size());
    bytes += block;
  }
  return bytes + '\0' + ';';
}

/// An icon (kind 1) or cursor (kind 2) with one picture of eight bits; `hole` tells what is
/// transparent.
inline Bytes icon(int kind, int width, int height, const std::vector<Rgb>& palette,
                  const Pixels& pixels, const std::function<bool(int, int)>& hole) {
  const auto hidden = [&](int x, int y) { return hole(x, y) ? palette[1] : palette[0]; };
  // Both halves are bitmaps without their first header: the colours, and which of them show.
  const Bytes colors = paletteBmp(width, height, 8, palette, pixels);
  const Bytes mask = paletteBmp(width, height, 1, {palette[0], palette[1]}, hidden);
  Bytes picture = colors.substr(14) + mask.substr(54 + 8);
  Bytes doubled;
  put32(doubled, static_cast<std::uint32_t>(2 * height));
  picture.replace(8, 4, doubled);
  Bytes bytes;
  for (const int field : {0, kind, 1}) put16(bytes, static_cast<unsigned>(field));
  bytes += {static_cast<char>(width), static_cast<char>(height), '\0', '\0'};
  // An icon tells planes and bits here, a cursor its hot spot.
  put16(bytes, 1);
  put16(bytes, kind == 1 ? 8 : 1);
  put32(bytes, static_cast<std::uint32_t>(picture.size()));
  put32(bytes, 22);
  return bytes + picture;
}

/// An uncompressed 24-bit Windows bitmap, taken apart; every header field is checked.
class SavedBmp {
 public:
  explicit SavedBmp(const std::string& path) : bytes_(read(path)) { parse(); }
  int width() const { return width_; }
  int height() const { return height_; }
  Rgb at(int x, int y) const {
    const std::size_t pixel =
        54 + stride() * static_cast<std::size_t>(height_ - 1 - y) + static_cast<std::size_t>(x) * 3;
    return get16(bytes_, pixel) | static_cast<Rgb>(static_cast<unsigned char>(bytes_.at(pixel + 2)))
                                      << 16;
  }

 private:
  void parse() {
    ASSERT_GE(bytes_.size(), 54u);
    ASSERT_EQ(bytes_.substr(0, 2), "BM");
    width_ = static_cast<int>(get32(bytes_, 18));
    height_ = static_cast<int>(get32(bytes_, 22));
    ASSERT_GT(height_, 0) << "upside down";
    EXPECT_EQ(get32(bytes_, 2), bytes_.size());
    EXPECT_EQ(get32(bytes_, 10), 54u) << "start of the pixels";
    EXPECT_EQ(get32(bytes_, 14), 40u) << "size of the second header";
    EXPECT_EQ(get16(bytes_, 26), 1u) << "planes";
    EXPECT_EQ(get16(bytes_, 28), 24u) << "bits a pixel";
    EXPECT_EQ(get32(bytes_, 30), 0u) << "compressed";
    ASSERT_EQ(bytes_.size(), 54 + stride() * static_cast<std::size_t>(height_));
  }
  std::size_t stride() const { return static_cast<std::size_t>(width_ * 3 + 3) / 4 * 4; }
  Bytes bytes_;
  int width_ = 0, height_ = 0;
};

}  // namespace picture_files
