// What the program knows of the screen.
#pragma once

namespace surface::Screen {

/// The size of the whole screen, twips.
float Width();
float Height();

}  // namespace surface::Screen
