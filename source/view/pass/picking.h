// Picking: the picking pass that a left click runs, and the scan of its hit records.
#pragma once

class cScene;

namespace ts {

// A left click at client x, y: the pick position, and for a caller waiting on button
// events either a picking pass (picking switch on) or no hit; a scene without 3D
// content leaves the pick fields alone.
void pickForClick(cScene* scene, int x, int y);

// Called by the pass once a picking pass has ended with `hits` records in the scene's
// selection buffer: notes the picked name in the event record.
void scanHits(cScene* scene, int hits);

// Ends a picking pass that drew the list under the model-view matrix `view` and loaded
// `names` selection names. When its hit records overflowed the selection buffer, the
// buffer grows to a record per name (it stays grown) and the list is selected again
// under the same camera, which the first drawing has already moved; then the hits are
// scanned.
void endPicking(cScene* scene, const float* view, int names);

}  // namespace ts
