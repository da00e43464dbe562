// A 32-bit bitmap and the plain values that the drawing operations take. All coordinates are
// pixels, the origin is the top left corner, y grows downwards.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace raster {

/// One pixel as the screen wants it: 0xFFRRGGBB. The top byte is always 0xFF.
using Pixel = std::uint32_t;

/// A rectangle of pixels: the columns left..right-1, the rows top..bottom-1. Empty when a side is 0
/// or less.
struct Rect {
  int left = 0, top = 0, right = 0, bottom = 0;

  int width() const { return right - left; }
  int height() const { return bottom - top; }
  bool empty() const { return right <= left || bottom <= top; }
  friend bool operator==(const Rect&, const Rect&) = default;
};

/// The part that two rectangles share.
Rect intersect(const Rect& a, const Rect& b);
/// The smallest rectangle that holds both; an empty one adds nothing.
Rect unite(const Rect& a, const Rect& b);

/// A rectangle of pixels in memory, row after row without gaps. Buffers of freed bitmaps are kept
/// for the next one of the same size, since a snapshot into fresh memory costs many times the copy
/// itself.
class Bitmap {
 public:
  Bitmap() = default;
  /// A bitmap of the given size in pixels (each 0 or more), every pixel `fill`.
  Bitmap(int width, int height, Pixel fill);
  /// One whose pixels are still anything, for a caller that writes them all.
  static Bitmap unfilled(int width, int height);
  Bitmap(const Bitmap& other);
  Bitmap& operator=(const Bitmap& other);
  Bitmap(Bitmap&& other) noexcept;
  Bitmap& operator=(Bitmap&& other) noexcept;
  ~Bitmap();

  int width() const { return width_; }
  int height() const { return height_; }
  Rect bounds() const { return {0, 0, width_, height_}; }
  bool contains(int x, int y) const {
    // Negative numbers become large ones.
    return static_cast<unsigned>(x) < static_cast<unsigned>(width_) &&
           static_cast<unsigned>(y) < static_cast<unsigned>(height_);
  }

  /// The pixels of row y, 0..height-1; unchecked.
  Pixel* row(int y) { return pixels_ + static_cast<std::size_t>(y) * width_; }
  const Pixel* row(int y) const { return pixels_ + static_cast<std::size_t>(y) * width_; }
  /// One pixel; unchecked.
  Pixel at(int x, int y) const { return row(y)[x]; }

 private:
  int width_ = 0, height_ = 0;
  Pixel* pixels_ = nullptr;
};

}  // namespace raster
