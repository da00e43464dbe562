// Both ways to paint places find them alike; they differ in how they fetch the pixels.
#include "effects/turned_rows.h"

#include <algorithm>
#include <cmath>

#include "surface/raster/versions.h"

#ifdef HAS_WIDE_VERSIONS
#include <immintrin.h>
#endif

namespace effects {
namespace {

using raster::Pixel;

// Adding it to a float leaves the nearest whole number (ties to even) in the low bits.
constexpr float Rounder = 0x1.8p23f;
inline float rounded(float value) { return (value + Rounder) - Rounder; }
inline float missed(float value, float whole) { return std::abs(value - whole); }

// What the places of a call share.
struct Shared {
  Shared(const TurnedRow& row, int first, int count)
      : cosine(row.cosine),
        sine(row.sine),
        alongCosine(static_cast<float>(row.row) * row.cosine),
        alongSine(static_cast<float>(row.row) * row.sine),
        // Even the middle has a distance to divide by.
        square(std::max(static_cast<float>(row.row) * static_cast<float>(row.row), 1e-30f)),
        width(static_cast<float>(row.sourceWidth)) {
    const auto furthest = static_cast<float>(first + count);
    // Ten roundings at most, each of 2^-24 of the distance.
    sure = 0.5f - std::sqrt(furthest * furthest + square) * 10 * 0x1p-24f;
  }

  float cosine, sine, alongCosine, alongSine, square, width, sure;
};

// How far on from the source's middle, in its memory, each place's pixel lies (the other one of the
// two lies as far before it), and -1 where that is unsure.
struct Found {
  std::int32_t *straight, *swapped, *unsure;
};

// Fills in `count` places.
template <Quarters quarters>
[[gnu::always_inline]] inline void find(Found found, const Shared& row, int first, int count) {
  for (int i = 0; i < count; ++i) {
    const auto m = static_cast<float>(first + i);
    const float distance = std::sqrt(m * m + row.square);
    const float scale = rounded(distance) / distance;
    const float mc = m * row.cosine, ms = m * row.sine;
    float worst = 0;
    // Whole numbers below 2^24 within the limit.
    if constexpr ((quarters & Straight) != 0) {
      const float p = (mc - row.alongSine) * scale, q = (ms + row.alongCosine) * scale;
      const float P = rounded(p), Q = rounded(q);
      found.straight[i] = static_cast<std::int32_t>(Q * row.width + P);
      worst = std::max(missed(p, P), missed(q, Q));
    }
    if constexpr ((quarters & Swapped) != 0) {
      const float p = (mc + row.alongSine) * scale, q = (ms - row.alongCosine) * scale;
      const float P = rounded(p), Q = rounded(q);
      found.swapped[i] = static_cast<std::int32_t>(Q * row.width + P);
      worst = std::max(worst, std::max(missed(p, P), missed(q, Q)));
    }
    found.unsure[i] = worst > row.sure ? -1 : 0;
  }
}

WIDE_VERSIONS
void findAll(std::int32_t* straight, std::int32_t* swapped, std::int32_t* unsure, const Shared& row,
             int first, int count) {
  find<All>({straight, swapped, unsure}, row, first, count);
}

// One row of pixels, forth or back. By eights, whose distances are read one by one all the same.
template <int direction>
void copyAll(const std::int32_t* distances, const Pixel* source, Pixel* to, int count) {
  constexpr int Some = 8;
  for (; count >= Some; count -= Some, to += direction * Some, distances += Some) {
#pragma GCC unroll 8
    for (int i = 0; i < Some; ++i)
      to[direction * i] = source[direction * std::ptrdiff_t{distances[i]}];
  }
  for (int i = 0; i < count; ++i)
    to[direction * i] = source[direction * std::ptrdiff_t{distances[i]}];
}

// A bit for each that is -1; most often there are none.
std::uint16_t signs(const std::int32_t* values) {
  std::int32_t any = 0;
  for (int i = 0; i < TurnedStep; ++i) any |= values[i];
  unsigned bits = 0;
  for (int i = 0; any != 0 && i < TurnedStep; ++i)
    bits |= static_cast<unsigned>(values[i]) & 1u << i;
  return static_cast<std::uint16_t>(bits);
}

#ifdef HAS_WIDE_VERSIONS
#define WITH_GATHERS [[gnu::target("avx2")]]

// Eight pixels, whose distances lie one after the other, to eight places from `forth` on, and their
// opposites to those from `back` backwards.
[[gnu::always_inline]] WITH_GATHERS inline void gatherEight(const std::int32_t* distances,
                                                            const Pixel* source, Pixel* forth,
                                                            Pixel* back) {
  const auto* from = reinterpret_cast<const int*>(source);
  const __m256i there = _mm256_load_si256(reinterpret_cast<const __m256i*>(distances));
  const __m256i opposite = _mm256_sub_epi32(_mm256_setzero_si256(), there);
  const __m256i reversed = _mm256_setr_epi32(7, 6, 5, 4, 3, 2, 1, 0);
  _mm256_storeu_si256(reinterpret_cast<__m256i*>(forth), _mm256_i32gather_epi32(from, there, 4));
  _mm256_storeu_si256(
      reinterpret_cast<__m256i*>(back - 7),
      _mm256_permutevar8x32_epi32(_mm256_i32gather_epi32(from, opposite, 4), reversed));
}

WITH_GATHERS inline unsigned signsOfEight(const std::int32_t* values) {
  return static_cast<unsigned>(
      _mm256_movemask_ps(_mm256_load_ps(reinterpret_cast<const float*>(values))));
}

// Places and pixels of a step at once.
template <Quarters quarters>
WITH_GATHERS void paintGathered(const TurnedRow& row, int first, int count, UnsurePlaces& unsure) {
  const Shared shared(row, first, count);
  alignas(32) std::array<std::int32_t, TurnedStep> straight, swapped, doubts;
  for (std::size_t step = 0; step < stepsOf(count); ++step) {
    const int at = first + firstOfStep(step, count);
    find<quarters>({straight.data(), swapped.data(), doubts.data()}, shared, at, TurnedStep);
    for (int i = 0; i < TurnedStep; i += 8) {
      if constexpr ((quarters & Straight) != 0)
        gatherEight(straight.data() + i, row.source, row.targetBelow + at + i,
                    row.targetAbove - at - i);
      if constexpr ((quarters & Swapped) != 0)
        gatherEight(swapped.data() + i, row.source, row.targetAbove + at + i,
                    row.targetBelow - at - i);
    }
    unsure[step] = static_cast<std::uint16_t>(signsOfEight(doubts.data()) |
                                              signsOfEight(doubts.data() + 8) << 8);
  }
}

// Older processors gather slowly, some of them ever since it was found to leak other programs'
// data. Those that have these instructions too do it well.
const bool gathersFast = __builtin_cpu_supports("avxvnni") != 0;
#endif

}  // namespace

// All places first, then the pixels of a quarter after the other.
template <Quarters quarters>
void paintOneByOne(const TurnedRow& row, int first, int count, UnsurePlaces& unsure) {
  const Shared shared(row, first, count);
  std::array<std::int32_t, MostTurned> straight, swapped, doubts;
  findAll(straight.data(), swapped.data(), doubts.data(), shared, first, count);
  if constexpr ((quarters & Straight) != 0) {
    copyAll<1>(straight.data(), row.source, row.targetBelow + first, count);
    copyAll<-1>(straight.data(), row.source, row.targetAbove - first, count);
  }
  if constexpr ((quarters & Swapped) != 0) {
    copyAll<1>(swapped.data(), row.source, row.targetAbove + first, count);
    copyAll<-1>(swapped.data(), row.source, row.targetBelow - first, count);
  }
  for (std::size_t step = 0; step < stepsOf(count); ++step)
    unsure[step] = signs(doubts.data() + firstOfStep(step, count));
}

template <Quarters quarters>
void paintQuickly(const TurnedRow& row, int first, int count, UnsurePlaces& unsure) {
#ifdef WITH_GATHERS
  if (gathersFast) {
    paintGathered<quarters>(row, first, count, unsure);
    return;
  }
#endif
  paintOneByOne<quarters>(row, first, count, unsure);
}

template void paintQuickly<Straight>(const TurnedRow&, int, int, UnsurePlaces&);
template void paintQuickly<Swapped>(const TurnedRow&, int, int, UnsurePlaces&);
template void paintQuickly<All>(const TurnedRow&, int, int, UnsurePlaces&);
template void paintOneByOne<Straight>(const TurnedRow&, int, int, UnsurePlaces&);
template void paintOneByOne<Swapped>(const TurnedRow&, int, int, UnsurePlaces&);
template void paintOneByOne<All>(const TurnedRow&, int, int, UnsurePlaces&);

}  // namespace effects
