// Pictures are found by their name alone, whatever their format, so that they can be replaced
// without touching code.
#include "surface/qt/art.h"

#include <QFile>
#include <QGuiApplication>
#include <QHash>
#include <QPixmapCache>
#include <QTextStream>

#include "surface/qt/factor.h"
#include "surface/qt/images.h"

namespace surface::qt {
namespace {

QImage artImage(const std::string& name) {
  for (const char* kind : {"png", "gif", "bmp"}) {
    const QString path = QString(":/art/%1.%2").arg(QString::fromStdString(name), kind);
    if (QFile::exists(path)) return QImage(path);
  }
  return {};
}

// The working tips of the cursors, listed beside them as "name x y".
QPoint hotSpot(const std::string& name) {
  QFile list(":/art/cursors.txt");
  if (!list.open(QIODevice::ReadOnly | QIODevice::Text)) return {};
  QTextStream lines(&list);
  while (!lines.atEnd()) {
    const QStringList fields = lines.readLine().split(' ', Qt::SkipEmptyParts);
    if (fields.size() == 3 && fields[0].toStdString() == name)
      return {fields[1].toInt(), fields[2].toInt()};
  }
  return {};
}

// The same picture with the pixels of the screen.
QPixmap inSquares(const QPixmap& pixmap) {
  const double factor = qGuiApp->devicePixelRatio();
  if (factor <= 1) return pixmap;
  const QRectF place(QPointF(), QSizeF(pixmap.size()) * factor);
  QPixmap large = QPixmap::fromImage(enlarged(pixmap.toImage(), place, place.toAlignedRect()));
  large.setDevicePixelRatio(factor);
  return large;
}

// The middle of a cursor's working pixel. On X11 the toolkit passes it on as it is, in the pixels
// of the screen.
QPoint tipOnScreen(QPoint tip) {
  if (QGuiApplication::platformName() != "xcb") return tip;
  const QPointF middle = (QPointF(tip) + QPointF(0.5, 0.5)) * qGuiApp->devicePixelRatio();
  return {static_cast<int>(middle.x()), static_cast<int>(middle.y())};
}

}  // namespace

QPixmap artPixmap(const std::string& name) {
  QPixmap pixmap;
  const QString key = "art/" + QString::fromStdString(name);
  if (QPixmapCache::find(key, &pixmap)) return pixmap;
  pixmap = QPixmap::fromImage(artImage(name));
  QPixmapCache::insert(key, pixmap);
  return pixmap;
}

Picture artPicture(const std::string& name) {
  const QImage image = artImage(name);
  return image.isNull() ? Picture() : toPicture(image);
}

QCursor artCursor(const std::string& name) {
  static QHash<QString, QCursor> made;
  const QString key = QString::fromStdString(name);
  if (const auto found = made.constFind(key); found != made.constEnd()) return *found;
  const QPixmap pixmap = artPixmap(name);
  const QPoint tip = tipOnScreen(hotSpot(name));
  return *made.insert(key, pixmap.isNull() ? QCursor(Qt::CrossCursor)
                                           : QCursor(inSquares(pixmap), tip.x(), tip.y()));
}

QIcon programIcon() {
  QIcon icon;
  // A window manager asks for no more; the larger ones are for the desktop, and decoding them would
  // delay every window.
  for (int size : {16, 24, 32, 48, 64, 128}) {
    const QString path = QString(":/art/pictogram%1.png").arg(size);
    if (QFile::exists(path)) icon.addFile(path, QSize(size, size));
  }
  return icon;
}

}  // namespace surface::qt
