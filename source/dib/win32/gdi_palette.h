// Palette selection into device contexts, undone at the end of a scope; the screen's
// device context.
#pragma once

#include <windows.h>

namespace ts::dib {

// Selects the palette (when given) as a foreground palette and realizes it; the
// previous palette comes back at the end of the scope.
class SelectedPalette {
public:
    SelectedPalette(HDC dc, HPALETTE palette) : dc_(dc) {
        if (!palette) return;
        previous_ = SelectPalette(dc, palette, FALSE);
        RealizePalette(dc);
    }
    ~SelectedPalette() {
        if (previous_) SelectPalette(dc_, previous_, FALSE);
    }
    SelectedPalette(const SelectedPalette&) = delete;
    SelectedPalette& operator=(const SelectedPalette&) = delete;

private:
    HDC dc_;
    HPALETTE previous_ = nullptr;
};

// The screen's device context, released at the end of the scope.
class ScreenDC {
public:
    ScreenDC() : dc_(GetDC(nullptr)) {}
    ~ScreenDC() {
        if (dc_) ReleaseDC(nullptr, dc_);
    }
    ScreenDC(const ScreenDC&) = delete;
    ScreenDC& operator=(const ScreenDC&) = delete;
    HDC get() const { return dc_; }

private:
    HDC dc_;
};

}  // namespace ts::dib
