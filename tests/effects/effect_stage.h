// The large studio with a drawing of many colours on a small sheet, for the scripts of the effects.
#pragma once

#include <QEvent>
#include <QWidget>
#include <functional>
#include <memory>

#include "effects/pictures.h"
#include "studio/studio.h"
#include "surface/app.h"

/// Notes what a window says of itself: its captions, and whether it ever showed the hourglass.
class Heard : public QObject {
 public:
  explicit Heard(QWidget* window) : window_(window) { window->installEventFilter(this); }
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::WindowTitleChange)
      captions.push_back(window_->windowTitle().toStdString());
    if (event->type() == QEvent::CursorChange && window_->cursor().shape() == Qt::WaitCursor)
      hourglass = true;
    return false;
  }
  std::vector<std::string> captions;
  bool hourglass = false;

 private:
  QWidget* window_;
};

class EffectStage : public Studio {
 protected:
  EffectStage() { surface::app().Path = folder(); }

  /// Noise on a sheet of that size; gives it for comparison.
  raster::Bitmap drawNoise(int width, int height) {
    shrinkSheet(width, height);
    pictures::Dice dice(51);
    raster::Bitmap picture = pictures::noise(dice, width, height);
    sheet.Picture = surface::Picture(std::make_shared<raster::Bitmap>(picture));
    return picture;
  }

  /// A press and release of the button in the effects panel, by the pointer.
  void clickEffect(surface::CommandButton& button) {
    click(studio.cmdEffecten);
    click(button);
  }

  static std::string banner(const std::string& name) {
    return "         >>>>>>>>>>>>>>>>>>>>>   HET " + name +
           "-EFFECT WORDT NU TOEGEPAST - EVEN GEDULD A.U.B. ...";
  }
  static std::string status(const std::string& name) {
    return "het effect " + name + " wordt nu toegepast";
  }

  bool animates() { return studio.Timer2.Enabled && studio.ProgressBar1.Visible; }
  int messages() {
    return static_cast<int>(std::count_if(asked().begin(), asked().end(), [](const auto& asked) {
      return asked.kind == "message" && asked.text == "Klaar !!!";
    }));
  }
  void expectOneMessageAfterFiveSeconds() {
    advance(5000);
    EXPECT_EQ(messages(), 0);
    EXPECT_EQ(studio.ProgressBar1.Value, 50);
    answerMessage(surface::Ok);
    advance(100);
    EXPECT_EQ(messages(), 1);
    EXPECT_FALSE(studio.ProgressBar1.Visible || studio.Timer2.Enabled);
  }
};
