// The settings text: the template written byte for byte, and reading files with keys
// in any order, repeated, unknown, missing or malformed.
#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <sstream>
#include <string>

#include "view/scene/settings.h"

namespace {

std::string readAll(std::FILE* f) {
    std::string text;
    std::rewind(f);
    char buffer[512];
    size_t n;
    while ((n = std::fread(buffer, 1, sizeof(buffer), f)) > 0) text.append(buffer, n);
    return text;
}

std::string expectedTemplate() {
    std::ifstream in(TESSARIN_TEST_DATA "/Tessarin20.ini", std::ios::binary);
    std::stringstream text;
    text << in.rdbuf();
    return text.str();
}

// A stream holding text, positioned at its start.
struct TextFile {
    explicit TextFile(const std::string& text) : f(std::tmpfile()) {
        std::fwrite(text.data(), 1, text.size(), f);
        std::rewind(f);
    }
    ~TextFile() { std::fclose(f); }
    std::FILE* f;
};

ts::SceneSettings read(const std::string& text, ts::SceneSettings start = {}) {
    TextFile file(text);
    ts::readSettings(file.f, start);
    return start;
}

const std::string kHeader = "Initialization Parameters for Tessarin (v2.000, 27-FEB-99)\n\n";

}  // namespace

TEST(Settings, DefaultsWriteTheTemplateByteForByte) {
    std::FILE* f = std::tmpfile();
    ASSERT_NE(f, nullptr);
    EXPECT_TRUE(ts::writeSettings(f, ts::SceneSettings{}));
    const std::string written = readAll(f);
    std::fclose(f);
    const std::string expected = expectedTemplate();
    ASSERT_FALSE(expected.empty());
    EXPECT_EQ(written, expected);
}

TEST(Settings, TemplateReadsBackToTheDefaults) {
    ts::SceneSettings changed;
    changed.angle = 10.0;
    changed.shade_mode = 3;
    std::snprintf(changed.iniVPName, sizeof(changed.iniVPName), "Other");
    const ts::SceneSettings back = read(expectedTemplate(), changed);
    EXPECT_EQ(back.angle, 45.0);
    EXPECT_EQ(back.shade_mode, 100000);
    EXPECT_STREQ(back.iniVPName, "Default");
    EXPECT_EQ(back.clipnear, static_cast<double>(0.01f));
}

TEST(Settings, WrittenValuesReadBack) {
    ts::SceneSettings s;
    s.clipfar = 250.5;
    s.auto_delay = 7;
    s.BackColor_g = 0.25f;
    s.iniPos_z = -3.5f;
    std::snprintf(s.iniVPName, sizeof(s.iniVPName), "Start");
    std::FILE* f = std::tmpfile();
    ts::writeSettings(f, s);
    const ts::SceneSettings back = read(readAll(f));
    std::fclose(f);
    EXPECT_EQ(back.clipfar, 250.5);
    EXPECT_EQ(back.auto_delay, 7);
    EXPECT_EQ(back.BackColor_g, 0.25f);
    EXPECT_EQ(back.iniPos_z, -3.5f);
    EXPECT_STREQ(back.iniVPName, "Start");
}

TEST(Settings, KeysInAnyOrderRepeatedAndUnknown) {
    const ts::SceneSettings s = read(kHeader +
                                     "shade_mode 100001 (x)\n"
                                     "\n"
                                     "unknown_key 17 (ignored)\n"
                                     "angle 30.5 (first)\n"
                                     "initDraw2D 0\n"
                                     "angle 60.25 (the last wins)\n"
                                     "   iniAxis_y   2.5   trailing words\n");
    EXPECT_EQ(s.shade_mode, 100001);
    EXPECT_EQ(s.angle, 60.25);
    EXPECT_EQ(s.initDraw2D, 0);
    EXPECT_EQ(s.iniAxis_y, 2.5f);
    EXPECT_EQ(s.draw_mode, 100012);  // missing keys keep what was there
}

TEST(Settings, KeysAreCaseSensitive) {
    const ts::SceneSettings s = read(kHeader + "Angle 12.0\nDRAW_MODE 100010\n");
    EXPECT_EQ(s.angle, 45.0);
    EXPECT_EQ(s.draw_mode, 100012);
}

TEST(Settings, TheFirstTwoLinesAreSkippedWhateverTheyHold) {
    const ts::SceneSettings s = read("angle 1.0\nangle 2.0\nangle 3.0\n");
    EXPECT_EQ(s.angle, 3.0);
}

TEST(Settings, ANameWithABlankKeepsOnlyItsFirstWord) {
    const ts::SceneSettings s = read(kHeader + "iniVPName My view (Initial viewpoint name)\niniRot 4.0\n");
    EXPECT_STREQ(s.iniVPName, "My");
    EXPECT_EQ(s.iniRot, 4.0f);
}

TEST(Settings, AValueThatDoesNotConvertStoresTheLastConversion) {
    const ts::SceneSettings s = read(kHeader + "colorbits 32\ndepthbits none\nclipfar 9.5\niniRot bad\n");
    EXPECT_EQ(s.colorbits, 32);
    EXPECT_EQ(s.depthbits, 32);
    EXPECT_EQ(s.clipfar, 9.5);
    EXPECT_EQ(s.iniRot, 9.5f);
}

TEST(Settings, TruncatedAndOverlongInputStaysInItsBuffers) {
    const std::string longWord(5000, 'x');
    ts::SceneSettings s = read(kHeader + "iniVPName " + longWord + " (c)\nangle");
    EXPECT_EQ(std::string(s.iniVPName).size(), sizeof(s.iniVPName) - 1);
    EXPECT_EQ(s.angle, 45.0);
    s = read("");
    EXPECT_EQ(s.angle, 45.0);
    s = read("only one line");
    EXPECT_EQ(s.angle, 45.0);
}
