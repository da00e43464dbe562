// Flood fill. The pixels of the searched colour are turned into bits, 64 to a word, row by row as
// the fill meets them; spreading along a row is then arithmetic on whole words.
#include <bit>
#include <limits>
#include <vector>

#include "surface/raster/ink.h"

namespace raster {
namespace {

using Word = std::uint64_t;
constexpr int kWordBits = 64;

/// Bit i of the result tells whether p[i] is `color`. The number of pixels is a constant, so that
/// the comparisons become vector instructions.
Word matchesOfWord(const Pixel* p, Pixel color) {
  alignas(16) std::uint8_t equal[kWordBits];
  for (int i = 0; i < kWordBits; ++i) equal[i] = p[i] == color;
  Word bits = 0;
  for (int i = 0; i < 8; ++i) {
    Word eight;
    std::memcpy(&eight, equal + 8 * i, 8);
    // The product gathers the lowest bits of the eight bytes in its top byte.
    bits |= (eight * 0x0102040810204080u >> 56) << (8 * i);
  }
  return bits;
}

/// The same for fewer pixels, at the end of a row.
Word matchesOfRest(const Pixel* p, int count, Pixel color) {
  Word bits = 0;
  for (int i = 0; i < count; ++i) bits |= Word{p[i] == color} << i;
  return bits;
}

/// The seeds and all bits of `open` that follow one of them without a gap, towards higher bits: an
/// addition carries through a run of ones and leaves zeros behind. `carry` goes on to the next
/// word.
Word spreadUp(Word seeds, Word open, Word& carry) {
  const Word sum = open + seeds, total = sum + carry;
  carry = (sum < open ? 1 : 0) | (total < sum ? 1 : 0);
  return open & (~total | seeds);
}

/// The same towards lower bits, in doubling steps.
Word spreadDown(Word seeds, Word open) {
  // Along an upright corridor the row before has seeded its whole width.
  if (((seeds >> 1) & open & ~seeds) == 0) return seeds;
  for (int step = 1; step < kWordBits; step *= 2) {
    seeds |= open & (seeds >> step);
    open &= open >> step;
  }
  return seeds;
}

/// For each four bits, which of four pixels they mean.
struct Lanes {
  Pixel masks[16][4];

  constexpr Lanes() : masks{} {
    for (unsigned bits = 0; bits < 16; ++bits) {
      for (unsigned i = 0; i < 4; ++i) masks[bits][i] = (bits >> i) & 1 ? ~Pixel{0} : 0;
    }
  }
};
constexpr Lanes kLanes;

/// Paints those of 64 pixels whose bit is set. All of them are read and written, which is faster
/// than going from run to run where runs are many.
void blend(Pixel* p, Word bits, Ink ink) {
  for (int i = 0; i < kWordBits; i += 4, p += 4, bits >>= 4) {
    Pixel four[4], mask[4];
    std::memcpy(four, p, sizeof four);
    std::memcpy(mask, kLanes.masks[bits & 15], sizeof mask);
    for (int k = 0; k < 4; ++k) four[k] ^= (four[k] ^ ink.over(four[k])) & mask[k];
    std::memcpy(p, four, sizeof four);
  }
}

/// Paints the pixels whose bit is set, run by run.
void paintRuns(Pixel* p, Word bits, Ink ink) {
  while (bits != 0) {
    const int skip = std::countr_zero(bits);
    const int count = std::countr_one(bits >> skip);
    paintPixels(p + skip, count, ink);
    if (skip + count == kWordBits) return;
    bits = bits >> (skip + count) << (skip + count);
  }
}

/// A range of numbers first..last, empty if last < first.
struct Range {
  int first = std::numeric_limits<int>::max();
  int last = -1;

  bool empty() const { return last < first; }
  void add(int i) {
    first = std::min(first, i);
    last = std::max(last, i);
  }
};

/// One row of the fill. The words of a row lie together, as the fill meets them together.
struct Row {
  Word* open = nullptr;   ///< pixels of the region that the fill has not yet reached
  Word* seeds = nullptr;  ///< of these, the ones beside a pixel it has reached in another row
  Word* found = nullptr;  ///< pixels reached but not yet painted
  Range pending;          ///< the words that hold seeds

  bool known() const { return open != nullptr; }
};

/// The memory of a fill. It is kept from one fill to the next, since fresh memory of this size
/// costs as much as a small fill.
struct Scratch {
  std::vector<Word> words;
  std::vector<Row> rows;
};

class Flood {
 public:
  Flood(Scratch& scratch, Bitmap& bitmap, Ink ink, BrushStyle style, Pixel region)
      : scratch_(scratch),
        bitmap_(bitmap),
        ink_(ink),
        style_(style),
        region_(region),
        words_((bitmap.width() + kWordBits - 1) / kWordBits) {
    const std::size_t rows = static_cast<std::size_t>(bitmap.height());
    if (scratch.words.size() < 3 * rows * words_) scratch.words.resize(3 * rows * words_);
    scratch.rows.assign(rows, Row{});
  }

  /// Sweeps down and up by turns, each time from the rows that were reached behind the last sweep.
  Rect run(int x, int y) {
    seed(know(y), x / kWordBits, Word{1} << (x % kWordBits));
    Range rows{y, y};
    for (int step = 1; !rows.empty(); step = -step) {
      const int begin = step > 0 ? rows.first : rows.last;
      ahead_ = step > 0 ? rows.last : rows.first;
      behind_ = Range{};
      for (int at = begin; (ahead_ - at) * step >= 0; at += step) {
        if (!scratch_.rows[at].pending.empty()) visit(at, step);
      }
      rows = behind_;
    }
    paintFound();
    return changed();
  }

 private:
  Row& know(int y) {
    Row& row = scratch_.rows[y];
    if (!row.known()) read(row, y);
    return row;
  }

  void read(Row& row, int y) {
    row.open = scratch_.words.data() + 3 * std::size_t(y) * words_;
    row.seeds = row.open + words_;
    row.found = row.seeds + words_;
    std::fill_n(row.seeds, 2 * words_, Word{0});
    const Pixel* pixels = bitmap_.row(y);
    const int whole = bitmap_.width() / kWordBits;
    for (int i = 0; i < whole; ++i, pixels += kWordBits) {
      row.open[i] = matchesOfWord(pixels, region_);
    }
    if (whole < words_) {
      row.open[whole] = matchesOfRest(pixels, bitmap_.width() % kWordBits, region_);
    }
  }

  static bool seed(Row& row, int word, Word bits) {
    bits &= row.open[word];
    if (bits == 0) return false;
    row.seeds[word] |= bits;
    row.pending.add(word);
    return true;
  }

  /// Spreads the seeds of a row along it, towards higher columns and back, and seeds the rows
  /// beside it.
  void visit(int y, int step) {
    Row& row = scratch_.rows[y];
    Row* const ahead = neighbour(y + step);
    Row* const behind = neighbour(y - step);
    const Range pending = row.pending;
    row.pending = Range{};
    int first = spreadUpwards(row, pending);
    Word carry = 0;
    bool seededAhead = false, seededBehind = false;
    int i = first;
    for (; i >= pending.first || (carry != 0 && i >= 0); --i) {
      const Word seeds = row.seeds[i] | ((carry << (kWordBits - 1)) & row.open[i]);
      carry = 0;
      if (seeds == 0) continue;
      const Word found = spreadDown(seeds, row.open[i]);
      carry = found & 1;
      row.seeds[i] = 0;
      row.open[i] &= ~found;
      take(row, y, i, found);
      if (ahead != nullptr) seededAhead |= seed(*ahead, i, found);
      if (behind != nullptr) seededBehind |= seed(*behind, i, found);
    }
    if (seededAhead) ahead_ = step > 0 ? std::max(ahead_, y + 1) : std::min(ahead_, y - 1);
    if (seededBehind) behind_.add(y - step);
    paintedRows_.add(y);
    paintedWords_.add(i + 1);
    paintedWords_.add(first);
  }

  Row* neighbour(int y) { return y >= 0 && y < bitmap_.height() ? &know(y) : nullptr; }

  /// Spreads all seeds towards higher columns; gives the last word that may have any.
  int spreadUpwards(Row& row, const Range& pending) {
    Word carry = 0;
    int i = pending.first;
    for (; i <= pending.last || (carry != 0 && i < words_); ++i) {
      row.seeds[i] = spreadUp(row.seeds[i], row.open[i], carry);
    }
    return i - 1;
  }

  // What is reached as a whole is painted while it is at hand. The rest waits, since most words of
  // a winding region are reached in many small parts. Rows are read before they are painted, so the
  // brush may have the very colour of the region.
  void take(Row& row, int y, int word, Word found) {
    if (found == ~Word{0}) {
      paint(y, word, found);
    } else {
      row.found[word] |= found;
    }
  }

  void paintFound() {
    for (int y = paintedRows_.first; y <= paintedRows_.last; ++y) {
      const Row& row = scratch_.rows[y];
      for (int i = paintedWords_.first; i <= paintedWords_.last; ++i) {
        if (row.found[i] != 0) paint(y, i, row.found[i]);
      }
    }
  }

  void paint(int y, int word, Word bits) {
    if (style_ != BrushStyle::Solid) bits &= hatchBits(style_, y) * (~Word{0} / 0xFF);
    Pixel* const p = bitmap_.row(y) + word * kWordBits;
    const int runs = std::popcount(bits & ~(bits << 1));
    const bool whole = (word + 1) * kWordBits <= bitmap_.width();
    if (runs > 3 && whole) {
      blend(p, bits, ink_);
    } else {
      paintRuns(p, bits, ink_);
    }
  }

  Rect changed() const {
    return intersect(bitmap_.bounds(),
                     {paintedWords_.first * kWordBits, paintedRows_.first,
                      (paintedWords_.last + 1) * kWordBits, paintedRows_.last + 1});
  }

  Scratch& scratch_;
  Bitmap& bitmap_;
  Ink ink_;
  BrushStyle style_;
  Pixel region_;
  int words_;
  int ahead_ = 0;
  Range behind_, paintedRows_, paintedWords_;
};

}  // namespace

Rect floodFill(Target target, const Brush& brush, int x, int y, Pixel region) {
  const Ink ink = inkOf(target.rop, brush.color);
  if (brush.style == BrushStyle::Null || ink.leaves()) return {};
  region |= kOpaque;
  if (!target.bitmap.contains(x, y) || target.bitmap.at(x, y) != region) return {};
  thread_local Scratch scratch;
  return Flood(scratch, target.bitmap, ink, brush.style, region).run(x, y);
}

}  // namespace raster
