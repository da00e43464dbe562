// The small studio on the stage, opened as the menu opens it.
#pragma once

#include <QImage>
#include <QSlider>
#include <set>
#include <string>

#include "shell/frmStart.h"
#include "small/frmTekenen1.h"
#include "support/script.h"

inline bool samePicture(const raster::Bitmap& is, const raster::Bitmap& should) {
  if (is.width() != should.width() || is.height() != should.height()) return false;
  for (int y = 0; y < is.height(); ++y)
    for (int x = 0; x < is.width(); ++x)
      if (is.at(x, y) != should.at(x, y)) return false;
  return true;
}

class SmallStudioStage : public script::Stage {
 protected:
  SmallStudioStage() { studio.Show(); }

  frmTekenen1& studio = surface::the<frmTekenen1>();
  surface::PictureBox& sheet = studio.picBlad;

  surface::Color at(int x, int y) const {
    return sheet.Point({static_cast<float>(x), static_cast<float>(y)});
  }
  /// How many pixels of the sheet are not white.
  int painted() const {
    const auto bitmap = sheet.bitmap();
    int count = 0;
    for (int y = 0; y < bitmap->height(); ++y)
      for (int x = 0; x < bitmap->width(); ++x) count += bitmap->at(x, y) != 0xFFFFFFFF;
    return count;
  }
  /// Presses the middle of a field of the palette; row and column from 0.
  surface::Color pick(int row, int column) {
    press(studio.picPalet, 33 * column + 16, 22 * row + 11);
    release(studio.picPalet, 33 * column + 16, 22 * row + 11);
    return studio.Shape1.FillColor;
  }
  surface::Color pickRed() { return pick(1, 1); }
  surface::Color pickBlue() { return pick(4, 1); }
  /// The child's own move of the knob.
  void slide(int value) {
    if (auto* knob = qobject_cast<QSlider*>(script::widgetOf(studio.Slider1)))
      knob->setValue(value);
  }
};
