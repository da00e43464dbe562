// The print flow that the studios share.
#include "files/afdrukken.h"

using namespace surface;

void drukTekeningAf(CommonDialog& dialog, const PictureBox& sheet) {
  trapAndLeave([&] {
    dialog.CancelError = true;
    dialog.ShowPrinter();
    Printer().ScaleMode = ScaleCentimetres;
    Printer().PaintPicture(sheet.Image(), {2, 2});
  });
  trapAndLeave([] { Printer().EndDoc(); });
}
