// The light calls' rules on one light: defaults, direction, colours with their grey
// flags, and the spot ranges.
#include <gtest/gtest.h>

#include "view/scene/clight.h"

namespace {

void expectColor(const float* c, float r, float g, float b) {
    EXPECT_EQ(c[0], r);
    EXPECT_EQ(c[1], g);
    EXPECT_EQ(c[2], b);
    EXPECT_EQ(c[3], 1.0f);
}

}  // namespace

TEST(Light, StartsOffAsADirectionalGreyLight) {
    cLight light;
    EXPECT_EQ(light.on, 0);
    EXPECT_EQ(light.worldPos, 1);
    EXPECT_EQ(light.pointLight, 0);
    expectColor(light.ambient, 0.1f, 0.1f, 0.1f);
    expectColor(light.diffuse, 0.6f, 0.6f, 0.6f);
    expectColor(light.specular, 0.5f, 0.5f, 0.5f);
    EXPECT_EQ(light.position[3], 0.0f);
    EXPECT_EQ(light.spotDirection[2], -1.0f);
    EXPECT_EQ(light.spotCutoff, 180.0f);
    EXPECT_EQ(light.constantAttenuation, 1.0f);
    EXPECT_EQ(light.ambientGrey + light.diffuseGrey + light.specularGrey, 3);
}

TEST(Light, DirectionSetsPositionAndFlags) {
    cLight light;
    const float d[3] = {0.0f, 0.5f, 2.0f};
    light.setDirection(1, 0, d);
    EXPECT_EQ(light.on, 1);
    EXPECT_EQ(light.worldPos, 0);
    EXPECT_EQ(light.position[1], 0.5f);
    EXPECT_EQ(light.position[2], 2.0f);
    light.setDirection(0, 1, nullptr);
    EXPECT_EQ(light.position[0], 1.0f);
    EXPECT_EQ(light.position[1], 1.0f);
    EXPECT_EQ(light.position[2], 1.0f);
    EXPECT_EQ(light.position[3], 0.0f);
}

TEST(Light, DirectionAfterASpotMakesItDirectionalButKeepsTheSpot) {
    cLight light;
    const float down[3] = {0.0f, -1.0f, 0.0f};
    light.setSpot(down, 30.0f, 0.5f);
    EXPECT_EQ(light.position[3], 1.0f);
    light.setDirection(1, 1, nullptr);
    EXPECT_EQ(light.position[3], 0.0f);
    EXPECT_EQ(light.spotCutoff, 30.0f);
    EXPECT_EQ(light.spotExponent, 0.5f);
    EXPECT_EQ(light.spotDirection[1], -1.0f);
    EXPECT_EQ(light.pointLight, 1);
}

TEST(Light, NullColoursAreTheCallsOwnGreys) {
    cLight light;
    light.setColors(nullptr, nullptr, nullptr);
    expectColor(light.ambient, 0.2f, 0.2f, 0.2f);
    expectColor(light.diffuse, 0.5f, 0.5f, 0.5f);
    expectColor(light.specular, 0.5f, 0.5f, 0.5f);
}

TEST(Light, ANonGreyColourClearsItsFlagForGood) {
    cLight light;
    const float red[3] = {1.0f, 0.0f, 0.0f};
    const float grey[3] = {0.3f, 0.3f, 0.3f};
    light.setColors(nullptr, red, grey);
    EXPECT_EQ(light.ambientGrey, 1);
    EXPECT_EQ(light.diffuseGrey, 0);
    EXPECT_EQ(light.specularGrey, 1);
    expectColor(light.diffuse, 1.0f, 0.0f, 0.0f);
    light.setColors(nullptr, grey, nullptr);
    EXPECT_EQ(light.diffuseGrey, 0);
    expectColor(light.diffuse, 0.3f, 0.3f, 0.3f);
}

TEST(Light, ColoursTakeRgbAndForceAlphaOne) {
    cLight light;
    light.ambient[3] = 0.25f;
    const float rgb[3] = {0.1f, 0.2f, 0.3f};
    light.setColors(rgb, nullptr, nullptr);
    expectColor(light.ambient, 0.1f, 0.2f, 0.3f);
    EXPECT_EQ(light.ambientGrey, 0);
}

TEST(Light, SpotRangesKeepOldValuesOutside) {
    cLight light;
    light.setSpot(nullptr, 45.0f, 2.0f);
    EXPECT_EQ(light.spotCutoff, 45.0f);
    EXPECT_EQ(light.spotExponent, 0.0f);
    light.setSpot(nullptr, 181.0f, 1.0f);
    EXPECT_EQ(light.spotCutoff, 45.0f);
    EXPECT_EQ(light.spotExponent, 1.0f);
    light.setSpot(nullptr, -1.0f, -0.1f);
    EXPECT_EQ(light.spotCutoff, 45.0f);
    EXPECT_EQ(light.spotExponent, 1.0f);
    light.setSpot(nullptr, 0.0f, 0.0f);
    EXPECT_EQ(light.spotCutoff, 0.0f);
    light.setSpot(nullptr, 180.0f, 0.0f);
    EXPECT_EQ(light.spotCutoff, 180.0f);
    EXPECT_EQ(light.spotDirection[0], 0.0f);
    EXPECT_EQ(light.spotDirection[2], -1.0f);
    EXPECT_EQ(light.pointLight, 1);
    EXPECT_EQ(light.position[3], 1.0f);
}
