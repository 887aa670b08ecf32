// One coordinate's normal. Few corners (the usual 3 to 8) are linked by a direct scan
// and walked with bit masks; many corners (poles, fans, non-manifold edges) by a sort
// and a heap. Both take the corners lowest first, so they give the same result.
#include "tsobj3d/mesh/ring_smoother.h"

#include <algorithm>
#include <cmath>
#include <functional>

#include "tsobj3d/mesh/face_normals.h"

namespace ts::mesh {

namespace {

// Calls add(i) for the run's members in corner order, each face once (the corners of
// one face are adjacent), and normalises the sum; the start face's normal when the
// normals cancel.
template <typename ForEachMember>
void sumRun(const Corner* corners, int32_t start, ForEachMember forEachMember, float* n) {
    float sum[3] = {0, 0, 0};
    int32_t lastFace = -1;
    forEachMember([&](int32_t i) {
        if (corners[i].face == lastFace) return;
        lastFace = corners[i].face;
        sum[0] += corners[i].normal[0];
        sum[1] += corners[i].normal[1];
        sum[2] += corners[i].normal[2];
    });
    if (normalizeNormal(sum, n)) return;
    for (int c = 0; c < 3; ++c) n[c] = corners[start].normal[c];
}

}  // namespace

// Whether corner `to` joins the run from corner `from`; a face without area always
// joins and carries on the reference normal of the face it was reached from.
inline bool RingSmoother::joins(const Corner* corners, int32_t from, int32_t to) {
    const int32_t reference = reference_[from];
    if (!corners[to].hasArea) {
        reference_[to] = reference;
        return true;
    }
    const float* r = corners[reference].normal;
    const float* n = corners[to].normal;
    if (!(r[0] * n[0] + r[1] * n[1] + r[2] * n[2] >= cosCrease_)) return false;
    reference_[to] = to;
    return true;
}

// Each corner's edges matched against the later corners: bit j of adjacent_[i] is set
// when j is the first corner after i to share one of i's edges (and then bit i of
// adjacent_[j]). Backwards, so that each corner's word is written before later ones
// add to it.
void RingSmoother::linkByScan(const Corner* corners, int32_t count) {
    for (int32_t i = count - 1; i >= 0; --i) {
        uint64_t links = 0;
        for (int32_t key : corners[i].key) {
            if (key == kNoEdge) continue;
            for (int32_t j = i + 1; j < count; ++j) {
                if (corners[j].key[0] != key && corners[j].key[1] != key) continue;
                links |= uint64_t(1) << j;
                adjacent_[j] |= uint64_t(1) << i;
                break;
            }
        }
        adjacent_[i] = links;
    }
}

// The usual case: a closed ring of faces with area, all running the same way round,
// each face once. Then each corner's edge after the coordinate is the edge before it of
// exactly one corner, its successor in the ring; the run is found by walking the ring
// from the start both ways. The same run and the same sum as linkByScan and walkFew,
// for less work. False, with nothing written, for any other ring.
bool RingSmoother::smoothClosedRing(const Corner* corners, int32_t count, float cosCrease, float* n) {
    int32_t next[kFewCorners], previous[kFewCorners];
    uint64_t reached = 0;
    for (int32_t i = 0; i < count; ++i) {
        const int32_t key = corners[i].key[1];
        if (key == kNoEdge || !corners[i].hasArea || (i > 0 && corners[i].face == corners[i - 1].face)) return false;
        int32_t j = 0;
        while (j < count && corners[j].key[0] != key) ++j;
        if (j == count) return false;
        next[i] = j;
        previous[j] = i;
        reached |= uint64_t(1) << j;
    }
    if (reached != (count == 64 ? ~uint64_t(0) : (uint64_t(1) << count) - 1)) return false;
    auto joined = [&](int32_t a, int32_t b) {
        const float* p = corners[a].normal;
        const float* q = corners[b].normal;
        return p[0] * q[0] + p[1] * q[1] + p[2] * q[2] >= cosCrease;
    };
    uint64_t members = 1;
    for (int32_t at = 0, to; (members >> (to = next[at]) & 1) == 0 && joined(at, to); at = to) members |= uint64_t(1) << to;
    for (int32_t at = 0, to; (members >> (to = previous[at]) & 1) == 0 && joined(at, to); at = to)
        members |= uint64_t(1) << to;
    sumRun(corners, 0, [members](auto add) {
        for (uint64_t m = members; m != 0; m &= m - 1) add(__builtin_ctzll(m));
    }, n);
    return true;
}

uint64_t RingSmoother::walkFew(const Corner* corners, int32_t start) {
    uint64_t members = uint64_t(1) << start;
    uint64_t open = members;
    while (open != 0) {
        const int32_t i = __builtin_ctzll(open);
        open &= open - 1;
        for (uint64_t next = adjacent_[i] & ~members; next != 0; next &= next - 1) {
            const int32_t j = __builtin_ctzll(next);
            if (!joins(corners, i, j)) continue;
            members |= uint64_t(1) << j;
            open |= uint64_t(1) << j;
        }
    }
    return members;
}

// Sorting (key, corner, side) puts the corners that share an edge next to each other,
// in corner order: each is linked to the next one of another corner.
void RingSmoother::linkBySort(const Corner* corners, int32_t count) {
    for (int32_t i = 0; i < count; ++i) links_[i] = Links{{-1, -1, -1, -1}};
    keyed_.clear();
    for (int32_t i = 0; i < count; ++i)
        for (int32_t side = 0; side < 2; ++side)
            if (corners[i].key[side] != kNoEdge)
                keyed_.push_back(int64_t(corners[i].key[side]) << 32 | int64_t(i) << 1 | side);
    std::sort(keyed_.begin(), keyed_.end());
    for (size_t e = 1; e < keyed_.size(); ++e) {
        const int64_t a = keyed_[e - 1], b = keyed_[e];
        const int32_t i = int32_t((a & 0xffffffff) >> 1), j = int32_t((b & 0xffffffff) >> 1);
        if ((a >> 32) != (b >> 32) || i == j) continue;
        links_[i].to[2 * (a & 1) + 1] = j;
        links_[j].to[2 * (b & 1)] = i;
    }
}

void RingSmoother::walkMany(const Corner* corners, int32_t count, int32_t start) {
    std::fill(member_.begin(), member_.begin() + count, 0);
    member_[start] = 1;
    heap_.assign(1, start);
    while (!heap_.empty()) {
        std::pop_heap(heap_.begin(), heap_.end(), std::greater<int32_t>());
        const int32_t i = heap_.back();
        heap_.pop_back();
        for (int32_t j : links_[i].to) {
            if (j < 0 || member_[j] != 0 || !joins(corners, i, j)) continue;
            member_[j] = 1;
            heap_.push_back(j);
            std::push_heap(heap_.begin(), heap_.end(), std::greater<int32_t>());
        }
    }
}

void RingSmoother::smooth(const Corner* corners, int32_t count, float cosCrease, float* n) {
    cosCrease_ = cosCrease;
    int32_t start = 0;
    while (start < count && !corners[start].hasArea) ++start;
    if (start == count) {
        n[0] = n[1] = n[2] = 0.0f;
        return;
    }
    if (count <= kFewCorners && smoothClosedRing(corners, count, cosCrease, n)) return;
    if (count <= kFewCorners) {
        reference_ = referenceFew_;
        reference_[start] = start;
        linkByScan(corners, count);
        const uint64_t members = walkFew(corners, start);
        sumRun(corners, start, [members](auto add) {
            for (uint64_t m = members; m != 0; m &= m - 1) add(__builtin_ctzll(m));
        }, n);
        return;
    }
    if (links_.size() < size_t(count)) {
        links_.resize(count);
        referenceMany_.resize(count);
        member_.resize(count);
    }
    reference_ = referenceMany_.data();
    reference_[start] = start;
    linkBySort(corners, count);
    walkMany(corners, count, start);
    sumRun(corners, start, [this, count](auto add) {
        for (int32_t i = 0; i < count; ++i)
            if (member_[i] != 0) add(i);
    }, n);
}

}  // namespace ts::mesh
