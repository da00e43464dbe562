// A long walk at random through everything that touches the sheet, beside a plain account of what
// the sheet, the picture under it and the two snapshots should hold.
#include <algorithm>
#include <array>
#include <memory>
#include <optional>

#include "studio/studio.h"
#include "surface/app.h"

using namespace surface;

namespace {

#ifdef __SANITIZE_ADDRESS__
constexpr int Steps = 60;
#else
constexpr int Steps = 250;
#endif

// The snapshots' stores never grow with the sheet.
constexpr int StoreWidth = 617, StoreHeight = 537;

}  // namespace

class UndoWalk : public Studio, public testing::WithParamInterface<unsigned> {
 protected:
  UndoWalk() { app().Path = folder(); }

  void step();
  void expectAsKept() {
    EXPECT_TRUE(shows(sheet, now));
    EXPECT_EQ(studio.cmdUndo.Enabled.get(), undoOn);
    EXPECT_EQ(studio.cmdRedo.Enabled.get(), redoOn);
    EXPECT_EQ(sheet.BackColor.get(), back);
  }

  const char* did = "";

 private:
  using Stored = std::optional<raster::Bitmap>;
  struct Action {
    int weight;
    const char* name;
    void (UndoWalk::*act)();
  };
  static const std::array<Action, 16> Actions;

  raster::Bitmap laid(const Stored& picture, int width, int height, Color color) const {
    raster::Bitmap paper(width, height, toPixel(color));
    if (!picture) return paper;
    const int columns = std::min(width, picture->width());
    for (int y = 0; y < std::min(height, picture->height()); ++y)
      std::copy_n(picture->row(y), columns, paper.row(y));
    return paper;
  }
  void show(const Stored& picture) {
    under = picture;
    now = laid(under, now.width(), now.height(), back);
  }
  Stored fromStore(const Stored& snapshot) const {
    return laid(snapshot, StoreWidth, StoreHeight, White);
  }
  void startOver() {
    undoOn = true;
    redoOn = false;
    show({});
    before = now;
  }
  Picture foreign() {
    const int width = dice.number(1, 900), height = dice.number(1, 800);
    auto picture = std::make_shared<raster::Bitmap>(width, height, dice.color());
    picture->row(height / 2)[width / 2] = dice.color();
    return Picture(picture);
  }
  int column() { return dice.number(20, std::min(now.width(), 600) - 20); }
  int row() { return dice.number(20, std::min(now.height(), 530) - 20); }

  void draw();
  void chooseTool();
  void pickFromPalette() { pickColor(dice.number(0, 119)); }
  void undo();
  void redo();
  void wipe();
  void begin();
  void resize();
  void recolour();
  void cut();
  void copy();
  void paste();
  void open();
  void erase();
  void mirror();
  void useEffect();

  pictures::Dice dice{GetParam()};
  raster::Bitmap now = blank();
  Stored under, before = blank(), after, copied;
  bool undoOn = true, redoOn = false;
  Color back = White;
};

const std::array<UndoWalk::Action, 16> UndoWalk::Actions = {{
    {24, "draw", &UndoWalk::draw},
    {10, "choose a tool", &UndoWalk::chooseTool},
    {4, "pick a colour", &UndoWalk::pickFromPalette},
    {14, "undo", &UndoWalk::undo},
    {12, "redo", &UndoWalk::redo},
    {2, "wipe", &UndoWalk::wipe},
    {2, "begin a new sheet", &UndoWalk::begin},
    {4, "resize", &UndoWalk::resize},
    {4, "recolour the background", &UndoWalk::recolour},
    {3, "cut", &UndoWalk::cut},
    {3, "copy", &UndoWalk::copy},
    {4, "paste", &UndoWalk::paste},
    {3, "open", &UndoWalk::open},
    {3, "take the eraser", &UndoWalk::erase},
    {4, "mirror", &UndoWalk::mirror},
    {4, "use an effect", &UndoWalk::useEffect},
}};

void UndoWalk::step() {
  int sum = 0;
  for (const Action& action : Actions) sum += action.weight;
  int at = dice.number(0, sum - 1);
  for (const Action& action : Actions) {
    if ((at -= action.weight) >= 0) continue;
    did = action.name;
    (this->*action.act)();
    return;
  }
}

// What each tool paints is held elsewhere: here it counts what the snapshots took at the press.
void UndoWalk::draw() {
  const int x = column(), y = row();
  const int button = dice.chance(80) ? 1 : 2;
  press(sheet, x, y, button);
  before = after = canvas();
  move(sheet, column(), row(), button);
  release(sheet, column(), row(), button);
  now = canvas();
}

void UndoWalk::chooseTool() {
  const std::pair<CommandButton*, bool> tools[] = {
      {&studio.cmdTekenen, true},   {&studio.cmdLijn, true},
      {&studio.cmdRechthoek, true}, {&studio.cmdRechthoekgevuld, true},
      {&studio.cmdCirkel, true},    {&studio.cmdCirkelGevuld, true},
      {&studio.cmdEllips, true},    {&studio.cmdEllipsGevuld, true},
      {&studio.cmdSpuitbus, true},  {&studio.cmdArt, true},
      {&studio.cmdOpvullen, false}, {&studio.cmdDrop, false},
  };
  const auto& [button, offersUndo] = tools[dice.number(0, 11)];
  click(*button);
  undoOn = offersUndo;
}

void UndoWalk::undo() {
  click(studio.cmdUndo);
  if (!undoOn) return;
  after = now;
  show(fromStore(before));
  undoOn = false;
  redoOn = true;
}

void UndoWalk::redo() {
  click(studio.cmdRedo);
  if (!redoOn) return;
  show(fromStore(after));
  undoOn = true;
  redoOn = false;
}

void UndoWalk::wipe() {
  click(studio.cmdClear);
  startOver();
}

void UndoWalk::begin() {
  click(studio.cmdNieuw);
  back = White;
  now = raster::Bitmap(StoreWidth, StoreHeight, toPixel(White));
  startOver();
}

void UndoWalk::resize() {
  const int width = dice.number(4, 21), height = dice.number(4, 18);
  answerMessage(No);
  answerInput(std::to_string(width));
  answerInput(std::to_string(height));
  click(studio.cmdFormaat);
  const auto pixels = [](int centimetres) {
    return static_cast<int>(roundEven(centimetres * 96 / 2.54));
  };
  now = laid(now, pixels(width), pixels(height), back);
}

void UndoWalk::recolour() {
  if (dice.chance(30)) {
    cancelColor();
    click(studio.cmdPalet);
    return;
  }
  back = toColor(dice.color());
  answerColor(back);
  click(studio.cmdPalet);
  show(under);
}

void UndoWalk::cut() {
  click(studio.cmdKnippen);
  copied = now;
  show({});
}

void UndoWalk::copy() {
  click(studio.cmdCopy);
  copied = now;
}

void UndoWalk::paste() {
  if (dice.chance(40)) {
    clipboard = dice.chance(20) ? Picture() : foreign();
    copied = clipboard.empty() ? Stored() : Stored(*clipboard.bitmap());
  }
  click(studio.cmdPlakken);
  show(copied);
}

void UndoWalk::open() {
  const std::string path = folder() + "/plaatje.bmp";
  const Picture picture = foreign();
  SavePicture(picture, path);
  answerMessage(No);
  undoOn = true;
  if (dice.chance(30)) {
    cancelFile();
    click(studio.cmdOpenbestand);
    return;
  }
  answerFile(path);
  click(studio.cmdOpenbestand);
  show(*picture.bitmap());
}

void UndoWalk::erase() {
  click(dice.chance(50) ? studio.cmdGom : studio.cmdGommen);
  undoOn = true;
}

void UndoWalk::mirror() {
  click(studio.cmdSpiegelH);
  for (int y = 0; y < now.height(); ++y) std::reverse(now.row(y), now.row(y) + now.width());
  under = now;
}

// One becomes the picture under the drawing, the other changes the drawing alone.
void UndoWalk::useEffect() {
  const bool inverts = dice.chance(50);
  click(studio.cmdEffecten);
  click(inverts ? studio.cmdOmkeren : studio.cmdVervagen);
  answerMessage(Ok);
  advance(6000);
  now = canvas();
  if (inverts) under = now;
  undoOn = false;
}

TEST_P(UndoWalk, EveryStepLeavesTheSheetAndTheButtonsAsTheTwoSnapshotsSay) {
  std::string path;
  for (int i = 0; i < Steps && !HasFailure(); ++i) {
    step();
    path += path.empty() ? did : std::string(", ") + did;
    SCOPED_TRACE(path);
    expectAsKept();
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, UndoWalk, testing::Values(1u, 2u, 3u, 4u));
