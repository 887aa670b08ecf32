// Captures every message box the process shows, on any thread: the call's owner and
// style, the dialog's own title and text, and presses a chosen button.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace tst {

struct CapturedBox {
    std::string title;  // caption of the dialog window as shown
    std::string text;   // text of the dialog's static control as shown
    UINT style = 0;     // uType passed to MessageBoxA
    HWND owner = nullptr;
    int pressed = 0;    // button the capture pressed
};

// While an instance lives, MessageBoxA calls made by Tessarin20b.dll and by the test
// executable are observed: the real box is shown, then found, read and answered.
class MessageBoxCapture {
public:
    explicit MessageBoxCapture(int button = IDOK);
    ~MessageBoxCapture();
    MessageBoxCapture(const MessageBoxCapture&) = delete;
    MessageBoxCapture& operator=(const MessageBoxCapture&) = delete;

    // Button for the boxes still to come (IDOK, IDCANCEL, IDYES, IDNO).
    void setButton(int button);
    // Waits until at least n boxes were answered; false on time-out.
    bool waitFor(size_t n, DWORD timeoutMs = 20000) const;
    std::vector<CapturedBox> boxes() const;
    size_t count() const;
};

// Writes each captured box to standard output as one line, for a parent process
// (used by child-process scenarios).
void reportBoxesToParent(bool on);

}  // namespace tst
