// The settings file on disk: where it is looked for, and the template written when
// there is none. Opened through the C runtime in text mode.
#include "view/settings_file.h"

#include <windows.h>

#include <cstdio>
#include <memory>
#include <string>

#include "guard/msgbox.h"
#include "view/scene/cscene.h"
#include "view/scene/scene_settings.h"

namespace ts {
namespace {

constexpr const char* kFileName = "\\Tessarin20.ini";

struct FileCloser {
    void operator()(std::FILE* f) const { std::fclose(f); }
};

std::string currentDirectoryFile() {
    char dir[260] = {};
    GetCurrentDirectoryA(sizeof(dir), dir);
    return std::string(dir) + kFileName;
}

std::string windowsDirectoryFile() {
    char dir[260] = {};
    GetWindowsDirectoryA(dir, sizeof(dir));
    return std::string(dir) + kFileName;
}

}  // namespace

int LoadSettings(cScene* scene) {
    SceneSettings settings;
    const std::string here = currentDirectoryFile();
    const std::string windows = windowsDirectoryFile();
    std::FILE* in = std::fopen(here.c_str(), "r");
    if (in == nullptr) in = std::fopen(windows.c_str(), "r");
    if (in == nullptr) {
        applySettings(settings, scene);
        SaveSettings(scene, windows.c_str());
        return 1;
    }
    std::unique_ptr<std::FILE, FileCloser> file(in);
    readSettings(in, settings);
    applySettings(settings, scene);
    return 1;
}

int SaveSettings(cScene* scene, const char* path) {
    std::unique_ptr<std::FILE, FileCloser> out(std::fopen(path, "w"));
    if (!out) {
        messageBox("Save Tessarin.ini file failed", kErrorTitle, kSetForeground);
        return 1;
    }
    writeSettings(out.get(), settingsOfScene(scene));
    return 1;
}

}  // namespace ts
