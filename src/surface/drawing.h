// What can be drawn on: the persistent bitmap of a picture box or form with its pen and brush, and
// the operations that paint on it.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "surface/color.h"
#include "surface/container.h"
#include "surface/errors.h"
#include "surface/font.h"
#include "surface/picture.h"
#include "surface/prop.h"
#include "surface/raster/bitmap.h"
#include "surface/raster/draw.h"
#include "surface/tiles.h"

namespace surface {

/// The largest bitmap that a surface takes: pixels a side, and in all.
inline constexpr int LargestSide = 32767;
inline constexpr std::int64_t MostPixels = 64'000'000;

/// `B` a box in outline with the brush inside, `BF` a box filled with the line's colour.
enum class BoxFlag { None, B, BF };
inline constexpr BoxFlag B = BoxFlag::B;
inline constexpr BoxFlag BF = BoxFlag::BF;

class DrawingSurface;

/// A handle of a surface's persistent bitmap for the calls of gdi.h, which count in pixels whatever
/// the scale.
struct DeviceContext {
  DrawingSurface* surface;
};

namespace check {
void drawWidth(const int& value);
void drawStyle(const int& value);
void drawMode(const int& value);
void fillStyle(const int& value);
void color(const Color& value);
}  // namespace check

class DrawingSurface : public Container {
 protected:
  void backColorChanged() { erase(); }
  void pictureChanged() { erase(); }
  void unchanged() {}

 public:
  DrawingSurface(Color backColor, ScaleUnit scaleMode, const UserScale& userScale);
  ~DrawingSurface() override;

  /// Assigning it erases everything drawn; only the Picture shows through again.
  Prop<Color, &DrawingSurface::backColorChanged, check::color> BackColor;
  /// The stored picture, kept whole at its own size. Assigning it replaces all that the surface
  /// shows.
  Prop<surface::Picture, &DrawingSurface::pictureChanged> Picture;
  Prop<Color, &DrawingSurface::unchanged, check::color> ForeColor;
  Prop<Color, &DrawingSurface::unchanged, check::color> FillColor;
  Prop<int, &DrawingSurface::unchanged, check::fillStyle>
      FillStyle;  ///< 0 solid, 1 transparent, 2..7 hatches
  Prop<int, &DrawingSurface::unchanged, check::drawWidth> DrawWidth;  ///< pixels, 1 and up
  Prop<int, &DrawingSurface::unchanged, check::drawStyle>
      DrawStyle;  ///< 0 solid, 1 dashes, 2 dots, 3 and 4 dashes with dots, 5 nothing, 6 solid
  Prop<int, &DrawingSurface::unchanged, check::drawMode> DrawMode;  ///< 1..16, 13 copies, 6 inverts
  bool AutoRedraw = false;
  surface::Font Font;
  float CurrentX = 0;
  float CurrentY = 0;

  /// Without a colour the ForeColor; a colour that is none (-1) paints nothing.
  void Line(PointF from, PointF to, std::optional<Color> color = {}, BoxFlag flag = BoxFlag::None);
  /// Strokes of lines from point to point, all strokes alike: line i of each has colour i, and each
  /// has one more point than colours. The same as Line for one after the other, but with no cost
  /// for each.
  void Strokes(std::span<const PointF> points, std::span<const Color> colors);
  /// Aspect is height over width; the radius is the longer half axis.
  void Circle(PointF centre, float radius, std::optional<Color> color = {}, float aspect = 1);
  void PSet(PointF at, std::optional<Color> color = {});
  /// The colour at a position, NoColor (-1) outside.
  Color Point(PointF at) const;
  /// Clears what was drawn; the Picture shows again.
  void Cls();
  /// Draws a picture's part (pixels; all of it if left out) at a position, scaled to `size` in the
  /// surface's unit if given.
  void PaintPicture(const surface::Picture& picture, PointF to, std::optional<SizeF> size = {},
                    std::optional<raster::Rect> source = {});
  /// Writes the text at CurrentX, CurrentY and moves to the start of the next line.
  void Print(const std::string& text);
  /// Shows the bitmap on the screen at once.
  void Refresh();
  /// A snapshot of the persistent bitmap.
  surface::Picture Image() const;
  DeviceContext hDC() { return {this}; }

  // For gdi.h and the toolkit layer: pixels.
  std::shared_ptr<const raster::Bitmap> bitmap() const;
  /// Whether any pixel differs from the BackColor.
  bool holdsDrawing() const;
  /// Whether the surface shows anything but its BackColor; until then it holds no bitmap.
  bool blank() const { return !bitmap_ && Picture->empty(); }
  raster::Bitmap& writableBitmap();
  raster::Brush brush() const;
  raster::Target target() { return {writableBitmap(), DrawMode}; }
  /// Tells that a rectangle of pixels has changed; it is shown when the thread is next idle.
  void damage(const raster::Rect& area) {
    const bool waiting = tiles_.unshown();
    tiles_.paint(area);
    if (!waiting) showLater();
  }
  PointF toScale(int pixelX, int pixelY) const;
  const raster::Rect& innerPixels() const { return inner_; }

 protected:
  /// Sets the inner size in pixels: what is drawn stays, new area shows the BackColor. OutOfMemory
  /// beyond 32767 a side or 64 million pixels in all; the size is then as before.
  void setInnerSize(int width, int height);
  /// Asks the screen to show rectangles of pixels, now or when idle; they do not overlap.
  virtual void showPixels(std::span<const raster::Rect> areas, bool atOnce) = 0;

 private:
  struct Pixels {
    int x, y;
  };
  void erase();
  std::shared_ptr<const raster::Bitmap> composed() const;
  Pixels pixelsOf(PointF at) const;
  std::vector<raster::Spot> spotsOf(std::span<const PointF> points) const;
  raster::Pen pen(Color color) const;
  void damageLine(const raster::Rect& changed, Pixels from, Pixels to);
  void clear();
  void showLater();
  void showDamage();

  raster::Rect inner_;
  /// The persistent bitmap, made when it is first needed: until something is drawn, BackColor and
  /// Picture say it all. Shared with snapshots; copied at the first write after one.
  mutable std::shared_ptr<const raster::Bitmap> bitmap_;
  Tiles tiles_;
  std::shared_ptr<bool> alive_;
};

}  // namespace surface
