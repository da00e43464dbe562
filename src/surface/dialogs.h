// Message and input boxes, and the dialog control for files and colours.
#pragma once

#include <string>

#include "surface/color.h"

namespace surface {

enum MsgBoxButtons { OkOnly = 0, YesNo = 4, Critical = 16 };
enum MsgBoxAnswer { Ok = 1, Yes = 6, No = 7 };

/// Blocks until answered. Without a title the program's name stands there.
int MsgBox(const std::string& text, int buttons = OkOnly, const std::string& title = "KRAS PRET");

/// The text typed, or an empty one on Cancel.
std::string InputBox(const std::string& prompt, const std::string& title,
                     const std::string& initial);

class CommonDialog {
 public:
  std::string FileName;
  std::string Filter;
  int FilterIndex = 1;
  int Flags = 0;
  /// A cancel raises a Cancelled error; without it the former values stay as the result.
  bool CancelError = false;
  surface::Color Color = Black;

  void ShowOpen() { showFiles(false); }
  void ShowSave() { showFiles(true); }
  void ShowColor();
  /// The printer that is chosen here is the one that Printer() means from then on.
  void ShowPrinter();

 private:
  void showFiles(bool save);
  void cancelled() const;
};

}  // namespace surface
