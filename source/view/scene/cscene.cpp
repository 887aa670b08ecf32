// Scene data: construction, the switch fields, and what the data owns.
#include "view/scene/cscene.h"

#include "tsobj3d/cgroup.h"

cScene::cScene() = default;

cScene::~cScene() {
    delete list3D;
    delete list2D;
    delete[] selectBuffer;
}

int* cScene::switchField(int number) {
    int* const fields[] = {&enableLighting, &enableCull,   &enableDepth,     &enableColorMaterial, &pickingOn,
                           &forceRedraw,    &mouseNavigation, &keyNavigation, &contextMenu};
    return number >= 1 && number <= 9 ? fields[number - 1] : nullptr;
}
