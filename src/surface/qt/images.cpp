// Reading trusts nothing: a whitelist of formats, and caps on bytes, pixels and work before
// anything is decoded.
#include "surface/qt/images.h"

#include <QBuffer>
#include <QImageReader>
#include <QPainter>
#include <algorithm>
#include <cstdint>
#include <cstring>
#include <span>

#include "surface/bmp.h"
#include "surface/disk.h"
#include "surface/errors.h"
#include "surface/metafile.h"
#include "surface/qt/picture_bytes.h"

namespace surface::qt {
namespace {

constexpr qint64 MostBytesRead = qint64{64} << 20;
// What the file, the decoder and the picture take together.
constexpr qint64 MostMemory = qint64{256} << 20;
// A drawing of no more than that is played in about a second.
constexpr qint64 MostPixelsPlayed = qint64{16} << 20;
// Both cost well under a second.
constexpr int MostSegments = 10'000;
constexpr qint64 MostBlocksVisited = 50'000'000;

[[noreturn]] void badFile() { throw RuntimeError(ErrorKind::BadFile, "Invalid picture"); }

void refuseUnless(bool good) {
  if (!good) badFile();
}

// The file's size is not asked: some of the system's own files have no end.
QByteArray readAll(std::FILE* file) {
  constexpr qsizetype Part = qsizetype{1} << 20;
  QByteArray bytes;
  for (qsizetype count = Part; count == Part && bytes.size() <= MostBytesRead;) {
    const qsizetype former = bytes.size();
    bytes.resize(former + Part);
    count = static_cast<qsizetype>(std::fread(bytes.data() + former, 1, Part, file));
    bytes.resize(former + count);
  }
  refuseUnless(bytes.size() <= MostBytesRead);
  bytes.squeeze();
  return bytes;
}

bool pixelsAllowed(QSize size) {
  return size.width() > 0 && size.height() > 0 &&
         qint64{size.width()} * size.height() <= MostPixelsInFile;
}

/// How a camera was held: the picture in the file is mirrored, turned over and then turned a
/// quarter to the right, or only some of that.
class Turn {
 public:
  explicit Turn(QImageIOHandler::Transformations turn) : turn_(turn) {}

  bool none() const { return turn_ == QImageIOHandler::TransformationNone; }
  QSize shown(QSize inFile) const { return quarter() ? inFile.transposed() : inFile; }

  /// Where in the file the upper left part of the shown picture stands.
  QRect inFile(QSize whole, QSize shownPart) const {
    const QSize part = quarter() ? shownPart.transposed() : shownPart;
    const bool right = mirrored(), bottom = turnedOver() != quarter();
    return {QPoint(right ? whole.width() - part.width() : 0,
                   bottom ? whole.height() - part.height() : 0),
            part};
  }

  /// The picture as it is to be shown; `from` is what the above has cut out.
  Picture applied(const QImage& from) const {
    const QSize size = shown(from.size());
    auto bitmap = std::make_shared<raster::Bitmap>(size.width(), size.height(), 0xFFFFFFFF);
    const auto* const pixels = reinterpret_cast<const raster::Pixel*>(from.constBits());
    const qsizetype line = from.bytesPerLine() / 4;
    for (int y = 0; y < size.height(); ++y) {
      raster::Pixel* const row = bitmap->row(y);
      for (int x = 0; x < size.width(); ++x) {
        int fromX = quarter() ? y : x, fromY = quarter() ? from.height() - 1 - x : y;
        if (mirrored()) fromX = from.width() - 1 - fromX;
        if (turnedOver()) fromY = from.height() - 1 - fromY;
        row[x] = pixels[fromY * line + fromX] | 0xFF000000;
      }
    }
    return Picture(std::move(bitmap));
  }

 private:
  bool mirrored() const { return turn_ & QImageIOHandler::TransformationMirror; }
  bool turnedOver() const { return turn_ & QImageIOHandler::TransformationFlip; }
  bool quarter() const { return turn_ & QImageIOHandler::TransformationRotate90; }

  QImageIOHandler::Transformations turn_;
};

/// A decoder on bytes in memory.
struct Decoder {
  explicit Decoder(QByteArray& bytes) : buffer(&bytes) {
    buffer.open(QIODevice::ReadOnly);
    reader.setDevice(&buffer);
    reader.setAutoTransform(false);
  }

  QBuffer buffer;
  QImageReader reader;
};

// Decodes into the picture's own memory where the decoder can.
Picture decodedPart(QByteArray& bytes, const QRect& part, const Turn& turn, bool grey) {
  Decoder decoder(bytes);
  decoder.reader.setClipRect(part);
  if (!turn.none()) {
    const QImage image = decoder.reader.read();
    refuseUnless(image.size() == part.size());
    return turn.applied(image.depth() == 32 ? image : image.convertToFormat(QImage::Format_RGB32));
  }
  if (grey) {  // one byte each
    const QImage image = decoder.reader.read();
    refuseUnless(image.size() == part.size());
    return toPicture(image);
  }
  auto bitmap = std::make_shared<raster::Bitmap>(part.width(), part.height(), 0xFFFFFFFF);
  uchar* const pixels = reinterpret_cast<uchar*>(bitmap->row(0));
  QImage image(pixels, part.width(), part.height(), qsizetype{4} * part.width(),
               QImage::Format_RGB32);
  refuseUnless(decoder.reader.read(&image) && image.size() == part.size());
  return image.constBits() == pixels ? Picture(std::move(bitmap)) : toPicture(image);
}

bool alike(const Picture& a, const Picture& b) {
  const auto bytes = static_cast<std::size_t>(a.width()) * a.height() * sizeof(raster::Pixel);
  return std::memcmp(a.bitmap()->row(0), b.bitmap()->row(0), bytes) == 0;
}

// A JPEG comes in strips: of a large one as many are decoded as there is room for.
Picture decodeJpeg(QByteArray& bytes) {
  const JpegFacts facts = readJpegFacts(bytes);
  refuseUnless(facts.complete && facts.segments <= MostSegments);
  const int passes = facts.ended ? 1 : 2;
  refuseUnless(facts.blocksVisited * passes <= MostBlocksVisited);
  QSize whole;
  QImageIOHandler::Transformations orientation;
  {
    Decoder decoder(bytes);
    whole = decoder.reader.size();
    orientation = decoder.reader.transformation();
  }
  refuseUnless(pixelsAllowed(whole));
  const Turn turn(orientation);
  const QSize shown = turn.shown(whole);
  const qint64 room = MostMemory - bytes.size() - facts.coefficientBytes;
  // Shades of grey come as one byte first.
  const qint64 bytesPerPixel = (facts.grey ? 5 : 4) * (passes + (turn.none() ? 0 : 1));
  const int columns = std::min(shown.width(), LargestSideKept);
  const int rows = rowsKept(shown.width(), shown.height(),
                            std::min<qint64>(MostPixelsKept, room / bytesPerPixel));
  refuseUnless(room > 0 && rows > 0);
  const QRect part = turn.inFile(whole, QSize(columns, rows));
  if (facts.ended) return decodedPart(bytes, part, turn, facts.grey);

  // Without its end mark a picture is complete if what follows its last byte makes no difference.
  static const QByteArray end("\xFF\xD9", 2);
  while (bytes.endsWith('\xFF')) bytes.chop(1);
  const qsizetype size = bytes.size();
  bytes += end;
  Picture picture = decodedPart(bytes, part, turn, facts.grey);
  bytes.resize(size);
  bytes += QByteArray(64, '\xB5') + end;
  refuseUnless(alike(picture, decodedPart(bytes, part, turn, facts.grey)));
  return picture;
}

// Any other kind is decoded whole or not at all.
Picture decodeWhole(QByteArray& bytes) {
  Decoder decoder(bytes);
  const QSize size = decoder.reader.size();
  refuseUnless(pixelsAllowed(size) && size.width() <= LargestSideKept &&
               size.height() <= LargestSideKept);
  // The decoder's image, and the picture made of it.
  refuseUnless(bytes.size() + qint64{8} * size.width() * size.height() <= MostMemory);
  const QImage image = decoder.reader.read();
  refuseUnless(pixelsAllowed(image.size()));
  return toPicture(image);
}

Picture decoded(QByteArray bytes) {
  QImageReader::setAllocationLimit(MostMegabytesDecoded);
  const QByteArray format = Decoder(bytes).reader.format();
  if (format == "jpeg" || format == "jpg") return decodeJpeg(bytes);
  if (format == "gif") refuseUnless(isWholeGif(bytes));
  refuseUnless(format == "gif" || format == "ico" || format == "cur");
  return decodeWhole(bytes);
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
    // Strip by strip, so that a large image is not there a third time.
    constexpr int StripRows = 64;
    QImage strip;
    for (int y = 0; y < image.height(); ++y) {
      if (y % StripRows == 0)
        strip = image.copy(0, y, image.width(), std::min(StripRows, image.height() - y))
                    .convertToFormat(QImage::Format_RGB32);
      raster::Pixel* row = bitmap->row(y);
      std::memcpy(row, strip.constScanLine(y % StripRows),
                  static_cast<std::size_t>(image.width()) * 4);
      std::for_each(row, row + image.width(), [](raster::Pixel& pixel) { pixel |= 0xFF000000; });
    }
  }
  return Picture(std::move(bitmap));
}

QImage wrapped(const raster::Bitmap& bitmap) {
  return QImage(reinterpret_cast<const uchar*>(bitmap.row(0)), bitmap.width(), bitmap.height(),
                bitmap.width() * 4, QImage::Format_RGB32);
}

static Picture playedMetafile(const QByteArray& bytes) {
  const std::span<const std::uint8_t> file(reinterpret_cast<const std::uint8_t*>(bytes.data()),
                                           static_cast<std::size_t>(bytes.size()));
  refuseUnless(isMetafile(file));
  return playMetafile(file, MostPixelsPlayed);
}

Picture loadPicture(const std::string& path) {
  const File file = openFile(path);
  const int first = std::getc(file.get());
  std::rewind(file.get());
  switch (first) {
    case 'B':
      return readBmp(file.get());
    case 0x00:  // icon and cursor
      if (auto picture = readIcon(file.get())) return *picture;
      std::rewind(file.get());
      return decoded(readAll(file.get()));
    case 'G':   // GIF
    case 0xFF:  // JPEG
      return decoded(readAll(file.get()));
    case 0xD7:  // metafiles, placeable and plain
    case 0x01:
    case 0x02:
      return playedMetafile(readAll(file.get()));
    default:
      badFile();
  }
}

void savePicture(const Picture& picture, const std::string& path) {
  if (picture.empty()) throw RuntimeError(ErrorKind::BadPropertyValue, "Invalid picture");
  replaceFile(path, [&](std::FILE* file) { return writeBmp(file, *picture.bitmap()); });
}

Picture takenPicture(const QImage& image) {
  refuseUnless(!image.isNull());
  const int rows = rowsKept(image.width(), image.height(), MostPixelsKept);
  if (rows == image.height() && image.width() <= LargestSideKept) return toPicture(image);
  return toPicture(image.copy(0, 0, std::min(image.width(), LargestSideKept), rows));
}

}  // namespace surface::qt
