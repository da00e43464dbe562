// What an icon, a cursor and a bitmap let through: by a mask, or by a fourth byte of each pixel.
#include <QBuffer>
#include <QImage>

#include "files/disk.h"
#include "files/picture_files.h"
#include "support/colors.h"
#include "support/errors.h"
#include "support/script.h"

using namespace surface;
using namespace picture_files;

namespace {

constexpr int IconSide = 12;
constexpr raster::Pixel Behind = 0xFF2080C0;

using Shade = std::function<int(int x, int y)>;

Rgb iconColor(int x, int y) { return static_cast<Rgb>(x * 20 << 16 | y * 20 << 8 | (x ^ y) * 16); }
bool hole(int x, int y) { return x + y < 9; }

// The rows of a bitmap without its headers, bottom row first.
Bytes rows(int bits, const Pixels& pixels, const Shade& fourth) {
  Bytes bytes = trueColorBmp(IconSide, IconSide, bits, pixels).substr(54);
  if (bits == 32)
    for (std::size_t pixel = 0; pixel < bytes.size() / 4; ++pixel) {
      const int number = static_cast<int>(pixel);
      bytes[4 * pixel + 3] =
          static_cast<char>(fourth(number % IconSide, IconSide - 1 - number / IconSide));
    }
  return bytes;
}

Bytes maskRows() {
  Bytes bytes;
  for (int y = IconSide - 1; y >= 0; --y) {
    unsigned row = 0;
    for (int x = 0; x < IconSide; ++x) row |= hole(x, y) ? 1u << (15 - x) : 0;
    bytes += {static_cast<char>(row >> 8), static_cast<char>(row & 0xFF), '\0', '\0'};
  }
  return bytes;
}

/// An icon (1) or a cursor (2) that holds this picture.
Bytes listed(int kind, int bits, const Bytes& picture) {
  Bytes bytes;
  for (const int field : {0, kind, 1}) put16(bytes, static_cast<unsigned>(field));
  bytes += {static_cast<char>(IconSide), static_cast<char>(IconSide), '\0', '\0'};
  put16(bytes, 1);
  put16(bytes, kind == 1 ? static_cast<unsigned>(bits) : 1);
  put32(bytes, static_cast<std::uint32_t>(picture.size()));
  put32(bytes, 22);
  return bytes + picture;
}

Bytes deepIcon(int kind, int bits, const Shade& fourth) {
  return listed(kind, bits,
                bmpHeader(IconSide, 2 * IconSide, bits, 0, 0).substr(14) +
                    rows(bits, iconColor, fourth) + maskRows());
}

/// A bitmap whose header names the fourth byte as well.
Bytes alphaBmp(const Shade& fourth) {
  constexpr unsigned Header = 108;
  Bytes bytes = bmpHeader(IconSide, IconSide, 32, 0, 4 * IconSide * IconSide), field;
  put32(field, 14 + Header);
  bytes.replace(10, 4, field);
  field.clear();
  put32(field, Header);
  bytes.replace(14, 4, field);
  bytes[30] = '\3';  // masks of its own
  for (const std::uint32_t mask : {0xFF0000u, 0xFF00u, 0xFFu, 0xFF000000u}) put32(bytes, mask);
  bytes.resize(14 + Header);
  return bytes + rows(32, iconColor, fourth);
}

}  // namespace

class LoadingIcons : public script::Stage {
 protected:
  Picture load(const Bytes& bytes) {
    write(folder() + "/plaat", bytes);
    return LoadPicture(folder() + "/plaat");
  }
  static void expectSeen(const Picture& picture, const std::function<bool(int, int)>& through) {
    ASSERT_EQ(picture.width(), IconSide);
    ASSERT_EQ(picture.height(), IconSide);
    const auto seen = picture.over(Behind);
    for (int y = 0; y < IconSide; ++y)
      for (int x = 0; x < IconSide; ++x)
        ASSERT_EQ(seen->at(x, y), through(x, y) ? Behind : 0xFF000000 | iconColor(x, y))
            << x << ',' << y;
  }
};

TEST_F(LoadingIcons, AMaskLetsTheSheetThroughInTrueColoursToo) {
  for (const int kind : {1, 2})
    for (const int bits : {24, 32})
      expectSeen(load(deepIcon(kind, bits, [](int, int) { return 0; })), hole);
}

TEST_F(LoadingIcons, TheFourthByteOfAPixelCountsMoreThanTheMask) {
  const auto through = [](int x, int y) { return x > 6 && y > 2; };
  const auto fourth = [&](int x, int y) { return through(x, y) ? 0 : 255; };
  expectSeen(load(deepIcon(1, 32, fourth)), through);
}

TEST_F(LoadingIcons, ABitmapThatWouldBeTransparentEverywhereShowsItsColours) {
  const auto through = [](int x, int y) { return x > 6 && y > 2; };
  expectSeen(load(alphaBmp([&](int x, int y) { return through(x, y) ? 0 : 255; })), through);
  expectSeen(load(alphaBmp([](int, int) { return 0; })), [](int, int) { return false; });
}

TEST_F(LoadingIcons, APngInAnIconIsTaken) {
  QImage image(IconSide, IconSide, QImage::Format_ARGB32);
  for (int y = 0; y < IconSide; ++y)
    for (int x = 0; x < IconSide; ++x)
      image.setPixel(x, y, hole(x, y) ? 0 : 0xFF000000 | iconColor(x, y));
  QByteArray png;
  QBuffer buffer(&png);
  buffer.open(QIODevice::WriteOnly);
  ASSERT_TRUE(image.save(&buffer, "PNG"));
  expectSeen(load(listed(1, 32, png.toStdString())), hole);
}

TEST_F(LoadingIcons, OneThatIsCutOffOrHoldsNothingIsRefused) {
  const Bytes whole = deepIcon(1, 24, [](int, int) { return 0; });
  EXPECT_NO_THROW(load(whole));
  for (const std::size_t part : {std::size_t{5}, std::size_t{22}, std::size_t{30}, std::size_t{70},
                                 whole.size() / 2, whole.size() - 1})
    EXPECT_ERROR(BadFile, load(whole.substr(0, part))) << part;
  EXPECT_ERROR(BadFile, load(Bytes("\0\0\1\0\0\0", 6) + Bytes(100, '\0')));
  Bytes huge = whole;
  for (const std::size_t byte : {26u, 27u, 28u, 30u, 31u, 32u}) huge[byte] = '\x7F';
  EXPECT_ERROR(BadFile, load(huge));
}
