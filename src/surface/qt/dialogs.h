// The standard dialogs and the clipboard, in Dutch.
#pragma once

#include <optional>
#include <string>

#include "surface/host.h"

class QDialog;

namespace surface::qt {

/// Makes a dialog one that is moved and closed, above all other windows if one of those stays above
/// all others. Before it is shown.
void prepareDialog(QDialog& dialog);

/// The user's folder for pictures, or the home folder if there is none.
std::string picturesFolder();

int msgBox(const std::string& text, int buttons, const std::string& title);
std::optional<std::string> inputBox(const std::string& prompt, const std::string& title,
                                    const std::string& initial);
std::optional<std::string> fileDialog(const FileRequest& request);
std::optional<Color> colorDialog(Color initial, int flags);
void errorReport(const std::string& text, bool ends);
bool errorReportBeforeLoss(const std::string& text);

void setClipboard(const Picture& picture);
Picture getClipboard();

/// Makes the toolkit's own texts Dutch.
void installDutch();

}  // namespace surface::qt
