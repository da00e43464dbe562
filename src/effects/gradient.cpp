// A linear transition between two colours over a whole surface.
#include "effects/gradient.h"

#include <algorithm>
#include <cmath>

#include "surface/numbers.h"

namespace effects {
namespace {

using surface::Color;
using surface::DrawingSurface;

// How much a channel changes from step to step.
double step(int from, int to, float length) {
  const double size = std::abs(from - to) / static_cast<double>(length);
  return to < from ? -size : size;
}

// With the plain pen the lines cover everything and only one row has to be made.
bool isPlain(const DrawingSurface& sheet) {
  return sheet.DrawWidth == 1 && sheet.DrawStyle == 0 && sheet.DrawMode == 13 &&
         sheet.ScaleMode() == surface::ScalePixels;
}

void paintPlainly(DrawingSurface& sheet, const std::vector<Color>& colors, bool alongX) {
  raster::Bitmap& pixels = sheet.writableBitmap();
  for (int y = 0; y < pixels.height(); ++y) {
    if (!alongX)
      std::fill_n(pixels.row(y), pixels.width(),
                  surface::toPixel(colors[static_cast<std::size_t>(y)]));
    else if (y == 0)
      std::transform(colors.begin(), colors.begin() + pixels.width(), pixels.row(0),
                     surface::toPixel);
    else
      std::copy_n(pixels.row(0), pixels.width(), pixels.row(y));
  }
  sheet.damage(sheet.innerPixels());
}

}  // namespace

std::vector<Color> gradientColors(Color from, Color to, float length) {
  if (length <= 0) return {};
  const int r1 = from & 255, g1 = from >> 8 & 255, b1 = from >> 16 & 255;
  const double sr = step(r1, to & 255, length);
  const double sg = step(g1, to >> 8 & 255, length);
  const auto sb = static_cast<float>(step(b1, to >> 16 & 255, length));
  std::vector<Color> colors;
  for (float p = 0; p <= length; ++p)
    colors.push_back(surface::RGB(surface::nearestInt(double{p} * sr + r1),
                                  surface::nearestInt(double{p} * sg + g1),
                                  surface::nearestInt(double{sb * p} + b1)));
  return colors;
}

void paintGradient(DrawingSurface& sheet, Color from, Color to, bool alongX) {
  const float width = sheet.ScaleWidth(), height = sheet.ScaleHeight();
  if (width <= 0 || height <= 0) return;
  const std::vector<Color> colors = gradientColors(from, to, alongX ? width : height);
  if (isPlain(sheet)) return paintPlainly(sheet, colors, alongX);
  float p = 0;
  for (const Color color : colors) {
    if (alongX)
      sheet.Line({p, 0}, {p, height}, color);
    else
      sheet.Line({0, p}, {width, p}, color);
    ++p;
  }
}

}  // namespace effects
