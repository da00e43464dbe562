// The random numbers of the program.
#pragma once

#include <cstdint>

namespace surface {

/// A generator of random numbers: a 64-bit counter stirred through a multiply-xorshift finisher,
/// fast and even in all bits.
class Random {
 public:
  /// The next number in [0, 1).
  float Rnd();
  /// Mixes the clock into the sequence, so that even two calls within one tick of the clock go on
  /// with different numbers. Draws nothing; a fixed sequence stays as it is.
  void Randomize();
  /// Starts the sequence of a seed, which Randomize then leaves alone: a test reproduces a whole
  /// stroke.
  void fix(std::uint32_t seed);

 private:
  std::uint64_t state_ = 0x9E3779B97F4A7C15u;
  bool fixed_ = false;
};

/// The one generator of the process.
Random& generator();

inline float Rnd() { return generator().Rnd(); }
inline void Randomize() { generator().Randomize(); }
inline void seedRandom(std::uint32_t seed) { generator().fix(seed); }

}  // namespace surface
