// Nothing is overwritten, and nothing is read back: the file is a picture like any other.
#include "files/redding.h"

#include "files/bestand.h"
#include "surface/disk.h"
#include "surface/surface.h"

using namespace surface;

namespace {

constexpr int MostNumbers = 10'000;

// A name that was free until now: two programs that go down together do not get the same one.
std::string vrijeNaam(const std::string& folder) {
  for (int number = 1; number <= MostNumbers; ++number) {
    std::string name = folder + "/KrasPret redding " + std::to_string(number) + ".bmp";
    if (makeFile(name)) return name;
    if (!BestandBestaat(name)) break;
  }
  throw RuntimeError(ErrorKind::CannotWrite, "File cannot be written");
}

}  // namespace

void vraagBijAfmelden() {
  for (Form* studio : formsWithDrawing()) studio->LogOut();
}

void redTekeningen(const std::string& folder) {
  for (const Form* studio : formsWithDrawing())
    trapAndLeave([&] {
      const std::string name = vrijeNaam(folder);
      if (!trapAndLeave([&] { SavePicture(studio->Sheet->Image(), name); })) removeFile(name);
    });
}
