// The fuzz corpora, and mutations of them with fixed seeds, through the exports under
// Windows: the paths no native fuzzer reaches (GDI bits, device bitmaps, palettes, the
// file calls, the dibWriteGIF chain). Nothing may crash, and every box must be one of the
// library's documented messages. The work runs in a child process, which names each
// input before it starts, so that a crash names the input that caused it.
//
// Replay one input: TST_CORPUS_INPUT=<name as printed> and the child's command line,
//   dib_exports_test.exe --gtest_filter=Scenario.DISABLED_CorpusThroughTheExports
//                        --gtest_also_run_disabled_tests
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>
#include <vector>

#include "bitmap_handles.h"
#include "message_table.h"
#include "support/child_process.h"
#include "tessarin.h"

using dibt::Bytes;
using dibt::Handle;

namespace {

constexpr int kMutations = 1;           // mutated copies of every corpus file
constexpr uint32_t kSeed = 20240611;    // fixed: a red run replays
constexpr int64_t kPixelBudget = 1 << 20;  // larger pictures get the cheap calls only

struct Input {
    std::string name;  // corpus/file[#mutation]
    char kind;         // 'b' BMP file, 'r' RLE stream, 'g' GIF file
    Bytes bytes;
};

std::string corpusDir() {
    std::string dir = "Z:" TESSARIN_SOURCE_DIR "/fuzz/corpus/";
    std::replace(dir.begin(), dir.end(), '/', '\\');
    return dir;
}

std::vector<std::string> filesIn(const std::string& dir) {
    std::vector<std::string> names;
    WIN32_FIND_DATAA found;
    HANDLE search = FindFirstFileA((dir + "*").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) return names;
    do {
        if (!(found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY)) names.push_back(found.cFileName);
    } while (FindNextFileA(search, &found));
    FindClose(search);
    std::sort(names.begin(), names.end());
    return names;
}

// A few bytes changed, the file cut short, or a stretch repeated.
Bytes mutate(Bytes bytes, std::mt19937& random) {
    if (bytes.empty()) return bytes;
    switch (random() % 3) {
    case 0:
        for (int n = 1 + int(random() % 8); n > 0; --n) bytes[random() % bytes.size()] = uint8_t(random());
        break;
    case 1:
        bytes.resize(random() % bytes.size());
        break;
    default: {
        size_t at = random() % bytes.size(), length = std::min<size_t>(1 + random() % 64, bytes.size() - at);
        bytes.insert(bytes.begin() + long(at), bytes.begin() + long(at), bytes.begin() + long(at + length));
    }
    }
    return bytes;
}

std::vector<Input> corpus() {
    std::vector<Input> inputs;
    const std::pair<const char*, char> kinds[] = {{"bmp", 'b'}, {"rle", 'r'}, {"gif", 'g'}};
    for (auto [folder, kind] : kinds) {
        std::string dir = corpusDir() + folder + "\\";
        for (const std::string& name : filesIn(dir)) {
            Bytes bytes = dibt::readFile(dir + name);
            std::string label = std::string(folder) + "/" + name;
            inputs.push_back({label, kind, bytes});
            std::mt19937 random(kSeed + uint32_t(std::hash<std::string>()(label) & 0xFFFF));
            for (int m = 1; m <= kMutations; ++m)
                inputs.push_back({label + "#" + std::to_string(m), kind, mutate(bytes, random)});
        }
    }
    return inputs;
}

// A BMP file as a caller's handle: the block behind the 14-byte file header, as it is.
HGLOBAL bmpHandle(const Bytes& file) {
    return dibt::toHandle(file.size() > 14 ? Bytes(file.begin() + 14, file.end()) : file);
}

// The RLE fuzzer's input: width - 1, height - 1, RLE8 bit, colour count, then the stream.
HGLOBAL rleHandle(const Bytes& input) {
    if (input.size() < 4) return dibt::toHandle(input);
    bool eight = input[2] & 1;
    BITMAPINFOHEADER h = dibt::infoHeader(input[0] + 1, input[1] + 1, eight ? 8 : 4, input[3], eight ? BI_RLE8 : BI_RLE4);
    h.biSizeImage = DWORD(input.size() - 4);
    uint32_t colors = input[3] ? input[3] : eight ? 256 : 16;
    return dibt::toHandle(dibt::packed(h, Bytes(4 * colors, 0x55), Bytes(input.begin() + 4, input.end())));
}

struct Scratch {
    std::string gif = dibt::tempPath("corpus.gif");
    std::string written = dibt::tempPath("corpus_out.gif");
    std::string bmp = dibt::tempPath("corpus_out.bmp");
    HDC screen = GetDC(nullptr);
    HDC memory = CreateCompatibleDC(screen);
    HBITMAP target = CreateCompatibleBitmap(screen, 48, 48);
    HGDIOBJ old = SelectObject(memory, target);
    ~Scratch() {
        SelectObject(memory, old);
        DeleteObject(target);
        DeleteDC(memory);
        ReleaseDC(nullptr, screen);
        for (const std::string& path : {gif, written, bmp}) DeleteFileA(path.c_str());
    }
};

HGLOBAL gifHandle(const Bytes& file, Scratch& s) {
    dibt::writeFile(s.gif, file);
    return dibReadGIF(s.gif.c_str());
}

void freeAll(std::initializer_list<HGLOBAL> handles) {
    for (HGLOBAL h : handles)
        if (h) GlobalFree(h);
}

// Drawing, device bitmaps and palettes.
void throughGdi(HGLOBAL dib, Scratch& s, uint8_t choice) {
    HPALETTE palette = dibCreatePalette(dib);
    if (palette) GlobalUnlock(dib);  // the palette leaves the bitmap locked
    HPALETTE use = choice & 1 ? palette : nullptr;
    dibDraw(s.memory, dib, use, 1, 2);
    dibStretch(s.memory, dib, use, 0, 0, 47, 31);
    HBITMAP ddb = dibDIBToDDB(dib, use);
    if (ddb) {
        dibDrawDDB(s.memory, ddb, use, 3, 3);
        dibStretchDDB(s.memory, ddb, use, 0, 0, 40, 40);
        const WORD depths[] = {0, 1, 4, 8, 16, 24, 32};
        WORD bits = depths[choice % 7];
        freeAll({dibDDBToDIB(ddb, use, bits, 0), dibDDBToDIB(ddb, use, bits, choice & 2 ? BI_BITFIELDS : BI_RLE8)});
        DeleteObject(ddb);
    }
    if (palette) DeleteObject(palette);
}

// The conversions that take the bitmap's depth (the others would only refuse it, which
// the message table covers), the reductions and the image operations.
void throughOperations(HGLOBAL dib, uint8_t choice) {
    switch (dibGetBitPerPixel(dib)) {
    case 1: freeAll({dib1To4(dib), dib1To24(dib)}); break;
    case 4: freeAll({dib4To8(dib), dib4To24(dib), dib4To1(dib)}); break;
    case 8: freeAll({dib8To24(dib), dib8To1(dib), dib8To4(dib)}); break;
    case 16: freeAll({dib16To24(dib)}); break;
    case 32: freeAll({dib32To24(dib)}); break;
    case 24:
        freeAll({dib24To1(dib), dib24To4(dib), dib24To8(dib, choice & 1), dibReduceColors(dib, choice % 9, choice % 4)});
        break;
    default: freeAll({dib8To24(dib)});
    }
    freeAll({dibGray(dib), dibSmallSize(dib), dibCrop(dib, int8_t(choice) % 5, int8_t(choice >> 1) % 5, 1 + choice % 7, 1 + choice % 5),
             dibCopy(dib)});
}

// The file calls: BMP and GIF written, the GIF read back.
void throughFiles(HGLOBAL dib, Scratch& s, uint8_t choice) {
    dibWrite(s.bmp.c_str(), dib);
    if (dibWriteGIF(s.written.c_str(), dib, choice & 1 ? 87 : 89, choice & 2)) freeAll({dibReadGIF(s.written.c_str())});
    dibIsGIFFile(s.written.c_str());
}

void exercise(HGLOBAL dib, Scratch& s, uint8_t choice);

// Run-length bitmaps go to GDI as they are, and on as their expansion.
void throughExpansion(HGLOBAL dib, Scratch& s, uint8_t choice) {
    HGLOBAL expanded = dibRLEtoDIB(dib);
    if (expanded) exercise(expanded, s, choice);
    freeAll({expanded});
}

void exercise(HGLOBAL dib, Scratch& s, uint8_t choice) {
    dibGetBitPerPixel(dib);
    dibSetXPelsPerMeter(dib, dibGetXPelsPerMeter(dib));
    dibSetYPelsPerMeter(dib, dibGetYPelsPerMeter(dib));
    if (void* p = GlobalLock(dib)) {
        dibGetColorsInPalette(p);
        dibGetBits(p);
        GlobalUnlock(dib);
    }
    int64_t pixels = std::abs(int64_t(dibGetWidth(dib))) * dibGetHeight(dib);
    if (pixels > kPixelBudget) return;
    throughGdi(dib, s, choice);
    const BITMAPINFOHEADER* h = static_cast<const BITMAPINFOHEADER*>(GlobalLock(dib));
    bool runs = h && GlobalSize(dib) >= sizeof *h && (h->biCompression == BI_RLE8 || h->biCompression == BI_RLE4);
    GlobalUnlock(dib);
    if (runs) {
        throughExpansion(dib, s, choice);
        return;
    }
    throughOperations(dib, choice);
    throughFiles(dib, s, choice);
}

}  // namespace

TST_SCENARIO(CorpusThroughTheExports) {
    const char* only = std::getenv("TST_CORPUS_INPUT");
    Scratch scratch;
    auto start = std::chrono::steady_clock::now();
    int run = 0;
    for (const Input& input : corpus()) {
        if (only && input.name != only) continue;
        std::printf("input %s\n", input.name.c_str());
        std::fflush(stdout);
        uint8_t choice = input.bytes.empty() ? 0 : input.bytes.back();
        HGLOBAL dib = input.kind == 'b' ? bmpHandle(input.bytes)
                      : input.kind == 'r' ? rleHandle(input.bytes)
                                          : gifHandle(input.bytes, scratch);
        if (dib) exercise(dib, scratch, choice);
        if (dib) GlobalFree(dib);
        ++run;
    }
    double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    std::printf("corpus: %d inputs in %.1f s\n", run, seconds);
}

TEST(DibCorpus, EveryInputEndsInADocumentedMessageOrNone) {
    tst::ChildResult child = tst::runScenario("CorpusThroughTheExports", IDOK, 600000);
    std::string last = child.output.substr(child.output.rfind("input ") == std::string::npos ? 0 : child.output.rfind("input "));
    EXPECT_EQ(child.exitCode, 0u) << "the last input started: " << last.substr(0, last.find('\n'));
    EXPECT_NE(child.output.find("corpus: "), std::string::npos) << "the child did not get through the corpus";
    size_t undocumented = 0;
    for (const tst::ChildBox& box : child.boxes) {
        bool known = dibt::documentedText(box.text) && dibt::documentedTitle(box.title);
        if (!known && ++undocumented <= 10) ADD_FAILURE() << "undocumented box: " << box.title << " / " << box.text;
    }
    EXPECT_EQ(undocumented, 0u);
    EXPECT_GT(child.boxes.size(), 100u);
    std::printf("%s", child.output.substr(child.output.find("corpus: ") == std::string::npos ? child.output.size()
                                                                                          : child.output.find("corpus: "))
                          .c_str());
    std::printf("boxes: %zu, all answered\n", child.boxes.size());
}
