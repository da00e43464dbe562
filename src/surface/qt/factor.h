// The one factor by which the program fills a screen of today: how it is chosen, and how bitmaps
// are shown at it. Nothing above this folder knows it: there a pixel is a logical one.
#pragma once

#include <QByteArray>
#include <QImage>
#include <QPainter>
#include <QRect>
#include <QRegion>
#include <QSize>
#include <QTransform>
#include <optional>

namespace surface::qt {

/// The largest factor, in steps of 1/8 and at least 1, at which 800 by 600 logical pixels fit into
/// the free area of a screen.
double factorFor(QSize freeArea);

/// The factor that a text names, brought to 1 to 8; nothing if it is no number.
std::optional<double> givenFactor(const QByteArray& text);

/// Fixes the factor of this run: QT_SCALE_FACTOR where it is set, else that of the screen. Before
/// the application is made, and with what it is made of.
void chooseFactor(int& argc, char** argv);

/// The logical pixel that takes up most of a device pixel, both counted from the same edge.
int pixelShownAt(int devicePixel, double factor);

/// The logical pixels of a widget to repaint once those of `changed` have: an edge that lies within
/// a device pixel shares it with its neighbour. `corner` is the widget's place in its window.
QRect damaged(const QRect& changed, double factor, const QPoint& corner = {});

/// The part `wanted` of what stands, in device pixels, when an image is enlarged to fill `place`.
/// Each device pixel has the colours of the image by their shares of its area, so that every pixel
/// of the image is a sharp square; beyond the image its edge goes on. The image has 32 bits a pixel
/// and is at most as large as its place.
QImage enlarged(const QImage& image, const QRectF& place, const QRect& wanted);

/// Draws the part of an image that lies in `part` when it fills `place`; both in the painter's own
/// pixels.
void drawSquares(QPainter& painter, const QImage& image, const QRect& place, const QRegion& part);

/// Shows the part of a bitmap that a widget of its size is asked to paint anew. The painter is that
/// of the paint event, as it was made: where it can be, the pixels are written straight into the
/// window's own, past all that a painter does for an area of many rectangles.
void showSquares(QPainter& painter, const QImage& image, const QRegion& part);

/// While it lives, the painter counts in device pixels.
class DevicePixels {
 public:
  explicit DevicePixels(QPainter& painter);
  ~DevicePixels();
  DevicePixels(const DevicePixels&) = delete;
  DevicePixels& operator=(const DevicePixels&) = delete;

  /// Where a rectangle of the painter's own pixels stands.
  QRectF exact(const QRect& rect) const { return toDevice_.mapRect(QRectF(rect)); }
  /// The same in whole pixels; what touches there touches here.
  QRect whole(const QRect& rect) const;
  /// The width of a line of one pixel, the same wherever it stands.
  int line() const;

 private:
  QPainter& painter_;
  QTransform own_, toDevice_;
};

}  // namespace surface::qt
