// The numbers by which the model knows buttons, modifier keys and pointer shapes.
#include "surface/qt/pointer.h"

#include <QGuiApplication>
#include <QWindow>

#include "surface/controls.h"
#include "surface/numbers.h"
#include "surface/qt/art.h"
#include "surface/qt/factor.h"

namespace surface::qt {

namespace {

// What a position may lose of a pixel when the toolkit counts it to and fro.
constexpr double Lost = 1e-6;

// The buttons that the model knows. A press of another one would have no number, and its release
// would end the drag of those.
constexpr Qt::MouseButtons KnownButtons = Qt::LeftButton | Qt::RightButton | Qt::MiddleButton;

// Before a window looks for the widget beneath the pointer: it would round, and at the edge find
// the neighbour.
class ExactPointer : public QObject {
 public:
  using QObject::QObject;
  bool eventFilter(QObject* watched, QEvent* event) override {
    const auto* window = watched->isWindowType() ? static_cast<QWindow*>(watched) : nullptr;
    switch (event->type()) {
      case QEvent::MouseButtonPress:
      case QEvent::MouseButtonRelease:
      case QEvent::MouseButtonDblClick:
        if (window && !(KnownButtons & static_cast<QMouseEvent*>(event)->button())) return true;
        [[fallthrough]];
      case QEvent::MouseMove:
        if (window) snap(*static_cast<QMouseEvent*>(event), *window);
        break;
      default:
        break;
    }
    return false;
  }

 private:
  // A pen or a finger stands somewhere within a device pixel: it hits what a mouse does there.
  static int snapped(double position, double factor) {
    return pixelShownAt(static_cast<int>(Int(position * factor + Lost)), factor);
  }
  static void snap(QMouseEvent& event, const QWindow& window) {
    // The toolkit rounds a finger's place in the window, but not that on the screen.
    const QPointF place = event.source() == Qt::MouseEventSynthesizedByQt
                              ? window.mapFromGlobal(event.globalPosition())
                              : event.position();
    const double factor = window.devicePixelRatio();
    const QPointF at(snapped(place.x(), factor), snapped(place.y(), factor));
    QMouseEvent exact(event.type(), at, at, event.globalPosition(), event.button(), event.buttons(),
                      event.modifiers(), event.pointingDevice());
    event.point(0) = exact.point(0);
  }
};

}  // namespace

void installExactPointer() {
  static QObject* installed = nullptr;
  if (installed) return;
  installed = new ExactPointer(qApp);
  qApp->installEventFilter(installed);
}

QPoint pixelUnder(const QMouseEvent& event) {
  const QPointF at = event.position() + QPointF(Lost, Lost);
  return {static_cast<int>(Int(at.x())), static_cast<int>(Int(at.y()))};
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
