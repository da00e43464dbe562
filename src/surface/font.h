// A font as a control names it, and a control's font as a property whose parts can be set one by
// one.
#pragma once

#include <string>
#include <vector>

#include "surface/prop.h"

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

/// `Changed` is the owner's member function that runs after an assignment to the whole font or to
/// one of its parts.
template <auto Changed>
class FontProp {
  using Owner = typename detail::HookOwner<decltype(Changed)>::type;

 public:
  FontProp(Owner& owner, const Font& font)
      : Name(owner, font.Name),
        Size(owner, font.Size),
        Bold(owner, font.Bold),
        Italic(owner, font.Italic),
        Underline(owner, font.Underline),
        Strikethru(owner, font.Strikethru) {}
  FontProp(const FontProp&) = delete;

  FontProp& operator=(const FontProp& other) { return *this = static_cast<Font>(other); }
  FontProp& operator=(const Font& font) {
    Size.setQuietly(font.Size);
    Bold.setQuietly(font.Bold);
    Italic.setQuietly(font.Italic);
    Underline.setQuietly(font.Underline);
    Strikethru.setQuietly(font.Strikethru);
    Name = font.Name;
    return *this;
  }

  operator Font() const { return {Name, Size, Bold, Italic, Underline, Strikethru}; }

  Prop<std::string, Changed> Name;
  Prop<float, Changed> Size;
  Prop<bool, Changed> Bold;
  Prop<bool, Changed> Italic;
  Prop<bool, Changed> Underline;
  Prop<bool, Changed> Strikethru;
};

/// The names of the screen's fonts of any size that can write Dutch, sorted, each once.
std::vector<std::string> ScreenFonts();

}  // namespace surface
