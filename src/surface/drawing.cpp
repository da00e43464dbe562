// The drawing operations: from a surface's own scale to pixels, and onto its persistent bitmap.
#include "surface/drawing.h"

#include <algorithm>
#include <bit>
#include <cmath>

#include "surface/dispatch.h"
#include "surface/host.h"
#include "surface/numbers.h"

namespace surface {
namespace {

// Far beyond any sheet, and what the raster takes: a coordinate out here is as good as any further
// one.
constexpr double CoordinateLimit = 32767;

[[gnu::cold]] int farCoordinate(double value) {
  if (std::isnan(value)) throw RuntimeError(ErrorKind::Overflow, "Overflow");
  return static_cast<int>(value < 0 ? -CoordinateLimit : CoordinateLimit);
}

// Rounds ties to even. Adding and taking away 1.5 * 2^52 leaves no room for a fraction; the
// library's own rounding is a call, and this runs for every point that is drawn.
inline int toCoordinate(double value) {
  if (std::abs(value) <= CoordinateLimit) [[likely]]
    return static_cast<int>((value + 0x1.8p52) - 0x1.8p52);
  return farCoordinate(value);
}

// The same for many points in pixels, side by side and without a branch: adding 1.5 * 2^23 leaves
// the whole number in the low bits of the float. False if a coordinate is too far out for that.
bool nearPixels(std::span<const PointF> points, std::span<raster::Spot> spots) {
  constexpr auto Furthest = std::bit_cast<std::int32_t>(static_cast<float>(CoordinateLimit));
  std::int32_t far = 0;
  for (std::size_t i = 0; i < points.size(); ++i) {
    far |= Furthest - (std::bit_cast<std::int32_t>(points[i].X) & 0x7FFFFFFF);
    far |= Furthest - (std::bit_cast<std::int32_t>(points[i].Y) & 0x7FFFFFFF);
    spots[i].x = static_cast<std::int16_t>(std::bit_cast<std::int32_t>(points[i].X + 0x1.8p23f));
    spots[i].y = static_cast<std::int16_t>(std::bit_cast<std::int32_t>(points[i].Y + 0x1.8p23f));
  }
  return far >= 0;
}

void refuseUnless(bool good) {
  if (!good) throw RuntimeError(ErrorKind::BadPropertyValue, "Invalid property value");
}

}  // namespace

namespace check {
void drawWidth(const int& value) { refuseUnless(value >= 1 && value <= 32767); }
void drawStyle(const int& value) { refuseUnless(value >= 0 && value <= 6); }
void drawMode(const int& value) { refuseUnless(value >= 1 && value <= 16); }
void fillStyle(const int& value) { refuseUnless(value >= 0 && value <= 7); }
void color(const Color& value) { refuseUnless(value != NoColor); }
}  // namespace check

DrawingSurface::DrawingSurface(Color backColor, ScaleUnit scaleMode, const UserScale& userScale)
    : Container(scaleMode, userScale),
      BackColor(*this, backColor),
      Picture(*this, {}),
      ForeColor(*this, Black),
      FillColor(*this, Black),
      FillStyle(*this, 1),
      DrawWidth(*this, 1),
      DrawStyle(*this, 0),
      DrawMode(*this, 13),
      alive_(std::make_shared<bool>(true)) {
  tiles_.reset(0, 0);
}

DrawingSurface::~DrawingSurface() = default;

inline DrawingSurface::Pixels DrawingSurface::pixelsOf(PointF at) const {
  if (scale().unit() == ScalePixels) return {toCoordinate(at.X), toCoordinate(at.Y)};
  return {toCoordinate(scale().toPixelX(at.X)), toCoordinate(scale().toPixelY(at.Y))};
}

PointF DrawingSurface::toScale(int pixelX, int pixelY) const {
  return {scale().fromPixelX(pixelX), scale().fromPixelY(pixelY)};
}

inline raster::Pen DrawingSurface::pen(Color color) const {
  using raster::PenStyle;
  // The last one, solid inside the frame, moves nothing at width 1.
  static constexpr PenStyle styles[] = {PenStyle::Solid,   PenStyle::Dashed,     PenStyle::Dotted,
                                        PenStyle::DashDot, PenStyle::DashDotDot, PenStyle::Null,
                                        PenStyle::Solid};
  return {styles[DrawStyle], std::min<int>(DrawWidth, 200), toPixel(color)};
}

raster::Brush DrawingSurface::brush() const {
  using raster::BrushStyle;
  static constexpr BrushStyle styles[] = {BrushStyle::Solid,           BrushStyle::Null,
                                          BrushStyle::Horizontal,      BrushStyle::Vertical,
                                          BrushStyle::ForwardDiagonal, BrushStyle::BackwardDiagonal,
                                          BrushStyle::Cross,           BrushStyle::DiagonalCross};
  return {styles[FillStyle], toPixel(FillColor)};
}

void DrawingSurface::Line(PointF from, PointF to, std::optional<Color> color, BoxFlag flag) {
  CurrentX = to.X;
  CurrentY = to.Y;
  const Color ink = color.value_or(ForeColor);
  if (ink == NoColor) return;
  const Pixels a = pixelsOf(from), b = pixelsOf(to);
  switch (flag) {
    case BoxFlag::None:
      damageLine(raster::line(target(), pen(ink), a.x, a.y, b.x, b.y), a, b);
      break;
    case BoxFlag::B:
      damage(raster::box(target(), pen(ink), brush(), a.x, a.y, b.x, b.y));
      break;
    case BoxFlag::BF:
      damage(raster::filledBox(target(), pen(ink), a.x, a.y, b.x, b.y));
      break;
  }
}

// A long line crosses few of the tiles that its box holds, so it is taken in pieces.
void DrawingSurface::damageLine(const raster::Rect& changed, Pixels from, Pixels to) {
  const int shorter = std::min(changed.width(), changed.height());
  if (shorter <= 2 * Tiles::Side) return damage(changed);
  const double dx = to.x - from.x, dy = to.y - from.y;
  const int pieces = static_cast<int>(std::max(std::abs(dx), std::abs(dy))) / Tiles::Side + 1;
  const int reach = DrawWidth / 2 + 1;
  int x = from.x, y = from.y;
  for (int i = 1; i <= pieces; ++i) {
    const int nextX = from.x + static_cast<int>(dx * i / pieces);
    const int nextY = from.y + static_cast<int>(dy * i / pieces);
    damage(intersect(changed, {std::min(x, nextX) - reach, std::min(y, nextY) - reach,
                               std::max(x, nextX) + reach + 1, std::max(y, nextY) + reach + 1}));
    x = nextX;
    y = nextY;
  }
}

void DrawingSurface::Strokes(std::span<const PointF> points, std::span<const Color> colors) {
  if (points.empty() || colors.empty()) return;
  std::vector<raster::Pixel> pixels(colors.size());
  std::transform(colors.begin(), colors.end(), pixels.begin(), toPixel);
  const auto lines = static_cast<int>(colors.size());
  const auto count = static_cast<int>(points.size() / (colors.size() + 1));
  damage(
      raster::strokes(target(), pen(Black), spotsOf(points).data(), count, pixels.data(), lines));
  CurrentX = points.back().X;
  CurrentY = points.back().Y;
}

std::vector<raster::Spot> DrawingSurface::spotsOf(std::span<const PointF> points) const {
  std::vector<raster::Spot> spots(points.size());
  if (scale().unit() == ScalePixels && nearPixels(points, spots)) return spots;
  std::transform(points.begin(), points.end(), spots.begin(), [this](PointF point) {
    const Pixels at = pixelsOf(point);
    return raster::Spot{static_cast<std::int16_t>(at.x), static_cast<std::int16_t>(at.y)};
  });
  return spots;
}

void DrawingSurface::Circle(PointF centre, float radius, std::optional<Color> color, float aspect) {
  refuseUnless(radius >= 0 && aspect >= 0 && std::isfinite(radius) && std::isfinite(aspect));
  CurrentX = centre.X;
  CurrentY = centre.Y;
  const Color ink = color.value_or(ForeColor);
  if (ink == NoColor) return;
  double rx = radius * std::abs(scale().pixelsPerUnitX());
  double ry = rx;
  // A circle told in pixels keeps the fraction of its radius, so that concentric ones half a pixel
  // apart close to a disc; any other unit becomes whole pixels, and an ellipse meets them at its
  // four ends.
  if (aspect != 1 || ScaleMode() != ScalePixels) {
    rx = roundEven(aspect > 1 ? rx / aspect : rx);
    ry = roundEven(aspect > 1 ? ry : ry * aspect);
  }
  const Pixels c = pixelsOf(centre);
  damage(raster::ellipse(target(), pen(ink), brush(), c.x, c.y, std::min(rx, CoordinateLimit),
                         std::min(ry, CoordinateLimit)));
}

void DrawingSurface::PSet(PointF at, std::optional<Color> color) {
  CurrentX = at.X;
  CurrentY = at.Y;
  const Color ink = color.value_or(ForeColor);
  if (ink == NoColor) return;
  const Pixels p = pixelsOf(at);
  damage(raster::dot(target(), pen(ink), p.x, p.y));
}

Color DrawingSurface::Point(PointF at) const {
  const Pixels p = pixelsOf(at);
  const auto pixels = bitmap();
  return pixels->contains(p.x, p.y) ? toColor(pixels->at(p.x, p.y)) : NoColor;
}

void DrawingSurface::Cls() {
  CurrentX = ScaleLeft();
  CurrentY = ScaleTop();
  clear();
}

void DrawingSurface::PaintPicture(const surface::Picture& picture, PointF to,
                                  std::optional<SizeF> size, std::optional<raster::Rect> source) {
  if (picture.empty()) throw RuntimeError(ErrorKind::BadPropertyValue, "Invalid picture");
  const auto seen = picture.over(toPixel(BackColor));
  const raster::Rect from = source.value_or(seen->bounds());
  const Pixels p = pixelsOf(to);
  if (!size) {
    damage(raster::blit(writableBitmap(), p.x, p.y, from.width(), from.height(), *seen, from.left,
                        from.top));
    return;
  }
  const int width = toCoordinate(size->Width * scale().pixelsPerUnitX());
  const int height = toCoordinate(size->Height * scale().pixelsPerUnitY());
  damage(raster::stretch(writableBitmap(), p.x, p.y, width, height, *seen, from.left, from.top,
                         from.width(), from.height()));
}

void DrawingSurface::Print(const std::string& text) {
  const TextMask mask = host().rasterText(Font, text);
  const Pixels origin = pixelsOf({CurrentX, CurrentY});
  damage(paintMask(target(), mask, origin.x, origin.y, toPixel(ForeColor)));
  CurrentX = ScaleLeft();
  CurrentY += static_cast<float>(mask.lineHeight / scale().pixelsPerUnitY());
}

void DrawingSurface::Refresh() { showPixels({&inner_, 1}, true); }

surface::Picture DrawingSurface::Image() const { return surface::Picture(bitmap()); }

std::shared_ptr<const raster::Bitmap> DrawingSurface::bitmap() const {
  if (!bitmap_) bitmap_ = composed();
  return bitmap_;
}

bool DrawingSurface::holdsDrawing() const {
  if (blank()) return false;
  const auto pixels = bitmap();
  const raster::Pixel background = toPixel(BackColor);
  for (int y = 0; y < pixels->height(); ++y) {
    const raster::Pixel* row = pixels->row(y);
    if (std::any_of(row, row + pixels->width(), [=](raster::Pixel p) { return p != background; }))
      return true;
  }
  return false;
}

raster::Bitmap& DrawingSurface::writableBitmap() {
  if (bitmap_.use_count() != 1) {
    if (!bitmap_) bitmap_ = composed();
    if (bitmap_.use_count() > 1) bitmap_ = std::make_shared<raster::Bitmap>(*bitmap_);
  }
  // Only this surface holds the bitmap now, and every bitmap is made writable.
  return const_cast<raster::Bitmap&>(*bitmap_);
}

std::shared_ptr<const raster::Bitmap> DrawingSurface::composed() const {
  auto stored = Picture->over(toPixel(BackColor));
  if (stored && stored->bounds() == inner_) return stored;
  auto fresh =
      std::make_shared<raster::Bitmap>(inner_.width(), inner_.height(), toPixel(BackColor));
  if (stored) raster::blit(*fresh, 0, 0, stored->width(), stored->height(), *stored, 0, 0);
  return fresh;
}

void DrawingSurface::erase() {
  bitmap_.reset();
  tiles_.reset(inner_.width(), inner_.height());
  damage(inner_);
}

// Clears what was painted, and nothing where nothing was: a few stars on a large window.
void DrawingSurface::clear() {
  if (bitmap_.use_count() != 1 || !Picture->empty()) return erase();
  raster::Bitmap& bitmap = writableBitmap();
  const raster::Pen pen{raster::PenStyle::Solid, 1, toPixel(BackColor)};
  const bool waiting = tiles_.unshown();
  for (const raster::Rect& area : tiles_.clear())
    raster::filledBox({bitmap}, pen, area.left, area.top, area.right - 1, area.bottom - 1);
  if (!waiting) showLater();
}

void DrawingSurface::setInnerSize(int width, int height) {
  width = std::max(width, 0);
  height = std::max(height, 0);
  if (width == inner_.width() && height == inner_.height()) return;
  if (width > LargestSide || height > LargestSide ||
      static_cast<std::int64_t>(width) * height > MostPixels)
    throw RuntimeError(ErrorKind::OutOfMemory, "Out of memory");
  // Before anything was drawn or stored there is nothing to keep.
  const auto former = bitmap_ || !Picture->empty() ? bitmap() : nullptr;
  inner_ = {0, 0, width, height};
  setScaleInner(width, height);
  if (former) {
    auto resized = std::make_shared<raster::Bitmap>(width, height, toPixel(BackColor));
    raster::blit(*resized, 0, 0, former->width(), former->height(), *former, 0, 0);
    bitmap_ = std::move(resized);
  }
  tiles_.reset(width, height);
  damage(inner_);
}

void DrawingSurface::showLater() {
  if (!tiles_.unshown()) return;
  whenIdle([this, alive = std::weak_ptr<bool>(alive_)] {
    if (!alive.expired()) showDamage();
  });
}

void DrawingSurface::showDamage() {
  if (const auto areas = tiles_.takeUnshown(); !areas.empty()) showPixels(areas, false);
}

}  // namespace surface
