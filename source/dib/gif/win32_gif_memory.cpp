// Global-memory blocks for the GIF codec.
#include "win32_gif_memory.h"

namespace ts::gif {

namespace {
constexpr UINT kBlockFlags = GMEM_MOVEABLE | GMEM_ZEROINIT;  // 0x42, as every bitmap
}  // namespace

void* GlobalMemory::allocate(std::size_t bytes) {
    // A moveable block of 0 bytes would be discarded at once.
    HGLOBAL handle = GlobalAlloc(kBlockFlags, bytes == 0 ? 1 : bytes);
    if (handle == nullptr) return nullptr;
    void* block = GlobalLock(handle);
    if (block == nullptr) GlobalFree(handle);
    return block;
}

void GlobalMemory::release(void* block) {
    if (block == nullptr) return;
    HGLOBAL handle = GlobalHandle(block);
    GlobalUnlock(handle);
    GlobalFree(handle);
}

HGLOBAL handOverBlock(void* block) {
    if (block == nullptr) return nullptr;
    HGLOBAL handle = GlobalHandle(block);
    GlobalUnlock(handle);
    return handle;
}

}  // namespace ts::gif
