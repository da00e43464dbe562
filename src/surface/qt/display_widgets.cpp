// Controls that only show something. A click is a left release inside, as on any control.
#include "surface/qt/display_widgets.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

#include "surface/qt/art.h"
#include "surface/qt/button.h"
#include "surface/qt/factor.h"
#include "surface/qt/images.h"
#include "surface/qt/pointer.h"
#include "surface/qt/text_layout.h"

namespace surface::qt {
namespace {

// Keeps the letters of a label on a dark ground off its edge.
constexpr int Inset = 2;
constexpr QColor Grey(0x80, 0x80, 0x80);

bool clicks(const QWidget& widget, const QMouseEvent& event) {
  return event.button() == Qt::LeftButton && widget.rect().contains(pixelUnder(event));
}

// The picture no larger than its place, shrunk smoothly; what is smaller stays as it is, to be
// enlarged as squares.
QPixmap shrunk(const QPixmap& picture, QSize place) {
  const QSize size = picture.size().boundedTo(place);
  if (size == picture.size() || size.isEmpty()) return picture;
  return picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

// Stretched as squares: column d takes the picture's column floor(d * n / width), and so do the
// rows.
QImage stretched(const QImage& picture, QSize place) {
  if (picture.isNull() || picture.size() == place) return picture;
  QImage result(place, picture.format());
  const auto columns = [&](int x) { return x * picture.width() / place.width(); };
  for (int y = 0; y < place.height(); ++y) {
    const auto* from =
        reinterpret_cast<const QRgb*>(picture.constScanLine(y * picture.height() / place.height()));
    auto* to = reinterpret_cast<QRgb*>(result.scanLine(y));
    for (int x = 0; x < place.width(); ++x) to[x] = from[columns(x)];
  }
  return result;
}

// What shows through the transparent parts of a picture.
Color groundOf(const Container& container) {
  if (const auto* surface = dynamic_cast<const DrawingSurface*>(&container))
    return surface->BackColor;
  const auto* frame = dynamic_cast<const Frame*>(&container);
  return frame ? frame->BackColor.get() : White;
}

}  // namespace

template <class Kind>
ClickWidget<Kind>::ClickWidget(Kind& owner, QWidget& parent) : QLabel(&parent), control(&owner) {
  if (owner.Click.handled()) setFocusPolicy(Qt::TabFocus);
}

template <class Kind>
void ClickWidget<Kind>::click() {
  if (control) dispatch([this] { control->Click(); });
}

// A press that is not taken would go on to the form beneath.
template <class Kind>
void ClickWidget<Kind>::mousePressEvent(QMouseEvent* event) {
  event->accept();
}

template <class Kind>
void ClickWidget<Kind>::mouseReleaseEvent(QMouseEvent* event) {
  event->accept();
  if (clicks(*this, *event)) click();
}

// The arrow keys go to the neighbours. A key that is held down clicks once.
template <class Kind>
void ClickWidget<Kind>::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (!event->isAutoRepeat()) click();
      break;
    case Qt::Key_Right:
    case Qt::Key_Down:
      focusNextChild();
      break;
    case Qt::Key_Left:
    case Qt::Key_Up:
      focusPreviousChild();
      break;
    default:
      QLabel::keyPressEvent(event);
  }
}

LabelWidget::LabelWidget(Label& owner, QWidget& parent) : ClickWidget(owner, parent) {
  setTextFormat(Qt::PlainText);
  setAttribute(Qt::WA_TransparentForMouseEvents, owner.Framed);
}

void LabelWidget::sync(Aspect aspect) {
  if (aspect == Aspect::Look) {
    setAttribute(Qt::WA_OpaquePaintEvent, control->BackColor != NoColor && !control->Framed);
    setFont(toQFont(control->Font));
    update();
  }
  if (aspect == Aspect::Value) {
    // The toolkit's own text is only what a screen reader says: the caption is painted with its
    // runs of blanks.
    setText(spoken(control->Caption));
    update();
  }
  applyCommon(*this, *control, aspect);
  // An empty text would be nothing to a screen reader.
  const std::string& name = control->AccessibleName;
  const bool silent = name.empty() && text().isEmpty();
  setAccessibleName(QString::fromStdString(silent ? control->ToolTipText.get() : name));
  // Of a frame without width one side remains.
  if (aspect == Aspect::Place && control->Framed) resize(std::max(1, width()), height());
}

void LabelWidget::paintEvent(QPaintEvent*) {
  if (!control) return;
  QPainter painter(this);
  if (control->Framed) {
    painter.setPen(Grey);  // seen on white and on black
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
  } else if (control->BackColor != NoColor) {
    painter.fillRect(rect(), toQColor(control->BackColor));
  }
  painter.setFont(font());
  painter.setPen(isEnabled() ? toQColor(control->ForeColor) : Grey);
  // A line that begins at the left may end at the very edge.
  drawCaption(painter, rect().adjusted(Inset, 0, control->Centred ? -Inset : 0, 0),
              QString::fromStdString(control->Caption), control->Centred);
  if (hasFocus()) drawFocus(painter, rect());
}

FrameWidget::FrameWidget(Frame& owner, QWidget& parent) : QGroupBox(&parent), control(&owner) {
  makePeers(owner, *this);
}

void FrameWidget::sync(Aspect aspect) {
  if (aspect == Aspect::Look) {
    setFont(toQFont(control->Font));
    update();
  }
  applyCommon(*this, *control, aspect, spoken(control->Caption));
}

void FrameWidget::paintEvent(QPaintEvent* event) {
  if (!control) return;
  QPainter painter(this);
  painter.fillRect(event->rect(), toQColor(control->BackColor));
  painter.setFont(font());
  const QString title = QString::fromStdString(control->Caption);
  const QFontMetrics metrics = painter.fontMetrics();
  const QRect edge = rect().adjusted(0, title.isEmpty() ? 0 : metrics.height() / 2, -2, -2);
  // Enlarged, a line runs along the middle of its pixels.
  const double middle = devicePixelRatioF() > 1 ? 0.5 : 0;
  painter.setPen(Qt::white);
  painter.drawRect(QRectF(edge).translated(1 + middle, 1 + middle));
  painter.setPen(QColor(0x80, 0x80, 0x80));
  painter.drawRect(QRectF(edge).translated(middle, middle));
  if (!title.isEmpty()) {
    const QRect place(8, 0, metrics.horizontalAdvance(title) + 4, metrics.height());
    painter.fillRect(place, toQColor(control->BackColor));
    painter.setPen(isEnabled() ? QColor(Qt::black) : Grey);
    painter.drawText(place.left() + 2, metrics.ascent(), title);
  }
}

void FrameWidget::mousePressEvent(QMouseEvent* event) { event->accept(); }
void FrameWidget::mouseReleaseEvent(QMouseEvent* event) { event->accept(); }

ImageWidget::ImageWidget(ImageControl& owner, QWidget& parent) : ClickWidget(owner, parent) {}

void ImageWidget::sync(Aspect aspect) {
  if (aspect == Aspect::Look) {
    takePicture();
    update();
  }
  applyCommon(*this, *control, aspect);
}

void ImageWidget::takePicture() {
  const Picture& own = control->Picture;
  ground_ = groundOf(control->container());
  picture_ = own.empty() ? artPixmap(control->PictureName)
                         : QPixmap::fromImage(wrapped(*own.over(toPixel(ground_))).copy());
}

void ImageWidget::paintEvent(QPaintEvent*) {
  if (!control) return;
  if (ground_ != groundOf(control->container())) takePicture();
  QPainter painter(this);
  const QRect inner = control->Border ? rect().adjusted(2, 2, -2, -2) : rect();
  // A picture that fits is enlarged to its place in the program's own pixels, so that it is the
  // same at every factor; a larger one is shrunk to what the screen can show.
  const bool fits = picture_.size() == picture_.size().boundedTo(inner.size());
  if (fits) {
    drawSquares(painter, stretched(picture_.toImage(), inner.size()), inner, inner);
  } else {
    const QSize place = DevicePixels(painter).whole(inner).size();
    drawSquares(painter, shrunk(picture_, place).toImage(), inner, inner);
  }
  if (control->Border) drawClassicEdge(painter, rect(), true);
  if (hasFocus()) drawFocus(painter, inner);
}

ProgressWidget::ProgressWidget(ProgressBar& owner, QWidget& parent)
    : QProgressBar(&parent), control(&owner) {
  setTextVisible(false);
}

void ProgressWidget::sync(Aspect aspect) {
  if (aspect == Aspect::Value) {
    setMaximum(control->Max);
    setValue(control->Value);
  }
  applyCommon(*this, *control, aspect);
}

}  // namespace surface::qt
