// What all controls share.
#include "surface/control.h"

#include <algorithm>
#include <cmath>
#include <exception>
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

namespace {

// Far beyond any screen, and far from what an int can hold.
int wholePixels(double pixels) {
  return std::isnan(pixels) ? 0 : static_cast<int>(roundEven(std::clamp(pixels, -1e6, 1e6)));
}

float lengthFrom(double pixels, double pixelsPerUnit) {
  return static_cast<float>(pixels / std::abs(pixelsPerUnit));
}

}  // namespace

Control::Control(Container& container, const Place& place, bool visible)
    : Left(*this, container.scale().fromPixelX(place.Left / TwipsPerPixel)),
      Top(*this, container.scale().fromPixelY(place.Top / TwipsPerPixel)),
      Width(*this, lengthFrom(place.Width / TwipsPerPixel, container.scale().pixelsPerUnitX())),
      Height(*this, lengthFrom(place.Height / TwipsPerPixel, container.scale().pixelsPerUnitY())),
      Visible(*this, visible),
      Enabled(*this, true),
      ToolTipText(*this, {}),
      Pressed(*this, false),
      container_(container) {
  container.controls_.push_back(this);
}

Control::~Control() { std::erase(container_.controls_, this); }

int Control::pixelX(float x) const { return wholePixels(container_.scale().toPixelX(x)); }
int Control::pixelY(float y) const { return wholePixels(container_.scale().toPixelY(y)); }

raster::Rect Control::pixelPlace() const {
  const Scale& scale = container_.scale();
  const int left = pixelX(Left), top = pixelY(Top);
  return {left, top, left + wholePixels(Width * std::abs(scale.pixelsPerUnitX())),
          top + wholePixels(Height * std::abs(scale.pixelsPerUnitY()))};
}

void Control::rescaled(const Scale& from, const Scale& to) {
  Left.setQuietly(to.fromPixelX(from.toPixelX(Left)));
  Top.setQuietly(to.fromPixelY(from.toPixelY(Top)));
  Width.setQuietly(lengthFrom(Width * std::abs(from.pixelsPerUnitX()), to.pixelsPerUnitX()));
  Height.setQuietly(lengthFrom(Height * std::abs(from.pixelsPerUnitY()), to.pixelsPerUnitY()));
}

void Control::widthChanged(const float& former) {
  try {
    resized();
  } catch (const std::exception&) {
    Width.setQuietly(former);
    throw;
  }
  changed(Aspect::Place);
}

void Control::heightChanged(const float& former) {
  try {
    resized();
  } catch (const std::exception&) {
    Height.setQuietly(former);
    throw;
  }
  changed(Aspect::Place);
}

void Control::visibilityChanged() {
  if (!peer_ && Visible) container_.form().controlShown(*this);
  changed(Aspect::Visibility);
}

void Control::changed(Aspect aspect) {
  if (peer_) peer_->update(aspect);
}

void Control::SetFocus() {
  if (peer_) peer_->focus();
}

}  // namespace surface
