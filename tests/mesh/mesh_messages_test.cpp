// Every message of the mesh nodes through the DLL, as the boxes show them (title, text,
// style, owner); the guards' labels and exit codes in child processes; and the copy
// failures that a count can provoke.
#include <windows.h>

#include <cstdio>
#include <string>
#include <vector>

#include "mesh_scene.h"
#include "support/child_process.h"
#include "support/msgbox_capture.h"

namespace {

using mt::Cube;

// The arguments of one snIndexedFaceSet call, starting from the good unit cube.
struct FaceSetCall {
    Cube cube;
    std::vector<float> colors = std::vector<float>(3 * 30, 0.5f);
    std::vector<int> colorIndex = std::vector<int>(30, 0);
    std::vector<float> normals = std::vector<float>(3 * 30, 0.0f);
    std::vector<int> normalIndex = std::vector<int>(30, 0);
    int coordCount = 8, indexCount = 30;
    BOOL colorPerVertex = FALSE, normalPerVertex = FALSE;
    int colorCount = 0, colorIndexCount = 0, normalCount = 0, normalIndexCount = 0;
    bool withColorIndex = false, withNormalIndex = false;

    cNode* call(cNode* node = nullptr) const {
        return snIndexedFaceSet(node, cube.coords.data(), coordCount, cube.index.data(), indexCount, 30.0f, TRUE,
                                colorPerVertex, colors.data(), colorCount,
                                withColorIndex ? colorIndex.data() : nullptr, colorIndexCount, normalPerVertex,
                                normals.data(), normalCount, withNormalIndex ? normalIndex.data() : nullptr,
                                normalIndexCount);
    }
};

struct Case {
    const char* name;
    void (*change)(FaceSetCall&);
    const char* text;  // nullptr: no box
};

const Case kFaceSetCases[] = {
    {"no points", [](FaceSetCall& c) { c.coordCount = 0; }, "Invalid input parameter"},
    {"no index", [](FaceSetCall& c) { c.indexCount = 0; }, "Invalid input parameter"},
    {"index = CoordCount", [](FaceSetCall& c) { c.cube.index[7] = 8; }, "Coord index > number of coords"},
    {"index -2 passes", [](FaceSetCall& c) { c.cube.index[7] = -2; }, nullptr},
    {"5 colours for 6 faces", [](FaceSetCall& c) { c.colorCount = 5; }, "Number of colors <> number of faces"},
    {"6 colours per face", [](FaceSetCall& c) { c.colorCount = 6; }, nullptr},
    {"7 colours per vertex",
     [](FaceSetCall& c) {
         c.colorPerVertex = TRUE;
         c.colorCount = 7;
     },
     "Number of colors <> number of vertices"},
    {"9 colours per vertex",
     [](FaceSetCall& c) {
         c.colorPerVertex = TRUE;
         c.colorCount = 9;
     },
     "Number of colors <> number of vertices"},
    {"colour index per vertex, 29 entries",
     [](FaceSetCall& c) {
         c.colorPerVertex = TRUE;
         c.colorCount = 8;
         c.withColorIndex = true;
         c.colorIndexCount = 29;
     },
     "NO. of color indexes <> NO. of coord. indexes"},
    {"colour index per face, 5 entries",
     [](FaceSetCall& c) {
         c.colorCount = 6;
         c.withColorIndex = true;
         c.colorIndexCount = 5;
     },
     "NO. of colors <> NO. of faces"},
    {"colour index = ColorCount",
     [](FaceSetCall& c) {
         c.colorCount = 3;
         c.withColorIndex = true;
         c.colorIndexCount = 6;
         c.colorIndex[4] = 3;
     },
     "Color index > NO. of colors"},
    {"5 normals for 6 faces", [](FaceSetCall& c) { c.normalCount = 5; }, "Number of normals <> number of faces"},
    {"7 normals per vertex",
     [](FaceSetCall& c) {
         c.normalPerVertex = TRUE;
         c.normalCount = 7;
     },
     "Number of normals <> number of vertices"},
    {"9 normals per vertex pass",
     [](FaceSetCall& c) {
         c.normalPerVertex = TRUE;
         c.normalCount = 9;
     },
     nullptr},
    {"normal index per vertex, 30 entries for 25",
     [](FaceSetCall& c) {
         c.normalPerVertex = TRUE;
         c.normalCount = 8;
         c.withNormalIndex = true;
         c.normalIndexCount = 30;
         c.indexCount = 25;  // five faces: the index has more entries
     },
     "NO. of normal indexes <> NO. of coord. indexes"},
    {"normal index per face, 7 entries",
     [](FaceSetCall& c) {
         c.normalCount = 6;
         c.withNormalIndex = true;
         c.normalIndexCount = 7;
     },
     "NO. of normals <> NO. of faces"},
    {"normal index = NormalCount",
     [](FaceSetCall& c) {
         c.normalCount = 2;
         c.withNormalIndex = true;
         c.normalIndexCount = 6;
         c.normalIndex[5] = 2;
     },
     "Normal index > number of normals"},
    {"the colour error comes before the normal error",
     [](FaceSetCall& c) {
         c.colorCount = 5;
         c.normalCount = 5;
     },
     "Number of colors <> number of faces"},
    {"the index error comes before the colour error",
     [](FaceSetCall& c) {
         c.cube.index[0] = 100;
         c.colorCount = 5;
     },
     "Coord index > number of coords"},
    // A count below 0 is a copy that fails, on every platform.
    {"CoordCount -1", [](FaceSetCall& c) { c.coordCount = -1; }, "Allocation of array ver failed"},
    {"CoordIndexCount -1", [](FaceSetCall& c) { c.indexCount = -1; }, "Allocation of array veri failed"},
    {"ColorCount -1", [](FaceSetCall& c) { c.colorCount = -1; }, "Allocation of array col failed"},
    {"ColorIndexCount -1",
     [](FaceSetCall& c) {
         c.colorCount = 6;
         c.withColorIndex = true;
         c.colorIndexCount = -1;
     },
     "Allocation of array coli failed"},
    {"NormalCount -1", [](FaceSetCall& c) { c.normalCount = -1; }, "Allocation of normal array failed"},
    {"NormalIndexCount -1",
     [](FaceSetCall& c) {
         c.normalCount = 6;
         c.withNormalIndex = true;
         c.normalIndexCount = -1;
     },
     "Allocation of array nori failed"},
#ifndef _WIN64
    // In a 32-bit process these copies cannot fit the address space.
    {"CoordCount 2^31 - 1", [](FaceSetCall& c) { c.coordCount = 0x7FFFFFFF; }, "Allocation of array ver failed"},
    {"CoordIndexCount 2^31 - 1", [](FaceSetCall& c) { c.indexCount = 0x7FFFFFFF; },
     "Allocation of array veri failed"},
    {"ColorCount 2^31 - 1", [](FaceSetCall& c) { c.colorCount = 0x7FFFFFFF; }, "Allocation of array col failed"},
    {"ColorIndexCount 2^31 - 1",
     [](FaceSetCall& c) {
         c.colorCount = 6;
         c.withColorIndex = true;
         c.colorIndexCount = 0x7FFFFFFF;
     },
     "Allocation of array coli failed"},
    {"NormalCount 2^31 - 1", [](FaceSetCall& c) { c.normalCount = 0x7FFFFFFF; },
     "Allocation of normal array failed"},
    {"NormalIndexCount 2^31 - 1",
     [](FaceSetCall& c) {
         c.normalCount = 6;
         c.withNormalIndex = true;
         c.normalIndexCount = 0x7FFFFFFF;
     },
     "Allocation of array nori failed"},
#endif
};

class MeshMessages : public mt::MeshScene {
protected:
    static void expectOneBox(const tst::MessageBoxCapture& capture, const char* prefix, const char* text,
                             const char* what) {
        ASSERT_TRUE(capture.waitFor(1)) << what;
        const std::vector<tst::CapturedBox> boxes = capture.boxes();
        ASSERT_EQ(boxes.size(), 1u) << what;
        EXPECT_EQ(boxes[0].title, "Tessarin Error Message") << what;
        EXPECT_EQ(boxes[0].text, std::string(prefix) + text) << what;
        EXPECT_EQ(boxes[0].style, static_cast<UINT>(MB_SETFOREGROUND)) << what;
        EXPECT_EQ(boxes[0].owner, nullptr) << what;
    }
};

TEST_F(MeshMessages, EveryFaceSetCheckShowsItsTextAfterThePrefix) {
    for (const Case& c : kFaceSetCases) {
        tst::MessageBoxCapture capture;
        FaceSetCall call;
        c.change(call);
        EXPECT_NE(call.call(), nullptr) << c.name;
        if (c.text == nullptr) {
            EXPECT_EQ(capture.count(), 0u) << c.name;
            continue;
        }
        expectOneBox(capture, "Error in IndexedFaceSet:\n", c.text, c.name);
    }
}

// "Error in IndexedFaceSet:" stands on its own line, the message on the next.
TEST_F(MeshMessages, ThePrefixIsALineOfItsOwn) {
    tst::MessageBoxCapture capture;
    FaceSetCall call;
    call.cube.index[3] = 8;
    call.call();
    expectOneBox(capture, "Error in IndexedFaceSet:\n", "Coord index > number of coords", "index = CoordCount");
    const std::string text = capture.boxes()[0].text;
    EXPECT_EQ(text.substr(0, text.find('\n')), "Error in IndexedFaceSet:");
}

// An edit with an error empties a good node; it draws nothing until the next good edit.
TEST_F(MeshMessages, AnEditWithAnErrorShowsOneBoxAndEmptiesTheNode) {
    unlit();
    snColorRGB(nullptr, 1.0f, 1.0f, 1.0f);
    FaceSetCall call;
    cNode* node = call.call();
    paint();
    ASSERT_FALSE(background(0, 0, 0.5f));
    call.colorCount = 5;
    tst::MessageBoxCapture capture;
    EXPECT_EQ(call.call(node), node);
    expectOneBox(capture, "Error in IndexedFaceSet:\n", "Number of colors <> number of faces", "edit");
    paint();
    EXPECT_TRUE(background(0, 0, 0.5f));
}

struct GridCase {
    const char* name;
    int x, z;
    float xSpacing, zSpacing;
    const char* text;
};

const GridCase kGridCases[] = {
    {"2 by 2", 2, 2, 1.0f, 1.0f, nullptr},
    {"1 by 4", 1, 4, 1.0f, 1.0f, nullptr},
    {"xSpacing 0", 2, 2, 0.0f, 1.0f, "Invalid input parameter(s)"},
    {"xSpacing negative", 2, 2, -1.0f, 1.0f, "Invalid input parameter(s)"},
    {"zSpacing 0", 2, 2, 1.0f, 0.0f, "Invalid input parameter(s)"},
    {"zSpacing negative", 2, 2, 1.0f, -0.5f, "Invalid input parameter(s)"},
    {"1 by 3", 1, 3, 1.0f, 1.0f, "Invalid input parameter(s)"},
    {"0 by 9", 0, 9, 1.0f, 1.0f, "Invalid input parameter(s)"},
    // More points or triangles than 32-bit counts hold cannot be copied.
    {"65535 by 65535", 65535, 65535, 1.0f, 1.0f, "Allocation of height array failed"},
    {"40000 by 40000 (3.2e9 triangles)", 40000, 40000, 1.0f, 1.0f, "Allocation of height array failed"},
#ifndef _WIN64
    // 3.6 GB of heights do not fit a 32-bit process.
    {"30000 by 30000", 30000, 30000, 1.0f, 1.0f, "Allocation of height array failed"},
#endif
};

TEST_F(MeshMessages, EveryGridCheckShowsItsTextAfterThePrefix) {
    const std::vector<float> heights(16, 0.0f);
    for (const GridCase& c : kGridCases) {
        tst::MessageBoxCapture capture;
        EXPECT_NE(snElevationGrid(nullptr, c.x, c.z, c.xSpacing, c.zSpacing, heights.data(), 0, TRUE, FALSE, nullptr,
                                  FALSE, nullptr),
                  nullptr)
            << c.name;
        if (c.text == nullptr) {
            EXPECT_EQ(capture.count(), 0u) << c.name;
            continue;
        }
        expectOneBox(capture, "Error in ElevationGrid:\n", c.text, c.name);
    }
}

// --- guards: each scenario ends its own process -------------------------------------

void expectFatal(const tst::ChildResult& r, const std::string& text) {
    EXPECT_EQ(r.exitCode, 1u) << r.output;
    ASSERT_EQ(r.boxes.size(), 1u) << r.output;
    EXPECT_EQ(r.boxes[0].title, "Tessarin Error Message");
    EXPECT_EQ(r.boxes[0].text, text);
    EXPECT_EQ(r.boxes[0].style, static_cast<UINT>(MB_SETFOREGROUND));
}

TST_SCENARIO(FaceSetWithoutCoord) {
    const Cube cube;
    snIndexedFaceSet(nullptr, nullptr, 8, cube.index.data(), 30, 0, TRUE, FALSE, nullptr, 0, nullptr, 0, FALSE,
                     nullptr, 0, nullptr, 0);
}
TST_SCENARIO(FaceSetWithBadCoordIndex) {
    const Cube cube;
    snIndexedFaceSet(nullptr, cube.coords.data(), 8, reinterpret_cast<const int*>(16), 30, 0, TRUE, FALSE, nullptr,
                     0, nullptr, 0, FALSE, nullptr, 0, nullptr, 0);
}
// The probes come first, in the order of the arguments.
TST_SCENARIO(FaceSetWithNeither) {
    snIndexedFaceSet(nullptr, nullptr, 0, nullptr, 0, 0, TRUE, FALSE, nullptr, 0, nullptr, 0, FALSE, nullptr, 0,
                     nullptr, 0);
}
// One readable float passes the probe; copying 24 of them faults.
TST_SCENARIO(FaceSetWithShortCoord) {
    const Cube cube;
    const float* coord = mt::floatsBeforeGuardPage({0.5f});
    snIndexedFaceSet(nullptr, coord, 8, cube.index.data(), 30, 0, TRUE, FALSE, nullptr, 0, nullptr, 0, FALSE,
                     nullptr, 0, nullptr, 0);
}
TST_SCENARIO(GridWithoutHeight) {
    snElevationGrid(nullptr, 2, 2, 1, 1, nullptr, 0, TRUE, FALSE, nullptr, FALSE, nullptr);
}
TST_SCENARIO(GridWithShortHeight) {
    snElevationGrid(nullptr, 2, 2, 1, 1, mt::floatsBeforeGuardPage({0.0f}), 0, TRUE, FALSE, nullptr, FALSE, nullptr);
}
// Four colour triples are what a 3 by 3 grid reads per cell; per point it reads nine.
TST_SCENARIO(GridReadsNinePointColours) {
    tst::HostWindow host("Mesh guard", mt::kSize, mt::kSize);
    const float heights[9] = {};
    const float* four = mt::floatsBeforeGuardPage(std::vector<float>(12, 0.5f));
    snElevationGrid(nullptr, 3, 3, 1, 1, heights, 0, TRUE, FALSE, four, FALSE, nullptr);
    std::printf("PER CELL READ\n");
    std::fflush(stdout);
    snElevationGrid(nullptr, 3, 3, 1, 1, heights, 0, TRUE, TRUE, four, FALSE, nullptr);
}

TEST(MeshGuards, FaceSetProbesCoordFirst) {
    expectFatal(tst::runScenario("FaceSetWithoutCoord"), "Pointer to inaccessible memory: snIndexedFaceSet(Coord)");
    expectFatal(tst::runScenario("FaceSetWithNeither"), "Pointer to inaccessible memory: snIndexedFaceSet(Coord)");
}

TEST(MeshGuards, FaceSetProbesCoordIndex) {
    expectFatal(tst::runScenario("FaceSetWithBadCoordIndex"),
                "Pointer to inaccessible memory: snIndexedFaceSet(CoordIndex)");
}

TEST(MeshGuards, AShortArrayEndsInTheFaceSetsCatchAll) {
    expectFatal(tst::runScenario("FaceSetWithShortCoord"), "Unhandled exception in: snIndexedFaceSet");
}

TEST(MeshGuards, GridProbesHeight) {
    expectFatal(tst::runScenario("GridWithoutHeight"), "Pointer to inaccessible memory: snElevationGrid(Height)");
}

TEST(MeshGuards, TheGridsCatchAllKeepsItsOldSpelling) {
    expectFatal(tst::runScenario("GridWithShortHeight"), "Unhandled exception in: snEvaluationGrid");
}

TEST(MeshGuards, AGridReadsExactlyItsColourCount) {
    const tst::ChildResult r = tst::runScenario("GridReadsNinePointColours");
    EXPECT_NE(r.output.find("PER CELL READ"), std::string::npos) << r.output;
    expectFatal(r, "Unhandled exception in: snEvaluationGrid");
}

}  // namespace
