// Turning a picture round its middle. Most source points are found in single precision, many at a
// time; where that could round to another pixel than the exact way, the exact way is taken.
#include "effects/rotation.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <vector>

#include "effects/wide.h"
#include "surface/numbers.h"

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

// True where an error of a few units in the last place may round to another whole number.
inline bool isUnsure(float value, float whole, float error) {
  return std::abs(value - whole) > 0.5f - error;
}

// From here on single precision does not hold the squares any more.
constexpr int QuickLimit = 2800;

// The source points of target points in a row: place 0..count-1 stands for (i, fixed), or for
// (fixed, i) if `swapped`.
WIDE_VERSIONS
void quickOffsets(int fixed, bool swapped, int count, float cosine, float sine,
                  std::int32_t* __restrict P, std::int32_t* __restrict Q,
                  std::int32_t* __restrict unsure) {
  const auto other = static_cast<float>(fixed);
  // (u, v) turned by the angle, in the two cases.
  const float pMoving = swapped ? -sine : cosine, pFixed = (swapped ? cosine : -sine) * other;
  const float qMoving = swapped ? cosine : sine, qFixed = (swapped ? sine : cosine) * other;
  for (int i = 0; i < count; ++i) {
    const auto moving = static_cast<float>(i);
    // The middle itself has no direction; it is never asked for.
    const float distance = std::max(std::sqrt(moving * moving + other * other), 0.5f);
    const float r = rounded(distance);
    const float scale = r / distance;
    const float p = (pMoving * moving + pFixed) * scale;
    const float q = (qMoving * moving + qFixed) * scale;
    const float wholeP = rounded(p), wholeQ = rounded(q);
    // Ten roundings at most, each of 2^-24 of the distance.
    const float error = distance * 0x1p-20f;
    P[i] = static_cast<std::int32_t>(wholeP);
    Q[i] = static_cast<std::int32_t>(wholeQ);
    unsure[i] =
        isUnsure(distance, r, error) | isUnsure(p, wholeP, error) | isUnsure(q, wholeQ, error);
  }
}

class Rotation {
 public:
  Rotation(const Bitmap& source, Bitmap& target, float angle)
      : source_(source),
        target_(target),
        angle_(angle),
        sx_(half(source.width())),
        sy_(half(source.height())),
        tx_(half(target.width())),
        ty_(half(target.height())),
        N_(nearestInt(std::max(target.width(), target.height()) / 2.0 - 1)) {}

  void run() {
    if (N_ < 0) return;
    axis();
    P_.resize(static_cast<std::size_t>(N_) + 1);
    Q_.resize(P_.size());
    unsure_.assign(P_.size(), 1);
    // The quarters lie side by side but for the axis, so each is painted along its rows.
    for (int fixed = 0; fixed <= N_; ++fixed) {
      if (isVisible(ty_ + fixed) || isVisible(ty_ - fixed)) {
        findOffsets(fixed, false);
        if (isVisible(ty_ + fixed)) paintRow(ty_ + fixed, 1, +1, {+1, 0}, {0, +1});
        if (isVisible(ty_ - fixed)) paintRow(ty_ - fixed, 1, -1, {-1, 0}, {0, -1});
      }
      if (fixed > 0 && (isVisible(ty_ + fixed) || isVisible(ty_ - fixed))) {
        findOffsets(fixed, true);
        if (isVisible(ty_ - fixed)) paintRow(ty_ - fixed, 0, +1, {0, +1}, {-1, 0});
        if (isVisible(ty_ + fixed)) paintRow(ty_ + fixed, 0, -1, {0, -1}, {+1, 0});
      }
    }
  }

 private:
  // A source coordinate as a combination of P and Q.
  struct Mix {
    int P, Q;
    int of(Offset o) const { return P * o.P + Q * o.Q; }
  };

  static int half(int size) { return nearestInt(size / 2.0); }
  bool isVisible(int y) const { return y >= 0 && y < target_.height(); }

  void copy(int fromX, int fromY, int toX, int toY) {
    if (source_.contains(sx_ + fromX, sy_ + fromY) && target_.contains(tx_ + toX, ty_ + toY))
      target_.row(ty_ + toY)[tx_ + toX] = source_.at(sx_ + fromX, sy_ + fromY);
  }

  // The points with u = 0 come first: on the axes the later ones cover them.
  void axis() {
    for (int v = 0; v <= N_; ++v) {
      const auto [P, Q] = exactOffset(0, v, angle_);
      copy(P, Q, 0, v);
      copy(-P, -Q, 0, -v);
      copy(Q, -P, v, 0);
      copy(-Q, P, -v, 0);
    }
  }

  // The offsets of (u, v) = (i, fixed), or (fixed, i) if `swapped`, for i = 0..N.
  void findOffsets(int fixed, bool swapped) {
    if (N_ <= QuickLimit)
      quickOffsets(fixed, swapped, N_ + 1, static_cast<float>(std::cos(double{angle_})),
                   static_cast<float>(std::sin(double{angle_})), P_.data(), Q_.data(),
                   unsure_.data());
    for (int i = 0; i <= N_; ++i) {
      if (unsure_[static_cast<std::size_t>(i)] == 0) continue;
      const Offset exact = swapped ? exactOffset(fixed, i, angle_) : exactOffset(i, fixed, angle_);
      P_[static_cast<std::size_t>(i)] = exact.P;
      Q_[static_cast<std::size_t>(i)] = exact.Q;
    }
  }

  // Paints the columns tx + direction * i of a row, i = first..N, from the source point that x and
  // y mix of the offsets.
  void paintRow(int row, int first, int direction, Mix x, Mix y) {
    const int last = std::min(N_, direction > 0 ? target_.width() - 1 - tx_ : tx_);
    Pixel* to = target_.row(row) + tx_ + direction * first;
    for (int i = first; i <= last; ++i, to += direction) {
      const Offset o{P_[static_cast<std::size_t>(i)], Q_[static_cast<std::size_t>(i)]};
      const int fromX = sx_ + x.of(o), fromY = sy_ + y.of(o);
      if (source_.contains(fromX, fromY)) *to = source_.at(fromX, fromY);
    }
  }

  const Bitmap& source_;
  Bitmap& target_;
  const float angle_;
  const int sx_, sy_, tx_, ty_, N_;
  std::vector<std::int32_t> P_, Q_, unsure_;
};

}  // namespace

void rotateInto(const Bitmap& source, Bitmap& target, float angle) {
  Rotation(source, target, angle).run();
}

}  // namespace effects
