// The records of a metafile: which call does what, the objects, and where a unit of the file lies
// on the canvas.
#include "surface/metafile_player.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <iterator>

#include "surface/drawing.h"
#include "surface/errors.h"
#include "surface/metafile.h"
#include "surface/numbers.h"

namespace surface {
namespace {

constexpr double DotsPerInch = 96;
constexpr std::size_t MostSavedStates = 256;

int limited(double value, int limit) {
  return static_cast<int>(roundEven(std::clamp(value, -1.0 * limit, 1.0 * limit)));
}

// Pixels to a unit of the mapping modes with fixed units: tenths and hundredths of a millimetre,
// hundredths and thousandths of an inch, twips.
double fixedUnit(unsigned mapMode) {
  constexpr double units[] = {DotsPerInch / 254, DotsPerInch / 2540, DotsPerInch / 100,
                              DotsPerInch / 1000, DotsPerInch / 1440};
  return units[mapMode - 2];
}

constexpr unsigned MapPixels = 1, MapFirstFixed = 2, MapLastFixed = 6, MapIsotropic = 7;

// What the high bits of a function's number mean for a class of calls.
constexpr unsigned SetBkMode = 0x0102, SetMapMode = 0x0103, SetRop2 = 0x0104,
                   SetPolyFillMode = 0x0106, SetTextAlign = 0x012E;
constexpr unsigned SetBkColor = 0x0201, SetTextColor = 0x0209;
constexpr unsigned SetWindowOrg = 0x020B, SetWindowExt = 0x020C, SetViewportOrg = 0x020D,
                   SetViewportExt = 0x020E, OffsetWindowOrg = 0x020F, OffsetViewportOrg = 0x0211,
                   ScaleWindowExt = 0x0410, ScaleViewportExt = 0x0412;
constexpr unsigned ExcludeClipRect = 0x0415, IntersectClipRect = 0x0416;

// A plain metafile is as large as the first window extent that it sets.
raster::Rect firstWindow(Bytes file, const MetafileHeader& header) {
  RecordWalk walk(file, header.firstRecord);
  while (const auto record = walk.next())
    if (record->function() == SetWindowExt) return {0, 0, record->i16(1), record->i16(0)};
  damagedMetafile();
}

constexpr raster::Pixel WhiteGround = 0xFFFFFFFF, BlackGround = 0xFF000000;

// A picture that lets through what is behind it where neither of two grounds was painted on.
Picture throughWhereLeft(std::shared_ptr<const raster::Bitmap> onWhite,
                         const raster::Bitmap& onBlack) {
  std::vector<std::uint8_t> coverage;
  coverage.reserve(static_cast<std::size_t>(onBlack.width()) * onBlack.height());
  for (int y = 0; y < onBlack.height(); ++y)
    std::transform(onBlack.row(y), onBlack.row(y) + onBlack.width(), onWhite->row(y),
                   std::back_inserter(coverage), [](raster::Pixel black, raster::Pixel white) {
                     const bool left = black == BlackGround && white == WhiteGround;
                     return static_cast<std::uint8_t>(left ? 0 : 255);
                   });
  return Picture(std::move(onWhite), std::move(coverage));
}

}  // namespace

const MetafilePlayer::Row MetafilePlayer::Table[] = {
    {0x001E, &MetafilePlayer::saveState},
    {0x00F7, &MetafilePlayer::createUnknown},  // palette
    {SetBkMode, &MetafilePlayer::setMode},
    {SetMapMode, &MetafilePlayer::setMode},
    {SetRop2, &MetafilePlayer::setMode},
    {SetPolyFillMode, &MetafilePlayer::setMode},
    {0x0127, &MetafilePlayer::restoreState},
    {0x012C, &MetafilePlayer::dropClip},
    {0x012D, &MetafilePlayer::selectObject},
    {SetTextAlign, &MetafilePlayer::setMode},
    {0x0142, &MetafilePlayer::createUnknown},  // pattern brushes
    {0x01F0, &MetafilePlayer::deleteObject},
    {0x01F9, &MetafilePlayer::createUnknown},
    {SetBkColor, &MetafilePlayer::setColor},
    {SetTextColor, &MetafilePlayer::setColor},
    {SetWindowOrg, &MetafilePlayer::setMapping},
    {SetWindowExt, &MetafilePlayer::setMapping},
    {SetViewportOrg, &MetafilePlayer::setMapping},
    {SetViewportExt, &MetafilePlayer::setMapping},
    {OffsetWindowOrg, &MetafilePlayer::setMapping},
    {OffsetViewportOrg, &MetafilePlayer::setMapping},
    {0x0213, &MetafilePlayer::lineTo},
    {0x0214, &MetafilePlayer::moveTo},
    {0x0220, &MetafilePlayer::moveClip},
    {0x02FA, &MetafilePlayer::createPen},
    {0x02FB, &MetafilePlayer::createFont},
    {0x02FC, &MetafilePlayer::createBrush},
    {0x0324, &MetafilePlayer::polygon},
    {0x0325, &MetafilePlayer::polyline},
    {ScaleWindowExt, &MetafilePlayer::scaleMapping},
    {ScaleViewportExt, &MetafilePlayer::scaleMapping},
    {ExcludeClipRect, &MetafilePlayer::changeClip},
    {IntersectClipRect, &MetafilePlayer::changeClip},
    {0x0418, &MetafilePlayer::ellipse},
    {0x041B, &MetafilePlayer::rectangle},
    {0x041F, &MetafilePlayer::setPixel},
    {0x0521, &MetafilePlayer::textOut},
    {0x0538, &MetafilePlayer::polyPolygon},
    {0x0548, &MetafilePlayer::floodFill},
    {0x061C, &MetafilePlayer::roundRectangle},
    {0x061D, &MetafilePlayer::patternBlock},
    {0x06FF, &MetafilePlayer::createUnknown},  // region
    {0x0817, &MetafilePlayer::arc},
    {0x081A, &MetafilePlayer::arc},
    {0x0830, &MetafilePlayer::arc},
    {0x0940, &MetafilePlayer::bitmapBlock},
    {0x0A32, &MetafilePlayer::extTextOut},
    {0x0B41, &MetafilePlayer::bitmapBlock},
    {0x0D33, &MetafilePlayer::bitmapPart},
    {0x0F43, &MetafilePlayer::bitmapBlock},
};

MetafilePlayer::MetafilePlayer(MetafileCanvas& canvas, const raster::Rect& window, unsigned objects)
    : canvas_(canvas), objects_(objects) {
  state_.windowOrigin = {window.left, window.top};
  state_.windowExtent = {window.width(), window.height()};
  state_.viewportExtent = {canvas.bounds().width(), canvas.bounds().height()};
}

void MetafilePlayer::play(const Record& record) {
  canvas_.spend(1);
  const Row* row = std::lower_bound(
      std::begin(Table), std::end(Table), record.function(),
      [](const Row& entry, unsigned function) { return entry.function < function; });
  if (row != std::end(Table) && row->function == record.function()) (this->*row->handler)(record);
}

// A new object takes the first free place.
void MetafilePlayer::create(Object object) {
  canvas_.spend(static_cast<std::int64_t>(objects_.size()));
  const auto free = std::find_if(objects_.begin(), objects_.end(), [](const Object& place) {
    return std::holds_alternative<std::monostate>(place);
  });
  if (free == objects_.end()) damagedMetafile();
  *free = std::move(object);
}

void MetafilePlayer::createPen(const Record& r) {
  constexpr unsigned StyleBits = 0xF, Null = 5, InsideFrame = 6;
  const unsigned style = r.u16(0) & StyleBits;
  Pen made{raster::PenStyle::Solid, std::abs(r.i16(1)), r.color(3)};
  if (style == Null) made.style = raster::PenStyle::Null;
  if (style > 0 && style < Null) made.style = raster::PenStyle::Dotted;
  if (style > InsideFrame) return create(Unknown{});
  create(made);
}

void MetafilePlayer::createBrush(const Record& r) {
  using raster::BrushStyle;
  constexpr BrushStyle hatches[] = {BrushStyle::Horizontal,      BrushStyle::Vertical,
                                    BrushStyle::ForwardDiagonal, BrushStyle::BackwardDiagonal,
                                    BrushStyle::Cross,           BrushStyle::DiagonalCross};
  const raster::Pixel color = r.color(1);
  const unsigned style = r.u16(0), hatch = r.u16(3);
  if (style == 0) return create(raster::Brush{BrushStyle::Solid, color});
  if (style == 1) return create(raster::Brush{BrushStyle::Null, color});
  if (style == 2 && hatch < std::size(hatches)) return create(raster::Brush{hatches[hatch], color});
  create(Unknown{});
}

void MetafilePlayer::createFont(const Record& r) {
  constexpr int Bold = 600;
  Lettering made;
  made.height = r.i16(0);
  made.escapement = r.i16(2);
  made.bold = r.i16(4) >= Bold;
  const Bytes flags = r.bytes(5, 3);
  made.italic = flags[0] != 0;
  made.underline = flags[1] != 0;
  made.strikethru = flags[2] != 0;
  std::string name;
  for (const std::uint8_t letter : r.bytes(9)) {
    if (letter == 0 || name.size() == 31) break;
    if (letter < 0x80) name += static_cast<char>(letter);
  }
  if (!name.empty()) made.name = name;
  create(made);
}

void MetafilePlayer::createUnknown(const Record&) { create(Unknown{}); }

void MetafilePlayer::selectObject(const Record& r) {
  const std::size_t index = r.u16(0);
  if (index >= objects_.size()) damagedMetafile();
  const Object& object = objects_[index];
  if (const auto* pen = std::get_if<Pen>(&object)) state_.pen = *pen;
  if (const auto* brush = std::get_if<raster::Brush>(&object)) state_.brush = *brush;
  if (const auto* lettering = std::get_if<Lettering>(&object)) state_.lettering = *lettering;
}

void MetafilePlayer::deleteObject(const Record& r) {
  const std::size_t index = r.u16(0);
  if (index >= objects_.size()) damagedMetafile();
  objects_[index] = std::monostate{};
}

void MetafilePlayer::saveState(const Record&) {
  if (saved_.size() == MostSavedStates) damagedMetafile();
  state_.clip = canvas_.clip();
  saved_.push_back(state_);
}

// A negative number counts back from the last one saved, a positive one from the first.
void MetafilePlayer::restoreState(const Record& r) {
  const int number = r.i16(0), count = static_cast<int>(saved_.size());
  const int index = number < 0 ? count + number : number - 1;
  if (index < 0 || index >= count) damagedMetafile();
  state_ = saved_[static_cast<std::size_t>(index)];
  canvas_.setClip(state_.clip);
  saved_.resize(static_cast<std::size_t>(index));
}

void MetafilePlayer::setMode(const Record& r) {
  const unsigned value = r.u16(0);
  switch (r.function()) {
    case SetBkMode:
      state_.opaque = value != 1;
      break;
    case SetMapMode:
      if (value >= 1 && value <= 8) state_.mapMode = value;
      break;
    case SetRop2:
      if (value >= 1 && value <= 16) state_.rop = static_cast<int>(value);
      break;
    case SetPolyFillMode:
      state_.rule = value == 2 ? raster::FillRule::Winding : raster::FillRule::Alternate;
      break;
    case SetTextAlign:
      state_.align = value;
      break;
    default:
      break;
  }
}

void MetafilePlayer::setColor(const Record& r) {
  (r.function() == SetBkColor ? state_.ground : state_.ink) = r.color(0);
}

void MetafilePlayer::setMapping(const Record& r) {
  const Pair value{r.i16(1), r.i16(0)};
  const auto moved = [&value](const Pair& from) {
    return Pair{std::clamp(from.x + value.x, -LargestSide, LargestSide),
                std::clamp(from.y + value.y, -LargestSide, LargestSide)};
  };
  switch (r.function()) {
    case SetWindowOrg:
      state_.windowOrigin = value;
      break;
    case SetWindowExt:
      if (value.x != 0 && value.y != 0) state_.windowExtent = value;
      break;
    case SetViewportOrg:
      state_.viewportOrigin = value;
      break;
    case SetViewportExt:
      if (value.x != 0 && value.y != 0) state_.viewportExtent = value;
      break;
    case OffsetWindowOrg:
      state_.windowOrigin = moved(state_.windowOrigin);
      break;
    case OffsetViewportOrg:
      state_.viewportOrigin = moved(state_.viewportOrigin);
      break;
    default:
      break;
  }
}

void MetafilePlayer::scaleMapping(const Record& r) {
  Pair& extent = r.function() == ScaleWindowExt ? state_.windowExtent : state_.viewportExtent;
  const int down = r.i16(0), up = r.i16(1), across = r.i16(2), along = r.i16(3);
  if (down == 0 || across == 0) return;
  const Pair scaled{limited(1.0 * extent.x * along / across, LargestSide),
                    limited(1.0 * extent.y * up / down, LargestSide)};
  if (scaled.x != 0 && scaled.y != 0) extent = scaled;
}

void MetafilePlayer::changeClip(const Record& r) {
  const raster::Rect area = toPixels(r, 0);
  r.function() == IntersectClipRect ? canvas_.intersectClip(area) : canvas_.excludeClip(area);
}

void MetafilePlayer::moveClip(const Record& r) {
  const Scale by = scale();
  canvas_.moveClip(limited(r.i16(1) * by.x, LargestSide), limited(r.i16(0) * by.y, LargestSide));
}

// The region of number 0 is none; others are unknown and change nothing.
void MetafilePlayer::dropClip(const Record& r) {
  if (r.u16(0) == 0) canvas_.setClip(nullptr);
}

MetafilePlayer::Scale MetafilePlayer::scale() const {
  const unsigned mode = state_.mapMode;
  if (mode == MapPixels) return {1, 1};
  if (mode >= MapFirstFixed && mode <= MapLastFixed) return {fixedUnit(mode), -fixedUnit(mode)};
  const double x = 1.0 * state_.viewportExtent.x / state_.windowExtent.x;
  const double y = 1.0 * state_.viewportExtent.y / state_.windowExtent.y;
  if (mode != MapIsotropic) return {x, y};
  const double both = std::min(std::abs(x), std::abs(y));
  return {std::copysign(both, x), std::copysign(both, y)};
}

raster::Spot MetafilePlayer::toPixels(int x, int y) const {
  const Scale by = scale();
  return {static_cast<std::int16_t>(
              limited((x - state_.windowOrigin.x) * by.x + state_.viewportOrigin.x, LargestSide)),
          static_cast<std::int16_t>(
              limited((y - state_.windowOrigin.y) * by.y + state_.viewportOrigin.y, LargestSide))};
}

// Four words: bottom, right, top, left.
raster::Rect MetafilePlayer::toPixels(const Record& r, std::size_t bottomWord) const {
  const raster::Spot a = toPixels(r.i16(bottomWord + 3), r.i16(bottomWord + 2));
  const raster::Spot b = toPixels(r.i16(bottomWord + 1), r.i16(bottomWord));
  return {std::min(a.x, b.x), std::min(a.y, b.y), std::max(a.x, b.x), std::max(a.y, b.y)};
}

Picture playMetafile(Bytes file, std::int64_t mostPixels) {
  const MetafileHeader header = readMetafileHeader(file);
  const raster::Rect window = header.bounds ? *header.bounds : firstWindow(file, header);
  if (header.bounds && header.unitsPerInch <= 0) damagedMetafile();
  const double perUnit = header.bounds ? DotsPerInch / header.unitsPerInch : 1;
  const double width = roundEven(std::abs(window.width()) * perUnit);
  const double height = roundEven(std::abs(window.height()) * perUnit);
  if (!(width >= 1 && height >= 1 && width <= LargestSide && height <= LargestSide &&
        width * height <= static_cast<double>(mostPixels)))
    damagedMetafile();
  const auto playedOn = [&](raster::Pixel ground) {
    MetafileCanvas canvas(static_cast<int>(width), static_cast<int>(height), ground);
    MetafilePlayer player(canvas, window, header.objects);
    RecordWalk walk(file, header.firstRecord);
    while (const auto record = walk.next()) player.play(*record);
    return canvas.take();
  };
  return throughWhereLeft(playedOn(WhiteGround), *playedOn(BlackGround));
}

}  // namespace surface
