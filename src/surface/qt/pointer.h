// Pointer events and pointer shapes between the toolkit and the model.
#pragma once

#include <QCursor>
#include <QMouseEvent>
#include <string>

#include "surface/drawing.h"
#include "surface/event.h"

namespace surface::qt {

/// A press or release: the one button concerned; a move: all that are held. Positions in the scale
/// of the surface.
Mouse toMouse(const QMouseEvent& event, const DrawingSurface& surface);
/// The same on a control without a scale of its own: positions in twips.
Mouse toMouse(const QMouseEvent& event);

/// Lets every window hear of logical pixels only: a pointer that is anywhere on a device pixel is
/// on the logical pixel that is shown there. And of the left, right and middle button only, not of
/// those at a mouse's side. Once, with the application.
void installExactPointer();

/// The pixel of the widget that the pointer is on; a position may be a fraction.
QPoint pixelUnder(const QMouseEvent& event);

/// The cursor of a MousePointer value; 99 is the named cursor picture.
QCursor toCursor(int pointer, const std::string& icon);

}  // namespace surface::qt
