// What can hold controls: a form, a frame or a picture box. Its scale is the unit of its controls'
// places.
#pragma once

#include <vector>

#include "surface/scale.h"

namespace surface {

class Control;
class Form;

class Container {
 public:
  virtual ~Container() = default;
  Container(const Container&) = delete;
  Container& operator=(const Container&) = delete;

  virtual Form& form() = 0;

  ScaleUnit ScaleMode() const { return scale_.unit(); }
  /// What the upper left corner of the inner area is called; 0 but for a user scale.
  float ScaleLeft() const { return scale_.user().Origin.X; }
  float ScaleTop() const { return scale_.user().Origin.Y; }
  /// The inner size in the container's own unit.
  float ScaleWidth() const { return scale_.width(); }
  float ScaleHeight() const { return scale_.height(); }
  /// Switches to a scale of the program's own. The controls stay where they are on the screen;
  /// their places are told in the new scale. BadPropertyValue for an extent of 0.
  void setUserScale(PointF origin, SizeF extent);

  const Scale& scale() const { return scale_; }
  const std::vector<Control*>& controls() const { return controls_; }

 protected:
  Container(ScaleUnit unit, const UserScale& user) : scale_(unit, user) {}
  /// The inner size in pixels; the controls stay where they are, whatever the scale.
  void setScaleInner(int width, int height);

 private:
  friend class Control;
  void setScale(const Scale& scale);

  Scale scale_;
  std::vector<Control*> controls_;
};

}  // namespace surface
