// Cairo on an image surface, without anti-aliasing. It has no lines of single pixels, only narrow
// areas, and one unit wide they hit a tenth more pixels than the others' lines: kHair makes that
// even.
#include <cairo.h>

#include <cmath>

#include "contender.h"

namespace race {
namespace {

class Cairo : public Contender {
 public:
  explicit Cairo(workloads::Size size)
      : size_(size),
        surface_(cairo_image_surface_create(CAIRO_FORMAT_RGB24, size.width, size.height)),
        context_(cairo_create(surface_)) {
    cairo_set_source_rgb(context_, 1, 1, 1);
    cairo_paint(context_);
    cairo_set_antialias(context_, CAIRO_ANTIALIAS_NONE);
    cairo_set_operator(context_, CAIRO_OPERATOR_SOURCE);
    cairo_set_line_cap(context_, CAIRO_LINE_CAP_ROUND);
    cairo_set_line_join(context_, CAIRO_LINE_JOIN_ROUND);
    cairo_set_source_rgb(context_, ((kInk >> 16) & 255) / 255.0, ((kInk >> 8) & 255) / 255.0,
                         (kInk & 255) / 255.0);
  }
  ~Cairo() override {
    cairo_destroy(context_);
    cairo_surface_destroy(surface_);
  }
  Cairo(const Cairo&) = delete;
  Cairo& operator=(const Cairo&) = delete;

  // One path for each stroke.
  Job chains(const std::vector<std::vector<workloads::Point>>& strokes, int width) override {
    return [this, &strokes, width] {
      cairo_set_line_width(context_, width == 1 ? kHair : width);
      for (const auto& stroke : strokes) {
        cairo_move_to(context_, middle(stroke[0].x), middle(stroke[0].y));
        for (const auto& [x, y] : stroke) cairo_line_to(context_, middle(x), middle(y));
        cairo_stroke(context_);
      }
      cairo_surface_flush(surface_);
    };
  }

  Job lines(const std::vector<workloads::Segment>& segments) override {
    return [this, &segments] {
      cairo_set_line_width(context_, kHair);
      for (const auto& [from, to] : segments) {
        cairo_move_to(context_, middle(from.x), middle(from.y));
        cairo_line_to(context_, middle(to.x), middle(to.y));
        cairo_stroke(context_);
      }
      cairo_surface_flush(surface_);
    };
  }

  Job boxes(const std::vector<workloads::Point>& corners) override {
    return [this, &corners] {
      for (const auto& [x, y] : corners) {
        cairo_rectangle(context_, x, y, workloads::kBoxSide, workloads::kBoxSide);
        cairo_fill(context_);
      }
      cairo_surface_flush(surface_);
    };
  }

  Job outlines(const std::vector<workloads::Oval>& ovals) override {
    return [this, &ovals] {
      cairo_set_line_width(context_, kHair);
      for (const auto& oval : ovals) {
        path(oval, 0);
        cairo_stroke(context_);
      }
      cairo_surface_flush(surface_);
    };
  }

  // Wider by the half pixel that an outline would add.
  Job discs(const std::vector<workloads::Oval>& ovals) override {
    return [this, &ovals] {
      for (const auto& oval : ovals) {
        path(oval, 0.5);
        cairo_fill(context_);
      }
      cairo_surface_flush(surface_);
    };
  }

  long painted() const override {
    cairo_surface_flush(surface_);
    return countPainted(
        reinterpret_cast<const std::uint32_t*>(cairo_image_surface_get_data(surface_)),
        static_cast<std::size_t>(size_.width) * static_cast<std::size_t>(size_.height));
  }

 private:
  static constexpr double kHair = 0.9;

  static double middle(int pixel) { return pixel + 0.5; }

  void path(const workloads::Oval& oval, double more) {
    cairo_save(context_);
    cairo_translate(context_, middle(oval.centre.x), middle(oval.centre.y));
    cairo_scale(context_, oval.rx + more, oval.ry + more);
    cairo_new_path(context_);
    cairo_arc(context_, 0, 0, 1, 0, 2 * M_PI);
    cairo_restore(context_);
  }

  workloads::Size size_;
  cairo_surface_t* surface_;
  cairo_t* context_;
};

}  // namespace

std::unique_ptr<Contender> makeCairo(workloads::Size size) { return std::make_unique<Cairo>(size); }

}  // namespace race
