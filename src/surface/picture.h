// A picture object: an unchanging bitmap that any number of controls, snapshots and the clipboard
// share, and its way from and to files.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "surface/raster/bitmap.h"

namespace surface {

/// A value; copying it copies a reference. An empty picture has no bitmap.
class Picture {
 public:
  Picture() = default;
  explicit Picture(std::shared_ptr<const raster::Bitmap> bitmap) : bitmap_(std::move(bitmap)) {}
  /// A picture with transparent parts: `bitmap` as it looks before white, `coverage` one byte a
  /// pixel, row after row, from 0 (nothing there) to 255.
  Picture(std::shared_ptr<const raster::Bitmap> bitmap, std::vector<std::uint8_t> coverage);

  bool empty() const { return bitmap_ == nullptr; }
  /// Pixels; 0 for an empty picture.
  int width() const { return bitmap_ ? bitmap_->width() : 0; }
  int height() const { return bitmap_ ? bitmap_->height() : 0; }
  /// As it looks before white; null for an empty picture.
  const std::shared_ptr<const raster::Bitmap>& bitmap() const { return bitmap_; }
  /// As it looks before a colour.
  std::shared_ptr<const raster::Bitmap> over(raster::Pixel background) const;

  friend bool operator==(const Picture&, const Picture&) = default;

 private:
  std::shared_ptr<const raster::Bitmap> bitmap_;
  std::shared_ptr<const std::vector<std::uint8_t>> coverage_;  ///< null: opaque
};

/// The empty picture.
inline Picture LoadPicture() { return {}; }
/// Reads a BMP, GIF, JPEG, ICO, CUR or WMF file, told by its content, at most 64 MiB decoded.
/// FileNotFound or BadFile otherwise.
Picture LoadPicture(const std::string& path);
/// Writes an uncompressed 24-bit Windows bitmap. The file takes the place of an older one only when
/// it is complete; CannotWrite leaves the older one as it was.
void SavePicture(const Picture& picture, const std::string& path);

/// A path as the system reads it: backslashes part folders like slashes, unless a file of exactly
/// the written name exists. The two above take such paths.
std::string toPath(const std::string& written);

}  // namespace surface
