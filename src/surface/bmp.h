// Windows bitmap files, read and written row by row: no picture is in memory twice. Icons and
// cursors hold such bitmaps.
#pragma once

#include <cstdio>
#include <optional>

#include "surface/picture.h"

namespace surface {

/// The most pixels that a picture file may have, and how many of them are kept at most: its upper
/// left part, since that is where a sheet shows it. A surface cannot be larger either.
inline constexpr long long MostPixelsInFile = 100'000'000;
inline constexpr long long MostPixelsKept = 64'000'000;
inline constexpr int LargestSideKept = 32767;

/// The rows that are kept of a picture of this size (each 1 or more), when `mostPixels` are.
int rowsKept(long long width, long long height, long long mostPixels);

/// Reads a bitmap of any kind that is not a JPEG or PNG in disguise, from the file's start: 1, 4,
/// 8, 16, 24 or 32 bits a pixel, plain, in runs or with masks of its own. BadFile for anything else
/// and for a file that was cut off. A picture that would be transparent everywhere is opaque.
Picture readBmp(std::FILE* file);

/// Reads the first picture of an icon or a cursor, with the same errors; nothing if it is a PNG.
std::optional<Picture> readIcon(std::FILE* file);

/// Writes an uncompressed bitmap of 24 bits; false if not every byte was taken. A bitmap without
/// pixels cannot be written.
bool writeBmp(std::FILE* file, const raster::Bitmap& bitmap);

}  // namespace surface
