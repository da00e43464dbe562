// The drawing operations on a bitmap: pens, brushes, lines, boxes, ellipses, flood fill and copies.
// Every operation clips to the bitmap once, takes any coordinates up to +-32767 and gives the
// rectangle that it may have changed (empty if none).
#pragma once

#include "surface/raster/bitmap.h"

namespace raster {

enum class PenStyle { Solid, Dashed, Dotted, DashDot, DashDotDot, Null };

/// The line of a shape. A pen with gaps wider than 1 draws solid; a null pen draws nothing.
struct Pen {
  PenStyle style = PenStyle::Solid;
  int width = 1;  ///< pixels, 1..200
  Pixel color = 0xFF000000;
};

enum class BrushStyle {
  Null,
  Solid,
  Horizontal,
  Vertical,
  ForwardDiagonal,
  BackwardDiagonal,
  Cross,
  DiagonalCross
};

/// The inside of a shape. A hatch is 8 by 8 pixels, anchored at (0, 0) of the bitmap; only its
/// lines are painted.
struct Brush {
  BrushStyle style = BrushStyle::Null;
  Pixel color = 0xFF000000;
};

/// What is painted on: the bitmap and the binary raster operation 1 (black) .. 6 (invert) .. 13
/// (copy) .. 16 (white).
struct Target {
  Bitmap& bitmap;
  int rop = 13;
};

/// A line. Width 1: the last pixel is not painted. From a point to itself: a dot of pen width.
Rect line(Target target, const Pen& pen, int x1, int y1, int x2, int y2);
/// One position, pixels.
struct Spot {
  std::int16_t x, y;
};

/// `count` strokes of `lines` lines each, from spot to spot (so lines + 1 spots a stroke, stroke
/// after stroke); line i of every stroke has colour i in place of the pen's. What `line` would
/// paint for one after the other, without its cost for each.
Rect strokes(Target target, const Pen& pen, const Spot* spots, int count, const Pixel* colors,
             int lines);
/// One dot of pen width.
Rect dot(Target target, const Pen& pen, int x, int y);
/// A rectangle, both corners included. From a point to itself: a dot.
Rect box(Target target, const Pen& pen, const Brush& brush, int x1, int y1, int x2, int y2);
/// A rectangle filled with the pen's colour, both corners included.
Rect filledBox(Target target, const Pen& pen, int x1, int y1, int x2, int y2);
/// An ellipse round the pixel (cx, cy) with half axes in pixels, 0 or more, fractions allowed; it
/// passes through centre +- half axis on both sides. A half axis that rounds to 0 gives a straight
/// line, both 0 a dot.
Rect ellipse(Target target, const Pen& pen, const Brush& brush, int cx, int cy, double rx,
             double ry);
/// Paints with the brush every pixel that is 4-connected with (x, y) and has exactly the colour
/// `region`. Nothing happens when the seed lies outside or has another colour, or with a null
/// brush.
Rect floodFill(Target target, const Brush& brush, int x, int y, Pixel region);
/// Copies a block; source pixels outside `source` leave the target as it is. `source` may be the
/// target's own bitmap.
Rect blit(Bitmap& target, int x, int y, int width, int height, const Bitmap& source, int sx,
          int sy);
/// The same with exclusive or in place of the copy.
Rect blitXor(Bitmap& target, int x, int y, int width, int height, const Bitmap& source, int sx,
             int sy);
/// Copies a block scaled without smoothing. A negative target size mirrors exactly: target column d
/// takes source column W-1-d.
Rect stretch(Bitmap& target, int x, int y, int width, int height, const Bitmap& source, int sx,
             int sy, int swidth, int sheight);

}  // namespace raster
