// Process-wide navigation state shared by the input handlers and the message loop.
#pragma once

namespace ts {

struct NavigationState {
    int lastX = 0, lastY = 0;
    int buttonDown = 0;
    int pan = 0;   // Ctrl held
    int zoom = 0;  // Shift held
};

NavigationState& navigation();

}  // namespace ts
