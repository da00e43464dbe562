// Walks through the blocks of a picture file, without decoding anything.
#include "surface/qt/picture_bytes.h"

#include <QtEndian>
#include <bit>
#include <cstdlib>

namespace surface::qt {
namespace {

/// Reads on through a file; beyond its end everything is 0 and `past` is set.
class Walk {
 public:
  Walk(const QByteArray& file, qint64 start) : file_(file), at_(start) {}

  quint8 byte() {
    past_ |= at_ >= file_.size();
    return past_ ? 0 : static_cast<quint8>(file_[at_++]);
  }
  quint16 bigEndian16() {
    const int high = byte();
    return static_cast<quint16>(high << 8 | byte());
  }
  void skip(qint64 bytes) { at_ += bytes; }
  /// Goes on behind the next byte of this value.
  void skipTo(char value) {
    const qint64 found = file_.indexOf(value, at_);
    past_ |= found < 0;
    at_ = found + 1;
  }
  bool past() const { return past_ || at_ > file_.size(); }

 private:
  const QByteArray& file_;
  qint64 at_;
  bool past_ = false;
};

template <class Integer>
Integer littleEndian(const QByteArray& file, qint64 at) {
  if (at + static_cast<qint64>(sizeof(Integer)) > file.size()) return 0;
  return qFromLittleEndian<Integer>(file.constData() + at);
}

// What a bitmap's headers say. The oldest kind of second header is 12 bytes long and knows no
// compression.
struct BmpFields {
  explicit BmpFields(const QByteArray& file) : start(littleEndian<quint32>(file, 10)) {
    if (littleEndian<quint32>(file, 14) == 12) {
      width = littleEndian<quint16>(file, 18);
      height = littleEndian<quint16>(file, 20);
      bits = littleEndian<quint16>(file, 24);
      return;
    }
    width = littleEndian<qint32>(file, 18);
    height = littleEndian<qint32>(file, 22);
    bits = littleEndian<quint16>(file, 28);
    compression = littleEndian<quint32>(file, 30);
    pixelBytes = littleEndian<quint32>(file, 34);
  }

  bool runLengths() const { return compression == 1 || compression == 2; }
  bool ownMasks() const { return compression == 3; }

  qint64 start, width = 0, height = 0;
  int bits = 0;
  quint32 compression = 0;
  qint64 pixelBytes = 0;
};

bool isWholeBmp(const QByteArray& file) {
  const BmpFields bmp(file);
  if (bmp.runLengths()) return bmp.start + bmp.pixelBytes <= file.size();
  const qint64 stride = (bmp.width * bmp.bits + 31) / 32 * 4;
  // A row that does not fit leaves the product out, which nothing could hold.
  return bmp.width > 0 && stride <= file.size() &&
         bmp.start + stride * std::abs(bmp.height) <= file.size();
}

// A GIF's colours come in tables whose size is a power of two.
qint64 tableBytes(int flags) { return flags & 0x80 ? 3 * (2 << (flags & 7)) : 0; }

void skipSubBlocks(Walk& walk) {
  for (int length = walk.byte(); length > 0; length = walk.byte()) walk.skip(length);
}

bool isWholeGif(const QByteArray& file) {
  constexpr int Extension = 0x21, Image = 0x2C;
  Walk walk(file, 10);
  const int flags = walk.byte();
  walk.skip(2 + tableBytes(flags));
  while (!walk.past()) {
    switch (walk.byte()) {
      case Extension:
        walk.skip(1);
        skipSubBlocks(walk);
        break;
      case Image: {
        walk.skip(8);
        const int local = walk.byte();
        walk.skip(tableBytes(local) + 1);
        skipSubBlocks(walk);
        return !walk.past();
      }
      default:
        return false;
    }
  }
  return false;
}

bool isWholeJpeg(const QByteArray& file) {
  constexpr int Stuffed = 0x00, FirstRestart = 0xD0, Start = 0xD8, End = 0xD9, Fill = 0xFF;
  Walk walk(file, 0);
  while (!walk.past()) {
    // Within a scan the picture's own bytes lie between the markers.
    walk.skipTo('\xFF');
    int marker = walk.byte();
    while (marker == Fill) marker = walk.byte();
    if (marker == End) return !walk.past();
    const bool alone = marker == Stuffed || (marker >= FirstRestart && marker <= Start);
    if (!alone) walk.skip(qint64{walk.bigEndian16()} - 2);
  }
  return false;
}

// A shade of `bits` bits that the decoder has moved to the top of a byte; its upper bits fill the
// byte up.
quint32 widened(quint32 shade, int bits) { return shade | shade >> bits; }

}  // namespace

bool isWhole(const QByteArray& format, const QByteArray& file) {
  if (format == "bmp") return isWholeBmp(file);
  if (format == "gif") return isWholeGif(file);
  if (format == "jpeg") return isWholeJpeg(file);
  return true;
}

void widenShades(QImage& image, const QByteArray& format, const QByteArray& file) {
  const BmpFields bmp(file);
  if (format != "bmp" || bmp.bits != 16) return;
  const int greenBits = bmp.ownMasks() ? std::popcount(littleEndian<quint32>(file, 58)) : 5;
  image = image.convertToFormat(QImage::Format_RGB32);
  for (int y = 0; y < image.height(); ++y) {
    auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
    for (int x = 0; x < image.width(); ++x)
      row[x] = qRgb(static_cast<int>(widened(static_cast<quint32>(qRed(row[x])), 5)),
                    static_cast<int>(widened(static_cast<quint32>(qGreen(row[x])), greenBits)),
                    static_cast<int>(widened(static_cast<quint32>(qBlue(row[x])), 5)));
  }
}

}  // namespace surface::qt
