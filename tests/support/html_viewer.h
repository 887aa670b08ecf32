// A recording HTML viewer: while an instance lives, .html files open (in this wine
// prefix) with html_recorder.exe, which writes down each page it was given, the folder
// it started in and its show command.
#pragma once

#include <string>
#include <vector>

namespace tst {

struct OpenedPage {
    std::string file;     // the file as the viewer received it
    std::string folder;   // the viewer's working folder, without a final backslash
    int showCommand = -1; // SW_* of its start-up information, -1 when none was given
};

class RecordingHtmlViewer {
public:
    RecordingHtmlViewer();   // associates .html with html_recorder.exe beside this program
    ~RecordingHtmlViewer();  // restores the association it found
    RecordingHtmlViewer(const RecordingHtmlViewer&) = delete;
    RecordingHtmlViewer& operator=(const RecordingHtmlViewer&) = delete;

    // Waits until every viewer this process started has ended, then returns what they
    // opened since the last call. An open that a call starts has its viewer process
    // when the call returns, so nothing opened is an empty result, not a time-out.
    std::vector<OpenedPage> opened();

private:
    std::string previousProgId_;
    bool hadProgId_ = false;
    std::string recordFile_;
};

}  // namespace tst
