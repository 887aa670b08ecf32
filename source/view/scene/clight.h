// cLight: one of a scene's eight light sources, and the rules by which the light calls
// change it. No OpenGL here: the rendering pass hands the fields over.
#pragma once

class cLight {
public:
    int on = 0;
    int ambientGrey = 1;   // r = g = b, so the light dialog may move one slider for all three
    int diffuseGrey = 1;
    int specularGrey = 1;
    int worldPos = 1;      // 1: placed before the camera (stays with the viewer); 0: fixed in the scene
    int pointLight = 0;
    float ambient[4] = {0.1f, 0.1f, 0.1f, 1.0f};
    float diffuse[4] = {0.6f, 0.6f, 0.6f, 1.0f};
    float specular[4] = {0.5f, 0.5f, 0.5f, 1.0f};
    float position[4] = {1.0f, 1.0f, 1.0f, 0.0f};
    float spotDirection[3] = {0.0f, 0.0f, -1.0f};
    float spotCutoff = 180.0f;
    float spotExponent = 0.0f;
    float constantAttenuation = 1.0f;
    float linearAttenuation = 0.0f;
    float quadraticAttenuation = 0.0f;

    // Position from direction (1, 1, 1 when null), w = 0: a directional light. Spot
    // values stay as they are.
    void setDirection(int onFlag, int worldPosFlag, const float* direction);
    // Each colour from its pointer (alpha 1, the grey flag cleared for a non-grey
    // colour, never set again), or a default grey when null: 0.2, 0.5, 0.5.
    void setColors(const float* ambientRgb, const float* diffuseRgb, const float* specularRgb);
    // Spot direction (0, 0, -1 when null); cutoff kept unless within 0..180, exponent
    // unless within 0..1; becomes a positional point light.
    void setSpot(const float* direction, float cutoff, float exponent);
};
