// The one way in which the studios ask for a colour.
#pragma once

#include <optional>

#include "surface/dialogs.h"

/// Asks for one of the ready-made colours; none on a cancel.
std::optional<surface::Color> chosenColor(surface::CommonDialog& dialog);
