// Benchmark of the GIF codec core against giflib: both decode the same GIF bytes and
// encode the same 2048 x 2048 8-bit picture, in memory, in one process. Prints a table
// of median CPU times; ratio is giflib's time over ours (above 1: ours is faster).
#include <algorithm>
#include <ctime>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <memory>
#include <string>

#include <gif_lib.h>

#include "bench_host.h"
#include "bench_pictures.h"
#include "gif_codec.h"
#include "giflib_side.h"
#include "timing.h"

using namespace gifbench;

namespace {

// CPU time of this thread: the machine is shared, and time spent waiting for a core
// would be counted against whichever codec happened to run then.
double threadMs() {
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return now.tv_sec * 1e3 + now.tv_nsec / 1e6;
}

double medianMs(int reps, const std::function<void()>& run) { return medianOf(reps, threadMs, run); }

// Our bitmap (bottom-up rows) against giflib's raster (top row first).
bool samePixels(const ts::dib::OwnedBlock& ours, const Bytes& raster, int width, int height) {
    std::uint64_t stride = std::uint64_t(ts::dib::strideOf(width, 8));
    const std::uint8_t* bits = ours.data() + ts::dib::kInfoSize + 1024;
    for (int y = 0; y < height; ++y)
        if (std::memcmp(bits + (height - 1 - y) * stride, raster.data() + std::size_t(y) * width, std::size_t(width)) != 0)
            return false;
    return true;
}

struct Row {
    double ours, giflib;
    std::size_t bytes;
};

Row decodeRow(const Picture& p, const Bytes& file, int reps, ts::gif::GifTables& tables) {
    HeapHost host;
    ts::dib::OwnedBlock check = ts::gif::readGif(file.data(), file.size(), tables, host);
    if (!check || !samePixels(check, giflibDecode(file), p.width, p.height)) {
        std::fprintf(stderr, "decoders disagree on %s\n", p.name.c_str());
        std::exit(1);
    }
    double ours = medianMs(reps, [&] { ts::gif::readGif(file.data(), file.size(), tables, host); });
    double peer = medianMs(reps, [&] { giflibDecode(file); });
    return {ours, peer, file.size()};
}

Row encodeRow(const Picture& p, bool interlace, int reps, ts::gif::GifTables& tables) {
    HeapHost host;
    std::size_t size = 0;
    ts::dib::Source bitmap{p.bitmap.data(), p.bitmap.size()};
    double ours = medianMs(reps, [&] {
        ts::dib::MemorySink sink;
        sink.bytes.reserve(p.indices.size() + p.indices.size() / 2);
        ts::gif::encodeGif(bitmap, 89, interlace, tables, host, sink);
        size = sink.bytes.size();
    });
    double peer = medianMs(reps, [&] { giflibEncode(p.indices, p.width, p.height, p.palette, interlace); });
    return {ours, peer, size};
}

void printRow(const char* op, const Picture& p, bool interlace, const Row& r) {
    std::printf("| %-6s | %-7s | %-10s | %10zu | %9.2f | %9.2f | %5.2fx |\n", op, p.name.c_str(),
                interlace ? "interlaced" : "plain", r.bytes, r.ours, r.giflib, r.giflib / r.ours);
}

}  // namespace

int main(int argc, char** argv) {
    int reps = argc > 1 ? std::max(1, std::atoi(argv[1])) : 11;
    std::string only = argc > 2 ? argv[2] : "";  // one picture by name
    auto tables = std::make_unique<ts::gif::GifTables>();
    std::printf("GIF codec core vs giflib %d.%d.%d, 2048 x 2048 x 8 bits, in memory, median thread CPU time of %d runs\n\n",
                GIFLIB_MAJOR, GIFLIB_MINOR, GIFLIB_RELEASE, reps);
    std::printf("| op     | picture | rows       |  GIF bytes |  ours ms  | giflib ms | ratio  |\n");
    std::printf("|--------|---------|------------|------------|-----------|-----------|--------|\n");
    for (const Picture& p : {naturalPicture(2048), graphicPicture(2048), noisePicture(2048)})
        for (bool interlace : {false, true}) {
            if (!only.empty() && only != p.name) continue;
            Bytes file = giflibEncode(p.indices, p.width, p.height, p.palette, interlace);
            printRow("decode", p, interlace, decodeRow(p, file, reps, *tables));
            printRow("encode", p, interlace, encodeRow(p, interlace, reps, *tables));
        }
    std::printf("\nratio = giflib time / our time; decode input: the same giflib-written bytes for both\n");
    return 0;
}
