// "Bitmap file *.bmp" of the context menu against the DLL: the real save dialog is
// answered by the test (a name without an extension, a name with one, Cancel), and the
// file written is read back: a valid 24-bit BMP of the client size with the window's
// pixels. On a library window (the dialog runs on the scene thread) and in an
// application window.
#include <windows.h>
#include <GL/glu.h>

#include <cstdio>
#include <cstring>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/child_process.h"
#include "support/file_dialog_driver.h"
#include "support/gl_window.h"
#include "support/host_window.h"
#include "tessarin.h"

namespace {

void expectCleanChild(const tst::ChildResult& r) { EXPECT_EQ(r.exitCode, 0u) << r.output; }

std::string currentFolder() {
    char folder[MAX_PATH] = "";
    GetCurrentDirectoryA(MAX_PATH, folder);
    return folder;
}

// A private folder under the current one, made empty.
std::string freshFolder(const char* name) {
    const std::string folder = currentFolder() + "\\" + name;
    CreateDirectoryA(folder.c_str(), nullptr);
    WIN32_FIND_DATAA found;
    HANDLE search = FindFirstFileA((folder + "\\*").c_str(), &found);
    if (search != INVALID_HANDLE_VALUE) {
        do {
            DeleteFileA((folder + "\\" + found.cFileName).c_str());
        } while (FindNextFileA(search, &found));
        FindClose(search);
    }
    return folder;
}

std::set<std::string> filesIn(const std::string& folder) {
    std::set<std::string> names;
    WIN32_FIND_DATAA found;
    HANDLE search = FindFirstFileA((folder + "\\*").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) return names;
    do {
        if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0) names.insert(found.cFileName);
    } while (FindNextFileA(search, &found));
    FindClose(search);
    return names;
}

std::vector<unsigned char> readFile(const std::string& path) {
    std::vector<unsigned char> bytes;
    FILE* f = std::fopen(path.c_str(), "rb");
    if (f == nullptr) return bytes;
    int c;
    while ((c = std::fgetc(f)) != EOF) bytes.push_back(static_cast<unsigned char>(c));
    std::fclose(f);
    return bytes;
}

// The file is a 24-bit uncompressed BMP of the window's client size holding exactly
// the window's pixels.
void expectWindowBmp(const std::string& path, HWND window) {
    const std::vector<unsigned char> bytes = readFile(path);
    ASSERT_GE(bytes.size(), 54u) << path;
    BITMAPFILEHEADER file;
    BITMAPINFOHEADER info;
    std::memcpy(&file, bytes.data(), sizeof(file));
    std::memcpy(&info, bytes.data() + sizeof(file), sizeof(info));
    EXPECT_EQ(file.bfType, 0x4D42);
    EXPECT_EQ(file.bfSize, bytes.size());
    EXPECT_EQ(info.biSize, 40u);
    EXPECT_EQ(info.biBitCount, 24);
    EXPECT_EQ(info.biCompression, static_cast<DWORD>(BI_RGB));
    EXPECT_EQ(info.biClrUsed, 0u);
    const tst::Picture shown = tst::capture(window);
    ASSERT_EQ(info.biWidth, shown.width);
    ASSERT_EQ(info.biHeight, shown.height);  // bottom-up rows
    const size_t stride = (static_cast<size_t>(info.biWidth) * 3 + 3) & ~static_cast<size_t>(3);
    ASSERT_GE(bytes.size(), file.bfOffBits + stride * info.biHeight);
    int differing = 0;
    for (int y = 0; y < shown.height; ++y) {
        const unsigned char* row = bytes.data() + file.bfOffBits + stride * (shown.height - 1 - y);
        for (int x = 0; x < shown.width; ++x) {
            const tst::Rgb expected = shown.at(x, y);
            const tst::Rgb got = {row[3 * x + 2], row[3 * x + 1], row[3 * x]};
            differing += got == expected ? 0 : 1;
        }
    }
    EXPECT_EQ(differing, 0);
}

void addRedBox() {
    snColorRGB(nullptr, 1.0f, 0.0f, 0.0f);
    snBox(nullptr, -1.0f, -1.0f, -1.0f, 1.0f, 1.0f, 1.0f, GLU_OUTSIDE);
}

// Chooses "Bitmap file *.bmp" with the dialog answered by answer (empty: Cancel) on the
// thread that owns the window; returns what the dialog showed.
std::vector<tst::SeenFileDialog> saveAs(HWND window, const std::string& answer) {
    tst::FileDialogDriver driver(answer, false, GetWindowThreadProcessId(window, nullptr));
    SendMessageA(window, WM_COMMAND, TS_CMD_SAVE_BITMAP, 0);
    return driver.seen();
}

void expectTheDialog(const std::vector<tst::SeenFileDialog>& seen, HWND owner) {
    ASSERT_EQ(seen.size(), 1u);
    EXPECT_EQ(seen[0].filter, "Bitmap (*.bmp)");
    EXPECT_EQ(seen[0].owner, owner);
    EXPECT_EQ(_stricmp(seen[0].folder.c_str(), currentFolder().c_str()), 0) << seen[0].folder;
    EXPECT_TRUE(seen[0].answered);
}

}  // namespace

TST_SCENARIO(SaveFromALibraryWindow) {
    cWind* window = swCreateWind("Save scene", 230, 170, 50, 50, WS_OVERLAPPEDWINDOW);
    swShowWind(window);
    cScene* scene = swCreateScene(window);
    HWND hwnd = smGetHWND(scene);
    addRedBox();
    smRefreshScene(scene);
    const std::string folder = freshFolder("save_library");
    expectTheDialog(saveAs(hwnd, folder + "\\shot"), hwnd);
    EXPECT_EQ(filesIn(folder), (std::set<std::string>{"shot.bmp"}));
    expectWindowBmp(folder + "\\shot.bmp", hwnd);
    // A name that ends in ".bmp" in any case keeps it as it is.
    saveAs(hwnd, folder + "\\Upper.BMP");
    EXPECT_EQ(filesIn(folder), (std::set<std::string>{"shot.bmp", "Upper.BMP"}));
    // Cancel writes nothing.
    expectTheDialog(saveAs(hwnd, ""), hwnd);
    EXPECT_EQ(filesIn(folder), (std::set<std::string>{"shot.bmp", "Upper.BMP"}));
    // The command came back as an event.
    int* event = swGetEvent(WM_COMMAND);
    ASSERT_NE(event, nullptr);
    EXPECT_EQ(event[1], TS_CMD_SAVE_BITMAP);
}
TEST(SaveAsBitmap, TheSaveDialogOfALibraryWindowWritesItsPixelsAsA24BitBmp) {
    expectCleanChild(tst::runScenario("SaveFromALibraryWindow"));
}

TEST(SaveAsBitmap, AnApplicationWindowSavesThroughSeOnCommand) {
    tst::HostWindow host("Save host", 150, 110);
    smBackground(0.0f, 0.25f, 0.5f);
    addRedBox();
    smRefreshScene(host.scene);
    const std::string folder = freshFolder("save_hosted");
    expectTheDialog(saveAs(host.hwnd, folder + "\\hosted"), host.hwnd);
    EXPECT_EQ(filesIn(folder), (std::set<std::string>{"hosted.bmp"}));
    expectWindowBmp(folder + "\\hosted.bmp", host.hwnd);
}
