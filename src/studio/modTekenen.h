// What the large studio's windows share: module-level values and routines.
#pragma once

#include <cstdint>

/// Set while the magnifier is open.
extern std::int16_t ZoomOpen;

/// Moves the chain of effect snapshots of the studio on by one and puts the sheet at its head.
void UndoShift();
