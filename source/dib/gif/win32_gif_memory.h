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

}  // namespace ts::gif
