// Controls that take input. What the user does goes into the model; what the model changes by
// itself goes to the widget silently.
#include "surface/qt/input_widgets.h"

#include <QAbstractItemView>
#include <QPainter>
#include <QSignalBlocker>

#include "surface/qt/text_layout.h"

namespace surface::qt {
namespace {

void applyColors(QWidget& widget, Color back, Color fore) {
  QPalette palette = widget.palette();
  palette.setColor(QPalette::Base, toQColor(back));
  palette.setColor(QPalette::Window, toQColor(back));
  palette.setColor(QPalette::Text, toQColor(fore));
  palette.setColor(QPalette::WindowText, toQColor(fore));
  widget.setPalette(palette);
}

void select(QComboBox& widget, int row) { widget.setCurrentIndex(row); }
void select(QListWidget& widget, int row) { widget.setCurrentRow(row); }

template <class Widget>
void syncList(Widget& widget, const ListControl& list, Aspect aspect) {
  const QSignalBlocker quiet(&widget);
  if (aspect == Aspect::Look) {
    widget.setFont(toQFont(list.Font));
    widget.clear();
    for (int row = 0; row < list.ListCount(); ++row)
      widget.addItem(QString::fromStdString(list.List(row)));
  }
  if (aspect == Aspect::Look || aspect == Aspect::Value) select(widget, list.ListIndex);
  applyCommon(widget, list, aspect);
}

}  // namespace

TextWidget::TextWidget(TextBox& owner, QWidget& parent) : QLineEdit(&parent), control(&owner) {
  if (owner.MaxLength > 0) setMaxLength(owner.MaxLength);
  setFrame(owner.Border);
  // A text without a border stands as high as a label beside it.
  setAlignment((owner.Centred ? Qt::AlignHCenter : Qt::AlignLeft) |
               (owner.Border ? Qt::AlignVCenter : Qt::AlignTop));
  QObject::connect(this, &QLineEdit::textEdited, this, [this](const QString& text) {
    if (control) dispatch([&] { control->typed(text.toStdString()); });
  });
  if (owner.Shrinks)
    QObject::connect(this, &QLineEdit::textChanged, this, [this] { fitLetters(); });
}

void TextWidget::resizeEvent(QResizeEvent* event) {
  QLineEdit::resizeEvent(event);
  if (control && control->Shrinks) fitLetters();
}

// The font's own size, or the largest at which the whole text can be seen.
void TextWidget::fitLetters() {
  if (!control) return;
  constexpr int Margins = 10, Smallest = 6;
  QFont letters = toQFont(control->Font);
  while (letters.pixelSize() > Smallest &&
         QFontMetrics(letters).horizontalAdvance(text()) > width() - Margins)
    letters.setPixelSize(letters.pixelSize() - 1);
  setFont(letters);
}

void TextWidget::sync(Aspect aspect) {
  if (aspect == Aspect::Look) {
    setFont(toQFont(control->Font));
    if (control->Shrinks) fitLetters();
    applyColors(*this, control->BackColor, control->ForeColor);
    setReadOnly(control->Locked);
  }
  const QString text = QString::fromStdString(control->Text);
  if (aspect == Aspect::Value && text != this->text()) {
    setText(text);
    control->Text.setQuietly(this->text().toStdString());
  }
  applyCommon(*this, *control, aspect);
}

LongTextWidget::LongTextWidget(TextBox& owner, QWidget& parent)
    : QPlainTextEdit(&parent), control(&owner) {
  setFrameShape(owner.Border ? QFrame::StyledPanel : QFrame::NoFrame);
  QObject::connect(this, &QPlainTextEdit::textChanged, this, [this] {
    if (control) dispatch([&] { control->typed(toPlainText().toStdString()); });
  });
}

void LongTextWidget::sync(Aspect aspect) {
  if (aspect == Aspect::Look) {
    setFont(toQFont(control->Font));
    applyColors(*this, control->BackColor, control->ForeColor);
    setReadOnly(control->Locked);
  }
  const QString text = QString::fromStdString(control->Text);
  if (aspect == Aspect::Value && text != toPlainText()) {
    const QSignalBlocker quiet(this);
    setPlainText(text);
  }
  applyCommon(*this, *control, aspect);
}

CheckWidget::CheckWidget(CheckBox& owner, QWidget& parent) : QCheckBox(&parent), control(&owner) {
  QObject::connect(this, &QCheckBox::clicked, this, [this](bool checked) {
    if (control) dispatch([&] { control->Value = checked ? 1 : 0; });
  });
}

void CheckWidget::sync(Aspect aspect) {
  if (aspect == Aspect::Look) {
    setFont(toQFont(control->Font));
    applyColors(*this, control->BackColor, Black);
    QPalette colours = palette();
    colours.setColor(QPalette::Disabled, QPalette::WindowText, QColor(0x80, 0x80, 0x80));
    setPalette(colours);
    setText(QString::fromStdString(control->Caption));
  }
  if (aspect == Aspect::Value) setChecked(control->Value != 0);
  applyCommon(*this, *control, aspect, spoken(control->Caption));
}

OptionWidget::OptionWidget(OptionButton& owner, QWidget& parent)
    : QRadioButton(&parent), control(&owner) {
  QObject::connect(this, &QRadioButton::clicked, this, [this] {
    if (!control) return;
    setChecked(true);
    dispatch([this] { control->clicked(); });
  });
}

void OptionWidget::sync(Aspect aspect) {
  if (aspect == Aspect::Look) {
    setFont(toQFont(control->Font));
    applyColors(*this, control->BackColor, Black);
    setText(QString::fromStdString(control->Caption));
  }
  if (aspect == Aspect::Value) {
    // One of a choice to a screen reader and the arrow keys. But the model keeps its options
    // exclusive itself, and may clear the last one, which the toolkit would refuse.
    setAutoExclusive(false);
    setChecked(control->Value);
    setAutoExclusive(true);
  }
  applyCommon(*this, *control, aspect, spoken(control->Caption));
}

// The toolkit's own circle is as high as the rows of the narrow panels, so that one would touch the
// next.
void OptionWidget::paintEvent(QPaintEvent*) {
  if (!control) return;
  constexpr int Circle = 11, TextLeft = 17;
  QPainter painter(this);
  // All of it stands a little high: the lowest option of a panel reaches over its frame's line.
  const QRect row = rect().adjusted(0, 0, 0, -3);
  painter.fillRect(row.adjusted(0, 1, 0, 0), toQColor(control->BackColor));
  // Half a pixel in, so that the line covers whole pixels.
  const int top = (row.height() - Circle) / 2;
  const QRectF ring(2.5, top + 0.5, Circle, Circle);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QColor(0x60, 0x60, 0x60));
  painter.setBrush(isDown() ? QColor(0xD0, 0xD0, 0xD0) : QColor(Qt::white));
  painter.drawEllipse(ring);
  if (isChecked()) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::black);
    painter.drawEllipse(ring.adjusted(3, 3, -3, -3));
  }
  painter.setRenderHint(QPainter::Antialiasing, false);
  painter.setPen(isEnabled() ? Qt::black : QColor(0x80, 0x80, 0x80));
  const QRect place = row.adjusted(TextLeft, 0, 0, 0);
  painter.drawText(place, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextHideMnemonic, text());
  if (hasFocus()) {
    painter.setPen(QPen(QColor(0, 0, 0, 0xA0), 1, Qt::DotLine));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(place.adjusted(-2, 0, -1, -1));
  }
}

ComboWidget::ComboWidget(ComboBox& owner, QWidget& parent) : QComboBox(&parent), control(&owner) {
  QObject::connect(this, &QComboBox::activated, this, [this](int row) {
    if (control) dispatch([&] { control->picked(row); });
  });
}

void ComboWidget::sync(Aspect aspect) {
  syncList(*this, *control, aspect);
  view()->setAccessibleName(accessibleName());
}

ListWidget::ListWidget(ListBox& owner, QWidget& parent) : QListWidget(&parent), control(&owner) {
  QObject::connect(this, &QListWidget::currentRowChanged, this, [this](int row) {
    if (control) dispatch([&] { control->picked(row); });
  });
}

void ListWidget::sync(Aspect aspect) { syncList(*this, *control, aspect); }

SliderWidget::SliderWidget(Slider& owner, QWidget& parent)
    : QSlider(owner.Vertical ? Qt::Vertical : Qt::Horizontal, &parent), control(&owner) {
  setRange(owner.Min, owner.Max);
  setSingleStep(owner.SmallChange);
  setPageStep(owner.LargeChange);
  // The toolkit would have the least value at the bottom, and the arrow keys with it.
  setInvertedAppearance(owner.Vertical);
  setInvertedControls(owner.Vertical);
  applyColors(*this, owner.BackColor, Black);
  QObject::connect(this, &QSlider::valueChanged, this, [this](int value) {
    if (control) dispatch([&] { control->scrolled(value); });
  });
}

void SliderWidget::sync(Aspect aspect) {
  if (aspect == Aspect::Value) {
    const QSignalBlocker quiet(this);
    setValue(control->Value);
    update();
  }
  applyCommon(*this, *control, aspect);
}

ScrollWidget::ScrollWidget(HScrollBar& owner, QWidget& parent)
    : QScrollBar(Qt::Horizontal, &parent), control(&owner) {
  setRange(owner.Min, owner.Max);
  setSingleStep(owner.SmallChange);
  setPageStep(owner.LargeChange);
  // The toolkit means its scroll bars for the mouse alone.
  setFocusPolicy(Qt::StrongFocus);
  setInvertedControls(false);
  QObject::connect(this, &QScrollBar::valueChanged, this, [this](int value) {
    if (control) dispatch([&] { control->Value = value; });
  });
}

void ScrollWidget::sync(Aspect aspect) {
  if (aspect == Aspect::Value) {
    const QSignalBlocker quiet(this);
    setValue(control->Value);
  }
  applyCommon(*this, *control, aspect);
}

}  // namespace surface::qt
