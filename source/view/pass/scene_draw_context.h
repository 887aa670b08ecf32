// The drawing context of one scene: what the rendering pass, the display-list compile
// and the 2D nodes set on the current scene hand the nodes they draw.
#pragma once

#include "tsobj3d/draw_context.h"

class cScene;

namespace ts {

class SceneDrawContext final : public DrawContext {
public:
    explicit SceneDrawContext(cScene& scene) : scene_(scene) {}

    int shadeMode() const override;
    bool picking() const override;
    void loadName(const cNode& node) override;
    uint32_t listName(const cNode& node) const override;
    bool hasFontLists(uint32_t base) const override;
    int* currentSceneSwitch(int number) override;
    const State2D& state2D() override;

    // Selection names loaded so far by a picking pass: a bound on its hit records.
    int namesLoaded() const { return names_; }

private:
    cScene& scene_;
    int names_ = 0;
    // Read once per context: a pass hands the same state to every 2D node it draws.
    bool state2DRead_ = false;
    State2D state2D_;
};

}  // namespace ts
