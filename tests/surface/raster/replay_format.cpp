// The file format of recorded cases: run-length coded pixels, one letter for each colour.
#include <algorithm>
#include <cctype>
#include <istream>
#include <ostream>
#include <sstream>
#include <stdexcept>

#include "replay.h"

namespace replay {
namespace {

const std::string kLetters =
    ".abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ+-*/=<>?!@$%&|^~_,;:()[]{}";

Words split(const std::string& line) {
  std::istringstream in(line);
  Words words;
  for (std::string word; in >> word;) words.push_back(word);
  return words;
}

[[noreturn]] void broken(const std::string& what, const std::string& line) {
  throw std::runtime_error(what + ": " + line);
}

/// Files say 0x00BBGGRR, bitmaps hold 0xFFRRGGBB.
raster::Pixel swapEnds(raster::Pixel color) {
  return (color & 0xFF) << 16 | (color & 0xFF00) | ((color >> 16) & 0xFF);
}

raster::Pixel parseColor(const std::string& word) {
  return 0xFF000000 | swapEnds(static_cast<raster::Pixel>(std::stoul(word, nullptr, 16)));
}

void readRow(const std::string& runs, const std::vector<raster::Pixel>& palette, int width,
             raster::Pixel* row) {
  int x = 0, count = 0;
  for (const char c : runs) {
    if (std::isdigit(static_cast<unsigned char>(c))) {
      count = 10 * count + (c - '0');
      continue;
    }
    const std::size_t index = kLetters.find(c);
    count = std::max(count, 1);
    if (index >= palette.size() || x + count > width) broken("bad runs", runs);
    std::fill_n(row + x, count, palette[index]);
    x += count;
    count = 0;
  }
  if (x != width) broken("short row", runs);
}

/// The rows of a case, up to and with the line "end".
void readPixels(std::istream& in, const Words& header, Case& to) {
  std::vector<raster::Pixel> palette;
  for (std::size_t i = 2; i < header.size(); ++i) palette.push_back(parseColor(header[i]));
  to.expected = raster::Bitmap(to.width, to.height, to.background);
  int y = 0;
  for (std::string line; std::getline(in, line);) {
    const Words words = split(line);
    if (words.empty()) continue;
    if (words[0] == "end") {
      if (y != to.height) broken("rows missing", to.name);
      return;
    }
    const int count = std::stoi(words.at(0));
    if (count < 1 || y + count > to.height) broken("too many rows", to.name);
    for (const int last = y + count; y < last; ++y) {
      readRow(words.at(1), palette, to.width, to.expected.row(y));
    }
  }
  broken("no end", to.name);
}

std::string runsOf(const raster::Bitmap& pixels, int y, const std::vector<raster::Pixel>& palette) {
  std::string runs;
  const raster::Pixel* row = pixels.row(y);
  for (int x = 0; x < pixels.width();) {
    int end = x;
    while (end < pixels.width() && row[end] == row[x]) ++end;
    if (end - x > 1) runs += std::to_string(end - x);
    runs += kLetters.at(std::find(palette.begin(), palette.end(), row[x]) - palette.begin());
    x = end;
  }
  return runs;
}

std::vector<raster::Pixel> paletteOf(const raster::Bitmap& pixels, raster::Pixel background) {
  std::vector<raster::Pixel> palette{background};
  for (int y = 0; y < pixels.height(); ++y) {
    for (int x = 0; x < pixels.width(); ++x) {
      const raster::Pixel color = pixels.at(x, y);
      if (std::find(palette.begin(), palette.end(), color) == palette.end()) {
        palette.push_back(color);
      }
    }
  }
  return palette;
}

std::string colorText(raster::Pixel color) {
  static const char* const digits = "0123456789ABCDEF";
  const raster::Pixel value = swapEnds(color);
  std::string text = "0x00";
  for (int shift = 20; shift >= 0; shift -= 4) text += digits[(value >> shift) & 15];
  return text;
}

}  // namespace

std::vector<Case> readCases(std::istream& in) {
  std::vector<Case> cases;
  for (std::string line; std::getline(in, line);) {
    const Words words = split(line);
    if (words.empty() || words[0][0] == '#') continue;
    if (words[0] == "case") {
      Case fresh;
      fresh.name = words.at(1);
      fresh.width = std::stoi(words.at(2));
      fresh.height = std::stoi(words.at(3));
      fresh.background = words.size() > 4 ? parseColor(words[4]) : 0xFFFFFFFF;
      cases.push_back(std::move(fresh));
    } else if (cases.empty()) {
      broken("no case yet", line);
    } else if (words[0] == "pixels") {
      readPixels(in, words, cases.back());
    } else if (words[0] != "end") {
      cases.back().operations.push_back(words);
    }
  }
  return cases;
}

void writeCase(std::ostream& out, const Case& which, const raster::Bitmap& pixels) {
  const auto palette = paletteOf(pixels, which.background);
  out << "case " << which.name << ' ' << which.width << ' ' << which.height << ' '
      << colorText(which.background) << "\npixels " << palette.size();
  for (const raster::Pixel color : palette) out << ' ' << colorText(color);
  out << '\n';
  for (int y = 0; y < pixels.height();) {
    const std::string runs = runsOf(pixels, y, palette);
    int end = y + 1;
    while (end < pixels.height() && runsOf(pixels, end, palette) == runs) ++end;
    out << end - y << ' ' << runs << '\n';
    y = end;
  }
  out << "end\n";
}

}  // namespace replay
