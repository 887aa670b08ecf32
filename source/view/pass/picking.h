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

}  // namespace ts
