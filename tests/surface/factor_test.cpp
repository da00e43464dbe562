// The factor at which the program stands on the screen: its choice, the enlarged bitmap, the
// pointer. What is named AtTheFactor is run at several factors.
#include "surface/qt/factor.h"

#include <QBackingStore>
#include <QPointingDevice>
#include <QTest>
#include <QWidget>
#include <QWindow>
#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <memory>
#include <optional>
#include <random>
#include <vector>

#include "support/script.h"
#include "surface/host.h"
#include "surface/qt/images.h"

using namespace surface;
using namespace surface::qt;

namespace {

const double factors[] = {1, 1.25, 1.375, 1.75, 2, 2.5, 4, 1.1, 4.0 / 3};

QImage colourful(int width, int height) {
  std::mt19937 random(7);
  QImage image(width, height, QImage::Format_RGB32);
  for (int y = 0; y < height; ++y)
    for (int x = 0; x < width; ++x)
      image.setPixel(x, y, 0xFF000000 | static_cast<unsigned>(random() & 0xFFFFFF));
  return image;
}

// How much of [a, a + 1) lies in [b, c).
double shared(double a, double b, double c) {
  return std::max(0.0, std::min(a + 1, c) - std::max(a, b));
}

// The colour of a device pixel by the areas of all pixels of the image, which stands at `place`.
std::array<double, 3> resampled(const QImage& image, const QRectF& place, int x, int y) {
  std::array<double, 3> sum{};
  double area = 0;
  const double wide = place.width() / image.width(), high = place.height() / image.height();
  for (int row = 0; row < image.height(); ++row)
    for (int column = 0; column < image.width(); ++column) {
      const double left = place.x() + column * wide, top = place.y() + row * high;
      const double part = shared(x, left, left + wide) * shared(y, top, top + high);
      if (part == 0) continue;
      const QRgb colour = image.pixel(column, row);
      area += part;
      sum[0] += part * qRed(colour);
      sum[1] += part * qGreen(colour);
      sum[2] += part * qBlue(colour);
    }
  for (double& channel : sum) channel /= area;
  return sum;
}

double farthest(QRgb colour, const std::array<double, 3>& wanted) {
  return std::max({std::abs(qRed(colour) - wanted[0]), std::abs(qGreen(colour) - wanted[1]),
                   std::abs(qBlue(colour) - wanted[2])});
}

// Two roundings, and the shares in 1/256 where the factor is no multiple of 1/8.
constexpr double Rounding = 2;

}  // namespace

TEST(Factor, IsTheLargestEighthAtWhichTheLayoutFits) {
  const struct {
    QSize screen;
    double factor;
  } cases[] = {{{1280, 800}, 1.25},  {{1366, 768}, 1.25},   {{1366, 738}, 1.125},
               {{1920, 1080}, 1.75}, {{2560, 1440}, 2.375}, {{3840, 2160}, 3.5},
               {{1600, 1200}, 2},    {{1599, 1200}, 1.875}, {{1080, 1920}, 1.25}};
  for (const auto& c : cases)
    EXPECT_EQ(factorFor(c.screen), c.factor) << c.screen.width() << " by " << c.screen.height();
}

TEST(Factor, IsOneWhereTheScreenIsSmallerAndEightAtMost) {
  for (const QSize screen : {QSize(800, 480), QSize(1024, 600), QSize(640, 480), QSize(899, 674)})
    EXPECT_EQ(factorFor(screen), 1);
  EXPECT_EQ(factorFor({15360, 8640}), 8);
}

TEST(Factor, GivenByTheUserIsAnyNumberFromOneToEight) {
  EXPECT_EQ(givenFactor("1"), 1);
  EXPECT_EQ(givenFactor("1.3"), 1.3);
  EXPECT_EQ(givenFactor("8"), 8);
  EXPECT_EQ(givenFactor("0.5"), 1);
  EXPECT_EQ(givenFactor("-2"), 1);
  EXPECT_EQ(givenFactor("20"), 8);
  for (const char* word : {"", "groot", "nan", "inf", "1,5"})
    EXPECT_EQ(givenFactor(word), std::nullopt) << word;
}

TEST(Enlarged, IsTheAreaWeightedPictureAtEveryFactorAndPlace) {
  const QImage image = colourful(20, 15);
  for (const double factor : factors)
    for (const QPointF corner : {QPointF(0, 0), QPointF(176 * factor, 8 * factor)}) {
      const QRectF place(corner, QSizeF(image.size()) * factor);
      const QRect all = place.toAlignedRect();
      const QImage large = enlarged(image, place, all);
      double error = 0;
      for (int y = 0; y < large.height(); ++y)
        for (int x = 0; x < large.width(); ++x)
          error = std::max(error, farthest(large.pixel(x, y),
                                           resampled(image, place, x + all.x(), y + all.y())));
      EXPECT_LE(error, Rounding) << factor << " at " << corner.x();
    }
}

TEST(Enlarged, HasExactSquaresAtWholeFactors) {
  const QImage image = colourful(9, 7);
  for (const int factor : {1, 2, 4}) {
    const QRect place(3 * factor, 5 * factor, 9 * factor, 7 * factor);
    EXPECT_EQ(enlarged(image, place, place), image.scaled(place.size())) << factor;
  }
}

TEST(Enlarged, APartIsThatPartOfTheWhole) {
  const QImage image = colourful(30, 30);
  for (const double factor : factors) {
    const QRectF place(QPointF(7 * factor, 3 * factor), QSizeF(30, 30) * factor);
    const QRect all = place.toAlignedRect(), part(all.topLeft() + QPoint(11, 13), QSize(9, 6));
    EXPECT_EQ(enlarged(image, place, part), enlarged(image, place, all).copy(QRect(11, 13, 9, 6)));
  }
}

TEST(Enlarged, WhatIsTransparentStaysSo) {
  QImage image(4, 4, QImage::Format_ARGB32_Premultiplied);
  image.fill(0);
  image.setPixel(1, 1, 0xFFFF8000);
  const QImage large = enlarged(image, QRectF(0, 0, 6, 6), QRect(0, 0, 6, 6));
  EXPECT_EQ(large.pixel(0, 0), 0u);
  EXPECT_EQ(large.pixel(2, 2), 0xFFFF8000);
  EXPECT_EQ(qAlpha(large.pixel(1, 2)), 128) << "half of the square's edge";
}

TEST(Enlarged, EveryPartIsThatPartOfTheWhole) {
  std::mt19937 random(3);
  const QImage image = colourful(70, 50);
  for (const double factor : factors) {
    const QRectF place(QPointF(5 * factor, 9 * factor), QSizeF(image.size()) * factor);
    const QRect all = place.toAlignedRect();
    const QImage whole = enlarged(image, place, all);
    const auto below = [&](int end) {
      return static_cast<int>(random() % static_cast<unsigned>(end));
    };
    for (int i = 0; i < 100; ++i) {
      const QPoint corner(below(all.width()), below(all.height()));
      const QRect part(
          corner, QSize(1 + below(all.width() - corner.x()), 1 + below(all.height() - corner.y())));
      ASSERT_EQ(enlarged(image, place, part.translated(all.topLeft())), whole.copy(part))
          << factor << ": " << part.x() << ", " << part.y();
    }
  }
}

TEST(Enlarged, AMixtureIsRoundedToNearestAlongEachAxis) {
  const QImage image = colourful(40, 30);
  const auto mixed = [](double a, double b, double share) {
    return std::floor(a * (1 - share) + b * share + 0.5);
  };
  for (const double factor : {1.25, 1.75, 2.5}) {
    const QRectF place(QPointF(), QSizeF(image.size()) * factor);
    const QRect all(0, 0, static_cast<int>(place.width()), static_cast<int>(place.height()));
    const QImage large = enlarged(image, place, all);
    // The pixel at an edge or corner, and how much of it is the next one's.
    const auto split = [factor](int at) {
      const int first = static_cast<int>(at / factor);
      return std::pair(first, std::max(0.0, at + 1 - (first + 1) * factor));
    };
    for (int y = 0; y + 1 < all.height(); ++y)
      for (int x = 0; x + 1 < all.width(); ++x) {
        const auto [column, right] = split(x);
        const auto [row, below] = split(y);
        const int nextColumn = column + (right > 0), nextRow = row + (below > 0);
        for (const unsigned shift : {0, 8, 16}) {
          const auto channel = [shift](QRgb pixel) { return pixel >> shift & 0xFF; };
          const auto across = [&, right = right, column = column](int line) {
            return mixed(channel(image.pixel(column, line)), channel(image.pixel(nextColumn, line)),
                         right);
          };
          ASSERT_EQ(channel(large.pixel(x, y)), mixed(across(row), across(nextRow), below))
              << factor << ": " << x << ", " << y;
        }
      }
  }
}

TEST(Enlarged, TheDamageReachesEveryDevicePixelThatAChangeDoes) {
  for (const double factor : factors)
    for (int pixel = 0; pixel < 40; ++pixel) {
      const QRect area = damaged(QRect(pixel, pixel, 1, 1), factor);
      // The toolkit rounds both edges.
      EXPECT_LE(qRound(area.left() * factor), static_cast<int>(std::floor(pixel * factor + 1e-9)));
      EXPECT_GE(qRound((area.right() + 1) * factor),
                static_cast<int>(std::ceil((pixel + 1) * factor - 1e-9)));
      EXPECT_LE(area.width(), 3) << "and little more";
    }
}

TEST(Enlarged, TheDamageGrowsNothingWhereTheEdgesAreThoseOfDevicePixels) {
  const QRect tile(16, 32, 8, 16);
  for (const double factor : {1.0, 1.125, 1.75, 2.375, 4.0}) EXPECT_EQ(damaged(tile, factor), tile);
  EXPECT_EQ(damaged(tile, 1.75, QPoint(1, 2)), tile.adjusted(-1, -1, 1, 1));
  EXPECT_EQ(damaged(tile, 1.5, QPoint(1, 2)), tile.adjusted(-1, 0, 1, 0));
  EXPECT_EQ(damaged(tile, 1.1), tile.adjusted(-1, -1, 1, 1));
}

TEST(Enlarged, ThePointerHitsThePixelThatIsMostOfADevicePixel) {
  for (const double factor : factors)
    for (int device = 0; device < std::floor(20 * factor); ++device) {
      const int hit = pixelShownAt(device, factor);
      const double share = shared(device, hit * factor, (hit + 1) * factor);
      for (int other = 0; other < 20; ++other)
        EXPECT_GE(share + 1e-9, shared(device, other * factor, (other + 1) * factor))
            << factor << ": " << device << " hits " << hit << ", not " << other;
    }
}

namespace {

constexpr Color Pencil = 0x0040FF;

// A small sheet at an odd place, to be drawn on: what is chosen from would show the focus above it.
class Corner : public Form {
 public:
  Corner() : Form({.Width = 1500, .Height = 1500}) {
    sheet.MouseDown = [this](const Mouse& at) {
      pressed = at;
      sheet.Line({at.X, at.Y}, {19, 7}, Pencil);
    };
    MouseUp = [this](const Mouse&) { ++beside; };
  }
  std::optional<Mouse> pressed;
  int beside = 0;
  PictureBox sheet{*this,
                   {.Left = 165,
                    .Top = 105,
                    .Width = 300,
                    .Height = 300,
                    .ScaleMode = ScalePixels,
                    .AutoRedraw = true}};
  PictureBox other{
      *this, {.Left = 900, .Top = 900, .Width = 300, .Height = 300, .ScaleMode = ScalePixels}};
};

}  // namespace

class AtTheFactor : public script::Stage {
 protected:
  AtTheFactor() {
    desk.Show();
    window = script::widgetOf(desk.sheet)->window();
    factor = window->windowHandle()->devicePixelRatio();
  }

  // The pixel of the sheet, 11 from the left and 7 from the top of the window, that hears a press
  // on a place of the window in device pixels.
  std::optional<QPoint> pressedAt(double x, double y) {
    desk.pressed.reset();
    const QPointF at = QPointF(x, y) / factor;
    QWindow* handle = window->windowHandle();
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease})
      qt_handleMouseEvent(handle, at, handle->mapToGlobal(at),
                          type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton,
                          Qt::LeftButton, type, Qt::NoModifier, QTest::lastMouseTimestamp += 1000);
    QCoreApplication::processEvents();
    if (!desk.pressed) return std::nullopt;
    return QPointF(desk.pressed->X, desk.pressed->Y).toPoint();
  }

  Corner& desk = the<Corner>();
  QWidget* window = nullptr;
  double factor = 1;
};

TEST_F(AtTheFactor, APressOnEveryDevicePixelOfASheetHitsThePixelShownThere) {
  desk.sheet.MouseDown = [this](const Mouse& at) { desk.pressed = at; };
  const int left = qRound(11 * factor), right = qRound(31 * factor);
  const int top = qRound(7 * factor), bottom = qRound(27 * factor);
  for (int y = top - 1; y <= bottom; ++y)
    for (int x = left - 1; x <= right; ++x) {
      const auto hit = pressedAt(x, y);
      if (x < left || x == right || y < top || y == bottom)
        EXPECT_EQ(hit, std::nullopt) << "beside the sheet: " << x << ", " << y;
      else
        EXPECT_EQ(hit, QPoint(pixelShownAt(x, factor) - 11, pixelShownAt(y, factor) - 7))
            << x << ", " << y;
    }
  EXPECT_GT(desk.beside, 0);
}

TEST_F(AtTheFactor, TheWindowShowsTheSheetInSharpSquares) {
  press(desk.sheet, 2, 3);
  press(desk.sheet, 5, 19);
  const QImage seen = shown(desk), image = qt::wrapped(*desk.sheet.bitmap()).copy();
  const QRectF place(11 * factor, 7 * factor, 20 * factor, 20 * factor);
  double error = 0;
  for (int y = qRound(place.top()); y < qRound(place.bottom()); ++y)
    for (int x = qRound(place.left()); x < qRound(place.right()); ++x)
      error = std::max(error, farthest(seen.pixel(x, y), resampled(image, place, x, y)));
  EXPECT_LE(error, Rounding);
}

TEST_F(AtTheFactor, WhatIsRepaintedIsAsSharpAsTheWhole) {
  QCoreApplication::processEvents();
  for (int x = 0; x < 20; ++x) {
    press(desk.sheet, x, 7 * x % 20);
    QCoreApplication::processEvents();
  }
  const auto* seen = dynamic_cast<QImage*>(window->backingStore()->paintDevice());
  ASSERT_TRUE(seen);
  EXPECT_EQ(seen->convertToFormat(QImage::Format_RGB32),
            shown(desk).convertToFormat(QImage::Format_RGB32));
}

namespace {

// An animation on the window itself, with buttons above it.
class Sparks : public Form {
 public:
  Sparks() : Form({.Width = 4500, .Height = 3000, .ScaleMode = ScalePixels}) {}
  CommandButton even{*this, {.Left = 240, .Top = 360, .Width = 1455, .Height = 615}};
  CommandButton odd{*this, {.Left = 2295, .Top = 1155, .Width = 1005, .Height = 405}};
};

}  // namespace

TEST_F(AtTheFactor, SparksAllOverAWindowAreRepaintedAsSharpAsTheWhole) {
  Sparks& sky = the<Sparks>();
  sky.Show();
  QCoreApplication::processEvents();
  std::mt19937 random(5);
  const auto below = [&](unsigned end) { return static_cast<float>(random() % end); };
  const auto* store = script::widgetOf(sky.odd)->window()->backingStore();
  for (int tick = 0; tick < 12; ++tick) {
    if (tick == 8) sky.Cls();
    for (int i = 0; i < 12; ++i) {
      const PointF at{below(300), below(200)};
      sky.Line(at, {at.X + below(9), at.Y + below(9)}, static_cast<Color>(below(0x1000000)), BF);
    }
    sky.Line({below(300), below(200)}, {below(300), below(200)}, Pencil);
    advance(0);
    const auto* seen = dynamic_cast<QImage*>(const_cast<QBackingStore*>(store)->paintDevice());
    ASSERT_TRUE(seen);
    ASSERT_EQ(seen->convertToFormat(QImage::Format_RGB32),
              shown(sky).convertToFormat(QImage::Format_RGB32))
        << "tick " << tick;
  }
}

namespace {

// Seven lines upright and seven across, eleven pixels apart.
class Grid : public Form {
 public:
  Grid() : Form({.Width = 3000, .Height = 3000}) {
    for (int i = 0; i < 7; ++i) {
      const float at = 600 + 165 * static_cast<float>(i);
      lines.push_back(std::make_unique<LineControl>(
          *this, LineControl::Design{.X1 = at, .Y1 = 0, .X2 = at, .Y2 = 2400}));
      lines.push_back(std::make_unique<LineControl>(
          *this, LineControl::Design{.X1 = 0, .Y1 = at, .X2 = 2400, .Y2 = at}));
    }
  }
  std::vector<std::unique_ptr<LineControl>> lines;
};

}  // namespace

TEST_F(AtTheFactor, LinesAreAlikeWhereverTheyStand) {
  Grid& grid = the<Grid>();
  grid.Show();
  const QImage seen = shown(grid);
  const int beside = qRound(20 * factor);
  for (int i = 0; i < 7; ++i) {
    int across = 0, down = 0;
    for (int at = qRound((37 + 11 * i) * factor); at < qRound((45 + 11 * i) * factor); ++at) {
      across += qGray(seen.pixel(at, beside)) == 0;
      down += qGray(seen.pixel(beside, at)) == 0;
    }
    EXPECT_EQ(across, qRound(factor)) << i;
    EXPECT_EQ(down, qRound(factor)) << i;
  }
}

namespace {

// What a sheet hears of a drag.
std::vector<Mouse> heardOf(PictureBox& sheet, const std::function<void()>& drag) {
  std::vector<Mouse> heard;
  const auto hear = [&](const Mouse& at) {
    if (at.Button) heard.push_back(at);
  };
  const auto ignore = [](const Mouse&) {};
  for (auto* event : {&sheet.MouseDown, &sheet.MouseMove, &sheet.MouseUp}) *event = hear;
  drag();
  for (auto* event : {&sheet.MouseDown, &sheet.MouseMove, &sheet.MouseUp}) *event = ignore;
  return heard;
}

}  // namespace

TEST_F(AtTheFactor, AFingerDrawsAsTheMouseDoes) {
  QWindow* handle = window->windowHandle();
  const QPoint corner(11, 7), from(3, 4), middle(8, 6), to(17, 13);
  const auto byMouse = heardOf(desk.sheet, [&] {
    press(desk.sheet, from.x(), from.y());
    move(desk.sheet, middle.x(), middle.y(), 1);
    move(desk.sheet, to.x(), to.y(), 1);
    release(desk.sheet, to.x(), to.y());
  });
  const std::unique_ptr<QPointingDevice> screen(QTest::createTouchDevice());
  const auto touch = [&](QEventPoint::State state, const QPoint& pixel) {
    const QPointF at = corner + pixel + QPointF(0.5, 0.5);
    const QEventPoint finger(0, state, at, handle->mapToGlobal(at));
    qt_handleTouchEventv2(handle, screen.get(), {finger}, Qt::NoModifier);
  };
  const auto byFinger = heardOf(desk.sheet, [&] {
    touch(QEventPoint::Pressed, from);
    touch(QEventPoint::Updated, middle);
    touch(QEventPoint::Updated, to);
    touch(QEventPoint::Released, to);
    QCoreApplication::processEvents();
  });
  const auto plain = [](const std::vector<Mouse>& heard) {
    std::vector<std::array<float, 3>> all;
    for (const Mouse& at : heard) all.push_back({static_cast<float>(at.Button), at.X, at.Y});
    return all;
  };
  EXPECT_EQ(byMouse.size(), 4u);
  EXPECT_EQ(plain(byFinger), plain(byMouse));
}

TEST_F(AtTheFactor, APenHitsThePixelShownWhereverWithinADevicePixelItStands) {
  desk.sheet.MouseDown = [this](const Mouse& at) { desk.pressed = at; };
  const int left = qRound(11 * factor), right = qRound(31 * factor), top = qRound(7 * factor);
  for (int device = left; device < right; ++device)
    for (const double within : {0.0, 0.1, 0.25, 0.4, 0.7, 0.9, 0.999})
      EXPECT_EQ(pressedAt(device + within, top + within),
                QPoint(pixelShownAt(device, factor) - 11, pixelShownAt(top, factor) - 7))
          << device + within;
}

TEST_F(AtTheFactor, TheSameDragLeavesTheSameBitmap) {
  for (int x = 0; x < 20; ++x) press(desk.sheet, x, 19 - x);
  for (float x = 0; x < 20; ++x) desk.other.Line({x, 19 - x}, {19, 7}, Pencil);
  EXPECT_EQ(qt::wrapped(*desk.sheet.bitmap()), qt::wrapped(*desk.other.bitmap()));
}

TEST_F(AtTheFactor, ACursorKeepsItsTip) {
  desk.sheet.MousePointer = PointerCustom;
  desk.sheet.MouseIcon = "curPen";
  const QCursor cursor = script::widgetOf(desk.sheet)->cursor();
  const Picture own = host().artPicture("curPen");
  EXPECT_DOUBLE_EQ(cursor.pixmap().devicePixelRatio(), factor);
  EXPECT_EQ(cursor.pixmap().width(), std::ceil(own.bitmap()->width() * factor));
  EXPECT_TRUE(
      QRect({}, cursor.pixmap().deviceIndependentSize().toSize()).contains(cursor.hotSpot()));
}
