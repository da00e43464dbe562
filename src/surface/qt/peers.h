// The bond between a control of the model and its widget, and the factory that makes the widget for
// each kind.
#pragma once

#include <QColor>
#include <QPointer>
#include <QWidget>
#include <memory>
#include <span>

#include "surface/controls.h"
#include "surface/event.h"

namespace surface::qt {

/// A Color of the model for a painter.
inline QColor toQColor(Color color) { return QColor::fromRgb(toPixel(color)); }

inline QRect toQRect(const raster::Rect& r) { return QRect(r.left, r.top, r.width(), r.height()); }

/// Makes the widget of a control inside `parent`.
std::unique_ptr<Peer> makePeer(Control& control, QWidget& parent);

/// Makes the widgets of all controls of a container that are visible by themselves.
void makePeers(const Container& container, QWidget& parent);
/// Makes the widget of one control that has become visible, at its place in the stack of its
/// neighbours; nothing if its container has no widget yet. `window` is the form's.
void makePeerLate(Control& control, QWidget& window);

/// The widget of a control, null while it has none.
QWidget* widgetOf(const Control& control);

/// Takes place, visibility, enabled state, pointer, tooltip and spoken name over to a widget.
void applyCommon(QWidget& widget, const Control& control, Aspect aspect,
                 const QString& spokenText = {});

/// Repaints parts of a widget's drawing, now or when idle. What opaque widgets above it hide is
/// left out, or an animation would paint the buttons over it with every tick.
void showPixels(QWidget& widget, std::span<const raster::Rect> areas, bool atOnce);

/// The toolkit's side of every peer.
class HasWidget {
 public:
  virtual ~HasWidget() = default;
  virtual QWidget* widget() const = 0;
};

/// A widget that may outlive its control by one turn of the event loop, since a handler may unload
/// the form whose event is being delivered: it loses its control first, and does nothing from then
/// on. `Widget` has a public `control` pointer and `sync(Aspect)`.
template <class Widget, class Base = Peer>
class WidgetPeer : public Base, public HasWidget {
 public:
  explicit WidgetPeer(Widget* widget) : widget_(widget) {}
  ~WidgetPeer() override {
    if (!widget_) return;
    widget_->control = nullptr;
    widget_->hide();
    widget_->deleteLater();
  }

  void update(Aspect aspect) override {
    if (widget_) widget_->sync(aspect);
  }
  void focus() override {
    if (widget_) widget_->setFocus();
  }
  QWidget* widget() const override { return widget_; }

 protected:
  QPointer<Widget> widget_;
};

}  // namespace surface::qt
