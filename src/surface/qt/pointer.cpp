// The numbers by which the model knows buttons, modifier keys and pointer shapes.
#include "surface/qt/pointer.h"

#include "surface/controls.h"
#include "surface/numbers.h"
#include "surface/qt/art.h"

namespace surface::qt {

QPoint pixelUnder(const QMouseEvent& event) {
  return {static_cast<int>(Int(event.position().x())), static_cast<int>(Int(event.position().y()))};
}

Mouse toMouse(const QMouseEvent& event) {
  const bool move = event.type() == QEvent::MouseMove;
  const Qt::MouseButtons buttons = move ? event.buttons() : Qt::MouseButtons(event.button());
  Mouse mouse;
  mouse.Button = (buttons & Qt::LeftButton ? 1 : 0) | (buttons & Qt::RightButton ? 2 : 0) |
                 (buttons & Qt::MiddleButton ? 4 : 0);
  const Qt::KeyboardModifiers keys = event.modifiers();
  mouse.Shift = (keys & Qt::ShiftModifier ? 1 : 0) | (keys & Qt::ControlModifier ? 2 : 0) |
                (keys & Qt::AltModifier ? 4 : 0);
  const QPoint at = pixelUnder(event);
  mouse.X = static_cast<float>(at.x() * TwipsPerPixel);
  mouse.Y = static_cast<float>(at.y() * TwipsPerPixel);
  return mouse;
}

Mouse toMouse(const QMouseEvent& event, const DrawingSurface& surface) {
  Mouse mouse = toMouse(event);
  const QPoint at = pixelUnder(event);
  const PointF place = surface.toScale(at.x(), at.y());
  mouse.X = place.X;
  mouse.Y = place.Y;
  return mouse;
}

QCursor toCursor(int pointer, const std::string& icon) {
  switch (pointer) {
    case PointerCross:
      return Qt::CrossCursor;
    case PointerText:
      return Qt::IBeamCursor;
    case PointerHourglass:
      return Qt::WaitCursor;
    case PointerCustom:
      return artCursor(icon);
    default:
      return Qt::ArrowCursor;
  }
}

}  // namespace surface::qt
