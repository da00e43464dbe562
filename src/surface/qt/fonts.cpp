// The screen's fonts through the toolkit.
#include "surface/qt/fonts.h"

#include <QDir>
#include <QFont>
#include <QFontDatabase>
#include <QFontMetrics>
#include <QImage>
#include <QPainter>
#include <algorithm>

#include "surface/qt/text_layout.h"

namespace surface::qt {
namespace {

constexpr int WidestText = 32767;

// Not families but what the desktop has chosen for a kind of text.
bool isStandIn(const QString& family) {
  return family == "Sans Serif" || family == "Serif" || family == "Monospace" ||
         QFontDatabase::isPrivateFamily(family);
}

// A family that also claims the symbols shows pictures where the letters should be.
bool writesDutch(const QString& family) {
  return !QFontDatabase::writingSystems(family).contains(QFontDatabase::Symbol) &&
         QFontDatabase::isSmoothlyScalable(family);
}

TextMask drawnText(const Font& font, const std::string& text) {
  QFont face = toQFont(font);
  face.setStyleStrategy(
      static_cast<QFont::StyleStrategy>(QFont::NoAntialias | QFont::NoSubpixelAntialias));
  face.setHintingPreference(QFont::PreferNoHinting);
  const QFontMetrics metrics(face);
  const QString line = QString::fromStdString(text);
  const int advance = metrics.horizontalAdvance(line);
  TextMask mask;
  mask.advance = static_cast<float>(advance);
  mask.lineHeight = metrics.height();
  mask.ascent = metrics.ascent();
  // Slanted letters reach beyond their advance, so there is room on all sides.
  const int margin = metrics.height();
  mask.left = -margin;
  mask.top = -margin;
  mask.width = std::min(advance, WidestText) + 2 * margin;
  mask.height = metrics.height() + 2 * margin;
  QImage image(mask.width, mask.height, QImage::Format_Grayscale8);
  image.fill(255);
  QPainter painter(&image);
  painter.setFont(face);
  painter.setPen(Qt::black);
  painter.drawText(margin, margin + metrics.ascent(), line);
  painter.end();
  mask.dots.resize(static_cast<std::size_t>(mask.width) * mask.height);
  for (int y = 0; y < mask.height; ++y) {
    const uchar* row = image.constScanLine(y);
    std::transform(row, row + mask.width, mask.dots.begin() + std::ptrdiff_t{y} * mask.width,
                   [](uchar shade) { return static_cast<std::uint8_t>(shade < 128); });
  }
  return mask;
}

}  // namespace

void installTypefaces(const std::string& folder) {
  const QDir typefaces(QString::fromStdString(folder));
  for (const QString& name : typefaces.entryList({"*.ttf", "*.otf"}, QDir::Files))
    QFontDatabase::addApplicationFont(typefaces.filePath(name));
}

std::vector<std::string> screenFonts() {
  std::vector<std::string> names;
  for (const QString& family : QFontDatabase::families(QFontDatabase::Latin)) {
    if (isStandIn(family) || !writesDutch(family)) continue;
    // Makers of the same family stand in brackets behind its name, one after the other.
    const std::string name = family.left(family.indexOf(" [")).toStdString();
    if (names.empty() || names.back() != name) names.push_back(name);
  }
  return names;
}

// An effect prints the same text many times over.
TextMask rasterText(const Font& font, const std::string& text) {
  static Font lastFont;
  static std::string lastText;
  static TextMask last = drawnText(lastFont, lastText);
  if (!(font == lastFont) || text != lastText) {
    last = drawnText(font, text);
    lastFont = font;
    lastText = text;
  }
  return last;
}

}  // namespace surface::qt
