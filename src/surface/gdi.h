// The calls on a surface's device context. They count in pixels, whatever the surface's scale, and
// change the bitmap behind the surface's back: the screen follows when the thread is next idle.
#pragma once

#include "surface/drawing.h"

namespace surface {

inline constexpr unsigned SrcCopy = 0x00CC0020;
inline constexpr unsigned SrcInvert = 0x00660046;
inline constexpr int FloodFillSurface = 1;

/// Brings a block of width x height pixels from (sx, sy) of the source: SrcCopy copies it,
/// SrcInvert takes the exclusive or of source and target. Anything else paints nothing.
void BitBlt(DeviceContext target, int x, int y, int width, int height, DeviceContext source, int sx,
            int sy, unsigned rop);
/// Copies a block scaled without smoothing (SrcCopy only); a negative target size mirrors.
void StretchBlt(DeviceContext target, int x, int y, int width, int height, DeviceContext source,
                int sx, int sy, int swidth, int sheight, unsigned rop);
/// Paints with the current brush what is 4-connected with (x, y) and has exactly `color`. Only
/// FloodFillSurface is known.
void ExtFloodFill(DeviceContext target, int x, int y, Color color, int type);
/// NoColor outside.
Color GetPixel(DeviceContext source, int x, int y);
void SetPixel(DeviceContext target, int x, int y, Color color);
inline void SetPixelV(DeviceContext target, int x, int y, Color color) {
  SetPixel(target, x, y, color);
}

}  // namespace surface
