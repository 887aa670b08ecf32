// Fuzz target of the BMP reader: any bytes as a file, then every operation on the
// bitmap it yields (headers come from the file unchecked, so they test the guards too).
#include <cstddef>
#include <cstdint>

#include "dib/core/bmp_file.h"
#include "dib/core/depth_convert.h"
#include "dib/core/gdi_bits.h"
#include "dib/core/image_ops.h"
#include "dib/core/reduce.h"
#include "support/memory_host.h"

using namespace ts::dib;

namespace {

void exercise(tst::MemoryHost& host, OwnedBlock& dib, uint8_t choice) {
    Source s = dib.source();
    dibRLEtoDIB(host, s);
    dib1To24(host, s);
    dib4To24(host, s);
    dib8To24(host, s);
    dib16To24(host, s);
    dib32To24(host, s);
    dibGray(host, s);
    dibSmallSize(host, s);
    dibCrop(host, s, int8_t(choice), int8_t(choice >> 1), 5, 3);
    dibReduceColors(host, s, choice % 4, choice & 3);  // few colours: the palette search stays quick
    dib24To4(host, s);
    dib24To1(host, s);
    GdiBits gdi(host);  // what drawing and device bitmaps would hand GDI
    gdi.open(s);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    tst::MemoryHost host;
    host.limit = 1u << 20;  // keeps each input quick; larger bitmaps fail as out of memory
    MemorySource probe(data, size);
    isBmp(probe);
    MemorySource file(data, size);
    OwnedBlock dib = readBmp(host, file);
    if (dib) exercise(host, dib, size ? data[size - 1] : 0);
    return 0;
}
