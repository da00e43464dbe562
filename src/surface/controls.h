// The kinds of control, each with the properties and events that the program uses. Every kind has a
// small struct of its values at design, so that a form's declarations read as its table.
#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "surface/control.h"
#include "surface/drawing.h"

namespace surface {

/// The widget of a surface.
class SurfacePeer : public Peer {
 public:
  virtual void showPixels(std::span<const raster::Rect> areas, bool atOnce) = 0;
};

/// A push button. A caption that is too long breaks at blanks; runs of blanks are kept, and `&`
/// marks the access key.
class CommandButton : public Control {
 public:
  struct Design {
    float Left = 0, Top = 0, Width = 0, Height = 0;
    std::string Caption = {};
    std::string Picture = {};  ///< name of one of the program's own pictures
    std::string ToolTipText = {};
    Color BackColor = ButtonFace;
    surface::Font Font = {};
    /// A key that presses it too, such as "Ctrl+Z" or "F1"; in a text box the text comes first.
    std::string Shortcut = {};
    bool Enabled = true, Visible = true;
  };
  CommandButton(Container& container, const Design& design);

  Prop<std::string, &CommandButton::lookChanged> Caption;
  Prop<std::string, &CommandButton::lookChanged> Picture;
  Prop<Color, &CommandButton::lookChanged> BackColor;
  FontProp<&CommandButton::lookChanged> Font;
  const std::string Shortcut;
  Event<> Click;
  Event<Mouse> MouseDown, MouseUp;
};

/// A text that wraps within its width; runs of blanks are kept, since they break the lines. With
/// NoColor as its BackColor what lies beneath shows between the letters; a framed one is such a
/// text in a thin frame, and leaves the pointer to what lies beneath. An empty one is spoken by its
/// tooltip.
class Label : public Control {
 public:
  struct Design {
    float Left = 0, Top = 0, Width = 0, Height = 0;
    std::string Caption = {};
    std::string ToolTipText = {};
    Color BackColor = ButtonFace, ForeColor = Black;
    surface::Font Font = {};
    bool Centred = false, Framed = false, Visible = true;
  };
  Label(Container& container, const Design& design);

  Prop<std::string, &Label::valueChanged> Caption;
  Prop<Color, &Label::lookChanged> BackColor;
  Prop<Color, &Label::lookChanged> ForeColor;
  FontProp<&Label::lookChanged> Font;
  const bool Centred, Framed;
  Event<> Click;
};

/// A box for text; a change of its Text fires Change, also by code.
class TextBox : public Control {
  void textChanged(const std::string& former);

 public:
  struct Design {
    float Left = 0, Top = 0, Width = 0, Height = 0;
    std::string Text = {};
    std::string ToolTipText = {};
    Color BackColor = White, ForeColor = Black;
    surface::Font Font = {};
    int MaxLength = 0;  ///< characters, 0 = any number
    /// A text wider than the box is shown in smaller letters, so that all of it can be seen.
    bool Shrinks = false;
    bool Locked = false, Border = true, Centred = false, MultiLine = false, Visible = true;
  };
  TextBox(Container& container, const Design& design);

  Prop<std::string, &TextBox::textChanged> Text;
  Prop<Color, &TextBox::lookChanged> BackColor;
  Prop<Color, &TextBox::lookChanged> ForeColor;
  FontProp<&TextBox::lookChanged> Font;
  Prop<bool, &TextBox::lookChanged> Locked;
  const int MaxLength;
  const bool Border, Centred, MultiLine, Shrinks;
  Event<> Change;

  /// From the widget: the user has typed.
  void typed(const std::string& text);
};

/// A box with a caption that hides or shows all it contains.
class Frame : public Control, public Container {
 public:
  struct Design {
    float Left = 0, Top = 0, Width = 0, Height = 0;
    std::string Caption = {};
    Color BackColor = ButtonFace;
    surface::Font Font = {};
    surface::UserScale UserScale = {};  ///< in place of twips
    bool Visible = true;
  };
  Frame(Container& container, const Design& design);

  Prop<std::string, &Frame::lookChanged> Caption;
  Prop<Color, &Frame::lookChanged> BackColor;
  FontProp<&Frame::lookChanged> Font;

  Form& form() override { return container().form(); }
  Container* asContainer() override { return this; }

 protected:
  void resized() override;
};

/// A tick; a change of its Value fires Click, also by code.
class CheckBox : public Control {
  void ticked(const int& former);

 public:
  struct Design {
    float Left = 0, Top = 0, Width = 0, Height = 0;
    std::string Caption = {};
    std::string ToolTipText = {};
    Color BackColor = ButtonFace;
    surface::Font Font = {};
    bool Visible = true;
  };
  CheckBox(Container& container, const Design& design);

  Prop<int, &CheckBox::ticked> Value;  ///< 0 or 1
  Prop<std::string, &CheckBox::lookChanged> Caption;
  Prop<Color, &CheckBox::lookChanged> BackColor;
  FontProp<&CheckBox::lookChanged> Font;
  Event<> Click;
};

/// One of a choice within its container; becoming chosen fires Click, also by code.
class OptionButton : public Control {
  void chosen(const bool& former);

 public:
  struct Design {
    float Left = 0, Top = 0, Width = 0, Height = 0;
    std::string Caption = {};
    bool Value = false;
    std::string ToolTipText = {};
    Color BackColor = ButtonFace;
    surface::Font Font = {};
    bool Visible = true;
  };
  OptionButton(Container& container, const Design& design);

  Prop<bool, &OptionButton::chosen> Value;
  Prop<std::string, &OptionButton::lookChanged> Caption;
  Prop<Color, &OptionButton::lookChanged> BackColor;
  FontProp<&OptionButton::lookChanged> Font;
  Event<> Click;

  /// From the widget: the user has clicked, also on the one that is chosen already.
  void clicked();
};

/// A list of texts of which one may be selected; selecting another row fires Click, also by code.
class ListControl : public Control {
  void selected(const int& former);

 public:
  FontProp<&ListControl::lookChanged> Font;
  /// -1 = none; beyond the list a BadPropertyValue error.
  Prop<int, &ListControl::selected> ListIndex;
  Event<> Click;

  /// The selected row, empty if none.
  const std::string& Text() const { return List(ListIndex); }
  int ListCount() const { return static_cast<int>(rows_.size()); }
  /// A row from 0; empty beyond the list.
  const std::string& List(int row) const;
  void AddItem(const std::string& text);
  /// Empties the list; nothing is selected then.
  void Clear();
  /// From the widget: the user has picked a row, also the one that was selected already.
  void picked(int row);

 protected:
  ListControl(Container& container, const Place& place, bool visible,
              const std::vector<std::string>& rows, int index, const surface::Font& font);

 private:
  std::vector<std::string> rows_;
};

/// A list that drops down from the selected row.
class ComboBox : public ListControl {
 public:
  struct Design {
    float Left = 0, Top = 0, Width = 0;
    std::vector<std::string> List = {};
    int ListIndex = -1;
    std::string ToolTipText = {};
    surface::Font Font = {};
    bool Visible = true;
  };
  ComboBox(Container& container, const Design& design);
};

/// A list that shows all its rows, scrolled as needed.
class ListBox : public ListControl {
 public:
  struct Design {
    float Left = 0, Top = 0, Width = 0, Height = 0;
    std::vector<std::string> List = {};
    std::string ToolTipText = {};
    surface::Font Font = {};
    bool Visible = true;
  };
  ListBox(Container& container, const Design& design);
};

/// A bar from Min at the left to Max at the right; a change of its Value fires Change, also by
/// code.
class HScrollBar : public Control {
  void moved(const int& former);

 public:
  struct Design {
    float Left = 0, Top = 0, Width = 0, Height = 0;
    int Min = 0, Max = 32767, Value = 0;
    int SmallChange = 1, LargeChange = 1;  ///< of a press on an arrow, and beside the knob
    bool Visible = true;
  };
  HScrollBar(Container& container, const Design& design);

  Prop<int, &HScrollBar::moved> Value;  ///< beyond Min..Max a BadPropertyValue error
  const int Min, Max, SmallChange, LargeChange;
  Event<> Change;
};

/// A knob on a line, with Min at the left or at the top. A change of its Value fires Change, also
/// by code; the user's own move fires Scroll before that.
class Slider : public Control {
  void moved(const int& former);

 public:
  struct Design {
    float Left = 0, Top = 0, Width = 0, Height = 375;
    int Min = 0, Max = 10, Value = 0;
    int SmallChange = 1, LargeChange = 5;  ///< of an arrow key, and of a press beside the knob
    bool Vertical = false;
    std::string ToolTipText = {};
    Color BackColor = ButtonFace;
    bool Visible = true;
  };
  Slider(Container& container, const Design& design);

  Prop<int, &Slider::moved> Value;  ///< a value outside Min..Max becomes the nearer end
  const int Min, Max, SmallChange, LargeChange;
  const bool Vertical;
  const Color BackColor;
  Event<> Scroll, Change;

  /// From the widget: the user has moved the knob.
  void scrolled(int value);
};

class ProgressBar : public Control {
 public:
  struct Design {
    float Left = 0, Top = 0, Width = 0, Height = 0;
    bool Visible = true;
  };
  ProgressBar(Container& container, const Design& design);

  Prop<int, &ProgressBar::valueChanged> Max;
  Prop<int, &ProgressBar::valueChanged> Value;
};

/// A picture stretched to its place (enlarged as squares, shrunk smoothly), or a holder of a
/// cursor.
class ImageControl : public Control {
 public:
  struct Design {
    float Left = 0, Top = 0, Width = 0, Height = 0;
    std::string Picture = {};  ///< name of one of the program's own pictures
    std::string ToolTipText = {};
    bool Border = false, Visible = true;
  };
  ImageControl(Container& container, const Design& design);

  Prop<surface::Picture, &ImageControl::lookChanged> Picture;
  const std::string PictureName;  ///< of the design; a cursor is known by it
  const bool Border;
  Event<> Click;
};

/// Where a line begins and ends, pixels.
struct LineEnds {
  int x1, y1, x2, y2;
  friend bool operator==(const LineEnds&, const LineEnds&) = default;
};

/// A line above its container's image and the controls declared before it, not part of them.
class LineControl : public Control {
 public:
  struct Design {
    float X1 = 0, Y1 = 0, X2 = 0, Y2 = 0;  ///< twips
    Color BorderColor = Black;
    int BorderWidth = 1;
    bool Visible = true;
  };
  LineControl(Container& container, const Design& design);

  Prop<float, &LineControl::lookChanged> X1;
  Prop<float, &LineControl::lookChanged> Y1;
  Prop<float, &LineControl::lookChanged> X2;
  Prop<float, &LineControl::lookChanged> Y2;
  Prop<Color, &LineControl::lookChanged> BorderColor;
  Prop<int, &LineControl::lookChanged, check::drawWidth> BorderWidth;  ///< pixels, 1 and up

  bool windowless() const override { return true; }
  /// In pixels within the container.
  LineEnds pixelEnds() const;
  raster::Rect paintedPixels() const override;

 protected:
  void rescaled(const Scale& from, const Scale& to) override;
};

/// A rectangle or oval above its container's image and the controls declared before it, not part of
/// them.
class ShapeControl : public Control {
 public:
  struct Design {
    float Left = 0, Top = 0, Width = 0, Height = 0;
    bool Oval = false, Filled = false;
    Color FillColor = Black, BorderColor = Black;
    int BorderWidth = 1;
    bool Visible = true;
  };
  ShapeControl(Container& container, const Design& design);

  Prop<Color, &ShapeControl::lookChanged, check::color> FillColor;
  Prop<Color, &ShapeControl::lookChanged> BorderColor;
  Prop<int, &ShapeControl::lookChanged, check::drawWidth> BorderWidth;  ///< pixels, 1 and up
  Prop<int, &ShapeControl::lookChanged> DrawMode;
  const bool Oval, Filled;

  bool windowless() const override { return true; }
  raster::Rect paintedPixels() const override;
};

/// The pointer over a surface: 0 default, 2 cross, 3 I-beam, 11 hourglass, 99 the MouseIcon.
enum Pointer {
  PointerDefault = 0,
  PointerCross = 2,
  PointerText = 3,
  PointerHourglass = 11,
  PointerCustom = 99
};

/// A raster surface that keeps what is drawn on it.
class PictureBox : public Control, public DrawingSurface {
  void pointerChanged() { changed(Aspect::Pointer); }

 public:
  struct Design {
    float Left = 0, Top = 0, Width = 0, Height = 0;
    ScaleUnit ScaleMode = ScaleTwips;
    surface::UserScale UserScale = {};  ///< in place of the ScaleMode
    bool AutoRedraw = false;
    std::string Picture = {};  ///< name of one of the program's own pictures
    std::string ToolTipText = {};
    Color BackColor = ButtonFace, FillColor = Black;
    surface::Font Font = {};
    int MousePointer = PointerDefault;
    bool Raised = false;  ///< looks like a button: an edge above its pixels
    bool Visible = true;
  };
  PictureBox(Container& container, const Design& design);

  Prop<int, &PictureBox::pointerChanged> MousePointer;
  /// The name of the cursor shown at 99: assign a cursor image's PictureName.
  Prop<std::string, &PictureBox::pointerChanged> MouseIcon;
  const bool Raised;
  Event<> Click;
  Event<Mouse> MouseDown, MouseMove, MouseUp;

  Form& form() override { return Control::container().form(); }
  Container* asContainer() override { return this; }

 protected:
  void resized() override;
  void showPixels(std::span<const raster::Rect> areas, bool atOnce) override;
};

/// Controls with one name, told apart by an Index from 0; one handler serves all.
template <class Kind, std::size_t Count>
class ControlArray {
 public:
  /// A member in a container of its own.
  struct Member {
    Container& container;
    typename Kind::Design design;
  };
  explicit ControlArray(const std::array<Member, Count>& members) {
    for (std::size_t i = 0; i < Count; ++i) make(i, members[i].container, members[i].design);
  }
  /// All members in one container.
  explicit ControlArray(Container& container,
                        const std::array<typename Kind::Design, Count>& designs) {
    for (std::size_t i = 0; i < Count; ++i) make(i, container, designs[i]);
  }

  /// The member of an index; outside the array a subscript error.
  Kind& operator()(int index) {
    if (index < 0 || index >= static_cast<int>(Count))
      throw RuntimeError(ErrorKind::SubscriptOutOfRange, "Subscript out of range");
    return *members_[static_cast<std::size_t>(index)];
  }
  static constexpr int count() { return static_cast<int>(Count); }

 private:
  void make(std::size_t i, Container& container, const typename Kind::Design& design) {
    members_[i] = std::make_unique<Kind>(container, design);
    members_[i]->Index = static_cast<int>(i);
  }

  std::array<std::unique_ptr<Kind>, Count> members_;
};

}  // namespace surface
