// The line and shape controls, which have no widget: their container paints them above its own
// image.
#pragma once

class QPainter;

namespace surface {
class Container;
}

namespace surface::qt {

/// Paints the visible windowless controls of a container, in the order of their declaration.
void paintWindowless(QPainter& painter, const Container& container);

}  // namespace surface::qt
