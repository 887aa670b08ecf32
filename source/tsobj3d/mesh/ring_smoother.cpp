// One coordinate's normal. Few corners (the usual 3 to 8) are linked by a direct scan
// and walked with a bit mask; many corners (poles, fans, non-manifold edges) by a sort
// and a heap. Both take the corners lowest first, so they give the same result.
#include "tsobj3d/mesh/ring_smoother.h"

#include <algorithm>
#include <cmath>
#include <functional>

#include "tsobj3d/mesh/face_normals.h"

namespace ts::mesh {

namespace {

constexpr int32_t kFewCorners = 64;

}  // namespace

void RingSmoother::linkByScan(const Corner* corners, int32_t count) {
    for (int32_t i = 0; i < count; ++i)
        for (int32_t side = 0; side < 2; ++side) {
            const int32_t key = corners[i].key[side];
            if (key == kNoEdge) continue;
            for (int32_t j = i + 1; j < count; ++j) {
                const bool before = corners[j].key[0] == key, after = corners[j].key[1] == key;
                if (!before && !after) continue;
                links_[i].to[2 * side + 1] = j;
                if (before) links_[j].to[0] = i;
                if (after) links_[j].to[2] = i;
                break;
            }
        }
}

// Sorting (key, corner, side) puts the corners that share an edge next to each other,
// in corner order: each is linked to the next one of another corner.
void RingSmoother::linkBySort(const Corner* corners, int32_t count) {
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

// Whether corner `to` joins the run from corner `from`; a face without area always
// joins and carries on the reference normal of the face it was reached from.
bool RingSmoother::joins(int32_t from, const Corner& to, int32_t toIndex) {
    const float* n = faceNormals_ + 3 * int64_t(to.face);
    if (isZeroNormal(n)) {
        reference_[toIndex] = reference_[from];
        return true;
    }
    const float* r = faceNormals_ + 3 * int64_t(reference_[from]);
    if (!(r[0] * n[0] + r[1] * n[1] + r[2] * n[2] >= cosCrease_)) return false;
    reference_[toIndex] = to.face;
    return true;
}

void RingSmoother::walkFew(const Corner* corners, int32_t count, int32_t start) {
    uint64_t members = uint64_t(1) << start;
    uint64_t open = members;
    while (open != 0) {
        const int32_t i = __builtin_ctzll(open);
        open &= open - 1;
        for (int32_t j : links_[i].to) {
            if (j < 0 || (members >> j & 1) != 0 || !joins(i, corners[j], j)) continue;
            members |= uint64_t(1) << j;
            open |= uint64_t(1) << j;
        }
    }
    for (int32_t i = 0; i < count; ++i) member_[i] = members >> i & 1;
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
            if (j < 0 || member_[j] != 0 || !joins(i, corners[j], j)) continue;
            member_[j] = 1;
            heap_.push_back(j);
            std::push_heap(heap_.begin(), heap_.end(), std::greater<int32_t>());
        }
    }
}

// The run's normals summed, each face once (the corners of one face are adjacent),
// and normalised; the start face's normal when they cancel.
void RingSmoother::finish(const Corner* corners, int32_t count, int32_t start, float* n) const {
    float sum[3] = {0, 0, 0};
    int32_t lastFace = -1;
    for (int32_t i = 0; i < count; ++i) {
        if (member_[i] == 0 || corners[i].face == lastFace) continue;
        lastFace = corners[i].face;
        const float* f = faceNormals_ + 3 * int64_t(lastFace);
        sum[0] += f[0];
        sum[1] += f[1];
        sum[2] += f[2];
    }
    const float length = std::sqrt(sum[0] * sum[0] + sum[1] * sum[1] + sum[2] * sum[2]);
    const float reciprocal = 1.0f / length;
    if (length > 0.0f && std::isfinite(reciprocal)) {
        for (int c = 0; c < 3; ++c) n[c] = sum[c] * reciprocal;
        return;
    }
    const float* f = faceNormals_ + 3 * int64_t(corners[start].face);
    for (int c = 0; c < 3; ++c) n[c] = f[c];
}

void RingSmoother::smooth(const Corner* corners, int32_t count, const float* faceNormals, float cosCrease, float* n) {
    faceNormals_ = faceNormals;
    cosCrease_ = cosCrease;
    int32_t start = 0;
    while (start < count && isZeroNormal(faceNormals + 3 * int64_t(corners[start].face))) ++start;
    if (start == count) {
        n[0] = n[1] = n[2] = 0.0f;
        return;
    }
    if (links_.size() < size_t(count)) {
        links_.resize(count);
        reference_.resize(count);
        member_.resize(count);
    }
    for (int32_t i = 0; i < count; ++i) links_[i] = Links{{-1, -1, -1, -1}};
    reference_[start] = corners[start].face;
    if (count <= kFewCorners) {
        linkByScan(corners, count);
        walkFew(corners, count, start);
    } else {
        linkBySort(corners, count);
        walkMany(corners, count, start);
    }
    finish(corners, count, start, n);
}

}  // namespace ts::mesh
