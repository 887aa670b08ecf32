// Writer and reader of the settings text, driven by one table of keys.
#include "view/scene/settings.h"

#include <cstring>

namespace ts {
namespace {

enum class Kind { Int, Real, RealDouble, Word };

// A word value: its text buffer in the settings, and the buffer's size.
struct WordField {
    char* (*text)(SceneSettings&);
    size_t size;
};

struct Key {
    const char* name;
    Kind kind;
    int group;
    const char* comment;
    int SceneSettings::*intField;
    float SceneSettings::*floatField;
    double SceneSettings::*doubleField;
    WordField word;
};

constexpr Key intKey(const char* n, int g, int SceneSettings::*f, const char* c) {
    return {n, Kind::Int, g, c, f, nullptr, nullptr, {}};
}
constexpr Key realKey(const char* n, int g, float SceneSettings::*f, const char* c) {
    return {n, Kind::Real, g, c, nullptr, f, nullptr, {}};
}
constexpr Key doubleKey(const char* n, int g, double SceneSettings::*f, const char* c) {
    return {n, Kind::RealDouble, g, c, nullptr, nullptr, f, {}};
}
constexpr Key wordKey(const char* n, int g, WordField f, const char* c) {
    return {n, Kind::Word, g, c, nullptr, nullptr, nullptr, f};
}

char* viewpointName(SceneSettings& s) { return s.iniVPName; }
char* homepage(SceneSettings& s) { return s.homepage; }

using S = SceneSettings;

// The file's keys in the order written; the comments keep their spelling.
const Key kKeys[] = {
    intKey("initDraw2D", 1, &S::initDraw2D, "(Boolean flag if 2D objects should be drawn after inserting)"),
    intKey("relToPos2D", 1, &S::relToPos2D, "(Boolean flag if 2D objects should be drawn relative to the current position)"),
    doubleKey("clipnear", 2, &S::clipnear, "(Distance from the eye point to near cliping plane)"),
    doubleKey("clipfar", 2, &S::clipfar, "(Distance from the eye point to far cliping plane)"),
    doubleKey("angle", 2, &S::angle, "(View angle)"),
    realKey("rotate_drot", 3, &S::rotate_drot, "(Incremental rotation angle in TS_ROTATE mode)"),
    realKey("rotate_dpos", 3, &S::rotate_dpos, "(Incremental position translation in TS_ROTATE mode)"),
    realKey("fly_dspeed", 3, &S::fly_dspeed, "(Incremental speed increase (keyboard) in TS_FLY mode)"),
    realKey("walk_drot", 3, &S::walk_drot, "(Incremental rotation angle (keyboard) in TS_WALK mode)"),
    realKey("walk_dpos", 3, &S::walk_dpos, "(Incremental position translation (keyboard) in TS_WALK mode)"),
    realKey("sensib_rotate", 4, &S::sensib_rotate, "(Mouse sensebility in TS_ROTATE mode)"),
    realKey("sensib_x_fly", 4, &S::sensib_x_fly, "(Horizontal mouse sensebility in TS_FLY mode)"),
    realKey("sensib_y_fly", 4, &S::sensib_y_fly, "(Vertical mouse sensebility in TS_FLY mode)"),
    realKey("sensib_x_walk", 4, &S::sensib_x_walk, "(Horizontal mouse sensebility in TS_WALK mode)"),
    realKey("sensib_y_walk", 4, &S::sensib_y_walk, "(Vertical mouse sensebility in TS_WALK mode)"),
    intKey("auto_delay", 4, &S::auto_delay, "(Delay for continuous motion in TS_ROTATE mode)"),
    realKey("yaw_roll_ratio", 4, &S::yaw_roll_ratio,
            "(Ratio between yaw and roll. 0.0 -> horiz. mouse movement is 100% yaw)"),
    intKey("yaw_around_y", 4, &S::yaw_around_y,
           "(Boolean flag if yaw is around the world y axis. If FALSE yaw is around airplanes look up axis)"),
    realKey("steardelay", 4, &S::steardelay, "(For future use)"),
    intKey("colorbits", 5, &S::colorbits, "(NO. of bits of OpenGL color buffer)"),
    intKey("depthbits", 5, &S::depthbits, "(NO. of bits of OpenGL depth buffer)"),
    intKey("pickvolume", 5, &S::pickvolume, "(Rectangle size of the pick volume for selection mode)"),
    intKey("selectBufSize", 5, &S::selectBufSize, "(Size of selection buffer)"),
    intKey("action_mode", 6, &S::action_mode, "(0=TS_ROTATE, 1=TS_FLY, 2=TS_WALK)"),
    intKey("shade_mode", 6, &S::shade_mode, "(100000=SMOOTH, 100001=FLAT, 100002=NONE)"),
    intKey("draw_mode", 6, &S::draw_mode, "(100010=POINT, 100011=LINE, 100012=FILL)"),
    intKey("project_mode", 6, &S::project_mode, "(0=PERSPECTIVE, 1=ORTHOGONAL)"),
    realKey("BackColor_r", 7, &S::BackColor_r, "(Background color: red)"),
    realKey("BackColor_g", 7, &S::BackColor_g, "(Background color: green)"),
    realKey("BackColor_b", 7, &S::BackColor_b, "(Background color: blue)"),
    realKey("lightmodelamb_r", 7, &S::lightmodelamb_r, "(Ambient light component: red)"),
    realKey("lightmodelamb_g", 7, &S::lightmodelamb_g, "(Ambient light component: green)"),
    realKey("lightmodelamb_b", 7, &S::lightmodelamb_b, "(Ambient light component: blue)"),
    wordKey("iniVPName", 8, {viewpointName, sizeof(SceneSettings::iniVPName)}, "(Initial viewpoint name)"),
    realKey("iniPos_x", 8, &S::iniPos_x, "(Initial eye pos.x)"),
    realKey("iniPos_y", 8, &S::iniPos_y, "(Initial eye pos.y)"),
    realKey("iniPos_z", 8, &S::iniPos_z, "(Initial eye pos.z)"),
    realKey("iniRot", 8, &S::iniRot, "(Initial rotation angle used in TS_ROTATE mode)"),
    realKey("iniAxis_x", 8, &S::iniAxis_x, "(Initial rotation axis.x used in TS_ROTATE mode)"),
    realKey("iniAxis_y", 8, &S::iniAxis_y, "(Initial rotation axis.y used in TS_ROTATE mode)"),
    realKey("iniAxis_z", 8, &S::iniAxis_z, "(Initial rotation axis.z used in TS_ROTATE mode)"),
    // Added by this library after the classic keys, in a group of its own.
    wordKey("homepage", 9, {homepage, sizeof(SceneSettings::homepage)},
            "(Address of the library's home page on the web)"),
};

constexpr int kLineBuffer = 200;

int writeKey(std::FILE* out, const Key& key, const SceneSettings& s) {
    char padded[32];
    std::snprintf(padded, sizeof(padded), "%-17s", key.name);
    switch (key.kind) {
    case Kind::Int:
        return std::fprintf(out, "%s %d %s\n", padded, s.*key.intField, key.comment);
    case Kind::Real:
        return std::fprintf(out, "%s %f %s\n", padded, s.*key.floatField, key.comment);
    case Kind::RealDouble:
        return std::fprintf(out, "%s %f %s\n", padded, s.*key.doubleField, key.comment);
    case Kind::Word:
        return std::fprintf(out, "%s %s %s\n", padded, key.word.text(const_cast<SceneSettings&>(s)), key.comment);
    }
    return -1;
}

const Key* findKey(const char* name) {
    for (const Key& key : kKeys) {
        if (std::strcmp(key.name, name) == 0) return &key;
    }
    return nullptr;
}

// The conversion buffers outlive a line, so a value that does not convert stores
// what the previous conversion left there.
struct Conversion {
    int intValue = 0;
    float floatValue = 0.0f;
};

void storeValue(const Key& key, const char* value, Conversion& c, SceneSettings& s) {
    switch (key.kind) {
    case Kind::Int:
        std::sscanf(value, "%d", &c.intValue);
        s.*key.intField = c.intValue;
        break;
    case Kind::Real:
        std::sscanf(value, "%f", &c.floatValue);
        s.*key.floatField = c.floatValue;
        break;
    case Kind::RealDouble:
        std::sscanf(value, "%f", &c.floatValue);
        s.*key.doubleField = c.floatValue;
        break;
    case Kind::Word: {
        // A longer word is cut to the field's size less its terminator.
        char* text = key.word.text(s);
        const size_t n = strnlen(value, key.word.size - 1);
        std::memcpy(text, value, n);
        text[n] = '\0';
        break;
    }
    }
}

}  // namespace

SceneSettings::SceneSettings() { std::snprintf(homepage, sizeof(homepage), "%s", kDefaultHomepage); }

bool writeSettings(std::FILE* out, const SceneSettings& settings) {
    bool ok = std::fprintf(out, "%s\n\n", kSettingsHeader) >= 0;
    int group = kKeys[0].group;
    for (const Key& key : kKeys) {
        if (key.group != group) {
            ok = std::fputs("\n", out) >= 0 && ok;
            group = key.group;
        }
        ok = writeKey(out, key, settings) >= 0 && ok;
    }
    return ok;
}

void readSettings(std::FILE* in, SceneSettings& settings) {
    char line[kLineBuffer];
    for (int skip = 0; skip < 2; ++skip) {
        if (std::fgets(line, kLineBuffer, in) == nullptr) return;
    }
    char key[kLineBuffer];
    char value[kLineBuffer];
    Conversion conversion;
    while (std::fscanf(in, "%199s %199s", key, value) == 2) {
        if (std::fgets(line, kLineBuffer, in) == nullptr) line[0] = '\0';
        const Key* known = findKey(key);
        if (known != nullptr) storeValue(*known, value, conversion, settings);
    }
}

}  // namespace ts
