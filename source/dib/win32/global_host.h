// The bitmap library's one platform layer on Windows: movable global memory blocks, the
// library's message box, the GIF reader's question, the wait and arrow cursors, and
// the caller's handles locked for the time of a call.
#pragma once

#include <windows.h>

#include "dib/core/dib_host.h"

namespace ts::dib {

constexpr UINT kBlockFlags = GMEM_MOVEABLE | GMEM_ZEROINIT;  // 0x42

class GlobalHost : public Host {
public:
    bool allocate(uint64_t size, Block& out) override;
    bool reallocate(Block& block, uint64_t size) override;
    void release(Block& block) override;
    void* detach(Block& block) override;
    void cursor(Cursor shape) override;
    bool askToContinue(const char* question) override;

protected:
    void show(const char* text) override;
};

// A caller's bitmap handle locked for the time of a call. A null handle (or one that
// cannot be locked) gives an absent source, which the operations report as "No DIB".
class LockedDib {
public:
    explicit LockedDib(HGLOBAL handle);
    ~LockedDib();
    LockedDib(const LockedDib&) = delete;
    LockedDib& operator=(const LockedDib&) = delete;

    Source source() const { return Source{data_, size_}; }
    Block block() const { return Block{handle_, data_, size_}; }
    // Leaves the block locked after the call (dibCreatePalette's success path).
    void keepLocked() { keep_ = true; }

private:
    HGLOBAL handle_;
    uint8_t* data_ = nullptr;
    size_t size_ = 0;
    bool keep_ = false;
};

// The handle of a result block, unlocked; 0 for an empty one.
inline HGLOBAL handOver(OwnedBlock&& block) { return static_cast<HGLOBAL>(block.detach()); }

}  // namespace ts::dib
