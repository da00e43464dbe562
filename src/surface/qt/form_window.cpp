// The window of a form: its controls inside, its own drawing beneath them.
#include "surface/qt/form_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QWindow>
#include <algorithm>
#include <cstdlib>
#include <vector>

#include "surface/controls.h"
#include "surface/dispatch.h"
#include "surface/qt/peers.h"
#include "surface/qt/pointer.h"
#include "surface/qt/surface_widget.h"

namespace surface::qt {
namespace {

Qt::WindowFlags flagsOf(const Form& form) {
  Qt::WindowFlags flags = Qt::Window;
  if (form.BorderStyle == Form::Border::Fixed)
    flags |= Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
             Qt::WindowCloseButtonHint;
  if (form.BorderStyle == Form::Border::Tool)
    flags |= Qt::Tool | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint;
  if (form.topMost()) flags |= Qt::WindowStaysOnTopHint;
  return flags;
}

// What the controls need that can be seen at some time, within the size that the form is made for:
// a sheet that has grown beyond it does not make the window scroll.
QSize leastSize(const Form& form) {
  const raster::Rect design = form.designPixels();
  raster::Rect needed;
  for (Control* control : form.controls())
    if (control->Visible || dynamic_cast<const Frame*>(control))
      needed = raster::unite(needed, control->pixelPlace());
  return {std::min(design.right, needed.right), std::min(design.bottom, needed.bottom)};
}

void addStop(const Control& control, std::vector<QWidget*>& stops) {
  QWidget* widget = widgetOf(control);
  if (widget && widget->focusPolicy() & Qt::TabFocus) stops.push_back(widget);
}

void addStops(Container& container, const Control* first, std::vector<QWidget*>& stops) {
  for (Control* control : container.controls()) {
    if (control != first) addStop(*control, stops);
    if (Container* inner = control->asContainer()) addStops(*inner, first, stops);
  }
}

QSize& lastMaximised() {
  static QSize size;
  return size;
}

// A window has asked for the front when it is shown, but the desktop answers only after the
// handler. A dialog of the one that is still active would pull that one before it.
QPointer<QWidget>& shownByHandler() {
  static QPointer<QWidget> window;
  return window;
}

class FormWindowPeer : public FormPeer {
 public:
  explicit FormWindowPeer(Form& form) : window_(new FormWindow(form)) {}
  ~FormWindowPeer() override {
    if (!window_) return;
    window_->form = nullptr;
    window_->hide();
    window_->deleteLater();
  }

  void show() override {
    if (window_->form->Maximised)
      window_->showMaximized();
    else
      window_->show();
    window_->raise();
    window_->activateWindow();
    shownByHandler() = window_;
    whenHandlersReturned([] { shownByHandler().clear(); });
  }
  void hide() override { window_->hide(); }
  void addControl(Control& control) override {
    makePeerLate(control, window_->canvas());
    window_->orderStops();
  }
  void update() override { window_->sync(); }
  void move() override { window_->place(); }
  void resize() override { window_->fit(); }
  void showPixels(std::span<const raster::Rect> areas, bool atOnce) override {
    qt::showPixels(window_->canvas(), areas, atOnce);
  }

 private:
  QPointer<FormWindow> window_;
};

}  // namespace

std::unique_ptr<FormPeer> makeFormPeer(Form& form) {
  return std::make_unique<FormWindowPeer>(form);
}

QWidget* frontWindow() {
  QWidget* shown = shownByHandler();
  return shown && shown->isVisible() ? shown : QApplication::activeWindow();
}

raster::Rect maximisedSize() {
  const QSize size = lastMaximised().isEmpty()
                         ? QGuiApplication::primaryScreen()->availableGeometry().size()
                         : lastMaximised();
  return {0, 0, size.width(), size.height()};
}

FormCanvas::FormCanvas(FormWindow& owner) : window_(owner) {
  setAttribute(Qt::WA_OpaquePaintEvent);
}

void FormCanvas::paintEvent(QPaintEvent* event) {
  if (!window_.form) return;
  QPainter painter(this);
  paintSurface(painter, *window_.form, event->region());
}

void FormCanvas::resizeEvent(QResizeEvent* event) {
  if (window_.form && window_.form->BorderStyle == Form::Border::Sizable)
    dispatch([&] { window_.form->windowResized(event->size().width(), event->size().height()); });
}

// What a control has no use for comes here too, as a right button's click on a command button. It
// is that control's all the same.
void FormCanvas::mousePressEvent(QMouseEvent* event) {
  if (event->buttons() == event->button()) pressed_ = !childAt(pixelUnder(*event));
}

void FormCanvas::mouseReleaseEvent(QMouseEvent* event) {
  if (window_.form && pressed_)
    dispatch([&] { window_.form->MouseUp(toMouse(*event, *window_.form)); });
}

FormWindow::FormWindow(Form& owner)
    : QWidget(nullptr, flagsOf(owner)),
      form(&owner),
      scroll_(new QScrollArea(this)),
      canvas_(new FormCanvas(*this)) {
  scroll_->setFrameShape(QFrame::NoFrame);
  scroll_->setFocusPolicy(Qt::NoFocus);
  scroll_->setWidgetResizable(true);
  scroll_->setWidget(canvas_);
  if (owner.BorderStyle == Form::Border::Sizable) canvas_->setMinimumSize(leastSize(owner));
  takeSize();
  if (owner.placed())
    place();
  else if (owner.Centred)
    move(middle());
  sync();
  makePeers(owner, *canvas_);
  orderStops();
}

// The toolkit's own order is that in which the widgets were made, and a panel's come late.
void FormWindow::orderStops() {
  std::vector<QWidget*> stops;
  if (form->FirstStop) addStop(*form->FirstStop, stops);
  addStops(*form, form->FirstStop, stops);
  for (std::size_t i = 1; i < stops.size(); ++i) setTabOrder(stops[i - 1], stops[i]);
}

void FormWindow::sync() {
  // For a window without a caption the toolkit would show the program's file name.
  const QString caption = QString::fromStdString(form->Caption);
  setWindowTitle(caption.isEmpty() ? " " : caption);
  setCursor(toCursor(form->MousePointer, {}));
  if (form->topMost() != windowFlags().testFlag(Qt::WindowStaysOnTopHint)) {
    const bool seen = isVisible();
    setWindowFlags(flagsOf(*form));
    if (seen) show();
  }
}

void FormWindow::takeSize() {
  const raster::Rect inner = form->innerPixels();
  if (form->BorderStyle == Form::Border::Sizable)
    resize(inner.width(), inner.height());
  else
    setFixedSize(inner.width(), inner.height());
}

QPoint FormWindow::middle() const {
  return screen()->availableGeometry().center() - rect().center();
}

void FormWindow::fit() {
  // Some desktops put the inner area where the frame was asked to go.
  const QPoint off = pos() - middle(), frame = geometry().topLeft() - pos();
  const bool inMiddle = std::abs(off.x()) <= frame.x() && std::abs(off.y()) <= frame.y();
  takeSize();
  if (form->Centred && !form->placed() && inMiddle) move(middle());
}

void FormWindow::place() {
  // The place is that of the frame. A window that has just been shown has none yet: only the window
  // manager can reckon with it, or the title bar would end up beyond the screen's edge.
  const raster::Rect wanted = form->windowPlace();
  const QPoint corner(wanted.left, wanted.top);
  if (windowHandle() && isVisible())
    windowHandle()->setFramePosition(corner);
  else
    move(corner);
}

void FormWindow::closeEvent(QCloseEvent* event) {
  // The model decides whether the window goes.
  event->ignore();
  if (form) dispatch([this] { form->closeBoxPressed(); });
}

void FormWindow::resizeEvent(QResizeEvent* event) {
  if (isMaximized()) lastMaximised() = event->size();
  scroll_->setGeometry(rect());
}

void FormWindow::moveEvent(QMoveEvent*) {
  if (form && !isMaximized()) form->windowMoved(pos().x(), pos().y());
}

}  // namespace surface::qt
