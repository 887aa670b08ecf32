// Where the GIF codec takes its blocks from: global memory in the Win32 layer, the C
// heap in tests, tools and the fuzzer.
#pragma once

#include <cstddef>
#include <cstdint>

namespace ts::gif {

// Every block the codec needs comes from here, so that a caller decides where bitmaps
// live and tests can refuse requests to reach the codec's out-of-memory paths.
class Memory {
public:
    virtual ~Memory() = default;
    // A zeroed block of the given size (a size of 0 still gives a block), or null.
    virtual void* allocate(std::size_t bytes) = 0;
    // Gives back a block of this Memory; null is ignored.
    virtual void release(void* block) = 0;
};

// The C heap. A limit makes larger requests fail as if memory had run out.
class HeapMemory final : public Memory {
public:
    explicit HeapMemory(std::size_t limit = SIZE_MAX) : limit_(limit) {}
    void* allocate(std::size_t bytes) override;
    void release(void* block) override;

private:
    std::size_t limit_;
};

// Owns one block of a Memory until it is released or handed on with take().
class Block {
public:
    explicit Block(Memory& memory) : memory_(memory) {}
    // Sizes are 64-bit so that width x height of a 32-bit build cannot wrap: a size
    // beyond the address space simply fails.
    Block(Memory& memory, std::uint64_t bytes) : memory_(memory) { allocate(bytes); }
    ~Block() { memory_.release(data_); }
    Block(const Block&) = delete;
    Block& operator=(const Block&) = delete;

    // Takes a new block in place of the one held; false when none could be had.
    bool allocate(std::uint64_t bytes);
    explicit operator bool() const { return data_ != nullptr; }
    std::uint8_t* bytes() const { return static_cast<std::uint8_t*>(data_); }
    // Hands the block to the caller, who gives it back to the same Memory.
    void* take();

private:
    Memory& memory_;
    void* data_ = nullptr;
};

}  // namespace ts::gif
