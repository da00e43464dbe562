// A 64-bit counter stirred through a multiply-xorshift finisher: fast, and even in all bits.
#include "surface/random.h"

#include "surface/host.h"

namespace surface {
namespace {

std::uint64_t state = 0x9E3779B97F4A7C15u;
bool seedFixed = false;

}  // namespace

float Rnd() {
  // The finisher of the SplitMix64 generator (Steele, Lea, Flood: "Fast splittable pseudorandom
  // number generators", 2014).
  std::uint64_t z = state += 0x9E3779B97F4A7C15u;
  z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9u;
  z = (z ^ (z >> 27)) * 0x94D049BB133111EBu;
  z ^= z >> 31;
  // 24 bits are what a float holds exactly, so the result never rounds up to 1.
  return static_cast<float>(z >> 40) * 0x1p-24f;
}

void Randomize() {
  if (!seedFixed) state = host().seed();
}

void seedRandom(std::uint32_t seed) {
  state = seed;
  seedFixed = true;
}

}  // namespace surface
