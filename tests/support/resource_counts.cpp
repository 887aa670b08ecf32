// Counting a process's GDI and USER objects and heap blocks, also under wine, whose
// GetGuiResources is a stub.
#include "support/resource_counts.h"

namespace tst {
namespace {

constexpr ULONG_PTR kHandleIndices = 0x10000;  // handles are 16-bit indices in their tables
constexpr ULONG_PTR kFirstUserHandle = 0x20;   // USER handles: even values from 0x20

bool ownWindow(HWND window) {
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    return process == GetCurrentProcessId();
}

long walkGdiTable() {
    long count = 0;
    for (ULONG_PTR index = 0; index < kHandleIndices; ++index) {
        if (GetObjectType(reinterpret_cast<HGDIOBJ>(index)) != 0) ++count;
    }
    return count;
}

long walkUserTable() {
    long count = 0;
    for (ULONG_PTR index = kFirstUserHandle; index < kHandleIndices; index += 2) {
        HWND window = reinterpret_cast<HWND>(index);
        if (IsWindow(window) && ownWindow(window)) ++count;
        if (IsMenu(reinterpret_cast<HMENU>(index))) ++count;
    }
    return count;
}

void countHeaps(ResourceCounts& counts) {
    HANDLE heaps[256];
    const DWORD n = GetProcessHeaps(256, heaps);
    for (DWORD i = 0; i < n && i < 256; ++i) {
        if (!HeapLock(heaps[i])) continue;
        PROCESS_HEAP_ENTRY entry = {};
        while (HeapWalk(heaps[i], &entry)) {
            if ((entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) == 0) continue;
            ++counts.heapBlocks;
            counts.heapBytes += entry.cbData;
        }
        HeapUnlock(heaps[i]);
    }
}

}  // namespace

long countGdiObjects(bool* system) {
    const long counted = static_cast<long>(GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS));
    if (system != nullptr) *system = counted != 0;
    return counted != 0 ? counted : walkGdiTable();
}

long countUserObjects() {
    const long counted = static_cast<long>(GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS));
    return counted != 0 ? counted : walkUserTable();
}

ResourceCounts countResources() {
    ResourceCounts counts;
    counts.gdiObjects = countGdiObjects();
    counts.userObjects = countUserObjects();
    countHeaps(counts);
    return counts;
}

}  // namespace tst
