// Windows with their controls and their life: the default instance that comes into being on first
// use, new instances, showing, hiding, unloading.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <typeindex>
#include <utility>
#include <vector>

#include "surface/control.h"
#include "surface/drawing.h"
#include "surface/event.h"

namespace surface {

class CheckBox;
class ComboBox;
class CommandButton;
class CommonDialog;
class Frame;
class HScrollBar;
class ImageControl;
class Label;
class LineControl;
class ListBox;
class OptionButton;
class PictureBox;
class ProgressBar;
class ShapeControl;
class Slider;
class TextBox;
class TimerControl;
template <class Kind, std::size_t Count>
class ControlArray;

/// A form's window, made by the toolkit layer at the first Show.
class FormPeer {
 public:
  virtual ~FormPeer() = default;
  virtual void show() = 0;
  virtual void hide() = 0;
  /// Makes the widget of a control that has become visible.
  virtual void addControl(Control& control) = 0;
  /// Caption, pointer or top-most state has changed.
  virtual void update() = 0;
  /// The model has given the window another place.
  virtual void move() = 0;
  /// The model has given the window another size: it stays where it stands, or in the middle of the
  /// screen if it is a centred one that nobody has moved.
  virtual void resize() = 0;
  virtual void showPixels(std::span<const raster::Rect> areas, bool atOnce) = 0;
};

class Form : public DrawingSurface {
 public:
  // The kinds of control by their own names, so that a form's declarations read as its table.
  using CheckBox = surface::CheckBox;
  using ComboBox = surface::ComboBox;
  using CommandButton = surface::CommandButton;
  using CommonDialog = surface::CommonDialog;
  using Frame = surface::Frame;
  using HScrollBar = surface::HScrollBar;
  using ImageControl = surface::ImageControl;
  using Label = surface::Label;
  using LineControl = surface::LineControl;
  using ListBox = surface::ListBox;
  using OptionButton = surface::OptionButton;
  using PictureBox = surface::PictureBox;
  using ProgressBar = surface::ProgressBar;
  using ShapeControl = surface::ShapeControl;
  using Slider = surface::Slider;
  using TextBox = surface::TextBox;
  using TimerControl = surface::TimerControl;
  template <class Kind, std::size_t Count>
  using ControlArray = surface::ControlArray<Kind, Count>;
  using Color = surface::Color;
  using Mouse = surface::Mouse;

 private:
  void windowChanged() {
    if (peer_) peer_->update();
  }
  void pointerChanged();
  void placeChanged();
  void sizeChanged();

 public:
  enum class Border { Sizable, Fixed, Tool };
  struct Design {
    std::string Caption = {};
    Color BackColor = ButtonFace;
    float Width = 12000, Height = 9000;  ///< inner size at design, twips
    bool Maximised = false, Centred = false;
    Border BorderStyle = Border::Sizable;
    ScaleUnit ScaleMode = ScaleTwips;
    surface::UserScale UserScale = {};  ///< in place of the ScaleMode
  };
  explicit Form(const Design& design);
  ~Form() override;

  Prop<std::string, &Form::windowChanged> Caption;
  /// While it is not 0 it rules over the pointers of all controls.
  Prop<int, &Form::pointerChanged> MousePointer;
  // The outer place in twips: the inner size plus a fixed frame of 120 by 330 twips, whatever the
  // desktop really draws.
  Prop<float, &Form::placeChanged> Left;
  Prop<float, &Form::placeChanged> Top;
  Prop<float, &Form::sizeChanged, check::length> Width;
  Prop<float, &Form::sizeChanged, check::length> Height;
  const bool Maximised, Centred;
  const Border BorderStyle;

  Event<> Load;
  Event<> FormUnload;
  /// The window has its size: when it is first shown, and after each change.
  Event<> Resize;
  Event<Mouse> MouseUp;
  /// The window's close box; without a handler it unloads the form.
  Event<> CloseBox;
  /// The desktop logs out while the Sheet holds a drawing: the form asks whether to save it.
  Event<> LogOut;
  /// An error ends the program, and the child wants the Sheet saved first.
  Event<> SaveSheet;

  /// The first stop of the Tab key, which has the focus when the window opens; without one it is
  /// the first control. The others follow as they are declared.
  Control* FirstStop = nullptr;
  /// What a child draws on here, if anything: it is not to be lost when the machine is shut down.
  PictureBox* Sheet = nullptr;

  void Show();
  void Hide();
  bool shown() const { return shown_; }
  /// Keeps the window above all others.
  void setTopMost();
  bool topMost() const { return topMost_; }
  /// True once the program has set Left or Top: the window is not left to the desktop.
  bool placed() const { return placed_; }

  Form& form() override { return *this; }
  FormPeer* peer() const { return peer_.get(); }

  // From the toolkit layer.
  void controlShown(Control& control);
  void closeBoxPressed();
  /// The window's inner size in pixels.
  void windowResized(int width, int height);
  /// The window's upper left corner in pixels, its frame included: Left and Top follow.
  void windowMoved(int x, int y);
  /// The inner size at design.
  const raster::Rect& designPixels() const { return design_; }
  /// The place and size that the model wants, pixels: the corner of the frame, the inner size.
  raster::Rect windowPlace() const;
  /// True from the moment at which the form is being unloaded.
  bool unloading() const { return unloading_; }

 protected:
  void showPixels(std::span<const raster::Rect> areas, bool atOnce) override;

 private:
  friend class FormRegistry;
  void takeSize(int width, int height);

  raster::Rect design_;
  std::unique_ptr<FormPeer> peer_;
  bool shown_ = false;
  bool sized_ = false;
  bool topMost_ = false;
  bool placed_ = false;
  bool unloading_ = false;
};

/// Owns every loaded form.
class FormRegistry {
 public:
  static FormRegistry& instance();

  /// Takes a form over, marks it as its class's default instance if asked, and runs its Load.
  Form& load(std::unique_ptr<Form> form, std::type_index type, bool asDefault);
  Form* defaultInstance(std::type_index type) const;
  /// Fires FormUnload, takes the window away, and destroys the form once the outermost handler has
  /// returned.
  void unload(Form& form);
  /// Unloads everything without running handlers.
  void clear();

  const std::vector<std::unique_ptr<Form>>& forms() const { return forms_; }
  bool anyVisible() const;
  /// Whether a window that stays above all others can be seen.
  bool anyTopMost() const;
  /// Runs when a close box has taken the last visible window away.
  std::function<void()> noWindowLeft;

 private:
  struct Default {
    std::type_index type;
    Form* form;
  };
  std::vector<std::unique_ptr<Form>> forms_;
  std::vector<Default> defaults_;
};

/// The default instance of a form class, loaded on first use.
template <class F>
F& the() {
  auto& registry = FormRegistry::instance();
  if (Form* found = registry.defaultInstance(typeid(F))) return static_cast<F&>(*found);
  return static_cast<F&>(registry.load(std::make_unique<F>(), typeid(F), true));
}

/// Whether the default instance is loaded.
template <class F>
bool isLoaded() {
  return FormRegistry::instance().defaultInstance(typeid(F)) != nullptr;
}

/// A new instance of a form class, loaded but not shown.
template <class F>
F& loadNew() {
  return static_cast<F&>(FormRegistry::instance().load(std::make_unique<F>(), typeid(F), false));
}

/// A new instance of a form class, loaded and shown.
template <class F>
F& showNew() {
  F& form = loadNew<F>();
  form.Show();
  return form;
}

/// The forms whose Sheet holds more than its background, in the order in which they were loaded.
std::vector<Form*> formsWithDrawing();

inline void Unload(Form& form) { FormRegistry::instance().unload(form); }

/// Unloads every instance of a form class; loads none.
template <class F>
void unloadAll() {
  std::vector<Form*> found;
  for (const auto& form : FormRegistry::instance().forms())
    if (dynamic_cast<F*>(form.get())) found.push_back(form.get());
  for (Form* form : found) Unload(*form);
}

}  // namespace surface
