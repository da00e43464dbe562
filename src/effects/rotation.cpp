// Turning a picture round its middle. Most source points are found in single precision, many at a
// time; where that could round to another pixel than the exact way, the exact way is taken.
#include "effects/rotation.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "surface/numbers.h"
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

// The target is painted in blocks of columns, so that the source points of neighbouring rows lie
// close together, whatever the angle.
constexpr int BlockSide = 64;

// Source points for target points in a row, from the source's middle: how far on in its memory,
// and their rows.
struct Points {
  std::array<std::int32_t, BlockSide> distance, Y;

  void set(std::size_t at, int x, int y, int width) {
    distance[at] = y * width + x;
    Y[at] = y;
  }
};

// The places first..first+count-1 of a row: the points (i, fixed), and the points (fixed, i) turned
// by a quarter more.
struct Piece {
  int fixed, first, count;
  Points straight, swapped;
  std::array<std::int32_t, BlockSide> unsure;
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
  for (int i = 0; i < piece.count; ++i) {
    const auto m = static_cast<float>(piece.first + i);
    const float distance = std::sqrt(m * m + ff);
    const float scale = rounded(distance) / distance;
    const float mc = m * cosine, ms = m * sine;
    const float p = (mc - fs) * scale, q = (ms + fc) * scale;
    const float p2 = (fc - ms) * scale, q2 = (fs + mc) * scale;
    const float P = rounded(p), Q = rounded(q), P2 = rounded(p2), Q2 = rounded(q2);
    const float worst =
        std::max(std::max(missed(p, P), missed(q, Q)), std::max(missed(p2, P2), missed(q2, Q2)));
    const std::int32_t unsure = worst > sure;
    // Whole numbers below 2^24 within the limit.
    piece.straight.distance[i] = static_cast<std::int32_t>(Q * width + P);
    piece.straight.Y[i] = static_cast<std::int32_t>(Q);
    piece.swapped.distance[i] = static_cast<std::int32_t>(Q2 - P2 * width);
    piece.swapped.Y[i] = -static_cast<std::int32_t>(P2);
    piece.unsure[i] = unsure;
    any |= unsure;
  }
  return any != 0;
}

// Whole numbers from first up to, but without, last.
struct Span {
  int first, last;
};

// The numbers i with low <= slope * i + offset <= high, for all that are told.
class Between {
 public:
  void narrow(double slope, double offset, double low, double high) {
    // The least of slopes is too little to move any of our points.
    const bool level = std::abs(slope) < 1e-6;
    if (low > high || (level && (offset < low || offset > high))) last_ = first_ - 1;
    if (level || last_ < first_) return;
    const double a = (low - offset) / slope, b = (high - offset) / slope;
    first_ = std::max(first_, std::min(a, b));
    last_ = std::min(last_, std::max(a, b));
  }

  /// Those from `lowest` to below `end`.
  Span whole(int lowest, int end) const {
    const auto bounded = [&](double value, int least) {
      return static_cast<int>(
          std::clamp(value, double(least), std::max(double(least), double(end))));
    };
    const int first = bounded(std::ceil(first_), lowest);
    return {first, bounded(std::floor(last_) + 1, first)};
  }

 private:
  double first_ = -1e9, last_ = 1e9;
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
        quick_(N_ <= QuickLimit && source.width() <= 2 * QuickLimit) {}

  void run() {
    axis();
    findReaches();
    for (int left = 0; left <= N_; left += BlockSide) paintBlock(left);
  }

 private:
  // Where a row and the one opposite to it, turned by half a turn, find points of the source: both
  // for sure, and each perhaps.
  struct Reach {
    Span both, plus, minus;
  };

  static int half(int size) { return nearestInt(size / 2.0); }
  bool isVisible(int y) const { return y >= 0 && y < target_.height(); }
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

  // The places i at which the source points lie within the source, give or take some slack.
  Span places(int direction, int row, double slack, int lowest, int end) const {
    Between between;
    between.narrow(direction * cosine_, -direction * row * sine_, -sx_ - slack,
                   source_.width() - 1 - sx_ + slack);
    between.narrow(direction * sine_, direction * row * cosine_, -sy_ - slack,
                   source_.height() - 1 - sy_ + slack);
    return between.whole(lowest, end);
  }

  // Rounding the radius moves a point by up to half a pixel, and rounding the point as much again.
  Reach reach(int row, int plusRow, int minusRow, int lowest) const {
    constexpr double Slack = 1.02;
    const int right = isVisible(plusRow) ? std::min(N_ + 1, target_.width() - tx_) : 0;
    const int left = isVisible(minusRow) ? std::min(N_, tx_) + 1 : 0;
    const Span plus = places(1, row, -Slack, lowest, right),
               minus = places(-1, row, -Slack, lowest, left);
    const int first = std::max(plus.first, minus.first);
    return {{first, std::max(first, std::min(plus.last, minus.last))},
            places(1, row, Slack, lowest, right),
            places(-1, row, Slack, lowest, left)};
  }

  void findReaches() {
    for (int row = 0; row <= lastRow(); ++row) {
      straight_.push_back(reach(row, ty_ + row, ty_ - row, 1));
      swapped_.push_back(reach(-row, ty_ - row, ty_ + row, 0));
    }
  }

  // The points of a block with u from 1 on. But for the axes the four quarters lie side by side, so
  // each is painted along its rows.
  void paintBlock(int left) {
    Piece piece;
    piece.first = left;
    piece.count = std::min(BlockSide, N_ + 1 - left);
    for (int row = 0; row <= lastRow(); ++row) {
      const auto at = static_cast<std::size_t>(row);
      piece.fixed = row;
      findPoints(piece);
      paint(piece, piece.straight, straight_[at], ty_ + row, ty_ - row);
      if (row > 0) paint(piece, piece.swapped, swapped_[at], ty_ - row, ty_ + row);
    }
  }

  // In double precision only the rounding of the point's own direction, to 2^-24, is left out.
  Offset offset(int u, int v) const {
    const double distance = std::sqrt(double(u) * u + double(v) * v);
    const double scale = nearestInt(distance) / distance;
    const double p = (u * cosine_ - v * sine_) * scale, q = (u * sine_ + v * cosine_) * scale;
    const int P = nearestInt(p), Q = nearestInt(q);
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
    for (int i = 0; i < piece.count; ++i) {
      const auto at = static_cast<std::size_t>(i);
      const int moving = piece.first + i;
      if (piece.unsure[at] == 0 || (moving == 0 && piece.fixed == 0)) continue;
      const Offset straight = offset(moving, piece.fixed), swapped = offset(piece.fixed, moving);
      piece.straight.set(at, straight.P, straight.Q, source_.width());
      piece.swapped.set(at, swapped.Q, -swapped.P, source_.width());
    }
  }

  // Paints the columns tx + i of a row, and the columns tx - i of the opposite one.
  void paint(const Piece& piece, const Points& points, const Reach& reach, int plusRow,
             int minusRow) {
    const int begin = piece.first, end = piece.first + piece.count;
    const int first = std::clamp(reach.both.first, begin, end),
              last = std::clamp(reach.both.last, first, end);
    if (first < last) {
      Pixel* const plus = target_.row(plusRow) + tx_ + begin;
      Pixel* const minus = target_.row(minusRow) + tx_ - begin;
#pragma GCC unroll 4
      for (std::ptrdiff_t i = first - begin; i < last - begin; ++i) {
        const std::ptrdiff_t distance = points.distance[static_cast<std::size_t>(i)];
        plus[i] = middle_[distance];
        minus[-i] = middle_[-distance];
      }
    }
    for (const Span rest : {Span{begin, first}, Span{last, end}}) {
      paintWithin<1>(piece, points, rest, reach.plus, plusRow);
      paintWithin<-1>(piece, points, rest, reach.minus, minusRow);
    }
  }

  // The places of a row that belong to both spans, each only if its source point is there. A
  // direction of -1 means half a turn, for target and source alike.
  template <int direction>
  void paintWithin(const Piece& piece, const Points& points, Span a, Span b, int row) {
    const int first = std::max(a.first, b.first), last = std::min(a.last, b.last);
    if (first >= last) return;
    Pixel* const to = target_.row(row) + tx_;
    for (int i = first; i < last; ++i) {
      const auto at = static_cast<std::size_t>(i - piece.first);
      const int Y = points.Y[at], X = points.distance[at] - Y * source_.width();
      if (source_.contains(sx_ + direction * X, sy_ + direction * Y))
        to[direction * i] = middle_[direction * points.distance[at]];
    }
  }

  const Bitmap& source_;
  Bitmap& target_;
  const Pixel* const middle_;
  const float angle_;
  const double cosine_, sine_;
  const int sx_, sy_, tx_, ty_, N_;
  const bool quick_;
  std::vector<Reach> straight_, swapped_;  // for each row
};

}  // namespace

void rotateInto(const Bitmap& source, Bitmap& target, float angle) {
  if (source.bounds().empty() || target.bounds().empty()) return;
  Rotation(source, target, angle).run();
}

}  // namespace effects
