// A message box pumps messages: a window procedure or hook that runs while a dib box is
// up may call the dib functions again on the same thread. No dib function may hold its
// module lock through a box, or such a call would wait for itself for ever.
#include <gtest/gtest.h>

#include <functional>

#include "bitmap_handles.h"
#include "support/child_process.h"
#include "tessarin.h"

using dibt::Bytes;

namespace {

// What the hook does while a box is up, and how often it did it.
struct Reentry {
    std::string goodGif;
    std::string written;
    HGLOBAL picture = nullptr;
    int runs = 0;
    bool inside = false;
    bool allGood = true;
};
Reentry* reentry = nullptr;

// Every dib function that shares the module: reading, writing and reducing.
void callAgain(Reentry& r) {
    HGLOBAL read = dibReadGIF(r.goodGif.c_str());
    r.allGood = r.allGood && read != nullptr;
    if (read) GlobalFree(read);
    r.allGood = r.allGood && dibIsGIFFile(r.goodGif.c_str()) == 1;
    r.allGood = r.allGood && dibWriteGIF(r.written.c_str(), r.picture, 89, TRUE) == 1;
    HGLOBAL reduced = dibReduceColors(r.picture, 8, 3);
    r.allGood = r.allGood && reduced != nullptr;
    if (reduced) GlobalFree(reduced);
}

// Called by the box's modal loop for each message it takes.
LRESULT CALLBACK dialogMessages(int code, WPARAM wParam, LPARAM lParam) {
    if (code == MSGF_DIALOGBOX && reentry && !reentry->inside) {
        reentry->inside = true;
        callAgain(*reentry);
        ++reentry->runs;
        reentry->inside = false;
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

// A 24-bit picture of a few colours.
HGLOBAL picture() {
    Bytes rows(dibt::strideOf(9, 24) * 7);
    for (size_t i = 0; i < rows.size(); ++i) rows[i] = uint8_t(i * 29);
    return dibt::toHandle(dibt::packed(dibt::infoHeader(9, 7, 24), {}, rows));
}

// Runs `provoke`, which shows a box, with the hook making the re-entrant calls.
void whileABoxIsUp(const char* what, const std::function<void()>& provoke) {
    Reentry r;
    r.goodGif = dibt::tempPath("good.gif");
    r.written = dibt::tempPath("again.gif");
    r.picture = picture();
    ASSERT_EQ(dibWriteGIF(r.goodGif.c_str(), r.picture, 89, FALSE), 1);
    reentry = &r;
    HHOOK hook = SetWindowsHookExA(WH_MSGFILTER, dialogMessages, nullptr, GetCurrentThreadId());
    provoke();
    UnhookWindowsHookEx(hook);
    reentry = nullptr;
    EXPECT_GE(r.runs, 1) << what << ": the box pumped no message through the hook";
    EXPECT_TRUE(r.allGood) << what;
    GlobalFree(r.picture);
    DeleteFileA(r.goodGif.c_str());
    DeleteFileA(r.written.c_str());
}

}  // namespace

TST_SCENARIO(DibCallsFromInsideTheirOwnBoxes) {
    std::string broken = dibt::tempPath("broken.gif"), unknown = dibt::tempPath("v88.gif");
    // A screen without a colour table and a block type that does not exist.
    dibt::writeFile(broken, {'G', 'I', 'F', '8', '9', 'a', 2, 0, 2, 0, 0, 0, 0, 0x99});
    dibt::writeFile(unknown, {'G', 'I', 'F', '8', '8', 'a', 2, 0, 2, 0, 0, 0, 0, ';'});
    whileABoxIsUp("decoder error", [&] { EXPECT_NE(dibReadGIF(broken.c_str()), nullptr); });
    whileABoxIsUp("version question", [&] { EXPECT_NE(dibReadGIF(unknown.c_str()), nullptr); });
    dibt::Handle dib(picture());
    std::string out = dibt::tempPath("out.gif");
    whileABoxIsUp("encoder error", [&] { EXPECT_EQ(dibWriteGIF(out.c_str(), dib.get(), 88, FALSE), 0); });
    BITMAPINFOHEADER os2 = dibt::infoHeader(9, 7, 24);
    os2.biSize = 12;
    dibt::Handle refused(dibt::toHandle(dibt::packed(os2, {}, Bytes(dibt::strideOf(9, 24) * 7))));
    whileABoxIsUp("conversion error", [&] { EXPECT_EQ(dibWriteGIF(out.c_str(), refused.get(), 89, FALSE), 0); });
    DeleteFileA(broken.c_str());
    DeleteFileA(unknown.c_str());
    DeleteFileA(out.c_str());
}

TEST(DibReentry, CallsFromAHookWhileABoxIsUpDoNotDeadlock) {
    tst::ChildResult child = tst::runScenario("DibCallsFromInsideTheirOwnBoxes", IDOK, 30000);
    ASSERT_NE(child.exitCode, tst::kChildTimedOut) << "the re-entrant call waited for the lock";
    EXPECT_EQ(child.exitCode, 0u) << child.output;
    std::vector<std::string> texts;
    for (const tst::ChildBox& box : child.boxes) texts.push_back(box.text);
    EXPECT_EQ(texts, (std::vector<std::string>{"Illegaler GIF-Block!", "Unbekannte GIF-Version: 88a\n\rWeiter?",
                                               "Unbekanntes GIF-Format!", "dibGray: No support for OS/2-Bitmaps!",
                                               "Fehler bei Farbreduzierung!"}));
}
