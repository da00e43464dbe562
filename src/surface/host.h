// The seams between the model and what carries it: windows, dialogs, files, clipboard, clock. The
// toolkit layer fills them in at the start; a test puts scripted ones in their place.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "surface/color.h"
#include "surface/font.h"
#include "surface/picture.h"
#include "surface/raster/bitmap.h"
#include "surface/text_mask.h"

namespace surface {

class Form;
class FormPeer;
struct Printed;

/// What a file dialog is asked for.
struct FileRequest {
  bool save = false;
  std::string filter;   ///< "name|pattern|name|pattern..."
  int filterIndex = 1;  ///< the row selected at first, from 1
};

struct Host {
  std::function<std::unique_ptr<FormPeer>(Form&)> makeForm;
  /// Buttons 0 OK, 16 OK with the stop sign, 4 Yes and No; answers 1 OK, 6 Yes, 7 No.
  std::function<int(const std::string& text, int buttons, const std::string& title)> msgBox;
  std::function<std::optional<std::string>(const std::string& prompt, const std::string& title,
                                           const std::string& initial)>
      inputBox;
  std::function<std::optional<std::string>(const FileRequest&)> fileDialog;
  std::function<std::optional<Color>(Color initial, int flags)> colorDialog;
  std::function<bool()> printerDialog;                         ///< whether a printer was chosen
  std::function<void(const std::vector<Printed>&)> printPage;  ///< on the one chosen last
  std::function<Picture(const std::string& path)> loadPicture;
  std::function<void(const Picture&, const std::string& path)> savePicture;
  /// One of the program's own pictures by name; empty if there is none of that name.
  std::function<Picture(const std::string& name)> artPicture;
  std::function<void(const Picture&)> setClipboard;  ///< an empty picture clears it
  std::function<Picture()> getClipboard;
  std::function<TextMask(const Font&, const std::string& text)> rasterText;
  std::function<std::vector<std::string>()> screenFonts;
  std::function<raster::Rect()> screen;  ///< the whole of it, pixels
  /// The inner size of a maximised window, pixels; empty if nothing tells it.
  std::function<raster::Rect()> maximisedSize;
  std::function<std::int64_t()> clock;  ///< milliseconds, never backwards
  std::function<std::uint64_t()> seed;  ///< the clock, as fine as it is
  std::function<void()> timersChanged;  ///< the time of the next tick may have changed
  std::function<void()> doEvents;       ///< handles the events that wait
  /// An error that no handler trapped; `ends` tells whether the program stops with it.
  std::function<void(const std::string& text, bool ends)> errorReport;
  /// The same before the program stops with a drawing at stake: it offers to save it, and gives
  /// true if that is wanted.
  std::function<bool(const std::string& text)> errorReportBeforeLoss;
  std::function<void()> leaveEventLoop;
};

/// The seams in force.
Host& host();

}  // namespace surface
