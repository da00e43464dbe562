// A monkey at the fantasy screens: buttons, sliders, bars, time, windows of any size and close
// boxes at random. Nothing it does may end the program, leave a timer without its form, or leave
// the child without a window.
#include <random>

#include "fantasy/frmFantasie.h"
#include "shell/frmStart.h"
#include "support/script.h"
#include "surface/timer.h"

using namespace surface;

class FantasyMonkey : public script::Stage, public testing::WithParamInterface<unsigned> {
 protected:
  FantasyMonkey() : random_(GetParam()) {
    seedRandom(GetParam());
    the<frmStart>().Show();
    FormRegistry::instance().noWindowLeft = ToonMenuOfStop;
  }

  void act() {
    Form& form = *oneOf(shownForms());
    const int pick = upTo(100);
    if (dynamic_cast<frmStart*>(&form))
      click(the<frmStart>().cmdFantasie);
    else if (pick < 60)
      press(form);
    else if (pick < 90)
      advance(upTo(30) == 0 ? upTo(30'000) : upTo(300));
    else if (pick < 97)
      dispatch([&] { form.windowResized(upTo(1200) + 1, upTo(900) + 1); });
    else
      closeBox(form);
  }

  static std::vector<Form*> shownForms() {
    std::vector<Form*> found;
    for (const auto& form : FormRegistry::instance().forms())
      if (form->shown()) found.push_back(form.get());
    return found;
  }

 private:
  int upTo(int n) { return static_cast<int>(random_() % static_cast<unsigned>(n)); }
  template <class T>
  T oneOf(const std::vector<T>& list) {
    return list[static_cast<std::size_t>(upTo(static_cast<int>(list.size())))];
  }

  void press(Form& form) {
    std::vector<Control*> found;
    for (Control* control : form.controls())
      if (control->Visible && control->Enabled) found.push_back(control);
    if (found.empty()) return;
    Control* control = oneOf(found);
    dispatch([&] {
      if (auto* button = dynamic_cast<CommandButton*>(control)) button->Click();
      if (auto* slider = dynamic_cast<Slider*>(control))
        slider->scrolled(slider->Min + upTo(slider->Max - slider->Min + 1));
      if (auto* bar = dynamic_cast<HScrollBar*>(control)) bar->Value = upTo(bar->Max + 1);
    });
  }

  std::mt19937 random_;
};

TEST_P(FantasyMonkey, NeitherEndsTheProgramNorLeavesTheChildAlone) {
  for (int event = 0; event < 1500; ++event) {
    act();
    ASSERT_EQ(takeErrorReport(), std::nullopt) << "event " << event;
    ASSERT_FALSE(ended()) << "event " << event;
    ASSERT_FALSE(shownForms().empty()) << "event " << event;
    for (Form* form : shownForms())
      ASSERT_FALSE(the<frmStart>().shown() && dynamic_cast<frmFantasie*>(form)) << event;
    const bool alone = FormRegistry::instance().forms().size() == 1;
    ASSERT_FALSE(alone && nextTimerDue().has_value()) << "event " << event;
  }
}

INSTANTIATE_TEST_SUITE_P(Seeded, FantasyMonkey, testing::Values(1u, 2u, 3u));
