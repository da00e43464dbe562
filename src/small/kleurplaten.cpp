// The four screens of colouring pages: their buttons, and the ways between them.
#include "info/frmInfo.h"
#include "small/frmKleurplaat.h"
#include "small/frmKleurplaat2.h"
#include "small/frmKleurplaat3.h"
#include "small/frmKleurplaat4.h"

using namespace surface;

namespace {

template <class Screen>
void goTo(Form& from) {
  showNew<Screen>();
  Unload(from);
}

constexpr const char* ClickOnPicture = "Klik even op de kleurplaat die je wenst.";

}  // namespace

frmKleurplaat::frmKleurplaat() : PictureChooser(1, ClickOnPicture) {
  cmdKleurplaat2.Click = [this] { goTo<frmKleurplaat2>(*this); };
  cmdInfo.Click = [this] { cmdInfo_Click(); };
  cmdEinde.Click = [this] { cmdEinde_Click(); };
}

CommandButton::Design frmKleurplaat::infoButton() {
  CommandButton::Design design = button(7200, "    &INFO    KRAS PRET", 0xFFC0C0);
  design.Font.Size = 9.75f;
  return design;
}

void frmKleurplaat::cmdInfo_Click() {
  auto& info = the<frmInfo>();
  info.Show();
  info.txtInfo.Text = "3";
  Hide();
}

frmKleurplaat2::frmKleurplaat2()
    : PictureChooser(2, "Klik eerst op de kleurplaat die je wenst en dan op de knop Kleuren.") {
  cmdVorige.Click = [this] { goTo<frmKleurplaat>(*this); };
  cmdKleurplaat2.Click = [this] { goTo<frmKleurplaat3>(*this); };
  cmdEinde.Click = [this] { cmdEinde_Click(); };
}

frmKleurplaat3::frmKleurplaat3() : PictureChooser(3, ClickOnPicture) {
  cmdVorige.Click = [this] { goTo<frmKleurplaat2>(*this); };
  cmdKleurplaat2.Click = [this] { goTo<frmKleurplaat4>(*this); };
  cmdEinde.Click = [this] { cmdEinde_Click(); };
}

frmKleurplaat4::frmKleurplaat4()
    : PageChooser(4, "Klik even op de tekst over de kleurplaat die je wenst.") {
  int number = firstPage();
  for (Label* label : titles()) {
    label->Click = [this, number, label] { choose(number, *label); };
    ++number;
  }
  cmdVorige.Click = [this] { goTo<frmKleurplaat3>(*this); };
  cmdEinde.Click = [this] { cmdEinde_Click(); };
}

Label::Design frmKleurplaat4::title(int n, const char* text) {
  const Control::Place at = cell(n);
  return {.Left = at.Left,
          .Top = at.Top,
          .Width = at.Width,
          .Height = at.Height,
          .Caption = text,
          .BackColor = White,
          .ForeColor = 0xFF0000,
          .Font = {"Arial", 12.75f, true},
          .Centred = true};
}

std::array<frmKleurplaat4::Label*, PageChooser::PagesPerScreen> frmKleurplaat4::titles() {
  return {&lbl1, &lbl2,  &lbl3,  &lbl4,  &lbl5,  &lbl6,  &lbl7, &lbl8,
          &lbl9, &lbl10, &lbl11, &lbl12, &lbl13, &lbl14, &lbl15};
}
