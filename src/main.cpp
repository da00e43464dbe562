// Starts the program: the first form, the event loop, and what is done at its end from outside.
#include "files/redding.h"
#include "shell/frmIntro.h"
#include "shell/frmStart.h"
#include "surface/form.h"
#include "surface/qt/toolkit.h"

int main(int argc, char** argv) {
  const surface::qt::Program program = {
      .start =
          [] {
            surface::FormRegistry::instance().noWindowLeft = ToonMenuOfStop;
            surface::the<frmIntro>().Show();
          },
      .logOut = vraagBijAfmelden,
      .rescue = redTekeningen,
  };
  return surface::qt::run(argc, argv, program);
}
