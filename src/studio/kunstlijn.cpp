// The art line's chain. All of its arithmetic is single precision.
#include "studio/kunstlijn.h"

#include <cmath>

#include "surface/numbers.h"

using namespace surface;

namespace {

constexpr int Rounds = 20;

// Draws `follower` a quarter of the way to `leader`.
float followed(float follower, float leader) {
  if (follower > leader) return follower - (follower - leader) / 4;
  if (follower < leader) return follower + (leader - follower) / 4;
  return follower;
}

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
  const float dX = std::abs(tx - KunstX[0]) / Rounds;
  const float dY = std::abs(ty - KunstY[0]) / Rounds;
  for (int round = 0; round < Rounds; ++round) {
    for (std::size_t k = 1; k < Points; ++k) {
      KunstX[k] = followed(KunstX[k], KunstX[k - 1]);
      KunstY[k] = followed(KunstY[k], KunstY[k - 1]);
      sheet.Line({KunstX[k - 1] * 15, KunstY[k - 1] * 15}, {KunstX[k] * 15, KunstY[k] * 15},
                 RGB(KunstR[k], KunstG[k], KunstB[k]));
    }
    KunstX[0] = stepped(KunstX[0], tx, dX);
    KunstY[0] = stepped(KunstY[0], ty, dY);
  }
}
