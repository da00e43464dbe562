// The drawing operations in every scale: what lands on which pixel.
#include <cmath>
#include <limits>
#include <memory>
#include <set>

#include "support/colors.h"
#include "support/errors.h"
#include "support/script.h"

using namespace surface;

namespace {

constexpr int Side = 100;  // pixels

class Slate : public Form {
 public:
  Slate() : Form({.Width = 6000, .Height = 4500}) {}

  PictureBox pixels{*this, slate(ScalePixels)};
  PictureBox twips{*this, slate(ScaleTwips)};
  PictureBox centimetres{*this, slate(ScaleCentimetres)};
  PictureBox user{*this, slate(ScalePixels)};

 private:
  static PictureBox::Design slate(ScaleUnit scale) {
    return {.Width = Side * 15,
            .Height = Side * 15,
            .ScaleMode = scale,
            .AutoRedraw = true,
            .BackColor = White};
  }
};

using Dots = std::set<std::pair<int, int>>;

Dots dots(const DrawingSurface& surface, Color color) {
  Dots found;
  const Picture image = surface.Image();
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      if (toColor(image.bitmap()->at(x, y)) == color) found.insert({x, y});
  return found;
}

Dots rectangle(int left, int top, int right, int bottom) {
  Dots all;
  for (int y = top; y <= bottom; ++y)
    for (int x = left; x <= right; ++x) all.insert({x, y});
  return all;
}

}  // namespace

class Drawing : public script::Stage {
 protected:
  // The user scale is upside down: from (-1, 3) at the upper left to (1, -1) at the lower right.
  Drawing() { slate.user.setUserScale({-1, 3}, {2, -4}); }
  Slate& slate = the<Slate>();
  PictureBox& sheet = slate.pixels;
};

TEST_F(Drawing, TheInnerSizeIsGivenInTheSurfacesOwnScale) {
  EXPECT_EQ(slate.pixels.ScaleWidth(), 100);
  EXPECT_EQ(slate.twips.ScaleWidth(), 1500);
  EXPECT_FLOAT_EQ(slate.centimetres.ScaleWidth(), 1500 / 1440.f * 2.54f);
  EXPECT_EQ(slate.user.ScaleWidth(), 2);
  EXPECT_EQ(slate.user.ScaleHeight(), -4);
  EXPECT_EQ(slate.user.Width, 1500) << "the size itself stays in the container's scale";
}

TEST_F(Drawing, ALengthIsConvertedFromOneUnitToAnother) {
  EXPECT_EQ(ScaleX(10, ScalePixels, ScaleTwips), 150);
  EXPECT_EQ(ScaleX(150, ScaleTwips, ScalePixels), 10);
  EXPECT_EQ(ScaleY(2.54f, ScaleCentimetres, ScaleTwips), 1440);
  EXPECT_FLOAT_EQ(ScaleY(1440, ScaleTwips, ScaleCentimetres), 2.54f);
  EXPECT_FLOAT_EQ(ScaleX(96, ScalePixels, ScaleCentimetres), 2.54f);
  EXPECT_EQ(ScaleX(7.3f, ScaleTwips, ScaleTwips), 7.3f);
}

TEST_F(Drawing, OnePlaceHasItsCoordinatesInEachScale) {
  slate.pixels.PSet({30, 70}, Red);
  slate.twips.PSet({450, 1050}, Red);
  slate.centimetres.PSet({30 / 96.f * 2.54f, 70 / 96.f * 2.54f}, Red);
  // 30 of 100 pixels are 0.6 of 2 units; 70 of 100 are 2.8 of 4, downwards from 3.
  slate.user.PSet({-0.4f, 0.2f}, Red);
  for (PictureBox* box : {&slate.pixels, &slate.twips, &slate.centimetres, &slate.user})
    EXPECT_EQ(dots(*box, Red), (Dots{{30, 70}}));
  EXPECT_EQ(slate.twips.Point({450, 1050}), Red);
  EXPECT_EQ(slate.centimetres.Point({30 / 96.f * 2.54f, 70 / 96.f * 2.54f}), Red);
  EXPECT_EQ(slate.user.Point({-0.4f, 0.2f}), Red);
}

TEST_F(Drawing, PositionsGoToTheNearestPixelAndHalvesToTheEvenOne) {
  sheet.PSet({10.5f, 11.5f}, Red);
  sheet.PSet({20.49f, 20.51f}, Red);
  EXPECT_EQ(dots(sheet, Red), (Dots{{10, 12}, {20, 21}}));
  slate.twips.PSet({157.5f, 172.5f}, Red);  // 10.5 and 11.5 pixels
  EXPECT_EQ(dots(slate.twips, Red), (Dots{{10, 12}}));
}

TEST_F(Drawing, ALineInTwipsRunsOverTheSamePixelsAsInPixels) {
  slate.pixels.Line({10, 20}, {70, 45}, Red);
  slate.twips.Line({150, 300}, {1050, 675}, Red);
  EXPECT_EQ(dots(slate.twips, Red), dots(slate.pixels, Red));
  EXPECT_FALSE(dots(slate.pixels, Red).empty());
}

TEST_F(Drawing, ALineLeavesItsLastPixelToTheNextOne) {
  sheet.Line({10, 20}, {15, 20}, Red);
  EXPECT_EQ(dots(sheet, Red), rectangle(10, 20, 14, 20));
}

TEST_F(Drawing, ALineFromAPointToItselfIsOneDot) {
  sheet.Line({10, 20}, {10, 20}, Red);
  EXPECT_EQ(dots(sheet, Red), (Dots{{10, 20}}));
}

TEST_F(Drawing, ADotHasTheWidthOfThePen) {
  sheet.DrawWidth = 7;
  sheet.Line({50, 50}, {50, 50}, Red);
  const Dots dot = dots(sheet, Red);
  // Round: every pixel well within 3.5 of the middle, none well beyond it.
  for (int y = 40; y <= 60; ++y)
    for (int x = 40; x <= 60; ++x) {
      const double distance = std::hypot(x - 50, y - 50);
      const bool painted = dot.count({x, y}) != 0;
      EXPECT_TRUE(painted || distance > 2.5) << x << ',' << y;
      EXPECT_TRUE(!painted || distance <= 4.5) << x << ',' << y;
    }
  slate.twips.DrawWidth = 7;
  slate.twips.PSet({750, 750}, Red);
  EXPECT_EQ(dots(slate.twips, Red), dot) << "the width is in pixels in every scale";
}

TEST_F(Drawing, WithoutAColourTheForeColorIsTaken) {
  sheet.ForeColor = Green;
  sheet.Line({0, 0}, {5, 0});
  sheet.PSet({10, 10});
  sheet.Circle({50, 50}, 5);
  EXPECT_EQ(sheet.Point({0, 0}), Green);
  EXPECT_EQ(sheet.Point({10, 10}), Green);
  EXPECT_EQ(sheet.Point({55, 50}), Green);
  sheet.Line({0, 5}, {5, 5}, Red);
  EXPECT_EQ(sheet.Point({0, 5}), Red);
  EXPECT_EQ(sheet.ForeColor, Green) << "a colour of one line has become the surface's";
}

TEST_F(Drawing, AColourThatIsNonePaintsNothingAndStopsNothing) {
  EXPECT_NO_THROW({
    sheet.Line({0, 0}, {50, 50}, NoColor);
    sheet.Line({0, 0}, {50, 50}, NoColor, BF);
    sheet.Circle({50, 50}, 20, NoColor);
    sheet.PSet({5, 5}, NoColor);
  });
  EXPECT_EQ(dots(sheet, White).size(), std::size_t{Side * Side});
}

TEST_F(Drawing, ABoxIsOutlinedWithThePenAndFilledWithTheBrush) {
  sheet.FillColor = Blue;
  sheet.FillStyle = 0;
  sheet.Line({10, 20}, {14, 23}, Red, B);
  EXPECT_EQ(dots(sheet, Blue), rectangle(11, 21, 13, 22));
  Dots outline = rectangle(10, 20, 14, 23);
  for (const auto& inside : rectangle(11, 21, 13, 22)) outline.erase(inside);
  EXPECT_EQ(dots(sheet, Red), outline);
}

TEST_F(Drawing, ABoxWithATransparentBrushLeavesItsInside) {
  sheet.FillColor = Blue;
  sheet.Line({0, 0}, {99, 99}, Green, BF);
  sheet.Line({10, 20}, {14, 23}, Red, B);
  EXPECT_EQ(sheet.Point({12, 21}), Green);
}

TEST_F(Drawing, AFilledBoxTakesTheLinesColourWhateverTheBrush) {
  sheet.FillColor = Blue;
  for (int style = 0; style <= 7; ++style) {
    sheet.Cls();
    sheet.FillStyle = style;
    sheet.Line({14, 23}, {10, 20}, Red, BF);
    EXPECT_EQ(dots(sheet, Red), rectangle(10, 20, 14, 23)) << style;
    EXPECT_TRUE(dots(sheet, Blue).empty()) << style;
  }
}

TEST_F(Drawing, ACirclePassesThroughItsRadiusOnAllFourSides) {
  sheet.Circle({50, 50}, 20, Red);
  const Dots circle = dots(sheet, Red);
  for (const auto& [x, y] : circle) EXPECT_NEAR(std::hypot(x - 50, y - 50), 20, 1.0);
  for (const auto& end : Dots{{30, 50}, {70, 50}, {50, 30}, {50, 70}})
    EXPECT_TRUE(circle.count(end)) << end.first << ',' << end.second;
  EXPECT_EQ(sheet.Point({50, 50}), White);
}

TEST_F(Drawing, ARadiusIsInTheSurfacesOwnScale) {
  slate.pixels.Circle({50, 50}, 20, Red);
  slate.twips.Circle({750, 750}, 300, Red);
  EXPECT_EQ(dots(slate.twips, Red), dots(slate.pixels, Red));
}

TEST_F(Drawing, ACircleIsFilledWithTheBrush) {
  sheet.FillStyle = 0;
  sheet.FillColor = Blue;
  sheet.Circle({50, 50}, 20, Red);
  EXPECT_EQ(sheet.Point({50, 50}), Blue);
  EXPECT_EQ(sheet.Point({31, 50}), Blue);
  EXPECT_EQ(sheet.Point({30, 50}), Red);
  EXPECT_EQ(sheet.Point({29, 50}), White);
}

namespace {

raster::Rect extent(const Dots& all) {
  raster::Rect box;
  for (const auto& [x, y] : all) box = unite(box, {x, y, x + 1, y + 1});
  return box;
}

}  // namespace

TEST_F(Drawing, AnAspectBelowOneFlattensTheEllipse) {
  sheet.Circle({50, 50}, 20, Red, 0.5f);
  EXPECT_EQ(extent(dots(sheet, Red)), (raster::Rect{30, 40, 71, 61}));
}

TEST_F(Drawing, AnAspectAboveOneNarrowsTheEllipse) {
  sheet.Circle({50, 50}, 20, Red, 4);
  EXPECT_EQ(extent(dots(sheet, Red)), (raster::Rect{45, 30, 56, 71}));
}

TEST_F(Drawing, ARadiusOfZeroIsOneDot) {
  sheet.Circle({50, 50}, 0, Red);
  EXPECT_EQ(dots(sheet, Red), (Dots{{50, 50}}));
}

TEST_F(Drawing, ARadiusOrAspectThatIsNoneIsRefused) {
  const float none = std::numeric_limits<float>::quiet_NaN();
  EXPECT_ERROR(BadPropertyValue, sheet.Circle({50, 50}, -1, Red));
  EXPECT_ERROR(BadPropertyValue, sheet.Circle({50, 50}, 5, Red, -1));
  EXPECT_ERROR(BadPropertyValue, sheet.Circle({50, 50}, none, Red));
  EXPECT_ERROR(BadPropertyValue,
               sheet.Circle({50, 50}, 5, Red, std::numeric_limits<float>::infinity()));
  EXPECT_TRUE(dots(sheet, Red).empty());
}

TEST_F(Drawing, ADottedLineHasGapsAtWidthOne) {
  sheet.DrawStyle = 2;
  sheet.Line({0, 50}, {99, 50}, Red);
  const std::size_t painted = dots(sheet, Red).size();
  EXPECT_GT(painted, 20u);
  EXPECT_LT(painted, 80u);
}

TEST_F(Drawing, ADottedLineOfWidthThreeIsSolid) {
  sheet.DrawWidth = 3;
  sheet.Line({10, 50}, {90, 50}, Red);
  const Dots solid = dots(sheet, Red);
  sheet.Cls();
  sheet.DrawStyle = 2;
  sheet.Line({10, 50}, {90, 50}, Red);
  EXPECT_EQ(dots(sheet, Red), solid);
  for (const auto& dot : rectangle(11, 49, 89, 51)) EXPECT_TRUE(solid.count(dot));
}

TEST_F(Drawing, DrawStyleFiveDrawsNothingAtAnyWidth) {
  sheet.DrawStyle = 5;
  for (const int width : {1, 3}) {
    sheet.DrawWidth = width;
    sheet.Line({10, 50}, {90, 50}, Red);
    sheet.Circle({50, 50}, 20, Red);
  }
  EXPECT_TRUE(dots(sheet, Red).empty());
}

TEST_F(Drawing, InvertingTwiceBringsThePictureBack) {
  sheet.Line({0, 0}, {99, 99}, Green, BF);
  sheet.Circle({40, 40}, 30, Blue);
  const Picture before = sheet.Image();
  sheet.DrawMode = 6;
  const auto draw = [&] {
    sheet.Line({3, 5}, {90, 77});
    sheet.Line({20, 10}, {70, 60}, Red, B);
    sheet.Circle({50, 50}, 33, Red, 0.7f);
  };
  draw();
  EXPECT_EQ(sheet.Point({3, 5}), 0xFF00FF) << "the inverse of green";
  draw();
  for (int y = 0; y < Side; ++y)
    for (int x = 0; x < Side; ++x)
      ASSERT_EQ(sheet.Image().bitmap()->at(x, y), before.bitmap()->at(x, y)) << x << ',' << y;
}

TEST_F(Drawing, DrawModesOneAndSixteenAreBlackAndWhite) {
  sheet.Line({0, 0}, {99, 99}, Green, BF);
  sheet.DrawMode = 1;
  sheet.PSet({1, 1}, Red);
  sheet.DrawMode = 16;
  sheet.PSet({2, 2}, Red);
  EXPECT_EQ(sheet.Point({1, 1}), Black);
  EXPECT_EQ(sheet.Point({2, 2}), White);
}

TEST_F(Drawing, PointBeyondTheSurfaceIsNoColourAndNoError) {
  for (const PointF at : {PointF{-1, 0}, {0, -1}, {100, 0}, {0, 100}, {1e9f, -1e9f}})
    EXPECT_EQ(sheet.Point(at), NoColor) << at.X << ',' << at.Y;
  EXPECT_EQ(sheet.Point({0, 0}), White);
  EXPECT_EQ(sheet.Point({99, 99}), White);
}

TEST_F(Drawing, WhatLiesOutsideIsCutOff) {
  sheet.Line({-1000, 50}, {1000, 50}, Red);
  EXPECT_EQ(dots(sheet, Red), rectangle(0, 50, 99, 50));
  EXPECT_NO_THROW(sheet.Line({-1e30f, -1e30f}, {1e30f, 1e30f}, Blue));
}

TEST_F(Drawing, EachOperationMovesTheCurrentPoint) {
  sheet.Line({1, 2}, {30, 40});
  EXPECT_EQ(sheet.CurrentX, 30);
  EXPECT_EQ(sheet.CurrentY, 40);
  sheet.Circle({50, 60}, 7);
  EXPECT_EQ(sheet.CurrentX, 50);
  EXPECT_EQ(sheet.CurrentY, 60);
  sheet.PSet({7, 8});
  EXPECT_EQ(sheet.CurrentX, 7);
  EXPECT_EQ(sheet.CurrentY, 8);
}

TEST_F(Drawing, PrintPutsPlainDotsInForeColorAtTheCurrentPoint) {
  sheet.Font = {"Arial", 12};
  sheet.ForeColor = Red;
  sheet.CurrentX = 40;
  sheet.CurrentY = 50;
  sheet.Print("I");
  const Dots letter = dots(sheet, Red);
  EXPECT_EQ(letter.size() + dots(sheet, White).size(), std::size_t{Side * Side}) << "a grey edge";
  const raster::Rect box = extent(letter);
  // An upright bar, some 16 pixels of letter height, just right of and below the point.
  EXPECT_GE(box.left, 40);
  EXPECT_LE(box.right, 46);
  EXPECT_GE(box.top, 50);
  EXPECT_LE(box.bottom, 70);
  EXPECT_NEAR(box.height(), 12, 2);
}

TEST_F(Drawing, PrintAdvancesToTheNextLine) {
  for (PictureBox* box : {&slate.pixels, &slate.twips}) {
    const float unit = box == &slate.twips ? 15 : 1;
    box->Font = {"Arial", 12};
    box->CurrentX = 20 * unit;
    box->CurrentY = 10 * unit;
    box->Print("een");
    EXPECT_EQ(box->CurrentX, 0);
    EXPECT_NEAR(box->CurrentY / unit, 10 + 18, 2);
    box->Print("twee");
    EXPECT_NEAR(box->CurrentY / unit, 10 + 2 * 18, 4);
  }
  EXPECT_EQ(dots(slate.pixels, Black), dots(slate.twips, Black));
}

TEST_F(Drawing, PrintFollowsTheFont) {
  const auto inked = [&](const Font& font) {
    sheet.Cls();
    sheet.Font = font;
    sheet.Print("Maan");
    return dots(sheet, Black);
  };
  const Dots plain = inked({"Arial", 12});
  EXPECT_GT(extent(inked({"Arial", 24})).height(), extent(plain).height() * 3 / 2);
  EXPECT_GT(inked({"Arial", 12, true}).size(), plain.size());
  EXPECT_NE(inked({"Arial", 12, false, true}), plain);
  EXPECT_GT(inked({"Arial", 12, false, false, true}).size(), plain.size() + 20) << "no underline";
  EXPECT_GT(inked({"Arial", 12, false, false, false, true}).size(), plain.size() + 5);
  EXPECT_EQ(inked({"Arial", 12}), plain) << "the same text has other dots the second time";
}

TEST_F(Drawing, APictureIsPaintedAtItsNaturalSizeOrScaled) {
  auto bitmap = std::make_shared<raster::Bitmap>(2, 1, toPixel(Red));
  bitmap->row(0)[1] = toPixel(Blue);
  const Picture picture(std::move(bitmap));
  sheet.PaintPicture(picture, {10, 20});
  EXPECT_EQ(dots(sheet, Red), (Dots{{10, 20}}));
  EXPECT_EQ(dots(sheet, Blue), (Dots{{11, 20}}));
  sheet.Cls();
  sheet.PaintPicture(picture, {10, 20}, SizeF{8, 3});
  EXPECT_EQ(dots(sheet, Red), rectangle(10, 20, 13, 22));
  EXPECT_EQ(dots(sheet, Blue), rectangle(14, 20, 17, 22));
  sheet.Cls();
  sheet.PaintPicture(picture, {10, 20}, SizeF{8, 3}, raster::Rect{1, 0, 2, 1});
  EXPECT_EQ(dots(sheet, Blue), rectangle(10, 20, 17, 22));
  slate.twips.PaintPicture(picture, {150, 300}, SizeF{120, 45});
  EXPECT_EQ(dots(slate.twips, Red), rectangle(10, 20, 13, 22));
}

TEST_F(Drawing, AnEmptyPictureCannotBePainted) {
  EXPECT_ERROR(BadPropertyValue, sheet.PaintPicture(LoadPicture(), {0, 0}));
}

TEST_F(Drawing, AUserScaleOfNoExtentIsRefused) {
  EXPECT_ERROR(BadPropertyValue, slate.user.setUserScale({0, 0}, {0, 5}));
  EXPECT_ERROR(BadPropertyValue, slate.user.setUserScale({0, 0}, {5, 0}));
  EXPECT_EQ(slate.user.ScaleWidth(), 2);
}
