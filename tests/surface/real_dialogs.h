// The toolkit's own dialogs behind the seams, for tests that answer them by hand.
#pragma once

#include <QApplication>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <utility>

#include "support/script.h"
#include "surface/form.h"
#include "surface/host.h"
#include "surface/qt/toolkit.h"

/// Does something with the dialog of this kind once it is open.
template <class Dialog>
void whenOpen(std::function<void(Dialog&)> act) {
  QTimer::singleShot(0, [act = std::move(act)] {
    auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
    if (dialog)
      act(*dialog);
    else
      ADD_FAILURE() << "another dialog is open, or none";
    // Whatever the test found, nothing stays open for ever.
    if (QWidget* left = QApplication::activeModalWidget()) left->close();
  });
}

class RealDialogs : public script::Stage {
 protected:
  /// A window that stays above all others, as a ruler does.
  struct AboveAll : surface::Form {
    AboveAll() : Form({.Caption = "lat"}) {}
  };

  RealDialogs() { surface::qt::install(); }
};
