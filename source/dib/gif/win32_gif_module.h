// The one GIF module of the library: its tables and parameter record, shared by every
// GIF export, and the lock that lets one GIF operation run at a time.
#pragma once

#include <mutex>

#include "gif_module.h"

namespace ts::gif {

// Holds the module for the time of one export; calls on other threads wait.
class ModuleLease {
public:
    ModuleLease();
    GifModule& module() const { return module_; }

private:
    std::unique_lock<std::mutex> lock_;
    GifModule& module_;
};

}  // namespace ts::gif
