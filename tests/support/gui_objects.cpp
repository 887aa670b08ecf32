// GDI and USER object counts for leak checks over many cycles.
#include "support/gui_objects.h"

#include "support/resource_counts.h"

namespace tst {

GuiObjects guiObjects() {
    GuiObjects count;
    count.gdi = static_cast<DWORD>(countGdiObjects(&count.fromSystem));
    count.user = static_cast<DWORD>(countUserObjects());
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
