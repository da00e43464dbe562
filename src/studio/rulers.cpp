// The choice of rulers.
#include "studio/frmLineaalH.h"
#include "studio/frmLineaalV.h"
#include "studio/frmTekenen2.h"

using namespace surface;

namespace {

void showVertical(float left) {
  auto& ruler = the<frmLineaalV>();
  ruler.Show();
  ruler.Left = left;
  ruler.Top = 120;
}

void showHorizontal(float left) {
  auto& ruler = the<frmLineaalH>();
  ruler.Show();
  ruler.Left = left;
  ruler.Top = 0;
}

}  // namespace

void frmTekenen2::Option1_Click() {
  Option1.Value = true;
  showVertical(picBlad.Left);
  fraLineaal.Visible = false;
}

void frmTekenen2::Option2_Click() {
  Option2.Value = true;
  showHorizontal(picBlad.Left);
  fraLineaal.Visible = false;
}

void frmTekenen2::Option4_Click() {
  Option4.Value = true;
  showVertical(picBlad.Left);
  showHorizontal(picBlad.Left);
  fraLineaal.Visible = false;
}

void frmTekenen2::Option3_Click() {
  Option3.Value = true;
  Unload(the<frmLineaalH>());
  Unload(the<frmLineaalV>());
  fraLineaal.Visible = false;
}
