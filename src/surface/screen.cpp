// The screen's measures through the seam.
#include "surface/screen.h"

#include "surface/host.h"
#include "surface/scale.h"

namespace surface::Screen {

float Width() {
  return ScaleX(static_cast<float>(host().screen().width()), ScalePixels, ScaleTwips);
}
float Height() {
  return ScaleY(static_cast<float>(host().screen().height()), ScalePixels, ScaleTwips);
}

}  // namespace surface::Screen
