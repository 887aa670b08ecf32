// The recording layer: import-table redirection of the module's OpenGL and GLU calls.
#include "math/gl_recorder.h"

#include <GL/gl.h>
#include <GL/glu.h>

#include <cstring>
#include <mutex>

namespace tst {

std::string arg(const void* quadric) {
    char text[32];
    std::snprintf(text, sizeof text, "q%p", quadric);
    return text;
}

std::string vec(const float* v, int n) {
    std::string text;
    for (int k = 0; k < n; ++k) text += (k ? "," : "") + arg(v[k]);
    return text;
}

namespace {

std::mutex gLock;
std::vector<std::string> gCalls;

void note(std::string text) {
    std::lock_guard<std::mutex> lock(gLock);
    gCalls.push_back(std::move(text));
}

// Arguments as the recorder prints them; pointers to floats print their elements.
template <int VecLen>
struct Printer {
    static std::string one(const GLfloat* v) { return vec(v, VecLen); }
    static std::string one(GLUquadric* q) { return arg(static_cast<const void*>(q)); }
    template <class T>
    static std::string one(T v) {
        return arg(v);
    }
};

struct Entry {
    const char* dll;
    const char* name;
    void* replacement;
    void* original;
};

template <int N, int VecLen, class R, class... A>
struct Hook {
    static R APIENTRY call(A... a);
};

// The wrapper for the function f, deduced with its calling convention.
template <int N, int VecLen, class R, class... A>
void* hookFor(R(APIENTRY*)(A...)) {
    return reinterpret_cast<void*>(&Hook<N, VecLen, R, A...>::call);
}

Entry gEntries[] = {
#define TST_HOOK(n, dll, fn, vecLen) {dll, #fn, hookFor<n, vecLen>(&fn), nullptr}
    TST_HOOK(0, "opengl32.dll", glBegin, 0),
    TST_HOOK(1, "opengl32.dll", glEnd, 0),
    TST_HOOK(2, "opengl32.dll", glVertex3f, 0),
    TST_HOOK(3, "opengl32.dll", glVertex3fv, 3),
    TST_HOOK(4, "opengl32.dll", glNormal3f, 0),
    TST_HOOK(5, "opengl32.dll", glNormal3fv, 3),
    TST_HOOK(6, "opengl32.dll", glColor3f, 0),
    TST_HOOK(7, "opengl32.dll", glColor3fv, 3),
    TST_HOOK(8, "opengl32.dll", glEnable, 0),
    TST_HOOK(9, "opengl32.dll", glDisable, 0),
    TST_HOOK(10, "opengl32.dll", glPushMatrix, 0),
    TST_HOOK(11, "opengl32.dll", glPopMatrix, 0),
    TST_HOOK(12, "opengl32.dll", glTranslatef, 0),
    TST_HOOK(13, "opengl32.dll", glRotatef, 0),
    TST_HOOK(14, "opengl32.dll", glScalef, 0),
    TST_HOOK(15, "opengl32.dll", glPushAttrib, 0),
    TST_HOOK(16, "opengl32.dll", glPopAttrib, 0),
    TST_HOOK(17, "opengl32.dll", glMaterialfv, 4),
    TST_HOOK(18, "opengl32.dll", glMateriali, 0),
    TST_HOOK(19, "glu32.dll", gluNewQuadric, 0),
    TST_HOOK(20, "glu32.dll", gluDeleteQuadric, 0),
    TST_HOOK(21, "glu32.dll", gluQuadricDrawStyle, 0),
    TST_HOOK(22, "glu32.dll", gluQuadricNormals, 0),
    TST_HOOK(23, "glu32.dll", gluQuadricOrientation, 0),
    TST_HOOK(24, "glu32.dll", gluSphere, 0),
    TST_HOOK(25, "glu32.dll", gluCylinder, 0),
    TST_HOOK(26, "glu32.dll", gluDisk, 0),
    TST_HOOK(27, "glu32.dll", gluPartialDisk, 0),
    TST_HOOK(28, "opengl32.dll", glRasterPos3f, 0),
    TST_HOOK(29, "opengl32.dll", glListBase, 0),
    TST_HOOK(30, "opengl32.dll", glCallLists, 0),
    TST_HOOK(31, "opengl32.dll", glPixelStorei, 0),
    TST_HOOK(32, "opengl32.dll", glPixelZoom, 0),
    TST_HOOK(33, "opengl32.dll", glDrawPixels, 0),
#undef TST_HOOK
};

template <int N, int VecLen, class R, class... A>
R APIENTRY Hook<N, VecLen, R, A...>::call(A... a) {
    std::string text = std::string(gEntries[N].name) + "(";
    bool first = true;
    ((text += (first ? "" : ","), text += Printer<VecLen>::one(a), first = false), ...);
    note(text + ")");
    return reinterpret_cast<R(APIENTRY*)(A...)>(gEntries[N].original)(a...);
}

// The import slot of function from dll in module, or null if it is not imported.
ULONG_PTR* importSlot(HMODULE module, const char* dll, const char* function) {
    auto* base = reinterpret_cast<BYTE*>(module);
    auto* dos = reinterpret_cast<IMAGE_DOS_HEADER*>(base);
    auto* nt = reinterpret_cast<IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
    const IMAGE_DATA_DIRECTORY& dir = nt->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    if (dir.VirtualAddress == 0) return nullptr;
    auto* d = reinterpret_cast<IMAGE_IMPORT_DESCRIPTOR*>(base + dir.VirtualAddress);
    for (; d->Name != 0; ++d) {
        if (_stricmp(reinterpret_cast<char*>(base + d->Name), dll) != 0) continue;
        auto* names = reinterpret_cast<IMAGE_THUNK_DATA*>(base + d->OriginalFirstThunk);
        auto* slots = reinterpret_cast<IMAGE_THUNK_DATA*>(base + d->FirstThunk);
        for (; names->u1.AddressOfData != 0; ++names, ++slots) {
            if (IMAGE_SNAP_BY_ORDINAL(names->u1.Ordinal)) continue;
            auto* byName = reinterpret_cast<IMAGE_IMPORT_BY_NAME*>(base + names->u1.AddressOfData);
            if (std::strcmp(reinterpret_cast<char*>(byName->Name), function) == 0)
                return reinterpret_cast<ULONG_PTR*>(&slots->u1.Function);
        }
    }
    return nullptr;
}

void writeSlot(ULONG_PTR* slot, ULONG_PTR value) {
    DWORD old = 0;
    VirtualProtect(slot, sizeof *slot, PAGE_READWRITE, &old);
    *slot = value;
    VirtualProtect(slot, sizeof *slot, old, &old);
}

}  // namespace

GlRecorder::GlRecorder(HMODULE module) : module_(module ? module : GetModuleHandleA(nullptr)) {
    for (Entry& e : gEntries) {
        ULONG_PTR* slot = importSlot(module_, e.dll, e.name);
        if (slot == nullptr) continue;
        e.original = reinterpret_cast<void*>(*slot);
        writeSlot(slot, reinterpret_cast<ULONG_PTR>(e.replacement));
        ++redirected_;
    }
    take();
}

GlRecorder::~GlRecorder() {
    for (Entry& e : gEntries) {
        ULONG_PTR* slot = importSlot(module_, e.dll, e.name);
        if (slot != nullptr && e.original != nullptr)
            writeSlot(slot, reinterpret_cast<ULONG_PTR>(e.original));
        e.original = nullptr;
    }
}

std::vector<std::string> GlRecorder::take() {
    std::lock_guard<std::mutex> lock(gLock);
    std::vector<std::string> calls;
    calls.swap(gCalls);
    return calls;
}

}  // namespace tst
