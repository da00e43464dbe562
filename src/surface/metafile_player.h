// Plays the records of a metafile: pens, brushes and fonts, mapping, shapes, text and bitmaps.
#pragma once

#include <string>
#include <variant>
#include <vector>

#include "surface/metafile_canvas.h"
#include "surface/metafile_reader.h"
#include "surface/raster/polygons.h"

namespace surface {

class MetafilePlayer {
 public:
  /// The window, in the file's units, is shown on the whole canvas until the file says otherwise.
  MetafilePlayer(MetafileCanvas& canvas, const raster::Rect& window, unsigned objects);

  /// Plays one record; unknown ones are skipped.
  void play(const Record& record);

 private:
  struct Pen {
    raster::PenStyle style = raster::PenStyle::Solid;
    int width = 0;  ///< in the file's units
    raster::Pixel color = 0xFF000000;
  };
  struct Lettering {
    int height = 0;  ///< in the file's units: negative for the letters, positive for their line
    int escapement = 0;
    bool bold = false, italic = false, underline = false, strikethru = false;
    std::string name = "Arial";
  };
  struct Unknown {};
  using Object = std::variant<std::monostate, Pen, raster::Brush, Lettering, Unknown>;
  struct Pair {
    int x = 0, y = 0;
  };
  struct State {
    Pair windowOrigin, windowExtent, viewportOrigin, viewportExtent;
    unsigned mapMode = 8;
    int rop = 13;
    raster::FillRule rule = raster::FillRule::Alternate;
    bool opaque = true;
    raster::Pixel ground = 0xFFFFFFFF, ink = 0xFF000000;
    unsigned align = 0;
    Pair at;  ///< the current position, in the file's units
    Pen pen;
    raster::Brush brush{raster::BrushStyle::Solid, 0xFFFFFFFF};
    Lettering lettering;
    MetafileCanvas::Clip clip;
  };
  using Handler = void (MetafilePlayer::*)(const Record&);
  struct Row {
    unsigned function;
    Handler handler;
  };
  static const Row Table[];

  // metafile_player.cpp: objects, state, mapping
  void createPen(const Record& r);
  void createBrush(const Record& r);
  void createFont(const Record& r);
  void createUnknown(const Record& r);
  void selectObject(const Record& r);
  void deleteObject(const Record& r);
  void saveState(const Record& r);
  void restoreState(const Record& r);
  void setMode(const Record& r);
  void setColor(const Record& r);
  void setMapping(const Record& r);
  void scaleMapping(const Record& r);
  void changeClip(const Record& r);
  void moveClip(const Record& r);
  void dropClip(const Record& r);

  // metafile_shapes.cpp
  void moveTo(const Record& r);
  void lineTo(const Record& r);
  void polyline(const Record& r);
  void polygon(const Record& r);
  void polyPolygon(const Record& r);
  void rectangle(const Record& r);
  void roundRectangle(const Record& r);
  void ellipse(const Record& r);
  void arc(const Record& r);
  void setPixel(const Record& r);
  void floodFill(const Record& r);

  // metafile_blocks.cpp: text and bitmaps
  void textOut(const Record& r);
  void extTextOut(const Record& r);
  void patternBlock(const Record& r);
  void bitmapBlock(const Record& r);
  void bitmapPart(const Record& r);
  void drawText(Pair at, Bytes letters);

  struct Scale {
    double x, y;
  };
  void create(Object object);
  Scale scale() const;
  raster::Spot toPixels(int x, int y) const;
  raster::Rect toPixels(const Record& r, std::size_t bottomWord) const;
  MetafileCanvas::Block blockOf(int x, int y, int width, int height) const;
  std::vector<raster::Spot> spotsOf(const Record& r, std::size_t word, std::size_t count) const;
  raster::Pen pen() const;
  void fillPolygons(const std::vector<raster::Spot>& corners, const std::vector<int>& counts);
  void paintGround(const std::vector<raster::Spot>& corners, const std::vector<int>& counts);

  MetafileCanvas& canvas_;
  std::vector<Object> objects_;
  State state_;
  std::vector<State> saved_;
};

}  // namespace surface
