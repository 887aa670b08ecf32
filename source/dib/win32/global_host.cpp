// The bitmap library's platform layer on Windows: movable global memory blocks, message
// boxes, cursors.
#include "dib/win32/global_host.h"

#include "dib/gif/gif_text.h"
#include "guard/msgbox.h"

namespace ts::dib {

// A moveable block of 0 bytes would be discarded at once: such a block gets one byte.
bool GlobalHost::allocate(uint64_t size, Block& out) {
    if (size > SIZE_MAX) return false;
    HGLOBAL handle = GlobalAlloc(kBlockFlags, size == 0 ? 1 : SIZE_T(size));
    if (!handle) return false;
    auto* data = static_cast<uint8_t*>(GlobalLock(handle));
    if (!data) {
        GlobalFree(handle);
        return false;
    }
    out = Block{handle, data, size_t(size)};
    return true;
}

bool GlobalHost::reallocate(Block& block, uint64_t size) {
    if (size > SIZE_MAX) return false;
    GlobalUnlock(block.handle);
    HGLOBAL grown = GlobalReAlloc(block.handle, SIZE_T(size), kBlockFlags);
    HGLOBAL handle = grown ? grown : block.handle;
    auto* data = static_cast<uint8_t*>(GlobalLock(handle));
    block.data = data;
    block.handle = handle;
    if (grown && data) block.size = size_t(size);
    return grown && data;
}

void GlobalHost::release(Block& block) {
    GlobalUnlock(block.handle);
    GlobalFree(block.handle);
    block = Block{};
}

void* GlobalHost::detach(Block& block) {
    HGLOBAL handle = block.handle;
    GlobalUnlock(handle);
    block = Block{};
    return handle;
}

void GlobalHost::show(const char* text) { ts::errorBox(text); }

// The texts are Windows-1252 bytes and go to MessageBoxA unchanged.
bool GlobalHost::askToContinue(const char* question) {
    return ts::messageBox(question, gif::text::kVersionTitle, gif::text::kVersionStyle) == IDOK;
}

void GlobalHost::cursor(Cursor shape) { SetCursor(LoadCursorA(nullptr, shape == Cursor::Wait ? IDC_WAIT : IDC_ARROW)); }

LockedDib::LockedDib(HGLOBAL handle) : handle_(handle) {
    if (!handle) return;
    data_ = static_cast<uint8_t*>(GlobalLock(handle));
    if (data_) size_ = GlobalSize(handle);
}

LockedDib::~LockedDib() {
    if (data_ && !keep_) GlobalUnlock(handle_);
}

}  // namespace ts::dib
