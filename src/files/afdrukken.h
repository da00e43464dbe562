// The print flow that the studios share.
#pragma once

#include "surface/surface.h"

/// Asks for a printer and prints the whole sheet at its natural size, 2 cm from the left and the
/// top of the page. A cancel, no printer and any error end it silently.
void drukTekeningAf(surface::CommonDialog& dialog, const surface::PictureBox& sheet);
