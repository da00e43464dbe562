// The factory of widgets, and what every widget takes over from its control.
#include "surface/qt/peers.h"

#include <algorithm>

#include "surface/qt/button.h"
#include "surface/qt/display_widgets.h"
#include "surface/qt/input_widgets.h"
#include "surface/qt/surface_widget.h"

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

QWidget* widgetOf(const Control& control) {
  const auto* peer = dynamic_cast<const HasWidget*>(control.peer());
  return peer ? peer->widget() : nullptr;
}

}  // namespace

std::unique_ptr<Peer> makePeer(Control& control, QWidget& parent) {
  std::unique_ptr<Peer> made;
  (made = tryMake<CommandButton, ButtonWidget>(control, parent)) ||
      (made = tryMake<Label, LabelWidget>(control, parent)) ||
      (made = tryMake<Frame, FrameWidget, FramePeer>(control, parent)) ||
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
      (made = tryMake<HScrollBar, ScrollWidget>(control, parent));
  if (!made) return made;
  for (const Aspect aspect :
       {Aspect::Place, Aspect::Look, Aspect::Value, Aspect::Enabled, Aspect::Visibility})
    made->update(aspect);
  return made;
}

void makePeers(const Container& container, QWidget& parent) {
  for (Control* control : container.controls())
    if (control->Visible && !control->windowless()) control->setPeer(makePeer(*control, parent));
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
    case Aspect::Value:
      break;
  }
}

}  // namespace surface::qt
