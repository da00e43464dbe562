// Reading trusts nothing: a whitelist of formats, and a cap on the size before anything is decoded.
// Writing destroys nothing.
#include "surface/qt/images.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QFontMetrics>
#include <QImageReader>
#include <QPainter>
#include <QSaveFile>
#include <algorithm>
#include <cstdlib>
#include <cstring>

#include "surface/errors.h"
#include "surface/qt/picture_bytes.h"
#include "surface/qt/text_layout.h"

namespace surface::qt {
namespace {

constexpr int LargestMegabytes = 64;
constexpr int LargestSide = 32767;
// No picture within the limits takes more, and a file of any length is read at once.
constexpr qint64 LargestFile = qint64{256} << 20;

[[noreturn]] void cannotWrite() {
  throw RuntimeError(ErrorKind::CannotWrite, "File cannot be written");
}

[[noreturn]] void badFile() { throw RuntimeError(ErrorKind::BadFile, "Invalid picture"); }

bool sizeAllowed(QSize size) {
  const qint64 width = size.width();
  // A bitmap whose rows run downwards has a negative height.
  const qint64 height = std::abs(qint64{size.height()});
  return width > 0 && height > 0 && width <= LargestSide && height <= LargestSide &&
         width * height * 4 <= qint64{LargestMegabytes} << 20;
}

QByteArray encoded(const Picture& picture) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  if (!wrapped(*picture.bitmap()).convertToFormat(QImage::Format_RGB888).save(&buffer, "BMP"))
    cannotWrite();
  return bytes;
}

bool writeAll(QFileDevice& file, const QByteArray& bytes) {
  // A full disk shows in the count that was taken, not in an error, and only once the buffer is
  // emptied.
  return file.write(bytes) == bytes.size() && file.flush();
}

// Writes over the file itself; if that fails, its former contents come back, for which the room is
// there.
void writeInPlace(const QString& name, const QByteArray& bytes) {
  QFile file(name);
  const bool existed = file.exists();
  QByteArray former;
  bool good = file.open(QIODevice::ReadWrite);
  if (good) {
    former = file.readAll();
    good = file.seek(0) && writeAll(file, bytes) && file.resize(bytes.size());
  }
  if (good) return;
  if (file.isOpen() && existed) {
    file.seek(0);
    file.write(former);
    file.flush();
    file.resize(former.size());
  } else if (file.isOpen()) {
    file.remove();
  }
  cannotWrite();
}

}  // namespace

Picture toPicture(const QImage& image) {
  auto bitmap = std::make_shared<raster::Bitmap>(image.width(), image.height(), 0xFFFFFFFF);
  QImage target(reinterpret_cast<uchar*>(bitmap->row(0)), image.width(), image.height(),
                image.width() * 4, QImage::Format_RGB32);
  if (image.hasAlphaChannel()) {
    QPainter painter(&target);
    painter.drawImage(0, 0, image);
    painter.end();
    const QImage alpha = image.convertToFormat(QImage::Format_Alpha8);
    std::vector<std::uint8_t> coverage;
    coverage.reserve(static_cast<std::size_t>(image.width()) * image.height());
    for (int y = 0; y < image.height(); ++y)
      coverage.insert(coverage.end(), alpha.constScanLine(y),
                      alpha.constScanLine(y) + image.width());
    if (std::any_of(coverage.begin(), coverage.end(), [](std::uint8_t part) { return part < 255; }))
      return Picture(std::move(bitmap), std::move(coverage));
  } else {
    const QImage opaque = image.convertToFormat(QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
      raster::Pixel* row = bitmap->row(y);
      std::memcpy(row, opaque.constScanLine(y), static_cast<std::size_t>(image.width()) * 4);
      std::for_each(row, row + image.width(), [](raster::Pixel& pixel) { pixel |= 0xFF000000; });
    }
  }
  return Picture(std::move(bitmap));
}

QImage wrapped(const raster::Bitmap& bitmap) {
  return QImage(reinterpret_cast<const uchar*>(bitmap.row(0)), bitmap.width(), bitmap.height(),
                bitmap.width() * 4, QImage::Format_RGB32);
}

Picture loadPicture(const std::string& path) {
  const QString name = QString::fromStdString(path);
  const QFileInfo info(name);
  if (!info.exists()) throw RuntimeError(ErrorKind::FileNotFound, "File not found");
  // A pipe would wait for ever, a device has no end.
  if (!info.isFile()) badFile();
  QFile file(name);
  if (info.size() > LargestFile || !file.open(QIODevice::ReadOnly)) badFile();
  const QByteArray bytes = file.readAll();
  QBuffer buffer;
  buffer.setData(bytes);
  buffer.open(QIODevice::ReadOnly);
  QImageReader::setAllocationLimit(LargestMegabytes);
  QImageReader reader(&buffer);
  reader.setDecideFormatFromContent(true);
  reader.setAutoTransform(true);
  static const QByteArrayList known = {"bmp", "gif", "jpg", "jpeg", "ico", "cur"};
  const QByteArray format = reader.format();
  if (!known.contains(format) || !sizeAllowed(reader.size()) || !isWhole(format, bytes)) badFile();
  QImage image = reader.read();
  if (image.isNull() || !sizeAllowed(image.size())) badFile();
  widenShades(image, format, bytes);
  return toPicture(image);
}

void savePicture(const Picture& picture, const std::string& path) {
  if (picture.empty()) throw RuntimeError(ErrorKind::BadPropertyValue, "Invalid picture");
  const QByteArray bytes = encoded(picture);
  const QString name = QString::fromStdString(path);
  // A pipe would wait for ever, and a device is no place for a new file.
  if (const QFileInfo info(name); info.exists() && !info.isFile()) cannotWrite();
  QSaveFile beside(name);
  if (beside.open(QIODevice::WriteOnly)) {
    if (!writeAll(beside, bytes)) beside.cancelWriting();
    if (beside.commit()) return;
    cannotWrite();
  }
  // Some network folders refuse a second file beside the first.
  writeInPlace(name, bytes);
}

TextMask rasterText(const Font& font, const std::string& text) {
  QFont face = toQFont(font);
  face.setStyleStrategy(
      static_cast<QFont::StyleStrategy>(QFont::NoAntialias | QFont::NoSubpixelAntialias));
  face.setHintingPreference(QFont::PreferNoHinting);
  const QFontMetrics metrics(face);
  const QString line = QString::fromStdString(text);
  TextMask mask;
  mask.advance = static_cast<float>(metrics.horizontalAdvance(line));
  mask.lineHeight = metrics.height();
  // Slanted letters reach beyond their advance, so there is room on all sides.
  const int margin = metrics.height();
  mask.left = -margin;
  mask.top = -margin;
  mask.width = metrics.horizontalAdvance(line) + 2 * margin;
  mask.height = metrics.height() + 2 * margin;
  QImage image(mask.width, mask.height, QImage::Format_Grayscale8);
  image.fill(255);
  QPainter painter(&image);
  painter.setFont(face);
  painter.setPen(Qt::black);
  painter.drawText(margin, margin + metrics.ascent(), line);
  painter.end();
  mask.dots.resize(static_cast<std::size_t>(mask.width) * mask.height);
  for (int y = 0; y < mask.height; ++y)
    for (int x = 0; x < mask.width; ++x)
      mask.dots[static_cast<std::size_t>(y) * mask.width + x] = image.constScanLine(y)[x] < 128;
  return mask;
}

}  // namespace surface::qt
