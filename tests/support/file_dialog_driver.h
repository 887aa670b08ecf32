// Drives the common open-file dialog when code on the calling thread shows it: reads
// what the dialog shows, then chooses a file or cancels.
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

class FileDialogDriver {
public:
    // answer: the full path to choose; empty cancels the dialog.
    explicit FileDialogDriver(std::string answer);
    ~FileDialogDriver();
    FileDialogDriver(const FileDialogDriver&) = delete;
    FileDialogDriver& operator=(const FileDialogDriver&) = delete;

    const std::vector<SeenFileDialog>& seen() const { return seen_; }

private:
    static LRESULT CALLBACK hook(int code, WPARAM wParam, LPARAM lParam);
    static void CALLBACK answer(HWND dialog, UINT, UINT_PTR, DWORD);

    std::string answer_;
    HHOOK hook_ = nullptr;
    std::vector<SeenFileDialog> seen_;
    std::vector<HWND> handled_;
};

}  // namespace tst
