// Unloading the library: a program that loads Tessarin20b.dll at run time and frees it
// again must not be left with the guard's fault handler pointing into the freed code.
// This test loads the DLL itself (LoadLibrary) and links no copy of it.
#include <windows.h>

#include <gtest/gtest.h>

namespace {

constexpr DWORD kTestException = 0xE0005453;
LONG seen = 0;

LONG CALLBACK continueTestException(EXCEPTION_POINTERS* info) {
    if (info->ExceptionRecord->ExceptionCode != kTestException) return EXCEPTION_CONTINUE_SEARCH;
    ++seen;
    return EXCEPTION_CONTINUE_EXECUTION;
}

}  // namespace

TEST(Unload, AnExceptionAfterFreeLibraryReachesTheProgramsOwnHandler) {
    HMODULE library = LoadLibraryA("Tessarin20b.dll");
    ASSERT_NE(library, nullptr);
    using OpenDocu = void (*)(const char*);
    auto openDocu = reinterpret_cast<OpenDocu>(reinterpret_cast<void*>(GetProcAddress(library, "smOpenDocu")));
    ASSERT_NE(openDocu, nullptr);
    openDocu(nullptr);  // a guarded call: the guard registers its fault handler
    ASSERT_TRUE(FreeLibrary(library));
    ASSERT_EQ(GetModuleHandleA("Tessarin20b.dll"), nullptr);

    PVOID handler = AddVectoredExceptionHandler(0, continueTestException);
    RaiseException(kTestException, 0, 0, nullptr);
    RemoveVectoredExceptionHandler(handler);
    EXPECT_EQ(seen, 1);
}
