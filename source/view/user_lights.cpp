// Exported light calls: they change the current scene's lights in place on the
// caller's thread; the next pass hands them to OpenGL.
#include <windows.h>

#include "guard/guard.h"
#include "library/globals.h"
#include "tessarin.h"
#include "view/scene/cscene.h"

extern "C" {

void smLightDirection(int LightNo, int on, int worldPos, float* direction) {
    ts::guarded("smLightDirection", [&] {
        TS_ASSERT(LightNo>=0 && LightNo <8, "user3d_uti", 150);
        CURRENT_SCENE->lights[LightNo].setDirection(on, worldPos, direction);
    });
}

void smLightColor(int LightNo, float* ambient, float* diffuse, float* specular) {
    ts::guarded("smLightColor", [&] {
        TS_ASSERT(LightNo>=0 && LightNo <8, "user3d_uti", 170);
        CURRENT_SCENE->lights[LightNo].setColors(ambient, diffuse, specular);
    });
}

void smLightSpot(int LightNo, float* direction, float cutoff, float exponent) {
    ts::guarded("smLightSpot", [&] {
        TS_ASSERT(LightNo>=0 && LightNo <8, "user3d_uti", 213);
        CURRENT_SCENE->lights[LightNo].setSpot(direction, cutoff, exponent);
    });
}

}  // extern "C"
