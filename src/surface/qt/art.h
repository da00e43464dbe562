// The program's own pictures and cursors, by name, out of the program file.
#pragma once

#include <QCursor>
#include <QIcon>
#include <QPixmap>
#include <QString>
#include <string>

#include "surface/picture.h"

namespace surface::qt {

/// A picture for the screen, with its transparency; a null pixmap if there is none of that name.
QPixmap artPixmap(const std::string& name);
/// The same as a picture object; empty if there is none of that name.
Picture artPicture(const std::string& name);
/// A cursor with its hot spot; the cross if there is none of that name.
QCursor artCursor(const std::string& name);
/// The icon of the program's windows.
QIcon programIcon();

}  // namespace surface::qt
