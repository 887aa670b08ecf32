// Drives the common open-file or save-file dialog when code on the calling thread (or
// on another thread of this process) shows it: reads what the dialog shows, then
// chooses a file or cancels. Optionally it also notes and closes any other dialog (a
// message box) that thread shows. One driver at a time.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace tst {

struct SeenFileDialog {
    std::string title;          // the dialog's caption
    std::string filter;         // the first entry of its file-type list
    std::string folder;         // the folder it showed first
    HWND owner = nullptr;
    bool helpButton = false;    // a visible Help button (OFN_SHOWHELP)
    bool answered = true;       // false when the dialog ignored the answer and was cancelled
};

struct SeenOtherDialog {
    std::string title;
    std::string text;  // a message box's text
};

class FileDialogDriver {
public:
    // answer: the full path to choose; empty cancels the dialog. closeOthers: note and
    // close (with OK) every other dialog, for tests without the message-box capture.
    // threadId: the thread that shows the dialog; 0 for the calling thread.
    explicit FileDialogDriver(std::string answer, bool closeOthers = false, DWORD threadId = 0);
    ~FileDialogDriver();
    FileDialogDriver(const FileDialogDriver&) = delete;
    FileDialogDriver& operator=(const FileDialogDriver&) = delete;

    const std::vector<SeenFileDialog>& seen() const { return seen_; }
    const std::vector<SeenOtherDialog>& others() const { return others_; }

private:
    static LRESULT CALLBACK hook(int code, WPARAM wParam, LPARAM lParam);
    static void CALLBACK answer(HWND dialog, UINT, UINT_PTR, DWORD);
    static void CALLBACK close(HWND dialog, UINT, UINT_PTR, DWORD);

    std::string answer_;
    bool closeOthers_ = false;
    HHOOK hook_ = nullptr;
    std::vector<SeenFileDialog> seen_;
    std::vector<SeenOtherDialog> others_;
    std::vector<HWND> handled_;
};

}  // namespace tst
