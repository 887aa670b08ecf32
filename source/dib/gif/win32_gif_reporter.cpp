// Message boxes and cursors of the GIF codec. The texts are Windows-1252 bytes and go
// to MessageBoxA unchanged.
#include "win32_gif_reporter.h"

#include <windows.h>

#include "guard/msgbox.h"

namespace ts::gif {

void BoxReporter::error(const char* message) { ts::errorBox(message); }

bool BoxReporter::askToContinue(const char* question) {
    return ts::messageBox(question, text::kVersionTitle, text::kVersionStyle) == IDOK;
}

void BoxReporter::busy(bool on) { showWaitCursor(on); }

void showWaitCursor(bool on) { SetCursor(LoadCursorA(nullptr, on ? IDC_WAIT : IDC_ARROW)); }

}  // namespace ts::gif
