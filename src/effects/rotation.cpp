// Turning a picture round its middle. Most source points are found in single precision, many at a
// time; where that could round to another pixel than the exact way, the exact way is taken.
#include "effects/rotation.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <type_traits>
#include <utility>

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

// The target is painted in blocks, so that the source points of a block lie close together,
// whatever the angle.
constexpr int BlockSide = 64;

// Source points for target points in a row, from the source's middle: where they lie, and how far
// on in its memory.
struct Points {
  std::array<std::int32_t, BlockSide> X, Y, distance;

  void set(std::size_t at, int x, int y, int width) {
    X[at] = x;
    Y[at] = y;
    distance[at] = y * width + x;
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
bool findQuickly(Piece& piece, float cosine, float sine, int width) {
  const auto f = static_cast<float>(piece.fixed);
  std::int32_t any = 0;
  for (int i = 0; i < piece.count; ++i) {
    const auto m = static_cast<float>(piece.first + i);
    // The middle itself has no direction; it is never asked for.
    const float distance = std::max(std::sqrt(m * m + f * f), 0.5f);
    const float r = rounded(distance);
    const float scale = r / distance;
    const float p = (m * cosine - f * sine) * scale, q = (m * sine + f * cosine) * scale;
    const float p2 = (f * cosine - m * sine) * scale, q2 = (f * sine + m * cosine) * scale;
    const float P = rounded(p), Q = rounded(q), P2 = rounded(p2), Q2 = rounded(q2);
    // Ten roundings at most, each of 2^-24 of the distance.
    const float error = distance * 0x1p-20f;
    const std::int32_t unsure = isUnsure(distance, r, error) | isUnsure(p, P, error) |
                                isUnsure(q, Q, error) | isUnsure(p2, P2, error) |
                                isUnsure(q2, Q2, error);
    const auto x = static_cast<std::int32_t>(P), y = static_cast<std::int32_t>(Q);
    const auto x2 = static_cast<std::int32_t>(Q2), y2 = -static_cast<std::int32_t>(P2);
    piece.straight.X[i] = x;
    piece.straight.Y[i] = y;
    piece.straight.distance[i] = y * width + x;
    piece.swapped.X[i] = x2;
    piece.swapped.Y[i] = y2;
    piece.swapped.distance[i] = y2 * width + x2;
    piece.unsure[i] = unsure;
    any |= unsure;
  }
  return any != 0;
}

class Rotation {
 public:
  Rotation(const Bitmap& source, Bitmap& target, float angle)
      : source_(source),
        target_(target),
        angle_(angle),
        cosine_(static_cast<float>(std::cos(double{angle}))),
        sine_(static_cast<float>(std::sin(double{angle}))),
        sx_(half(source.width())),
        sy_(half(source.height())),
        tx_(half(target.width())),
        ty_(half(target.height())),
        N_(nearestInt(std::max(target.width(), target.height()) / 2.0 - 1)) {}

  void run() {
    if (source_.bounds().empty() || target_.bounds().empty()) return;
    axis();
    for (int top = 0; top <= N_; top += BlockSide)
      for (int left = 0; left <= N_; left += BlockSide) paintBlock(left, top);
  }

 private:
  // Whether the source points of a block all lie on the source, or none, or some.
  enum class Lies { Inside, Outside, Across };
  struct Block {
    Lies straight[2], swapped[2];  // turned by no half turn, and by one
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

  // Where the rectangle of the points (x, y) = (a * cos - b * sin, a * sin + b * cos) lies, for a
  // and b between two corners, and the one turned by half a turn. Rounding moves a point by less
  // than two pixels.
  void classify(Lies (&lies)[2], const float (&a)[2], const float (&b)[2]) const {
    constexpr float Slack = 2;
    float left = 1e9f, top = 1e9f, right = -1e9f, bottom = -1e9f;
    for (const float ca : a)
      for (const float cb : b) {
        const float x = ca * cosine_ - cb * sine_, y = ca * sine_ + cb * cosine_;
        left = std::min(left, x - Slack);
        right = std::max(right, x + Slack);
        top = std::min(top, y - Slack);
        bottom = std::max(bottom, y + Slack);
      }
    const auto W = static_cast<float>(source_.width()), H = static_cast<float>(source_.height());
    for (Lies& lie : lies) {
      const auto x = static_cast<float>(sx_), y = static_cast<float>(sy_);
      if (x + left >= 0 && x + right < W && y + top >= 0 && y + bottom < H)
        lie = Lies::Inside;
      else if (x + right < 0 || x + left >= W || y + bottom < 0 || y + top >= H)
        lie = Lies::Outside;
      else
        lie = Lies::Across;
      left = std::exchange(right, -left) * -1;
      top = std::exchange(bottom, -top) * -1;
    }
  }

  // The points of a block with u from 1 on. But for the axes the four quarters lie side by side, so
  // each is painted along its rows.
  void paintBlock(int left, int top) {
    const int right = std::min(left + BlockSide - 1, N_),
              bottom = std::min(top + BlockSide - 1, N_);
    const float i[] = {static_cast<float>(left), static_cast<float>(right)};
    const float f[] = {static_cast<float>(top), static_cast<float>(bottom)};
    const float minusF[] = {-f[0], -f[1]};
    Block block;
    classify(block.straight, i, f);
    classify(block.swapped, i, minusF);
    Piece piece;
    piece.first = left;
    piece.count = right - left + 1;
    for (int fixed = top; fixed <= bottom; ++fixed) {
      if (!isVisible(ty_ + fixed) && !isVisible(ty_ - fixed)) break;
      piece.fixed = fixed;
      findPoints(piece);
      paint(piece, piece.straight, block.straight[0], ty_ + fixed, 1,
            std::integral_constant<int, 1>{});
      paint(piece, piece.straight, block.straight[1], ty_ - fixed, 1,
            std::integral_constant<int, -1>{});
      if (fixed == 0) continue;
      paint(piece, piece.swapped, block.swapped[0], ty_ - fixed, 0,
            std::integral_constant<int, 1>{});
      paint(piece, piece.swapped, block.swapped[1], ty_ + fixed, 0,
            std::integral_constant<int, -1>{});
    }
  }

  void findPoints(Piece& piece) const {
    bool unsure = true;
    if (N_ <= QuickLimit)
      unsure = findQuickly(piece, cosine_, sine_, source_.width());
    else
      piece.unsure.fill(1);
    if (!unsure) return;
    for (int i = 0; i < piece.count; ++i) {
      const auto at = static_cast<std::size_t>(i);
      if (piece.unsure[at] == 0) continue;
      const int moving = piece.first + i;
      const Offset straight = exactOffset(moving, piece.fixed, angle_);
      const Offset swapped = exactOffset(piece.fixed, moving, angle_);
      piece.straight.set(at, straight.P, straight.Q, source_.width());
      piece.swapped.set(at, swapped.Q, -swapped.P, source_.width());
    }
  }

  // Paints the columns tx + direction * i of a row, i from `lowest` on; a direction of -1 means
  // half a turn, for target and source alike.
  template <int direction>
  void paint(const Piece& piece, const Points& points, Lies lies, int row, int lowest,
             std::integral_constant<int, direction>) {
    if (lies == Lies::Outside || !isVisible(row)) return;
    const int visible = direction > 0 ? target_.width() - tx_ : tx_ + 1;
    const int last = std::min(piece.first + piece.count, visible) - piece.first;
    const int first = std::max(piece.first, lowest) - piece.first;
    Pixel* const to = target_.row(row) + tx_ + direction * piece.first;
    const Pixel* const middle = source_.row(sy_) + sx_;
    if (lies == Lies::Inside) {
      for (int i = first; i < last; ++i) to[direction * i] = middle[direction * points.distance[i]];
      return;
    }
    const auto W = static_cast<unsigned>(source_.width()),
               H = static_cast<unsigned>(source_.height());
    for (int i = first; i < last; ++i) {
      const auto x = static_cast<unsigned>(sx_ + direction * points.X[i]);
      const auto y = static_cast<unsigned>(sy_ + direction * points.Y[i]);
      if (x < W && y < H) to[direction * i] = middle[direction * points.distance[i]];
    }
  }

  const Bitmap& source_;
  Bitmap& target_;
  const float angle_, cosine_, sine_;
  const int sx_, sy_, tx_, ty_, N_;
};

}  // namespace

void rotateInto(const Bitmap& source, Bitmap& target, float angle) {
  Rotation(source, target, angle).run();
}

}  // namespace effects
