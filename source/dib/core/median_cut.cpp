// Median-cut palette building: split the box on its longest axis at the median slice,
// halving the colours, down to one colour a box (the box's count-weighted mean).
#include "dib/core/median_cut.h"

namespace ts::dib {
namespace {

enum Axis { kRed, kGreen, kBlue };

inline uint32_t cell(int r, int g, int b) { return uint32_t(r << 10 | g << 5 | b); }

void addEntry(MedianCut& s, int r5, int g5, int b5) {
    if (s.produced >= 256) return;
    s.palette[s.produced++] = RgbQuad{uint8_t(b5 * 8), uint8_t(g5 * 8), uint8_t(r5 * 8), 0};
}

void addMean(MedianCut& s, const CellBox& box, int64_t pixels) {
    int64_t r = 0, g = 0, b = 0;
    for (int ri = box.r0; ri <= box.r1; ++ri)
        for (int gi = box.g0; gi <= box.g1; ++gi)
            for (int bi = box.b0; bi <= box.b1; ++bi) {
                int64_t n = s.histogram[cell(ri, gi, bi)];
                r += n * ri;
                g += n * gi;
                b += n * bi;
            }
    addEntry(s, int(r / pixels), int(g / pixels), int(b / pixels));
}

// Blue only when strictly the longest, then red over green on a tie.
Axis longestAxis(const CellBox& b) {
    int er = b.r1 - b.r0, eg = b.g1 - b.g0, eb = b.b1 - b.b0;
    if (eb > er && eb > eg) return kBlue;
    return er >= eg ? kRed : kGreen;
}

int64_t sliceCount(const MedianCut& s, CellBox box, Axis axis, int at) {
    int* bounds[3][2] = {{&box.r0, &box.r1}, {&box.g0, &box.g1}, {&box.b0, &box.b1}};
    *bounds[axis][0] = *bounds[axis][1] = at;
    int64_t sum = 0;
    for (int r = box.r0; r <= box.r1; ++r)
        for (int g = box.g0; g <= box.g1; ++g)
            for (int b = box.b0; b <= box.b1; ++b) sum += s.histogram[cell(r, g, b)];
    return sum;
}

void cut(MedianCut& s, const CellBox& box, unsigned k, int64_t p);

// Sweeps the slices up to the median and recurses on both parts with half the colours.
void split(MedianCut& s, const CellBox& box, unsigned k, int64_t p) {
    Axis axis = longestAxis(box);
    int lo = axis == kRed ? box.r0 : axis == kGreen ? box.g0 : box.b0;
    int hi = axis == kRed ? box.r1 : axis == kGreen ? box.g1 : box.b1;
    int64_t sum = 0, before = 0;
    int at = lo;
    for (; at <= hi; ++at) {
        before = sum;
        sum += sliceCount(s, box, axis, at);
        if (sum >= p / 2) break;
    }
    if (at > hi) at = hi;  // counts that do not add up to p: stop at the last slice
    int lowEnd = at == hi ? at - 1 : at;
    int64_t lowCount = at == hi ? before : sum;
    CellBox low = box, high = box;
    int* lowHi[3] = {&low.r1, &low.g1, &low.b1};
    int* highLo[3] = {&high.r0, &high.g0, &high.b0};
    *lowHi[axis] = lowEnd;
    *highLo[axis] = lowEnd + 1;
    cut(s, low, k / 2, lowCount);
    cut(s, high, k / 2, p - lowCount);
}

void cut(MedianCut& s, const CellBox& box, unsigned k, int64_t p) {
    if (p == 0) return;
    if (box.r0 == box.r1 && box.g0 == box.g1 && box.b0 == box.b1) {
        if (s.histogram[cell(box.r0, box.g0, box.b0)] == 0)
            s.host->report("MedianCut", "Program error: lPixels != 0");
        else
            addEntry(s, box.r0, box.g0, box.b0);
        return;
    }
    if (k <= 1 || p == 1) {
        addMean(s, box, p);
        return;
    }
    split(s, box, k, p);
}

}  // namespace

uint32_t runMedianCut(MedianCut& state, unsigned colours, int64_t pixels) {
    state.produced = 0;
    cut(state, CellBox{0, 31, 0, 31, 0, 31}, colours, pixels);
    return state.produced;
}

}  // namespace ts::dib
