// The one set of seams, and the free functions that are nothing but a call through them.
#include "surface/host.h"

namespace surface {

Host& host() {
  static Host theHost;
  return theHost;
}

Picture LoadPicture(const std::string& path) { return host().loadPicture(path); }

void SavePicture(const Picture& picture, const std::string& path) {
  host().savePicture(picture, path);
}

}  // namespace surface
