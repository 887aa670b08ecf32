// Bitmap library benchmark: colour reduction against ImageMagick and netpbm, and the
// depth conversions and image operations against memcpy of the same bytes, in one run.
#include <cstdio>
#include <cstring>
#include <functional>
#include <string>

#include "dib/core/depth_convert.h"
#include "dib/core/image_ops.h"
#include "dib/core/reduce.h"
#include "photo.h"
#include "support/imagemagick.h"
#include "support/memory_host.h"
#include "timing.h"

using namespace ts::dib;

namespace {

constexpr int kSide = 2048;
constexpr int kRuns = 9;

Source sourceOf(const std::vector<uint8_t>& v) { return Source{v.data(), v.size()}; }

void reductionTable(const std::vector<uint8_t>& photo) {
    tst::TempDir dir;
    std::string ppm = dir.file("photo.ppm");
    tst::writeFile(ppm, bench::photoPpm(photo));
    double ours = bench::bestSeconds(kRuns, [&] {
        tst::MemoryHost host;
        if (!dibReduceColors(host, sourceOf(photo), 8, 3)) std::puts("dibReduceColors failed");
    });
    std::string out = " '" + dir.file("out.bmp") + "' 2>/dev/null";
    double plain = bench::commandSeconds(3, "convert '" + ppm + "'" + out);
    double colors = bench::commandSeconds(3, "convert '" + ppm + "' -colors 256" + out);
    double pnmquant = bench::commandSeconds(3, "pnmquant 256 '" + ppm + "' > '" + dir.file("q.ppm") + "' 2>/dev/null");
    double magick = colors - plain;
    std::printf("Colour reduction to 256 colours, %dx%d 24-bit photo-like picture\n", kSide, kSide);
    std::printf("  %-44s %10s %10s\n", "", "ms", "ours x");
    std::printf("  %-44s %10.1f %10s\n", "dibReduceColors(8 bits, mode 3)", ours * 1e3, "1.0");
    std::printf("  %-44s %10.1f %10.1f\n", "ImageMagick convert -colors 256 (minus plain)", magick * 1e3, magick / ours);
    std::printf("  %-44s %10.1f %10.1f\n", "netpbm pnmquant 256", pnmquant * 1e3, pnmquant / ours);
    std::printf("  (ImageMagick: -colors %.1f ms, plain convert %.1f ms; target: at least 10x)\n\n", colors * 1e3,
                plain * 1e3);
}

struct Conversion {
    const char* name;
    const std::vector<uint8_t>* source;
    std::function<OwnedBlock(Host&, Source)> run;
};

void conversionRow(const Conversion& c) {
    size_t bytes = 0;
    double ours = bench::bestSeconds(kRuns, [&] {
        tst::MemoryHost host;
        OwnedBlock out = c.run(host, sourceOf(*c.source));
        bytes = std::max(out.size(), c.source->size());
    });
    std::vector<uint8_t> from(bytes, 1), to(bytes, 2);
    double copy = bench::bestSeconds(kRuns, [&] { std::memcpy(to.data(), from.data(), bytes); });
    double mb = double(bytes) / 1e6;
    std::printf("  %-22s %10.1f %12.0f %12.0f %9.0f%%\n", c.name, mb, mb / ours, mb / copy, 100 * copy / ours);
}

void conversionTable(const std::vector<uint8_t>& photo) {
    tst::MemoryHost host;
    OwnedBlock reduced = dibReduceColors(host, sourceOf(photo), 8, 2);
    std::vector<uint8_t> eight(reduced.data(), reduced.data() + reduced.size());
    std::vector<uint8_t> sixteen = bench::asDepth(photo, 16), thirtyTwo = bench::asDepth(photo, 32);
    std::printf("Conversions and image operations, %dx%d (MB = larger of source and result)\n", kSide, kSide);
    std::printf("  %-22s %10s %12s %12s %10s\n", "operation", "MB", "ours MB/s", "memcpy MB/s", "of memcpy");
    const Conversion rows[] = {
        {"dib8To24", &eight, dib8To24},
        {"dib16To24", &sixteen, dib16To24},
        {"dib32To24", &thirtyTwo, dib32To24},
        {"dibGray (24 bits)", &photo, dibGray},
        {"dibCrop (24 bits)", &photo, [](Host& h, Source s) { return dibCrop(h, s, 100, 100, 1800, 1800); }},
        {"dibSmallSize (24 bits)", &photo, dibSmallSize},
    };
    for (const Conversion& c : rows) conversionRow(c);
    std::printf("  (target: at least 25%% of memcpy)\n");
}

}  // namespace

int main() {
    if (!tst::imageMagickAvailable()) std::puts("ImageMagick's convert is missing: its row will read -1");
    std::vector<uint8_t> photo = bench::photoDib(kSide, kSide);
    reductionTable(photo);
    conversionTable(photo);
    return 0;
}
