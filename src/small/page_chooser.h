// What the four screens with colouring pages have in common: titles, buttons, and handing the
// chosen page to the small studio.
#pragma once

#include <array>
#include <string>

#include "surface/surface.h"

class PageChooser : public surface::Form {
 public:
  /// The page that was chosen, "1" to "60".
  TextBox txtKleurplaat{*this, {.Width = 375, .Height = 375, .Visible = false}};
  Label lblReken{*this,
                 {.Left = 240,
                  .Top = 0,
                  .Width = 11415,
                  .Height = 735,
                  .Caption = "KRAS PRET : wat je ZELF maakt is KUNST",
                  .BackColor = Back,
                  .ForeColor = 0xFF0000,
                  .Font = {"Arial", 27.75f, true}}};
  Label lblNaam;

  static constexpr int PagesPerScreen = 15;

 protected:
  static constexpr Color Back = 0xFFE6FF;

  /// `screen` is 1 to 4.
  PageChooser(int screen, const char* instruction);

  /// The place of one of fifteen in five columns, filled column by column; n from 1.
  static surface::Control::Place cell(int n);
  static CommandButton::Design button(float left, const char* caption, Color color);

  int firstPage() const { return PagesPerScreen * (screen_ - 1) + 1; }
  static std::string pageFile(int number);
  /// The child has clicked on a page: on the sheet of the small studio with it.
  void choose(int number, surface::Control& clicked);
  void cmdEinde_Click();

 private:
  void KiesKleurplaat();

  const int screen_;
};

/// A screen that shows its fifteen pages, each shrunk from the very file that the sheet gets.
class PictureChooser : public PageChooser {
 protected:
  PictureChooser(int screen, const char* instruction);

  static ImageControl::Design thumbnail(int n);

 public:
  ImageControl pic1{*this, thumbnail(1)};
  ImageControl pic2{*this, thumbnail(2)};
  ImageControl pic3{*this, thumbnail(3)};
  ImageControl pic4{*this, thumbnail(4)};
  ImageControl pic5{*this, thumbnail(5)};
  ImageControl pic6{*this, thumbnail(6)};
  ImageControl pic7{*this, thumbnail(7)};
  ImageControl pic8{*this, thumbnail(8)};
  ImageControl pic9{*this, thumbnail(9)};
  ImageControl pic10{*this, thumbnail(10)};
  ImageControl pic11{*this, thumbnail(11)};
  ImageControl pic12{*this, thumbnail(12)};
  ImageControl pic13{*this, thumbnail(13)};
  ImageControl pic14{*this, thumbnail(14)};
  ImageControl pic15{*this, thumbnail(15)};

  /// All fifteen, in order.
  std::array<ImageControl*, PagesPerScreen> pictures();

 private:
  void Form_Load();
};
