// The kinds of control: their values at design, and what a change of a value sets off.
#include "surface/controls.h"

#include <algorithm>

#include "surface/form.h"
#include "surface/host.h"
#include "surface/numbers.h"

namespace surface {
namespace {

// A drop-down list's height follows from its font, not from its design.
constexpr float ComboHeight = 315;

// The first `count` characters of a text in UTF-8.
std::string beginning(const std::string& text, int count) {
  std::size_t end = 0;
  for (; end < text.size(); ++end) {
    const bool starts = (static_cast<unsigned char>(text[end]) & 0xC0) != 0x80;
    if (starts && count-- == 0) break;
  }
  return text.substr(0, end);
}

}  // namespace

CommandButton::CommandButton(Container& container, const Design& d)
    : Control(container, {d.Left, d.Top, d.Width, d.Height}, d.Visible),
      Caption(*this, d.Caption),
      Picture(*this, d.Picture),
      BackColor(*this, d.BackColor),
      Font(*this, d.Font),
      Shortcut(d.Shortcut) {
  ToolTipText.setQuietly(d.ToolTipText);
  Enabled.setQuietly(d.Enabled);
}

Label::Label(Container& container, const Design& d)
    : Control(container, {d.Left, d.Top, d.Width, d.Height}, d.Visible),
      Caption(*this, d.Caption),
      BackColor(*this, d.BackColor),
      ForeColor(*this, d.ForeColor),
      Font(*this, d.Font),
      Centred(d.Centred),
      Framed(d.Framed) {
  ToolTipText.setQuietly(d.ToolTipText);
}

TextBox::TextBox(Container& container, const Design& d)
    : Control(container, {d.Left, d.Top, d.Width, d.Height}, d.Visible),
      Text(*this, d.Text),
      BackColor(*this, d.BackColor),
      ForeColor(*this, d.ForeColor),
      Font(*this, d.Font),
      Locked(*this, d.Locked),
      MaxLength(d.MaxLength),
      Border(d.Border),
      Centred(d.Centred),
      MultiLine(d.MultiLine),
      Shrinks(d.Shrinks) {
  ToolTipText.setQuietly(d.ToolTipText);
}

void TextBox::textChanged(const std::string& former) {
  if (MaxLength > 0) Text.setQuietly(beginning(Text, MaxLength));
  // The widget may shorten the text further, to one line.
  valueChanged();
  if (Text != former) Change();
}

void TextBox::typed(const std::string& text) {
  if (Text == text) return;
  Text.setQuietly(text);
  Change();
}

Frame::Frame(Container& container, const Design& d)
    : Control(container, {d.Left, d.Top, d.Width, d.Height}, d.Visible),
      Container(ScaleTwips, d.UserScale),
      Caption(*this, d.Caption),
      BackColor(*this, d.BackColor),
      Font(*this, d.Font) {
  resized();
}

void Frame::resized() {
  const raster::Rect place = pixelPlace();
  setScaleInner(place.width(), place.height());
}

CheckBox::CheckBox(Container& container, const Design& d)
    : Control(container, {d.Left, d.Top, d.Width, d.Height}, d.Visible),
      Value(*this, 0),
      Caption(*this, d.Caption),
      BackColor(*this, d.BackColor),
      Font(*this, d.Font) {
  ToolTipText.setQuietly(d.ToolTipText);
}

void CheckBox::ticked(const int& former) {
  valueChanged();
  if (Value != former) Click();
}

OptionButton::OptionButton(Container& container, const Design& d)
    : Control(container, {d.Left, d.Top, d.Width, d.Height}, d.Visible),
      Value(*this, d.Value),
      Caption(*this, d.Caption),
      BackColor(*this, d.BackColor),
      Font(*this, d.Font) {
  ToolTipText.setQuietly(d.ToolTipText);
}

void OptionButton::chosen(const bool& former) {
  if (Value && !former) {
    for (Control* other : container().controls())
      if (auto* option = dynamic_cast<OptionButton*>(other);
          option && option != this && option->Value)
        option->Value = false;
  }
  valueChanged();
  if (Value && !former) Click();
}

void OptionButton::clicked() {
  if (Value)
    Click();
  else
    Value = true;
}

ListControl::ListControl(Container& container, const Place& place, bool visible,
                         const std::vector<std::string>& rows, int index, const surface::Font& font)
    : Control(container, place, visible), Font(*this, font), ListIndex(*this, index), rows_(rows) {}

void ListControl::selected(const int& former) {
  if (ListIndex < -1 || ListIndex >= ListCount()) {
    ListIndex.setQuietly(former);
    throw RuntimeError(ErrorKind::BadPropertyValue, "Invalid property value");
  }
  valueChanged();
  if (ListIndex != former) Click();
}

const std::string& ListControl::List(int row) const {
  static const std::string none;
  return row < 0 || row >= ListCount() ? none : rows_[static_cast<std::size_t>(row)];
}

void ListControl::AddItem(const std::string& text) {
  rows_.push_back(text);
  changed(Aspect::Look);
}

void ListControl::Clear() {
  rows_.clear();
  ListIndex.setQuietly(-1);
  changed(Aspect::Look);
}

void ListControl::picked(int row) {
  ListIndex.setQuietly(row);
  Click();
}

ComboBox::ComboBox(Container& container, const Design& d)
    : ListControl(container, {d.Left, d.Top, d.Width, ComboHeight}, d.Visible, d.List, d.ListIndex,
                  d.Font) {
  ToolTipText.setQuietly(d.ToolTipText);
}

ListBox::ListBox(Container& container, const Design& d)
    : ListControl(container, {d.Left, d.Top, d.Width, d.Height}, d.Visible, d.List, -1, d.Font) {
  ToolTipText.setQuietly(d.ToolTipText);
}

HScrollBar::HScrollBar(Container& container, const Design& d)
    : Control(container, {d.Left, d.Top, d.Width, d.Height}, d.Visible),
      Value(*this, d.Value),
      Min(d.Min),
      Max(d.Max),
      SmallChange(d.SmallChange),
      LargeChange(d.LargeChange) {}

void HScrollBar::moved(const int& former) {
  if (Value < Min || Value > Max) {
    Value.setQuietly(former);
    throw RuntimeError(ErrorKind::BadPropertyValue, "Invalid property value");
  }
  valueChanged();
  if (Value != former) Change();
}

Slider::Slider(Container& container, const Design& d)
    : Control(container, {d.Left, d.Top, d.Width, d.Height}, d.Visible),
      Value(*this, std::clamp(d.Value, d.Min, d.Max)),
      Min(d.Min),
      Max(d.Max),
      SmallChange(d.SmallChange),
      LargeChange(d.LargeChange),
      Vertical(d.Vertical),
      BackColor(d.BackColor) {
  ToolTipText.setQuietly(d.ToolTipText);
}

void Slider::moved(const int& former) {
  Value.setQuietly(std::clamp<int>(Value, Min, Max));
  valueChanged();
  if (Value != former) Change();
}

void Slider::scrolled(int value) {
  const int former = Value;
  Value.setQuietly(std::clamp(value, Min, Max));
  const bool differs = Value != former;
  Scroll();
  if (differs) Change();
}

ProgressBar::ProgressBar(Container& container, const Design& d)
    : Control(container, {d.Left, d.Top, d.Width, d.Height}, d.Visible),
      Max(*this, 100),
      Value(*this, 0) {}

ImageControl::ImageControl(Container& container, const Design& d)
    : Control(container, {d.Left, d.Top, d.Width, d.Height}, d.Visible),
      Picture(*this, {}),
      PictureName(d.Picture),
      Border(d.Border) {
  ToolTipText.setQuietly(d.ToolTipText);
}

LineControl::LineControl(Container& container, const Design& d)
    : Control(container, {d.X1, d.Y1, 0, 0}, d.Visible),
      X1(*this, container.scale().fromPixelX(d.X1 / TwipsPerPixel)),
      Y1(*this, container.scale().fromPixelY(d.Y1 / TwipsPerPixel)),
      X2(*this, container.scale().fromPixelX(d.X2 / TwipsPerPixel)),
      Y2(*this, container.scale().fromPixelY(d.Y2 / TwipsPerPixel)),
      BorderColor(*this, d.BorderColor),
      BorderWidth(*this, d.BorderWidth) {}

LineEnds LineControl::pixelEnds() const { return {pixelX(X1), pixelY(Y1), pixelX(X2), pixelY(Y2)}; }

raster::Rect LineControl::paintedPixels() const {
  const LineEnds ends = pixelEnds();
  const auto [left, right] = std::minmax(ends.x1, ends.x2);
  const auto [top, bottom] = std::minmax(ends.y1, ends.y2);
  return {left - BorderWidth, top - BorderWidth, right + BorderWidth + 1, bottom + BorderWidth + 1};
}

void LineControl::rescaled(const Scale& from, const Scale& to) {
  Control::rescaled(from, to);
  X1.setQuietly(to.fromPixelX(from.toPixelX(X1)));
  Y1.setQuietly(to.fromPixelY(from.toPixelY(Y1)));
  X2.setQuietly(to.fromPixelX(from.toPixelX(X2)));
  Y2.setQuietly(to.fromPixelY(from.toPixelY(Y2)));
}

ShapeControl::ShapeControl(Container& container, const Design& d)
    : Control(container, {d.Left, d.Top, d.Width, d.Height}, d.Visible),
      FillColor(*this, d.FillColor),
      BorderColor(*this, d.BorderColor),
      BorderWidth(*this, d.BorderWidth),
      DrawMode(*this, 13),
      Oval(d.Oval),
      Filled(d.Filled) {}

raster::Rect ShapeControl::paintedPixels() const {
  const raster::Rect place = pixelPlace();
  return {place.left - BorderWidth, place.top - BorderWidth, place.right + BorderWidth,
          place.bottom + BorderWidth};
}

PictureBox::PictureBox(Container& container, const Design& d)
    : Control(container, {d.Left, d.Top, d.Width, d.Height}, d.Visible),
      DrawingSurface(d.BackColor, d.ScaleMode, d.UserScale),
      MousePointer(*this, d.MousePointer),
      MouseIcon(*this, {}),
      Raised(d.Raised) {
  AutoRedraw = d.AutoRedraw;
  Font = d.Font;
  ToolTipText.setQuietly(d.ToolTipText);
  FillColor = d.FillColor;
  resized();
  if (!d.Picture.empty()) Picture.setQuietly(host().artPicture(d.Picture));
}

void PictureBox::resized() {
  const raster::Rect place = pixelPlace();
  setInnerSize(place.width(), place.height());
}

void PictureBox::showPixels(std::span<const raster::Rect> areas, bool atOnce) {
  if (auto* shown = static_cast<SurfacePeer*>(peer())) shown->showPixels(areas, atOnce);
}

}  // namespace surface
