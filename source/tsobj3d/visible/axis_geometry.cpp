// Layout of the coordinate axis node. Each letter sits in the xy plane just past the
// positive end of its axis, lifted up and to the right by a third of its height so
// that it clears the arrow tip; letters are 0.7 times as wide as they are high.
#include "tsobj3d/visible/axis_geometry.h"

namespace ts {

namespace {

struct Stroke {
    float x0, y0, x1, y1;  // in the letter's unit box
};

const Stroke kLetterX[2] = {{0, 0, 1, 1}, {0, 1, 1, 0}};
const Stroke kLetterY[3] = {{0, 1, 0.5f, 0.5f}, {1, 1, 0.5f, 0.5f}, {0.5f, 0.5f, 0.5f, 0}};
const Stroke kLetterZ[3] = {{0, 1, 1, 1}, {1, 1, 0, 0}, {0, 0, 1, 0}};

struct Letter {
    const Stroke* strokes;
    int count;
};

const Letter kLetters[3] = {{kLetterX, 2}, {kLetterY, 3}, {kLetterZ, 3}};

AxisSegment* addLetter(const AxisParams& p, int axis, AxisSegment* out) {
    const float height = p.letterSize;
    const float width = 0.7f * height;
    const float gap = height / 3.0f;
    float origin[3] = {gap, gap, 0.0f};
    origin[axis] += p.length[axis];
    const Letter& letter = kLetters[axis];
    for (int s = 0; s < letter.count; ++s, ++out) {
        const Stroke& k = letter.strokes[s];
        *out = {axis,
                {origin[0] + k.x0 * width, origin[1] + k.y0 * height, origin[2]},
                {origin[0] + k.x1 * width, origin[1] + k.y1 * height, origin[2]}};
    }
    return out;
}

}  // namespace

void axisSegments(const AxisParams& p, AxisSegment* out) {
    for (int axis = 0; axis < 3; ++axis) {
        AxisSegment line{axis, {0, 0, 0}, {0, 0, 0}};
        line.from[axis] = -p.length[axis];
        line.to[axis] = p.length[axis];
        *out++ = line;
        out = addLetter(p, axis, out);
    }
}

void axisCones(const AxisParams& p, AxisCone* out) {
    // Turns of +z onto +x, -x, +y, -y, +z and -z.
    static const AxisCone kTurns[kAxisCones] = {
        {0, 90, {0, 1, 0}, 0},  {0, 270, {0, 1, 0}, 0}, {1, 270, {1, 0, 0}, 0},
        {1, 90, {1, 0, 0}, 0},  {2, 0, {0, 0, 1}, 0},   {2, 180, {0, 1, 0}, 0}};
    for (int c = 0; c < kAxisCones; ++c) {
        out[c] = kTurns[c];
        out[c].offset = p.length[out[c].axis] - p.coneLength;
    }
}

}  // namespace ts
