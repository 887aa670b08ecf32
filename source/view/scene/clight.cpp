// The rules of the light calls: what each call changes in a cLight.
#include "view/scene/clight.h"

namespace {

// A null colour becomes a default grey that differs from the constructor's on purpose;
// a given colour only ever clears the grey flag.
void setColor(float* color, int* greyFlag, const float* rgb, float nullGrey) {
    if (rgb == nullptr) {
        color[0] = color[1] = color[2] = nullGrey;
    } else {
        color[0] = rgb[0];
        color[1] = rgb[1];
        color[2] = rgb[2];
        if (!(rgb[0] == rgb[1] && rgb[0] == rgb[2])) *greyFlag = 0;
    }
    color[3] = 1.0f;
}

}  // namespace

void cLight::setDirection(int onFlag, int worldPosFlag, const float* direction) {
    for (int k = 0; k < 3; ++k) position[k] = direction != nullptr ? direction[k] : 1.0f;
    position[3] = 0.0f;
    on = onFlag;
    worldPos = worldPosFlag;
}

void cLight::setColors(const float* ambientRgb, const float* diffuseRgb, const float* specularRgb) {
    setColor(ambient, &ambientGrey, ambientRgb, 0.2f);
    setColor(diffuse, &diffuseGrey, diffuseRgb, 0.5f);
    setColor(specular, &specularGrey, specularRgb, 0.5f);
}

void cLight::setSpot(const float* direction, float cutoff, float exponent) {
    static const float kDown[3] = {0.0f, 0.0f, -1.0f};
    const float* d = direction != nullptr ? direction : kDown;
    for (int k = 0; k < 3; ++k) spotDirection[k] = d[k];
    if (cutoff >= 0.0f && cutoff <= 180.0f) spotCutoff = cutoff;
    // The exponent is confined to 0..1 by the library's own choice.
    if (exponent >= 0.0f && exponent <= 1.0f) spotExponent = exponent;
    pointLight = 1;
    position[3] = 1.0f;
}
