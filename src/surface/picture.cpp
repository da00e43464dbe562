// Pictures with transparent parts, and their way from and to files.
#include "surface/picture.h"

#include <algorithm>
#include <filesystem>
#include <utility>

#include "surface/host.h"

namespace surface {
namespace {

// A component that was mixed with white, mixed with `background` instead: white's part goes, the
// other colour's comes.
raster::Pixel remixed(raster::Pixel component, raster::Pixel background, raster::Pixel coverage) {
  const raster::Pixel less = ((255 - coverage) * (255 - background) + 127) / 255;
  return component > less ? component - less : 0;
}

raster::Pixel remixedPixel(raster::Pixel pixel, raster::Pixel background, raster::Pixel coverage) {
  raster::Pixel result = 0xFF000000;
  for (int shift = 0; shift < 24; shift += 8)
    result |= remixed(pixel >> shift & 0xFF, background >> shift & 0xFF, coverage) << shift;
  return result;
}

bool exists(const std::string& path) {
  std::error_code ignored;
  return std::filesystem::exists(path, ignored);
}

}  // namespace

Picture::Picture(std::shared_ptr<const raster::Bitmap> bitmap, std::vector<std::uint8_t> coverage)
    : bitmap_(std::move(bitmap)),
      coverage_(std::make_shared<const std::vector<std::uint8_t>>(std::move(coverage))) {}

std::shared_ptr<const raster::Bitmap> Picture::over(raster::Pixel background) const {
  if (!coverage_ || background == 0xFFFFFFFF) return bitmap_;
  auto mixed = std::make_shared<raster::Bitmap>(*bitmap_);
  auto covered = coverage_->begin();
  for (int y = 0; y < mixed->height(); ++y)
    for (raster::Pixel *at = mixed->row(y), *end = at + mixed->width(); at != end; ++at, ++covered)
      if (*covered != 255) *at = remixedPixel(*at, background, *covered);
  return mixed;
}

std::string toPath(const std::string& written) {
  if (written.find('\\') == std::string::npos || exists(written)) return written;
  std::string path = written;
  std::replace(path.begin(), path.end(), '\\', '/');
  return path;
}

Picture LoadPicture(const std::string& path) { return host().loadPicture(toPath(path)); }

void SavePicture(const Picture& picture, const std::string& path) {
  host().savePicture(picture, toPath(path));
}

}  // namespace surface
