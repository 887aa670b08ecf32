// smOpenDocu against the real DLL: pages open from "DocuPath" with no dialog; without it
// the message, the open-file dialog (driven by the test), "SceneDocuPath" and the page
// opened from the chosen folder. .html opens with the recording viewer of the tests,
// which tells which file was opened, from which folder, with which show command.
#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/child_process.h"
#include "support/file_dialog_driver.h"
#include "support/html_viewer.h"
#include "support/msgbox_capture.h"
#include "tessarin.h"

namespace {

constexpr const char* kKey = "Software\\Halvern Software\\Tessarin\\TessarinPath";
constexpr const char* kNotFound = "HTML file not found.\nPlease check DocuPath in the registry";
const char* const kHelpPages[] = {"fsWelcome_e.html", "fsKeyboard.html", "fsSetting3D.html", "fsSettingView.html",
                                  "fsSettingLight.html"};

void setDocuPath(const std::string& folder) {
    RegSetKeyValueA(HKEY_LOCAL_MACHINE, kKey, "DocuPath", REG_SZ, folder.c_str(), static_cast<DWORD>(folder.size() + 1));
}

void clearDocuValues() {
    RegDeleteKeyValueA(HKEY_LOCAL_MACHINE, kKey, "DocuPath");
    RegDeleteKeyValueA(HKEY_LOCAL_MACHINE, kKey, "SceneDocuPath");
}

struct RegistryString {
    bool present = false;
    DWORD type = 0, size = 0;
    std::string value;
};

// The value as stored: its type, its size in bytes (a terminator counts only when it was
// written) and its text.
RegistryString readValue(const char* name) {
    RegistryString r;
    HKEY key = nullptr;
    if (RegOpenKeyExA(HKEY_LOCAL_MACHINE, kKey, 0, KEY_READ, &key) != ERROR_SUCCESS) return r;
    char buffer[600] = "";
    r.size = sizeof(buffer) - 1;
    r.present = RegQueryValueExA(key, name, nullptr, &r.type, reinterpret_cast<BYTE*>(buffer), &r.size) == ERROR_SUCCESS;
    RegCloseKey(key);
    r.value.assign(buffer, r.present ? strnlen(buffer, r.size) : 0);
    return r;
}

// A folder holding the given pages, each a small HTML file.
void makeFolder(const std::string& folder, const std::vector<std::string>& pages) {
    CreateDirectoryA(folder.c_str(), nullptr);
    for (const std::string& page : pages) {
        FILE* f = fopen((folder + "\\" + page).c_str(), "w");
        ASSERT_NE(f, nullptr);
        fputs("<html><body>test page</body></html>\n", f);
        fclose(f);
    }
}

std::string currentFolder() {
    char folder[MAX_PATH] = "";
    GetCurrentDirectoryA(MAX_PATH, folder);
    return folder;
}

bool sameFolder(std::string a, std::string b) {
    while (!a.empty() && a.back() == '\\') a.pop_back();
    while (!b.empty() && b.back() == '\\') b.pop_back();
    return _stricmp(a.c_str(), b.c_str()) == 0;
}

class Docu : public ::testing::Test {
protected:
    void SetUp() override { clearDocuValues(); }
    void TearDown() override { clearDocuValues(); }

    tst::RecordingHtmlViewer viewer;
    tst::MessageBoxCapture boxes;
};

}  // namespace

TEST_F(Docu, WithDocuPathThePageOpensWithoutAnyDialog) {
    makeFolder("C:\\tessarin_docu", {"fsWelcome_e.html"});
    setDocuPath("C:\\tessarin_docu\\");
    tst::FileDialogDriver dialogs("");
    smOpenDocu("fsWelcome_e.html");
    const std::vector<tst::OpenedPage> opened = viewer.opened();
    EXPECT_EQ(boxes.count(), 0u);
    EXPECT_TRUE(dialogs.seen().empty());
    ASSERT_EQ(opened.size(), 1u);
    EXPECT_EQ(opened[0].file, "fsWelcome_e.html");
    EXPECT_TRUE(sameFolder(opened[0].folder, "C:\\tessarin_docu")) << opened[0].folder;
    EXPECT_EQ(opened[0].showCommand, SW_SHOW);
    EXPECT_FALSE(readValue("SceneDocuPath").present);
}

TEST_F(Docu, WithoutDocuPathCancellingTheDialogEndsSilentlyAfterTheMessage) {
    tst::FileDialogDriver dialogs("");
    smOpenDocu("fsKeyboard.html");
    ASSERT_EQ(boxes.count(), 1u);
    const tst::CapturedBox box = boxes.boxes()[0];
    EXPECT_EQ(box.text, kNotFound);
    EXPECT_EQ(box.title, "Tessarin Error Message");
    EXPECT_EQ(box.style, 0x10000u);
    EXPECT_EQ(box.owner, nullptr);
    ASSERT_EQ(dialogs.seen().size(), 1u);
    const tst::SeenFileDialog& dialog = dialogs.seen()[0];
    EXPECT_EQ(dialog.filter, "HTML-File (*.html)");
    EXPECT_TRUE(dialog.helpButton);
    EXPECT_TRUE(sameFolder(dialog.folder, currentFolder())) << dialog.folder;
    EXPECT_EQ(dialog.owner, nullptr);  // no current scene in this process
    EXPECT_TRUE(viewer.opened().empty());
    EXPECT_FALSE(readValue("SceneDocuPath").present);
}

TEST_F(Docu, ChoosingAFileStoresItsFolderAndOpensTheRequestedPageFromIt) {
    makeFolder("C:\\help", {"x.html", "fsKeyboard.html"});
    {
        tst::FileDialogDriver dialogs("C:\\help\\x.html");
        smOpenDocu("fsKeyboard.html");
        ASSERT_EQ(dialogs.seen().size(), 1u);
        EXPECT_TRUE(dialogs.seen()[0].answered);
    }
    ASSERT_EQ(boxes.count(), 1u);
    EXPECT_EQ(boxes.boxes()[0].text, kNotFound);
    const RegistryString stored = readValue("SceneDocuPath");
    ASSERT_TRUE(stored.present);
    EXPECT_EQ(stored.type, static_cast<DWORD>(REG_SZ));
    EXPECT_EQ(stored.value, "C:\\help\\");
    // Written as 8 bytes without the terminator; the registry, finding the terminator
    // right behind the data, stores it too (as Windows NT always has).
    EXPECT_TRUE(stored.size == 8u || stored.size == 9u) << stored.size;
    const std::vector<tst::OpenedPage> opened = viewer.opened();
    ASSERT_EQ(opened.size(), 1u);
    EXPECT_EQ(opened[0].file, "fsKeyboard.html");  // the requested page, not the chosen one
    EXPECT_TRUE(sameFolder(opened[0].folder, "C:\\help")) << opened[0].folder;
    EXPECT_EQ(opened[0].showCommand, SW_SHOWNORMAL);
}

TEST_F(Docu, TheChosenFolderIsNotReadBackSoTheNextCallAsksAgain) {
    makeFolder("C:\\help", {"x.html", "fsKeyboard.html"});
    {
        tst::FileDialogDriver dialogs("C:\\help\\x.html");
        smOpenDocu("fsKeyboard.html");
    }
    ASSERT_EQ(viewer.opened().size(), 1u);
    tst::FileDialogDriver again("");
    smOpenDocu("fsKeyboard.html");
    EXPECT_EQ(boxes.count(), 2u);
    EXPECT_EQ(again.seen().size(), 1u);
    EXPECT_FALSE(readValue("DocuPath").present);
    EXPECT_TRUE(viewer.opened().empty());
}

TEST_F(Docu, ARequestedPageMissingFromTheChosenFolderReportsFileNotFound) {
    makeFolder("C:\\help", {"x.html"});
    tst::FileDialogDriver dialogs("C:\\help\\x.html");
    smOpenDocu("missing.html");
    ASSERT_TRUE(boxes.waitFor(2));
    ASSERT_EQ(boxes.count(), 2u);
    EXPECT_EQ(boxes.boxes()[0].text, kNotFound);
    EXPECT_EQ(boxes.boxes()[1].text, "File not found!");
    EXPECT_EQ(boxes.boxes()[1].title, "Tessarin Error Message");
    EXPECT_EQ(readValue("SceneDocuPath").value, "C:\\help\\");
    EXPECT_TRUE(viewer.opened().empty());
}

TEST_F(Docu, APageMissingFromDocuPathFallsBackToTheDialog) {
    makeFolder("C:\\tessarin_docu", {"fsWelcome_e.html"});
    setDocuPath("C:\\tessarin_docu\\");
    tst::FileDialogDriver dialogs("");
    smOpenDocu("fsSettingLight.html");
    EXPECT_EQ(boxes.count(), 1u);
    EXPECT_EQ(dialogs.seen().size(), 1u);
    EXPECT_TRUE(viewer.opened().empty());
}

TEST_F(Docu, ADocuPathThatIsNotAStringCountsAsMissing) {
    const DWORD number = 42;
    RegSetKeyValueA(HKEY_LOCAL_MACHINE, kKey, "DocuPath", REG_DWORD, &number, sizeof(number));
    tst::FileDialogDriver dialogs("");
    smOpenDocu("fsWelcome_e.html");
    EXPECT_EQ(boxes.count(), 1u);
    EXPECT_EQ(dialogs.seen().size(), 1u);
}

TEST_F(Docu, ANullFileDoesNothing) {
    setDocuPath("C:\\tessarin_docu\\");
    tst::FileDialogDriver dialogs("");
    smOpenDocu(nullptr);
    EXPECT_EQ(boxes.count(), 0u);
    EXPECT_TRUE(dialogs.seen().empty());
    EXPECT_TRUE(viewer.opened().empty());
}

TEST_F(Docu, EveryHelpPageOfTheLibraryOpens) {
    std::string folder = "Z:" TESSARIN_HELP_DIR;  // the source tree, as wine maps it
    for (char& c : folder) c = c == '/' ? '\\' : c;
    setDocuPath(folder + "\\");
    tst::FileDialogDriver dialogs("");
    for (const char* page : kHelpPages) smOpenDocu(page);
    EXPECT_EQ(boxes.count(), 0u);
    EXPECT_TRUE(dialogs.seen().empty());
    // The viewers run side by side, so their records come in any order.
    std::vector<std::string> expected(std::begin(kHelpPages), std::end(kHelpPages)), files;
    for (const tst::OpenedPage& page : viewer.opened()) {
        files.push_back(page.file);
        EXPECT_TRUE(sameFolder(page.folder, folder)) << page.folder;
        EXPECT_EQ(page.showCommand, SW_SHOW);
    }
    std::sort(expected.begin(), expected.end());
    std::sort(files.begin(), files.end());
    EXPECT_EQ(files, expected);
}

// The dialog belongs to the current scene's window: a scene window in a child process
// (its scene thread lives on after the test).
TST_SCENARIO(DialogOwnedBySceneWindow) {
    cWind* window = swCreateWind("docu owner", 200, 150, 0, 0, 0);
    cScene* scene = swCreateScene(window);
    tst::FileDialogDriver dialogs("");
    smOpenDocu("fsWelcome_e.html");
    printf("TST_OWNER %d %d\n", static_cast<int>(dialogs.seen().size()),
           dialogs.seen().size() == 1 && dialogs.seen()[0].owner == smGetHWND(scene) ? 1 : 0);
}

TEST(DocuOwner, TheDialogIsOwnedByTheCurrentScenesWindow) {
    clearDocuValues();
    const tst::ChildResult r = tst::runScenario("DialogOwnedBySceneWindow");
    ASSERT_EQ(r.exitCode, 0u) << r.output;
    ASSERT_EQ(r.boxes.size(), 1u);
    EXPECT_EQ(r.boxes[0].text, kNotFound);
    EXPECT_NE(r.output.find("TST_OWNER 1 1"), std::string::npos) << r.output;
}
