// A monkey that roams through all screens: it clicks, drags, slides, types and closes whatever it
// finds on the window before it. Nothing may end the program, and some window always stays.
#include <QApplication>
#include <QSlider>
#include <QTest>
#include <filesystem>
#include <random>

#include "shell/frmStart.h"
#include "small/small_studio.h"
#include "support/script.h"
#include "support/tree_folder.h"
#include "surface/host.h"

using namespace surface;

namespace {

#ifdef __SANITIZE_ADDRESS__
constexpr int Events = 500;
#else
constexpr int Events = 1500;
#endif

}  // namespace

class RoamingMonkey : public script::Stage, public testing::WithParamInterface<unsigned> {
 protected:
  RoamingMonkey() : random_(GetParam()) {
    seedRandom(GetParam());
    // The pages are the tree's; what the program writes stays with the test.
    std::filesystem::create_directory_symlink(std::string(KRASPRET_TREE) + "/Beeld",
                                              folder() + "/Beeld");
    app().Path = folder();
    FormRegistry::instance().noWindowLeft = ToonMenuOfStop;
    answerAtRandom();
    the<frmStart>().Show();
  }

  void act();
  void expectWhole();

 private:
  int upTo(int n) { return static_cast<int>(random_() % static_cast<unsigned>(n)); }
  bool oneIn(int n) { return upTo(n) == 0; }

  void answerAtRandom();
  /// The window that came to the front last.
  Form& front();
  void actOn(Control& control);

  std::mt19937 random_;
  std::string last_;
};

void RoamingMonkey::answerAtRandom() {
  Host& seams = host();
  seams.msgBox = [this](const std::string&, int buttons, const std::string&) {
    return buttons & YesNo ? (oneIn(2) ? Yes : No) : Ok;
  };
  seams.inputBox = [](const std::string&, const std::string&, const std::string&) {
    return std::optional<std::string>();
  };
  seams.fileDialog = [this](const FileRequest& request) -> std::optional<std::string> {
    if (oneIn(3)) return std::nullopt;
    return request.save ? folder() + "/a.bmp" : folder() + (oneIn(2) ? "/a.bmp" : "/niets.gif");
  };
  seams.printerDialog = [this] { return oneIn(2); };
  seams.colorDialog = [](Color, int) { return std::optional<Color>(); };
}

Form& RoamingMonkey::front() {
  const auto& forms = FormRegistry::instance().forms();
  for (auto form = forms.rbegin(); form != forms.rend(); ++form)
    if ((*form)->shown()) return **form;
  return the<frmStart>();
}

void RoamingMonkey::act() {
  Form& form = front();
  last_ = form.Caption;
  if (&form != &the<frmStart>() && oneIn(60)) {
    last_ += ", its close box";
    return closeBox(form);
  }
  if (oneIn(20)) return advance(upTo(2000));
  std::vector<Control*> controls;
  for (Control* control : form.controls())
    if (control->Visible && control->Enabled && !control->windowless()) controls.push_back(control);
  if (!controls.empty())
    actOn(*controls[static_cast<std::size_t>(upTo(static_cast<int>(controls.size())))]);
}

void RoamingMonkey::actOn(Control& control) {
  last_ += ", " + control.ToolTipText.get();
  auto* button = dynamic_cast<CommandButton*>(&control);
  if (button) last_ += button->Caption;
  if (button && button->Caption == "Stoppen") return;
  // Screens are left less often than used.
  if (button && (button->Caption == "Einde" || button->Caption == "Sluiten") && !oneIn(4)) return;
  if (auto* slider = dynamic_cast<Slider*>(&control)) {
    if (auto* knob = qobject_cast<QSlider*>(script::widgetOf(*slider)))
      knob->setValue(slider->Min + upTo(slider->Max - slider->Min + 1));
    return;
  }
  if (auto* box = dynamic_cast<PictureBox*>(&control)) {
    const int width = box->pixelPlace().width() + 40, height = box->pixelPlace().height() + 40;
    const int with = oneIn(6) ? 2 : 1;
    for (int strokes = 1 + upTo(4); strokes > 0 && box->Visible; --strokes)
      drag(*box, upTo(width) - 20, upTo(height) - 20, upTo(width) - 20, upTo(height) - 20, with);
    return;
  }
  click(control);
}

void RoamingMonkey::expectWhole() {
  ASSERT_EQ(takeErrorReport(), std::nullopt) << "after " << last_;
  ASSERT_FALSE(ended()) << "after " << last_;
  ASSERT_TRUE(FormRegistry::instance().anyVisible()) << "no window left after " << last_;
  for (const auto& form : FormRegistry::instance().forms()) {
    const auto* studio = dynamic_cast<SmallStudio*>(form.get());
    if (!studio || !studio->shown()) continue;
    const PictureBox& sheet = studio->picBlad;
    ASSERT_TRUE(sheet.DrawWidth >= 1 && sheet.DrawWidth <= 20) << last_;
    ASSERT_TRUE(sheet.DrawStyle == 0 || sheet.DrawStyle == 5) << last_;
    ASSERT_EQ(sheet.FillStyle, 1) << last_;
    ASSERT_EQ(sheet.ForeColor & ~0xFFFFFF, 0) << last_;
    ASSERT_EQ(studio->Shape1.FillColor & ~0xFFFFFF, 0) << last_;
    ASSERT_EQ(sheet.Image().width(), sheet.pixelPlace().width()) << last_;
  }
}

TEST_P(RoamingMonkey, AlwaysHasAWindowBeforeIt) {
  for (int event = 0; event < Events; ++event) {
    SCOPED_TRACE("event " + std::to_string(event));
    act();
    expectWhole();
    if (HasFatalFailure()) return;
  }
}
INSTANTIATE_TEST_SUITE_P(Seeds, RoamingMonkey, testing::Values(1u, 2u, 3u));
