// The quick way to turn a picture: the source points of many target points at a time, in single
// precision, and with them the pixels.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

#include "surface/raster/bitmap.h"

namespace effects {

/// Each place (i, row) stands for up to four target points around the middle: (i, row) and, by
/// half a turn, (-i, -row) are its straight ones; (i, -row) and (-i, row), which are (row, i) and
/// (-row, -i) after a quarter turn, its swapped ones.
enum Quarters { Straight = 1, Swapped = 2, All = Straight | Swapped };

/// The places of one row and all that their pixels depend on.
struct TurnedRow {
  int row;  ///< from the target's middle, in pixels, 0 or more
  float cosine, sine;
  const raster::Pixel* source;               ///< its middle
  int sourceWidth;                           ///< in pixels
  raster::Pixel *targetBelow, *targetAbove;  ///< the middle column of the rows ty + row, ty - row
};

/// Places are painted in whole steps of so many, at most so many in one call.
constexpr int TurnedStep = 16, MostTurned = 256;
/// For each step, a bit for each of its places.
using UnsurePlaces = std::array<std::uint16_t, MostTurned / TurnedStep>;

constexpr std::size_t stepsOf(int count) {
  return static_cast<std::size_t>((count + TurnedStep - 1) / TurnedStep);
}
/// The last step ends with the last place, so it may begin within the one before.
constexpr int firstOfStep(std::size_t step, int count) {
  return std::min(static_cast<int>(step) * TurnedStep, count - TurnedStep);
}

/// Rows and places up to here have radii below 2048: the square root of a whole number then stays
/// far enough from all halves to be rounded rightly in single precision, and places in a source of
/// at most twice that width are exact.
constexpr int TurnedLimit = 1447;

/// Paints the places first..first+count-1, from TurnedStep to MostTurned of them, as far as those
/// quarters go; all their source points and targets must be there. Reports the places where single
/// precision could have taken a neighbour of the right pixel: these are to be painted again.
template <Quarters quarters>
void paintQuickly(const TurnedRow& row, int first, int count, UnsurePlaces& unsure);

/// The same pixels, fetched one by one: what it does itself where the processor gathers slowly. It
/// may report more places.
template <Quarters quarters>
void paintOneByOne(const TurnedRow& row, int first, int count, UnsurePlaces& unsure);

}  // namespace effects
