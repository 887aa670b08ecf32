// cViewpoint: a named camera setting of a scene, and the record in which callers pass one.
#pragma once

struct ViewpointRecord;

class cViewpoint {
public:
    cViewpoint() = default;
    cViewpoint(const cViewpoint&) = delete;
    cViewpoint& operator=(const cViewpoint&) = delete;

    // Takes the caller's record; a name longer than 63 characters is cut there.
    void assign(const ViewpointRecord& record);
    void setName(const char* text);

    char name[64] = {};
    float pos[3] = {};
    float axis[3] = {};
    float rotAngle = 0.0f;      // degrees, with axis the camera orientation
    double viewAngle = 0.0;     // the scene's view angle when stored
    unsigned id = 0;            // command identifier of its menu entry
    cViewpoint* next = nullptr;
};

// The caller's form of a viewpoint (the public header's smViewpointRecord).
struct ViewpointRecord {
    char name[100];
    float pos[3];
    float axis[3];
    float rotAngle;
    double viewAngle;
};
