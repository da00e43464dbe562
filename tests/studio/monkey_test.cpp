// A monkey at the large studio: thousands of presses, drags, clicks, keys and dialog answers at
// random. Nothing it does may end the program, and after every event the studio must be whole.
#include <QSlider>
#include <QTest>
#include <array>
#include <filesystem>
#include <fstream>
#include <random>

#include "effects/frmRoteren.h"
#include "effects/frmVervangKleur.h"
#include "effects/frmZoom.h"
#include "info/frmHelp2.h"
#include "shell/frmStart.h"
#include "studio/frmLineaalH.h"
#include "studio/frmLineaalV.h"
#include "studio/frmTekenen2.h"
#include "support/script.h"
#include "surface/app.h"
#include "surface/host.h"
#include "text/frmTekst.h"

using namespace surface;

namespace {

#ifdef __SANITIZE_ADDRESS__
constexpr int Events = 2000;
#else
constexpr int Events = 10000;
#endif

// What a tool's message promises of the pointer and of undo.
struct Promise {
  const char* message;
  int pointer;
  const char* icon;  ///< where the pointer is the tool's own
  bool undo;
};

constexpr Promise Promises[] = {
    {"VRIJE HAND : willekeurige lijnen tekenen", PointerCustom, "curPen", true},
    {"je bent bezig met LIJNEN TREKKEN", PointerCustom, "curPen", true},
    {"je tekent nu een LEGE RECHTHOEK", PointerCross, "", true},
    {"je tekent nu een GEVULDE RECHTHOEK", PointerCross, "", true},
    {"LEGE cirkels maken : stel eerst de diameter in", PointerCross, "", true},
    {"je kunt nu vlakken in je tekening OPVULLEN", PointerCustom, "curVullen", false},
    {"een kleur vanuit de afbeelding zelf kiezen", PointerCross, "", false},
    {"klik op de plaats WAAR je de tekst op het blad wil", PointerText, "", true},
    {"figuurtjes tekenen met het SPUITBUSJE", PointerCustom, "curBrush", true},
    {"KUNSTLIJNEN maken - willekeurige kleuren - lijndikte kan aangepast", PointerCustom,
     "curBrush", true},
    {"GEVULDE cirkels maken : stel eerst de diameter in", PointerCross, "", true},
    {"je tekent nu een     LEGE ELLIPS     (=ovaal, eivorm)", PointerCross, "", true},
    {"je tekent nu een GEVULDE ELLIPS (=ovaal, eivorm)", PointerCross, "", true},
    {"kies een lijn om vlakken in je tekening mee op te vullen", PointerCustom, "curDrop", false},
    {"een punt of lijn tekenen met figuurtjes", PointerCustom, "curPen", true}};

}  // namespace

class Monkey : public script::Stage, public testing::WithParamInterface<unsigned> {
 protected:
  Monkey() : random_(GetParam()) {
    seedRandom(GetParam());
    std::filesystem::create_directories(folder() + "/map");
    std::ofstream(folder() + "/tekst.bmp") << "dit is geen plaatje";
    std::ofstream(folder() + "/leeg.bmp");
    app().Path = folder();
    answerAtRandom();
    the<frmStart>().Show();
    click(the<frmStart>().cmdTekenen2);
  }

  void actAtRandom();
  void expectWhole();

 private:
  struct Action {
    int weight;
    const char* name;
    void (Monkey::*act)();
  };
  static const std::array<Action, 14> Actions;

  // From 0 to below n; the same on every machine.
  int upTo(int n) { return static_cast<int>(random_() % static_cast<unsigned>(n)); }
  bool oneIn(int n) { return upTo(n) == 0; }
  template <class T, std::size_t N>
  const T& oneOf(const T (&list)[N]) {
    return list[upTo(static_cast<int>(N))];
  }
  int button() { return oneOf({1, 1, 1, 1, 2, 4}); }
  // On the sheet or some way beyond it.
  int column() { return upTo(680) - 60; }
  int row() { return upTo(640) - 60; }

  frmTekenen2& studio() { return the<frmTekenen2>(); }
  PictureBox& sheet() { return studio().picBlad; }

  void answerAtRandom();
  static void collect(const Container& container, std::vector<Control*>& found);
  std::vector<Control*> reachable();

  void dragOnSheet();
  void dragWithTwoButtons();
  void moveOnSheet();
  void clickAnything();
  void clickPanelContents();
  void moveSlider();
  void pickRow();
  void useEffectDialog();
  bool endsTheProgram(const Control& control);
  void dragOnPalette();
  void useATextForm();
  void letTimePass();
  void pressBareForm();
  void pressKeys();
  void closeAWindow();

  std::mt19937 random_;
  const char* last_ = "nothing";
};

const std::array<Monkey::Action, 14> Monkey::Actions = {
    {{30, "a drag on the sheet", &Monkey::dragOnSheet},
     {3, "a drag with two buttons", &Monkey::dragWithTwoButtons},
     {8, "moves on the sheet", &Monkey::moveOnSheet},
     {20, "a click on any control", &Monkey::clickAnything},
     {14, "a click within a panel", &Monkey::clickPanelContents},
     {6, "a slider", &Monkey::moveSlider},
     {4, "a row of the list", &Monkey::pickRow},
     {8, "a dialog of the effects", &Monkey::useEffectDialog},
     {8, "a drag on the palette", &Monkey::dragOnPalette},
     {4, "a text form", &Monkey::useATextForm},
     {2, "time", &Monkey::letTimePass},
     {2, "a click on the bare form", &Monkey::pressBareForm},
     {2, "keys", &Monkey::pressKeys},
     {1, "a close box", &Monkey::closeAWindow}}};

void Monkey::actAtRandom() {
  int total = 0;
  for (const Action& action : Actions) total += action.weight;
  int pick = upTo(total);
  for (const Action& action : Actions) {
    pick -= action.weight;
    if (pick >= 0) continue;
    last_ = action.name;
    (this->*action.act)();
    return;
  }
}

void Monkey::answerAtRandom() {
  Host& seams = host();
  seams.msgBox = [this](const std::string&, int buttons, const std::string&) {
    return buttons & YesNo ? oneOf({Yes, No}) : Ok;
  };
  seams.inputBox = [this](const std::string&, const std::string&,
                          const std::string& initial) -> std::optional<std::string> {
    const std::string answers[] = {initial, initial, "10",  "8",    "5.5",  "0",      "0.01",
                                   "21",    "-3",    "abc", "1e9",  "-1e9", "999999", "32767",
                                   "",      "1,5",   "nan", "1e99", "  7 ", "16.32"};
    // A sheet of metres is allowed; a hundred of them in one run would only cost time.
    if (oneIn(60)) return "90";
    if (oneIn(10)) return std::nullopt;
    return oneOf(answers);
  };
  seams.fileDialog = [this](const FileRequest&) -> std::optional<std::string> {
    const std::string names[] = {"a.bmp",     "a.bmp", "b",         "c.jpg",         "leeg.bmp",
                                 "tekst.bmp", "map",   "map/d.bmp", "nergens/e.bmp", "é ö.bmp"};
    if (oneIn(4)) return std::nullopt;
    if (oneIn(20)) return "";
    if (oneIn(20)) return folder() + "/" + std::string(5000, 'x');
    return folder() + "/" + oneOf(names);
  };
  seams.printerDialog = [this] { return oneIn(2); };
  seams.colorDialog = [this](Color, int) -> std::optional<Color> {
    if (oneIn(4)) return std::nullopt;
    return upTo(0x1000000);
  };
}

void Monkey::collect(const Container& container, std::vector<Control*>& found) {
  for (Control* control : container.controls()) {
    if (!control->Visible || control->windowless()) continue;
    found.push_back(control);
    if (const Container* inner = control->asContainer()) collect(*inner, found);
  }
}

std::vector<Control*> Monkey::reachable() {
  std::vector<Control*> found;
  collect(studio(), found);
  return found;
}

void Monkey::dragOnSheet() {
  const int with = button();
  press(sheet(), column(), row(), with);
  for (int moves = upTo(6); moves > 0; --moves) move(sheet(), column(), row(), with);
  release(sheet(), column(), row(), with);
}

void Monkey::dragWithTwoButtons() {
  const int first = oneOf({1, 2}), second = 3 - first;
  press(sheet(), column(), row(), first);
  move(sheet(), column(), row(), first);
  press(sheet(), column(), row(), second);
  move(sheet(), column(), row(), first + second);
  release(sheet(), column(), row(), oneIn(2) ? first : second);
  release(sheet(), column(), row(), first);
  release(sheet(), column(), row(), second);
}

void Monkey::moveOnSheet() {
  for (int moves = 1 + upTo(4); moves > 0; --moves) move(sheet(), column(), row());
}

void Monkey::clickAnything() {
  const auto controls = reachable();
  Control& control = *controls[static_cast<std::size_t>(upTo(static_cast<int>(controls.size())))];
  // Leaving is one of fifty buttons; half as often is enough.
  if (&control == &studio().cmdEinde && oneIn(2)) return;
  if (endsTheProgram(control)) return;
  if (oneIn(40)) clipboard = {};
  if (oneIn(40))
    clipboard = Picture(std::make_shared<raster::Bitmap>(1 + upTo(900), 1 + upTo(900),
                                                         0xFF000000u | random_() >> 8));
  click(control, button());
}

void Monkey::clickPanelContents() {
  std::vector<Control*> inside;
  for (Control* control : reachable())
    if (dynamic_cast<Frame*>(control)) collect(*control->asContainer(), inside);
  if (inside.empty()) {
    CommandButton* const panels[] = {
        &studio().cmdLijnen,   &studio().cmdGommen,   &studio().cmdLineaal, &studio().cmdVulling,
        &studio().cmdBorstels, &studio().cmdGradient, &studio().cmdEffecten};
    click(*oneOf(panels));
    return;
  }
  Control& control = *inside[static_cast<std::size_t>(upTo(static_cast<int>(inside.size())))];
  if (!endsTheProgram(control)) click(control, oneIn(8) ? 2 : 1);
}

void Monkey::moveSlider() {
  std::vector<Slider*> sliders;
  for (Control* control : reachable())
    if (auto* slider = dynamic_cast<Slider*>(control)) sliders.push_back(slider);
  Slider& slider = *sliders[static_cast<std::size_t>(upTo(static_cast<int>(sliders.size())))];
  auto* knob = qobject_cast<QSlider*>(script::widgetOf(slider));
  if (knob) knob->setValue(slider.Min + upTo(slider.Max - slider.Min + 10));
}

// An effect that looks around its pixels ends the program on a sheet beyond its grid, as it is
// meant to.
bool Monkey::endsTheProgram(const Control& control) {
  const bool beyond = sheet().ScaleWidth() > 1501 || sheet().ScaleHeight() > 1501;
  const Control* const grid[] = {&studio().cmdVervagen, &studio().cmdVerscherpen,
                                 &studio().cmdRelief, &studio().cmdVerspreiden};
  return beyond && std::find(std::begin(grid), std::end(grid), &control) != std::end(grid);
}

void Monkey::useEffectDialog() {
  std::vector<Form*> dialogs;
  for (const auto& form : FormRegistry::instance().forms())
    if (form->shown() &&
        (dynamic_cast<frmRoteren*>(form.get()) || dynamic_cast<frmZoom*>(form.get()) ||
         dynamic_cast<frmVervangKleur*>(form.get())))
      dialogs.push_back(form.get());
  if (dialogs.empty()) {
    CommandButton* const ways[] = {&studio().cmdZoom, &studio().cmdRoteren, &studio().cmdEffecten};
    return click(*oneOf(ways));
  }
  Form& dialog = *dialogs[static_cast<std::size_t>(upTo(static_cast<int>(dialogs.size())))];
  if (oneIn(12)) return closeBox(dialog);
  std::vector<Control*> controls;
  collect(dialog, controls);
  Control& control = *controls[static_cast<std::size_t>(upTo(static_cast<int>(controls.size())))];
  if (auto* slider = dynamic_cast<Slider*>(&control))
    qobject_cast<QSlider*>(script::widgetOf(*slider))->setValue(1 + upTo(12));
  else if (auto* list = dynamic_cast<ComboBox*>(&control))
    list->picked(upTo(list->ListCount()));
  else if (dynamic_cast<PictureBox*>(&control))
    drag(control, upTo(400) - 50, upTo(40), upTo(400) - 50, upTo(40), button());
  else
    click(control, button());
}

void Monkey::pickRow() { studio().cboStijl.picked(upTo(5)); }

void Monkey::dragOnPalette() {
  const int with = button();
  press(studio().picPalet, upTo(121), upTo(73), with);
  for (int moves = upTo(4); moves > 0; --moves)
    move(studio().picPalet, upTo(200) - 15, upTo(150) - 8, with);
  release(studio().picPalet, upTo(200) - 15, upTo(150) - 8, with);
}

void Monkey::useATextForm() {
  std::vector<frmTekst*> open;
  for (const auto& form : FormRegistry::instance().forms())
    if (auto* text = dynamic_cast<frmTekst*>(form.get()); text && text->shown())
      open.push_back(text);
  if (open.empty()) {
    click(studio().cmdTekst);
    press(sheet(), column(), row());
    return release(sheet(), column(), row());
  }
  frmTekst& form = *open[static_cast<std::size_t>(upTo(static_cast<int>(open.size())))];
  const std::string texts[] = {"", "Kat", "Zoë & Jan", "400", "-5", "9999999", "0", "45"};
  std::vector<Control*> inside;
  collect(form, inside);
  for (int tries = upTo(6); tries > 0; --tries) {
    Control* control = inside[static_cast<std::size_t>(upTo(static_cast<int>(inside.size())))];
    if (auto* box = dynamic_cast<TextBox*>(control)) {
      dispatch([&] { box->typed(oneOf(texts)); });
    } else if (auto* list = dynamic_cast<ComboBox*>(control)) {
      dispatch([&] { list->picked(upTo(list->ListCount())); });
    } else if (auto* knob = dynamic_cast<Slider*>(control)) {
      dispatch([&] { knob->scrolled(upTo(12)); });
    } else if (control != &form.cmdInvoegen && control != &form.cmdAnnuleren) {
      click(*control);
    }
  }
  click(oneIn(2) ? form.cmdInvoegen : form.cmdAnnuleren);
}

void Monkey::letTimePass() { advance(upTo(3000)); }

void Monkey::pressBareForm() {
  const int y = 560 + upTo(200);
  const int x = upTo(790), with = button();
  pressOnForm(studio(), x, y, with);
  releaseOnForm(studio(), x, y, with);
}

void Monkey::pressKeys() {
  const Qt::Key keys[] = {Qt::Key_Tab,   Qt::Key_Space, Qt::Key_Return, Qt::Key_Escape,
                          Qt::Key_Right, Qt::Key_Down,  Qt::Key_Home,   Qt::Key_A};
  // A key may leave the studio; the next one would end the program from the menu.
  for (int count = 1 + upTo(5); count > 0 && isLoaded<frmTekenen2>(); --count)
    if (QWindow* window = QGuiApplication::focusWindow()) QTest::keyClick(window, oneOf(keys));
}

void Monkey::closeAWindow() {
  if (isLoaded<frmLineaalH>() && the<frmLineaalH>().shown()) return closeBox(the<frmLineaalH>());
  if (isLoaded<frmLineaalV>() && the<frmLineaalV>().shown()) return closeBox(the<frmLineaalV>());
  if (oneIn(4)) closeBox(studio());
}

void Monkey::expectWhole() {
  ASSERT_EQ(takeErrorReport(), std::nullopt) << "after " << last_;
  ASSERT_FALSE(ended()) << "after " << last_;
  // The help takes the studio's place until it is closed.
  for (const auto& form : FormRegistry::instance().forms())
    if (auto* help = dynamic_cast<frmHelp2*>(form.get()); help && help->shown()) {
      click(help->cmdEinde);
      break;
    }
  if (!isLoaded<frmTekenen2>()) {
    ASSERT_TRUE(the<frmStart>().shown()) << "no window left after " << last_;
    ASSERT_FALSE(isLoaded<frmLineaalH>() || isLoaded<frmLineaalV>());
    for (const auto& form : FormRegistry::instance().forms())
      ASSERT_FALSE(dynamic_cast<frmRoteren*>(form.get())) << "after " << last_;
    ASSERT_FALSE(isLoaded<frmZoom>() || isLoaded<frmVervangKleur>()) << "after " << last_;
    click(the<frmStart>().cmdTekenen2);
  }
  ASSERT_TRUE(studio().shown()) << "after " << last_;

  const Picture image = sheet().Image();
  ASSERT_EQ(image.width(), sheet().pixelPlace().width()) << "after " << last_;
  ASSERT_EQ(image.height(), sheet().pixelPlace().height()) << "after " << last_;
  ASSERT_EQ(script::widgetOf(sheet())->size(), QSize(image.width(), image.height()));
  for (int i = 0; i < 8; ++i) {
    const int x = upTo(700) - 40, y = upTo(620) - 40;
    const Color told = sheet().Point({static_cast<float>(x), static_cast<float>(y)});
    const bool inside = image.bitmap()->contains(x, y);
    ASSERT_EQ(told, inside ? toColor(image.bitmap()->at(x, y)) : NoColor) << x << ", " << y;
    ASSERT_EQ(GetPixel(sheet().hDC(), x, y), told);
  }

  int open = 0;
  for (const Frame* panel :
       {&studio().fraEffecten, &studio().fraVulling, &studio().fraBorstels, &studio().fraGradient,
        &studio().fraLineaal, &studio().fraLijnen, &studio().fraGommen})
    open += panel->Visible ? 1 : 0;
  ASSERT_LE(open, 1) << "after " << last_;

  for (const Promise& promise : Promises) {
    if (!(studio().lblModus.Caption == promise.message)) continue;
    ASSERT_EQ(sheet().MousePointer, promise.pointer) << promise.message << " after " << last_;
    ASSERT_EQ(studio().cmdUndo.Enabled, promise.undo) << promise.message << " after " << last_;
    ASSERT_TRUE(promise.pointer != PointerCustom || sheet().MouseIcon == promise.icon)
        << promise.message << " after " << last_;
  }

  ASSERT_EQ(studio().lblStraal.Caption, toText(studio().Slider2.Value.get()));
  ASSERT_TRUE(sheet().DrawWidth >= 1 && sheet().DrawWidth <= 20) << sheet().DrawWidth;
  ASSERT_TRUE(sheet().DrawStyle == 0 || sheet().DrawStyle == 2) << sheet().DrawStyle;
  ASSERT_EQ(sheet().DrawStyle, studio().cboStijl.ListIndex == 1 ? 2 : 0);
  ASSERT_EQ(sheet().DrawMode, 13);
  ASSERT_EQ(sheet().ForeColor & ~0xFFFFFF, 0);
  ASSERT_EQ(studio().Shape1.FillColor & ~0xFFFFFF, 0);
  int chosen = 0;
  for (const OptionButton* ruler :
       {&studio().Option1, &studio().Option2, &studio().Option3, &studio().Option4})
    chosen += ruler->Value ? 1 : 0;
  ASSERT_EQ(chosen, 1);
}

TEST_P(Monkey, CannotBreakTheStudio) {
  for (int event = 0; event < Events; ++event) {
    SCOPED_TRACE("event " + std::to_string(event));
    actAtRandom();
    expectWhole();
    if (HasFatalFailure()) return;
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, Monkey, testing::Values(1u, 2u, 3u, 4u));
