// Tells the windows with a title what Windows tells them when the session is ended by force:
// end_session TITLE. For the test of the package; Wine's own end of a session only asks. Ends with
// 0 if there was such a window and it has agreed.
#include <windows.h>
// It needs the types of the one above.
#include <shellapi.h>

int main() {
  int count = 0;
  wchar_t** words = CommandLineToArgvW(GetCommandLineW(), &count);
  const HWND window = count == 2 ? FindWindowW(nullptr, words[1]) : nullptr;
  if (!window) return 2;
  return SendMessageW(window, WM_QUERYENDSESSION, 0, ENDSESSION_CRITICAL) ? 0 : 1;
}
