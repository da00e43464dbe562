// Controls that take input: text boxes, check and option buttons, drop-down lists, sliders and
// scroll bars.
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QScrollBar>
#include <QSlider>

#include "surface/qt/peers.h"

namespace surface::qt {

class TextWidget : public QLineEdit {
 public:
  TextWidget(TextBox& owner, QWidget& parent);
  void sync(Aspect aspect);

  TextBox* control;

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void fitLetters();
};

class LongTextWidget : public QPlainTextEdit {
 public:
  LongTextWidget(TextBox& owner, QWidget& parent);
  void sync(Aspect aspect);

  TextBox* control;
};

class CheckWidget : public QCheckBox {
 public:
  CheckWidget(CheckBox& owner, QWidget& parent);
  void sync(Aspect aspect);

  CheckBox* control;

 protected:
  // All of its place takes the click, not only the letters.
  bool hitButton(const QPoint& at) const override { return rect().contains(at); }
};

class OptionWidget : public QRadioButton {
 public:
  OptionWidget(OptionButton& owner, QWidget& parent);
  void sync(Aspect aspect);

  OptionButton* control;

 protected:
  void paintEvent(QPaintEvent*) override;
  // All of its place takes the click, not only the letters.
  bool hitButton(const QPoint& at) const override { return rect().contains(at); }
};

class ComboWidget : public QComboBox {
 public:
  ComboWidget(ComboBox& owner, QWidget& parent);
  void sync(Aspect aspect);

  ComboBox* control;
};

class ListWidget : public QListWidget {
 public:
  ListWidget(ListBox& owner, QWidget& parent);
  void sync(Aspect aspect);

  ListBox* control;
};

class SliderWidget : public QSlider {
 public:
  SliderWidget(Slider& owner, QWidget& parent);
  void sync(Aspect aspect);

  Slider* control;
};

class ScrollWidget : public QScrollBar {
 public:
  ScrollWidget(HScrollBar& owner, QWidget& parent);
  void sync(Aspect aspect);

  HScrollBar* control;
};

}  // namespace surface::qt
