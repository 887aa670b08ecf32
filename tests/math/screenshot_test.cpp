// The picture of a scene holding one node of every geometry, attribute and transform
// class, against the golden picture tests/data/nodes_scene.ppm. To make the golden
// picture again, run tests/data/make_nodes_scene.sh.
#include <GL/gl.h>

#include <cstdlib>
#include <string>

#include <gtest/gtest.h>

#include "library/globals.h"
#include "math/gl_canvas.h"
#include "math/nodes_scene.h"
#include "math/ppm.h"
#include "tsobj3d/cgroup.h"
#include "view/pass/scene_draw_context.h"
#include "view/scene/cscene.h"

namespace {

constexpr int kSize = 256;

// The picture as drawn, top-down.
tst::Image drawScene() {
    tst::GlCanvas canvas(kSize);
    cScene scene;
    cScene* saved = CURRENT_SCENE;
    CURRENT_SCENE = &scene;  // the enable node writes its switch here
    std::unique_ptr<cGroup> root = tst::buildNodesScene();
    ts::SceneDrawContext context(scene);
    tst::drawNodesScene(*root, kSize, context);
    CURRENT_SCENE = saved;
    std::unique_ptr<unsigned char[]> bottomUp = canvas.readAll();
    tst::Image image;
    image.width = image.height = kSize;
    image.rgb.resize(kSize * kSize * 3);
    for (int row = 0; row < kSize; ++row)
        std::copy(bottomUp.get() + (kSize - 1 - row) * kSize * 3,
                  bottomUp.get() + (kSize - row) * kSize * 3, image.rgb.begin() + row * kSize * 3);
    return image;
}

TEST(NodesScreenshot, MatchesTheGoldenPicture) {
    const tst::Image image = drawScene();
    if (const char* out = std::getenv("TESSARIN_WRITE_GOLDEN")) {
        ASSERT_TRUE(tst::writePpm(out, image)) << out;
        GTEST_SKIP() << "golden picture written to " << out;
    }
    tst::Image golden;
    const std::string path = std::string(TESSARIN_TEST_DATA) + "/nodes_scene.ppm";
    ASSERT_TRUE(tst::readPpm(path, golden)) << path;
    ASSERT_EQ(kSize, golden.width);
    ASSERT_EQ(kSize, golden.height);
    // Rasterisers may differ by a step of rounding along edges: a pixel counts as
    // different beyond 24 levels in a channel, and up to 0.5 % of them may differ.
    int different = 0, worst = 0;
    for (size_t i = 0; i < image.rgb.size(); i += 3) {
        int d = 0;
        for (int c = 0; c < 3; ++c) d = std::max(d, std::abs(image.rgb[i + c] - golden.rgb[i + c]));
        different += d > 24;
        worst = std::max(worst, d);
    }
    EXPECT_LE(different, kSize * kSize / 200) << "largest difference " << worst;
}

TEST(NodesScreenshot, EveryNodeShows) {
    const tst::Image image = drawScene();
    // Pixels whose colour is dominated by each solid's colour.
    auto count = [&](auto match) {
        int n = 0;
        for (size_t i = 0; i < image.rgb.size(); i += 3)
            n += match(image.rgb[i], image.rgb[i + 1], image.rgb[i + 2]);
        return n;
    };
    EXPECT_GT(count([](int r, int g, int b) { return r > 120 && g < 80 && b < 80; }), 500);   // sphere
    EXPECT_GT(count([](int r, int g, int b) { return g > 120 && r < 100 && b < 120; }), 500);  // box
    EXPECT_GT(count([](int r, int g, int b) { return b > 150 && r < 120 && g < 170; }), 500);  // cylinder
    EXPECT_GT(count([](int r, int g, int b) { return r > 150 && g > 120 && b < 80; }), 300);   // disk
}

}  // namespace
