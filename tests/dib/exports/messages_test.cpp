// Every message the bitmap library can show, with the exported call that shows it: the
// box's title, style, owner and exact text, captured from the real DLL. Texts that no
// exported call can show on this platform say where they are asserted instead.
#include <gtest/gtest.h>

#include <functional>
#include <set>
#include <string>
#include <vector>

#include "bitmap_handles.h"
#include "gif_test_support.h"
#include "message_table.h"
#include "support/msgbox_capture.h"
#include "tessarin.h"

using dibt::Bytes;
using dibt::Handle;
using gift::CodeStream;
using gift::GifBuilder;

namespace {

constexpr const char* kTitle = "Tessarin Error Message";
constexpr UINT kErrorStyle = 0x10000;  // MB_SETFOREGROUND: OK, no icon
constexpr int32_t kHuge = 0x7FFFFFFF;  // dimensions no block can hold

// How a text is reached.
enum class Reach {
    Export,       // an exported call shows it here
    AddressSpace, // an exported call shows it where 4 GB do not fit (i686)
    Elsewhere,    // no input reaches it through the exports; `where` asserts it
};

// A bitmap handle: header fields as given, the table and rows zeroed. A picture too
// large for any block gets its header and table only.
HGLOBAL dib(uint16_t bits, uint32_t compression = BI_RGB, uint32_t size = 40, int32_t width = 4,
            int32_t height = 4, uint32_t clrUsed = 0) {
    BITMAPINFOHEADER h = dibt::infoHeader(width, height, bits, clrUsed, compression);
    h.biSize = size;
    uint64_t colors = clrUsed ? clrUsed : bits < 16 ? 1u << bits : 0;
    uint64_t rows = uint64_t(dibt::strideOf(width, bits)) * uint32_t(height < 0 ? -height : height);
    if (width == kHuge || height == kHuge) rows = 16;
    Bytes extra(4 * (colors < 256 ? colors : 256) + (compression == BI_BITFIELDS ? 12 : 0));
    return dibt::toHandle(dibt::packed(h, extra, Bytes(size_t(rows))));
}

HGLOBAL huge(uint16_t bits, uint32_t compression = BI_RGB) { return dib(bits, compression, 40, kHuge, kHuge); }

// What an exported call needs besides its bitmap.
struct Env {
    HDC screen = GetDC(nullptr);
    HBITMAP ddb = CreateCompatibleBitmap(screen, 8, 8);
    HBITMAP wide = CreateBitmap(4096, 4096, 1, 1, nullptr);  // too wide for 65535 bits a pixel
    HDC broken = reinterpret_cast<HDC>(static_cast<uintptr_t>(0x1234));  // no device context
    std::string gif = dibt::tempPath("message.gif");
    ~Env() {
        DeleteObject(ddb);
        DeleteObject(wide);
        ReleaseDC(nullptr, screen);
        DeleteFileA(gif.c_str());
    }
};

// Calls an export that returns a handle: true when it returned none.
bool none(HGLOBAL result) {
    Handle owned(result);
    return !owned;
}

// Writes the file and reads it with dibReadGIF; true when a handle came back.
bool readGif(Env& env, const Bytes& file) {
    dibt::writeFile(env.gif, file);
    Handle owned(dibReadGIF(env.gif.c_str()));
    return bool(owned);
}

bool writeGif(Env& env, HGLOBAL bitmap, int version) {
    Handle owned(bitmap);
    return !dibWriteGIF(env.gif.c_str(), owned.get(), version, FALSE);
}

struct Row {
    std::vector<std::string> texts;  // every box the call shows, in order
    std::function<bool(Env&)> call;  // true when the call returned what it documents
    Reach reach = Reach::Export;
    const char* where = nullptr;     // for Reach::Elsewhere: the test that asserts it
    const char* title = kTitle;
    UINT style = kErrorStyle;
    int button = IDOK;
};

using T = std::vector<std::string>;

// The handle, bitmap-handle accessors, palette, drawing and device bitmaps.
std::vector<Row> basicRows() {
    return {
        {T{"dibGetWidth: No DIB passed!"}, [](Env&) { return dibGetWidth(nullptr) == 0; }},
        {T{"dibGetHeight: No DIB passed!"}, [](Env&) { return dibGetHeight(nullptr) == 0; }},
        {T{"dibGetBitPerPixel: No DIB passed!"}, [](Env&) { return dibGetBitPerPixel(nullptr) == 0; }},
        {T{"dibGetXPelsPerMeter: No DIB passed!"}, [](Env&) { return dibGetXPelsPerMeter(nullptr) == 0; }},
        {T{"dibGetYPelsPerMeter: No DIB passed!"}, [](Env&) { return dibGetYPelsPerMeter(nullptr) == 0; }},
        {T{"dibSetXPelsPerMeter: No DIB passed!"}, [](Env&) { return !dibSetXPelsPerMeter(nullptr, 1); }},
        {T{"dibSetYPelsPerMeter: No DIB passed!"}, [](Env&) { return !dibSetYPelsPerMeter(nullptr, 1); }},
        {T{"dibCreatePalette: No DIB passed!"}, [](Env&) { return !dibCreatePalette(nullptr); }},
        {T{"dibCreatePalette: No support of OS/2 DIBs!"}, [](Env&) { Handle d(dib(8, BI_RGB, 12)); return !dibCreatePalette(d.get()); }},
        {T{"dibCreatePalette: Not enough memory!"}, [](Env&) { Handle d(dib(16, BI_RGB, 40, 4, 4, 0x10000)); return !dibCreatePalette(d.get()); }},
        {T{"dibDraw: No DIB passed!"}, [](Env& e) { return !dibDraw(e.screen, nullptr, nullptr, 0, 0); }},
        {T{"dibDraw: No DIB passed!"}, [](Env& e) { return !dibStretch(e.screen, nullptr, nullptr, 0, 0, 2, 2); }},
        {T{"dibDrawDDB: No DDB passed!"}, [](Env& e) { return !dibDrawDDB(e.screen, nullptr, nullptr, 0, 0); }},
        {T{"dibDrawDDB: No memory device contect!"}, [](Env& e) { return !dibDrawDDB(e.broken, e.ddb, nullptr, 0, 0); }},
        {T{"dibStretchDDB: No DDB!"}, [](Env& e) { return !dibStretchDDB(e.screen, nullptr, nullptr, 0, 0, 2, 2); }},
        {T{"dibStretchDDB: No memory device context!"}, [](Env& e) { return !dibStretchDDB(e.broken, e.ddb, nullptr, 0, 0, 2, 2); }},
        {T{"dibDIBToDDB: No DIB passed!"}, [](Env&) { return !dibDIBToDDB(nullptr, nullptr); }},
        {T{"dibDDBToDIB: No DDB passed!"}, [](Env&) { return none(dibDDBToDIB(nullptr, nullptr, 24, 0)); }},
        {T{"dibDDBToDIB: Not enough memory for DIB!"}, [](Env& e) { return none(dibDDBToDIB(e.wide, nullptr, 0xFFFF, 0)); }},
        {T{"dibDDBToDIB: Error in GetDIBits with RLE-DIBs!"}, [](Env& e) { return none(dibDDBToDIB(e.ddb, nullptr, 8, 7)); }},
        {T{"dibDDBToDIB: Error in GetDIBits during data transfer!"}, [](Env& e) { return none(dibDDBToDIB(e.ddb, nullptr, 7, 0)); }},
        {T{"dibCopy: No DIB passed!"}, [](Env&) { return none(dibCopy(nullptr)); }},
        {T{"dibCopy: Not enough memory for DIB!"}, nullptr, Reach::Elsewhere, "ReduceColors.ChecksAndMemoryFailures (dib_core_test)"},
    };
}

// BMP files.
std::vector<Row> bmpRows() {
    return {
        {T{"dibWrite: No DIB passed!"}, [](Env&) { return !dibWrite("x.bmp", nullptr); }},
        {T{"dibWrite: No file name found!"}, [](Env&) { Handle d(dib(24)); return !dibWrite(nullptr, d.get()); }},
        {T{"dibWrite: Error while creating file!"}, [](Env&) { Handle d(dib(24)); return !dibWrite("no_such_dir\\x.bmp", d.get()); }},
        // Z:\dev\full is Linux's full device as wine shows it: every write fails.
        {T{"dibWrite: Error while writing file!"}, [](Env&) { Handle d(dib(24)); return !dibWrite("Z:\\dev\\full", d.get()); }},
    };
}

// The GIF decoder and encoder.
std::vector<Row> gifRows() {
    auto codes = [](std::initializer_list<unsigned> list) {
        CodeStream c(2);
        c.clear();
        for (unsigned code : list) c.code(code);
        return c;
    };
    return {
        {T{"GIF-Datei nicht lesbar!"}, nullptr, Reach::Elsewhere, "no open returns handle 0; see GifExports.MissingFileIsNoGifFile"},
        {T{"Keine GIF-Datei!"}, [](Env& e) { return !readGif(e, {'G', 'I', 'X', '8', '9', 'a'}); }},
        {T{"Unbekannte GIF-Version: 88a\n\rWeiter?"}, [](Env& e) { return !readGif(e, GifBuilder().header("GIF88a").screen(1, 1, 0).trailer().bytes); },
         Reach::Export, nullptr, "CONV_GIFDLL", 0x2021, IDCANCEL},
        {T{"Zu wenig Speicher f\xFCr DIB vorhanden!"}, [](Env& e) { return !readGif(e, GifBuilder().header().screen(65535, 65535, 7).trailer().bytes); }, Reach::AddressSpace},
        {T{"Vorzeitiges Ende der GIF-Datei!"}, [](Env& e) { return readGif(e, GifBuilder().header().screen(2, 2, 0).bytes); }},
        {T{"Illegaler GIF-Block!"}, [](Env& e) { return readGif(e, GifBuilder().header().screen(2, 2, 0).raw({0x99}).bytes); }},
        {T{"Falsche Farbinformation im Image Descriptor"}, [](Env& e) { return readGif(e, GifBuilder().header().screen(2, 2, 0).image(0, 0, 2, 2, 0x81).table(4).trailer().bytes); }},
        {T{"Dieses GIF-Bild besitzt keine Farbtabelle!"}, [](Env& e) { return readGif(e, GifBuilder().header().screen(2, 2, 0, false).image(0, 0, 2, 2).trailer().bytes); }},
        {T{"Zu wenig Speicher f\xFCr Bitmap vorhanden!"}, [](Env& e) { return readGif(e, GifBuilder().header().screen(2, 2, 0).image(0, 0, 65535, 65535).raw({2, 0}).trailer().bytes); },
         Reach::AddressSpace},
        {T{"Zu wenig Speicher f\xFCr Zuordnungstabelle vorhanden!"}, nullptr, Reach::Elsewhere, "GifMemory.LaterBlocksFailWithTheirMessageAndTheBitmapComesBack (gif_core_test)"},
        {T{"Fehler in Leseschleife!", "Fehler im LZW-Teil des GIF-Bildes!"}, [](Env& e) { return readGif(e, GifBuilder().header().screen(2, 1, 0).image(0, 0, 2, 1).raw({2, 9, 0x0C}).bytes); }},
        {T{"Ung\xFCltiger LZW-Code 7!", "Fehler im LZW-Teil des GIF-Bildes!"}, [codes](Env& e) {
             return readGif(e, GifBuilder().header().screen(2, 1, 0).image(0, 0, 2, 1).codes(2, codes({1, 7}).list).trailer().bytes); }},
        {T{"Fehler im LZW-Teil des GIF-Bildes!"}, [codes](Env& e) {
             return readGif(e, GifBuilder().header().screen(2, 2, 0).image(0, 0, 2, 2).codes(2, codes({1}).list).trailer().bytes); }},
        {T{"Keine DIB vorhanden!"}, [](Env& e) { return !dibWriteGIF(e.gif.c_str(), nullptr, 89, FALSE); }},
        {T{"GIF-Datei konnte nicht erzeugt werden!"}, nullptr, Reach::Elsewhere, "no open returns handle 0; see GifWriteExport.FileThatCannotBeCreatedFailsWithoutABox"},
        {T{"Unbekanntes GIF-Format!"}, [](Env& e) { return writeGif(e, dib(8), 88); }},
        {T{"dibRLEtoDIB: No support for OS/2-Bitmaps!", "Fehler in RLE-Bitmap!"}, [](Env& e) { return writeGif(e, dib(8, BI_RLE8, 12), 89); }},
        {T{"dib16To24: No support for OS/2-Bitmaps!", "Fehler in 16-Bit-DIB!"}, [](Env& e) { return writeGif(e, dib(16, BI_RGB, 12), 89); }},
        {T{"dib32To24: No support for OS/2-Bitmaps!", "Fehler in 16-Bit-DIB!"}, [](Env& e) { return writeGif(e, dib(32, BI_RGB, 12), 89); }},
        {T{"dibGray: No support for OS/2-Bitmaps!", "Fehler bei Farbreduzierung!"}, [](Env& e) { return writeGif(e, dib(24, BI_RGB, 12), 89); }},
        {T{"Zu wenig Speicher f\xFCr Pr\xE4" "fixtabelle vorhanden!"}, nullptr, Reach::Elsewhere, "GifMemory.EncoderMessagesForEachBlock (gif_core_test)"},
    };
}

// The five single steps: no handle, OS/2 header, wrong depth, compression, memory.
std::vector<Row> stepRows() {
    struct Step {
        const char* name;
        HGLOBAL (*run)(HGLOBAL);
        uint16_t bits;
        const char* depth;
        const char* compressed;  // null: compression is not tested
    };
    const Step steps[] = {
        {"dib1To4", dib1To4, 1, "This is not a 1-Bit-DIB!", nullptr},
        {"dib4To8", dib4To8, 4, "This is not a 4-Bit-DIB!", "This is not a RLE-DIB!"},
        {"dib8To24", dib8To24, 8, "This is not a 8-Bit-DIB!", "This is a RLE-DIB!"},
        {"dib16To24", dib16To24, 16, "This is not 16-Bit-DIB!", "This is a RLE-DIB!"},
        {"dib32To24", dib32To24, 32, "This is not a 32-Bit-DIB!", "This is a RLE-DIB!"},
    };
    std::vector<Row> rows;
    for (const Step& s : steps) {
        std::string name = std::string(s.name) + ": ";
        auto run = s.run;
        uint16_t bits = s.bits;
        rows.push_back({T{name + "No DIB passed!"}, [run](Env&) { return none(run(nullptr)); }});
        rows.push_back({T{name + "No support for OS/2-Bitmaps!"}, [run, bits](Env&) { Handle d(dib(bits, BI_RGB, 12)); return none(run(d.get())); }});
        rows.push_back({T{name + s.depth}, [run, bits](Env&) { Handle d(dib(bits == 8 ? 24 : 8)); return none(run(d.get())); }});
        if (s.compressed)
            rows.push_back({T{name + s.compressed}, [run, bits](Env&) { Handle d(dib(bits, bits == 4 ? BI_RLE4 : BI_RLE8)); return none(run(d.get())); }});
        rows.push_back({T{name + "Not enough memory for DIB!"}, [run, bits](Env&) { Handle d(huge(bits)); return none(run(d.get())); }});
    }
    return rows;
}

// The chains, dib24To8 and the reductions.
std::vector<Row> chainRows() {
    struct Chain {
        const char* name;
        HGLOBAL (*run)(HGLOBAL);
    };
    const Chain chains[] = {{"dib1To24", dib1To24}, {"dib4To24", dib4To24}, {"dib24To1", dib24To1}, {"dib8To1", dib8To1},
                            {"dib4To1", dib4To1},   {"dib24To4", dib24To4}, {"dib8To4", dib8To4}};
    std::vector<Row> rows;
    for (const Chain& c : chains) {
        auto run = c.run;
        rows.push_back({T{std::string(c.name) + ": No DIB passed!"}, [run](Env&) { return none(run(nullptr)); }});
    }
    std::vector<Row> more = {
        {T{"dib1To8: No DIB passed!"}, nullptr, Reach::Elsewhere, "DibInternal.NullHandlesShowTheirOwnBox (dib_win32_test)"},
        {T{"dib24to8: No DIB passed!"}, [](Env&) { return none(dib24To8(nullptr, TRUE)); }},
        {T{"dib24to8: Not a 24-Bit-DIB!"}, [](Env&) { Handle d(dib(8)); return none(dib24To8(d.get(), FALSE)); }},
        {T{"dib24to8: Not enough memory for DIB!"}, [](Env&) { Handle d(huge(24)); return none(dib24To8(d.get(), TRUE)); }},
        {T{"dibReduceColors: No DIB passed!"}, [](Env&) { return none(dibReduceColors(nullptr, 8, 3)); }},
        {T{"dibReduceColors: uBPP > 8!"}, [](Env&) { Handle d(dib(24)); return none(dibReduceColors(d.get(), 9, 3)); }},
        {T{"dibReduceColors: No support for OS/2-Bitmaps!"}, [](Env&) { Handle d(dib(24, BI_RGB, 12)); return none(dibReduceColors(d.get(), 8, 3)); }},
        {T{"dibReduceColors: No support for RLE-Bitmaps!"}, [](Env&) { Handle d(dib(24, BI_RLE8)); return none(dibReduceColors(d.get(), 8, 3)); }},
        {T{"dibReduceColors: Bitmap is already reduced!"}, [](Env&) { Handle d(dib(8)); return none(dibReduceColors(d.get(), 8, 3)); }},
        {T{"dibReduceColors: Not enough memory for DIB!"}, [](Env&) { Handle d(huge(24)); return none(dibReduceColors(d.get(), 8, 2)); }},
        {T{"MedianCut: Program error: lPixels != 0"}, nullptr, Reach::Elsewhere, "HeaderGuards.MedianCutReportsABoxWhoseCountDisagreesWithItsCells (dib_core_test)"},
        {T{"_DIB24To1: No DIB passed!"}, nullptr, Reach::Elsewhere, "DibInternal.NullHandlesShowTheirOwnBox (dib_win32_test)"},
        {T{"_DIB24To1: No support for OS/2-Bitmaps!"}, [](Env&) { Handle d(dib(24, BI_RGB, 12)); return none(dib24To1(d.get())); }},
        {T{"_DIB24To1: This is not a 24-Bit DIB!"}, [](Env&) { Handle d(dib(8)); return none(dib24To1(d.get())); }},
        {T{"_DIB24To1: Not enough memory for DIB!"}, [](Env&) { Handle d(huge(24)); return none(dib24To1(d.get())); }},
        {T{"_DIB24To4: No DIB passed!"}, nullptr, Reach::Elsewhere, "DibInternal.NullHandlesShowTheirOwnBox (dib_win32_test)"},
        {T{"_DIB24To4: No support for OS/2-Bitmaps!"}, [](Env&) { Handle d(dib(24, BI_RGB, 12)); return none(dib24To4(d.get())); }},
        {T{"_DIB24To4: This is not a 24-Bit DIB!"}, [](Env&) { Handle d(dib(8)); return none(dib24To4(d.get())); }},
        {T{"_DIB24to4: Not enough memory for DIB!"}, [](Env&) { Handle d(huge(24)); return none(dib24To4(d.get())); }},
        {T{"_DIB24To4: Not enough memory for color cube!"}, nullptr, Reach::Elsewhere, "FixedReduction.MessagesIncludingTheLowerCaseTo (dib_core_test)"},
    };
    rows.insert(rows.end(), more.begin(), more.end());
    return rows;
}

// Crop, gray, half size and run-length expansion.
std::vector<Row> imageRows() {
    return {
        {T{"dibCrop: No DIB passed!"}, [](Env&) { return none(dibCrop(nullptr, 0, 0, 1, 1)); }},
        {T{"dibCrop: No support for OS/2-Bitmaps!"}, [](Env&) { Handle d(dib(24, BI_RGB, 12)); return none(dibCrop(d.get(), 0, 0, 1, 1)); }},
        {T{"dibCrop: No support for RLE-Bitmaps!"}, [](Env&) { Handle d(dib(8, BI_RLE8)); return none(dibCrop(d.get(), 0, 0, 1, 1)); }},
        {T{"dibCrop: Not enough memory for DIB!"}, [](Env&) { Handle d(dib(24)); return none(dibCrop(d.get(), 0, 0, kHuge, kHuge)); }},
        {T{"dibGray: No DIB passed!"}, [](Env&) { return none(dibGray(nullptr)); }},
        {T{"dibGray: No support for OS/2-Bitmaps!"}, [](Env&) { Handle d(dib(24, BI_RGB, 12)); return none(dibGray(d.get())); }},
        {T{"dibGray: No support for RLE-Bitmaps!"}, [](Env&) { Handle d(dib(8, BI_RLE8)); return none(dibGray(d.get())); }},
        {T{"dibSmallSize: No DIB passed!"}, [](Env&) { return none(dibSmallSize(nullptr)); }},
        {T{"dibSmallSize: No support for OS/2-Bitmaps!"}, [](Env&) { Handle d(dib(24, BI_RGB, 12)); return none(dibSmallSize(d.get())); }},
        {T{"dibSmallSize: It's a RLE-DIB!"}, [](Env&) { Handle d(dib(4, BI_RLE4)); return none(dibSmallSize(d.get())); }},
        {T{"dibSmallSize: Not enough memory for DIB!"}, [](Env&) { Handle d(huge(24)); return none(dibSmallSize(d.get())); }},
        {T{"dibRLEtoDIB: No DIB passed!"}, [](Env&) { return none(dibRLEtoDIB(nullptr)); }},
        {T{"dibRLEtoDIB: No support for OS/2-Bitmaps!"}, [](Env&) { Handle d(dib(8, BI_RLE8, 12)); return none(dibRLEtoDIB(d.get())); }},
        {T{"dibRLEtoDIB: Not a RLE-Bitmap!"}, [](Env&) { Handle d(dib(8)); return none(dibRLEtoDIB(d.get())); }},
        {T{"dibRLEtoDIB: Not enough memory for DIB!"}, [](Env&) { Handle d(huge(8, BI_RLE8)); return none(dibRLEtoDIB(d.get())); }},
    };
}

// The BMP reader is internal: no export reads a BMP file.
std::vector<Row> readerRows() {
    const char* where = "DibReader.MessageTable (dib_win32_test)";
    std::vector<Row> rows;
    for (const char* text :
         {"dibReadInfo: No valid file handle!", "dibReadInfo: Error while reading BMP header!",
          "dibReadInfo: Not a valid BMP file!", "dibReadInfo: Error while reading DIB info block!",
          "dibReadInfo: Unkown DIB format!", "dibReadInfo: Not enough memory for DIB!", "dibRead: File name not found!",
          "dibRead: Error while reading file!"})
        rows.push_back({T{text}, nullptr, Reach::Elsewhere, where});
    rows.push_back({T{"dibRead: Not enough memory for DIB!"}, nullptr, Reach::Elsewhere,
                    "BmpReader.InvalidFileHandleAndMemoryFailures (dib_core_test)"});
    return rows;
}

std::vector<Row> allRows() {
    std::vector<Row> all;
    for (auto part : {basicRows, bmpRows, gifRows, stepRows, chainRows, imageRows, readerRows}) {
        std::vector<Row> rows = part();
        all.insert(all.end(), rows.begin(), rows.end());
    }
    return all;
}

bool runsHere(Reach reach) {
    return reach == Reach::Export || (reach == Reach::AddressSpace && sizeof(void*) == 4);
}

}  // namespace

TEST(DibMessages, EveryTextIsShownByItsCallWithTitleStyleAndNoOwner) {
    Env env;
    int run = 0;
    for (const Row& row : allRows()) {
        if (!runsHere(row.reach)) continue;
        ++run;
        tst::MessageBoxCapture capture(row.button);
        EXPECT_TRUE(row.call(env)) << row.texts[0] << ": the call did not fail as documented";
        std::vector<tst::CapturedBox> boxes = capture.boxes();
        std::vector<std::string> texts;
        for (const tst::CapturedBox& box : boxes) texts.push_back(box.text);
        EXPECT_EQ(texts, row.texts);
        for (const tst::CapturedBox& box : boxes) {
            EXPECT_EQ(box.title, box.text == row.texts.front() ? row.title : kTitle) << box.text;
            EXPECT_EQ(box.style, box.text == row.texts.front() ? row.style : kErrorStyle) << box.text;
            EXPECT_EQ(box.owner, nullptr) << box.text;
        }
    }
    EXPECT_GE(run, 100);
}

// The table holds each of the library's 121 texts at least once, and every row that is
// not run here says where its text is asserted.
TEST(DibMessages, TheTableCoversEveryText) {
    std::set<std::string> texts;
    for (const Row& row : allRows()) {
        texts.insert(row.texts.begin(), row.texts.end());
        if (row.reach == Reach::Elsewhere) {
            EXPECT_FALSE(row.call) << row.texts[0];
            EXPECT_NE(row.where, nullptr) << row.texts[0];
        } else {
            EXPECT_TRUE(row.call) << row.texts[0];
        }
    }
    EXPECT_EQ(texts.size(), 121u);
}

namespace dibt {

bool documentedText(const std::string& text) {
    static const std::set<std::string> texts = [] {
        std::set<std::string> all;
        for (const Row& row : allRows()) all.insert(row.texts.begin(), row.texts.end());
        return all;
    }();
    if (texts.count(text)) return true;
    const std::string code = "Ung\xFCltiger LZW-Code ", version = "Unbekannte GIF-Version: ";
    if (text.compare(0, code.size(), code) == 0 && text.size() > code.size() + 1 && text.back() == '!')
        return text.find_first_not_of("0123456789", code.size()) == text.size() - 1;
    // A version byte of 0 ends the text early, as the box shows it.
    const std::string ask = "\n\rWeiter?";
    if (text.compare(0, version.size(), version) != 0) return false;
    size_t rest = text.size() - version.size();
    return rest < 3 || (rest == 3 + ask.size() && text.compare(version.size() + 3, ask.size(), ask) == 0);
}

bool documentedTitle(const std::string& title) { return title == kTitle || title == "CONV_GIFDLL"; }

}  // namespace dibt

TEST(DibMessages, FilledInTextsAreRecognised) {
    EXPECT_TRUE(dibt::documentedText("Ung\xFCltiger LZW-Code 4095!"));
    EXPECT_TRUE(dibt::documentedText("Unbekannte GIF-Version: 8\x01z\n\rWeiter?"));
    EXPECT_TRUE(dibt::documentedText("dibCopy: No DIB passed!"));
    EXPECT_FALSE(dibt::documentedText("Ung\xFCltiger LZW-Code !"));
    EXPECT_FALSE(dibt::documentedText("Ung\xFCltiger LZW-Code 12a!"));
    EXPECT_TRUE(dibt::documentedText("Unbekannte GIF-Version: 8"));  // a version byte of 0
    EXPECT_FALSE(dibt::documentedText("Unbekannte GIF-Version: 88\n\rWeiter?"));
    EXPECT_FALSE(dibt::documentedText("dibCopy: No DIB!"));
}
