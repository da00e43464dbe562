// What a metafile is played on: a bitmap with a clip region, a way to every raster operation, and a
// bound on the work.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "surface/raster/draw.h"

namespace surface {

class MetafileCanvas {
 public:
  MetafileCanvas(int width, int height, raster::Pixel ground);

  raster::Rect bounds() const { return bitmap_->bounds(); }
  const raster::Bitmap& bitmap() const { return *bitmap_; }

  /// Runs `draw`, which paints on the target that it is given and says where. Outside the clip
  /// region nothing changes.
  template <class Draw>
  void paint(int rop, const Draw& draw) {
    settle(draw(raster::Target{*bitmap_, rop}));
  }

  /// Combines a place on the canvas with a picture and a colour by a ternary raster operation: bit
  /// 4P + 2S + D of `operation` is the result for the colour's bit, the picture's and what is
  /// there. The picture's part is scaled to the place, of which a negative size mirrors.
  struct Block {
    int x = 0, y = 0, width = 0, height = 0;
  };
  void combine(unsigned operation, const Block& to, const raster::Bitmap* picture,
               const Block& from, raster::Pixel color);

  /// Counts work, in about the time of a pixel; too much of it for one file is a BadFile error.
  void spend(std::int64_t work);

  // The clip region, in pixels; none clips nothing.
  using Clip = std::shared_ptr<const std::vector<raster::Rect>>;
  const Clip& clip() const { return clip_; }
  void setClip(Clip clip) { clip_ = std::move(clip); }
  void intersectClip(const raster::Rect& area);
  void excludeClip(const raster::Rect& area);
  void moveClip(int dx, int dy);

  /// Gives the bitmap away, at the end.
  std::shared_ptr<raster::Bitmap> take() { return std::move(bitmap_); }

 private:
  void combineBand(unsigned operation, const Block& to, const raster::Bitmap* picture,
                   const Block& from, raster::Pixel color, const raster::Rect& band);
  void settle(const raster::Rect& changed);
  std::vector<raster::Rect> clipRects() const;
  void setClipRects(std::vector<raster::Rect> rects);

  std::shared_ptr<raster::Bitmap> bitmap_;
  Clip clip_;
  /// The bitmap before the call that is being played, once there was a clip region.
  std::optional<raster::Bitmap> before_;
  std::int64_t work_ = 0;
};

}  // namespace surface
