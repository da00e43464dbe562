// Units and what they are in pixels.
#include "surface/scale.h"

#include <algorithm>

#include "surface/errors.h"

namespace surface {
namespace {

double twipsPer(ScaleUnit unit) {
  switch (unit) {
    case ScalePixels:
      return TwipsPerPixel;
    case ScaleCentimetres:
      return TwipsPerCentimetre;
    default:
      return 1;
  }
}

}  // namespace

float ScaleX(float value, ScaleUnit from, ScaleUnit to) {
  return static_cast<float>(value * twipsPer(from) / twipsPer(to));
}
float ScaleY(float value, ScaleUnit from, ScaleUnit to) { return ScaleX(value, from, to); }

Scale::Scale(ScaleUnit unit, const UserScale& user) : unit_(unit) {
  if (user.Extent.Width != 0 || user.Extent.Height != 0)
    setUser(user);
  else
    measure();
}

float Scale::width() const {
  return unit_ == ScaleUser ? user_.Extent.Width : static_cast<float>(innerWidth_ / perX_);
}

float Scale::height() const {
  return unit_ == ScaleUser ? user_.Extent.Height : static_cast<float>(innerHeight_ / perY_);
}

void Scale::setInner(int width, int height) {
  innerWidth_ = width;
  innerHeight_ = height;
  measure();
}

void Scale::setUser(const UserScale& user) {
  // Written so that a value that is no number fails too.
  const auto counts = [](float extent) { return extent < 0 || extent > 0; };
  if (!counts(user.Extent.Width) || !counts(user.Extent.Height))
    throw RuntimeError(ErrorKind::BadPropertyValue, "Invalid property value");
  unit_ = ScaleUser;
  user_ = user;
  measure();
}

void Scale::measure() {
  if (unit_ == ScaleUser) {
    // An area that has no size yet counts as one pixel, so that nothing is divided by 0.
    perX_ = std::max(innerWidth_, 1) / static_cast<double>(user_.Extent.Width);
    perY_ = std::max(innerHeight_, 1) / static_cast<double>(user_.Extent.Height);
  } else {
    perX_ = perY_ = twipsPer(unit_) / TwipsPerPixel;
  }
}

}  // namespace surface
