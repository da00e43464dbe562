// The factory of widgets, and what every widget takes over from its control.
#include "surface/qt/peers.h"

#include <QAbstractScrollArea>
#include <algorithm>
#include <vector>

#include "surface/form.h"
#include "surface/qt/button.h"
#include "surface/qt/display_widgets.h"
#include "surface/qt/factor.h"
#include "surface/qt/input_widgets.h"
#include "surface/qt/pointer.h"
#include "surface/qt/surface_widget.h"
#include "surface/qt/windowless.h"

namespace surface::qt {
namespace {

// The widget and its bond for a control, if it is of this kind.
template <class Kind, class Widget, class Bond = WidgetPeer<Widget>>
std::unique_ptr<Peer> tryMake(Control& control, QWidget& parent, bool fits = true) {
  auto* owner = dynamic_cast<Kind*>(&control);
  if (!owner || !fits) return nullptr;
  return std::make_unique<Bond>(new Widget(*owner, parent));
}

bool multiLine(const Control& control) {
  const auto* text = dynamic_cast<const TextBox*>(&control);
  return text && text->MultiLine;
}

}  // namespace

QWidget* widgetOf(const Control& control) {
  const auto* peer = dynamic_cast<const HasWidget*>(control.peer());
  return peer ? peer->widget() : nullptr;
}

namespace {

QCursor pointerOf(const Control& control) {
  const int ruling = control.container().form().MousePointer;
  if (ruling != PointerDefault) return toCursor(ruling, {});
  if (const auto* box = dynamic_cast<const PictureBox*>(&control))
    return toCursor(box->MousePointer, box->MouseIcon);
  return toCursor(dynamic_cast<const TextBox*>(&control) ? PointerText : PointerDefault, {});
}

void applyPointer(QWidget& widget, const Control& control) {
  const QCursor cursor = pointerOf(control);
  widget.setCursor(cursor);
  // What scrolls has its contents in a widget of their own, with a pointer of its own.
  if (auto* area = qobject_cast<QAbstractScrollArea*>(&widget)) area->viewport()->setCursor(cursor);
}

}  // namespace

std::unique_ptr<Peer> makePeer(Control& control, QWidget& parent) {
  std::unique_ptr<Peer> made;
  (made = tryMake<CommandButton, ButtonWidget>(control, parent)) ||
      (made = tryMake<Label, LabelWidget>(control, parent)) ||
      (made = tryMake<Frame, FrameWidget>(control, parent)) ||
      (made = tryMake<PictureBox, SurfaceWidget, SurfaceWidgetPeer>(control, parent)) ||
      (made = tryMake<ImageControl, ImageWidget>(control, parent)) ||
      (made = tryMake<ProgressBar, ProgressWidget>(control, parent)) ||
      (made = tryMake<TextBox, LongTextWidget>(control, parent, multiLine(control))) ||
      (made = tryMake<TextBox, TextWidget>(control, parent)) ||
      (made = tryMake<CheckBox, CheckWidget>(control, parent)) ||
      (made = tryMake<OptionButton, OptionWidget>(control, parent)) ||
      (made = tryMake<ComboBox, ComboWidget>(control, parent)) ||
      (made = tryMake<ListBox, ListWidget>(control, parent)) ||
      (made = tryMake<Slider, SliderWidget>(control, parent)) ||
      (made = tryMake<HScrollBar, ScrollWidget>(control, parent)) ||
      (made = tryMake<LineControl, FigureWidget>(control, parent)) ||
      (made = tryMake<ShapeControl, FigureWidget>(control, parent));
  if (!made) return made;
  for (const Aspect aspect : {Aspect::Place, Aspect::Look, Aspect::Pointer, Aspect::Value,
                              Aspect::Enabled, Aspect::Visibility})
    made->update(aspect);
  return made;
}

void makePeers(const Container& container, QWidget& parent) {
  for (Control* control : container.controls())
    if (control->Visible) control->setPeer(makePeer(*control, parent));
}

void makePeerLate(Control& control, QWidget& window) {
  const auto* container = dynamic_cast<const Control*>(&control.container());
  QWidget* parent = container ? widgetOf(*container) : &window;
  if (!parent) return;
  control.setPeer(makePeer(control, *parent));
  // Declaration order is the stacking order: under the next neighbour that has a widget.
  const auto& neighbours = control.container().controls();
  auto next = std::find(neighbours.begin(), neighbours.end(), &control);
  while (++next != neighbours.end() && !widgetOf(**next)) {
  }
  if (next != neighbours.end()) widgetOf(control)->stackUnder(widgetOf(**next));
}

namespace {

// The toolkit would hand the focus of a button that goes off on to its neighbour: the next Space on
// the undo button would then wipe the sheet.
void focusFirstStop(const Control& control) {
  Control* first = control.container().form().FirstStop;
  if (first && first != &control) first->SetFocus();
}

}  // namespace

void applyCommon(QWidget& widget, const Control& control, Aspect aspect,
                 const QString& spokenText) {
  switch (aspect) {
    case Aspect::Place:
      widget.setGeometry(toQRect(control.pixelPlace()));
      break;
    case Aspect::Visibility:
      widget.setVisible(control.Visible);
      break;
    case Aspect::Enabled:
      if (!control.Enabled && widget.window()->focusWidget() == &widget) focusFirstStop(control);
      widget.setEnabled(control.Enabled);
      break;
    case Aspect::Look: {
      const QString tip = QString::fromStdString(control.ToolTipText);
      widget.setToolTip(tip);
      widget.setAccessibleName(!control.AccessibleName.empty()
                                   ? QString::fromStdString(control.AccessibleName)
                               : !spokenText.isEmpty() ? spokenText
                                                       : tip);
      widget.setAccessibleDescription(tip);
      break;
    }
    case Aspect::Pointer:
      applyPointer(widget, control);
      break;
    case Aspect::Value:
      break;
  }
}

namespace {

bool hides(const QObject* object) {
  const auto* widget = qobject_cast<const QWidget*>(object);
  return widget && widget->isVisible() &&
         (widget->testAttribute(Qt::WA_OpaquePaintEvent) || widget->autoFillBackground());
}

void subtract(QRegion& region, const QObject* object, const QPoint& origin) {
  if (hides(object)) region -= static_cast<const QWidget*>(object)->geometry().translated(-origin);
}

// The toolkit takes rectangles in this order as a region as they are, and would search its place
// for each of them otherwise.
bool inOrder(const std::vector<QRect>& areas) {
  return std::adjacent_find(areas.begin(), areas.end(), [](const QRect& a, const QRect& b) {
           const bool beside =
               a.top() == b.top() && a.bottom() == b.bottom() && a.right() < b.left();
           return !beside && a.bottom() >= b.top();
         }) == areas.end();
}

QRegion damagedRegion(const QWidget& widget, std::span<const raster::Rect> changed) {
  const QPoint corner = widget.mapTo(widget.window(), QPoint());
  std::vector<QRect> areas;
  areas.reserve(changed.size());
  for (const raster::Rect& area : changed)
    areas.push_back(damaged(toQRect(area), widget.devicePixelRatioF(), corner));
  QRegion region;
  if (inOrder(areas))
    region.setRects(areas.data(), static_cast<int>(areas.size()));
  else
    for (const QRect& area : areas) region += area;
  return region;
}

}  // namespace

void showPixels(QWidget& widget, std::span<const raster::Rect> areas, bool atOnce) {
  QRegion region = damagedRegion(widget, areas);
  for (const QObject* child : widget.children()) subtract(region, child, {});
  if (!widget.isWindow()) {
    const auto& neighbours = widget.parentWidget()->children();
    auto above = std::find(neighbours.begin(), neighbours.end(), &widget);
    while (++above != neighbours.end()) subtract(region, *above, widget.pos());
  }
  if (atOnce)
    widget.repaint(region);
  else
    widget.update(region);
}

}  // namespace surface::qt
