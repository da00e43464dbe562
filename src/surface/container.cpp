// The scale of a container, and its controls when it changes.
#include "surface/container.h"

#include <utility>

#include "surface/control.h"

namespace surface {

void Container::setUserScale(PointF origin, SizeF extent) {
  Scale changed = scale_;
  changed.setUser({origin, extent});
  setScale(changed);
}

void Container::setScaleInner(int width, int height) {
  Scale changed = scale_;
  changed.setInner(width, height);
  setScale(changed);
}

void Container::setScale(const Scale& scale) {
  const Scale former = std::exchange(scale_, scale);
  // Places in a unit of a fixed length stay as they are, and so do all when an animation sets the
  // same scale with every tick.
  if (scale_ == former || (scale_.unit() == former.unit() && scale_.unit() != ScaleUser)) return;
  for (Control* control : controls_) control->rescaled(former, scale_);
}

}  // namespace surface
