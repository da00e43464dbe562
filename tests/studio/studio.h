// The large studio on the stage: its widgets under the pointer, and a plain bitmap beside the sheet
// on which a test paints what the sheet should show.
#pragma once

#include <QComboBox>
#include <QSlider>
#include <string>

#include "studio/frmTekenen2.h"
#include "support/script.h"
#include "surface/raster/oracle.h"
#include "surface/raster/pictures.h"

/// A control's place and tooltip as a panel's table states them.
struct Placed {
  surface::Control& control;
  float left, top;
  float width, height;  ///< 0 where the text or the toolkit decides
  std::string tip = {};
};

using pictures::same;

inline testing::AssertionResult shows(const surface::DrawingSurface& surface,
                                      const raster::Bitmap& should) {
  return same(*surface.bitmap(), should);
}

inline raster::Pen thinPen(surface::Color color) {
  return {raster::PenStyle::Solid, 1, surface::toPixel(color)};
}

class Studio : public script::Stage {
 protected:
  Studio() { studio.Show(); }

  frmTekenen2& studio = surface::the<frmTekenen2>();
  surface::PictureBox& sheet = studio.picBlad;

  /// A copy of the sheet as it is, for the test to paint on.
  raster::Bitmap canvas() const { return *sheet.bitmap(); }
  /// An empty sheet in its colour.
  raster::Bitmap blank() const {
    const auto& inner = sheet.innerPixels();
    return {inner.width(), inner.height(), surface::toPixel(sheet.BackColor)};
  }
  /// A small sheet, for oracles that look at every pixel for every line.
  void shrinkSheet(int width, int height) {
    sheet.Width = static_cast<float>(width * 15);
    sheet.Height = static_cast<float>(height * 15);
  }

  /// Picks a colour on the palette, one of the full ones: `hue` pixels from its left side.
  surface::Color pickColor(int hue) {
    press(studio.picPalet, hue, 37);
    release(studio.picPalet, hue, 37);
    return studio.Shape1.FillColor;
  }
  /// Changes only the swatch: a release off the palette leaves the pen's colour as it was.
  surface::Color pickSwatchOnly(int hue) {
    press(studio.picPalet, hue, 37);
    release(studio.picPalet, hue, -20);
    return studio.Shape1.FillColor;
  }

  /// The user's own move of a slider's knob.
  void slide(surface::Slider& slider, int value) {
    if (auto* knob = qobject_cast<QSlider*>(script::widgetOf(slider))) knob->setValue(value);
  }
  /// The user's own choice of a row, also of the one that is chosen already.
  void pickRow(surface::ComboBox& box, int row) {
    if (auto* list = qobject_cast<QComboBox*>(script::widgetOf(box))) {
      list->setCurrentIndex(row);
      emit list->activated(row);
    }
  }

  void expectPlaced(std::initializer_list<Placed> table) {
    for (const Placed& row : table) {
      SCOPED_TRACE(row.tip + " at " + std::to_string(row.left) + ", " + std::to_string(row.top));
      EXPECT_EQ(row.control.Left.get(), row.left);
      EXPECT_EQ(row.control.Top.get(), row.top);
      EXPECT_EQ(row.control.Width.get(), row.width > 0 ? row.width : row.control.Width.get());
      EXPECT_EQ(row.control.Height.get(), row.height > 0 ? row.height : row.control.Height.get());
      EXPECT_EQ(row.control.ToolTipText.get(), row.tip);
    }
  }
};
