// What the large studio's windows share: module-level values and routines.
#pragma once

#include <cstdint>

#include "surface/controls.h"

/// Set while the magnifier is open.
extern std::int16_t ZoomOpen;

/// The column and the row at which the last replacement of colours ended; 0 before the first. The
/// worms start from there.
extern double ScanKolom;
extern std::int16_t ScanRij;

/// Moves the chain of effect snapshots of the studio on by one and puts the sheet at its head.
void UndoShift();

/// Switches the studio's progress bar and its timer on. The count goes on where it stood.
void StartProgress();

/// Draws the source on the target, turned to the left by `angle` (radians) around the middle; see
/// effects::rotateInto.
void RotateInto(const surface::PictureBox& source, surface::PictureBox& target, float angle);
