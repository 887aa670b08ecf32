// The scene window's pixels copied through a memory device context into a device
// bitmap of the viewport's size, then converted by the bitmap library.
#include "view/pass/scene_bitmap.h"

#include <GL/gl.h>

#include "tessarin.h"
#include "view/pass/scene_gl.h"
#include "view/scene/cscene.h"

namespace ts {
namespace {

// A memory DC and the bitmap selected into it, both released on every path.
class MemoryCanvas {
public:
    MemoryCanvas(HDC like, int width, int height)
        : dc_(CreateCompatibleDC(like)), bitmap_(CreateCompatibleBitmap(like, width, height)) {}
    ~MemoryCanvas() {
        if (old_ != nullptr) SelectObject(dc_, old_);
        if (bitmap_ != nullptr) DeleteObject(bitmap_);
        if (dc_ != nullptr) DeleteDC(dc_);
    }
    MemoryCanvas(const MemoryCanvas&) = delete;
    MemoryCanvas& operator=(const MemoryCanvas&) = delete;

    // The bitmap exists, describes itself and is selected into the memory DC.
    bool ready(BITMAP* description) {
        if (dc_ == nullptr || bitmap_ == nullptr) return false;
        if (GetObjectA(bitmap_, sizeof(BITMAP), description) == 0) return false;
        old_ = SelectObject(dc_, bitmap_);
        return old_ != nullptr && old_ != HGDI_ERROR;
    }
    // Selects the bitmap out again, as the conversion needs it.
    HBITMAP release() {
        SelectObject(dc_, old_);
        old_ = nullptr;
        return bitmap_;
    }
    HDC dc() const { return dc_; }

private:
    HDC dc_;
    HBITMAP bitmap_;
    HGDIOBJ old_ = nullptr;
};

// The screen's device context for as long as it lives.
class ScreenDc {
public:
    ScreenDc() : dc_(GetDC(nullptr)) {}
    ~ScreenDc() {
        if (dc_ != nullptr) ReleaseDC(nullptr, dc_);
    }
    ScreenDc(const ScreenDc&) = delete;
    ScreenDc& operator=(const ScreenDc&) = delete;
    HDC get() const { return dc_; }

private:
    HDC dc_;
};

}  // namespace

// The pixels come from the screen at the window's client area: a window DC of a
// composited desktop, or of an X11 window under Wine, holds only the window's own
// pixels (or nothing) where another window covers it, while the copy must show the
// covering window there, as the screen does.
HGLOBAL dibFromScene(cScene* scene) {
    if (scene == nullptr || scene->dc == nullptr) return nullptr;
    makeSceneCurrent(scene);
    GLint viewport[4] = {};
    glGetIntegerv(GL_VIEWPORT, viewport);
    MemoryCanvas canvas(scene->dc, viewport[2], viewport[3]);
    BITMAP description = {};
    if (!canvas.ready(&description)) return nullptr;
    POINT origin = {0, 0};
    ClientToScreen(scene->window, &origin);
    ScreenDc screen;
    if (screen.get() == nullptr || !BitBlt(canvas.dc(), 0, 0, description.bmWidth, description.bmHeight, screen.get(),
                                           origin.x, origin.y, SRCCOPY)) {
        return nullptr;
    }
    return dibDDBToDIB(canvas.release(), nullptr, 24, 0);
}

}  // namespace ts
