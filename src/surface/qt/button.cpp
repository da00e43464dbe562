// Buttons paint themselves: the toolkit's own ones turn a given colour into a tinted gradient.
#include "surface/qt/button.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QShortcut>

#include "surface/qt/art.h"
#include "surface/qt/factor.h"
#include "surface/qt/pointer.h"
#include "surface/qt/text_layout.h"

namespace surface::qt {
namespace {

constexpr int Lit = 125;  // per cent of the face's brightness, while a button is the chosen one

}  // namespace

void drawClassicEdge(QPainter& painter, const QRect& area, bool sunken) {
  const DevicePixels device(painter);
  const int line = device.line();
  const QColor light(0xFF, 0xFF, 0xFF), shadow(0x80, 0x80, 0x80), dark(0x40, 0x40, 0x40);
  const auto frame = [&](const QRect& r, const QColor& upper, const QColor& lower) {
    painter.fillRect(r.left(), r.top(), r.width(), line, upper);
    painter.fillRect(r.left(), r.top(), line, r.height(), upper);
    painter.fillRect(r.left(), r.bottom() + 1 - line, r.width(), line, lower);
    painter.fillRect(r.right() + 1 - line, r.top(), line, r.height(), lower);
  };
  const QRect outer = device.whole(area), inner = outer.adjusted(line, line, -line, -line);
  if (sunken) {
    frame(outer, dark, dark);
    frame(inner, shadow, shadow);
  } else {
    frame(outer, light, dark);
    frame(inner, QColor(0xE8, 0xE8, 0xE8), shadow);
  }
}

void drawFocus(QPainter& painter, const QRect& area) {
  const QRect line = area.adjusted(1, 1, -2, -2);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(Qt::white);
  painter.drawRect(line);
  painter.setPen(QPen(Qt::black, 1, Qt::DotLine));
  painter.drawRect(line);
}

ButtonWidget::ButtonWidget(CommandButton& owner, QWidget& parent)
    : QPushButton(&parent), control(&owner) {
  // First the style, which takes every button for one that something shines through.
  ensurePolished();
  setAttribute(Qt::WA_OpaquePaintEvent);
  setAutoDefault(false);
  QObject::connect(this, &QPushButton::clicked, this, [this] {
    if (control) dispatch([this] { control->Click(); });
  });
  if (owner.Shortcut.empty()) return;
  auto* key = new QShortcut(QKeySequence(QString::fromStdString(owner.Shortcut)), this);
  // Also while a ruler or another tool window is the active one.
  key->setContext(Qt::ApplicationShortcut);
  key->setAutoRepeat(false);
  QObject::connect(key, &QShortcut::activated, this, [this] {
    // While the pointer draws, no button can be pressed.
    if (QGuiApplication::mouseButtons() == Qt::NoButton) click();
  });
}

void ButtonWidget::sync(Aspect aspect) {
  if (aspect == Aspect::Look) {
    picture_ = control->Picture->empty() ? QPixmap() : artPixmap(control->Picture);
    setFont(toQFont(control->Font));
    setText(QString::fromStdString(control->Caption));
  }
  applyCommon(*this, *control, aspect, spoken(control->Caption));
  update();
}

void ButtonWidget::paintEvent(QPaintEvent*) {
  if (!control) return;
  QPainter painter(this);
  const bool sunken = isDown() || control->Pressed;
  const QColor face = toQColor(control->BackColor);
  painter.fillRect(rect(), control->Pressed ? face.lighter(Lit) : face);
  drawClassicEdge(painter, rect(), sunken);
  QRect inner = rect().adjusted(3, 3, -3, -3);
  if (sunken) inner.translate(1, 1);
  if (!picture_.isNull()) {
    painter.setOpacity(isEnabled() ? 1 : 0.3);
    const QPoint corner(inner.left() + (inner.width() - picture_.width()) / 2,
                        inner.top() + (inner.height() - picture_.height()) / 2);
    const QRect place(corner, picture_.size());
    if (devicePixelRatioF() > 1)
      drawSquares(painter, picture_.toImage(), place, place);
    else
      painter.drawPixmap(corner, picture_);
    painter.setOpacity(1);
  }
  painter.setFont(font());
  painter.setPen(isEnabled() ? Qt::black : QColor(0x80, 0x80, 0x80));
  drawCaption(painter, inner, text(), true);
  if (hasFocus()) {
    painter.setPen(QPen(QColor(0, 0, 0, 0xA0), 1, Qt::DotLine));
    painter.drawRect(rect().adjusted(3, 3, -4, -4));
  }
}

void ButtonWidget::mousePressEvent(QMouseEvent* event) {
  QPushButton::mousePressEvent(event);
  if (control) dispatch([&] { control->MouseDown(toMouse(*event)); });
}

void ButtonWidget::mouseReleaseEvent(QMouseEvent* event) {
  const Mouse mouse = toMouse(*event);
  QPushButton::mouseReleaseEvent(event);
  if (control) dispatch([&] { control->MouseUp(mouse); });
}

// Enter presses like the space bar, whatever the desktop; a key that is held down presses once.
void ButtonWidget::keyPressEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter)
    return QPushButton::keyPressEvent(event);
  if (!event->isAutoRepeat()) click();
}

}  // namespace surface::qt
