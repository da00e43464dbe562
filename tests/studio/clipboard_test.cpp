// Cut, copy and paste: always the whole sheet, always into the upper left corner.
#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>

#include "studio/studio.h"
#include "surface/host.h"
#include "surface/qt/dialogs.h"

using namespace surface;

class ClipboardButtons : public Studio {
 protected:
  void draw() {
    click(studio.cmdRechthoekgevuld);
    drag(sheet, 20, 20, 300, 200);
    drag(sheet, 550, 480, 600, 530);
  }
  static Picture plain(int width, int height, Color color) {
    return Picture(std::make_shared<raster::Bitmap>(width, height, toPixel(color)));
  }
};

TEST_F(ClipboardButtons, HaveTheirTooltips) {
  EXPECT_EQ(studio.cmdKnippen.ToolTipText, "Knippen");
  EXPECT_EQ(studio.cmdCopy.ToolTipText, "Kopiëren");
  EXPECT_EQ(studio.cmdPlakken.ToolTipText, "Plakken");
}

TEST_F(ClipboardButtons, CutTakesTheSheetAndLeavesTheBackground) {
  answerColor(0x00FFFF);
  click(studio.cmdPalet);
  draw();
  const raster::Bitmap drawn = canvas();
  click(studio.cmdKnippen);
  EXPECT_EQ(studio.lblModus.Caption, "de tekening KNIPPEN om ze in een NIEUW blad te plakken");
  ASSERT_FALSE(clipboard.empty());
  EXPECT_TRUE(same(*clipboard.bitmap(), drawn));
  EXPECT_TRUE(shows(sheet, raster::Bitmap(617, 537, toPixel(0x00FFFF))));
}

TEST_F(ClipboardButtons, CutFollowedByPasteRestoresTheSheet) {
  draw();
  const raster::Bitmap drawn = canvas();
  click(studio.cmdKnippen);
  click(studio.cmdPlakken);
  EXPECT_TRUE(shows(sheet, drawn));
}

TEST_F(ClipboardButtons, CopyLeavesTheSheet) {
  draw();
  const raster::Bitmap drawn = canvas();
  clipboard = plain(5, 5, 0x112233);
  click(studio.cmdCopy);
  EXPECT_EQ(studio.lblModus.Caption, "een KOPIE van de tekening maken (om later te plakken)");
  EXPECT_TRUE(shows(sheet, drawn));
  EXPECT_TRUE(same(*clipboard.bitmap(), drawn));
  // What is drawn later is not in the copy.
  drag(sheet, 310, 310, 400, 400);
  EXPECT_TRUE(same(*clipboard.bitmap(), drawn));
}

TEST_F(ClipboardButtons, PasteReplacesTheWholeSheet) {
  draw();
  clipboard = plain(100, 50, 0x0000FF);
  click(studio.cmdPlakken);
  EXPECT_EQ(studio.lblModus.Caption, "de KOPIE of GEKNIPTE tekening in een NIEUW blad plakken");
  raster::Bitmap should(617, 537, toPixel(White));
  oracle::paintWhere({should}, toPixel(0x0000FF), [](int x, int y) { return x < 100 && y < 50; });
  EXPECT_TRUE(shows(sheet, should));
}

TEST_F(ClipboardButtons, ALargerPictureIsCutOffAtTheSheetsEdges) {
  auto large = std::make_shared<raster::Bitmap>(800, 700, toPixel(0x00FF00));
  large->row(0)[0] = toPixel(0x0000FF);
  large->row(536)[616] = toPixel(0xFF0000);
  clipboard = Picture(large);
  click(studio.cmdPlakken);
  raster::Bitmap should(617, 537, toPixel(White));
  raster::blit(should, 0, 0, 617, 537, *large, 0, 0);
  EXPECT_TRUE(shows(sheet, should));
  EXPECT_EQ(sheet.Point({616, 536}), 0xFF0000);
  EXPECT_EQ(sheet.Width.get(), 9255);
  EXPECT_EQ(sheet.Height.get(), 8055);
}

TEST_F(ClipboardButtons, AnEmptyClipboardMakesTheSheetBlank) {
  draw();
  clipboard = {};
  click(studio.cmdPlakken);
  EXPECT_TRUE(shows(sheet, blank()));
  EXPECT_EQ(takeErrorReport(), std::nullopt);
}

TEST_F(ClipboardButtons, ACopyOfASmallSheetOnANewOneHasABackgroundMargin) {
  answerMessage(No);
  answerInput("5");
  answerInput("4");
  click(studio.cmdFormaat);
  click(studio.cmdOpvullen);
  press(sheet, 20, 20);
  release(sheet, 20, 20);
  click(studio.cmdCopy);
  click(studio.cmdNieuw);
  click(studio.cmdPlakken);
  raster::Bitmap should(617, 537, toPixel(White));
  oracle::paintWhere({should}, toPixel(Black), [](int x, int y) { return x < 189 && y < 151; });
  EXPECT_TRUE(shows(sheet, should));
}

TEST_F(ClipboardButtons, LeaveToolColoursSizeAndUndoAlone) {
  draw();
  click(studio.cmdSpuitbus);
  const Color color = pickColor(60);
  const bool undo = studio.cmdUndo.Enabled, redo = studio.cmdRedo.Enabled;
  const Picture back = studio.picUndo.Picture;
  for (CommandButton* button : {&studio.cmdCopy, &studio.cmdKnippen, &studio.cmdPlakken}) {
    click(*button);
    EXPECT_EQ(studio.Shape1.FillColor, color);
    EXPECT_EQ(sheet.ForeColor, color);
    EXPECT_EQ(sheet.MouseIcon, "curBrush");
    EXPECT_EQ(sheet.Width.get(), 9255);
    EXPECT_EQ(studio.cmdUndo.Enabled.get(), undo);
    EXPECT_EQ(studio.cmdRedo.Enabled.get(), redo);
    EXPECT_EQ(studio.picUndo.Picture.get(), back);
  }
}

TEST_F(ClipboardButtons, AfterACutUndoStillBringsBackItsSnapshot) {
  draw();
  press(sheet, 400, 300);
  const raster::Bitmap atPress = canvas();
  release(sheet, 400, 300);
  click(studio.cmdKnippen);
  ASSERT_TRUE(shows(sheet, blank()));
  click(studio.cmdUndo);
  EXPECT_TRUE(shows(sheet, atPress));
}

// The same through the system's own clipboard.
class SystemClipboard : public ClipboardButtons {
 protected:
  SystemClipboard() {
    host().setClipboard = surface::qt::setClipboard;
    host().getClipboard = surface::qt::getClipboard;
  }
  ~SystemClipboard() override { system->clear(); }
  QClipboard* system = QGuiApplication::clipboard();
};

TEST_F(SystemClipboard, OtherProgramsGetTheSheetWithoutTransparency) {
  draw();
  click(studio.cmdCopy);
  const QImage copy = system->image();
  ASSERT_EQ(copy.size(), QSize(617, 537));
  EXPECT_FALSE(copy.hasAlphaChannel());
  EXPECT_EQ(copy.pixel(100, 100), toPixel(Black));
  EXPECT_EQ(copy.pixel(10, 10), toPixel(White));
  // A later stroke does not reach what was copied.
  click(studio.cmdClear);
  EXPECT_EQ(system->image().pixel(100, 100), toPixel(Black));
}

TEST_F(SystemClipboard, ACopyHoldsTheSheetsOwnMemoryAlsoWhenTheSheetIsGone) {
  {
    const Picture big = plain(300, 200, 0x336699);
    host().setClipboard(big);
    const QImage copy = qvariant_cast<QImage>(system->mimeData()->imageData());
    EXPECT_EQ(static_cast<const void*>(copy.constBits()), big.bitmap()->row(0)) << "copied";
  }
  EXPECT_EQ(system->image().pixel(299, 199), toPixel(0x336699));
}

TEST_F(SystemClipboard, CutFollowedByPasteRestoresTheSheet) {
  draw();
  const raster::Bitmap drawn = canvas();
  click(studio.cmdKnippen);
  ASSERT_TRUE(shows(sheet, blank()));
  click(studio.cmdPlakken);
  EXPECT_TRUE(shows(sheet, drawn));
}

TEST_F(SystemClipboard, PicturesOfOtherProgramsArePasted) {
  QImage foreign(60, 40, QImage::Format_ARGB32);
  foreign.fill(qRgba(255, 128, 0, 255));
  foreign.setPixel(5, 6, qRgba(0, 0, 0, 0));
  system->setImage(foreign);
  click(studio.cmdPlakken);
  EXPECT_EQ(sheet.Point({0, 0}), RGB(255, 128, 0));
  EXPECT_EQ(sheet.Point({59, 39}), RGB(255, 128, 0));
  EXPECT_EQ(sheet.Point({60, 39}), White);
  EXPECT_EQ(sheet.Point({5, 6}), White) << "what is transparent is white on a sheet";
}

TEST_F(SystemClipboard, AnythingButAPictureMakesTheSheetBlank) {
  draw();
  system->setText("geen plaatje");
  click(studio.cmdPlakken);
  EXPECT_TRUE(shows(sheet, blank()));
}

TEST_F(SystemClipboard, APictureThatCannotBeTakenLeavesTheSheetAsItIs) {
  draw();
  const raster::Bitmap drawn = canvas();
  auto* broken = new QMimeData;
  for (const char* kind : {"image/png", "application/x-qt-image"})
    broken->setData(kind, "dit is geen plaatje");
  system->setMimeData(broken);
  click(studio.cmdPlakken);
  EXPECT_TRUE(shows(sheet, drawn));
}

TEST_F(SystemClipboard, ASheetOfNoSizeLeavesNothing) {
  sheet.Width = 0;
  system->setText("van daarvoor");
  click(studio.cmdKnippen);
  click(studio.cmdPlakken);
  EXPECT_TRUE(sheet.Picture->empty());
  EXPECT_EQ(takeErrorReport(), std::nullopt);
}
