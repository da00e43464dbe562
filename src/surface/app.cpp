// The program's start values and the clipboard's three operations.
#include "surface/app.h"

#include "surface/errors.h"
#include "surface/host.h"

namespace surface {

App& app() {
  static App theApp;
  return theApp;
}

namespace Clipboard {
namespace {

void checkFormat(int format) {
  if (format != Bitmap) throw RuntimeError(ErrorKind::BadPropertyValue, "Invalid clipboard format");
}

}  // namespace

void Clear() { host().setClipboard({}); }

void SetData(const Picture& picture, int format) {
  checkFormat(format);
  host().setClipboard(picture);
}

Picture GetData(int format) {
  checkFormat(format);
  return host().getClipboard();
}

}  // namespace Clipboard

}  // namespace surface
