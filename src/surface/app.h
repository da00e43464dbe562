// What the program knows of its start: its folder and its command line; and the system clipboard.
#pragma once

#include <string>

#include "surface/picture.h"

namespace surface {

struct App {
  /// The folder of the path by which the program was started, links not resolved, without a slash
  /// at the end.
  std::string Path;
  /// Everything behind the program's name, joined by single blanks.
  std::string Command;
};

App& app();
inline const std::string& Command() { return app().Command; }

/// The system clipboard for bitmaps.
namespace Clipboard {
inline constexpr int Bitmap = 2;
void Clear();
/// A format other than Bitmap is refused with a BadPropertyValue error.
void SetData(const Picture& picture, int format);
/// An empty picture if the clipboard holds no bitmap.
Picture GetData(int format);
}  // namespace Clipboard

}  // namespace surface
