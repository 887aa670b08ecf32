// What the bitmap library needs from its platform: blocks, messages and cursors.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace ts::dib {

enum class Cursor { Wait, Arrow };

// A locked memory block of the platform; handle is what the caller finally owns.
struct Block {
    void* handle = nullptr;
    uint8_t* data = nullptr;
    size_t size = 0;
};

// The bytes of a caller's bitmap, locked for the time of a call; data null = no handle.
struct Source {
    const uint8_t* data = nullptr;
    size_t size = 0;
    bool present() const { return data != nullptr; }
};

// The platform under the whole bitmap library: its blocks, its message box, the GIF
// reader's question and the cursors. Every operation, BMP, GIF and the image
// operations alike, reports through report() or message().
class Host {
public:
    virtual ~Host() = default;
    // A moveable, zeroed, locked block; false when the platform cannot give it. A size
    // of 0 still gives a block.
    virtual bool allocate(uint64_t size, Block& out) = 0;
    // Grows or shrinks a block, keeping its bytes and zeroing new ones; false on failure
    // (the block is then unchanged).
    virtual bool reallocate(Block& block, uint64_t size) = 0;
    virtual void release(Block& block) = 0;
    // Unlocks the block and hands its handle over; the block is empty afterwards.
    virtual void* detach(Block& block) = 0;
    virtual void cursor(Cursor shape) = 0;
    // The GIF reader's question about an unknown version: true to read on (OK).
    virtual bool askToContinue(const char* question) = 0;

    // "<function>: <message>" in the library's error box.
    void report(const char* function, const char* message);
    // A text of its own in the library's error box (the GIF codec's messages).
    void message(const char* text);
    // While the module lock is held, messages wait, so that no box is up while the
    // lock is; the holder shows them once it has let the lock go.
    void holdMessages() { holding_ = true; }
    void showHeldMessages();

protected:
    // Shows one text in the library's error box.
    virtual void show(const char* text) = 0;

private:
    bool holding_ = false;
    std::vector<std::string> held_;
};

// One block of a host, released when it goes out of scope unless it was detached.
class OwnedBlock {
public:
    OwnedBlock() = default;
    explicit OwnedBlock(Host& host) : host_(&host) {}
    OwnedBlock(OwnedBlock&& other) noexcept : host_(other.host_), block_(other.block_) { other.block_ = {}; }
    OwnedBlock& operator=(OwnedBlock&& other) noexcept;
    OwnedBlock(const OwnedBlock&) = delete;
    OwnedBlock& operator=(const OwnedBlock&) = delete;
    ~OwnedBlock() { reset(); }

    bool allocate(uint64_t size) { reset(); return host_->allocate(size, block_); }
    bool resize(uint64_t size) { return host_->reallocate(block_, size); }
    void reset();
    void* detach() { return block_.data ? host_->detach(block_) : nullptr; }

    explicit operator bool() const { return block_.data != nullptr; }
    uint8_t* data() const { return block_.data; }
    size_t size() const { return block_.size; }
    Source source() const { return Source{block_.data, block_.size}; }
    Block& block() { return block_; }

private:
    Host* host_ = nullptr;
    Block block_;
};

// The first `need` bytes of a source, zero-padded when the block is shorter than its
// header says, so that pixel loops never read past a caller's block. The padded copy
// is a block of the host, so absurd headers fail as a refused allocation.
class PaddedSource {
public:
    explicit PaddedSource(Host& host) : copy_(host) {}
    // False when the padded copy cannot be made.
    bool open(Source source, uint64_t need);
    // The same over a block the caller lets us change; changes land in the block itself
    // when it is long enough, else in the padded copy.
    bool openWritable(Block block, uint64_t need);
    const uint8_t* data() const { return data_; }
    uint8_t* writable() const { return writable_; }

private:
    const uint8_t* data_ = nullptr;
    uint8_t* writable_ = nullptr;
    OwnedBlock copy_;
};

// A byte of a block, 0 beyond its end.
inline uint8_t byteAt(Source s, uint64_t offset) { return offset < s.size ? s.data[offset] : 0; }

}  // namespace ts::dib
