// Scene-side work of the viewpoint calls, given the scene: adding (from the caller's
// record, or from the camera as it stands), deleting, going to one, and the menu entry.
#pragma once

class cScene;
class cViewpoint;
struct ViewpointRecord;

namespace ts {

// Each stops motion first.
int addViewpoint(cScene* scene, const char* name, const ViewpointRecord* record);
int deleteViewpoint(cScene* scene, const char* name);
int setViewpoint(cScene* scene, const char* name);
// The menu command of a viewpoint entry: applies the first viewpoint with that id.
// False when id names no viewpoint.
bool viewpointCommand(cScene* scene, unsigned id);
void applyViewpoint(cScene* scene, const cViewpoint& vp);

}  // namespace ts
