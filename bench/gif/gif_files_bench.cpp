// Benchmark of the file-based GIF exports under Windows (wine): dibWriteGIF and
// dibReadGIF on 2048 x 2048 8-bit pictures, beside the codec core on the same bytes in
// memory in the same run, so that the cost of the files and the layer shows.
#include <windows.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>

#include "bench_host.h"
#include "bench_pictures.h"
#include "gif_codec.h"
#include "tessarin.h"
#include "timing.h"

using namespace gifbench;

namespace {

// Wall-clock milliseconds: the file calls' waiting belongs to their cost.
double wallMs() {
    LARGE_INTEGER now, frequency;
    QueryPerformanceCounter(&now);
    QueryPerformanceFrequency(&frequency);
    return 1e3 * static_cast<double>(now.QuadPart) / static_cast<double>(frequency.QuadPart);
}

HGLOBAL handleOf(const Bytes& block) {
    HGLOBAL handle = GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, block.size());
    if (handle == nullptr) std::exit(1);
    std::memcpy(GlobalLock(handle), block.data(), block.size());
    GlobalUnlock(handle);
    return handle;
}

void printRow(const char* op, const Picture& p, bool interlace, double exported, double core) {
    std::printf("| %-5s | %-7s | %-10s | %9.2f | %9.2f | %5.2fx |\n", op, p.name.c_str(),
                interlace ? "interlaced" : "plain", exported, core, exported / core);
}

void measure(const Picture& p, bool interlace, int reps, const std::string& path) {
    auto tables = std::make_unique<ts::gif::GifTables>();
    HeapHost host;
    HGLOBAL handle = handleOf(p.bitmap);
    double write = medianOf(reps, wallMs, [&] { dibWriteGIF(path.c_str(), handle, 89, interlace); });
    double read = medianOf(reps, wallMs, [&] { GlobalFree(dibReadGIF(path.c_str())); });
    ts::dib::MemorySink file;
    ts::dib::Source bitmap{p.bitmap.data(), p.bitmap.size()};
    double encode = medianOf(reps, wallMs, [&] {
        file = ts::dib::MemorySink{};
        ts::gif::encodeGif(bitmap, 89, interlace, *tables, host, file);
    });
    double decode = medianOf(reps, wallMs, [&] { ts::gif::readGif(file.bytes.data(), file.bytes.size(), *tables, host); });
    GlobalFree(handle);
    printRow("write", p, interlace, write, encode);
    printRow("read", p, interlace, read, decode);
}

}  // namespace

int main(int argc, char** argv) {
    int reps = argc > 1 ? std::max(1, std::atoi(argv[1])) : 11;
    char dir[MAX_PATH];
    GetTempPathA(MAX_PATH, dir);
    std::string path = std::string(dir) + "tessarin_gif_bench.gif";
    std::printf("GIF exports on files vs the codec core in memory, 2048 x 2048 x 8 bits, "
                "median wall-clock time of %d runs\n\n", reps);
    std::printf("| op    | picture | rows       | export ms |   core ms | ratio  |\n");
    std::printf("|-------|---------|------------|-----------|-----------|--------|\n");
    for (const Picture& p : {naturalPicture(2048), graphicPicture(2048), noisePicture(2048)})
        for (bool interlace : {false, true}) measure(p, interlace, reps, path);
    DeleteFileA(path.c_str());
    std::printf("\nratio = export time / core time (file calls, global memory and the layer)\n");
    return 0;
}
