// How captions break into lines: at blanks, and runs of blanks keep their width, since the captions
// are laid out with them.
#pragma once

#include <QColor>
#include <QFont>
#include <QFontMetrics>
#include <QRect>
#include <QString>
#include <QStringList>

#include "surface/font.h"

class QPainter;

namespace surface::qt {

/// The toolkit's font for a control's font, at 96 dots to the inch whatever the screen says.
QFont toQFont(const Font& font);

/// Breaks a text into lines of at most `width` pixels. A word that is too long stands alone. Blanks
/// at a break stay with the line before it.
QStringList wrapped(const QString& text, const QFontMetrics& metrics, int width);

/// Draws a wrapped text from the top of `area`; centred lines lose the blanks at their ends, and
/// are centred vertically too.
void drawCaption(QPainter& painter, const QRect& area, const QString& text, bool centred);

/// A caption without its access key mark, with single blanks: what a screen reader says.
QString spoken(const std::string& caption);

}  // namespace surface::qt
