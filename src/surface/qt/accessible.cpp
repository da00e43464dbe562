// Every widget that says something has a name; what is only there to be seen is not told at all.
#include "surface/qt/accessible.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QCoreApplication>
#include <QKeyEvent>

#include "surface/qt/display_widgets.h"
#include "surface/qt/input_widgets.h"
#include "surface/qt/surface_widget.h"
#include "surface/qt/windowless.h"

namespace surface::qt {
namespace {

// A label, a picture or a line. Without a text and a name it only adorns the screen; one that
// answers clicks can be pressed.
class Adornment : public QAccessibleWidget {
 public:
  using QAccessibleWidget::QAccessibleWidget;

  QString text(QAccessible::Text part) const override {
    const QString own = QAccessibleWidget::text(part);
    const auto* label = qobject_cast<const QLabel*>(widget());
    return part == QAccessible::Name && own.isEmpty() && label ? label->text() : own;
  }

  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    if (text(QAccessible::Name).isEmpty()) state.invisible = true;
    return state;
  }

  QStringList actionNames() const override {
    const QStringList own = QAccessibleWidget::actionNames();
    return widget()->focusPolicy() & Qt::TabFocus ? QStringList(pressAction()) + own : own;
  }
  void doAction(const QString& action) override {
    if (action != pressAction()) return QAccessibleWidget::doAction(action);
    QKeyEvent space(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier);
    QCoreApplication::sendEvent(widget(), &space);
  }
};

// The toolkit's own gives the selected row as the name of the whole list, so that the two sound
// alike.
class DropDown : public QAccessibleWidget {
 public:
  explicit DropDown(QComboBox& box) : QAccessibleWidget(&box, QAccessible::ComboBox), box_(box) {}

  QString text(QAccessible::Text part) const override {
    return part == QAccessible::Value ? box_.currentText() : QAccessibleWidget::text(part);
  }

  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.expandable = true;
    state.expanded = box_.view()->isVisible();
    state.collapsed = !state.expanded;
    return state;
  }

  int childCount() const override { return 1; }
  QAccessibleInterface* child(int index) const override {
    return index == 0 ? QAccessible::queryAccessibleInterface(box_.view()) : nullptr;
  }
  int indexOfChild(const QAccessibleInterface* child) const override {
    return child && child->object() == box_.view() ? 0 : -1;
  }

  QStringList actionNames() const override {
    return QStringList(showMenuAction()) + QAccessibleWidget::actionNames();
  }
  void doAction(const QString& action) override {
    if (action != showMenuAction()) return QAccessibleWidget::doAction(action);
    box_.view()->isVisible() ? box_.hidePopup() : box_.showPopup();
  }

 private:
  QComboBox& box_;
};

// Asked for each class of a widget, the toolkit's own ones too; the first answer holds.
QAccessibleInterface* make(const QString&, QObject* object) {
  auto* widget = qobject_cast<QWidget*>(object);
  if (dynamic_cast<SurfaceWidget*>(widget))
    return new QAccessibleWidget(widget, QAccessible::Graphic);
  if (dynamic_cast<LabelWidget*>(widget)) return new Adornment(widget, QAccessible::StaticText);
  if (dynamic_cast<ImageWidget*>(widget) || dynamic_cast<FigureWidget*>(widget))
    return new Adornment(widget, QAccessible::Graphic);
  if (auto* list = dynamic_cast<ComboWidget*>(widget)) return new DropDown(*list);
  return nullptr;
}

}  // namespace

void installAccessibility() { QAccessible::installFactory(make); }

}  // namespace surface::qt
