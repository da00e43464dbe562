// What becomes of the drawings when the desktop logs out or the machine goes down.
#pragma once

#include <string>

/// The desktop logs out: each studio that holds a drawing asks whether to save it.
void vraagBijAfmelden();

/// The machine goes down, and nobody can be asked: each sheet that holds a drawing is written into
/// the folder as "KrasPret redding N.bmp", with a number that is not taken yet. What cannot be
/// written is left out.
void redTekeningen(const std::string& folder);
