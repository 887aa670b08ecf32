// The settings file "Tessarin20.ini" as text: the values it holds, the commented
// template the library writes, and the reader. No file names and no Windows here:
// the caller opens the stream.
#pragma once

#include <cstdio>

namespace ts {

// The home page until a settings file names one: the library ships without a web site
// of its own, so this is a placeholder for whoever deploys it.
constexpr const char* kDefaultHomepage = "http://www.example.com/tessarin/";

// Every value of the file with its default. Reals are floats except the three
// doubles of the projection, which the file still carries at float precision.
struct SceneSettings {
    int initDraw2D = 1;
    int relToPos2D = 1;
    double clipnear = 0.01f;
    double clipfar = 1000.0f;
    double angle = 45.0f;
    float rotate_drot = 15.0f;
    float rotate_dpos = 0.1f;
    float fly_dspeed = 0.005f;
    float walk_drot = 5.0f;
    float walk_dpos = 0.1f;
    float sensib_rotate = 1.0f;
    float sensib_x_fly = 1.0f;
    float sensib_y_fly = 1.0f;
    float sensib_x_walk = 1.0f;
    float sensib_y_walk = 1.0f;
    int auto_delay = 50;
    float yaw_roll_ratio = 0.0f;
    int yaw_around_y = 1;
    float steardelay = 1.2f;
    int colorbits = 24;
    int depthbits = 16;
    int pickvolume = 2;
    int selectBufSize = 64;
    int action_mode = 0;
    int shade_mode = 100000;
    int draw_mode = 100012;
    int project_mode = 0;
    float BackColor_r = 0.0f;
    float BackColor_g = 0.0f;
    float BackColor_b = 0.0f;
    float lightmodelamb_r = 0.2f;
    float lightmodelamb_g = 0.2f;
    float lightmodelamb_b = 0.2f;
    char iniVPName[100] = "Default";
    float iniPos_x = 0.0f;
    float iniPos_y = 0.0f;
    float iniPos_z = 5.0f;
    float iniRot = 0.0f;
    float iniAxis_x = 0.0f;
    float iniAxis_y = 0.0f;
    float iniAxis_z = 0.0f;
    // The address that the Help menu's "QVA Homepage (WWW)" opens; one word, as the
    // file carries it.
    char homepage[200] = {};

    SceneSettings();
};

// The first line of every file the library writes.
constexpr const char* kSettingsHeader = "Initialization Parameters for Tessarin (v2.000, 27-FEB-99)";

// Writes the header, an empty line and the settings in their groups (keys padded to
// 17 characters, "%d", "%f" with six decimals, the name as one word) with their
// comments. Returns false if a write failed.
bool writeSettings(std::FILE* out, const SceneSettings& settings);

// Skips two lines, then reads "key value" pairs, each followed by the rest of its
// line, until the end; known keys set their value (the last of repeated keys wins),
// unknown keys are skipped. A value that does not convert stores what the conversion
// buffer last held. Keys missing from the stream leave their values as they were.
void readSettings(std::FILE* in, SceneSettings& settings);

}  // namespace ts
