// Every form of the program: opened, every button fired that leads nowhere dangerous, closed.
#include <QAccessible>
#include <QImage>
#include <QWidget>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>

#include "course/frmCursus.h"
#include "course/frmTekenen3.h"
#include "effects/frmRoteren.h"
#include "effects/frmVervangKleur.h"
#include "effects/frmZoom.h"
#include "fantasy/frmFantasie.h"
#include "fantasy/frmFantasie1.h"
#include "fantasy/frmFantasie2.h"
#include "fantasy/frmFantasie3.h"
#include "fantasy/frmFantasie4.h"
#include "fantasy/frmFantasie5.h"
#include "fantasy/frmFantasie6.h"
#include "fantasy/frmFantasie7.h"
#include "fantasy/frmFantasie8.h"
#include "info/frmGebruik.h"
#include "info/frmHelp1.h"
#include "info/frmHelp2.h"
#include "info/frmInfo.h"
#include "info/frmSysInfo.h"
#include "shell/frmEinde.h"
#include "shell/frmIntro.h"
#include "shell/frmStart.h"
#include "small/frmKleurplaat.h"
#include "small/frmKleurplaat2.h"
#include "small/frmKleurplaat3.h"
#include "small/frmKleurplaat4.h"
#include "small/frmTekenen1.h"
#include "studio/frmLineaalH.h"
#include "studio/frmLineaalV.h"
#include "studio/frmTekenen2.h"
#include "support/script.h"
#include "support/tree_folder.h"
#include "surface/host.h"
#include "surface/qt/peers.h"
#include "text/frmTekst.h"

using namespace surface;

namespace {

struct Opening {
  const char* name;
  Form& (*open)();
};

template <class F>
Form& opened() {
  return showNew<F>();
}

// The large studio speaks of itself by its default instance.
template <class F>
Form& openedDefault() {
  the<F>().Show();
  return the<F>();
}

const Opening Screens[] = {{"frmCursus", opened<frmCursus>},
                           {"frmGebruik", opened<frmGebruik>},
                           {"frmHelp1", opened<frmHelp1>},
                           {"frmHelp2", opened<frmHelp2>},
                           {"frmInfo", openedDefault<frmInfo>},
                           {"frmKleurplaat", opened<frmKleurplaat>},
                           {"frmKleurplaat2", opened<frmKleurplaat2>},
                           {"frmKleurplaat3", opened<frmKleurplaat3>},
                           {"frmKleurplaat4", opened<frmKleurplaat4>},
                           {"frmSysInfo", opened<frmSysInfo>},
                           {"frmTekenen1", opened<frmTekenen1>},
                           {"frmTekenen3", opened<frmTekenen3>},
                           {"frmEinde", opened<frmEinde>},
                           {"frmFantasie", opened<frmFantasie>},
                           {"frmFantasie1", opened<frmFantasie1>},
                           {"frmFantasie2", openedDefault<frmFantasie2>},
                           {"frmFantasie3", openedDefault<frmFantasie3>},
                           {"frmFantasie4", openedDefault<frmFantasie4>},
                           {"frmFantasie5", openedDefault<frmFantasie5>},
                           {"frmFantasie6", openedDefault<frmFantasie6>},
                           {"frmFantasie7", openedDefault<frmFantasie7>},
                           {"frmFantasie8", openedDefault<frmFantasie8>},
                           {"frmIntro", opened<frmIntro>},
                           {"frmRoteren", opened<frmRoteren>},
                           {"frmVervangKleur", openedDefault<frmVervangKleur>},
                           {"frmZoom", openedDefault<frmZoom>},
                           {"frmLineaalH", opened<frmLineaalH>},
                           {"frmLineaalV", opened<frmLineaalV>},
                           {"frmStart", openedDefault<frmStart>},
                           {"frmTekenen2", openedDefault<frmTekenen2>},
                           {"frmTekst", opened<frmTekst>}};

bool isLoadedStill(const Form& form) {
  for (const auto& loaded : FormRegistry::instance().forms())
    if (loaded.get() == &form) return true;
  return false;
}

void collect(const Container& container, std::vector<Control*>& found) {
  for (Control* control : container.controls()) {
    found.push_back(control);
    if (const Container* inner = control->asContainer()) collect(*inner, found);
  }
}

// True if the control has a click to fire.
bool fire(Control& control) {
  if (auto* button = dynamic_cast<CommandButton*>(&control)) return button->Click(), true;
  if (auto* option = dynamic_cast<OptionButton*>(&control)) return option->Click(), true;
  if (auto* box = dynamic_cast<PictureBox*>(&control)) return box->Click(), true;
  if (auto* image = dynamic_cast<ImageControl*>(&control)) return image->Click(), true;
  if (auto* check = dynamic_cast<CheckBox*>(&control)) return check->Click(), true;
  if (auto* list = dynamic_cast<ComboBox*>(&control)) return list->Click(), true;
  if (auto* slider = dynamic_cast<Slider*>(&control)) return slider->Scroll(), true;
  return false;
}

}  // namespace

class EveryForm : public script::Stage, public testing::WithParamInterface<Opening> {
 protected:
  // A folder of its own for what the program writes beside itself.
  EveryForm() {
    std::filesystem::create_directory_symlink(std::string(KRASPRET_TREE) + "/Beeld",
                                              folder() + "/Beeld");
    app().Path = folder();
  }

  // No to every question, a cancel for every dialog.
  void declineEverything() {
    Host& seams = host();
    seams.msgBox = [](const std::string&, int buttons, const std::string&) {
      return buttons & YesNo ? No : Ok;
    };
    seams.inputBox = [](const std::string&, const std::string&, const std::string&) {
      return std::optional<std::string>();
    };
    seams.fileDialog = [](const FileRequest&) { return std::optional<std::string>(); };
    seams.colorDialog = [](Color, int) { return std::optional<Color>(); };
    seams.printerDialog = [] { return false; };
  }
};

TEST_P(EveryForm, OpensServesEveryButtonAndCloses) {
  declineEverything();
  Form* form = &GetParam().open();
  EXPECT_TRUE(form->shown());
  EXPECT_FALSE(shown(*form).isNull());
  std::vector<Control*> controls;
  collect(*form, controls);
  for (std::size_t i = 0; i < controls.size(); ++i) {
    const std::string tip = controls[i]->ToolTipText;
    dispatch([&] { fire(*controls[i]); });
    EXPECT_EQ(takeErrorReport(), std::nullopt) << tip;
    ASSERT_FALSE(ended()) << tip;
    if (isLoadedStill(*form)) {
      form->Show();  // a button may have led to another form
      continue;
    }
    // That button leaves the form: the rest is tried on the next one.
    form = &GetParam().open();
    controls.clear();
    collect(*form, controls);
  }
  closeBox(*form);
  EXPECT_TRUE(ended() || !isLoadedStill(*form));
  EXPECT_EQ(takeErrorReport(), std::nullopt);
}

TEST_P(EveryForm, IsDrawnWithEveryPanelOpenAtOnce) {
  Form& form = GetParam().open();
  std::vector<Control*> controls;
  collect(form, controls);
  for (Control* control : controls) control->Visible = true;
  EXPECT_FALSE(shown(form).isNull());
  for (Control* control : controls) control->Visible = false;
  EXPECT_FALSE(shown(form).isNull());
  EXPECT_EQ(takeErrorReport(), std::nullopt);
}

TEST_P(EveryForm, TellsAScreenReaderWhatEachControlIsAndIsSilentAboutOrnaments) {
  Form& form = GetParam().open();
  std::vector<Control*> controls;
  collect(form, controls);
  for (Control* control : controls)
    if (dynamic_cast<Frame*>(control)) control->Visible = true;
  for (std::size_t i = 0; i < controls.size(); ++i) {
    const QWidget* widget = surface::qt::widgetOf(*controls[i]);
    if (!widget || !widget->isVisible()) continue;
    auto* heard = QAccessible::queryAccessibleInterface(const_cast<QWidget*>(widget));
    ASSERT_NE(heard, nullptr);
    const std::string name = heard->text(QAccessible::Name).toStdString();
    const bool silent = heard->state().invisible;
    const auto* label = dynamic_cast<Label*>(controls[i]);
    const auto* image = dynamic_cast<ImageControl*>(controls[i]);
    const bool ornament = label || image || controls[i]->windowless();
    const bool serves = (label && label->Click.handled()) || (image && image->Click.handled());
    // A frame without a title only groups.
    if (!dynamic_cast<Frame*>(controls[i])) {
      EXPECT_EQ(silent, name.empty())
          << "control " << i << ", " << widget->metaObject()->className();
    }
    EXPECT_TRUE(!silent || (ornament && !serves)) << "control " << i << " " << name;
  }
  EXPECT_EQ(takeErrorReport(), std::nullopt);
}

INSTANTIATE_TEST_SUITE_P(Each, EveryForm, testing::ValuesIn(Screens),
                         [](const auto& screen) { return std::string(screen.param.name); });

// The classes that a header derives from something and that bear a form's name.
std::set<std::string> formsIn(const std::filesystem::path& header) {
  std::set<std::string> found;
  std::ifstream file(header);
  for (std::string line; std::getline(file, line);) {
    std::istringstream words(line);
    std::string keyword, name, colon;
    words >> keyword >> name >> colon;
    // A table of controls is only the base of its form.
    const bool form = keyword == "class" && name.starts_with("frm") && colon == ":";
    if (form && !name.ends_with("_controls")) found.insert(name);
  }
  return found;
}

// A new form must find its way into the list above.
TEST(EveryFormOfTheTree, IsTried) {
  std::set<std::string> tried, known;
  for (const Opening& screen : Screens) tried.insert(screen.name);
  for (const auto& entry :
       std::filesystem::recursive_directory_iterator(std::string(KRASPRET_TREE) + "/src"))
    if (entry.path().extension() == ".h") known.merge(formsIn(entry.path()));
  EXPECT_EQ(tried, known);
}
