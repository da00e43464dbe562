// The file flows that the studios share: choosing a name, saving, and the picture of the command
// line.
#pragma once

#include <string>

#include "surface/surface.h"

/// Whether something of that name exists; a folder counts.
bool BestandBestaat(const std::string& name);

/// Asks for a name, once more if the child does not want to overwrite, and writes the sheet. Any
/// error or cancel ends it silently.
void bewaarTekening(surface::CommonDialog& dialog, const surface::PictureBox& sheet);

/// Asks for a picture to open; a Cancelled error if there is none.
std::string kiesBestand(surface::CommonDialog& dialog);

/// Puts the picture that the command line names on the sheet, or tells the child that it cannot.
void opdrachtregelNaarBlad(surface::PictureBox& sheet);
