// A factor between two whole ones gives squares of two widths that differ by one device pixel; the
// shares at their edges make up for it, so that they look equal.
#include "surface/qt/factor.h"

#include <QGuiApplication>
#include <QPaintEngine>
#include <QScreen>
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <vector>

#include "surface/numbers.h"
#include "surface/raster/versions.h"

namespace surface::qt {
namespace {

constexpr QSize Layout(800, 600);
constexpr double Step = 1.0 / 8, Smallest = 1, Largest = 8;
// Far below any share that can be seen, far above the error of a quotient.
constexpr double Tiny = 1e-6;

using Pixel = std::uint32_t;

constexpr std::size_t Channels = sizeof(Pixel);
constexpr std::uint16_t Whole = 256;

// A device pixel along one axis: an image pixel, and the share of the next one.
struct Cell {
  int first;
  std::uint16_t share;
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
      all.push_back(
          {first, static_cast<std::uint16_t>(nearestInt(std::clamp(share, 0.0, 1.0) * Whole))});
  }
  return all;
}

// A channel of two pixels by the share of the second one, rounded to nearest.
std::uint8_t mixed(std::uint8_t a, std::uint8_t b, std::uint16_t share) {
  return static_cast<std::uint8_t>(
      static_cast<std::uint16_t>(a * (Whole - share) + b * share + Whole / 2) / Whole);
}

// The channels of two rows by one share. Like the next one many at a time: no sum leaves 16 bits.
WIDE_VERSIONS
void mixRows(const std::uint8_t* __restrict upper, const std::uint8_t* __restrict lower,
             std::uint16_t share, std::uint8_t* __restrict to, std::size_t count) {
  for (std::size_t i = 0; i < count; ++i) to[i] = mixed(upper[i], lower[i], share);
}

// Every pixel of a row with the one to the right of it, by a share of its own in each channel.
WIDE_VERSIONS
void mixNeighbours(const std::uint8_t* __restrict row, const std::uint16_t* __restrict shares,
                   std::uint8_t* __restrict to, std::size_t count) {
  for (std::size_t i = 0; i < count; ++i) to[i] = mixed(row[i], row[i + Channels], shares[i]);
}

const Pixel* rowOf(const QImage& image, int y) {
  return reinterpret_cast<const Pixel*>(image.constScanLine(y));
}
std::uint8_t* channels(Pixel* pixels) { return reinterpret_cast<std::uint8_t*>(pixels); }
const std::uint8_t* channels(const Pixel* pixels) {
  return reinterpret_cast<const std::uint8_t*>(pixels);
}

// Where a block of pixels goes.
struct Block {
  Pixel* corner;
  qsizetype line;  // pixels from row to row
};

Block blockOf(QImage& image, const QPoint& corner) {
  return {reinterpret_cast<Pixel*>(image.scanLine(corner.y())) + corner.x(),
          image.bytesPerLine() / qsizetype{sizeof(Pixel)}};
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
                    image.height() - 1)) {
    if (across_.empty()) return;
    firstColumn_ = across_.front().first;
    const auto columns = static_cast<std::size_t>(across_.back().first - firstColumn_) + 1;
    shares_.resize(Channels * columns);
    sources_.resize(2 * columns);
    picks_.reserve(across_.size());
    for (const Cell& cell : across_) {
      const auto column = static_cast<std::size_t>(cell.first - firstColumn_);
      picks_.push_back(static_cast<std::uint32_t>(cell.share ? columns + column : column));
      if (!cell.share) continue;
      std::fill_n(&shares_[Channels * column], Channels, cell.share);
      mixes_ = true;
    }
    plain_ = !mixes_ && columns == across_.size();
  }

  /// Paints a part of the bounds.
  void paint(const QRect& part, const Block& block) {
    if (part.isEmpty()) return;
    const auto left = static_cast<std::size_t>(part.x() - corner_.x());
    const auto width = static_cast<std::size_t>(part.width());
    part_ = {left, across_[left].first, across_[left + width - 1].first + 1};
    held_ = {-1, -1};
    for (std::vector<Pixel>& line : lines_) line.resize(width);
    const Cell* cell = down_.data() + (part.y() - corner_.y());
    Pixel* to = block.corner;
    for (int y = 0; y < part.height(); ++y, ++cell, to += block.line) {
      const Pixel* upper = widened(cell->first);
      if (cell->share)
        mixRows(channels(upper), channels(widened(cell->first + 1)), cell->share, channels(to),
                Channels * width);
      else
        std::memcpy(to, upper, width * sizeof(Pixel));
    }
  }

 private:
  struct Part {
    std::size_t left;                // device pixels from the bounds' left edge
    int firstColumn, beyondColumns;  // of the image
  };

  // A row of the image, widened. Two neighbours are at hand, so that each is widened once.
  const Pixel* widened(int y) {
    if (plain_) return rowOf(image_, y) + part_.firstColumn;
    const std::size_t slot = static_cast<std::size_t>(y) % 2;
    std::vector<Pixel>& line = lines_[slot];
    if (held_[slot] == y) return line.data();
    held_[slot] = y;
    takeSources(rowOf(image_, y));
    const std::uint32_t* const picks = &picks_[part_.left];
    for (std::size_t i = 0; i < line.size(); ++i) line[i] = sources_[picks[i]];
    return line.data();
  }

  // What a device pixel of the part can show: the pixels of a row, and behind them their mixtures.
  void takeSources(const Pixel* row) {
    const auto first = static_cast<std::size_t>(part_.firstColumn - firstColumn_);
    const auto count = static_cast<std::size_t>(part_.beyondColumns - part_.firstColumn);
    row += part_.firstColumn;
    std::memcpy(&sources_[first], row, count * sizeof(Pixel));
    if (!mixes_) return;
    // The last of the image has no neighbour.
    const std::size_t pairs = part_.beyondColumns < image_.width() ? count : count - 1;
    mixNeighbours(channels(row), &shares_[Channels * first],
                  channels(sources_.data() + sources_.size() / 2 + first), Channels * pairs);
  }

  const QImage& image_;
  QPoint corner_;
  std::vector<Cell> across_, down_;
  bool mixes_ = false;  // any column with its neighbour
  bool plain_ = false;  // every device pixel is one of the image's, in their order
  int firstColumn_ = 0;
  std::vector<std::uint16_t> shares_;  // of the right neighbour, for each channel of a column
  std::vector<Pixel> sources_;
  std::vector<std::uint32_t> picks_;  // for each device pixel
  Part part_{};
  std::array<std::vector<Pixel>, 2> lines_;
  std::array<int, 2> held_{-1, -1};
};

// The image that a painter paints on, if it takes opaque pixels as they are; else nothing. That of
// a window does as a rule.
QImage* imageBeneath(const QPainter& painter) {
  auto* image = dynamic_cast<QImage*>(painter.paintEngine()->paintDevice());
  const bool takes = image && image->isDetached() &&
                     (image->format() == QImage::Format_RGB32 ||
                      image->format() == QImage::Format_ARGB32_Premultiplied);
  return takes ? image : nullptr;
}

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

QRect damaged(const QRect& changed, double factor, const QPoint& corner) {
  const auto shares = [factor](int edge) {
    const double device = edge * factor;
    return std::abs(device - std::round(device)) > Tiny ? 1 : 0;
  };
  const QRect inWindow = changed.translated(corner);
  return changed.adjusted(-shares(inWindow.left()), -shares(inWindow.top()),
                          shares(inWindow.right() + 1), shares(inWindow.bottom() + 1));
}

QImage enlarged(const QImage& image, const QRectF& place, const QRect& wanted) {
  QImage result(wanted.size(), image.format());
  Squares(image, place, wanted).paint(wanted, blockOf(result, {}));
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
      squares.paint(band, blockOf(block, {}));
      painter.drawImage(band.topLeft(), block, QRect(QPoint(), band.size()));
    }
  }
}

void showSquares(QPainter& painter, const QImage& image, const QRegion& part) {
  if (image.isNull() || part.isEmpty()) return;
  QImage* const screen = imageBeneath(painter);
  const QRegion seen = painter.paintEngine()->systemClip();
  if (!screen || seen.isEmpty()) return drawSquares(painter, image, image.rect(), part);
  const QRectF filled = DevicePixels(painter).exact(image.rect());
  const QRect all = seen.boundingRect() & filled.toAlignedRect() & screen->rect();
  Squares squares(image, filled, all);
  for (const QRect& area : seen) {
    const QRect wanted = area & all;
    if (!wanted.isEmpty()) squares.paint(wanted, blockOf(*screen, wanted.topLeft()));
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
