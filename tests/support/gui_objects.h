// How many GDI and USER objects this process holds, for leak checks over many cycles.
#pragma once

#include <windows.h>

#include <gtest/gtest.h>

namespace tst {

struct GuiObjects {
    DWORD gdi = 0;
    DWORD user = 0;  // where GetGuiResources counts nothing: windows and menus
    bool fromSystem = false;  // GetGuiResources answered
};

// GetGuiResources where the system counts. Wine answers 0; there the live objects are
// found by their handle-table index, which Wine takes without the generation bits:
// every GDI object, and the windows and menus of this process.
GuiObjects guiObjects();

// Success when `cycles` cycles between the two counts left no object behind: no USER
// object more, and fewer GDI objects more than one for every ten cycles (Wine's cache of
// window device contexts grows now and then by a few DCs with their clip regions, never
// by cycle). Both counts must see objects at all.
::testing::AssertionResult noGrowth(const GuiObjects& before, const GuiObjects& after, int cycles);

}  // namespace tst
