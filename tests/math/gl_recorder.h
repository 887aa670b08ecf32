// A recording layer around the OpenGL and GLU calls of one module: while a GlRecorder
// lives, the module's imports of the drawing calls that the nodes use are redirected
// to wrappers that note each call as text ("glBegin(7)", "glVertex3fv(0,1,0)") and then
// call the real function, so the picture is still drawn.
#pragma once

#include <windows.h>

#include <cstdio>
#include <string>
#include <vector>

namespace tst {

// The text of one call, formatted as the recorder formats it: integers in decimal,
// floating-point values with %g (negative zero as zero), vectors as their elements,
// quadrics as "q" and their address.
inline std::string arg(int v) { return std::to_string(v); }
inline std::string arg(unsigned v) { return std::to_string(v); }
inline std::string arg(double v) {
    char text[32];
    std::snprintf(text, sizeof text, "%g", v + 0.0);
    return text;
}
inline std::string arg(float v) { return arg(static_cast<double>(v)); }
std::string arg(const void* quadric);
std::string vec(const float* v, int n);

inline std::string call(const char* name) { return std::string(name) + "()"; }
template <class First, class... Rest>
std::string call(const char* name, First first, Rest... rest) {
    std::string text = std::string(name) + "(" + arg(first);
    ((text += "," + arg(rest)), ...);
    return text + ")";
}

class GlRecorder {
public:
    // Redirects the imports of module (the executable when null).
    explicit GlRecorder(HMODULE module = nullptr);
    ~GlRecorder();
    GlRecorder(const GlRecorder&) = delete;
    GlRecorder& operator=(const GlRecorder&) = delete;

    // The calls noted since construction or the last take(), which it forgets.
    std::vector<std::string> take();
    // How many of the recorded functions the module imports (a module that imports
    // none of them records nothing).
    int redirected() const { return redirected_; }

private:
    HMODULE module_;
    int redirected_ = 0;
};

}  // namespace tst
