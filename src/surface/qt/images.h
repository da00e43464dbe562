// Pictures and the toolkit's images: conversion and files.
#pragma once

#include <QImage>
#include <string>

#include "surface/picture.h"

namespace surface::qt {

/// The decoders refuse an image that takes more.
inline constexpr int MostMegabytesDecoded = 400;

/// A copy as a picture object, with what is transparent in it.
Picture toPicture(const QImage& image);
/// The bitmap's own memory as an image, without a copy: valid only while the bitmap lives, and
/// never to be kept.
QImage wrapped(const raster::Bitmap& bitmap);

/// A copy of an image from elsewhere, of a large one its upper left part. BadFile if it is none.
Picture takenPicture(const QImage& image);

/// Reads a BMP, GIF, JPEG, ICO, CUR or WMF file, told by its content. FileNotFound or BadFile.
Picture loadPicture(const std::string& path);
/// Writes an uncompressed 24-bit Windows bitmap beside the target and puts it in its place when
/// every byte is on disk. CannotWrite.
void savePicture(const Picture& picture, const std::string& path);

}  // namespace surface::qt
