// Every control of the fantasy screens as it stands when its screen opens: place, words, colour,
// and whether it shows.
#include "fantasy/frmFantasie.h"
#include "fantasy/frmFantasie1.h"
#include "fantasy/frmFantasie2.h"
#include "fantasy/frmFantasie3.h"
#include "fantasy/frmFantasie4.h"
#include "fantasy/frmFantasie5.h"
#include "fantasy/frmFantasie6.h"
#include "fantasy/frmFantasie7.h"
#include "fantasy/frmFantasie8.h"
#include "support/script.h"
#include "surface/host.h"

using namespace surface;

namespace {

enum State { Shows, Waits };
constexpr Color Pale = 0xE0E0E0;
const std::string Title = "KRAS PRET  -  MET ENIGE FANTASIE  KIJKEN  -  ";

// The place in twips, whatever the form counts in.
void expectPlace(Control& control, const Control::Place& place) {
  const float unit = control.container().ScaleMode() == ScalePixels ? 15 : 1;
  EXPECT_EQ(control.Left * unit, place.Left);
  EXPECT_EQ(control.Top * unit, place.Top);
  EXPECT_EQ(control.Width * unit, place.Width);
  EXPECT_EQ(control.Height * unit, place.Height);
}

template <class Kind>
void expectControl(Kind& control, const char* words, const Control::Place& place, Color back,
                   float points, State state = Shows) {
  SCOPED_TRACE(words);
  EXPECT_EQ(control.Caption, words);
  expectPlace(control, place);
  EXPECT_EQ(control.BackColor, back);
  const Font font = control.Font;
  EXPECT_EQ(font.Name, "Arial");
  EXPECT_EQ(font.Size, points);
  EXPECT_TRUE(font.Bold);
  EXPECT_EQ(control.Visible, state == Shows);
  if constexpr (std::is_same_v<Kind, CommandButton>) {
    EXPECT_EQ(control.Enabled, state == Shows);
  }
}

void expectWindow(const Form& form, const std::string& caption, Color back, ScaleUnit unit) {
  EXPECT_EQ(form.Caption, caption);
  EXPECT_EQ(form.BackColor, back);
  EXPECT_TRUE(form.Maximised);
  EXPECT_EQ(form.ScaleMode(), unit);
}

void expectTimer(const TimerControl& timer, int interval, bool enabled) {
  EXPECT_EQ(timer.Interval, interval);
  EXPECT_EQ(timer.Enabled, enabled);
}

}  // namespace

class FantasyTables : public script::Stage {};

TEST_F(FantasyTables, TheMenu) {
  auto& menu = showNew<frmFantasie>();
  expectWindow(menu, "KRAS PRET", 0xC0FFC0, ScaleTwips);
  const auto choice = [](float top) { return Control::Place{8040, top, 3135, 615}; };
  expectControl(menu.cmdTekenen1, "Herfstwindje", choice(1680), 0x00FFFF, 18);
  expectControl(menu.cmdTekenen2, "Lentekriebels", choice(2400), 0x00FF00, 18);
  expectControl(menu.Command3, "Sterrenpracht", choice(3120), 0x80C0FF, 18);
  expectControl(menu.cmdFantasie, "Zomervreugde", choice(3840), 0xFFFF00, 18);
  expectControl(menu.Command2, "Feestvuurwerk", choice(4560), 0xC0C0FF, 18);
  expectControl(menu.cmdKleurplaten, "Regenwormen", choice(5280), 0xFFC0C0, 18);
  expectControl(menu.Command1, "Windmolentje", choice(6000), 0xC0E0FF, 18);
  expectControl(menu.Command4, "Bliksemschicht", choice(6720), 0xFFC0FF, 18);
  expectControl(menu.lblReken, "KRAS PRET : wat je ZELF maakt is KUNST", {240, 0, 11415, 735},
                0xC0FFC0, 27.75f);
  EXPECT_EQ(menu.lblReken.ForeColor, 0xFF0000);
  expectControl(menu.Label2, "Fantasie in lijnen en kleuren :", {8040, 720, 3135, 855}, 0xC0FFC0,
                18);
  EXPECT_EQ(menu.Label2.ForeColor, 0x0000FF);
  expectControl(menu.cmdInfo, "    &INFO    KRAS PRET", {8040, 7560, 1335, 615}, 0xFFC0C0, 9.75f);
  expectControl(menu.cmdSluiten, "Sluiten", {9600, 7440, 1575, 735}, 0xC0C0C0, 18);
  expectPlace(menu.Image9, {120, 840, 7575, 7215});
  const auto picture = host().artPicture(menu.Image9.PictureName).over(0xFFFFFFFF);
  ASSERT_NE(picture, nullptr);
  EXPECT_EQ(picture->bounds(), (raster::Rect{0, 0, 490, 416}));
}

TEST_F(FantasyTables, Wind) {
  auto& screen = showNew<frmFantasie1>();
  expectWindow(screen, Title + "HERFSTWIND", Pale, ScaleTwips);
  expectControl(screen.Label1, "Je kan de windsnelheid aanpassen met de schuifregelaar.",
                {240, 120, 6855, 375}, Pale, 12);
  EXPECT_EQ(screen.Label1.ForeColor, 0x0000FF);
  expectPlace(screen.Slider1, {240, 600, 1455, 495});
  EXPECT_EQ(screen.Slider1.Min, 3);
  EXPECT_EQ(screen.Slider1.Max, 50);
  EXPECT_EQ(screen.Slider1.LargeChange, 10);
  EXPECT_EQ(screen.Slider1.Value, 10);
  expectControl(screen.cmdStart, "Start", {240, 1200, 1455, 615}, 0x00FF00, 15.75f);
  expectControl(screen.cmdOpnieuw, "Opnieuw", {240, 1200, 1455, 615}, 0x00FFFF, 15.75f, Waits);
  expectControl(screen.cmdSluiten, "Sluiten", {240, 1920, 1455, 615}, 0xC0C0C0, 15.75f);
  EXPECT_EQ(screen.txt1.Text, "100");
  EXPECT_FALSE(screen.txt1.Visible);
  expectTimer(screen.Timer1, 50, false);
}

TEST_F(FantasyTables, Kaleidoscope) {
  auto& screen = the<frmFantasie2>();
  expectWindow(screen, Title + "LENTEKRIEBELS", Pale, ScaleTwips);
  const auto button = [](float top) { return Control::Place{240, top, 1455, 615}; };
  expectControl(screen.Label2, "Je kan het beeld veranderen", {240, 120, 3255, 375}, Pale, 12);
  EXPECT_EQ(screen.Label2.ForeColor, 0x0000FF);
  expectControl(screen.cmdVergroten, "Groter", button(600), 0x00FFFF, 15.75f);
  expectControl(screen.cmdHoekmarkering, "Enorm", button(1320), 0x00FF00, 15.75f);
  expectControl(screen.cmdLangzaam, "Trager", button(2040), 0xFFFF00, 15.75f);
  expectControl(screen.cmdNacht, "Nacht", button(2760), 0xFFC0FF, 15.75f);
  expectControl(screen.cmdSluiten, "Sluiten", button(3480), 0xC0C0C0, 15.75f);
  expectTimer(screen.Timer1, 1, true);  // the figure of the load has started it
  expectTimer(screen.Timer2, 30000, true);
}

TEST_F(FantasyTables, Flower) {
  auto& screen = the<frmFantasie3>();
  expectWindow(screen, Title + "ZOMERVREUGDE", Pale, ScaleTwips);
  expectControl(screen.lblBloem, "Laat de bloem eens verder ontluiken.", {240, 120, 4335, 375},
                Pale, 12);
  EXPECT_EQ(screen.lblBloem.ForeColor, 0x0000FF);
  expectControl(screen.cmdSnel, "Sneller", {240, 600, 1455, 615}, 0x00FF00, 15.75f);
  expectControl(screen.cmdTraag, "Trager", {240, 600, 1455, 615}, 0xFFFF00, 15.75f, Waits);
  expectControl(screen.cmdMiddag, "Middag", {240, 1320, 1455, 615}, 0x00FFFF, 15.75f);
  expectControl(screen.cmdSluiten, "Sluiten", {240, 2040, 1455, 615}, 0xC0C0C0, 15.75f);
  EXPECT_EQ(screen.txt1.Text, "1");
  EXPECT_FALSE(screen.txt1.Visible);
  expectTimer(screen.Timer1, 5, true);
}

TEST_F(FantasyTables, Worms) {
  auto& screen = the<frmFantasie4>();
  expectWindow(screen, Title + "WRIEMELENDE REGENWORMEN", Pale, ScaleTwips);
  expectPlace(screen.Picture1, {0, 0, 11895, 8295});
  EXPECT_FALSE(screen.Picture1.AutoRedraw);
  EXPECT_EQ(screen.Picture1.ScaleMode(), ScaleTwips);
  EXPECT_EQ(screen.Picture1.BackColor, Pale);
  EXPECT_EQ(screen.Picture1.FillStyle, 0);
  EXPECT_EQ(screen.Picture1.FillColor, 0x0000C0);
  expectControl(screen.lblBloem, "volg de kleurrijke regenwormen", {1080, 0, 3855, 375}, Pale, 12);
  expectControl(screen.lblAntwoord,
                "Dit kan zo nog uren doorgaan ! Ermee stoppen of nog een worm ?",
                {7800, 0, 3735, 2055}, 0xC0FFFF, 21.75f, Waits);
  EXPECT_EQ(screen.lblAntwoord.ForeColor, 0x0000FF);
  EXPECT_TRUE(screen.lblAntwoord.Centred);
  // A plain button: its own colour does not show.
  expectControl(screen.cmdSluiten, "Stoppen", {8040, 2040, 1575, 735}, ButtonFace, 15.75f, Waits);
  const Control::Place next{9960, 2040, 1575, 735};
  expectControl(screen.cmdWorm2, "Worm 2", next, 0x00FF00, 15.75f, Waits);
  expectControl(screen.cmdWorm3, "Worm 3", next, 0x00FFFF, 15.75f, Waits);
  expectControl(screen.cmdWorm4, "Worm 4", next, 0xFFFF80, 15.75f, Waits);
  expectControl(screen.cmdWorm5, "Worm 5", next, 0xFF80FF, 15.75f, Waits);
  expectTimer(screen.Timer1, 100, true);  // the load has started it
  expectTimer(screen.Timer2, 100, false);
  expectTimer(screen.Timer3, 20000, true);
}

TEST_F(FantasyTables, Fireworks) {
  auto& screen = the<frmFantasie5>();
  expectWindow(screen, Title + "FEESTELIJK VUURWERK", 0xC0C0C0, ScaleTwips);
  expectPlace(screen.picVuurwerk, {0, 0, 11895, 8295});
  EXPECT_FALSE(screen.picVuurwerk.AutoRedraw);
  EXPECT_EQ(screen.picVuurwerk.ScaleMode(), ScaleTwips);
  EXPECT_EQ(screen.picVuurwerk.BackColor, Black);
  const auto button = [](float top) { return Control::Place{240, top, 1575, 615}; };
  expectControl(screen.cmdHemel, "Fijnwerk", button(240), 0x00FFFF, 15.75f);
  expectControl(screen.cmdHemel2, "Grofwerk", button(240), 0x00FF00, 15.75f, Waits);
  expectControl(screen.cmdMeer, "Hevig", button(960), 0xFF80FF, 15.75f);
  expectControl(screen.cmdMinder, "Rustig", button(960), 0xFFFF00, 15.75f, Waits);
  expectControl(screen.cmdSluiten, "Sluiten", button(1680), 0xC0C0C0, 15.75f);
  expectControl(screen.Command1, "Sluiten", button(1680), 0xC0C0C0, 15.75f, Waits);
  EXPECT_FALSE(screen.Command1.Click.handled());
  expectTimer(screen.Timer1, 10, true);
  expectTimer(screen.Timer2, 100, true);
}

TEST_F(FantasyTables, Wheel) {
  auto& screen = the<frmFantasie6>();
  expectWindow(screen, Title + "WINDMOLENTJE ( of is het een FIETSWIEL ? )", Pale, ScaleTwips);
  const auto button = [](float top) { return Control::Place{240, top, 1455, 615}; };
  expectControl(screen.lblBloem, "Er zijn allerlei instellingen om het wiel te veranderen",
                {240, 120, 6015, 375}, Pale, 12);
  expectControl(screen.cmdStart, "Start", button(480), 0x00FF00, 15.75f);
  screen.cmdPauze.Enabled = true;  // disabled until something turns, but it shows
  expectControl(screen.cmdPauze, "Pauze", button(1200), 0x00FFFF, 15.75f);
  expectControl(screen.Label4, "beginkleur is", {240, 1920, 1575, 375}, Pale, 12);
  expectControl(screen.lblVerklein, "verkleinen", {240, 2760, 1455, 375}, Pale, 12);
  expectControl(screen.lblSnelheid2, "de snelheid", {240, 3600, 1575, 375}, Pale, 12);
  expectControl(screen.lblSnelheid, "100", {1200, 4080, 495, 375}, White, 12);
  expectControl(screen.cmdKleurrijk, "Kleurrijk", button(4560), 0xFFFF00, 15.75f);
  expectControl(screen.cmdSluiten, "Sluiten", button(5280), 0xC0C0C0, 15.75f);
  expectPlace(screen.HScroll4, {240, 2280, 1095, 375});
  EXPECT_EQ(screen.HScroll4.Max, 1536);
  expectPlace(screen.txtBeginkleur, {1320, 2280, 375, 405});
  expectPlace(screen.HScroll2, {240, 3120, 1455, 375});
  EXPECT_EQ(screen.HScroll2.Max, 100);
  expectPlace(screen.Slider1, {240, 4080, 975, 375});
  EXPECT_EQ(screen.Slider1.Min, 1);
  EXPECT_EQ(screen.Slider1.Max, 5);
  EXPECT_EQ(screen.Slider1.Value, 3);
  for (const TextBox* box : {&screen.txtKleiner, &screen.txtAantalKleuren, &screen.txtSnelheid})
    EXPECT_FALSE(box->Visible);
  EXPECT_EQ(screen.txtAantalKleuren.Text, "2");
  EXPECT_EQ(screen.DrawMode, 16);
  EXPECT_EQ(screen.wiel.huidigRood, 256);
  EXPECT_EQ(screen.Timer1.Interval, 0) << "it does not tick";
}

TEST_F(FantasyTables, Stars) {
  auto& screen = the<frmFantasie7>();
  expectWindow(screen, Title + "STERRENPRACHT", Black, ScalePixels);
  EXPECT_TRUE(screen.AutoRedraw);
  const auto button = [](float top) { return Control::Place{120, top, 1455, 615}; };
  expectControl(screen.lblSnelheid2, "je kan de sterrenhemel aanpassen", {120, 240, 3975, 375},
                Black, 12);
  EXPECT_EQ(screen.lblSnelheid2.ForeColor, 0x0000FF);
  expectControl(screen.cmdSneller, "Sneller", button(600), 0x00FFFF, 15.75f);
  expectControl(screen.cmdTrager, "Trager", button(600), 0x00FF00, 15.75f, Waits);
  expectControl(screen.cmdKleurrijk, "Kleurrijk", button(1320), 0xFF80FF, 15.75f);
  expectControl(screen.cmdWitzwart, "Gewoon", button(1320), 0xFFFF00, 15.75f, Waits);
  expectControl(screen.cmdSluiten, "Sluiten", button(2040), 0xC0C0C0, 15.75f);
  EXPECT_EQ(screen.txtKleurrijk.Text, "0");
  EXPECT_FALSE(screen.txtKleurrijk.Visible);
  expectTimer(screen.Timer1, 100, true);
}

TEST_F(FantasyTables, Lightning) {
  auto& screen = the<frmFantasie8>();
  expectWindow(screen, Title + "BLIKSEMSCHICHTEN", Black, ScaleTwips);
  expectControl(screen.cmdSluiten, "Sluiten", {120, 120, 1455, 615}, 0xC0C0C0, 15.75f);
  expectTimer(screen.Timer1, 1, true);
  expectTimer(screen.Timer2, 1, false);
}
