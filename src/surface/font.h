// A font as a control names it.
#pragma once

#include <string>

namespace surface {

struct Font {
  std::string Name = "Arial";
  float Size = 8.25f;  ///< points, 96 dots to the inch
  bool Bold = false;
  bool Italic = false;
  bool Underline = false;
  bool Strikethru = false;

  friend bool operator==(const Font&, const Font&) = default;
};

}  // namespace surface
