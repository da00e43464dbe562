// The generator behind every random number.
#include "surface/random.h"

#include "surface/host.h"

namespace surface {
namespace {

constexpr std::uint64_t Step = 0x9E3779B97F4A7C15u;

// The finisher of the SplitMix64 generator (Steele, Lea, Flood: "Fast splittable pseudorandom
// number generators", 2014).
std::uint64_t stirred(std::uint64_t z) {
  z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9u;
  z = (z ^ (z >> 27)) * 0x94D049BB133111EBu;
  return z ^ (z >> 31);
}

}  // namespace

float Random::Rnd() {
  // 24 bits are what a float holds exactly, so the result never rounds up to 1.
  return static_cast<float>(stirred(state_ += Step) >> 40) * 0x1p-24f;
}

void Random::Randomize() {
  // Stirred, so that mixing the same reading in again leads on instead of back.
  if (!fixed_) state_ = stirred(state_ + Step + host().seed());
}

void Random::fix(std::uint32_t seed) {
  state_ = seed;
  fixed_ = true;
}

Random& generator() {
  static Random ofTheProcess;
  return ofTheProcess;
}

}  // namespace surface
