// The printer through the toolkit: its dialog, and the page.
#pragma once

#include <vector>

#include "surface/printer.h"

namespace surface::qt {

/// Lets the child choose a printer or a file, which stays chosen; false on cancel, and where there
/// is nothing to print on.
bool printerDialog();
/// Prints one page on what was chosen. CannotWrite if it refuses.
void printPage(const std::vector<Printed>& page);

}  // namespace surface::qt
