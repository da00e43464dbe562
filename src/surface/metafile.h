// Windows metafiles: a drawing kept as the list of calls that made it, played on a bitmap.
#pragma once

#include <cstdint>
#include <span>

#include "surface/picture.h"

namespace surface {

/// Whether the bytes begin like a metafile, placeable or plain.
bool isMetafile(std::span<const std::uint8_t> file);

/// Plays a metafile; what it leaves as it was is transparent. Its size comes from the placeable
/// header at 96 dots to the inch, else from its window's extent, a unit a pixel. Records of unknown
/// kinds are skipped. BadFile if anything reaches out of bounds, if the file has no end, no size or
/// more than `mostPixels` pixels, or if it draws without end.
Picture playMetafile(std::span<const std::uint8_t> file, std::int64_t mostPixels);

}  // namespace surface
