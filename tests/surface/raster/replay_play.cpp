// Playing recorded cases: every operation of their files as calls of the raster.
#include <algorithm>
#include <functional>
#include <map>
#include <stdexcept>

#include "replay.h"
#include "surface/raster/draw.h"

namespace replay {
namespace {

using raster::Bitmap;
using raster::BrushStyle;
using raster::PenStyle;
using raster::Pixel;
using raster::Rect;

/// The words of one operation, read in order.
class Arguments {
 public:
  explicit Arguments(const Words& words) : words_(words) {}

  std::size_t left() const { return words_.size() - next_; }
  const std::string& word() { return words_.at(next_++); }
  int number() { return std::stoi(word()); }
  unsigned long hex() { return std::stoul(word(), nullptr, 16); }
  Pixel color() {
    const auto value = static_cast<Pixel>(hex());
    return 0xFF000000 | (value & 0xFF) << 16 | (value & 0xFF00) | (value >> 16 & 0xFF);
  }

 private:
  const Words& words_;
  std::size_t next_ = 1;
};

void fill(Bitmap& bitmap, Arguments& in) {
  const int x = in.number(), y = in.number(), w = in.number(), h = in.number();
  const Pixel color = in.color();
  const Rect area = intersect(bitmap.bounds(), {x, y, x + w, y + h});
  for (int row = area.top; row < area.bottom; ++row) {
    std::fill(bitmap.row(row) + area.left, bitmap.row(row) + area.right, color);
  }
}

void dot(Bitmap& bitmap, Arguments& in) {
  const int x = in.number(), y = in.number();
  if (bitmap.contains(x, y)) bitmap.row(y)[x] = in.color();
}

void map(Bitmap& bitmap, Arguments& in) {
  const int x = in.number(), y = in.number();
  const Pixel color = in.color();
  const std::string& mask = in.word();
  for (int i = 0; i < static_cast<int>(mask.size()); ++i) {
    if (mask[i] == '#' && bitmap.contains(x + i, y)) bitmap.row(y)[x + i] = color;
  }
}

void tiles(Bitmap& bitmap, Arguments& in) {
  const int width = in.number(), height = in.number(), skew = in.number(), count = in.number();
  std::vector<Pixel> colors;
  for (int i = 0; i < count; ++i) colors.push_back(in.color());
  for (int y = 0; y < bitmap.height(); ++y) {
    for (int x = 0; x < bitmap.width(); ++x) {
      bitmap.row(y)[x] = colors.at((x / width + skew * (y / height)) % count);
    }
  }
}

using Preparation = void (*)(Bitmap&, Arguments&);
const std::map<std::string, Preparation> kPreparations{
    {"fill", fill}, {"dot", dot}, {"map", map}, {"tiles", tiles}};

/// A canvas with everything that drawing operations depend on.
class Player {
 public:
  explicit Player(Bitmap canvas) : canvas_(std::move(canvas)) {}

  void perform(const Words& words);
  Bitmap take() { return std::move(canvas_); }

 private:
  using Operation = void (Player::*)(Arguments&);
  static const std::map<std::string, Operation> kOperations;

  raster::Target target() { return {canvas_, rop_}; }
  void source(Arguments& in);
  void pen(Arguments& in);
  void brush(Arguments& in);
  void rop(Arguments& in) { rop_ = in.number(); }
  void chain(Arguments& in);
  void pset(Arguments& in);
  void box(Arguments& in);
  void filledBox(Arguments& in);
  void circle(Arguments& in);
  void flood(Arguments& in);
  void blit(Arguments& in);
  void stretch(Arguments& in);

  Bitmap canvas_, source_;
  raster::Pen pen_;
  raster::Brush brush_;
  int rop_ = 13;
};

const std::map<std::string, Player::Operation> Player::kOperations{
    {"source", &Player::source},  {"pen", &Player::pen},
    {"brush", &Player::brush},    {"rop", &Player::rop},
    {"line", &Player::chain},     {"chain", &Player::chain},
    {"pset", &Player::pset},      {"box", &Player::box},
    {"circle", &Player::circle},  {"filledbox", &Player::filledBox},
    {"flood", &Player::flood},    {"blit", &Player::blit},
    {"stretch", &Player::stretch}};

void Player::perform(const Words& words) {
  const std::string& name = words[0];
  Arguments in(words);
  if (const auto found = kOperations.find(name); found != kOperations.end()) {
    (this->*found->second)(in);
  } else if (kPreparations.contains(name)) {
    kPreparations.at(name)(canvas_, in);
  } else if (name[0] == 's' && kPreparations.contains(name.substr(1))) {
    kPreparations.at(name.substr(1))(source_, in);
  } else {
    throw std::runtime_error("unknown operation: " + name);
  }
}

void Player::source(Arguments& in) {
  const int width = in.number(), height = in.number();
  source_ = Bitmap(width, height, in.color());
}

void Player::pen(Arguments& in) {
  const std::string& style = in.word();
  pen_.style = style == "null"  ? PenStyle::Null
               : style == "dot" ? PenStyle::Dotted
                                : PenStyle::Solid;
  pen_.width = std::max(1, in.number());
  pen_.color = in.color();
}

void Player::brush(Arguments& in) {
  const std::string& style = in.word();
  if (style == "null") {
    brush_ = {};
    return;
  }
  brush_.style = style == "solid"
                     ? BrushStyle::Solid
                     : BrushStyle(static_cast<int>(BrushStyle::Horizontal) + in.number());
  brush_.color = in.color();
}

void Player::chain(Arguments& in) {
  int x = in.number(), y = in.number();
  while (in.left() >= 2) {
    const int x2 = in.number(), y2 = in.number();
    line(target(), pen_, x, y, x2, y2);
    x = x2;
    y = y2;
  }
}

void Player::pset(Arguments& in) {
  const int x = in.number(), y = in.number();
  raster::dot(target(), pen_, x, y);
}

void Player::box(Arguments& in) {
  const int x1 = in.number(), y1 = in.number(), x2 = in.number(), y2 = in.number();
  raster::box(target(), pen_, brush_, x1, y1, x2, y2);
}

void Player::filledBox(Arguments& in) {
  const int x1 = in.number(), y1 = in.number(), x2 = in.number(), y2 = in.number();
  raster::filledBox(target(), pen_, x1, y1, x2, y2);
}

void Player::circle(Arguments& in) {
  const int cx = in.number(), cy = in.number(), rx = in.number(), ry = in.number();
  ellipse(target(), pen_, brush_, cx, cy, rx, ry);
}

void Player::flood(Arguments& in) {
  const int x = in.number(), y = in.number();
  floodFill(target(), brush_, x, y, in.color());
}

void Player::blit(Arguments& in) {
  const int x = in.number(), y = in.number(), w = in.number(), h = in.number();
  const int sx = in.number(), sy = in.number();
  constexpr unsigned long copy = 0x00CC0020, exclusiveOr = 0x00660046;
  const unsigned long operation = in.hex();
  if (operation != copy && operation != exclusiveOr) throw std::runtime_error("unknown copy");
  (operation == copy ? raster::blit : raster::blitXor)(canvas_, x, y, w, h, source_, sx, sy);
}

void Player::stretch(Arguments& in) {
  int v[8];
  for (int& value : v) value = in.number();
  raster::stretch(canvas_, v[0], v[1], v[2], v[3], source_, v[4], v[5], v[6], v[7]);
}

}  // namespace

Bitmap prepared(const Case& which) {
  Bitmap canvas(which.width, which.height, which.background);
  for (const Words& words : which.operations) {
    const auto found = kPreparations.find(words[0]);
    if (found == kPreparations.end()) continue;
    Arguments in(words);
    found->second(canvas, in);
  }
  return canvas;
}

Bitmap play(const Case& which) {
  Player player(Bitmap(which.width, which.height, which.background));
  for (const Words& words : which.operations) player.perform(words);
  return player.take();
}

}  // namespace replay
