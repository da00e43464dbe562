// What the toolkit's decoders do not tell about a picture file: whether it was cut off, and how
// much work and memory it asks for.
#pragma once

#include <QByteArray>

namespace surface::qt {

/// Whether a GIF file holds all of its first picture. The decoder shows the rest white, and a child
/// would save that over the whole picture.
bool isWholeGif(const QByteArray& file);

/// What the segments of a JPEG file say.
struct JpegFacts {
  /// Every component has come in its full precision; what a scan lacks is not told by this.
  bool complete = false;
  /// The end mark is there; a camera that lost its power leaves it out.
  bool ended = false;
  bool grey = false;
  int segments = 0;
  /// Blocks of 8 by 8 that the decoder goes through, those of every scan counted.
  qint64 blocksVisited = 0;
  /// What the decoder keeps of a picture that comes in several scans.
  qint64 coefficientBytes = 0;
};

JpegFacts readJpegFacts(const QByteArray& file);

}  // namespace surface::qt
