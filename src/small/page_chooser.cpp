// Choosing a colouring page.
#include "small/page_chooser.h"

#include "shell/frmStart.h"
#include "small/frmTekenen1.h"

using namespace surface;

PageChooser::PageChooser(int screen, const char* instruction)
    : Form({.Caption = "KRAS PRET - KLEURPLATEN", .BackColor = Back, .Maximised = true}),
      lblNaam(*this, {.Left = 240,
                      .Top = 765,
                      .Width = 11415,
                      .Height = 435,
                      .Caption = instruction,
                      .BackColor = Back,
                      .ForeColor = 0x0000FF,
                      .Font = {"Arial", 15.75f, true}}),
      screen_(screen) {
  CloseBox = [this] { cmdEinde_Click(); };
}

Control::Place PageChooser::cell(int n) {
  const int columnNumber = (n - 1) / 3, rowNumber = (n - 1) % 3;
  const auto column = static_cast<float>(columnNumber), row = static_cast<float>(rowNumber);
  return {360 + 2280 * column, 1320 + 2040 * row, 2055, 1935};
}

CommandButton::Design PageChooser::button(float left, const char* caption, Color color) {
  return {.Left = left,
          .Top = 7560,
          .Width = 2055,
          .Height = 615,
          .Caption = caption,
          .BackColor = color,
          .Font = {"Arial", 14.25f, true}};
}

std::string PageChooser::pageFile(int number) {
  const std::string digits = std::to_string(number);
  return app().Path + "/Beeld/" + (number < 10 ? "0" : "") + digits + ".gif";
}

void PageChooser::choose(int number, Control& clicked) {
  txtKleurplaat.Text = std::to_string(number);
  clicked.Visible = false;
  KiesKleurplaat();
}

// Without its file the studio stands open, and this screen stays behind it.
void PageChooser::KiesKleurplaat() {
  auto& studio = the<frmTekenen1>();
  studio.Show();
  studio.MousePointer = PointerDefault;
  studio.txtKleurplaat.Text = std::to_string(screen_);
  const bool laid = trapAndReport([&] {
    for (int number = firstPage(); number < firstPage() + PagesPerScreen; ++number)
      if (txtKleurplaat.Text == std::to_string(number))
        studio.picBlad.Picture = LoadPicture(pageFile(number));
  });
  if (!laid) return;
  studio.cmdOpenbestand.Enabled = true;
  studio.cmdOpenbestand.Visible = true;
  studio.cmdKleurplaat.Enabled = true;
  studio.cmdKleurplaat.Visible = true;
  Unload(*this);
}

void PageChooser::cmdEinde_Click() {
  the<frmStart>().Show();
  the<frmStart>().MousePointer = PointerDefault;
  Unload(*this);
}

PictureChooser::PictureChooser(int screen, const char* instruction)
    : PageChooser(screen, instruction) {
  Load = [this] { Form_Load(); };
  int number = firstPage();
  for (ImageControl* picture : pictures()) {
    picture->AccessibleName = "kleurplaat " + std::to_string(number);
    picture->Click = [this, number, picture] { choose(number, *picture); };
    ++number;
  }
}

ImageControl::Design PictureChooser::thumbnail(int n) {
  const Control::Place at = cell(n);
  return {.Left = at.Left,
          .Top = at.Top,
          .Width = at.Width,
          .Height = at.Height,
          .ToolTipText = "klik om deze kleurplaat te KLEUREN",
          .Border = true};
}

std::array<PictureChooser::ImageControl*, PageChooser::PagesPerScreen> PictureChooser::pictures() {
  return {&pic1, &pic2,  &pic3,  &pic4,  &pic5,  &pic6,  &pic7, &pic8,
          &pic9, &pic10, &pic11, &pic12, &pic13, &pic14, &pic15};
}

// A page that is missing ends the loading; the ones before it can still be coloured.
void PictureChooser::Form_Load() {
  trapAndReport([this] {
    int number = firstPage();
    for (ImageControl* picture : pictures()) picture->Picture = LoadPicture(pageFile(number++));
  });
}
