// The file flows that the studios share.
#include "files/bestand.h"

#include "surface/disk.h"

using namespace surface;

bool BestandBestaat(const std::string& name) { return fileExists(name); }

void bewaarTekening(CommonDialog& dialog, const PictureBox& sheet) {
  dialog.FileName = "";
  dialog.CancelError = true;
  trapAndLeave([&] {
    dialog.Flags = 4;
    dialog.Filter = "Windows bitmap (*.BMP)|*.bmp";
    dialog.FilterIndex = 1;
    dialog.ShowSave();
    if (BestandBestaat(dialog.FileName) && MsgBox("Deze naam bestaat al ... overschrijven ?", YesNo,
                                                  "Bestand opslaan als ...") == No) {
      dialog.FileName = "";
      // This name is not asked about again.
      dialog.ShowSave();
    }
    SavePicture(sheet.Image(), dialog.FileName);
  });
}

std::string kiesBestand(CommonDialog& dialog) {
  dialog.FileName = "";
  dialog.CancelError = true;
  dialog.Flags = 4;
  dialog.Filter =
      "Windows bitmap (*.BMP)|*.bmp|Compuserve GIF (*.gif)|*.gif|JPEG Filter (*.jpg)|*.jpg|Alle "
      "bestanden|*.*";
  dialog.FilterIndex = 2;
  dialog.ShowOpen();
  return dialog.FileName;
}

void opdrachtregelNaarBlad(PictureBox& sheet) {
  const std::string& opdracht = Command();
  if (opdracht.empty()) return;
  if (trapAndLeave([&] { sheet.Picture = LoadPicture(opdracht); })) return;
  MsgBox("Er is iets misgegaan !\r\n\r\n" + opdracht +
             "\r\n\r\nKrasPret kan deze opdracht niet verwerken.  Het is mogelijk dat het bestand "
             "niet bestaat of "
             "beschadigd is.",
         Critical, opdracht);
}
