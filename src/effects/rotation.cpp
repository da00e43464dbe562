// Turning a picture round its middle. Most source points are found in single precision, many at a
// time; where that could round to another pixel than the exact way, the exact way is taken. Whole
// quarter turns come down to plain copies.
#include "effects/rotation.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstddef>
#include <cstring>

#include "effects/turned_rows.h"
#include "surface/numbers.h"
#include "surface/raster/draw.h"

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

// Four pixels side by side, and a square of so many.
constexpr int Side = 4;
using Four [[gnu::vector_size(Side * sizeof(Pixel))]] = Pixel;

Four four(const Pixel* from) {
  Four pixels;
  std::memcpy(&pixels, from, sizeof pixels);
  return pixels;
}

// Whole numbers from first up to, but without, last.
struct Span {
  int first, last;

  Span within(Span other) const {
    const int from = std::clamp(first, other.first, other.last);
    return {from, std::clamp(last, from, other.last)};
  }
  Span opposite() const { return {1 - last, 1 - first}; }
};

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
        quick_(N_ <= TurnedLimit && source.width() <= 2 * TurnedLimit),
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
    // In narrow columns, so that the source points of neighbouring rows lie close together whatever
    // the angle; of equal width.
    const int blocks = N_ / MostTurned + 1, width = N_ / blocks + 1;
    for (int left = 0; left <= N_; left += width)
      for (int row = 0; row <= lastRow(); ++row)
        paintRow({left, std::min(left + width, N_ + 1)}, row);
  }

 private:
  // Rounding the radius moves a point by up to half a pixel, and rounding the point as much again.
  static constexpr double Slack = 1.02;

  static int half(int size) { return nearestInt(size / 2.0); }
  // Beyond it both of two opposite rows lie outside the target.
  int lastRow() const { return std::min(N_, ty_); }

  void copy(int fromX, int fromY, int toX, int toY) const {
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

  // The places of a row that two opposite quarters may have, and within these the ones whose source
  // points and targets are there for sure.
  struct Reached {
    Span open, sure;
  };

  Reached reached(Span open, Span sure, Span columns, int row) const {
    open = open.within(columns);
    if (row > std::min(ty_, target_.height() - 1 - ty_)) return {open, {open.first, open.first}};
    return {open, sure.within({0, std::min(tx_, target_.width() - 1 - tx_) + 1}).within(open)};
  }

  // But for the axes the four quarters lie side by side.
  void paintRow(Span columns, int row) const {
    const Span open = around_.of(row), sure = within_.of(row);
    const Reached straight = reached(open, sure, {std::max(columns.first, 1), columns.last}, row);
    paintOpen<Straight>(straight, row);
    if (row == 0) {
      paint<Straight>(straight.sure, row);
      return;
    }
    const Reached swapped = reached(open.opposite(), sure.opposite(), columns, row);
    paintOpen<Swapped>(swapped, row);
    const Span all = straight.sure.within(swapped.sure);
    paint<All>(all, row);
    paintRest<Straight>(straight.sure, all, row);
    paintRest<Swapped>(swapped.sure, all, row);
  }

  template <Quarters quarters>
  void paintOpen(const Reached& reached, int row) const {
    paintSurely<quarters>({reached.open.first, reached.sure.first}, row);
    paintSurely<quarters>({reached.sure.last, reached.open.last}, row);
  }

  template <Quarters quarters>
  void paintRest(Span span, Span done, int row) const {
    paint<quarters>(Span{span.first, done.first}.within(span), row);
    paint<quarters>(Span{done.last, span.last}.within(span), row);
  }

  template <Quarters quarters>
  void paint(Span span, int row) const {
    const int count = span.last - span.first;
    if (!quick_ || count < TurnedStep) {
      paintSurely<quarters>(span, row);
      return;
    }
    UnsurePlaces unsure;
    paintQuickly<quarters>(
        {row, static_cast<float>(cosine_), static_cast<float>(sine_), middle_, source_.width(),
         target_.row(ty_ + row) + tx_, target_.row(ty_ - row) + tx_},
        span.first, count, unsure);
    for (std::size_t step = 0; step < stepsOf(count); ++step)
      for (unsigned bits = unsure[step]; bits != 0; bits &= bits - 1)
        paintPlace<quarters>(span.first + firstOfStep(step, count) + std::countr_zero(bits), row);
  }

  template <Quarters quarters>
  void paintSurely(Span span, int row) const {
    for (int i = span.first; i < span.last; ++i) paintPlace<quarters>(i, row);
  }

  template <Quarters quarters>
  void paintPlace(int i, int row) const {
    if constexpr ((quarters & Straight) != 0) {
      const auto [P, Q] = offset(i, row);
      copy(P, Q, i, row);
      copy(-P, -Q, -i, -row);
    }
    if constexpr ((quarters & Swapped) != 0) {
      const auto [P, Q] = offset(row, i);
      copy(Q, -P, i, -row);
      copy(-Q, P, -i, row);
    }
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

  // Columns of the source become rows: in squares, and these in strips, so that the rows of the
  // source that are read side by side stay near.
  void turnByOneQuarter(int s, Span across, Span down) const {
    constexpr int Width = 256;
    const auto each = [&](Span columns, int v) {
      for (int u = columns.first; u < columns.last; ++u)
        target_.row(ty_ + v)[tx_ + u] = source_.at(sx_ - v * s, sy_ + u * s);
    };
    for (int left = across.first; left < across.last; left += Width) {
      const int right = std::min(left + Width, across.last);
      const int squares = left + (right - left) / Side * Side;
      int v = down.first;
      for (; v + Side <= down.last; v += Side) {
        for (int u = left; u < squares; u += Side) turnSquare(s, u, v);
        for (int i = 0; i < Side; ++i) each({squares, right}, v + i);
      }
      for (; v < down.last; ++v) each({left, right}, v);
    }
  }

  // From the target point (u, v) on, to the right and down.
  void turnSquare(int s, int u, int v) const {
    const std::ptrdiff_t down = std::ptrdiff_t{s} * source_.width();
    const Pixel* from = middle_ + u * down + (s > 0 ? 1 - Side - v : v);
    const Four a = four(from), b = four(from + down), c = four(from + 2 * down),
               d = four(from + 3 * down);
    const Four ab = __builtin_shufflevector(a, b, 0, 4, 1, 5),
               ba = __builtin_shufflevector(a, b, 2, 6, 3, 7),
               cd = __builtin_shufflevector(c, d, 0, 4, 1, 5),
               dc = __builtin_shufflevector(c, d, 2, 6, 3, 7);
    const std::array<Four, Side> columns = {
        __builtin_shufflevector(ab, cd, 0, 1, 4, 5), __builtin_shufflevector(ab, cd, 2, 3, 6, 7),
        __builtin_shufflevector(ba, dc, 0, 1, 4, 5), __builtin_shufflevector(ba, dc, 2, 3, 6, 7)};
    Pixel* to = target_.row(ty_ + v) + tx_ + u;
    for (std::size_t i = 0; i < Side; ++i, to += target_.width())
      std::memcpy(to, &columns[s > 0 ? Side - 1 - i : i], sizeof(Four));
  }

  const Bitmap& source_;
  Bitmap& target_;
  const Pixel* const middle_;
  const float angle_;
  const double cosine_, sine_;
  const int sx_, sy_, tx_, ty_, N_;
  const bool quick_;
  const Reach within_, around_;  // where the source surely is, and where it may be
};

}  // namespace

void rotateInto(const Bitmap& source, Bitmap& target, float angle) {
  if (source.bounds().empty() || target.bounds().empty()) return;
  Rotation(source, target, angle).run();
}

}  // namespace effects
