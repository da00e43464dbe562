// Starts the program: the first form, the event loop, nothing else.
#include "shell/frmIntro.h"
#include "shell/frmStart.h"
#include "surface/form.h"
#include "surface/qt/toolkit.h"

int main(int argc, char** argv) {
  return surface::qt::run(argc, argv, [] {
    surface::FormRegistry::instance().noWindowLeft = ToonMenuOfStop;
    surface::the<frmIntro>().Show();
  });
}
