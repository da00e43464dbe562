// A factor between two whole ones gives squares of two widths that differ by one device pixel; the
// shares at their edges make up for it, so that they look equal.
#include "surface/qt/factor.h"

#include <QGuiApplication>
#include <QScreen>
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <vector>

#include "surface/numbers.h"

namespace surface::qt {
namespace {

constexpr QSize Layout(800, 600);
constexpr double Step = 1.0 / 8, Smallest = 1, Largest = 8;
// Far below any share that can be seen, far above the error of a quotient.
constexpr double Tiny = 1e-6;

using Pixel = std::uint32_t;

// A device pixel along one axis: an image pixel, and the share of the next one in 1/256.
struct Cell {
  int first;
  unsigned share;
};

std::vector<Cell> cells(double start, double scale, int from, int count, int last) {
  std::vector<Cell> all;
  all.reserve(static_cast<std::size_t>(count));
  for (int at = from; at < from + count; ++at) {
    const int first = static_cast<int>(std::floor((at - start) / scale + Tiny));
    // What lies beyond the end of the first pixel is the next one's.
    const double share = at + 1 - start - (first + 1) * scale;
    if (first < 0 || first >= last)
      all.push_back({std::clamp(first, 0, last), 0});
    else
      all.push_back({first, static_cast<unsigned>(nearestInt(std::clamp(share, 0.0, 1.0) * 256))});
  }
  return all;
}

// Two channels at a time, rounded to nearest.
Pixel mixed(Pixel a, Pixel b, unsigned share) {
  constexpr Pixel Odd = 0x00FF00FF, Half = 0x00800080;
  const unsigned rest = 256 - share;
  const Pixel low = ((a & Odd) * rest + (b & Odd) * share + Half) >> 8 & Odd;
  const Pixel high = ((a >> 8 & Odd) * rest + (b >> 8 & Odd) * share + Half) & ~Odd;
  return high | low;
}

// All pixels of two rows by one share, a few at a time in the wide registers.
void mixRows(const Pixel* upper, const Pixel* lower, unsigned share, Pixel* to, std::size_t count) {
  for (std::size_t i = 0; i < count; ++i) to[i] = mixed(upper[i], lower[i], share);
}

const Pixel* rowOf(const QImage& image, int y) {
  return reinterpret_cast<const Pixel*>(image.constScanLine(y));
}

// An image that fills a place, within bounds in device pixels. What of it is drawn there together
// shares the reckoning of the cells.
class Squares {
 public:
  Squares(const QImage& image, const QRectF& place, const QRect& bounds)
      : image_(image),
        corner_(bounds.topLeft()),
        across_(cells(place.x(), place.width() / image.width(), bounds.x(), bounds.width(),
                      image.width() - 1)),
        down_(cells(place.y(), place.height() / image.height(), bounds.y(), bounds.height(),
                    image.height() - 1)) {}

  /// Paints a part of the bounds into the upper left corner of a block.
  void paint(const QRect& part, QImage& block) {
    first_ = across_.data() + (part.x() - corner_.x());
    const Cell* const down = down_.data() + (part.y() - corner_.y());
    held_ = {-1, -1};
    const auto width = static_cast<std::size_t>(part.width());
    for (std::vector<Pixel>& line : lines_) line.resize(width);
    for (int y = 0; y < part.height(); ++y) {
      const Cell& cell = down[y];
      auto* to = reinterpret_cast<Pixel*>(block.scanLine(y));
      const Pixel* upper = widened(cell.first);
      if (cell.share)
        mixRows(upper, widened(cell.first + 1), cell.share, to, width);
      else
        std::memcpy(to, upper, width * sizeof(Pixel));
    }
  }

 private:
  // A row of the image, widened. Two neighbours are at hand, so that each is widened once.
  const Pixel* widened(int y) {
    const std::size_t slot = static_cast<std::size_t>(y) % 2;
    std::vector<Pixel>& line = lines_[slot];
    if (held_[slot] == y) return line.data();
    held_[slot] = y;
    const Pixel* from = rowOf(image_, y);
    std::transform(first_, first_ + line.size(), line.begin(), [from](const Cell& cell) {
      const Pixel* pixel = from + cell.first;
      return cell.share ? mixed(pixel[0], pixel[1], cell.share) : pixel[0];
    });
    return line.data();
  }

  const QImage& image_;
  QPoint corner_;
  std::vector<Cell> across_, down_;
  const Cell* first_ = nullptr;  // the part's
  std::array<std::vector<Pixel>, 2> lines_;
  std::array<int, 2> held_{-1, -1};
};

}  // namespace

double factorFor(QSize freeArea) {
  const double fits = std::min(static_cast<double>(freeArea.width()) / Layout.width(),
                               static_cast<double>(freeArea.height()) / Layout.height());
  return std::clamp(std::floor(fits / Step) * Step, Smallest, Largest);
}

std::optional<double> givenFactor(const QByteArray& text) {
  bool number = false;
  const double factor = text.toDouble(&number);
  if (!number || !std::isfinite(factor)) return std::nullopt;
  return std::clamp(factor, Smallest, Largest);
}

void chooseFactor(int& argc, char** argv) {
  // The factor says all: a desktop's dots per inch would count a second time.
  QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
      Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
  qputenv("QT_FONT_DPI", "96");
  qunsetenv("QT_SCREEN_SCALE_FACTORS");
  std::optional<double> factor = givenFactor(qgetenv("QT_SCALE_FACTOR"));
  if (!factor) {
    // Only an application knows the screen, and what it was started with holds for its life.
    qunsetenv("QT_SCALE_FACTOR");
    const QGuiApplication scout(argc, argv);
    factor = factorFor(QGuiApplication::primaryScreen()->availableSize());
  }
  qputenv("QT_SCALE_FACTOR", QByteArray::number(*factor, 'g', 17));
}

int pixelShownAt(int devicePixel, double factor) {
  // Of two equal halves the first counts, since the toolkit rounds the edges of widgets upwards.
  return static_cast<int>(std::floor((devicePixel + 0.5) / factor - Tiny));
}

QRect damaged(const QRect& changed, double factor) {
  return factor == std::floor(factor) ? changed : changed.adjusted(-1, -1, 1, 1);
}

QImage enlarged(const QImage& image, const QRectF& place, const QRect& wanted) {
  QImage result(wanted.size(), image.format());
  Squares(image, place, wanted).paint(wanted, result);
  return result;
}

void drawSquares(QPainter& painter, const QImage& image, const QRect& place, const QRegion& part) {
  if (image.isNull()) return;
  const DevicePixels device(painter);
  const QRectF filled = device.exact(place);
  const auto wanted = [&](const QRect& area) {
    return device.exact(area).toAlignedRect() & filled.toAlignedRect();
  };
  Squares squares(image, filled, wanted(part.boundingRect()));
  QImage block;
  for (const QRect& area : part) {
    const QRect all = wanted(area);
    // In bands: all of a large sheet at once would be as much memory as the screen, and the toolkit
    // calls for threads from 2^16 pixels on, which takes longer than to copy them.
    const int rows = std::clamp(0xFFFF / std::max(1, all.width()), 1, 128);
    for (int top = all.top(); top <= all.bottom(); top += rows) {
      const QRect band = all & QRect(all.left(), top, all.width(), rows);
      if (block.width() < band.width() || block.height() < band.height())
        block = QImage(block.size().expandedTo(band.size()), image.format());
      squares.paint(band, block);
      painter.drawImage(band.topLeft(), block, QRect(QPoint(), band.size()));
    }
  }
}

DevicePixels::DevicePixels(QPainter& painter)
    : painter_(painter), own_(painter.worldTransform()), toDevice_(painter.deviceTransform()) {
  painter.setWorldTransform(toDevice_.inverted() * own_);
}

DevicePixels::~DevicePixels() { painter_.setWorldTransform(own_); }

QRect DevicePixels::whole(const QRect& rect) const {
  const QRectF place = exact(rect);
  return QRect(QPoint(qRound(place.left()), qRound(place.top())),
               QPoint(qRound(place.right()) - 1, qRound(place.bottom()) - 1));
}

int DevicePixels::line() const { return std::max(1, static_cast<int>(toDevice_.m11())); }

}  // namespace surface::qt
