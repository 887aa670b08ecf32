// GDI and USER object counts, from the system or from the handle tables.
#include "support/gui_objects.h"

#include <cstdint>

namespace tst {
namespace {

constexpr uintptr_t kHandleTable = 0x10000;
constexpr uintptr_t kFirstUserHandle = 0x20;  // user handles are (index << 1) + 0x20

DWORD gdiByIndex() {
    DWORD n = 0;
    for (uintptr_t index = 1; index < kHandleTable; ++index) {
        if (GetObjectType(reinterpret_cast<HGDIOBJ>(index)) != 0) ++n;
    }
    return n;
}

DWORD userByIndex() {
    DWORD n = 0;
    const DWORD self = GetCurrentProcessId();
    for (uintptr_t index = 0; index < kHandleTable / 2; ++index) {
        const uintptr_t handle = (index << 1) + kFirstUserHandle;
        if (IsMenu(reinterpret_cast<HMENU>(handle))) {
            ++n;
        } else if (IsWindow(reinterpret_cast<HWND>(handle))) {
            DWORD process = 0;
            GetWindowThreadProcessId(reinterpret_cast<HWND>(handle), &process);
            if (process == self) ++n;
        }
    }
    return n;
}

}  // namespace

GuiObjects guiObjects() {
    GuiObjects count;
    count.gdi = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS);
    count.user = GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS);
    count.fromSystem = count.gdi != 0;
    if (!count.fromSystem) {
        count.gdi = gdiByIndex();
        count.user = userByIndex();
    }
    return count;
}

::testing::AssertionResult noGrowth(const GuiObjects& before, const GuiObjects& after, int cycles) {
    const auto counts = [&] {
        return ::testing::Message() << "GDI objects " << before.gdi << " -> " << after.gdi << ", USER objects "
                                    << before.user << " -> " << after.user << " after " << cycles << " cycles ("
                                    << (before.fromSystem ? "GetGuiResources" : "handle tables") << ")";
    };
    if (before.gdi == 0 || before.user == 0) return ::testing::AssertionFailure() << "nothing counted: " << counts();
    if (after.user > before.user || after.gdi >= before.gdi + static_cast<DWORD>(cycles) / 10) {
        return ::testing::AssertionFailure() << counts();
    }
    return ::testing::AssertionSuccess() << counts();
}

}  // namespace tst
