// The large studio with a drawing of many colours on a small sheet, for the scripts of the effects.
#pragma once

#include <functional>
#include <memory>

#include "effects/pictures.h"
#include "studio/studio.h"
#include "surface/app.h"

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
