// The main menu.
#include "shell/frmStart.h"

#include "course/frmCursus.h"
#include "fantasy/frmFantasie.h"
#include "info/frmGebruik.h"
#include "info/frmInfo.h"
#include "shell/frmEinde.h"
#include "small/frmKleurplaat.h"
#include "small/frmTekenen1.h"
#include "studio/frmTekenen2.h"

using namespace surface;

frmStart::frmStart() : Form({.Caption = "KRAS PRET", .BackColor = 0xC0FFC0, .Maximised = true}) {
  txtNaam.AccessibleName = "Vul even je naam in.";
  Image9.AccessibleName = "welkomstprent";
  cmdTekenen1.Click = [this] { openNew<frmTekenen1>(); };
  cmdKleurplaten.Click = [this] { openNew<frmKleurplaat>(); };
  Command1.Click = [this] { openNew<frmCursus>(); };
  cmdTekenen2.Click = [this] { cmdTekenen2_Click(); };
  cmdFantasie.Click = [this] { openNew<frmFantasie>(); };
  cmdOlmwerk.Click = [this] { openNew<frmGebruik>(); };
  cmdInfo.Click = [this] { cmdInfo_Click(); };
  cmdEinde.Click = [this] { cmdEinde_Click(); };
  CloseBox = [] { End(); };
}

CommandButton::Design frmStart::choice(float top, const char* caption, Color color) {
  return {.Left = 8280,
          .Top = top,
          .Width = 3135,
          .Height = 615,
          .Caption = caption,
          .BackColor = color,
          .Font = {"Arial", 18, true}};
}

CommandButton::Design frmStart::note(float left, const char* caption) {
  return {.Left = left,
          .Top = 7560,
          .Width = 1335,
          .Height = 615,
          .Caption = caption,
          .BackColor = 0xFFC0C0,
          .Font = {"Arial", 9.75f, true}};
}

template <class Screen>
void frmStart::openNew() {
  showNew<Screen>();
  Hide();
}

void frmStart::cmdInfo_Click() {
  auto& info = the<frmInfo>();
  info.Show();
  info.txtInfo.Text = "1";
  Hide();
}

void frmStart::cmdTekenen2_Click() {
  the<frmTekenen2>().Show();
  Hide();
}

void frmStart::cmdEinde_Click() {
  if (MsgBox("Ben je zeker dat je wil stoppen ?", YesNo, "Spijtig - berichtje") == No) {
    Show();
    return;
  }
  auto& farewell = showNew<frmEinde>();
  farewell.txtNaam2.Text = txtNaam.Text;
  if (txtNaam.Text->empty()) farewell.txtNaam2.Text = "vriendje";
  Unload(*this);
}

void ToonMenuOfStop() {
  if (isLoaded<frmStart>())
    the<frmStart>().Show();
  else
    End();
}
