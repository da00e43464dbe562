// The one random generator of the process.
#pragma once

#include <cstdint>

namespace surface {

/// A random number in [0, 1).
float Rnd();
/// Reseeds the generator from the clock; does nothing while a test has fixed the seed.
void Randomize();
/// Fixes the sequence, so that a test reproduces a whole stroke.
void seedRandom(std::uint32_t seed);

}  // namespace surface
