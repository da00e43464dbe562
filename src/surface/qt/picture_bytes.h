// What the toolkit's decoders let pass in a picture file and the program does not: a file that was
// cut off, and dull colours in bitmaps of 16 bits.
#pragma once

#include <QByteArray>
#include <QImage>

namespace surface::qt {

/// Whether the file holds all of its first picture. The decoders show white, black or grey where
/// the rest is missing, and a child would save that over the whole picture. `format` is the
/// decoder's name for the kind of file; only "bmp", "gif" and "jpeg" are looked into.
bool isWhole(const QByteArray& format, const QByteArray& file);

/// In a bitmap of 16 bits a pixel the brightest of 32 shades is 31/31, not 248/255: white is white.
/// Leaves any other file's image as it is.
void widenShades(QImage& image, const QByteArray& format, const QByteArray& file);

}  // namespace surface::qt
