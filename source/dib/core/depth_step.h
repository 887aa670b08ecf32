// The frame every single depth step shares: checks, new header, block, cursors.
#pragma once

#include "dib/core/dib_checks.h"

namespace ts::dib {

struct StepRule {
    const char* function;
    uint16_t fromBits;
    uint16_t toBits;
    const char* depthMessage;
    bool (*refuses)(uint32_t compression);  // null: compression is not tested
    const char* compressionMessage;
    uint32_t tableEntries;                  // colour table of the output
};

// A step under way: source header and rows, output block and its pixel rows.
struct StepFrame {
    explicit StepFrame(Host& host) : rows(host) {}
    InfoHeader src{};
    PaddedSource rows;
    const uint8_t* srcBits = nullptr;
    int64_t srcStride = 0, dstStride = 0, height = 0;
    uint8_t* dstBits = nullptr;
};

// Runs the checks in order and makes the output block with its header and table;
// shows the wait cursor on success. False after the step's message.
bool beginStep(Host& host, Source source, const StepRule& rule, OwnedBlock& out, StepFrame& frame);

// The whole step: checks and block, then convertRow(source row, output row, frame) for
// every row of a non-empty picture, then the arrow cursor.
template <typename RowFn>
OwnedBlock runStep(Host& host, Source source, const StepRule& rule, RowFn convertRow) {
    OwnedBlock out(host);
    StepFrame f(host);
    if (!beginStep(host, source, rule, out, f)) return out;
    for (int64_t r = 0; r < f.height && f.src.biWidth > 0; ++r)
        convertRow(f.srcBits + r * f.srcStride, f.dstBits + r * f.dstStride, f);
    host.cursor(Cursor::Arrow);
    return out;
}

inline bool refusesAny(uint32_t compression) { return compression != 0; }
inline bool refusesRle(uint32_t compression) { return compression == 1 || compression == 2; }

}  // namespace ts::dib
