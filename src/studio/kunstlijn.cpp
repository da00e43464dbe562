// The art line's chain. All of its arithmetic is single precision.
#include "studio/kunstlijn.h"

#include <cmath>

#include "surface/numbers.h"

using namespace surface;

namespace {

constexpr std::size_t RoundCount = 20;

// A move of the pointer to t, said plainly, for one coordinate; the other goes alike:
//
//   step = |t - K[0]| / 20
//   twenty times:
//     for k = 1 to 39:
//       if K[k] > K[k-1]: K[k] -= (K[k] - K[k-1]) / 4
//       if K[k] < K[k-1]: K[k] += (K[k-1] - K[k]) / 4
//       draw the line from point k-1 to point k in colour k
//     if K[0] < t: K[0] += step
//     else if K[0] > t: K[0] -= step
//
// Point k of round r follows from point k of round r-1 and point k-1 of round r. So all (r, k) with
// one sum r + k can be worked out side by side, several in one instruction: they stand in one row,
// round r in lane r + 1, and lane 0 holds the chain as it was. The arithmetic of each point stays
// what it is one by one.
class Rounds {
 public:
  Rounds(const std::array<float, 100>& chain, const std::array<float, RoundCount>& heads) {
    for (std::size_t sum = 0; sum < Sums; ++sum) {
      if (sum > 0)
        for (std::size_t r = 0; r < RoundCount; ++r)
          rows_[sum][r + 1] = rows_[sum - 1][r] - (rows_[sum - 1][r] - rows_[sum - 1][r + 1]) / 4;
      rows_[sum][0] = chain[sum + 1];
      if (sum < RoundCount) rows_[sum][sum + 1] = heads[sum];
    }
  }

  float at(std::size_t round, std::size_t point) const { return rows_[round + point][round + 1]; }

 private:
  static constexpr std::size_t Sums = RoundCount + Kunstlijn::Points - 1;
  float rows_[Sums][RoundCount + 1] = {};
};

// One of the twenty steps of the head; it may pass its target by less than a step.
float stepped(float head, float target, float step) {
  if (head < target) return head + step;
  if (head > target) return head - step;
  return head;
}

}  // namespace

void Kunstlijn::start(float r, float g, float b, float x, float y) {
  const float stepR = (r - 255) / Points, stepG = (g - 255) / Points, stepB = (b - 255) / Points;
  for (std::size_t i = 0; i < Points; ++i) {
    const auto n = static_cast<float>(i);
    KunstR[i] = toInt16(255 + n * stepR);
    KunstG[i] = toInt16(255 + n * stepG);
    KunstB[i] = toInt16(255 + n * stepB);
    KunstX[i] = x;
    KunstY[i] = y;
  }
}

void Kunstlijn::chase(DrawingSurface& sheet, float X, float Y) {
  const float tx = X / 15;
  // Only the height loses its fraction: the fan lands on whole steps of 15 pixels there.
  const std::int16_t ty = toInt16(Y / 15);
  const float dX = std::abs(tx - KunstX[0]) / RoundCount;
  const float dY = std::abs(ty - KunstY[0]) / RoundCount;
  std::array<float, RoundCount> headX, headY;
  for (std::size_t round = 0; round < RoundCount; ++round) {
    headX[round] = KunstX[0];
    headY[round] = KunstY[0];
    KunstX[0] = stepped(KunstX[0], tx, dX);
    KunstY[0] = stepped(KunstY[0], ty, dY);
  }
  const Rounds x(KunstX, headX), y(KunstY, headY);
  std::array<Color, Points - 1> colors;
  for (std::size_t k = 1; k < Points; ++k) colors[k - 1] = RGB(KunstR[k], KunstG[k], KunstB[k]);
  std::array<PointF, RoundCount * Points> points;
  for (std::size_t round = 0; round < RoundCount; ++round)
    for (std::size_t k = 0; k < Points; ++k)
      points[round * Points + k] = {x.at(round, k) * 15, y.at(round, k) * 15};
  sheet.Strokes(points, colors);
  for (std::size_t k = 1; k < Points; ++k) {
    KunstX[k] = x.at(RoundCount - 1, k);
    KunstY[k] = y.at(RoundCount - 1, k);
  }
}
