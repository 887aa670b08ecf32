// The GIF codec's messages on Windows: the library's error box, the "CONV_GIFDLL"
// version question, and the wait and arrow cursors.
#pragma once

#include "gif_text.h"

namespace ts::gif {

class BoxReporter final : public Reporter {
public:
    void error(const char* message) override;
    bool askToContinue(const char* question) override;
    void busy(bool on) override;
};

// The wait cursor while a long GIF operation runs, the arrow cursor after it.
void showWaitCursor(bool on);

}  // namespace ts::gif
