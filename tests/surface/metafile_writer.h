// Writes metafiles, call by call, for the tests and the seeds of the fuzzer.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <span>
#include <string>
#include <utility>
#include <vector>

class MetafileWriter {
 public:
  using Bytes = std::vector<std::uint8_t>;

  /// A place in the file's units.
  struct At {
    int x, y;
  };

  MetafileWriter& record(unsigned function, const std::vector<int>& words) {
    add32(body_, static_cast<std::uint32_t>(words.size() + 3));
    add16(body_, static_cast<int>(function));
    for (const int word : words) add16(body_, word);
    return *this;
  }

  MetafileWriter& window(int x, int y, int width, int height) {
    return record(0x020B, {y, x}).record(0x020C, {height, width});
  }
  MetafileWriter& pen(int style, int width, unsigned color) {
    return record(0x02FA, {style, width, 0, low(color), high(color)}).object();
  }
  MetafileWriter& brush(int style, unsigned color, int hatch = 0) {
    return record(0x02FC, {style, low(color), high(color), hatch}).object();
  }
  MetafileWriter& font(int height, const std::string& name, int weight = 400) {
    std::vector<int> words = {height, 0, 0, 0, weight, 0, 0, 0, 0};
    append(words, name + std::string(1, '\0'));
    return record(0x02FB, words).object();
  }
  MetafileWriter& select(int object) { return record(0x012D, {object}); }
  MetafileWriter& remove(int object) { return record(0x01F0, {object}); }
  MetafileWriter& move(int x, int y) { return record(0x0214, {y, x}); }
  MetafileWriter& lineTo(int x, int y) { return record(0x0213, {y, x}); }
  /// Rectangles and ellipses: the right and lower sides lie just outside.
  MetafileWriter& box(unsigned function, int left, int top, int right, int bottom) {
    return record(function, {bottom, right, top, left});
  }
  MetafileWriter& points(unsigned function, const std::vector<At>& corners) {
    std::vector<int> words = {static_cast<int>(corners.size())};
    for (const At& at : corners) words.insert(words.end(), {at.x, at.y});
    return record(function, words);
  }
  MetafileWriter& text(int x, int y, const std::string& letters) {
    std::vector<int> words = {static_cast<int>(letters.size())};
    append(words, letters);
    words.insert(words.end(), {y, x});
    return record(0x0521, words);
  }
  /// A bitmap of 24 bits, pixels 0xRRGGBB row by row from the top, scaled to a place.
  MetafileWriter& bitmap(unsigned rop, int x, int y, int width, int height, int sourceWidth,
                         const std::vector<unsigned>& pixels) {
    const int sourceHeight = static_cast<int>(pixels.size()) / sourceWidth;
    std::vector<int> words = {low(rop), high(rop), sourceHeight, sourceWidth, 0,
                              0,        height,    width,        y,           x};
    append(words, dib(sourceWidth, pixels));
    return record(0x0B41, words);
  }

  static std::string dib(int width, const std::vector<unsigned>& pixels) {
    const int height = static_cast<int>(pixels.size()) / width;
    Bytes bytes;
    add32(bytes, 40);
    add32(bytes, static_cast<std::uint32_t>(width));
    add32(bytes, static_cast<std::uint32_t>(height));
    add16(bytes, 1);
    add16(bytes, 24);
    for (int field = 0; field < 6; ++field) add32(bytes, 0);
    for (int y = height - 1; y >= 0; --y) {
      for (int x = 0; x < width; ++x) {
        const unsigned pixel = pixels[static_cast<std::size_t>(y * width + x)];
        for (const unsigned shift : {0u, 8u, 16u})
          bytes.push_back(static_cast<std::uint8_t>(pixel >> shift));
      }
      while ((bytes.size() - 40) % 4 != 0) bytes.push_back(0);
    }
    return {bytes.begin(), bytes.end()};
  }

  /// Without the header that tells the size.
  Bytes plain() const {
    Bytes file;
    add16(file, 1);
    add16(file, 9);
    add16(file, 0x0300);
    add32(file, static_cast<std::uint32_t>((18 + body_.size() + 6) / 2));
    add16(file, objects_);
    add32(file, 1000);
    add16(file, 0);
    file.insert(file.end(), body_.begin(), body_.end());
    add32(file, 3);
    add16(file, 0);
    return file;
  }
  Bytes placeable(int left, int top, int right, int bottom, int unitsPerInch) const {
    Bytes file;
    add32(file, 0x9AC6CDD7);
    for (const int word : {0, left, top, right, bottom, unitsPerInch, 0, 0}) add16(file, word);
    int sum = 0;
    for (std::size_t i = 0; i < 20; i += 2) sum ^= file[i] | file[i + 1] << 8;
    add16(file, sum);
    const Bytes rest = plain();
    file.insert(file.end(), rest.begin(), rest.end());
    return file;
  }

  static int low(unsigned value) { return static_cast<int>(value & 0xFFFF); }
  static int high(unsigned value) { return static_cast<int>(value >> 16); }
  static void append(std::vector<int>& words, const std::string& bytes) {
    for (std::size_t i = 0; i < bytes.size(); i += 2)
      words.push_back(static_cast<std::uint8_t>(bytes[i]) |
                      (i + 1 < bytes.size() ? static_cast<std::uint8_t>(bytes[i + 1]) : 0) << 8);
  }

 private:
  MetafileWriter& object() {
    ++objects_;
    return *this;
  }
  static void add16(Bytes& bytes, int value) {
    bytes.push_back(static_cast<std::uint8_t>(value));
    bytes.push_back(static_cast<std::uint8_t>(value >> 8));
  }
  static void add32(Bytes& bytes, std::uint32_t value) {
    add16(bytes, static_cast<int>(value & 0xFFFF));
    add16(bytes, static_cast<int>(value >> 16));
  }

  Bytes body_;
  int objects_ = 0;
};
