// The colours that tests paint with.
#pragma once

#include "surface/color.h"

inline constexpr surface::Color Red = 0x0000FF, Green = 0x00FF00, Blue = 0xFF0000;
