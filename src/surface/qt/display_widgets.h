// Controls that only show something: labels, frames, images and the progress bar.
#pragma once

#include <QGroupBox>
#include <QLabel>
#include <QPixmap>
#include <QProgressBar>

#include "surface/qt/peers.h"

namespace surface::qt {

class LabelWidget : public QLabel {
 public:
  LabelWidget(Label& owner, QWidget& parent);
  void sync(Aspect aspect);

  Label* control;

 protected:
  void paintEvent(QPaintEvent*) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
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

class ImageWidget : public QLabel {
 public:
  ImageWidget(ImageControl& owner, QWidget& parent);
  void sync(Aspect aspect);

  ImageControl* control;

 protected:
  void paintEvent(QPaintEvent*) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

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
