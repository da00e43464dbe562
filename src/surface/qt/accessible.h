// What a screen reader is told of widgets that the toolkit describes wrongly or not at all.
#pragma once

namespace surface::qt {

/// Tells the accessibility layer about the program's own widgets; once, at the start.
void installAccessibility();

}  // namespace surface::qt
