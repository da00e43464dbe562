// The canvas of a metafile.
#include "surface/metafile_canvas.h"

#include <algorithm>
#include <cstdlib>

#include "surface/metafile_reader.h"

namespace surface {
namespace {

// Seven times all of the largest picture; about half a second at most.
constexpr std::int64_t MostWork = 125'000'000;
constexpr std::int64_t WorkOfACall = 32;
// Each rectangle that is taken out of a region makes up to four of one.
constexpr std::size_t MostClipRects = 512;
constexpr int BandHeight = 64;

std::int64_t areaOf(const raster::Rect& r) {
  return r.empty() ? 0 : std::int64_t{r.width()} * r.height();
}

void copy(raster::Bitmap& to, const raster::Bitmap& from, const raster::Rect& area) {
  raster::blit(to, area.left, area.top, area.width(), area.height(), from, area.left, area.top);
}

// The bits of each of the eight cases that the operation sets.
raster::Pixel ternary(unsigned operation, raster::Pixel p, raster::Pixel s, raster::Pixel d) {
  raster::Pixel result = 0;
  for (unsigned bit = 0; bit < 8; ++bit)
    if (operation >> bit & 1)
      result |= (bit & 4 ? p : ~p) & (bit & 2 ? s : ~s) & (bit & 1 ? d : ~d);
  return result | 0xFF000000;
}

}  // namespace

MetafileCanvas::MetafileCanvas(int width, int height, raster::Pixel ground)
    : bitmap_(std::make_shared<raster::Bitmap>(width, height, ground)) {}

void MetafileCanvas::spend(std::int64_t work) {
  work_ += work;
  if (work_ > MostWork) damagedMetafile();
}

void MetafileCanvas::settle(const raster::Rect& changed) {
  spend(WorkOfACall + areaOf(changed));
  if (!before_ || changed.empty()) return;
  if (!clip_) return copy(*before_, *bitmap_, changed);
  // What was painted within the region stays, all else goes back.
  for (const raster::Rect& part : *clip_)
    if (const raster::Rect seen = intersect(part, changed); !seen.empty())
      copy(*before_, *bitmap_, seen);
  copy(*bitmap_, *before_, changed);
  spend(static_cast<std::int64_t>(clip_->size()) + 2 * areaOf(changed));
}

void MetafileCanvas::combine(unsigned operation, const Block& to, const raster::Bitmap* picture,
                             const Block& from, raster::Pixel color) {
  constexpr unsigned SourceCopy = 0xCC;
  if (picture && operation == SourceCopy) {
    spend(std::abs(std::int64_t{to.width}) + std::abs(std::int64_t{to.height}));
    paint(13, [&](raster::Target onto) {
      return raster::stretch(onto.bitmap, to.x, to.y, to.width, to.height, *picture, from.x, from.y,
                             from.width, from.height);
    });
    return;
  }
  const raster::Rect place{
      to.width < 0 ? to.x + to.width : to.x, to.height < 0 ? to.y + to.height : to.y,
      to.width < 0 ? to.x : to.x + to.width, to.height < 0 ? to.y : to.y + to.height};
  raster::Rect band = intersect(place, bounds());
  const int bottom = band.bottom;
  // Band by band, so that a scaled picture takes little memory.
  for (; band.top < bottom; band.top = band.bottom) {
    band.bottom = std::min(bottom, band.top + BandHeight);
    combineBand(operation, to, picture, from, color, band);
  }
}

void MetafileCanvas::combineBand(unsigned operation, const Block& to, const raster::Bitmap* picture,
                                 const Block& from, raster::Pixel color, const raster::Rect& band) {
  spend(4 * areaOf(band));
  std::optional<raster::Bitmap> scaled;
  if (picture) {
    scaled.emplace(band.width(), band.height(), 0xFFFFFFFF);
    raster::stretch(*scaled, to.x - band.left, to.y - band.top, to.width, to.height, *picture,
                    from.x, from.y, from.width, from.height);
  }
  paint(13, [&](raster::Target onto) {
    for (int y = band.top; y < band.bottom; ++y) {
      raster::Pixel* row = onto.bitmap.row(y);
      for (int x = band.left; x < band.right; ++x)
        row[x] =
            ternary(operation, color, scaled ? scaled->at(x - band.left, y - band.top) : 0, row[x]);
    }
    return band;
  });
}

std::vector<raster::Rect> MetafileCanvas::clipRects() const {
  return clip_ ? *clip_ : std::vector{bounds()};
}

void MetafileCanvas::setClipRects(std::vector<raster::Rect> rects) {
  std::erase_if(rects, [](const raster::Rect& r) { return r.empty(); });
  if (rects.size() > MostClipRects) damagedMetafile();
  clip_ = std::make_shared<const std::vector<raster::Rect>>(std::move(rects));
  spend(static_cast<std::int64_t>(clip_->size()));
  if (before_) return;
  before_ = *bitmap_;
  spend(areaOf(bounds()));
}

void MetafileCanvas::intersectClip(const raster::Rect& area) {
  std::vector<raster::Rect> rects = clipRects();
  for (raster::Rect& r : rects) r = intersect(r, area);
  setClipRects(std::move(rects));
}

void MetafileCanvas::excludeClip(const raster::Rect& area) {
  std::vector<raster::Rect> rects;
  for (const raster::Rect& r : clipRects()) {
    const raster::Rect hole = intersect(r, area);
    if (hole.empty()) {
      rects.push_back(r);
      continue;
    }
    // Above, below, left and right of the hole.
    rects.push_back({r.left, r.top, r.right, hole.top});
    rects.push_back({r.left, hole.bottom, r.right, r.bottom});
    rects.push_back({r.left, hole.top, hole.left, hole.bottom});
    rects.push_back({hole.right, hole.top, r.right, hole.bottom});
  }
  setClipRects(std::move(rects));
}

void MetafileCanvas::moveClip(int dx, int dy) {
  if (!clip_) return;
  std::vector<raster::Rect> rects = *clip_;
  for (raster::Rect& r : rects)
    r = intersect({r.left + dx, r.top + dy, r.right + dx, r.bottom + dy}, bounds());
  setClipRects(std::move(rects));
}

}  // namespace surface
