// Settings and defaults of a new scene (the settings file reader comes later; until
// then every scene starts with the built-in defaults).
#include "view/scene_setup.h"

#include <windows.h>
#include <GL/gl.h>

#include "view/cscene.h"

namespace ts {

int LoadSettings(cScene*) { return 1; }

void initSceneDefaults(cScene* scene) {
    scene->renderMode = GL_RENDER;
    glEnable(GL_NORMALIZE);
    scene->backgroundBrush = CreateSolidBrush(RGB(0, 0, 0));
}

}  // namespace ts
