// SDL2_gfx on SDL's software renderer. Its thick lines have no round ends, so it sits those out.
#include <SDL2/SDL.h>
#include <SDL2/SDL2_gfxPrimitives.h>

#include "contender.h"

namespace race {
namespace {

class Sdl : public Contender {
 public:
  explicit Sdl(workloads::Size size)
      : surface_(SDL_CreateRGBSurfaceWithFormat(0, size.width, size.height, 32,
                                                SDL_PIXELFORMAT_ARGB8888)),
        renderer_(SDL_CreateSoftwareRenderer(surface_)) {
    SDL_FillRect(surface_, nullptr, kPaper);
  }
  ~Sdl() override {
    SDL_DestroyRenderer(renderer_);
    SDL_FreeSurface(surface_);
  }
  Sdl(const Sdl&) = delete;
  Sdl& operator=(const Sdl&) = delete;

  Job chains(const std::vector<std::vector<workloads::Point>>& strokes, int width) override {
    if (width != 1) return {};
    return [this, &strokes] {
      for (const auto& stroke : strokes) {
        for (std::size_t i = 1; i < stroke.size(); ++i) {
          line(stroke[i - 1], stroke[i]);
        }
      }
      SDL_RenderFlush(renderer_);
    };
  }

  Job lines(const std::vector<workloads::Segment>& segments) override {
    return [this, &segments] {
      for (const auto& [from, to] : segments) line(from, to);
      SDL_RenderFlush(renderer_);
    };
  }

  Job boxes(const std::vector<workloads::Point>& corners) override {
    return [this, &corners] {
      constexpr int kLast = workloads::kBoxSide - 1;
      for (const auto& [x, y] : corners) {
        boxRGBA(renderer_, Sint16(x), Sint16(y), Sint16(x + kLast), Sint16(y + kLast), kRed, kGreen,
                kBlue, 255);
      }
      SDL_RenderFlush(renderer_);
    };
  }

  Job outlines(const std::vector<workloads::Oval>& ovals) override {
    return [this, &ovals] {
      for (const auto& [centre, rx, ry] : ovals) {
        ellipseRGBA(renderer_, Sint16(centre.x), Sint16(centre.y), Sint16(rx), Sint16(ry), kRed,
                    kGreen, kBlue, 255);
      }
      SDL_RenderFlush(renderer_);
    };
  }

  Job discs(const std::vector<workloads::Oval>& ovals) override {
    return [this, &ovals] {
      for (const auto& [centre, rx, ry] : ovals) {
        filledEllipseRGBA(renderer_, Sint16(centre.x), Sint16(centre.y), Sint16(rx), Sint16(ry),
                          kRed, kGreen, kBlue, 255);
      }
      SDL_RenderFlush(renderer_);
    };
  }

  long painted() const override {
    return countPainted(
        static_cast<const std::uint32_t*>(surface_->pixels),
        static_cast<std::size_t>(surface_->w) * static_cast<std::size_t>(surface_->h));
  }

 private:
  static constexpr Uint8 kRed = (kInk >> 16) & 255, kGreen = (kInk >> 8) & 255, kBlue = kInk & 255;

  void line(workloads::Point from, workloads::Point to) {
    lineRGBA(renderer_, Sint16(from.x), Sint16(from.y), Sint16(to.x), Sint16(to.y), kRed, kGreen,
             kBlue, 255);
  }

  SDL_Surface* surface_;
  SDL_Renderer* renderer_;
};

}  // namespace

std::unique_ptr<Contender> makeSdl(workloads::Size size) { return std::make_unique<Sdl>(size); }

}  // namespace race
