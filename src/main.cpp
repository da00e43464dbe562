// Starts the program: the first form, the event loop, nothing else.
#include "shell/frmIntro.h"
#include "shell/frmStart.h"
#include "surface/form.h"
#include "surface/qt/toolkit.h"

namespace {

// The main menu hides behind every other screen; without this a child who closes that screen would
// be left with nothing.
void showMenuOrEnd() {
  if (surface::isLoaded<frmStart>())
    surface::the<frmStart>().Show();
  else
    surface::End();
}

}  // namespace

int main(int argc, char** argv) {
  return surface::qt::run(argc, argv, [] {
    surface::FormRegistry::instance().noWindowLeft = showMenuOrEnd;
    surface::the<frmIntro>().Show();
  });
}
