// The library-wide waitable event record of swWaitForEvent: what each input writes
// into it and when the waiting caller is woken.
#pragma once

#include <windows.h>

#include "tessarin.h"

namespace ts {

constexpr int kWaitKeys = 1;     // key and character events
constexpr int kWaitButtons = 2;  // mouse button-down events
constexpr int kWaitDrags = 4;    // mouse moves during a left-button drag

swEventRecord& eventRecord();
// Mask and filter of the current wait; the mask is 0 while nobody waits.
int& waitMask();
int& waitFilter();

void noteKeyDown(cScene* scene, int virtualKey);
// Called by the message loop when the message after a key-down is not a character.
void completeKeyEvent();
void noteChar(int character);
// Button 1 left, 2 middle, 3 right. For the left button, hits and name come from the
// picking pass when the scene has 3D content.
void noteButtonDown(cScene* scene, LPARAM position, char button);
void noteDrag(cScene* scene, LPARAM position);

// Camera fields: the pass writes pos with rotAxis and rotAngle (TS_ROTATE) or with dir
// and up (TS_FLY, TS_WALK); the action-mode switch writes dir and up. A null field is
// left as it was.
void noteCamera(const float* pos, const float* rotAxis, const float* rotAngle, const float* dir, const float* up);
void notePick(int hits, unsigned name);

}  // namespace ts
