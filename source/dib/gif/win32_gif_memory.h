// The GIF codec's blocks on Windows: movable, zeroed global memory, locked while the
// codec works on it, so that a decoded bitmap is already a bitmap handle.
#pragma once

#include <windows.h>

#include "gif_memory.h"

namespace ts::gif {

class GlobalMemory final : public Memory {
public:
    void* allocate(std::size_t bytes) override;
    void release(void* block) override;
};

// The handle of a block from GlobalMemory, unlocked and handed to the caller.
HGLOBAL handOverBlock(void* block);

// A caller's bitmap handle, locked for the time of a call; null bytes when the handle
// is null or cannot be locked.
class LockedHandle {
public:
    explicit LockedHandle(HGLOBAL handle);
    ~LockedHandle();
    LockedHandle(const LockedHandle&) = delete;
    LockedHandle& operator=(const LockedHandle&) = delete;
    const std::uint8_t* bytes() const { return bytes_; }
    std::size_t size() const { return size_; }

private:
    HGLOBAL handle_;
    const std::uint8_t* bytes_ = nullptr;
    std::size_t size_ = 0;
};

}  // namespace ts::gif
