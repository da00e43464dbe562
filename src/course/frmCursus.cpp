// The greeting before the course.
#include "course/frmCursus.h"

#include "course/frmTekenen3.h"
#include "shell/frmStart.h"

using namespace surface;

frmCursus::frmCursus()
    : Form({.Caption = "KRAS PRET - HOE DOE IK HET ?", .BackColor = Back, .Maximised = true}) {
  cmdTekenen2.Click = [this] { cmdTekenen2_Click(); };
  CloseBox = [this] {
    the<frmStart>().Show();
    Unload(*this);
  };
}

void frmCursus::cmdTekenen2_Click() {
  showNew<frmTekenen3>();
  Unload(*this);
}
