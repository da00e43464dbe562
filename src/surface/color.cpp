// The two fixed colour tables: sixteen classic colours, and the system colours of the classic
// desktop.
#include "surface/color.h"

#include <array>
#include <cstddef>

#include "surface/errors.h"

namespace surface {
namespace {

constexpr std::array<Color, 16> Classic = {
    0x000000, 0x800000, 0x008000, 0x808000, 0x000080, 0x800080, 0x008080, 0xC0C0C0,
    0x808080, 0xFF0000, 0x00FF00, 0xFFFF00, 0x0000FF, 0xFF00FF, 0x00FFFF, 0xFFFFFF};

constexpr std::array<Color, 25> System = {
    0xC0C0C0,  // scroll bar
    0x808000,  // desktop
    0x800000,  // active title bar
    0x808080,  // inactive title bar
    0xC0C0C0,  // menu
    0xFFFFFF,  // window
    0x000000,  // window frame
    0x000000,  // menu text
    0x000000,  // window text
    0xFFFFFF,  // title text
    0xC0C0C0,  // active border
    0xC0C0C0,  // inactive border
    0x808080,  // application workspace
    0x800000,  // highlight
    0xFFFFFF,  // highlighted text
    0xC0C0C0,  // button face
    0x808080,  // button shadow
    0x808080,  // grey text
    0x000000,  // button text
    0xC0C0C0,  // inactive title text
    0xFFFFFF,  // button highlight
    0x000000,  // dark shadow
    0xC0C0C0,  // light edge
    0x000000,  // tooltip text
    0xE1FFFF,  // tooltip
};

}  // namespace

Color QBColor(int n) {
  if (n < 0 || n > 15) throw RuntimeError(ErrorKind::SubscriptOutOfRange, "Subscript out of range");
  return Classic[static_cast<std::size_t>(n)];
}

Color resolved(Color color) {
  if (color >= 0) return color & 0xFFFFFF;
  const std::size_t index = static_cast<std::uint32_t>(color) & 0xFF;
  return index < System.size() ? System[index] : Black;
}

}  // namespace surface
