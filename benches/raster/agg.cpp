// Anti-Grain Geometry: its primitives where it has any, its rasteriser with binary scanlines else.
#include <agg_conv_stroke.h>
#include <agg_ellipse.h>
#include <agg_gamma_functions.h>
#include <agg_path_storage.h>
#include <agg_pixfmt_rgba.h>
#include <agg_rasterizer_scanline_aa.h>
#include <agg_renderer_base.h>
#include <agg_renderer_primitives.h>
#include <agg_renderer_scanline.h>
#include <agg_rendering_buffer.h>
#include <agg_scanline_bin.h>

#include "contender.h"

namespace race {
namespace {

using PixelFormat = agg::pixfmt_bgra32;
using Base = agg::renderer_base<PixelFormat>;

class Agg : public Contender {
 public:
  explicit Agg(workloads::Size size)
      : memory_(static_cast<std::size_t>(size.width) * static_cast<std::size_t>(size.height),
                kPaper),
        buffer_(reinterpret_cast<agg::int8u*>(memory_.data()), unsigned(size.width),
                unsigned(size.height), size.width * 4),
        format_(buffer_),
        base_(format_),
        primitives_(base_) {
    primitives_.line_color(ink_);
    primitives_.fill_color(ink_);
    // Without it every pixel that an outline only touches would be painted.
    rasterizer_.gamma(agg::gamma_threshold(0.5));
  }

  Job chains(const std::vector<std::vector<workloads::Point>>& strokes, int width) override {
    if (width == 1) {
      return [this, &strokes] {
        for (const auto& stroke : strokes) {
          for (std::size_t i = 1; i < stroke.size(); ++i) thinLine(stroke[i - 1], stroke[i]);
        }
      };
    }
    return [this, &strokes, width] {
      for (const auto& stroke : strokes) wideStroke(stroke, width);
    };
  }

  Job lines(const std::vector<workloads::Segment>& segments) override {
    return [this, &segments] {
      for (const auto& [from, to] : segments) thinLine(from, to);
    };
  }

  Job boxes(const std::vector<workloads::Point>& corners) override {
    return [this, &corners] {
      constexpr int kLast = workloads::kBoxSide - 1;
      for (const auto& [x, y] : corners) primitives_.solid_rectangle(x, y, x + kLast, y + kLast);
    };
  }

  Job outlines(const std::vector<workloads::Oval>& ovals) override {
    return [this, &ovals] {
      for (const auto& [centre, rx, ry] : ovals) primitives_.ellipse(centre.x, centre.y, rx, ry);
    };
  }

  Job discs(const std::vector<workloads::Oval>& ovals) override {
    return [this, &ovals] {
      for (const auto& [centre, rx, ry] : ovals) {
        primitives_.solid_ellipse(centre.x, centre.y, rx, ry);
      }
    };
  }

  long painted() const override { return countPainted(memory_.data(), memory_.size()); }

 private:
  using Primitives = agg::renderer_primitives<Base>;

  void thinLine(workloads::Point from, workloads::Point to) {
    primitives_.line(Primitives::coord(from.x), Primitives::coord(from.y), Primitives::coord(to.x),
                     Primitives::coord(to.y));
  }

  void wideStroke(const std::vector<workloads::Point>& stroke, int width) {
    path_.remove_all();
    path_.move_to(stroke[0].x + 0.5, stroke[0].y + 0.5);
    for (const auto& [x, y] : stroke) path_.line_to(x + 0.5, y + 0.5);
    agg::conv_stroke<agg::path_storage> outline(path_);
    outline.width(width);
    outline.line_cap(agg::round_cap);
    outline.line_join(agg::round_join);
    rasterizer_.add_path(outline);
    agg::render_scanlines_bin_solid(rasterizer_, scanline_, base_, ink_);
  }

  std::vector<std::uint32_t> memory_;
  agg::rendering_buffer buffer_;
  PixelFormat format_;
  Base base_;
  Primitives primitives_;
  agg::path_storage path_;
  agg::rasterizer_scanline_aa<> rasterizer_;
  agg::scanline_bin scanline_;
  const agg::rgba8 ink_{(kInk >> 16) & 255, (kInk >> 8) & 255, kInk & 255, 255};
};

}  // namespace

std::unique_ptr<Contender> makeAgg(workloads::Size size) { return std::make_unique<Agg>(size); }

}  // namespace race
