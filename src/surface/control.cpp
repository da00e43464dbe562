// What all controls share.
#include "surface/control.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "surface/drawing.h"
#include "surface/errors.h"
#include "surface/form.h"
#include "surface/numbers.h"

namespace surface {

namespace check {
void length(const float& value) {
  if (!(value >= 0 && std::isfinite(value)))
    throw RuntimeError(ErrorKind::BadPropertyValue, "Invalid property value");
}
}  // namespace check

Control::Control(Container& container, const Place& place, bool visible)
    : Left(*this, static_cast<float>(place.Left / container.twipsPerUnit())),
      Top(*this, static_cast<float>(place.Top / container.twipsPerUnit())),
      Width(*this, static_cast<float>(place.Width / container.twipsPerUnit())),
      Height(*this, static_cast<float>(place.Height / container.twipsPerUnit())),
      Visible(*this, visible),
      Enabled(*this, true),
      ToolTipText(*this, {}),
      container_(container) {
  container.controls_.push_back(this);
}

Control::~Control() { std::erase(container_.controls_, this); }

int Control::toPixels(float length) const {
  const double pixels = length * container_.twipsPerUnit() / TwipsPerPixel;
  // Far beyond any screen, and far from what an int can hold.
  return static_cast<int>(roundEven(std::clamp(pixels, -1e6, 1e6)));
}

raster::Rect Control::pixelPlace() const {
  const int left = toPixels(Left), top = toPixels(Top);
  return {left, top, left + toPixels(Width), top + toPixels(Height)};
}

void Control::widthChanged(const float& former) {
  try {
    resized();
  } catch (const RuntimeError&) {
    Width.setQuietly(former);
    throw;
  }
  changed(Aspect::Place);
}

void Control::heightChanged(const float& former) {
  try {
    resized();
  } catch (const RuntimeError&) {
    Height.setQuietly(former);
    throw;
  }
  changed(Aspect::Place);
}

void Control::visibilityChanged() {
  if (!windowless() && !peer_ && Visible) container_.form().controlShown(*this);
  changed(Aspect::Visibility);
}

void Control::changed(Aspect aspect) {
  if (!windowless()) {
    if (peer_) peer_->update(aspect);
    return;
  }
  const raster::Rect former = std::exchange(painted_, Visible ? paintedPixels() : raster::Rect{});
  container_.repaintWindowless(unite(former, painted_));
}

void Control::SetFocus() {
  if (peer_) peer_->focus();
}

}  // namespace surface
