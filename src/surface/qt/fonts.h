// The screen's fonts: their names, and text turned into dots.
#pragma once

#include <string>
#include <vector>

#include "surface/font.h"
#include "surface/host.h"

namespace surface::qt {

/// Makes every typeface in a folder one of the screen's, for this program only. A package for a
/// system that has too few brings such a folder; elsewhere there is none.
void installTypefaces(const std::string& folder);

/// The families of any size that can write Dutch, in the system's order, each name once.
std::vector<std::string> screenFonts();

/// The text without anti-aliasing and hinting, so that it has the same dots on every machine. What
/// reaches beyond the width of any surface is left out.
TextMask rasterText(const Font& font, const std::string& text);

}  // namespace surface::qt
