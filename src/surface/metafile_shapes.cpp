// The shapes of a metafile.
#include <algorithm>
#include <cmath>
#include <numbers>

#include "surface/metafile_player.h"
#include "surface/numbers.h"

namespace surface {
namespace {

constexpr unsigned Arc = 0x0817, Pie = 0x081A;

/// An ellipse between whole pixels: it passes through all four sides of a box.
struct Oval {
  explicit Oval(const raster::Rect& box)
      : x((box.left + box.right - 1) / 2.0),
        y((box.top + box.bottom - 1) / 2.0),
        rx((box.width() - 1) / 2.0),
        ry((box.height() - 1) / 2.0) {}

  double x, y, rx, ry;

  // Counterclockwise from the right, Y downwards.
  double angleOf(raster::Spot spot) const {
    return std::atan2(-(spot.y - y) * rx, (spot.x - x) * ry);
  }
  raster::Spot at(double angle) const {
    return {static_cast<std::int16_t>(roundEven(x + rx * std::cos(angle))),
            static_cast<std::int16_t>(roundEven(y - ry * std::sin(angle)))};
  }
  // Close enough together that no corner is seen.
  void trace(double from, double sweep, std::vector<raster::Spot>& spots) const {
    constexpr int Most = 4096;
    const int steps = std::clamp(static_cast<int>(std::abs(sweep) * std::max(rx, ry)), 8, Most);
    for (int i = 0; i <= steps; ++i) {
      const raster::Spot spot = at(from + sweep * i / steps);
      if (spots.empty() || spots.back().x != spot.x || spots.back().y != spot.y)
        spots.push_back(spot);
    }
  }
};

int cornersOf(const std::vector<raster::Spot>& spots) { return static_cast<int>(spots.size()); }

}  // namespace

std::vector<raster::Spot> MetafilePlayer::spotsOf(const Record& r, std::size_t word,
                                                  std::size_t count) const {
  r.bytes(word, 4 * count);  // all of them are there, before room is made for them
  std::vector<raster::Spot> spots;
  spots.reserve(count);
  for (std::size_t i = 0; i < count; ++i)
    spots.push_back(toPixels(r.i16(word + 2 * i), r.i16(word + 2 * i + 1)));
  return spots;
}

raster::Pen MetafilePlayer::pen() const {
  const double width = roundEven(state_.pen.width * std::abs(scale().x));
  return {state_.pen.style, static_cast<int>(std::clamp(width, 1.0, 200.0)), state_.pen.color};
}

// An opaque hatch has a ground between its lines.
void MetafilePlayer::paintGround(const std::vector<raster::Spot>& corners,
                                 const std::vector<int>& counts) {
  const auto style = state_.brush.style;
  if (!state_.opaque || style == raster::BrushStyle::Null || style == raster::BrushStyle::Solid)
    return;
  canvas_.paint(state_.rop, [&](raster::Target onto) {
    return raster::polygons(onto, {raster::PenStyle::Null},
                            {raster::BrushStyle::Solid, state_.ground}, corners, counts,
                            state_.rule);
  });
}

void MetafilePlayer::fillPolygons(const std::vector<raster::Spot>& corners,
                                  const std::vector<int>& counts) {
  constexpr std::int64_t WorkOfACrossing = 4, WorkOfASide = 16;
  const auto cost = WorkOfACrossing * raster::crossings(canvas_.bitmap(), corners, counts) +
                    WorkOfASide * static_cast<std::int64_t>(corners.size());
  canvas_.spend(2 * cost);
  paintGround(corners, counts);
  canvas_.paint(state_.rop, [&](raster::Target onto) {
    return raster::polygons(onto, pen(), state_.brush, corners, counts, state_.rule);
  });
}

void MetafilePlayer::moveTo(const Record& r) { state_.at = {r.i16(1), r.i16(0)}; }

void MetafilePlayer::lineTo(const Record& r) {
  const raster::Spot from = toPixels(state_.at.x, state_.at.y);
  moveTo(r);
  const raster::Spot to = toPixels(state_.at.x, state_.at.y);
  canvas_.paint(state_.rop, [&](raster::Target onto) {
    return raster::line(onto, pen(), from.x, from.y, to.x, to.y);
  });
}

void MetafilePlayer::polyline(const Record& r) {
  const auto spots = spotsOf(r, 1, r.u16(0));
  for (std::size_t i = 1; i < spots.size(); ++i)
    canvas_.paint(state_.rop, [&](raster::Target onto) {
      return raster::line(onto, pen(), spots[i - 1].x, spots[i - 1].y, spots[i].x, spots[i].y);
    });
}

void MetafilePlayer::polygon(const Record& r) {
  const auto corners = spotsOf(r, 1, r.u16(0));
  if (corners.size() >= 2) fillPolygons(corners, {cornersOf(corners)});
}

void MetafilePlayer::polyPolygon(const Record& r) {
  const std::size_t polygons = r.u16(0);
  std::vector<int> counts;
  std::size_t total = 0;
  for (std::size_t i = 0; i < polygons; ++i) {
    counts.push_back(static_cast<int>(r.u16(1 + i)));
    total += r.u16(1 + i);
  }
  const auto corners = spotsOf(r, 1 + polygons, total);
  std::erase(counts, 0);
  if (!corners.empty()) fillPolygons(corners, counts);
}

// The right and lower sides of a box in the file lie just outside it.
void MetafilePlayer::rectangle(const Record& r) {
  const raster::Rect box = toPixels(r, 0);
  if (box.empty()) return;
  const std::vector<raster::Spot> corners = {
      {static_cast<std::int16_t>(box.left), static_cast<std::int16_t>(box.top)},
      {static_cast<std::int16_t>(box.right), static_cast<std::int16_t>(box.top)},
      {static_cast<std::int16_t>(box.right), static_cast<std::int16_t>(box.bottom)},
      {static_cast<std::int16_t>(box.left), static_cast<std::int16_t>(box.bottom)}};
  paintGround(corners, {4});
  canvas_.paint(state_.rop, [&](raster::Target onto) {
    return raster::box(onto, pen(), state_.brush, box.left, box.top, box.right - 1, box.bottom - 1);
  });
}

void MetafilePlayer::roundRectangle(const Record& r) {
  const raster::Rect box = toPixels(r, 2);
  if (box.empty()) return;
  const Scale by = scale();
  const int width = std::min<int>(box.width(), static_cast<int>(std::abs(r.i16(1) * by.x)));
  const int height = std::min<int>(box.height(), static_cast<int>(std::abs(r.i16(0) * by.y)));
  constexpr double Quarter = std::numbers::pi / 2;
  std::vector<raster::Spot> spots;
  const auto corner = [&](int left, int top, double from) {
    Oval({left, top, left + std::max(width, 1), top + std::max(height, 1)})
        .trace(from, Quarter, spots);
  };
  corner(box.right - width, box.top, 0);
  corner(box.left, box.top, Quarter);
  corner(box.left, box.bottom - height, 2 * Quarter);
  corner(box.right - width, box.bottom - height, 3 * Quarter);
  fillPolygons(spots, {cornersOf(spots)});
}

void MetafilePlayer::ellipse(const Record& r) {
  const raster::Rect box = toPixels(r, 0);
  if (box.empty()) return;
  const Oval oval(box);
  std::vector<raster::Spot> spots;
  oval.trace(0, 2 * std::numbers::pi, spots);
  // Round a pixel the raster knows it; round the corner of four it is a polygon.
  const bool hatched = state_.brush.style != raster::BrushStyle::Solid &&
                       state_.brush.style != raster::BrushStyle::Null;
  if (box.width() % 2 == 0 || box.height() % 2 == 0 || hatched)
    return fillPolygons(spots, {cornersOf(spots)});
  canvas_.paint(state_.rop, [&](raster::Target onto) {
    return raster::ellipse(onto, pen(), state_.brush, static_cast<int>(oval.x),
                           static_cast<int>(oval.y), oval.rx, oval.ry);
  });
}

// A part of an ellipse, counterclockwise from one ray to another: the line alone, the piece of a
// cake, or what a straight cut takes off.
void MetafilePlayer::arc(const Record& r) {
  const raster::Rect box = toPixels(r, 4);
  const raster::Spot end = toPixels(r.i16(1), r.i16(0)), start = toPixels(r.i16(3), r.i16(2));
  if (box.empty()) return;
  const Oval oval(box);
  const double from = oval.angleOf(start);
  double sweep = oval.angleOf(end) - from;
  if (sweep <= 0) sweep += 2 * std::numbers::pi;
  std::vector<raster::Spot> spots;
  oval.trace(from, sweep, spots);
  if (r.function() != Arc) {
    if (r.function() == Pie)
      spots.push_back({static_cast<std::int16_t>(roundEven(oval.x)),
                       static_cast<std::int16_t>(roundEven(oval.y))});
    return fillPolygons(spots, {cornersOf(spots)});
  }
  canvas_.spend(16 * static_cast<std::int64_t>(spots.size()));
  canvas_.paint(state_.rop,
                [&](raster::Target onto) { return raster::polyline(onto, pen(), spots); });
}

void MetafilePlayer::setPixel(const Record& r) {
  const raster::Spot at = toPixels(r.i16(3), r.i16(2));
  canvas_.paint(13, [&](raster::Target onto) {
    return raster::dot(onto, {raster::PenStyle::Solid, 1, r.color(0)}, at.x, at.y);
  });
}

// Of the two kinds of filling only the one that paints over a colour is known.
void MetafilePlayer::floodFill(const Record& r) {
  constexpr unsigned OverTheColour = 1;
  const raster::Spot at = toPixels(r.i16(4), r.i16(3));
  const raster::Pixel region = r.color(1);
  if (r.u16(0) != OverTheColour) return;
  canvas_.paint(13, [&](raster::Target onto) {
    return raster::floodFill(onto, state_.brush, at.x, at.y, region);
  });
}

}  // namespace surface
