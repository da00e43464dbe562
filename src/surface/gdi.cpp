// The calls on a device context, straight onto the raster.
#include "surface/gdi.h"

namespace surface {

void BitBlt(DeviceContext target, int x, int y, int width, int height, DeviceContext source, int sx,
            int sy, unsigned rop) {
  if (rop != SrcCopy && rop != SrcInvert) return;
  const auto bring = rop == SrcCopy ? raster::blit : raster::blitXor;
  const auto from = source.surface->bitmap();
  target.surface->damage(
      bring(target.surface->writableBitmap(), x, y, width, height, *from, sx, sy));
}

void StretchBlt(DeviceContext target, int x, int y, int width, int height, DeviceContext source,
                int sx, int sy, int swidth, int sheight, unsigned rop) {
  if (rop != SrcCopy) return;
  const auto from = source.surface->bitmap();
  target.surface->damage(raster::stretch(target.surface->writableBitmap(), x, y, width, height,
                                         *from, sx, sy, swidth, sheight));
}

void ExtFloodFill(DeviceContext target, int x, int y, Color color, int type) {
  if (type != FloodFillSurface || color == NoColor) return;
  DrawingSurface& surface = *target.surface;
  surface.damage(raster::floodFill(surface.target(), surface.brush(), x, y, toPixel(color)));
}

Color GetPixel(DeviceContext source, int x, int y) {
  const auto pixels = source.surface->bitmap();
  return pixels->contains(x, y) ? toColor(pixels->at(x, y)) : NoColor;
}

void SetPixel(DeviceContext target, int x, int y, Color color) {
  raster::Bitmap& pixels = target.surface->writableBitmap();
  if (!pixels.contains(x, y) || color == NoColor) return;
  pixels.row(y)[x] = toPixel(color);
  target.surface->damage({x, y, x + 1, y + 1});
}

}  // namespace surface
