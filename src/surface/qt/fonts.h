// The screen's fonts: their names, and text turned into dots.
#pragma once

#include <string>
#include <vector>

#include "surface/font.h"
#include "surface/host.h"

namespace surface::qt {

/// The families of any size that can write Dutch, in the system's order, each name once.
std::vector<std::string> screenFonts();

/// The text without anti-aliasing and hinting, so that it has the same dots on every machine. What
/// reaches beyond the width of any surface is left out.
TextMask rasterText(const Font& font, const std::string& text);

}  // namespace surface::qt
