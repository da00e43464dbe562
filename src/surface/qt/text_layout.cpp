// Captions as the program's screens were laid out with them.
#include "surface/qt/text_layout.h"

#include <QPainter>
#include <algorithm>

#include "surface/numbers.h"

namespace surface::qt {
namespace {

// The text without its access key mark, and where the marked character stands in it (-1: nowhere).
QString withoutMark(const QString& text, int& marked) {
  QString plain;
  marked = -1;
  for (int i = 0; i < text.size(); ++i) {
    if (text[i] == '&' && i + 1 < text.size()) {
      ++i;
      if (text[i] != '&' && marked < 0) marked = static_cast<int>(plain.size());
    }
    plain += text[i];
  }
  return plain;
}

// One paragraph without line breaks of its own.
void wrapParagraph(const QString& text, const QFontMetrics& metrics, int width,
                   QStringList& lines) {
  int lineStart = 0, at = 0;
  while (at < text.size()) {
    int wordStart = at;
    while (wordStart < text.size() && text[wordStart] == ' ') ++wordStart;
    int wordEnd = wordStart;
    while (wordEnd < text.size() && text[wordEnd] != ' ') ++wordEnd;
    const bool fits = metrics.horizontalAdvance(text.mid(lineStart, wordEnd - lineStart)) <= width;
    if (!fits && wordStart > lineStart && wordEnd > wordStart &&
        !text.mid(lineStart, wordStart - lineStart).trimmed().isEmpty()) {
      lines += text.mid(lineStart, wordStart - lineStart);
      lineStart = wordStart;
    }
    at = wordEnd;
  }
  lines += text.mid(lineStart);
}

}  // namespace

QFont toQFont(const Font& font) {
  QFont result(QString::fromStdString(font.Name == "Verdana" ? "DejaVu Sans" : font.Name));
  // The metric-alike family that every package brings comes first: what a child writes without
  // choosing a font has the same dots where the named one is installed.
  if (font.Name == "Arial") result.setFamilies({"Liberation Sans", "Arial"});
  if (font.Name == "Verdana") result.setFamilies({"Verdana", "DejaVu Sans"});
  result.setPixelSize(std::max(1, static_cast<int>(roundEven(font.Size * 96 / 72))));
  result.setBold(font.Bold);
  result.setItalic(font.Italic);
  result.setUnderline(font.Underline);
  result.setStrikeOut(font.Strikethru);
  return result;
}

QStringList wrapped(const QString& text, const QFontMetrics& metrics, int width) {
  QStringList lines;
  for (const QString& paragraph : text.split('\n')) wrapParagraph(paragraph, metrics, width, lines);
  return lines;
}

void drawCaption(QPainter& painter, const QRect& area, const QString& text, bool centred) {
  int marked;
  const QString plain = withoutMark(text, marked);
  const QFontMetrics metrics = painter.fontMetrics();
  const QStringList lines = wrapped(plain, metrics, area.width());
  int y = area.top() + metrics.ascent();
  if (centred)
    y += std::max(0, (area.height() - metrics.height() * static_cast<int>(lines.size())) / 2);
  int start = 0;
  for (const QString& line : lines) {
    const QString shown = centred ? line.trimmed() : line;
    const int skipped = centred ? static_cast<int>(line.indexOf(shown)) : 0;
    int x = area.left();
    if (centred) x += (area.width() - metrics.horizontalAdvance(shown)) / 2;
    painter.drawText(x, y, shown);
    const int at = marked - start - skipped;
    if (marked >= 0 && at >= 0 && at < shown.size()) {
      const int left = x + metrics.horizontalAdvance(shown.left(at));
      painter.fillRect(left, y + 2, metrics.horizontalAdvance(shown[at]), 1, painter.pen().color());
    }
    start += static_cast<int>(line.size());
    y += metrics.height();
  }
}

QString spoken(const std::string& caption) {
  int marked;
  return withoutMark(QString::fromStdString(caption), marked).simplified();
}

}  // namespace surface::qt
