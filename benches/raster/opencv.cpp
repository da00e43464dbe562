// OpenCV's drawing functions on a matrix of four bytes a pixel, and its flood fill on one of 32-bit
// integers, the format of that size it takes.
#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>

#include "contender.h"

namespace race {
namespace {

class OpenCv : public Contender {
 public:
  explicit OpenCv(workloads::Size size) : image_(size.height, size.width, CV_8UC4) {
    cv::setNumThreads(1);
    image_.setTo(cv::Scalar::all(255));
  }

  Job chains(const std::vector<std::vector<workloads::Point>>& strokes, int width) override {
    return [this, &strokes, width] {
      for (const auto& stroke : strokes) {
        for (std::size_t i = 1; i < stroke.size(); ++i) {
          cv::line(image_, {stroke[i - 1].x, stroke[i - 1].y}, {stroke[i].x, stroke[i].y}, ink_,
                   width, cv::LINE_8);
        }
      }
    };
  }

  Job lines(const std::vector<workloads::Segment>& segments) override {
    return [this, &segments] {
      for (const auto& [from, to] : segments) {
        cv::line(image_, {from.x, from.y}, {to.x, to.y}, ink_, 1, cv::LINE_8);
      }
    };
  }

  Job boxes(const std::vector<workloads::Point>& corners) override {
    return [this, &corners] {
      for (const auto& [x, y] : corners) {
        cv::rectangle(image_, cv::Rect(x, y, workloads::kBoxSide, workloads::kBoxSide), ink_,
                      cv::FILLED, cv::LINE_8);
      }
    };
  }

  Job outlines(const std::vector<workloads::Oval>& ovals) override { return ellipses(ovals, 1); }
  Job discs(const std::vector<workloads::Oval>& ovals) override {
    return ellipses(ovals, cv::FILLED);
  }

  Job flood(const workloads::Maze& maze) override {
    image_.create(maze.size.height, maze.size.width, CV_32SC1);
    for (int y = 0; y < maze.size.height; ++y) {
      for (int x = 0; x < maze.size.width; ++x) {
        image_.at<int>(y, x) = maze.wall(x, y) ? kWall : kOpen;
      }
    }
    return [this, seed = cv::Point(maze.seed.x, maze.seed.y)] {
      const int fill = image_.at<int>(seed) == kOpen ? kFilled : kOpen;
      cv::floodFill(image_, seed, cv::Scalar(fill), nullptr, cv::Scalar(), cv::Scalar(), 4);
    };
  }

  Job snapshot() override {
    return [this] { const cv::Mat copy = image_.clone(); };
  }

  long painted() const override {
    return countPainted(reinterpret_cast<const std::uint32_t*>(image_.data), image_.total());
  }

 private:
  Job ellipses(const std::vector<workloads::Oval>& ovals, int thickness) {
    return [this, &ovals, thickness] {
      for (const auto& [centre, rx, ry] : ovals) {
        const cv::Point at(centre.x, centre.y);
        if (rx == ry) {
          cv::circle(image_, at, rx, ink_, thickness, cv::LINE_8);
        } else {
          cv::ellipse(image_, at, {rx, ry}, 0, 0, 360, ink_, thickness, cv::LINE_8);
        }
      }
    };
  }

  static constexpr int kWall = 0x000000, kOpen = 0xFFFFFF, kFilled = kInk & 0xFFFFFF;

  cv::Mat image_;
  const cv::Scalar ink_{kInk & 255, (kInk >> 8) & 255, (kInk >> 16) & 255, 255};
};

}  // namespace

std::unique_ptr<Contender> makeOpenCv(workloads::Size size) {
  return std::make_unique<OpenCv>(size);
}

}  // namespace race
