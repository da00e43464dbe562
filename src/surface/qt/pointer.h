// Pointer events and pointer shapes between the toolkit and the model.
#pragma once

#include <QCursor>
#include <QMouseEvent>
#include <string>

#include "surface/event.h"

namespace surface::qt {

/// A press or release: the one button concerned; a move: all that are held. Positions times
/// `unitsPerPixel`.
Mouse toMouse(const QMouseEvent& event, double unitsPerPixel);

/// The cursor of a MousePointer value; 99 is the named cursor picture.
QCursor toCursor(int pointer, const std::string& icon);

}  // namespace surface::qt
