// The one set of seams.
#include "surface/host.h"

namespace surface {

Host& host() {
  static Host theHost;
  return theHost;
}

std::vector<std::string> ScreenFonts() { return host().screenFonts(); }

}  // namespace surface
