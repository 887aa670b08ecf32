// The settings values and the scene fields they stand for, paired once and copied in
// either direction.
#include "view/scene/scene_settings.h"

#include <cstring>

#include "view/scene/cscene.h"

namespace ts {
namespace {

// The colours and the initial camera.
template <class Scene, class Settings, class Pair>
void pairColors(Scene& s, Settings& t, Pair pair) {
    pair(s.BackColor[0], t.BackColor_r);
    pair(s.BackColor[1], t.BackColor_g);
    pair(s.BackColor[2], t.BackColor_b);
    pair(s.lightModelAmbient[0], t.lightmodelamb_r);
    pair(s.lightModelAmbient[1], t.lightmodelamb_g);
    pair(s.lightModelAmbient[2], t.lightmodelamb_b);
    pair(s.iniPos[0], t.iniPos_x);
    pair(s.iniPos[1], t.iniPos_y);
    pair(s.iniPos[2], t.iniPos_z);
    pair(s.iniRot, t.iniRot);
    pair(s.iniAxis[0], t.iniAxis_x);
    pair(s.iniAxis[1], t.iniAxis_y);
    pair(s.iniAxis[2], t.iniAxis_z);
}

// Calls pair(sceneField, settingsField) for every value the file carries.
template <class Scene, class Settings, class Pair>
void pairFields(Scene& s, Settings& t, Pair pair) {
    pair(s.initDraw2D, t.initDraw2D);
    pair(s.relToPos2D, t.relToPos2D);
    pair(s.clipnear, t.clipnear);
    pair(s.clipfar, t.clipfar);
    pair(s.angle, t.angle);
    pair(s.rotate_drot, t.rotate_drot);
    pair(s.rotate_dpos, t.rotate_dpos);
    pair(s.fly_dspeed, t.fly_dspeed);
    pair(s.walk_drot, t.walk_drot);
    pair(s.walk_dpos, t.walk_dpos);
    pair(s.sensib_rotate, t.sensib_rotate);
    pair(s.sensib_x_fly, t.sensib_x_fly);
    pair(s.sensib_y_fly, t.sensib_y_fly);
    pair(s.sensib_x_walk, t.sensib_x_walk);
    pair(s.sensib_y_walk, t.sensib_y_walk);
    pair(s.auto_delay, t.auto_delay);
    pair(s.yaw_roll_ratio, t.yaw_roll_ratio);
    pair(s.yaw_around_y, t.yaw_around_y);
    pair(s.steardelay, t.steardelay);
    pair(s.colorbits, t.colorbits);
    pair(s.depthbits, t.depthbits);
    pair(s.pickvolume, t.pickvolume);
    pair(s.selectBufSize, t.selectBufSize);
    pair(s.action_mode, t.action_mode);
    pair(s.shade_mode, t.shade_mode);
    pair(s.draw_mode, t.draw_mode);
    pair(s.project_mode, t.project_mode);
    pairColors(s, t, pair);
}


}  // namespace

SceneSettings settingsOfScene(const cScene* scene) {
    SceneSettings t;
    pairFields(*scene, t, [](const auto& field, auto& value) { value = field; });
    static_assert(sizeof(t.iniVPName) == sizeof(scene->iniVPName), "one name size");
    std::memcpy(t.iniVPName, scene->iniVPName, sizeof(t.iniVPName));
    static_assert(sizeof(t.homepage) == sizeof(scene->homepage), "one address size");
    std::memcpy(t.homepage, scene->homepage, sizeof(t.homepage));
    return t;
}

void applySettings(const SceneSettings& t, cScene* scene) {
    pairFields(*scene, t, [](auto& field, const auto& value) { field = value; });
    std::memcpy(scene->iniVPName, t.iniVPName, sizeof(scene->iniVPName));
    std::memcpy(scene->homepage, t.homepage, sizeof(scene->homepage));
}

}  // namespace ts
