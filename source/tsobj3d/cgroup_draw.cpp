// Selection names for group drawing: in a picking pass every 3D child loads its own
// name before it draws, so a hit names the innermost node drawn.
#include <windows.h>
#include <GL/gl.h>

#include "tsobj3d/cgroup.h"
#include "view/cscene.h"

namespace {

void loadSelectionName(const cNode* child) {
    const cScene* scene = ts::drawingScene();
    if (scene != nullptr && scene->renderMode == GL_SELECT) glLoadName(child->glName());
}

struct InstallNameLoader {
    InstallNameLoader() { cGroup::beforeChildDraw = loadSelectionName; }
} installNameLoader;

}  // namespace
