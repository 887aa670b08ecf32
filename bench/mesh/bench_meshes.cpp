// Building the benchmark's meshes, deterministically.
#include "bench_meshes.h"

#include <cmath>

namespace meshbench {

namespace {

// A small fixed generator, so that every run gets the same mesh.
class Noise {
public:
    float next() {
        state_ = state_ * 6364136223846793005ull + 1442695040888963407ull;
        return float(state_ >> 40) / float(1 << 24) - 0.5f;
    }

private:
    uint64_t state_ = 12345;
};

void face(BenchMesh& m, std::initializer_list<int32_t> vertices) {
    m.index.insert(m.index.end(), vertices);
    m.index.push_back(-1);
    ++m.faces;
}

}  // namespace

BenchMesh heightField(int side) {
    BenchMesh m;
    m.name = "height field";
    m.vertsPerFace = 3;
    Noise noise;
    const int points = side + 1;
    m.coords.reserve(size_t(points) * points * 3);
    for (int j = 0; j < points; ++j)
        for (int i = 0; i < points; ++i) {
            const float terrain = 8 * std::sin(i * 0.03f) * std::cos(j * 0.02f);
            m.coords.insert(m.coords.end(), {float(i), terrain + noise.next(), float(j)});
        }
    m.index.reserve(size_t(side) * side * 8);
    for (int j = 0; j < side; ++j)
        for (int i = 0; i < side; ++i) {
            const int32_t p = j * points + i;
            face(m, {p, p + points, p + 1});
            face(m, {p + points, p + points + 1, p + 1});
        }
    return m;
}

BenchMesh quadSphere(int n) {
    BenchMesh m;
    m.name = "quad sphere";
    m.vertsPerFace = 4;
    // Each cube face has its own (n+1)^2 points; the seams are joined by merging the
    // points of neighbouring faces through a lookup on the cube's integer lattice.
    const int side = n + 1;
    std::vector<int32_t> lattice(size_t(side) * side * side, -1);
    auto point = [&](int x, int y, int z) {
        int32_t& slot = lattice[(size_t(z) * side + y) * side + x];
        if (slot < 0) {
            const double px = 2.0 * x / n - 1, py = 2.0 * y / n - 1, pz = 2.0 * z / n - 1;
            const double length = std::sqrt(px * px + py * py + pz * pz);
            slot = int32_t(m.coords.size() / 3);
            m.coords.insert(m.coords.end(), {float(px / length), float(py / length), float(pz / length)});
        }
        return slot;
    };
    // For each cube face: a fixed axis at 0 or n, and two running axes; the winding
    // puts the outside counter-clockwise.
    for (int axis = 0; axis < 3; ++axis)
        for (int high = 0; high < 2; ++high)
            for (int a = 0; a < n; ++a)
                for (int b = 0; b < n; ++b) {
                    int c[4][3];
                    const int corner[4][2] = {{a, b}, {a + 1, b}, {a + 1, b + 1}, {a, b + 1}};
                    for (int k = 0; k < 4; ++k) {
                        const int u = corner[high ? k : 3 - k][0], v = corner[high ? k : 3 - k][1];
                        c[k][axis] = high * n;
                        c[k][(axis + 1) % 3] = u;
                        c[k][(axis + 2) % 3] = v;
                    }
                    face(m, {point(c[0][0], c[0][1], c[0][2]), point(c[1][0], c[1][1], c[1][2]),
                             point(c[2][0], c[2][1], c[2][2]), point(c[3][0], c[3][1], c[3][2])});
                }
    return m;
}

}  // namespace meshbench
