// Pictures to try effects on: random ones of odd sizes, and ones of a few pixels written out.
#pragma once

#include <cmath>
#include <initializer_list>
#include <vector>

#include "surface/color.h"
#include "surface/raster/pictures.h"

namespace effects_test {

using pictures::Dice;
using pictures::noise;
using raster::Bitmap;
using raster::Pixel;
using surface::Color;

/// One picture of every odd size: full of noise, the same at every run.
inline std::vector<Bitmap> oddPictures(std::uint32_t seed) {
  Dice dice(seed);
  std::vector<Bitmap> all;
  for (const auto& [width, height] : {std::pair{1, 1},
                                      {2, 2},
                                      {3, 7},
                                      {7, 3},
                                      {1, 9},
                                      {9, 1},
                                      {3, 3},
                                      {16, 5},
                                      {33, 34},
                                      {101, 60},
                                      {617, 537},
                                      {4, 1200},
                                      {640, 2}})
    all.push_back(noise(dice, width, height));
  return all;
}

/// Rounded, halves to the even number.
inline int whole(double value) { return static_cast<int>(std::nearbyint(value)); }

inline Bitmap plain(int width, int height, Color color) {
  return Bitmap(width, height, surface::toPixel(color));
}

/// One row of colours.
inline Bitmap rowOf(std::initializer_list<Color> colors) {
  Bitmap row(static_cast<int>(colors.size()), 1, 0);
  std::transform(colors.begin(), colors.end(), row.row(0), surface::toPixel);
  return row;
}

inline Color colorAt(const Bitmap& picture, int x, int y) {
  return surface::toColor(picture.at(x, y));
}

// The calls that the literal versions are written with: pixel by pixel, -1 outside.
inline Color getPixel(const Bitmap& picture, int x, int y) {
  return picture.contains(x, y) ? colorAt(picture, x, y) : surface::NoColor;
}
inline void setPixel(Bitmap& picture, int x, int y, Color color) {
  if (picture.contains(x, y)) picture.row(y)[x] = surface::toPixel(color);
}

}  // namespace effects_test
