// Turning a picture round its middle. Most source points are found in single precision, many at a
// time; where that could round to another pixel than the exact way, the exact way is taken. Whole
// quarter turns come down to plain copies.
#include "effects/rotation.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>

#include "surface/numbers.h"
#include "surface/raster/draw.h"
#include "surface/raster/versions.h"

namespace effects {
namespace {

using raster::Bitmap;
using raster::Pixel;
using surface::nearestInt;

constexpr double HalfPi = 3.14159265359 / 2;

// A source point, from the source's middle.
struct Offset {
  int P, Q;
};

// The source point for the target point (u, v), both 0 or more, in the first quarter.
Offset exactOffset(int u, int v, float angle) {
  const auto a = static_cast<float>(u == 0 ? HalfPi : std::atan(static_cast<double>(v) / u));
  const double r = nearestInt(std::sqrt(double(u) * u + double(v) * v));
  const double turned = double{a} + double{angle};
  return {nearestInt(r * std::cos(turned)), nearestInt(r * std::sin(turned))};
}

// Adding it to a float leaves the nearest whole number (ties to even) in the low bits.
constexpr float Rounder = 0x1.8p23f;
inline float rounded(float value) { return (value + Rounder) - Rounder; }
inline float missed(float value, float whole) { return std::abs(value - whole); }

// Up to here every radius is below 2048: the square root of a whole number then stays far enough
// from all halves to be rounded rightly in single precision, and places in memory are exact.
constexpr int QuickLimit = 1447;

// The target is painted in blocks: narrow ones, so that the source points of neighbouring rows lie
// close together whatever the angle, and low ones, so that what was found is still near. At most of
// this size.
constexpr int BlockWidth = 256, BlockRows = 4;
// Places are found in whole groups, also where a row ends within one.
constexpr int Group = 16;
static_assert(BlockWidth % Group == 0);

// Whole numbers from first up to, but without, last.
struct Span {
  int first, last;

  Span within(Span other) const {
    const int from = std::clamp(first, other.first, other.last);
    return {from, std::clamp(last, from, other.last)};
  }
  Span opposite() const { return {1 - last, 1 - first}; }
};

// Source points for target points in a row, from the source's middle: how far on in its memory, how
// far the point on the other side of the middle, and their rows.
struct Points {
  std::array<std::int32_t, BlockWidth> distance, opposite;
  std::array<float, BlockWidth> Y;  ///< whole, but left as it was found
  Span sure, open;  ///< in the row, those within the source for sure, and those perhaps within it

  void set(std::size_t at, Offset to, int width) {
    distance[at] = to.Q * width + to.P;
    opposite[at] = -distance[at];
    Y[at] = static_cast<float>(to.Q);
  }
};

// The places first..first+count-1 of a row: the points (i, fixed), and the points (fixed, i) turned
// by a quarter more.
struct Piece {
  int fixed, first, count;
  Points straight, swapped;
  std::array<std::int32_t, BlockWidth> unsure;

  int groups() const { return (count + Group - 1) / Group; }
};

// Fills a piece in single precision; true if some of its places are marked as unsure.
WIDE_VERSIONS
bool findQuickly(Piece& piece, float cosine, float sine, int sourceWidth) {
  const auto f = static_cast<float>(piece.fixed), width = static_cast<float>(sourceWidth);
  const float fc = f * cosine, fs = f * sine;
  const float ff = std::max(f * f, 1e-30f);  // even the middle has a distance to divide by
  const auto furthest = static_cast<float>(piece.first + piece.count);
  // Ten roundings at most, each of 2^-24 of the distance.
  const float sure = 0.5f - std::sqrt(furthest * furthest + ff) * 10 * 0x1p-24f;
  std::int32_t any = 0;
  for (int i = 0; i < piece.groups() * Group; ++i) {
    const auto m = static_cast<float>(piece.first + i);
    const float distance = std::sqrt(m * m + ff);
    const float scale = rounded(distance) / distance;
    const float mc = m * cosine, ms = m * sine;
    const float p = (mc - fs) * scale, q = (ms + fc) * scale;
    const float p2 = (fs + mc) * scale, q2 = (ms - fc) * scale;
    const float P = rounded(p), Q = rounded(q), P2 = rounded(p2), Q2 = rounded(q2);
    const float worst =
        std::max(std::max(missed(p, P), missed(q, Q)), std::max(missed(p2, P2), missed(q2, Q2)));
    const std::int32_t unsure = worst > sure;
    // Whole numbers below 2^24 within the limit.
    const auto straight = static_cast<std::int32_t>(Q * width + P),
               swapped = static_cast<std::int32_t>(Q2 * width + P2);
    piece.straight.distance[i] = straight;
    piece.straight.opposite[i] = -straight;
    piece.straight.Y[i] = Q;
    piece.swapped.distance[i] = swapped;
    piece.swapped.opposite[i] = -swapped;
    piece.swapped.Y[i] = Q2;
    piece.unsure[i] = unsure;
    any |= unsure;
  }
  return any != 0;
}

// The places (i, row) whose source points, not yet rounded, lie in a box around the source's
// middle.
class Reach {
 public:
  Reach(double cosine, double sine, double halfWidth, double halfHeight)
      : tangent_(sine / slope(cosine)),
        cotangent_(-cosine / slope(sine)),
        width_(halfWidth / std::abs(slope(cosine))),
        height_(halfHeight / std::abs(slope(sine))) {}

  Span of(int row) const {
    const double x = row * tangent_, y = row * cotangent_;
    return {firstAbove(std::max(x - width_, y - height_)),
            firstAbove(std::min(x + width_, y + height_))};
  }

 private:
  // A slope that is less moves none of our points.
  static double slope(double value) {
    return std::copysign(std::max(std::abs(value), 1e-6), value);
  }
  // The first whole number above it, or it. No row is as long as the bounds.
  static int firstAbove(double value) {
    return nearestInt(std::max(-1e5, std::min(value, 1e5)) + 0.5);
  }

  double tangent_, cotangent_, width_, height_;
};

class Rotation {
 public:
  Rotation(const Bitmap& source, Bitmap& target, float angle)
      : source_(source),
        target_(target),
        middle_(source.row(half(source.height())) + half(source.width())),
        angle_(angle),
        cosine_(std::cos(double{angle})),
        sine_(std::sin(double{angle})),
        sx_(half(source.width())),
        sy_(half(source.height())),
        tx_(half(target.width())),
        ty_(half(target.height())),
        N_(nearestInt(std::max(target.width(), target.height()) / 2.0 - 1)),
        quick_(N_ <= QuickLimit && source.width() <= 2 * QuickLimit),
        within_(cosine_, sine_, std::min(sx_, source.width() - 1 - sx_) - Slack,
                std::min(sy_, source.height() - 1 - sy_) - Slack),
        around_(cosine_, sine_, std::max(sx_, source.width() - 1 - sx_) + Slack,
                std::max(sy_, source.height() - 1 - sy_) + Slack) {}

  void run() {
    if (isByQuarters()) {
      turnByQuarters(nearestInt(cosine_), nearestInt(sine_));
      return;
    }
    axis();
    const int blocks = N_ / BlockWidth + 1, width = N_ / blocks + 1;  // of equal width
    for (int left = 0; left <= N_; left += width)
      for (int top = 0; top <= lastRow(); top += BlockRows)
        paintBlock({left, std::min(left + width, N_ + 1)},
                   {top, std::min(top + BlockRows, lastRow() + 1)});
  }

 private:
  // Rounding the radius moves a point by up to half a pixel, and rounding the point as much again.
  static constexpr double Slack = 1.02;

  static int half(int size) { return nearestInt(size / 2.0); }
  // Beyond it both of two opposite rows lie outside the target.
  int lastRow() const { return std::min(N_, ty_); }

  void copy(int fromX, int fromY, int toX, int toY) {
    if (source_.contains(sx_ + fromX, sy_ + fromY) && target_.contains(tx_ + toX, ty_ + toY))
      target_.row(ty_ + toY)[tx_ + toX] = source_.at(sx_ + fromX, sy_ + fromY);
  }

  // The points with u = 0 come first: on the axes the later ones cover them.
  void axis() {
    const double turned = double{static_cast<float>(HalfPi)} + double{angle_};
    const double cosine = std::cos(turned), sine = std::sin(turned);
    for (int v = 0; v <= N_; ++v) {
      const int P = nearestInt(v * cosine), Q = nearestInt(v * sine);
      copy(P, Q, 0, v);
      copy(-P, -Q, 0, -v);
      copy(Q, -P, v, 0);
      copy(-Q, P, -v, 0);
    }
  }

  // The points of a block with u from 1 on. But for the axes the four quarters lie side by side, so
  // each is painted along its rows; and one after the other, to touch few places of the source at a
  // time.
  void paintBlock(Span columns, Span rows) {
    const auto forEach = [&](auto work) {
      for (int row = rows.first; row < rows.last; ++row)
        work(pieces_[static_cast<std::size_t>(row - rows.first)], row);
    };
    forEach([&](Piece& piece, int row) { find(piece, columns, row); });
    forEach([&](Piece& piece, int row) { paint<1>(piece.straight, columns.first, ty_ + row); });
    forEach([&](Piece& piece, int row) { paint<-1>(piece.straight, columns.first, ty_ - row); });
    forEach([&](Piece& piece, int row) { paint<1>(piece.swapped, columns.first, ty_ - row); });
    forEach([&](Piece& piece, int row) { paint<-1>(piece.swapped, columns.first, ty_ + row); });
  }

  void find(Piece& piece, Span columns, int row) const {
    const Span straight{std::max(columns.first, 1), columns.last};
    const Span swapped = row > 0 ? columns : Span{columns.first, columns.first};
    const Span open = around_.of(row), sure = within_.of(row);
    piece.straight.open = open.within(straight);
    piece.straight.sure = sure;
    piece.swapped.open = open.opposite().within(swapped);
    piece.swapped.sure = sure.opposite();
    piece.fixed = row;
    piece.first = columns.first;
    piece.count = std::max(piece.straight.open.last, piece.swapped.open.last) - columns.first;
    findPoints(piece);
  }

  // In double precision only the rounding of the point's own direction, to 2^-24, is left out.
  Offset offset(int u, int v) const {
    const double distance = std::sqrt(double(u) * u + double(v) * v);
    const double scale = nearestInt(distance) / distance;
    const double p = (u * cosine_ - v * sine_) * scale, q = (u * sine_ + v * cosine_) * scale;
    const int P = nearestInt(p), Q = nearestInt(q);
    if (v == 0) return {P, Q};  // nothing is left out
    const double sure = 0.5 - distance * 1e-7;
    if (std::abs(p - P) < sure && std::abs(q - Q) < sure) return {P, Q};
    return exactOffset(u, v, angle_);
  }

  void findPoints(Piece& piece) const {
    if (!quick_)
      piece.unsure.fill(1);
    else if (!findQuickly(piece, static_cast<float>(cosine_), static_cast<float>(sine_),
                          source_.width()))
      return;
    for (int group = 0; group < piece.groups(); ++group) {
      std::int32_t any = 0;
      for (int i = group * Group; i < (group + 1) * Group; ++i) any |= piece.unsure[i];
      if (any == 0) continue;
      for (int i = group * Group; i < (group + 1) * Group; ++i)
        if (piece.unsure[i] != 0) findSurely(piece, i);
    }
  }

  // The points with u = 0 are the axis's.
  void findSurely(Piece& piece, int i) const {
    const auto at = static_cast<std::size_t>(i);
    const int moving = piece.first + i;
    if (moving > 0) piece.straight.set(at, offset(moving, piece.fixed), source_.width());
    if (piece.fixed > 0) {
      const Offset swapped = offset(piece.fixed, moving);
      piece.swapped.set(at, {swapped.Q, -swapped.P}, source_.width());
    }
  }

  // Paints the columns tx + i of a row. A direction of -1 means half a turn, for target and source
  // alike: the columns tx - i.
  template <int direction>
  void paint(const Points& points, int left, int row) {
    if (row < 0 || row >= target_.height()) return;
    const Span open = points.open.within({0, direction > 0 ? target_.width() - tx_ : tx_ + 1});
    if (open.last <= open.first) return;
    const Span sure = points.sure.within(open);
    Pixel* const to = target_.row(row) + tx_ + direction * left;
    paintWithin<direction>(points, to, {open.first - left, sure.first - left});
    copyAll<direction>(points, to, {sure.first - left, sure.last - left});
    paintWithin<direction>(points, to, {sure.last - left, open.last - left});
  }

  // Each has its source point.
  template <int direction>
  void copyAll(const Points& points, Pixel* to, Span span) const {
    const auto& all = direction > 0 ? points.distance : points.opposite;
    const std::int32_t* distances = all.data() + span.first;
    const Pixel* const middle = middle_;
    to += direction * span.first;
    int count = span.last - span.first;
    constexpr int Step = 8;
    for (; count >= Step; count -= Step, to += direction * Step, distances += Step) {
#pragma GCC unroll 8
      for (int i = 0; i < Step; ++i) to[direction * i] = middle[std::ptrdiff_t{distances[i]}];
    }
    for (int i = 0; i < count; ++i) to[direction * i] = middle[std::ptrdiff_t{distances[i]}];
  }

  // Each only if its source point is there.
  template <int direction>
  void paintWithin(const Points& points, Pixel* to, Span span) const {
    for (int i = span.first; i < span.last; ++i) {
      const auto at = static_cast<std::size_t>(i);
      const int Y = static_cast<int>(points.Y[at]), X = points.distance[at] - Y * source_.width();
      if (source_.contains(sx_ + direction * X, sy_ + direction * Y))
        to[direction * i] = middle_[direction * points.distance[at]];
    }
  }

  // Quarter turns, but for the rounding of the angle and of each point's own direction: together
  // less than 4e-7. The radius d, a root of a whole number, is rounded by less than 1/2 - 1/(9d),
  // which leaves every point nearest to its own place as long as d^3 is below 0.11 / 4e-7^2.
  bool isByQuarters() const {
    constexpr int Limit = 6000;  // a radius of 8500
    return N_ <= Limit &&
           std::abs(cosine_ - nearestInt(cosine_)) + std::abs(sine_ - nearestInt(sine_)) < 3e-7;
  }

  // The target point (u, v) takes the source point (u c - v s, u s + v c).
  void turnByQuarters(int c, int s) {
    const Span width{-sx_, source_.width() - sx_}, height{-sy_, source_.height() - sy_};
    const Span square{-N_, N_ + 1};
    const auto turned = [](Span span, int sign) { return sign < 0 ? span.opposite() : span; };
    const Span across = (s == 0 ? turned(width, c) : turned(height, s))
                            .within({-tx_, target_.width() - tx_})
                            .within(square);
    const Span down = (s == 0 ? turned(height, c) : turned(width, -s))
                          .within({-ty_, target_.height() - ty_})
                          .within(square);
    if (s != 0) {
      turnByOneQuarter(s, across, down);
      return;
    }
    const Span fromX = turned(across, c), fromY = turned(down, c);
    const int W = across.last - across.first, H = down.last - down.first;
    raster::stretch(target_, tx_ + (c > 0 ? across.first : across.last),
                    ty_ + (c > 0 ? down.first : down.last), c * W, c * H, source_,
                    sx_ + fromX.first, sy_ + fromY.first, W, H);
  }

  // Columns of the source become rows: in strips, for which a few rows of the source are read side
  // by side.
  void turnByOneQuarter(int s, Span across, Span down) {
    constexpr int Width = 32;
    const std::ptrdiff_t step = std::ptrdiff_t{s} * source_.width(), row = target_.width();
    for (int left = across.first; left < across.last; left += Width) {
      Pixel* to = target_.row(ty_ + down.first) + tx_ + left;
      const Pixel* from = middle_ + left * step - std::ptrdiff_t{down.first} * s;
      const int count = std::min(Width, across.last - left);
      for (int v = down.first; v < down.last; ++v, to += row, from -= s) {
        if (count == Width) {
#pragma GCC unroll 32
          for (int i = 0; i < Width; ++i) to[i] = from[i * step];
        } else {
          for (int i = 0; i < count; ++i) to[i] = from[i * step];
        }
      }
    }
  }

  const Bitmap& source_;
  Bitmap& target_;
  const Pixel* const middle_;
  const float angle_;
  const double cosine_, sine_;
  const int sx_, sy_, tx_, ty_, N_;
  const bool quick_;
  const Reach within_, around_;  // where the source surely is, and where it may be
  std::array<Piece, BlockRows> pieces_;
};

}  // namespace

void rotateInto(const Bitmap& source, Bitmap& target, float angle) {
  if (source.bounds().empty() || target.bounds().empty()) return;
  Rotation(source, target, angle).run();
}

}  // namespace effects
