// The waitable event record. It is plain memory written by the scene thread and read
// by the waiting caller after hSyncEvent is signalled; fields are never cleared.
#include "events/event_wait.h"

#include <cstddef>
#include <cstring>

#include "events/navigation_state.h"
#include "library/globals.h"

#ifndef _WIN64
static_assert(sizeof(swEventRecord) == 78, "the event record is 78 packed bytes");
static_assert(offsetof(swEventRecord, pos) == 4 && offsetof(swEventRecord, rotAxis) == 16, "record layout");
static_assert(offsetof(swEventRecord, rotAngle) == 28 && offsetof(swEventRecord, dir) == 32, "record layout");
static_assert(offsetof(swEventRecord, mouseX) == 56 && offsetof(swEventRecord, button) == 64, "record layout");
static_assert(offsetof(swEventRecord, hits) == 65 && offsetof(swEventRecord, pickedName) == 69, "record layout");
static_assert(offsetof(swEventRecord, character) == 73 && offsetof(swEventRecord, virtualKey) == 74, "layout");
#else
static_assert(sizeof(swEventRecord) == 82, "the 64-bit record widens only its scene pointer");
#endif

namespace ts {
namespace {

swEventRecord record;
int mask = 0;
int filter = 0;

bool wants(int bit) { return (mask & bit) != 0; }
bool filterPasses() { return filter == 0 || filter == record.virtualKey; }
void signal() { SetEvent(hSyncEvent); }

void notePosition(cScene* scene, LPARAM position) {
    record.scene = scene;
    record.mouseX = LOWORD(position);
    record.mouseY = HIWORD(position);
}

}  // namespace

NavigationState& navigation() {
    static NavigationState state;
    return state;
}

swEventRecord& eventRecord() { return record; }
int& waitMask() { return mask; }
int& waitFilter() { return filter; }

void noteKeyDown(cScene* scene, int virtualKey) {
    if (!wants(kWaitKeys) || navigation().pan != 0 || navigation().zoom != 0) return;
    record.scene = scene;
    record.virtualKey = virtualKey;
}

void completeKeyEvent() {
    if (!wants(kWaitKeys) || navigation().pan != 0 || navigation().zoom != 0 || !filterPasses()) return;
    record.scene = CURRENT_SCENE;
    record.character = 0;
    signal();
}

void noteChar(int character) {
    if (!wants(kWaitKeys) || !filterPasses()) return;
    record.character = static_cast<char>(character & 0xFF);
    record.hits = 0;
    record.pickedName = 0;
    navigation().pan = navigation().zoom = 0;
    signal();
}

void noteButtonDown(cScene* scene, LPARAM position, char button) {
    if (!wants(kWaitButtons)) return;
    notePosition(scene, position);
    record.button = button;
    if (button != 1) {
        record.hits = 0;
        record.pickedName = 0;
    }
    signal();
}

void noteDrag(cScene* scene, LPARAM position) {
    if (!wants(kWaitDrags)) return;
    notePosition(scene, position);
    signal();
}

void noteCamera(const float pos[3], const float* rotAxis, const float* rotAngle, const float* dir, const float* up) {
    if (pos != nullptr) memcpy(record.pos, pos, sizeof(record.pos));
    if (rotAxis != nullptr) memcpy(record.rotAxis, rotAxis, sizeof(record.rotAxis));
    if (rotAngle != nullptr) record.rotAngle = *rotAngle;
    if (dir != nullptr) memcpy(record.dir, dir, sizeof(record.dir));
    if (up != nullptr) memcpy(record.up, up, sizeof(record.up));
}

void notePick(int hits, unsigned name) {
    record.hits = hits;
    record.pickedName = name;
}

}  // namespace ts
