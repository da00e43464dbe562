// The memory of bitmaps: rectangles, and the pool that hands the buffer of a freed bitmap to the
// next one of the same size.
#include "surface/raster/bitmap.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <new>
#include <utility>

namespace raster {
namespace {

// A picture program makes and drops bitmaps of very few sizes: the sheet, its undo steps, its
// effects. Eight buffers catch that; the limit in bytes keeps a huge picture from staying behind.
constexpr std::size_t kKeptBuffers = 8;
constexpr std::size_t kKeptBytes = std::size_t{64} << 20;
constexpr std::align_val_t kAlignment{64};

/// Buffers waiting for their next bitmap, oldest first.
class Pool {
 public:
  ~Pool() {
    while (count_ > 0) dropOldest();
  }

  Pixel* take(std::size_t pixels) {
    if (pixels == 0) return nullptr;
    for (std::size_t i = count_; i-- > 0;) {
      if (kept_[i].pixels == pixels) return remove(i);
    }
    return static_cast<Pixel*>(::operator new(pixels * sizeof(Pixel), kAlignment));
  }

  void give(Pixel* memory, std::size_t pixels) noexcept {
    if (memory == nullptr) return;
    if (pixels * sizeof(Pixel) > kKeptBytes) {
      release(memory);
      return;
    }
    while (count_ == kKeptBuffers || bytes_ + pixels * sizeof(Pixel) > kKeptBytes) dropOldest();
    kept_[count_++] = {memory, pixels};
    bytes_ += pixels * sizeof(Pixel);
  }

 private:
  struct Buffer {
    Pixel* memory;
    std::size_t pixels;
  };

  static void release(Pixel* memory) noexcept { ::operator delete(memory, kAlignment); }

  void dropOldest() noexcept { release(remove(0)); }

  Pixel* remove(std::size_t index) noexcept {
    const Buffer buffer = kept_[index];
    std::copy(kept_.begin() + index + 1, kept_.begin() + count_, kept_.begin() + index);
    --count_;
    bytes_ -= buffer.pixels * sizeof(Pixel);
    return buffer.memory;
  }

  std::array<Buffer, kKeptBuffers> kept_{};
  std::size_t count_ = 0;
  std::size_t bytes_ = 0;
};

// Never destroyed: bitmaps with static storage may be freed after every other static.
Pool& pool() {
  alignas(Pool) static std::byte storage[sizeof(Pool)];
  static Pool* const instance = ::new (storage) Pool;
  return *instance;
}

std::size_t area(int width, int height) {
  return static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
}

}  // namespace

Rect intersect(const Rect& a, const Rect& b) {
  const Rect shared{std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right),
                    std::min(a.bottom, b.bottom)};
  return shared.empty() ? Rect{} : shared;
}

Rect unite(const Rect& a, const Rect& b) {
  if (a.empty()) return b.empty() ? Rect{} : b;
  if (b.empty()) return a;
  return {std::min(a.left, b.left), std::min(a.top, b.top), std::max(a.right, b.right),
          std::max(a.bottom, b.bottom)};
}

Bitmap::Bitmap(int width, int height, Pixel fill)
    : width_(width), height_(height), pixels_(pool().take(area(width, height))) {
  std::fill_n(pixels_, area(width, height), fill);
}

Bitmap Bitmap::unfilled(int width, int height) {
  Bitmap fresh;
  fresh.pixels_ = pool().take(area(width, height));
  fresh.width_ = width;
  fresh.height_ = height;
  return fresh;
}

Bitmap::Bitmap(const Bitmap& other)
    : width_(other.width_),
      height_(other.height_),
      pixels_(pool().take(area(other.width_, other.height_))) {
  if (pixels_ == nullptr) return;
  std::memcpy(pixels_, other.pixels_, area(width_, height_) * sizeof(Pixel));
}

Bitmap& Bitmap::operator=(const Bitmap& other) {
  if (this == &other) return *this;
  if (area(width_, height_) != area(other.width_, other.height_)) {
    Bitmap copy(other);
    return *this = std::move(copy);
  }
  width_ = other.width_;
  height_ = other.height_;
  if (pixels_ == nullptr) return *this;
  std::memcpy(pixels_, other.pixels_, area(width_, height_) * sizeof(Pixel));
  return *this;
}

Bitmap::Bitmap(Bitmap&& other) noexcept
    : width_(std::exchange(other.width_, 0)),
      height_(std::exchange(other.height_, 0)),
      pixels_(std::exchange(other.pixels_, nullptr)) {}

Bitmap& Bitmap::operator=(Bitmap&& other) noexcept {
  std::swap(width_, other.width_);
  std::swap(height_, other.height_);
  std::swap(pixels_, other.pixels_);
  return *this;
}

Bitmap::~Bitmap() { pool().give(pixels_, area(width_, height_)); }

}  // namespace raster
