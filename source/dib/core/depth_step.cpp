// The frame every single depth step shares: checks, new header, block, cursors.
#include "dib/core/depth_step.h"

namespace ts::dib {
namespace {

bool checkStep(Host& host, Source source, const StepRule& rule, InfoHeader& h) {
    if (!requireInfoHeader(host, source, rule.function, h)) return false;
    if (h.biBitCount != rule.fromBits) {
        host.report(rule.function, rule.depthMessage);
        return false;
    }
    if (rule.refuses && rule.refuses(h.biCompression)) {
        host.report(rule.function, rule.compressionMessage);
        return false;
    }
    return true;
}

}  // namespace

bool beginStep(Host& host, Source source, const StepRule& rule, OwnedBlock& out, StepFrame& frame) {
    InfoHeader& s = frame.src;
    if (!checkStep(host, source, rule, s)) return false;
    frame.height = absHeight(s);
    int64_t image = imageBytes(s.biWidth, frame.height, rule.toBits);
    uint64_t prefix = kInfoSize + 4ull * rule.tableEntries;
    if (!allocateOutput(host, out, prefix, image, rule.function)) return false;
    if (!openRows(frame.rows, source, s)) {
        out.reset();
        host.report(rule.function, "Not enough memory for DIB!");
        return false;
    }
    InfoHeader d = newHeader(s.biWidth, int32_t(frame.height), rule.toBits);
    d.biXPelsPerMeter = s.biXPelsPerMeter;
    d.biYPelsPerMeter = s.biYPelsPerMeter;
    if (rule.tableEntries > 0) {
        uint32_t n = colorCount(s);
        d.biClrUsed = rule.tableEntries;
        d.biClrImportant = n;
        copyColorTable(out.data() + kInfoSize, source, n < rule.tableEntries ? n : rule.tableEntries);
    }
    writeHeader(out.data(), d);
    frame.srcStride = strideOf(s.biWidth, s.biBitCount);
    frame.dstStride = strideOf(s.biWidth, rule.toBits);
    frame.dstBits = bitsOf(out.data());
    frame.srcBits = frame.rows.data() + pixelOffset(s);
    host.cursor(Cursor::Wait);
    return true;
}

}  // namespace ts::dib
