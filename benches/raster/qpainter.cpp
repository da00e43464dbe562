// QPainter on a QImage, without anti-aliasing.
#include <QImage>
#include <QLine>
#include <QPainter>

#include "contender.h"

namespace race {
namespace {

class QtContender : public Contender {
 public:
  explicit QtContender(workloads::Size size)
      : image_(size.width, size.height, QImage::Format_RGB32) {
    image_.fill(kPaper);
    painter_.begin(&image_);
    painter_.setRenderHint(QPainter::Antialiasing, false);
  }

  // One call for all lines, which spares the painter its checks for each of them.
  Job chains(const std::vector<std::vector<workloads::Point>>& strokes, int width) override {
    std::vector<QLine> lines;
    for (const auto& stroke : strokes) {
      for (std::size_t i = 1; i < stroke.size(); ++i) {
        lines.emplace_back(stroke[i - 1].x, stroke[i - 1].y, stroke[i].x, stroke[i].y);
      }
    }
    return [this, lines, width] {
      painter_.setPen(pen(width));
      painter_.drawLines(lines.data(), int(lines.size()));
    };
  }

  Job lines(const std::vector<workloads::Segment>& segments) override {
    std::vector<QLine> lines;
    for (const auto& [from, to] : segments) lines.emplace_back(from.x, from.y, to.x, to.y);
    return [this, lines] {
      painter_.setPen(pen(1));
      painter_.drawLines(lines.data(), int(lines.size()));
    };
  }

  Job boxes(const std::vector<workloads::Point>& corners) override {
    return [this, &corners] {
      const QColor ink = QColor::fromRgb(kInk);
      for (const auto& [x, y] : corners) {
        painter_.fillRect(x, y, workloads::kBoxSide, workloads::kBoxSide, ink);
      }
    };
  }

  Job outlines(const std::vector<workloads::Oval>& ovals) override {
    return [this, &ovals] {
      painter_.setPen(pen(1));
      painter_.setBrush(Qt::NoBrush);
      drawEllipses(ovals);
    };
  }

  Job discs(const std::vector<workloads::Oval>& ovals) override {
    return [this, &ovals] {
      painter_.setPen(pen(1));
      painter_.setBrush(QColor::fromRgb(kInk));
      drawEllipses(ovals);
    };
  }

  Job snapshot() override {
    return [this] { const QImage copy = image_.copy(); };
  }

  long painted() const override {
    return countPainted(
        reinterpret_cast<const std::uint32_t*>(image_.constBits()),
        static_cast<std::size_t>(image_.width()) * static_cast<std::size_t>(image_.height()));
  }

 private:
  // Of width 1 the cosmetic pen: it has the painter's fast lines.
  static QPen pen(int width) {
    QPen result(QColor::fromRgb(kInk), width, Qt::SolidLine, Qt::RoundCap);
    result.setCosmetic(width == 1);
    return result;
  }

  void drawEllipses(const std::vector<workloads::Oval>& ovals) {
    for (const auto& [centre, rx, ry] : ovals) {
      painter_.drawEllipse(centre.x - rx, centre.y - ry, 2 * rx, 2 * ry);
    }
  }

  QImage image_;
  QPainter painter_;
};

}  // namespace

std::unique_ptr<Contender> makeQPainter(workloads::Size size) {
  return std::make_unique<QtContender>(size);
}

}  // namespace race
