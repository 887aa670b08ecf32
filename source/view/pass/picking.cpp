// Picking: the hit that a picking pass reports to the caller with a left click.
#include "view/pass/picking.h"

#include <windows.h>
#include <GL/gl.h>

#include "events/event_wait.h"
#include "view/pass/pass.h"
#include "view/scene/cscene.h"

namespace ts {

// Hit records are four words each (the name stack holds one entry). The choice is
// the library's own: the last record lying nearer than the first one, else the first;
// the reference depth is not moved along. With an overflowing buffer (negative count)
// the first record is taken. No hit keeps the earlier picked name.
void scanHits(cScene* scene, int hits) {
    const GLuint* buffer = scene->selectBuffer;
    if (hits == 0 || buffer == nullptr || scene->selectBufSize < 4) {
        notePick(0, eventRecord().pickedName);
        return;
    }
    const GLuint reference = buffer[1];
    GLuint picked = buffer[3];
    for (GLint at = 4; at < 4 * hits && at + 3 < scene->selectBufSize; at += 4) {
        if (reference > buffer[at + 1]) picked = buffer[at + 3];
    }
    notePick(hits, picked);
}

void pickForClick(cScene* scene, int x, int y) {
    scene->pickX = x;
    scene->pickY = y;
    if ((waitMask() & kWaitButtons) == 0 || scene->has3D == 0) return;
    if (scene->pickingOn != 0) {
        scene->renderMode = GL_SELECT;
        renderScene(scene);
    } else {
        notePick(0, 0);
    }
}

}  // namespace ts
