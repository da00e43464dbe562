// Dialogs: thin routines in front of the seams, which keep the rules of cancelling.
#include "surface/dialogs.h"

#include "surface/dispatch.h"
#include "surface/errors.h"
#include "surface/host.h"

namespace surface {

namespace {

// While a dialog waits, a timer may end the program: then the handler behind it does not go on.
template <class Answer>
Answer unlessEnded(Answer answer) {
  if (ended()) End();
  return answer;
}

}  // namespace

int MsgBox(const std::string& text, int buttons, const std::string& title) {
  return unlessEnded(host().msgBox(text, buttons, title));
}

std::string InputBox(const std::string& prompt, const std::string& title,
                     const std::string& initial) {
  return unlessEnded(host().inputBox(prompt, title, initial)).value_or("");
}

void CommonDialog::cancelled() const {
  if (CancelError) throw RuntimeError(ErrorKind::Cancelled, "Cancel was selected");
}

void CommonDialog::showFiles(bool save) {
  if (const auto chosen = unlessEnded(host().fileDialog({save, Filter, FilterIndex})))
    FileName = *chosen;
  else
    cancelled();
}

void CommonDialog::ShowPrinter() {
  if (!unlessEnded(host().printerDialog())) cancelled();
}

void CommonDialog::ShowColor() {
  if (const auto chosen = unlessEnded(host().colorDialog(Color, Flags)))
    Color = *chosen;
  else
    cancelled();
}

}  // namespace surface
