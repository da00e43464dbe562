// A whole picture: a seeded script with a real pointer through every tool, style, pattern and stamp
// of the studio, saved as a bitmap and held against golden/picture.png. After a change that is
// meant to draw otherwise, look at the new picture and renew the golden one:
//   KRASPRET_RENEW=1 ./test -R WholePicture
#include <QCoreApplication>
#include <QImage>
#include <cstdlib>
#include <fstream>
#include <iterator>

#include "studio/studio.h"
#include "support/tree_folder.h"

using namespace surface;

namespace {

constexpr const char* Golden = KRASPRET_TREE "/tests/studio/golden/picture.png";

std::string bytesOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace

class WholePicture : public script::Stage {
 protected:
  /// Plays the script in a studio of its own and gives the bytes of the saved file.
  std::string play(const std::string& name);

 private:
  struct At {
    int x, y;
  };

  PictureBox& sheet() { return studio_->picBlad; }
  void pick(int hue, int brightness = 37);
  void spot(At at) { stroke({at}); }
  void stroke(const std::vector<At>& way);
  void shape(CommandButton& tool, int hue, At from, At to);
  void radius(int pixels) { slide(studio_->Slider2, pixels); }
  void slide(Slider& slider, int value);
  void style(int row, int thickness);

  void land();
  void house();
  void sky();
  void fence();
  void lines();
  void stamps();
  void erase();
  void backAndForth();
  void finish(const std::string& path);

  frmTekenen2* studio_ = nullptr;
};

void WholePicture::pick(int hue, int brightness) {
  press(studio_->picPalet, hue + 2, brightness + 2);
  move(studio_->picPalet, hue, brightness, 1);
  release(studio_->picPalet, hue, brightness);
}

void WholePicture::stroke(const std::vector<At>& way) {
  press(sheet(), way.front().x, way.front().y);
  for (std::size_t i = 1; i < way.size(); ++i) move(sheet(), way[i].x, way[i].y, 1);
  release(sheet(), way.back().x, way.back().y);
}

void WholePicture::shape(CommandButton& tool, int hue, At from, At to) {
  click(tool);
  if (hue >= 0) pick(hue);
  stroke({from, {(from.x + to.x) / 2, (from.y + to.y) / 2}, to});
}

void WholePicture::slide(Slider& slider, int value) {
  if (auto* knob = qobject_cast<QSlider*>(script::widgetOf(slider))) knob->setValue(value);
}

void WholePicture::style(int row, int thickness) {
  click(studio_->cmdLijnen);
  studio_->cboStijl.picked(row);
  if (thickness > 1) slide(studio_->Slider1, thickness);
}

void WholePicture::land() {
  answerColor(RGB(200, 232, 255));
  click(studio_->cmdPalet);
  shape(studio_->cmdRechthoekgevuld, 42, {1, 400}, {630, 545});  // beyond the edge
}

void WholePicture::house() {
  shape(studio_->cmdRechthoekgevuld, 12, {120, 230}, {320, 430});
  shape(studio_->cmdRechthoek, -1, {120, 230}, {320, 430});
  shape(studio_->cmdLijn, -1, {100, 230}, {220, 130});
  shape(studio_->cmdLijn, -1, {220, 130}, {340, 230});
  shape(studio_->cmdLijn, -1, {340, 230}, {100, 230});
  click(studio_->cmdOpvullen);
  pick(2, 45);
  spot({220, 190});
  shape(studio_->cmdRechthoekgevuld, 70, {150, 260}, {190, 300});
  shape(studio_->cmdRechthoekgevuld, 70, {250, 260}, {290, 300});
  shape(studio_->cmdRechthoekgevuld, 18, {205, 350}, {240, 430});
  // The colour of the door for the sills.
  click(studio_->cmdDrop);
  spot({220, 400});
  click(studio_->cmdArt);  // takes the pen along; a press alone draws nothing
  spot({220, 400});
  click(studio_->cmdCirkelGevuld);
  spot({232, 392});
}

void WholePicture::sky() {
  click(studio_->cmdCirkelGevuld);
  radius(45);
  pick(20);
  spot({520, 85});
  click(studio_->cmdCirkel);
  radius(60);
  pick(16);
  spot({520, 85});
  shape(studio_->cmdEllipsGevuld, 65, {90, 70}, {150, 95});
  shape(studio_->cmdEllips, 75, {90, 70}, {165, 105});
  click(studio_->cmdSpuitbus);
  pick(60, 10);
  stroke({{300, 120}, {306, 104}, {315, 90}, {322, 78}, {336, 66}, {350, 60}, {366, 52}});
  click(studio_->cmdArt);
  stroke({{350, 300}, {400, 200}, {470, 180}, {560, 210}, {600, 330}});
  stroke({{360, 330}, {420, 260}, {480, 250}, {560, 300}});
}

void WholePicture::fence() {
  for (int i = 0; i < 7; ++i) {
    const int x = 340 + 38 * i;
    shape(studio_->cmdRechthoek, -1, {x, 350}, {x + 30, 420});
    click(studio_->cmdVulling);
    click(studio_->Option5(i));
    pick(15 * i);
    move(sheet(), x + 10, 380);
    spot({x + 12, 385});
  }
}

void WholePicture::lines() {
  const auto wave = [](int top) {
    std::vector<At> way;
    for (int x = 20; x <= 300; x += 20) way.push_back({x, top + (x / 20 % 2) * 12});
    return way;
  };
  click(studio_->cmdTekenen);
  pick(100);
  stroke(wave(440));
  style(0, 6);
  pick(110);
  stroke(wave(460));
  style(1, 1);
  stroke(wave(480));
  style(2, 1);
  move(sheet(), 20, 490);
  stroke(wave(490));
  style(3, 1);
  stroke({{330, 450}, {350, 455}, {370, 450}, {390, 455}, {410, 450}});
  style(4, 1);
  stroke({{440, 450}, {460, 455}, {480, 450}, {500, 455}, {520, 450}});
}

void WholePicture::stamps() {
  PictureBox* const boxes[] = {
      &studio_->picBorstel1,  &studio_->picBorstel3,  &studio_->picBorstel4,
      &studio_->picBorstel5,  &studio_->picBorstel6,  &studio_->picBorstel7,
      &studio_->picBorstel8,  &studio_->picBorstel9,  &studio_->picBorstel10,
      &studio_->picBorstel11, &studio_->picBorstel12, &studio_->picBorstel13};
  style(0, 3);  // match-sticks are as thick as this
  click(studio_->cmdBorstels);
  int x = 20;
  for (PictureBox* box : boxes) {
    click(*box);
    pick(x * 120 / 620);
    stroke({{x, 515}, {x + 14, 518}, {x + 28, 515}});
    x += 48;
  }
  studio_->picBorstel2.Click();  // has no picture to click on
  spot({600, 515});
}

void WholePicture::erase() {
  click(studio_->cmdGom);
  stroke({{560, 470}, {600, 470}, {600, 490}});
  click(studio_->cmdGommen);
  answerColor(RGB(255, 200, 0));
  click(studio_->picGommen);
  slide(studio_->Slider3, 5);
  stroke({{560, 430}, {590, 450}, {605, 430}});
}

void WholePicture::backAndForth() {
  shape(studio_->cmdLijn, 0, {10, 10}, {600, 530});
  click(studio_->cmdUndo);
  click(studio_->cmdRedo);
  click(studio_->cmdUndo);
  click(studio_->cmdCopy);
  click(studio_->cmdKnippen);
  click(studio_->cmdPlakken);
}

void WholePicture::finish(const std::string& path) {
  answerMessage(No);
  answerInput("16");
  answerInput("14");
  click(studio_->cmdFormaat);
  answerFile(path);
  click(studio_->cmdSaveAs);
  click(studio_->cmdEinde);
}

std::string WholePicture::play(const std::string& name) {
  seedRandom(20);
  studio_ = &the<frmTekenen2>();
  studio_->Show();
  land();
  house();
  sky();
  fence();
  lines();
  stamps();
  erase();
  backAndForth();
  finish(folder() + "/" + name);
  return bytesOf(folder() + "/" + name);
}

TEST_F(WholePicture, IsTheSameEachTimeItIsDrawn) {
  const std::string once = play("een.bmp");
  // 16 by 14 centimetres, three bytes a pixel, rows padded to four.
  EXPECT_EQ(once.size(), 54u + (605u * 3 + 1) * 529u);
  EXPECT_TRUE(once == play("twee.bmp"));
}

TEST_F(WholePicture, IsTheGoldenOne) {
  play("plaat.bmp");
  const QImage drawn =
      QImage(QString::fromStdString(folder() + "/plaat.bmp")).convertToFormat(QImage::Format_RGB32);
  ASSERT_FALSE(drawn.isNull());
  if (std::getenv("KRASPRET_RENEW")) {
    ASSERT_TRUE(drawn.save(Golden));
    return;
  }
  const QImage golden = QImage(Golden).convertToFormat(QImage::Format_RGB32);
  ASSERT_EQ(drawn.size(), golden.size());
  int differing = 0;
  QPoint first;
  for (int y = drawn.height() - 1; y >= 0; --y)
    for (int x = drawn.width() - 1; x >= 0; --x)
      if (drawn.pixel(x, y) != golden.pixel(x, y)) {
        ++differing;
        first = {x, y};
      }
  const QString kept = QCoreApplication::applicationDirPath() + "/picture-now.png";
  if (differing) drawn.save(kept);
  EXPECT_EQ(differing, 0) << "the first at " << first.x() << ", " << first.y()
                          << "; what was drawn is in " << kept.toStdString();
}
