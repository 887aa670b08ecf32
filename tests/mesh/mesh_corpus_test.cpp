// The mesh fuzz corpora through the exported calls, in a real window: every seed of
// fuzz/corpus/mesh_params and fuzz/corpus/crease_normals becomes a snIndexedFaceSet or
// snElevationGrid call and is drawn in all three shading modes. The process must live
// through all of them, and every box must be one of the documented messages.
#include <windows.h>

#include <fstream>
#include <iterator>
#include <set>
#include <string>
#include <vector>

#include "mesh/mesh_inputs.h"
#include "mesh_scene.h"
#include "support/msgbox_capture.h"

namespace {

const std::set<std::string> kFaceSetTexts = {
    "Invalid input parameter", "Allocation of array ver failed", "Allocation of array veri failed",
    "Coord index > number of coords", "Allocation of array col failed", "Allocation of array coli failed",
    "NO. of color indexes <> NO. of coord. indexes", "NO. of colors <> NO. of faces", "Color index > NO. of colors",
    "Number of colors <> number of faces", "Number of colors <> number of vertices",
    "Allocation of normal array failed", "Allocation of array nori failed",
    "NO. of normal indexes <> NO. of coord. indexes", "NO. of normals <> NO. of faces",
    "Normal index > number of normals", "Number of normals <> number of faces",
    "Number of normals <> number of vertices"};
const std::set<std::string> kGridTexts = {"Invalid input parameter(s)", "Allocation of height array failed",
                                          "Allocation of array col failed", "Allocation of normal array failed"};

std::vector<std::string> seeds(const std::string& corpus) {
    std::vector<std::string> files;
    WIN32_FIND_DATAA found;
    const std::string folder = std::string(TESSARIN_FUZZ_CORPUS) + "/" + corpus + "/";
    HANDLE search = FindFirstFileA((folder + "*").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) return files;
    do {
        if (!(found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY)) files.push_back(folder + found.cFileName);
    } while (FindNextFileA(search, &found));
    FindClose(search);
    return files;
}

std::vector<uint8_t> bytesOf(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return std::vector<uint8_t>(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

class MeshCorpus : public mt::MeshScene {
protected:
    void drawInEveryMode() {
        for (int mode : {TS_SHADE_FLAT, TS_SHADE_SMOOTH, TS_SHADE_NONE}) {
            smShadeMode(mode);
            paint();
        }
        smClearScene();
    }
    void expectDocumentedBoxes(const tst::MessageBoxCapture& capture, const std::string& prefix,
                               const std::set<std::string>& texts, const std::string& seed) {
        for (const tst::CapturedBox& box : capture.boxes()) {
            EXPECT_EQ(box.title, "Tessarin Error Message") << seed;
            ASSERT_EQ(box.text.compare(0, prefix.size(), prefix), 0) << seed << ": " << box.text;
            EXPECT_EQ(texts.count(box.text.substr(prefix.size())), 1u) << seed << ": " << box.text;
        }
        EXPECT_LE(capture.count(), 1u) << seed;
    }
};

// Seeds whose pointer flags ask for a null array are left out: the probes would end
// the process, as the guard tests show.
TEST_F(MeshCorpus, ParameterSeedsThroughTheExports) {
    const std::vector<std::string> files = seeds("mesh_params");
    ASSERT_GE(files.size(), 10u);
    int called = 0;
    for (const std::string& file : files) {
        const std::vector<uint8_t> bytes = bytesOf(file);
        if (bytes.empty()) continue;
        meshinput::Reader in(bytes.data() + 1, bytes.size() - 1);
        tst::MessageBoxCapture capture;
        if (bytes[0] & 1) {
            meshinput::GridInput g;
            meshinput::readGrid(in, g);
            if (g.height == nullptr) continue;
            snElevationGrid(nullptr, g.xDimension, g.zDimension, g.xSpacing, g.zSpacing, g.height, 45.0f, TRUE,
                            g.colorPerVertex, g.color, g.normalPerVertex, g.normal);
            expectDocumentedBoxes(capture, "Error in ElevationGrid:\n", kGridTexts, file);
        } else {
            meshinput::FaceSetInput f;
            meshinput::readFaceSet(in, f);
            if (f.coord == nullptr || f.coordIndexArg == nullptr) continue;
            snIndexedFaceSet(nullptr, f.coord, f.counts[0], f.coordIndexArg, f.counts[1], 45.0f, FALSE,
                             f.colorPerVertex, f.color, f.counts[2], f.colorIndexArg, f.counts[3], f.normalPerVertex,
                             f.normal, f.counts[4], f.normalIndexArg, f.counts[5]);
            expectDocumentedBoxes(capture, "Error in IndexedFaceSet:\n", kFaceSetTexts, file);
        }
        drawInEveryMode();
        ++called;
    }
    EXPECT_GE(called, 10);
}

TEST_F(MeshCorpus, SmoothingSeedsThroughTheExports) {
    const std::vector<std::string> files = seeds("crease_normals");
    ASSERT_GE(files.size(), 10u);
    for (const std::string& file : files) {
        const std::vector<uint8_t> bytes = bytesOf(file);
        meshinput::SmoothingInput s;
        if (!meshinput::readSmoothing(bytes.data(), bytes.size(), s)) continue;
        s.coords.push_back(0.0f);  // an address even for a mesh without points
        s.index.push_back(-1);
        tst::MessageBoxCapture capture;
        snIndexedFaceSet(nullptr, s.coords.data(), int(s.coords.size() / 3), s.index.data(), int(s.index.size() - 1),
                         s.angle, FALSE, FALSE, nullptr, 0, nullptr, 0, FALSE, nullptr, 0, nullptr, 0);
        expectDocumentedBoxes(capture, "Error in IndexedFaceSet:\n", kFaceSetTexts, file);
        drawInEveryMode();
    }
}

}  // namespace
