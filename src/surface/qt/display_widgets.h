// Controls that only show something: labels, frames, images and the progress bar.
#pragma once

#include <QGroupBox>
#include <QLabel>
#include <QPixmap>
#include <QProgressBar>

#include "surface/qt/peers.h"

namespace surface::qt {

/// What a label and an image have in common: a left release inside is a click, and so are Enter and
/// the space bar on one that answers clicks. The Tab key reaches it then.
template <class Kind>
class ClickWidget : public QLabel {
 public:
  ClickWidget(Kind& owner, QWidget& parent);

  Kind* control;

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void click();
};

class LabelWidget : public ClickWidget<Label> {
 public:
  LabelWidget(Label& owner, QWidget& parent);
  void sync(Aspect aspect);

 protected:
  void paintEvent(QPaintEvent*) override;
};

class FrameWidget : public QGroupBox {
 public:
  FrameWidget(Frame& owner, QWidget& parent);
  void sync(Aspect aspect);

  Frame* control;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
};

class ImageWidget : public ClickWidget<ImageControl> {
 public:
  ImageWidget(ImageControl& owner, QWidget& parent);
  void sync(Aspect aspect);

 protected:
  void paintEvent(QPaintEvent*) override;

 private:
  void takePicture();

  QPixmap picture_;
  Color ground_ = White;  ///< what the picture was mixed with
};

class ProgressWidget : public QProgressBar {
 public:
  ProgressWidget(ProgressBar& owner, QWidget& parent);
  void sync(Aspect aspect);

  ProgressBar* control;
};

}  // namespace surface::qt
