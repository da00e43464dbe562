// Effects that stamp, scatter and shift pixels.
#include "effects/displacements.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <optional>
#include <vector>

#include "surface/numbers.h"

namespace effects {
namespace {

using raster::Bitmap;
using raster::Pixel;
using surface::nearestInt;

constexpr Pixel Opaque = 0xFF000000;

// What becomes of the values 0..255 of a channel.
using Table = std::array<std::uint8_t, 256>;

constexpr int DentReach = 5, DentSide = 2 * DentReach + 1, DentSpacing = 10;

// One dent: what each of its pixels goes through, all its hits by the rings taken together.
class Dent {
 public:
  Dent() {
    std::array<std::optional<Table>, DentSide * DentSide> hits;
    double factor = 0.995;
    for (int radius = 1; radius <= DentReach; ++radius) {
      for (double t = 0; t <= 6.28318530718; t += 0.1)
        darken(hits[spot(nearestInt(radius * std::cos(t)), nearestInt(radius * std::sin(t)))],
               factor);
      factor += 0.001;
    }
    for (int dy = -DentReach; dy <= DentReach; ++dy)
      for (int dx = -DentReach; dx <= DentReach; ++dx)
        if (const auto& table = hits[spot(dx, dy)]) spots_.push_back({dx, dy, number(*table)});
  }

  /// Stamps it around (cx, cy); what lies beyond the picture is left out.
  void stamp(Bitmap& picture, int cx, int cy) const {
    const bool inside = cx >= DentReach && cy >= DentReach && cx + DentReach < picture.width() &&
                        cy + DentReach < picture.height();
    for (const Spot& spot : spots_) {
      const int x = cx + spot.dx, y = cy + spot.dy;
      if (!inside && !picture.contains(x, y)) continue;
      const Table& table = tables_[spot.table];
      Pixel& p = picture.row(y)[x];
      p = Opaque | Pixel{table[p >> 16 & 0xFF]} << 16 | Pixel{table[p >> 8 & 0xFF]} << 8 |
          table[p & 0xFF];
    }
  }

 private:
  struct Spot {
    int dx, dy;
    std::size_t table;
  };

  static std::size_t spot(int dx, int dy) {
    const int place = (dy + DentReach) * DentSide + dx + DentReach;
    return static_cast<std::size_t>(place);
  }

  static void darken(std::optional<Table>& table, double factor) {
    if (!table) {
      table.emplace();
      for (int c = 0; c < 256; ++c)
        (*table)[static_cast<std::size_t>(c)] = static_cast<std::uint8_t>(c);
    }
    for (std::uint8_t& value : *table)
      value = static_cast<std::uint8_t>(nearestInt(factor * value));
  }

  // Many pixels share their fate: few tables stay in the processor's reach.
  std::size_t number(const Table& table) {
    const auto found = std::find(tables_.begin(), tables_.end(), table);
    if (found != tables_.end()) return static_cast<std::size_t>(found - tables_.begin());
    tables_.push_back(table);
    return tables_.size() - 1;
  }

  std::vector<Table> tables_;
  std::vector<Spot> spots_;
};

}  // namespace

Bitmap hammered(const Bitmap& picture) {
  const Dent dent;
  Bitmap result = picture;
  for (int round = 0; round < 2; ++round)
    for (int cy = DentReach; cy <= picture.height(); cy += DentSpacing)
      for (int cx = DentReach; cx <= picture.width(); cx += DentSpacing) dent.stamp(result, cx, cy);
  return result;
}

Bitmap scattered(const Bitmap& picture, float (*random)()) {
  Bitmap result = picture;
  for (int y = 2; y <= picture.height() - 2; ++y) {
    Pixel* const row = result.row(y);
    for (int x = 2; x <= picture.width() - 2; ++x) {
      const auto down = static_cast<float>(random() * 3.0 - 2.0);
      const auto right = static_cast<float>(random() * 3.0 - 2.0);
      row[x] = picture.at(nearestInt(x + double{right}), nearestInt(y + double{down}));
    }
  }
  return result;
}

void ragEdge(surface::DrawingSurface& sheet) {
  const auto before = sheet.bitmap();
  for (int x = 0; x < before->width(); ++x) {
    const double shift = std::sin(static_cast<double>(x)) * 6;
    for (int y = 0; y < before->height(); ++y)
      sheet.PSet({static_cast<float>(x), static_cast<float>(shift + (y - 3))},
                 surface::toColor(before->at(x, y)));
  }
}

}  // namespace effects
