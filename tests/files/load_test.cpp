// Reading pictures: every format that is taken, and everything that is refused.
#include <sys/stat.h>

#include <QBuffer>
#include <QImage>
#include <QImageWriter>
#include <QTransform>
#include <chrono>
#include <cmath>
#include <cstring>
#include <filesystem>

#include "files/disk.h"
#include "files/picture_files.h"
#include "support/errors.h"
#include "support/script.h"

using namespace surface;
using namespace picture_files;

namespace {

constexpr Rgb Red = 0xFF0000, Green = 0x00FF00, Blue = 0x0000FF, Black24 = 0, White24 = 0xFFFFFF;
constexpr int Wide = 13, High = 7;  // odd, so that rows are padded

// A picture without any symmetry: an error of order, direction or stride shows.
Rgb colorful(int x, int y) {
  return x == 0 && y == 0 ? Red : x > y ? Green : x == 3 ? Blue : (x + y) % 2 ? White24 : Black24;
}
const std::vector<Rgb> Palette = {Red, Green, Blue, White24, Black24};

Rgb twoTone(int x, int y) { return x * 3 > y * 5 ? Red : Green; }

Bytes encoded(const char* format, const QImage& image) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  QImageWriter writer(&buffer, format);
  writer.setQuality(100);
  EXPECT_TRUE(writer.write(image)) << format;
  return bytes.toStdString();
}

Bytes progressive(const QImage& image) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  QImageWriter writer(&buffer, "jpg");
  writer.setQuality(100);
  writer.setProgressiveScanWrite(true);
  EXPECT_TRUE(writer.write(image));
  return bytes.toStdString();
}

/// A photo of a camera that was held in one of the eight ways.
Bytes held(int way, const Bytes& photo) {
  Bytes note(
      "\xFF\xE1\0\x22"
      "Exif\0\0II*\0\x08\0\0\0\x01\0\x12\x01\x03\0\x01\0\0\0",
      28);
  note += static_cast<char>(way);
  note += Bytes(7, '\0');
  return photo.substr(0, 2) + note + photo.substr(2);
}

/// How long something takes, and how much more memory than ever before.
class Watch {
 public:
  Watch() : start_(std::chrono::steady_clock::now()), former_(most()) {}
  double seconds() const {
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start_).count();
  }
  long megabytesMore() const { return (most() - former_) / 1024; }

 private:
  static long most() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
  }
  std::chrono::steady_clock::time_point start_;
  long former_;
};

QImage image(int width, int height, const Pixels& pixels) {
  QImage made(width, height, QImage::Format_RGB32);
  for (int y = 0; y < height; ++y)
    for (int x = 0; x < width; ++x) made.setPixel(x, y, 0xFF000000 | pixels(x, y));
  return made;
}

}  // namespace

class Loading : public script::Stage {
 protected:
  Picture load(const Bytes& bytes, const std::string& name = "plaat") {
    const std::string path = folder() + "/" + name;
    write(path, bytes);
    return LoadPicture(path);
  }
  static void expectPixels(const Picture& picture, int width, int height, const Pixels& pixels) {
    ASSERT_EQ(picture.width(), width);
    ASSERT_EQ(picture.height(), height);
    for (int y = 0; y < height; ++y)
      for (int x = 0; x < width; ++x)
        ASSERT_EQ(picture.bitmap()->at(x, y), 0xFF000000 | pixels(x, y)) << x << ',' << y;
  }
  void expectRefused(const Bytes& bytes) { EXPECT_ERROR(BadFile, load(bytes)); }
};

TEST_F(Loading, ABitmapOfOneBitAPixel) {
  expectPixels(load(paletteBmp(Wide, High, 1, {Red, Green}, twoTone)), Wide, High, twoTone);
}

TEST_F(Loading, ABitmapOfFourBitsAPixel) {
  expectPixels(load(paletteBmp(Wide, High, 4, Palette, colorful)), Wide, High, colorful);
}

TEST_F(Loading, ABitmapOfEightBitsAPixel) {
  expectPixels(load(paletteBmp(Wide, High, 8, Palette, colorful)), Wide, High, colorful);
}

TEST_F(Loading, ABitmapOfRunLengths) {
  // Five of the second colour, three of the third, then each of the five, padded; end of the row.
  const Bytes row("\x05\x01\x03\x02\0\x05\0\x01\x02\x03\x04\0\0\0", 14);
  const int indices[Wide] = {1, 1, 1, 1, 1, 2, 2, 2, 0, 1, 2, 3, 4};
  Bytes runs;
  for (int y = 0; y < High; ++y) runs += row;
  runs += Bytes("\0\x01", 2);
  Bytes bytes = bmpHeader(Wide, High, 8, static_cast<std::uint32_t>(Palette.size()),
                          static_cast<std::uint32_t>(runs.size()));
  bytes[30] = 1;
  for (const Rgb color : Palette) put32(bytes, color);
  expectPixels(load(bytes + runs), Wide, High,
               [&](int x, int) { return Palette[static_cast<std::size_t>(indices[x])]; });
  expectRefused(bytes + runs.substr(0, runs.size() / 2));
}

TEST_F(Loading, ABitmapOfSixteenBitsAPixel) {
  expectPixels(load(trueColorBmp(Wide, High, 16, colorful)), Wide, High, colorful);
}

TEST_F(Loading, ABitmapOfTwentyFourBitsAPixel) {
  expectPixels(load(trueColorBmp(Wide, High, 24, colorful)), Wide, High, colorful);
}

TEST_F(Loading, ABitmapWhoseRowsRunDownwards) {
  Bytes height;
  put32(height, static_cast<std::uint32_t>(-High));
  const auto turned = [](int x, int y) { return colorful(x, High - 1 - y); };
  expectPixels(load(trueColorBmp(Wide, High, 24, turned).replace(22, 4, height)), Wide, High,
               colorful);
}

TEST_F(Loading, ABitmapWithTheOldestHeader) {
  const Bytes bytes = oldestBmp(Wide, High, colorful);
  expectPixels(load(bytes), Wide, High, colorful);
  expectRefused(bytes.substr(0, bytes.size() / 2));
}

// The third version of the header has masks, also where nothing needs them.
TEST_F(Loading, ABitmapWithAHeaderOfFiftySixBytes) {
  Bytes bytes = trueColorBmp(Wide, High, 32, colorful);
  bytes[10] = 70;
  bytes[14] = 56;
  bytes[30] = 3;
  Bytes masks;
  for (const std::uint32_t mask : {0xFF0000u, 0xFF00u, 0xFFu, 0u}) put32(masks, mask);
  bytes.insert(54, masks);
  expectPixels(load(bytes), Wide, High, colorful);
}

TEST_F(Loading, ABitmapWithMasksOfItsOwnBehindTheHeader) {
  // Blue and red have changed places.
  Bytes bytes = trueColorBmp(Wide, High, 32, [](int x, int y) {
    const Rgb c = colorful(x, y);
    return (c & 0xFF) << 16 | (c & 0xFF00) | c >> 16;
  });
  bytes[10] = 66;
  bytes[30] = 3;
  Bytes masks;
  for (const std::uint32_t mask : {0xFFu, 0xFF00u, 0xFF0000u}) put32(masks, mask);
  bytes.insert(54, masks);
  expectPixels(load(bytes), Wide, High, colorful);
}

TEST_F(Loading, ABitmapOfRunLengthsInFourBits) {
  // Two colours in turn, a leap, three single ones padded to an even number of bytes.
  const Bytes runs(
      "\x04\x12\0\x02\x02\0\0\x03\x34\x10\0\0"
      "\x09\x33\0\x01",
      16);
  Bytes bytes = bmpHeader(9, 2, 4, 5, static_cast<std::uint32_t>(runs.size()));
  bytes[30] = 2;
  for (const Rgb color : Palette) put32(bytes, color);
  const int lower[9] = {1, 2, 1, 2, 0, 0, 3, 4, 1};
  expectPixels(load(bytes + runs), 9, 2,
               [&](int x, int y) { return Palette[static_cast<std::size_t>(y ? lower[x] : 3)]; });
}

TEST_F(Loading, ABitmapWithSixBitsOfGreen) {
  // White, black, pure green, and the darkest green but one.
  Bytes bytes = bmpHeader(2, 2, 16, 3, 8);
  bytes[30] = 3;
  bytes[46] = 0;
  for (const std::uint32_t mask : {0xF800u, 0x07E0u, 0x001Fu}) put32(bytes, mask);
  for (const unsigned pixel : {0x07E0u, 0x0040u, 0xFFFFu, 0x0000u}) put16(bytes, pixel);
  const Rgb expected[] = {White24, Black24, Green, 0x000800};
  expectPixels(load(bytes), 2, 2, [&](int x, int y) { return expected[y * 2 + x]; });
}

// The fourth byte is no opacity: 0 there must not make the picture vanish.
TEST_F(Loading, ABitmapOfThirtyTwoBitsAPixel) {
  expectPixels(load(trueColorBmp(Wide, High, 32, colorful)), Wide, High, colorful);
}

TEST_F(Loading, AGif) { expectPixels(load(gif(40, 30, Palette, colorful)), 40, 30, colorful); }

TEST_F(Loading, WhatIsTransparentInAGifIsWhite) {
  const auto whiteForGreen = [](int x, int y) {
    const Rgb c = colorful(x, y);
    return c == Green ? White24 : c;
  };
  expectPixels(load(gif(40, 30, Palette, colorful, 1)), 40, 30, whiteForGreen);
}

TEST_F(Loading, WhatIsTransparentInAGifIsTheColourBehindItOnASurface) {
  const Picture picture = load(gif(40, 30, Palette, colorful, 1));
  constexpr Rgb Behind = 0x204060;
  const auto pixels = picture.over(0xFF000000 | Behind);
  ASSERT_EQ(pixels->width(), 40);
  int seen = 0;
  for (int y = 0; y < 30; ++y)
    for (int x = 0; x < 40; ++x) {
      const Rgb c = colorful(x, y);
      ASSERT_EQ(pixels->at(x, y), 0xFF000000 | (c == Green ? Behind : c)) << x << ',' << y;
      seen += c == Green ? 1 : 0;
    }
  EXPECT_GT(seen, 0);
}

TEST_F(Loading, AJpegAsNearAsItsCompressionAllows) {
  const auto soft = [](int x, int y) {
    return static_cast<Rgb>(x * 4) << 16 | static_cast<Rgb>(y * 4) << 8 | 0x80;
  };
  const Picture picture = load(encoded("jpg", image(48, 32, soft)));
  ASSERT_EQ(picture.width(), 48);
  ASSERT_EQ(picture.height(), 32);
  for (int y = 0; y < 32; ++y)
    for (int x = 0; x < 48; ++x)
      for (int shift : {0, 8, 16}) {
        const int got = static_cast<int>(picture.bitmap()->at(x, y) >> shift & 0xFF);
        ASSERT_NEAR(got, static_cast<int>(soft(x, y) >> shift & 0xFF), 6) << x << ',' << y;
      }
}

TEST_F(Loading, IconsAndCursorsWithWhiteWhereTheyAreTransparent) {
  const auto hole = [](int x, int y) { return x < 4 && y > 8; };
  const auto seen = [&](int x, int y) { return hole(x, y) ? White24 : colorful(x, y); };
  for (const int kind : {1, 2})
    expectPixels(load(icon(kind, 16, 12, Palette, colorful, hole)), 16, 12, seen);
}

TEST_F(Loading, APictureIsToldByItsContentNotByItsName) {
  const Bytes bytes = gif(Wide, High, Palette, colorful);
  for (const char* name : {"plaat.bmp", "plaat.jpg", "plaat.txt", "plaat"})
    expectPixels(load(bytes, name), Wide, High, colorful);
}

TEST_F(Loading, ANameMayHoldBlanksAndAccents) {
  expectPixels(load(trueColorBmp(3, 2, 24, colorful), "een paard étend.bmp"), 3, 2, colorful);
}

TEST_F(Loading, NoNameIsAnEmptyPicture) { EXPECT_TRUE(LoadPicture().empty()); }

TEST_F(Loading, AFileThatIsNotThereIsNotFound) {
  EXPECT_ERROR(FileNotFound, LoadPicture(folder() + "/niets.bmp"));
  EXPECT_ERROR(FileNotFound, LoadPicture(""));
}

TEST_F(Loading, AnEmptyFileIsRefused) { expectRefused(""); }

TEST_F(Loading, ATextIsRefused) { expectRefused("Lieve oma, dit is geen tekening.\n"); }

TEST_F(Loading, KindsThatAreNotOnTheListAreRefused) {
  expectRefused(encoded("png", image(8, 8, colorful)));
  expectRefused(encoded("ppm", image(8, 8, colorful)));
  expectRefused("<svg xmlns='http://www.w3.org/2000/svg' width='8' height='8'/>");
  expectRefused("/* XPM */ static char*x[]={\"1 1 1 1\",\"a c #ff0000\",\"a\"};");
}

TEST_F(Loading, AMetafileIsRefused) {
  Bytes bytes("\xD7\xCD\xC6\x9A\0\0", 6);
  bytes.resize(512);
  expectRefused(bytes);
}

TEST_F(Loading, AFolderIsRefused) { EXPECT_ERROR(BadFile, LoadPicture(folder())); }

TEST_F(Loading, APipeIsRefusedWithoutWaitingForItsWriter) {
  const std::string path = folder() + "/pijp.bmp";
  ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
  EXPECT_ERROR(BadFile, LoadPicture(path));
}

TEST_F(Loading, ADeviceIsRefused) { EXPECT_ERROR(BadFile, LoadPicture("/dev/zero")); }

TEST_F(Loading, AFileThatMayNotBeReadIsRefused) {
  const std::string path = folder() + "/geheim.bmp";
  write(path, trueColorBmp(3, 2, 24, colorful));
  std::filesystem::permissions(path, std::filesystem::perms::none);
  const disk::OrdinaryUser user;
  EXPECT_ERROR(BadFile, LoadPicture(path));
}

TEST_F(Loading, AFileCutOffIsRefused) {
  const auto none = [](int, int) { return false; };
  const QImage photo = image(40, 30, colorful);
  const Bytes jpegs[] = {encoded("jpg", photo), progressive(photo)};
  const Bytes others[] = {trueColorBmp(40, 30, 24, colorful),
                          paletteBmp(40, 30, 8, Palette, colorful), gif(40, 30, Palette, colorful),
                          icon(1, 16, 12, Palette, colorful, none)};
  const auto refuseParts = [&](const Bytes& bytes) {
    EXPECT_NO_THROW(load(bytes));
    for (const std::size_t part : {std::size_t{3}, std::size_t{60}, bytes.size() / 10,
                                   bytes.size() / 2, bytes.size() * 9 / 10})
      expectRefused(bytes.substr(0, part));
  };
  for (const Bytes& bytes : jpegs) {
    refuseParts(bytes);
    // The last byte of the last scan is missing, too.
    expectRefused(bytes.substr(0, bytes.size() - 4));
  }
  for (const Bytes& bytes : others) {
    refuseParts(bytes);
    expectRefused(bytes.substr(0, bytes.size() - 2));
  }
}

TEST_F(Loading, AJpegThatLacksOnlyItsEndMarkIsWhole) {
  const QImage photo = image(43, 29, colorful);
  for (const Bytes& bytes : {encoded("jpg", photo), progressive(photo)}) {
    const Picture whole = load(bytes), cut = load(bytes.substr(0, bytes.size() - 2));
    expectPixels(cut, 43, 29, [&](int x, int y) { return whole.bitmap()->at(x, y) & 0xFFFFFF; });
    EXPECT_EQ(load(bytes.substr(0, bytes.size() - 1)).width(), 43) << "half an end mark";
  }
}

TEST_F(Loading, APhotoIsTurnedAsTheCameraWasHeld) {
  // Bright at the left, brighter below.
  const auto soft = [](int x, int y) { return static_cast<Rgb>(x * 3 + y * 2) * 0x010101; };
  const QImage upright = image(48, 32, soft);
  // What each of the eight ways to hold it does to the picture as it is in the file.
  const std::pair<int, QTransform> ways[] = {{1, {1, 0, 0, 1, 0, 0}},   {2, {-1, 0, 0, 1, 0, 0}},
                                             {3, {-1, 0, 0, -1, 0, 0}}, {4, {1, 0, 0, -1, 0, 0}},
                                             {5, {0, 1, 1, 0, 0, 0}},   {6, {0, 1, -1, 0, 0, 0}},
                                             {7, {0, -1, -1, 0, 0, 0}}, {8, {0, -1, 1, 0, 0, 0}}};
  for (const auto& [way, turn] : ways) {
    const QImage expected = upright.transformed(turn);
    const Picture picture = load(held(way, encoded("jpg", upright)));
    ASSERT_TRUE(QSize(picture.width(), picture.height()) == expected.size()) << way;
    for (int y = 0; y < expected.height(); ++y)
      for (int x = 0; x < expected.width(); ++x)
        ASSERT_NEAR(static_cast<int>(picture.bitmap()->at(x, y) & 0xFF),
                    qBlue(expected.pixel(x, y)), 4)
            << way << ": " << x << ',' << y;
  }
}

TEST_F(Loading, AHugeSizeInAHeaderIsRefusedAtOnceAndCostsNoMemory) {
  Bytes jpeg = encoded("jpg", image(40, 30, colorful));
  // The frame header: marker, length, precision, height, width.
  const std::size_t frame = jpeg.find("\xFF\xC0");
  ASSERT_NE(frame, Bytes::npos);
  for (const std::size_t byte : {5u, 6u, 7u, 8u}) jpeg[frame + byte] = '\xFF';
  Bytes wideGif = gif(40, 30, Palette, colorful);
  for (const std::size_t byte : {6u, 7u, 8u, 9u}) wideGif[byte] = '\xFF';

  rusage before{}, after{};
  getrusage(RUSAGE_SELF, &before);
  const auto start = std::chrono::steady_clock::now();
  expectRefused(bmpHeader(100'000, 100'000, 24, 0, 0) + Bytes(1000, 'x'));
  expectRefused(bmpHeader(100'000, 100'000, 1, 2, 0) + Bytes(1000, 'x'));
  expectRefused(bmpHeader(100'000, -100'000, 32, 0, 0) + Bytes(1000, 'x'));
  expectRefused(bmpHeader(0, 100, 24, 0, 0) + Bytes(1000, 'x'));
  expectRefused(bmpHeader(-5, 100, 24, 0, 0) + Bytes(1000, 'x'));
  expectRefused(jpeg);
  expectRefused(wideGif);
  getrusage(RUSAGE_SELF, &after);
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(2));
  EXPECT_LT(after.ru_maxrss - before.ru_maxrss, 32 * 1024) << "kilobytes";
}

// A sheet is no larger, and a child sees the upper left part.
TEST_F(Loading, OfAHugePictureTheUpperLeftPartIsKept) {
  // Green, with one red row.
  const auto bitmap = [&](int width, int height, int red) {
    const auto stride = static_cast<std::size_t>((width + 31) / 32 * 4);
    const std::size_t all = stride * static_cast<std::size_t>(height);
    Bytes bytes = bmpHeader(width, height, 1, 2, static_cast<std::uint32_t>(all));
    put32(bytes, Green);
    put32(bytes, Red);
    bytes.resize(bytes.size() + all);
    const std::size_t row = bytes.size() - stride * static_cast<std::size_t>(red + 1);
    return bytes.replace(row, stride, stride, '\xFF');
  };
  const Picture huge = load(bitmap(10'000, 10'000, 6'399));
  EXPECT_EQ(huge.width(), 10'000);
  ASSERT_EQ(huge.height(), 6'400);
  for (const int x : {0, 9'999}) {
    EXPECT_EQ(huge.bitmap()->at(x, 0), 0xFF000000 | Green);
    EXPECT_EQ(huge.bitmap()->at(x, 6'398), 0xFF000000 | Green);
    EXPECT_EQ(huge.bitmap()->at(x, 6'399), 0xFF000000 | Red);
  }
  expectRefused(bitmap(10'001, 10'000, 0));
  const Picture wide = load(bitmap(40'000, 3, 2)), high = load(bitmap(3, 40'000, 1));
  ASSERT_EQ(wide.width(), 32767);
  EXPECT_EQ(wide.bitmap()->at(32766, 2), 0xFF000000 | Red);
  ASSERT_EQ(high.height(), 32767);
  EXPECT_EQ(high.bitmap()->at(2, 1), 0xFF000000 | Red);
}

TEST_F(Loading, APhotoOfAHundredMillionPixelsIsTakenWithinItsMemory) {
  QImage photo(12'500, 8'000, QImage::Format_Grayscale8);
  for (int y = 0; y < photo.height(); ++y)
    std::memset(photo.scanLine(y), y < 1000 ? 40 : 200, static_cast<std::size_t>(photo.width()));
  const Bytes bytes = encoded("jpg", photo);
  photo = {};
  const std::string path = folder() + "/groot.jpg";
  write(path, bytes);
  const Watch watch;
  const Picture picture = LoadPicture(path);
  EXPECT_LT(watch.megabytesMore(), 256);
  EXPECT_EQ(picture.width(), 12'500);
  ASSERT_GT(picture.height(), 2'000);
  EXPECT_NEAR(static_cast<int>(picture.bitmap()->at(0, 0) & 0xFF), 40, 4);
  EXPECT_NEAR(static_cast<int>(picture.bitmap()->at(12'499, 1'100) & 0xFF), 200, 4);
}

TEST_F(Loading, AJpegOfEndlessScansOrSegmentsIsRefusedInTime) {
  Bytes many = progressive(image(40, 30, colorful));
  const std::size_t frame = many.find("\xFF\xC2"), last = many.rfind("\xFF\xDA");
  ASSERT_NE(frame, Bytes::npos);
  // 8,000 by 8,000 pixels, and the last scan again and again.
  many.replace(frame + 5, 4, "\x1F\x40\x1F\x40", 4);
  const Bytes scan = many.substr(last, many.size() - 2 - last);
  many.resize(many.size() - 2);
  for (int i = 0; i < 5'000; ++i) many += scan;
  many += "\xFF\xD9";
  Bytes comments = encoded("jpg", image(40, 30, colorful));
  Bytes comment("\xFF\xFE\0\x02", 4);
  for (int i = 0; i < 18; ++i) comment += comment;
  comments.insert(2, comment);
  const Watch watch;
  expectRefused(many);
  expectRefused(comments);
  EXPECT_LT(watch.seconds(), 2);
}

TEST_F(Loading, ALinkIsRefusedOrTakenByWhatItPointsTo) {
  const std::string link = folder() + "/link.bmp";
  std::filesystem::create_symlink("/dev/zero", link);
  EXPECT_ERROR(BadFile, LoadPicture(link));
  std::filesystem::remove(link);
  write(folder() + "/echt.bmp", trueColorBmp(3, 2, 24, colorful));
  std::filesystem::create_symlink("echt.bmp", link);
  expectPixels(LoadPicture(link), 3, 2, colorful);
}

// It calls itself an ordinary file of no size, and goes on for terabytes.
TEST_F(Loading, AFileOfTheSystemWithoutEndIsRefused) {
  const Watch watch;
  EXPECT_ERROR(BadFile, LoadPicture("/proc/self/pagemap"));
  EXPECT_LT(watch.seconds(), 2);
  EXPECT_LT(watch.megabytesMore(), 256);
}

TEST_F(Loading, ANameNeedNotBeText) {
  expectPixels(load(trueColorBmp(3, 2, 24, colorful), "caf\xE9 \xFF.bmp"), 3, 2, colorful);
  expectPixels(load(gif(40, 30, Palette, colorful), "caf\xE9.gif"), 40, 30, colorful);
}
