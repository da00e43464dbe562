// The information screens: a text each, and the way back.
#include "fantasy/frmFantasie.h"
#include "info/frmGebruik.h"
#include "info/frmHelp1.h"
#include "info/frmHelp2.h"
#include "info/frmInfo.h"
#include "info/frmSysInfo.h"
#include "info/texts.h"
#include "shell/frmStart.h"
#include "small/frmKleurplaat.h"
#include "small/frmTekenen1.h"
#include "studio/frmTekenen2.h"

using namespace surface;

namespace {

// A text that one reads and scrolls, in letters for a child.
TextBox::Design reading(float top, float height, const char* text) {
  return {.Left = 240,
          .Top = top,
          .Width = 11520,
          .Height = height,
          .Text = text,
          .Font = {"Arial", 13.5f},
          .Locked = true,
          .MultiLine = true};
}

}  // namespace

TextScreen::TextScreen(const char* caption, const char* text)
    : Form({.Caption = caption, .BackColor = Back, .Maximised = true}),
      Text1(*this, reading(240, 7230, text)) {
  Text1.AccessibleName = caption;
}

frmInfo::frmInfo() : TextScreen("KRAS PRET - INFO", texts::About) {
  cmdEinde.Click = [this] { cmdEinde_Click(); };
  CloseBox = [this] { cmdEinde_Click(); };
}

void frmInfo::cmdEinde_Click() {
  if (txtInfo.Text == "1") the<frmStart>().Show();
  if (txtInfo.Text == "2") the<frmFantasie>().Show();
  if (txtInfo.Text == "3") the<frmKleurplaat>().Show();
  Unload(*this);
}

frmHelp1::frmHelp1() : TextScreen("KRAS PRET - HELP BIJ TEKENEN KLEIN", texts::SmallStudioHelp) {
  cmdEinde.Click = [this] { cmdEinde_Click(); };
  CloseBox = [this] { cmdEinde_Click(); };
}

void frmHelp1::cmdEinde_Click() {
  Unload(*this);
  the<frmTekenen1>().Show();
}

frmHelp2::frmHelp2() : TextScreen("KRAS PRET - HELP BIJ TEKENEN GROOT", texts::LargeStudioHelp) {
  cmdEinde.Click = [this] { cmdEinde_Click(); };
  CloseBox = [this] { cmdEinde_Click(); };
}

void frmHelp2::cmdEinde_Click() {
  Unload(*this);
  the<frmTekenen2>().Show();
}

frmGebruik::frmGebruik()
    : Form({.Caption = "KRAS PRET - INFO OLMWERK", .BackColor = Back, .Maximised = true}),
      Text2(*this, reading(2640, 4830, texts::Terms)) {
  Text2.AccessibleName = "de gebruiksovereenkomst";
  cmdSluit.Click = [this] { cmdSluit_Click(); };
  CloseBox = [this] { cmdSluit_Click(); };
}

Label::Design frmGebruik::line(float left, float top, float width, const char* text, bool bold) {
  return {.Left = left,
          .Top = top,
          .Width = width,
          .Height = 375,
          .Caption = text,
          .BackColor = Back,
          .ForeColor = 0xFF0000,
          .Font = {"Arial", 12, bold}};
}

void frmGebruik::cmdSluit_Click() {
  Unload(*this);
  the<frmStart>().Show();
}

frmSysInfo::frmSysInfo()
    : Form({.Caption = "INFO SYSTEEM",
            .Width = 5640,
            .Height = 1935,
            .Centred = true,
            .BorderStyle = Border::Fixed}) {}
