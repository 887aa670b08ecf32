// Picking: the hit that a picking pass reports to the caller with a left click.
#include "view/pass/picking.h"

#include <windows.h>
#include <GL/gl.h>

#include <new>

#include "events/event_wait.h"
#include "view/pass/pass.h"
#include "view/pass/render_steps.h"
#include "view/scene/cscene.h"

namespace ts {
namespace {

constexpr int kWordsPerRecord = 4;  // name count, minimum and maximum depth, one name

// Makes room for one hit record per selection name loaded, plus the record that ends
// the pass. False when the buffer holds that many already or no memory is left.
bool growSelectBuffer(cScene* scene, int names) {
    const long long wanted = static_cast<long long>(names + 1) * kWordsPerRecord;
    if (wanted <= scene->selectBufferEntries || wanted > 0x7FFFFFFF) return false;
    GLuint* bigger = new (std::nothrow) GLuint[static_cast<size_t>(wanted)];
    if (bigger == nullptr) return false;
    delete[] scene->selectBuffer;
    scene->selectBuffer = bigger;
    scene->selectBufferEntries = static_cast<int>(wanted);
    return true;
}

// Selects again into the grown buffer, under the projection still loaded and the
// model-view matrix of the first drawing.
GLint selectAgain(cScene* scene, const float* view) {
    glSelectBuffer(scene->selectBufferEntries, scene->selectBuffer);
    glRenderMode(GL_SELECT);
    glInitNames();
    glPushName(0);
    glPushMatrix();
    glLoadMatrixf(view);
    drawNodes(scene);
    glPopMatrix();
    return glRenderMode(GL_RENDER);
}

}  // namespace

// Hit records are four words each (the name stack holds one entry). The choice is
// the library's own: the last record lying nearer than the first one, else the first;
// the reference depth is not moved along. With an overflowing buffer (negative count)
// the first record is taken. No hit keeps the earlier picked name.
void scanHits(cScene* scene, int hits) {
    const GLuint* buffer = scene->selectBuffer;
    if (hits == 0 || buffer == nullptr || scene->selectBufferEntries < kWordsPerRecord) {
        notePick(0, eventRecord().pickedName);
        return;
    }
    const GLuint reference = buffer[1];
    GLuint picked = buffer[3];
    const long long end = static_cast<long long>(hits) * kWordsPerRecord;
    for (long long at = kWordsPerRecord; at < end && at + 3 < scene->selectBufferEntries; at += kWordsPerRecord) {
        if (reference > buffer[at + 1]) picked = buffer[at + 3];
    }
    notePick(hits, picked);
}

void endPicking(cScene* scene, const float* view, int names) {
    GLint hits = glRenderMode(GL_RENDER);
    if (hits < 0 && growSelectBuffer(scene, names)) hits = selectAgain(scene, view);
    scene->renderMode = GL_RENDER;
    scanHits(scene, hits);
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
