// The seven panels share one spot; what they hold must lie in it whole.
#include <QWidget>
#include <algorithm>

#include "studio/studio.h"

using namespace surface;

class PanelLayout : public Studio {
 protected:
  struct Panel {
    CommandButton& button;
    Frame& frame;
  };
  std::vector<Panel> panels() {
    return {{studio.cmdLijnen, studio.fraLijnen},     {studio.cmdGommen, studio.fraGommen},
            {studio.cmdLineaal, studio.fraLineaal},   {studio.cmdVulling, studio.fraVulling},
            {studio.cmdBorstels, studio.fraBorstels}, {studio.cmdGradient, studio.fraGradient},
            {studio.cmdEffecten, studio.fraEffecten}};
  }
};

TEST_F(PanelLayout, EveryControlLiesWithinItsPanel) {
  for (const Panel& panel : panels()) {
    click(panel.button);
    const raster::Rect spot = panel.frame.pixelPlace();
    const raster::Rect inner{0, 0, spot.width(), spot.height()};
    for (const Control* control : panel.frame.controls()) {
      const raster::Rect place =
          control->windowless() ? control->paintedPixels() : control->pixelPlace();
      EXPECT_EQ(intersect(place, inner), place)
          << panel.frame.Caption.get() << ": " << control->ToolTipText.get();
    }
  }
}

TEST_F(PanelLayout, NoTwoControlsOfAPanelOverlap) {
  for (const Panel& panel : panels()) {
    const auto& controls = panel.frame.controls();
    for (std::size_t i = 0; i < controls.size(); ++i)
      for (std::size_t j = i + 1; j < controls.size(); ++j) {
        const raster::Rect shared = intersect(controls[i]->pixelPlace(), controls[j]->pixelPlace());
        // Neighbours may share an edge.
        EXPECT_LE(std::min(shared.width(), shared.height()), 1)
            << panel.frame.Caption.get() << ": " << controls[i]->ToolTipText.get() << " and "
            << controls[j]->ToolTipText.get();
      }
  }
}

TEST_F(PanelLayout, LabelsShowTheirWholeText) {
  for (const Panel& panel : panels()) {
    click(panel.button);
    for (Control* control : panel.frame.controls()) {
      const auto* label = dynamic_cast<Label*>(control);
      if (!label) continue;
      const QFontMetrics metrics = script::widgetOf(*control)->fontMetrics();
      const QString text = QString::fromStdString(label->Caption);
      EXPECT_LE(metrics.horizontalAdvance(text), label->pixelPlace().width())
          << label->Caption.get();
      EXPECT_LE(metrics.height(), label->pixelPlace().height()) << label->Caption.get();
    }
  }
}

TEST_F(PanelLayout, APanelHidesNoButtonAroundIt) {
  const raster::Rect backing = studio.Label2.pixelPlace();
  for (const Panel& panel : panels()) {
    const raster::Rect spot = panel.frame.pixelPlace();
    EXPECT_EQ(intersect(spot, backing), spot) << panel.frame.Caption.get();
  }
  for (Control* control : studio.controls()) {
    if (!dynamic_cast<CommandButton*>(control)) continue;
    EXPECT_TRUE(intersect(control->pixelPlace(), backing).empty()) << control->ToolTipText.get();
  }
}
