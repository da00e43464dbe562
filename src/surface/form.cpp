// The life of forms: loaded on first use, shown, hidden, unloaded; destroyed only when no handler
// of theirs can be running.
#include "surface/form.h"

#include <algorithm>
#include <utility>

#include "surface/controls.h"
#include "surface/host.h"
#include "surface/numbers.h"

namespace surface {
namespace {

constexpr float FrameWidth = 120;
constexpr float FrameHeight = 330;

int innerPixel(float outer, float frame) {
  return static_cast<int>(roundEven(std::clamp((outer - frame) / TwipsPerPixel, 1.0, 32767.0)));
}

int placePixel(float twips) {
  return static_cast<int>(roundEven(std::clamp(twips / TwipsPerPixel, -32767.0, 32767.0)));
}

void showPointers(const Container& container) {
  for (Control* control : container.controls()) {
    if (control->peer()) control->peer()->update(Aspect::Pointer);
    if (const Container* inner = control->asContainer()) showPointers(*inner);
  }
}

}  // namespace

Form::Form(const Design& design)
    : DrawingSurface(design.BackColor, design.ScaleMode, design.UserScale),
      Caption(*this, design.Caption),
      MousePointer(*this, 0),
      Left(*this, 0),
      Top(*this, 0),
      Width(*this, design.Width + FrameWidth),
      Height(*this, design.Height + FrameHeight),
      Maximised(design.Maximised),
      Centred(design.Centred),
      BorderStyle(design.BorderStyle) {
  setInnerSize(innerPixel(Width, FrameWidth), innerPixel(Height, FrameHeight));
  design_ = innerPixels();
  if (!Maximised || !host().maximisedSize) return;
  // Known before the window is: the first figures of an animation are spread over it.
  if (const raster::Rect size = host().maximisedSize(); !size.empty())
    takeSize(size.width(), size.height());
}

Form::~Form() = default;

void Form::pointerChanged() {
  windowChanged();
  showPointers(*this);
}

void Form::placeChanged() {
  placed_ = true;
  if (peer_) peer_->move();
}

void Form::sizeChanged() {
  setInnerSize(innerPixel(Width, FrameWidth), innerPixel(Height, FrameHeight));
  if (peer_) peer_->resize();
}

raster::Rect Form::windowPlace() const {
  const int left = placePixel(Left), top = placePixel(Top);
  return {left, top, left + innerPixels().width(), top + innerPixels().height()};
}

void Form::Show() {
  if (!peer_) peer_ = host().makeForm(*this);
  shown_ = true;
  if (!std::exchange(sized_, true)) Resize();
  peer_->show();
}

void Form::Hide() {
  shown_ = false;
  if (peer_) peer_->hide();
}

void Form::setTopMost() {
  topMost_ = true;
  windowChanged();
}

void Form::controlShown(Control& control) {
  if (peer_) peer_->addControl(control);
}

void Form::windowResized(int width, int height) {
  const raster::Rect former = innerPixels();
  takeSize(width, height);
  if (sized_ && innerPixels() != former) Resize();
}

void Form::takeSize(int width, int height) {
  setInnerSize(width, height);
  Width.setQuietly(static_cast<float>(width * TwipsPerPixel) + FrameWidth);
  Height.setQuietly(static_cast<float>(height * TwipsPerPixel) + FrameHeight);
}

void Form::windowMoved(int x, int y) {
  // A fraction of a pixel that the program has set is kept.
  if (x != placePixel(Left)) Left.setQuietly(static_cast<float>(x * TwipsPerPixel));
  if (y != placePixel(Top)) Top.setQuietly(static_cast<float>(y * TwipsPerPixel));
}

void Form::closeBoxPressed() {
  HandlerScope scope;
  if (CloseBox.handled())
    CloseBox();
  else
    Unload(*this);
  auto& registry = FormRegistry::instance();
  if (!registry.anyVisible() && registry.noWindowLeft) registry.noWindowLeft();
}

void Form::showPixels(std::span<const raster::Rect> areas, bool atOnce) {
  if (peer_) peer_->showPixels(areas, atOnce);
}

FormRegistry& FormRegistry::instance() {
  static FormRegistry theRegistry;
  return theRegistry;
}

Form& FormRegistry::load(std::unique_ptr<Form> form, std::type_index type, bool asDefault) {
  Form& loaded = *forms_.emplace_back(std::move(form));
  // Known before its Load runs, since that may refer to the form by its name.
  if (asDefault) defaults_.push_back({type, &loaded});
  loaded.Load();
  return loaded;
}

Form* FormRegistry::defaultInstance(std::type_index type) const {
  for (const Default& entry : defaults_)
    if (entry.type == type) return entry.form;
  return nullptr;
}

void FormRegistry::unload(Form& form) {
  const auto found = std::find_if(forms_.begin(), forms_.end(),
                                  [&](const auto& owned) { return owned.get() == &form; });
  // Unloading twice in one handler is harmless, and so is unloading in the form's own FormUnload.
  if (found == forms_.end() || std::exchange(form.unloading_, true)) return;
  form.FormUnload();
  form.Hide();
  std::erase_if(defaults_, [&](const Default& entry) { return entry.form == &form; });
  const auto again = std::find_if(forms_.begin(), forms_.end(),
                                  [&](const auto& owned) { return owned.get() == &form; });
  if (again == forms_.end()) return;
  std::shared_ptr<Form> doomed = std::move(*again);
  forms_.erase(again);
  whenHandlersReturned([doomed] {});
}

void FormRegistry::clear() {
  defaults_.clear();
  while (!forms_.empty()) forms_.pop_back();
}

bool FormRegistry::anyVisible() const {
  return std::any_of(forms_.begin(), forms_.end(), [](const auto& form) { return form->shown(); });
}

bool FormRegistry::anyTopMost() const {
  return std::any_of(forms_.begin(), forms_.end(),
                     [](const auto& form) { return form->shown() && form->topMost(); });
}

std::vector<Form*> formsWithDrawing() {
  std::vector<Form*> found;
  for (const auto& form : FormRegistry::instance().forms())
    if (form->Sheet && form->Sheet->holdsDrawing()) found.push_back(form.get());
  return found;
}

}  // namespace surface
