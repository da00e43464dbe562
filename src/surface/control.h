// What all controls share: their place in a container, visibility, and the way to the widget that
// shows them. The kinds stand in controls.h.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "surface/color.h"
#include "surface/container.h"
#include "surface/event.h"
#include "surface/font.h"
#include "surface/prop.h"

namespace surface {

/// What a change of a control touches on the screen.
enum class Aspect { Place, Visibility, Enabled, Look, Value, Pointer };

/// The widget behind a control, made by the toolkit layer when the control is first seen.
class Peer {
 public:
  virtual ~Peer() = default;
  /// Takes over the control's properties of one aspect.
  virtual void update(Aspect aspect) = 0;
  virtual void focus() {}
};

namespace check {
void length(const float& value);
}  // namespace check

class Control {
 protected:
  void placeChanged() { changed(Aspect::Place); }
  void widthChanged(const float& former);
  void heightChanged(const float& former);
  void visibilityChanged();
  void enabledChanged() { changed(Aspect::Enabled); }
  void lookChanged() { changed(Aspect::Look); }
  void valueChanged() { changed(Aspect::Value); }
  void unchanged() {}

 public:
  /// The place at design, twips.
  struct Place {
    float Left, Top, Width, Height;
  };
  Control(Container& container, const Place& place, bool visible);
  virtual ~Control();
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  // In the scale of the container: the upper left corner, and a size that is positive whichever way
  // the scale runs.
  Prop<float, &Control::placeChanged> Left;
  Prop<float, &Control::placeChanged> Top;
  Prop<float, &Control::widthChanged, check::length> Width;
  Prop<float, &Control::heightChanged, check::length> Height;
  Prop<bool, &Control::visibilityChanged> Visible;
  Prop<bool, &Control::enabledChanged> Enabled;
  Prop<std::string, &Control::lookChanged> ToolTipText;
  /// Looks held down: the chosen one of several buttons, or of several raised surfaces.
  Prop<bool, &Control::lookChanged> Pressed;
  int Index = 0;  ///< within a control array

  void SetFocus();

  Container& container() const { return container_; }
  /// Left, top, width, height in pixels within the container.
  raster::Rect pixelPlace() const;
  /// Lines and shapes are only seen: the pointer reaches what lies beneath them.
  virtual bool windowless() const { return false; }
  /// The pixels within the container that the control may paint.
  virtual raster::Rect paintedPixels() const { return pixelPlace(); }
  /// The container side of a control that holds others, or null.
  virtual Container* asContainer() { return nullptr; }
  /// What a screen reader says, if the text and the tooltip do not tell it.
  std::string AccessibleName;

  Peer* peer() const { return peer_.get(); }
  void setPeer(std::unique_ptr<Peer> peer) { peer_ = std::move(peer); }

 protected:
  /// A position in the container's scale to pixels.
  int pixelX(float x) const;
  int pixelY(float y) const;
  void changed(Aspect aspect);
  /// Hook for surfaces: the size in pixels has changed. May throw to refuse it.
  virtual void resized() {}
  /// The container counts otherwise from now on, and the control stays where it is.
  virtual void rescaled(const Scale& from, const Scale& to);

 private:
  friend class Container;

  Container& container_;
  std::unique_ptr<Peer> peer_;
};

}  // namespace surface
