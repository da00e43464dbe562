// The calls on a device context, which count in pixels whatever the surface's scale; and colours.
#include "surface/gdi.h"

#include <QImage>

#include "support/colors.h"
#include "support/errors.h"
#include "support/script.h"

using namespace surface;

namespace {

class Bench : public Form {
 public:
  Bench() : Form({.Width = 6000, .Height = 4500}) {}

  PictureBox twips{*this, {.Width = 600, .Height = 600, .AutoRedraw = true, .BackColor = White}};
  PictureBox pixels{*this, PictureBox::Design{.Left = 750,
                                              .Width = 600,
                                              .Height = 600,
                                              .ScaleMode = ScalePixels,
                                              .AutoRedraw = true,
                                              .BackColor = White}};
};

}  // namespace

class DeviceCalls : public script::Stage {
 protected:
  Bench& bench = the<Bench>();
  PictureBox& twips = bench.twips;
  PictureBox& pixels = bench.pixels;
};

TEST_F(DeviceCalls, CountInPixelsOnASurfaceInTwips) {
  SetPixel(twips.hDC(), 30, 20, Red);
  SetPixelV(twips.hDC(), 31, 20, Blue);
  EXPECT_EQ(GetPixel(twips.hDC(), 30, 20), Red);
  EXPECT_EQ(twips.Point({30 * 15, 20 * 15}), Red);
  EXPECT_EQ(twips.Point({31 * 15, 20 * 15}), Blue);
}

TEST_F(DeviceCalls, OutsideTheSurfaceThereIsNoPixel) {
  EXPECT_EQ(GetPixel(pixels.hDC(), -1, 0), NoColor);
  EXPECT_EQ(GetPixel(pixels.hDC(), 0, 40), NoColor);
  EXPECT_NO_THROW(SetPixel(pixels.hDC(), 40, 0, Red));
  EXPECT_NO_THROW(SetPixel(pixels.hDC(), 0, -1, Red));
  EXPECT_NO_THROW(SetPixel(pixels.hDC(), 5, 5, NoColor));
  EXPECT_EQ(GetPixel(pixels.hDC(), 5, 5), White);
}

TEST_F(DeviceCalls, ABlockIsCopiedFromOneSurfaceToAnother) {
  pixels.Line({10, 10}, {19, 19}, Red, BF);
  BitBlt(twips.hDC(), 2, 3, 5, 6, pixels.hDC(), 8, 9, SrcCopy);
  // Columns 8 and 9 and row 9 of the source are still white.
  for (int y = 0; y < 12; ++y)
    for (int x = 0; x < 12; ++x)
      EXPECT_EQ(GetPixel(twips.hDC(), x, y), x >= 4 && x < 7 && y >= 4 && y < 9 ? Red : White)
          << x << ',' << y;
}

TEST_F(DeviceCalls, ExclusiveOrTurnsTheColoursRoundOnAWhiteGround) {
  pixels.Line({10, 10}, {19, 19}, 0x123456, BF);
  BitBlt(twips.hDC(), 0, 0, 40, 40, pixels.hDC(), 0, 0, 0x660046);
  EXPECT_EQ(GetPixel(twips.hDC(), 15, 15), 0xFFFFFF - 0x123456);
  EXPECT_EQ(GetPixel(twips.hDC(), 5, 5), Black);
  // Once more brings everything back.
  BitBlt(twips.hDC(), 0, 0, 40, 40, pixels.hDC(), 0, 0, SrcInvert);
  EXPECT_EQ(GetPixel(twips.hDC(), 15, 15), White);
  EXPECT_EQ(GetPixel(twips.hDC(), 5, 5), White);
}

TEST_F(DeviceCalls, ABlockMayBeCopiedOntoItself) {
  for (int x = 0; x < 40; ++x) SetPixel(pixels.hDC(), x, 0, RGB(x, 0, 0));
  BitBlt(pixels.hDC(), 1, 0, 30, 1, pixels.hDC(), 0, 0, SrcCopy);
  EXPECT_EQ(GetPixel(pixels.hDC(), 0, 0), RGB(0, 0, 0));
  for (int x = 1; x <= 30; ++x) EXPECT_EQ(GetPixel(pixels.hDC(), x, 0), RGB(x - 1, 0, 0)) << x;
  EXPECT_EQ(GetPixel(pixels.hDC(), 31, 0), RGB(31, 0, 0));
}

TEST_F(DeviceCalls, WhatIsOutsideTheSourceLeavesTheTargetAsItIs) {
  twips.Line({0, 0}, {600, 600}, Green, BF);
  BitBlt(twips.hDC(), 0, 0, 10, 10, pixels.hDC(), 35, 35, SrcCopy);
  EXPECT_EQ(GetPixel(twips.hDC(), 4, 4), White);
  EXPECT_EQ(GetPixel(twips.hDC(), 5, 4), Green);
}

TEST_F(DeviceCalls, ABlockIsStretchedInWholePixels) {
  SetPixel(pixels.hDC(), 0, 0, Red);
  SetPixel(pixels.hDC(), 1, 0, Blue);
  StretchBlt(twips.hDC(), 10, 10, 6, 3, pixels.hDC(), 0, 0, 2, 1, SrcCopy);
  for (int x = 10; x < 16; ++x)
    for (int y = 10; y < 13; ++y)
      EXPECT_EQ(GetPixel(twips.hDC(), x, y), x < 13 ? Red : Blue) << x << ',' << y;
  EXPECT_EQ(GetPixel(twips.hDC(), 16, 10), White);
}

TEST_F(DeviceCalls, OnlyThePlainCopyIsKnown) {
  SetPixel(pixels.hDC(), 0, 0, Red);
  BitBlt(twips.hDC(), 0, 0, 1, 1, pixels.hDC(), 0, 0, 0x00EE0086);
  StretchBlt(twips.hDC(), 0, 0, 1, 1, pixels.hDC(), 0, 0, 1, 1, 0x00EE0086);
  EXPECT_EQ(GetPixel(twips.hDC(), 0, 0), White);
}

TEST_F(DeviceCalls, AFillPaintsWithTheBrushWhatHasExactlyTheColour) {
  pixels.Line({10, 10}, {20, 20}, Red, B);
  SetPixel(pixels.hDC(), 15, 15, 0xFEFFFF);
  pixels.FillStyle = 0;
  pixels.FillColor = Blue;
  pixels.ForeColor = Green;
  ExtFloodFill(pixels.hDC(), 12, 12, White, FloodFillSurface);
  EXPECT_EQ(GetPixel(pixels.hDC(), 11, 11), Blue);
  EXPECT_EQ(GetPixel(pixels.hDC(), 19, 19), Blue);
  EXPECT_EQ(GetPixel(pixels.hDC(), 15, 15), 0xFEFFFF) << "a shade beside white is another colour";
  EXPECT_EQ(GetPixel(pixels.hDC(), 20, 20), Red);
  EXPECT_EQ(GetPixel(pixels.hDC(), 9, 9), White);
}

TEST_F(DeviceCalls, AFillDoesNotSlipThroughADiagonal) {
  // A closed diamond of single pixels that touch by their corners only.
  for (int i = 0; i < 5; ++i)
    for (const auto& [x, y] : {std::pair{20 + i, 15 + i},
                               {20 - i, 15 + i},
                               {20 + i, 25 - i},
                               {20 - i, 25 - i},
                               {25, 20},
                               {15, 20}})
      SetPixel(pixels.hDC(), x, y, Red);
  pixels.FillStyle = 0;
  pixels.FillColor = Blue;
  ExtFloodFill(pixels.hDC(), 20, 20, White, FloodFillSurface);
  EXPECT_EQ(GetPixel(pixels.hDC(), 20, 17), Blue);
  EXPECT_EQ(GetPixel(pixels.hDC(), 0, 0), White);
}

TEST_F(DeviceCalls, AFillFromAnotherColourOrOutsideOrWithoutABrushPaintsNothing) {
  pixels.FillColor = Blue;
  ExtFloodFill(pixels.hDC(), 5, 5, White, FloodFillSurface);  // the brush is transparent
  EXPECT_EQ(GetPixel(pixels.hDC(), 5, 5), White);
  pixels.FillStyle = 0;
  ExtFloodFill(pixels.hDC(), 5, 5, Red, FloodFillSurface);
  ExtFloodFill(pixels.hDC(), -1, 5, NoColor, FloodFillSurface);
  ExtFloodFill(pixels.hDC(), 5, 40, White, FloodFillSurface);
  ExtFloodFill(pixels.hDC(), 5, 5, White, 0);
  EXPECT_EQ(GetPixel(pixels.hDC(), 5, 5), White);
}

TEST_F(DeviceCalls, TheScreenShowsThemWhenTheHandlerHasReturned) {
  bench.Show();
  Event<> event;
  event = [&] { SetPixel(pixels.hDC(), 5, 5, Red); };
  event();
  EXPECT_EQ(shown(pixels).pixelColor(5, 5), QColor(255, 0, 0));
}

TEST(Colours, RgbPutsRedLowestAndHoldsEachComponentWithinAByte) {
  EXPECT_EQ(RGB(1, 2, 3), 1 + 256 * 2 + 65536 * 3);
  EXPECT_EQ(RGB(256, 300, 1000), 0xFFFFFF);
  EXPECT_EQ(RGB(-1, -300, 7), 7 * 65536);
}

TEST(Colours, TheClassicTableHasSixteenEntries) {
  EXPECT_EQ(QBColor(0), Black);
  EXPECT_EQ(QBColor(4), RGB(128, 0, 0));
  EXPECT_EQ(QBColor(7), RGB(192, 192, 192));
  EXPECT_EQ(QBColor(9), RGB(0, 0, 255));
  EXPECT_EQ(QBColor(12), RGB(255, 0, 0));
  EXPECT_EQ(QBColor(15), White);
  EXPECT_ERROR(SubscriptOutOfRange, QBColor(16));
  EXPECT_ERROR(SubscriptOutOfRange, QBColor(-1));
}

TEST(Colours, SystemColoursAreResolvedByTheClassicTable) {
  EXPECT_EQ(resolved(static_cast<Color>(0x8000000F)), 0xC0C0C0);
  EXPECT_EQ(resolved(static_cast<Color>(0x80000012)), Black);
  EXPECT_EQ(resolved(static_cast<Color>(0x80000005)), White);
  EXPECT_EQ(resolved(0x123456), 0x123456);
}

TEST(Colours, APixelAndItsColourAreEachOthersMirror) {
  EXPECT_EQ(toPixel(RGB(0x12, 0x34, 0x56)), 0xFF123456u);
  EXPECT_EQ(toColor(0xFF123456u), RGB(0x12, 0x34, 0x56));
}
