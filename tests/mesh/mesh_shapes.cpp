// The hand-checked test meshes.
#include "mesh_shapes.h"

#include <cmath>

namespace tst {

Shape unitCube() {
    Shape s;
    for (int v = 0; v < 8; ++v) {
        s.coords.push_back(float(v & 1));
        s.coords.push_back(float(v >> 1 & 1));
        s.coords.push_back(float(v >> 2 & 1));
    }
    s.add({0, 2, 3, 1});
    s.add({4, 5, 7, 6});
    s.add({0, 1, 5, 4});
    s.add({2, 6, 7, 3});
    s.add({0, 4, 6, 2});
    s.add({1, 3, 7, 5});
    return s;
}

Shape cylinder(int n, bool capsFirst) {
    Shape s;
    for (int y = 0; y < 2; ++y)
        for (int i = 0; i < n; ++i) {
            const double angle = 2 * tst::kPi * i / n;
            s.coords.push_back(float(std::cos(angle)));
            s.coords.push_back(float(y));
            s.coords.push_back(float(std::sin(angle)));
        }
    auto caps = [&] {
        // Top (+y) runs with decreasing angle, bottom (-y) with increasing angle.
        s.index.push_back(n);
        for (int i = n - 1; i > 0; --i) s.index.push_back(n + i);
        s.index.push_back(-1);
        for (int i = 0; i < n; ++i) s.index.push_back(i);
        s.index.push_back(-1);
    };
    if (capsFirst) caps();
    for (int i = 0; i < n; ++i) s.add({i, n + i, n + (i + 1) % n, (i + 1) % n});
    if (!capsFirst) caps();
    return s;
}

}  // namespace tst
