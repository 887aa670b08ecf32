// The settings file on disk: the template written to the Windows directory when none
// is found, byte for byte; the current directory winning; defaults under a partial
// file; and the failure message of saving.
#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <sstream>
#include <string>

#include "support/msgbox_capture.h"
#include "view/scene/cscene.h"
#include "view/settings_file.h"
#include "view_fixture.h"

namespace {

std::string readFile(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    std::stringstream text;
    text << in.rdbuf();
    return text.str();
}

void writeFile(const std::string& path, const std::string& text) {
    std::ofstream(path, std::ios::binary) << text;
}

std::string windowsFile() {
    char dir[MAX_PATH] = {};
    GetWindowsDirectoryA(dir, sizeof(dir));
    return std::string(dir) + "\\Tessarin20.ini";
}

// The template as the C runtime writes it in text mode: CR LF line ends.
std::string expectedTemplate() {
    const std::string lf = readFile(std::string("Z:") + TESSARIN_TEST_DATA + "/Tessarin20.ini");
    std::string crlf;
    for (char c : lf) {
        if (c == '\n') crlf += '\r';
        crlf += c;
    }
    return crlf;
}

const std::string kHeader = "Initialization Parameters for Tessarin (v2.000, 27-FEB-99)\n\n";

// Runs each test in a directory of its own, with the Windows directory's settings file
// moved aside and put back afterwards.
class SettingsFile : public ::testing::Test {
protected:
    void SetUp() override {
        GetCurrentDirectoryA(sizeof(oldDir_), oldDir_);
        char temp[MAX_PATH] = {};
        GetTempPathA(sizeof(temp), temp);
        dir_ = std::string(temp) + "tessarin_settings_test";
        CreateDirectoryA(dir_.c_str(), nullptr);
        SetCurrentDirectoryA(dir_.c_str());
        DeleteFileA(hereFile().c_str());
        saved_ = readFile(windowsFile());
        DeleteFileA(windowsFile().c_str());
    }
    void TearDown() override {
        DeleteFileA(hereFile().c_str());
        SetCurrentDirectoryA(oldDir_);
        if (saved_.empty()) {
            DeleteFileA(windowsFile().c_str());
        } else {
            writeFile(windowsFile(), saved_);
        }
    }
    std::string hereFile() const { return dir_ + "\\Tessarin20.ini"; }

private:
    char oldDir_[MAX_PATH] = {};
    std::string dir_;
    std::string saved_;
};

}  // namespace

TEST_F(SettingsFile, WithNoFileTheTemplateGoesToTheWindowsDirectory) {
    {
        tst::HostWindow host;
        EXPECT_EQ(host.scene->angle, 45.0);
    }
    EXPECT_EQ(readFile(windowsFile()), expectedTemplate());
    EXPECT_EQ(GetFileAttributesA(hereFile().c_str()), INVALID_FILE_ATTRIBUTES);
}

TEST_F(SettingsFile, TheCurrentDirectoryWinsOverTheWindowsDirectory) {
    writeFile(windowsFile(), kHeader + "angle 20.0\ndraw_mode 100010\n");
    writeFile(hereFile(), kHeader + "angle 30.0\n");
    tst::HostWindow host;
    EXPECT_EQ(host.scene->angle, 30.0);
    EXPECT_EQ(host.scene->draw_mode, 100012);
}

TEST_F(SettingsFile, TheWindowsDirectoryIsReadWhenTheCurrentHasNone) {
    writeFile(windowsFile(), kHeader + "shade_mode 100001\niniVPName Start\niniPos_z 7.5\nBackColor_r 1.0\n");
    tst::HostWindow host;
    EXPECT_EQ(host.scene->shade_mode, 100001);
    EXPECT_EQ(host.scene->pos[2], 7.5f);
    EXPECT_EQ(host.scene->BackColor[0], 1.0f);
    EXPECT_STREQ(host.scene->viewpoints.first->name, "Start");
    // An existing file is never rewritten.
    EXPECT_EQ(readFile(windowsFile()), kHeader + "shade_mode 100001\niniVPName Start\niniPos_z 7.5\nBackColor_r 1.0\n");
}

TEST_F(SettingsFile, MissingKeysTakeTheDefaults) {
    writeFile(hereFile(), kHeader + "auto_delay 9\nunknown 4\nauto_delay 11\n");
    tst::HostWindow host;
    host.scene->angle = 10.0;
    host.scene->clipfar = 5.0;
    EXPECT_EQ(ts::LoadSettings(host.scene), 1);
    EXPECT_EQ(host.scene->auto_delay, 11);
    EXPECT_EQ(host.scene->angle, 45.0);
    EXPECT_EQ(host.scene->clipfar, 1000.0);
}

TEST_F(SettingsFile, SavedSettingsReadBack) {
    tst::HostWindow host;
    host.scene->clipfar = 80.0;
    host.scene->sensib_y_walk = 0.5f;
    snprintf(host.scene->iniVPName, sizeof(host.scene->iniVPName), "Saved");
    EXPECT_EQ(ts::SaveSettings(host.scene, hereFile().c_str()), 1);
    host.scene->clipfar = 1.0;
    host.scene->sensib_y_walk = 1.0f;
    ts::LoadSettings(host.scene);
    EXPECT_EQ(host.scene->clipfar, 80.0);
    EXPECT_EQ(host.scene->sensib_y_walk, 0.5f);
    EXPECT_STREQ(host.scene->iniVPName, "Saved");
}

TEST_F(SettingsFile, SaveThatCannotOpenShowsItsMessage) {
    tst::HostWindow host;
    tst::MessageBoxCapture capture(IDOK);
    EXPECT_EQ(ts::SaveSettings(host.scene, "Q:\\no such directory\\Tessarin20.ini"), 1);
    ASSERT_EQ(capture.count(), 1u);
    const tst::CapturedBox box = capture.boxes()[0];
    EXPECT_EQ(box.text, "Save Tessarin.ini file failed");
    EXPECT_EQ(box.title, "Tessarin Error Message");
    EXPECT_EQ(box.style, static_cast<UINT>(MB_SETFOREGROUND));
    EXPECT_EQ(box.owner, nullptr);
}
