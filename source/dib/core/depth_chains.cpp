// The conversions built from single steps and reductions; each intermediate is freed
// as soon as the next step has used it.
#include <initializer_list>
#include <utility>

#include "dib/core/depth_convert.h"
#include "dib/core/dib_layout.h"
#include "dib/core/image_ops.h"
#include "dib/core/reduce.h"

namespace ts::dib {
namespace {

using Step = OwnedBlock (*)(Host&, Source);
using Reduction = OwnedBlock (*)(Host&, Block);

bool passed(Host& host, Source src, const char* function) {
    if (!src.present()) host.report(function, "No DIB passed!");
    return src.present();
}

// Runs the steps one after another; a failing step has shown its message.
OwnedBlock chain(Host& host, Source src, std::initializer_list<Step> steps) {
    OwnedBlock current(host);
    for (Step step : steps) {
        OwnedBlock next = step(host, current ? current.source() : src);
        if (!next) return next;
        current = std::move(next);
    }
    return current;
}

// A 24-bit intermediate (a copy or a conversion), then a reduction that may change it.
OwnedBlock reduceFrom(Host& host, Source src, Step to24, Reduction reduce) {
    OwnedBlock work = to24(host, src);
    if (!work) return work;
    return reduce(host, work.block());
}

OwnedBlock to24From4(Host& host, Source src) { return chain(host, src, {dib4To8, dib8To24}); }

}  // namespace

OwnedBlock dib1To8(Host& host, Source src) {
    return passed(host, src, "dib1To8") ? chain(host, src, {dib1To4, dib4To8}) : OwnedBlock(host);
}
OwnedBlock dib1To24(Host& host, Source src) {
    return passed(host, src, "dib1To24") ? chain(host, src, {dib1To4, dib4To8, dib8To24}) : OwnedBlock(host);
}
OwnedBlock dib4To24(Host& host, Source src) {
    return passed(host, src, "dib4To24") ? to24From4(host, src) : OwnedBlock(host);
}
OwnedBlock dib24To1(Host& host, Source src) {
    return passed(host, src, "dib24To1") ? reduceFrom(host, src, dibCopy, _DIB24To1) : OwnedBlock(host);
}
OwnedBlock dib8To1(Host& host, Source src) {
    return passed(host, src, "dib8To1") ? reduceFrom(host, src, dib8To24, _DIB24To1) : OwnedBlock(host);
}
OwnedBlock dib4To1(Host& host, Source src) {
    return passed(host, src, "dib4To1") ? reduceFrom(host, src, to24From4, _DIB24To1) : OwnedBlock(host);
}
OwnedBlock dib24To4(Host& host, Source src) {
    return passed(host, src, "dib24To4") ? reduceFrom(host, src, dibCopy, _DIB24To4) : OwnedBlock(host);
}
OwnedBlock dib8To4(Host& host, Source src) {
    return passed(host, src, "dib8To4") ? reduceFrom(host, src, dib8To24, _DIB24To4) : OwnedBlock(host);
}

OwnedBlock dib24To8(Host& host, Source src, bool gray) {
    if (!passed(host, src, "dib24to8")) return OwnedBlock(host);
    if (readHeader(src.data, src.size).biBitCount != 24) {
        host.report("dib24to8", "Not a 24-Bit-DIB!");
        return OwnedBlock(host);
    }
    return gray ? dibGray(host, src) : dibReduceColors(host, src, 8, 3);
}

}  // namespace ts::dib
