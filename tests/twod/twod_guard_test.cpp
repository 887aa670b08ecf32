// The guards of the 2D layer and of text and bitmaps in 3D, each in a child process
// that the guard ends: every pointer probe's label with exit code 1, the catch-alls,
// and the assertions with their texts, files, lines and exit code 3. The allocation
// message of the point-list nodes, which lets the process go on, in this process.
#include <gtest/gtest.h>

#include <string>

#include "support/child_process.h"
#include "support/host_window.h"
#include "support/msgbox_capture.h"

namespace {

constexpr UINT kSetForeground = 0x10000;

void expectFatalBox(const char* scenario, const std::string& text) {
    const tst::ChildResult r = tst::runScenario(scenario);
    EXPECT_EQ(r.exitCode, 1u) << r.output;
    ASSERT_EQ(r.boxes.size(), 1u) << r.output;
    EXPECT_EQ(r.boxes[0].title, "Tessarin Error Message");
    EXPECT_EQ(r.boxes[0].text, text);
    EXPECT_EQ(r.boxes[0].style, kSetForeground);
}

void expectAssertion(const char* scenario, const char* expression, const char* file, const char* line) {
    const tst::ChildResult r = tst::runScenario(scenario);
    EXPECT_EQ(r.exitCode, 3u) << r.output;
    EXPECT_NE(r.output.find(expression), std::string::npos) << r.output;
    EXPECT_NE(r.output.find(file), std::string::npos) << r.output;
    EXPECT_NE(r.output.find(line), std::string::npos) << r.output;
}

cNode* const kBadNode = reinterpret_cast<cNode*>(static_cast<uintptr_t>(0x10));
const POINT kPoints[2] = {{0, 0}, {10, 10}};

}  // namespace

// --- pointer probes ---------------------------------------------------------------------

TST_SCENARIO(AddNull2D) { smAddNode2D(nullptr); }
TST_SCENARIO(InsertAfterNull2D) { smInsertAfter2D(nullptr, TRUE); }
TST_SCENARIO(DeleteNull2D) { smDelNode2D(nullptr); }
TST_SCENARIO(FontNullName) { smCreateFont2D(nullptr, 12, FW_NORMAL, FALSE, FALSE); }
TST_SCENARIO(LineWithoutScene) { snLine2D(nullptr, 0, 0, 1, 1); }
TST_SCENARIO(PolyBezierNullPoints) { snPolyBezier2D(nullptr, nullptr, 4, FALSE); }
TST_SCENARIO(PolyLineNullPoints) { snPolyLine2D(nullptr, nullptr, 2, FALSE); }
TST_SCENARIO(PolygonNullPoints) { snPolygon2D(nullptr, nullptr, 3, ALTERNATE); }
TST_SCENARIO(TextNull2D) { snText2D(nullptr, 0, 0, nullptr, 1.0f, 1.0f, 1.0f); }
TST_SCENARIO(TextBlockNull2D) { snTextBlock2D(nullptr, 0, 0, 9, 9, nullptr, DT_LEFT, 1.0f, 1.0f, 1.0f); }
TST_SCENARIO(TextBMPNull) { snTextBMP(nullptr, nullptr, 1000); }
TST_SCENARIO(TextEXTNull) { snTextEXT(nullptr, nullptr, nullptr, 0.0f, 0.0f); }

TEST(Guards2D, EveryPointerProbeEndsTheProcessWithItsLabel) {
    expectFatalBox("AddNull2D", "Pointer to inaccessible memory: smAddNode2D(NodeToAdd)");
    expectFatalBox("InsertAfterNull2D", "Pointer to inaccessible memory: smInsertAfter2D(NodeBefore)");
    expectFatalBox("DeleteNull2D", "Pointer to inaccessible memory: smDelNode2D(NodeToDelete)");
    expectFatalBox("FontNullName", "Pointer to inaccessible memory: smCreateFont2D(font)");
    expectFatalBox("LineWithoutScene", "Pointer to inaccessible memory: snLine2D(CurrentScene)");
    expectFatalBox("PolyBezierNullPoints", "Pointer to inaccessible memory: snPolyBezier2D(points)");
    expectFatalBox("PolyLineNullPoints", "Pointer to inaccessible memory: snPolyLine2D(points)");
    expectFatalBox("PolygonNullPoints", "Pointer to inaccessible memory: snPolygon2D(points)");
    expectFatalBox("TextNull2D", "Pointer to inaccessible memory: snText2D(str)");
    expectFatalBox("TextBlockNull2D", "Pointer to inaccessible memory: snTextBlock2D(str)");
    expectFatalBox("TextBMPNull", "Pointer to inaccessible memory: snTextBMP(text)");
    expectFatalBox("TextEXTNull", "Pointer to inaccessible memory: snTextEXT(text)");
}

// A probe comes before any other work: a bad array is reported even without a scene,
// and a good one lets the call on to the missing scene.
TST_SCENARIO(PolyLineWithoutScene) { snPolyLine2D(nullptr, kPoints, 2, FALSE); }
TST_SCENARIO(PenWithoutScene) { snPen2D(nullptr, static_cast<HPEN>(GetStockObject(BLACK_PEN))); }

TEST(Guards2D, ATwoDNodeWithoutASceneEndsInTheAddsSceneCheck) {
    expectFatalBox("PolyLineWithoutScene", "Pointer to inaccessible memory: Current Scene is not defined!");
    expectFatalBox("PenWithoutScene", "Pointer to inaccessible memory: Current Scene is not defined!");
}

// --- catch-alls ---------------------------------------------------------------------------

TST_SCENARIO(RectangleEditsAnUnreadableNode) { snRectangle2D(kBadNode, 0, 0, 1, 1); }
TST_SCENARIO(BitmapEditsAnUnreadableNode) { snBitmap2D(kBadNode, nullptr, 0, 0, 0, 0, FALSE); }
TST_SCENARIO(ClearWithoutScene2D) { smClearScene2D(); }
TST_SCENARIO(TextBMPEditsAnUnreadableNode) { snTextBMP(kBadNode, "x", 0); }

TEST(Guards2D, FaultsInsideEndInTheCatchAllOfTheirCall) {
    // The rectangle's catch-all keeps the label it always had.
    expectFatalBox("RectangleEditsAnUnreadableNode", "Unhandled exception in: snRectangele2D");
    expectFatalBox("BitmapEditsAnUnreadableNode", "Unhandled exception in: snBitmap2D");
    expectFatalBox("ClearWithoutScene2D", "Unhandled exception in: smClearScene2D");
    expectFatalBox("TextBMPEditsAnUnreadableNode", "Unhandled exception in: snTextBMP");
}

// --- assertions ---------------------------------------------------------------------------

TST_SCENARIO(BitmapFontOfNull) { smCreateFontBMP(nullptr); }
TST_SCENARIO(OutlineFontOfNull) { smCreateFontEXT(nullptr, 0.0f, 0.0f); }
TST_SCENARIO(OutlineFontOfABrush) {
    tst::HostWindow host;
    smCreateFontEXT(reinterpret_cast<HFONT>(GetStockObject(BLACK_BRUSH)), 0.0f, 0.0f);
}
TST_SCENARIO(BitmapOfNull) { snBitmap(nullptr, nullptr, 1.0f, 0, 0x80E0, 0x1401); }
TST_SCENARIO(BitmapOfEightBits) {
    HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, 40 + 1024 + 4);
    auto* info = static_cast<BITMAPINFOHEADER*>(GlobalLock(block));
    info->biSize = 40;
    info->biWidth = info->biHeight = 1;
    info->biPlanes = 1;
    info->biBitCount = 8;
    GlobalUnlock(block);
    snBitmap(nullptr, block, 1.0f, 0, 0x80E0, 0x1401);
}

TEST(Assertions2D, TheFontAssertionsNameTheirFileAndLine) {
    expectAssertion("BitmapFontOfNull", "font != NULL", "..\\source\\user3d_uti.cpp", "251");
    expectAssertion("OutlineFontOfNull", "font != NULL", "..\\source\\user3d_uti.cpp", "260");
}

TEST(Assertions2D, OutlinesThatCannotBeMadeEndInTheFontCreationAssertion) {
    expectAssertion("OutlineFontOfABrush", "FontCreation==TRUE", "..\\source\\user3d_uti.cpp", "268");
}

TEST(Assertions2D, TheBitmapNodeAssertsAHandleOf24Bits) {
    expectAssertion("BitmapOfNull", "hDIB!=NULL", "..\\source\\tsobj3d\\visible\\cbitmap3d.cpp", "cbitmap3d");
    expectAssertion("BitmapOfEightBits", "lpBMI->bmiHeader.biBitCount == 24",
                    "..\\source\\tsobj3d\\visible\\cbitmap3d.cpp", "cbitmap3d");
}

// --- the allocation message of the point lists -------------------------------------------

TEST(Allocation2D, APointListThatCannotBeCopiedShowsItsMessageAndStaysEmpty) {
    tst::HostWindow host;
    tst::MessageBoxCapture capture;
    cNode* line = snPolyLine2D(nullptr, kPoints, -1, FALSE);
    cNode* curve = snPolyBezier2D(nullptr, kPoints, -4, TRUE);
    cNode* polygon = snPolygon2D(nullptr, kPoints, -3, ALTERNATE);
    ASSERT_TRUE(capture.waitFor(3));
    const std::vector<tst::CapturedBox> boxes = capture.boxes();
    ASSERT_EQ(boxes.size(), 3u);
    EXPECT_EQ(boxes[0].text, "Error in cPolyLine2D: Allocation failed");
    EXPECT_EQ(boxes[1].text, "Error in cPolyBezier2D: Allocation failed");
    EXPECT_EQ(boxes[2].text, "Error in cPolygon2D: Allocation failed");
    for (const tst::CapturedBox& box : boxes) {
        EXPECT_EQ(box.title, "Tessarin Error Message");
        EXPECT_EQ(box.style, kSetForeground);
        EXPECT_EQ(box.owner, nullptr);
    }
    // The nodes stay in the scene and draw nothing; the process goes on.
    EXPECT_NE(line, nullptr);
    EXPECT_NE(curve, nullptr);
    EXPECT_NE(polygon, nullptr);
    EXPECT_EQ(host.paintAndRead(5, 5), (tst::Rgb{0, 0, 0}));
    EXPECT_EQ(snPolyLine2D(line, kPoints, 2, FALSE), line);  // an edit can fill it again
}
