// The text tool on the stage: a dialog for a place on the sheet, and a canvas on which a test
// prints with letters that the toolkit drew, outside the program's own code.
#pragma once

#include <QImage>
#include <QPainter>
#include <cmath>
#include <string>
#include <vector>

#include "studio/studio.h"
#include "text/frmTekst.h"

/// Prints as a text tool should: the dot that places the text, then the letters.
class LiteralText {
 public:
  LiteralText(raster::Bitmap canvas, const surface::Font& font, const std::string& text)
      : canvas_(std::move(canvas)), letters_(canvas_.width() + 200, 200, QImage::Format_RGB32) {
    QFont face(QString::fromStdString(font.Name));
    face.setPixelSize(static_cast<int>(std::lround(font.Size * 96 / 72)));
    face.setBold(font.Bold);
    face.setItalic(font.Italic);
    face.setUnderline(font.Underline);
    face.setStrikeOut(font.Strikethru);
    face.setStyleStrategy(QFont::NoAntialias);
    face.setHintingPreference(QFont::PreferNoHinting);
    letters_.fill(Qt::white);
    QPainter painter(&letters_);
    painter.setFont(face);
    painter.drawText(Margin, Margin + QFontMetrics(face).ascent(), QString::fromStdString(text));
  }

  void print(double x, double y, surface::Color color, surface::Color dot) {
    const int left = static_cast<int>(std::nearbyint(static_cast<float>(x)));
    const int top = static_cast<int>(std::nearbyint(static_cast<float>(y)));
    oracle::put({canvas_}, surface::toPixel(dot), left, top);
    for (int row = 0; row < letters_.height(); ++row)
      for (int column = 0; column < letters_.width(); ++column)
        if (qGray(letters_.pixel(column, row)) < 128)
          oracle::put({canvas_}, surface::toPixel(color), left + column - Margin,
                      top + row - Margin);
  }

  const raster::Bitmap& canvas() const { return canvas_; }

 private:
  static constexpr int Margin = 60;
  raster::Bitmap canvas_;
  QImage letters_;
};

class TextTool : public Studio {
 protected:
  /// All text forms that show, the oldest first.
  static std::vector<frmTekst*> dialogs() {
    std::vector<frmTekst*> found;
    for (const auto& form : surface::FormRegistry::instance().forms())
      if (auto* dialog = dynamic_cast<frmTekst*>(form.get()); dialog && dialog->shown())
        found.push_back(dialog);
    return found;
  }
  /// Chooses the tool and clicks on a place of the sheet: the dialog that this opens.
  frmTekst& openAt(int x, int y) {
    click(studio.cmdTekst);
    press(sheet, x, y);
    release(sheet, x, y);
    return *dialogs().back();
  }
  /// The user's own change of a text box, all at once.
  void fill(surface::TextBox& box, const std::string& text) {
    surface::dispatch([&] { box.typed(text); });
  }
};
