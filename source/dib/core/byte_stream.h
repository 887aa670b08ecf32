// Sequential byte sources and sinks under the BMP and GIF readers and writers: files on
// the platform, memory in tests and fuzzers.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "dib/core/dib_host.h"

namespace ts::dib {

enum class SeekFrom { Begin = 0, Current = 1, End = 2 };

class ByteSource {
public:
    virtual ~ByteSource() = default;
    // Bytes read into buffer (fewer at the end of the data), or -1 on error.
    virtual int64_t read(void* buffer, uint64_t count) = 0;
    // New position, or -1 when it would lie before the start.
    virtual int64_t seek(int64_t offset, SeekFrom from) = 0;
};

class ByteSink {
public:
    virtual ~ByteSink() = default;
    // Bytes written, or -1 on error.
    virtual int64_t write(const void* buffer, uint64_t count) = 0;

    // Appends bytes; a short or failed write is remembered, nothing is thrown.
    void put(const void* bytes, uint64_t count) {
        if (write(bytes, count) != int64_t(count)) failed_ = true;
    }
    void put(uint8_t byte) { put(&byte, 1); }
    void putWord(uint32_t value) {  // 16 bits, little-endian
        uint8_t bytes[2] = {uint8_t(value), uint8_t(value >> 8)};
        put(bytes, 2);
    }
    // True once a put() came short.
    bool failed() const { return failed_; }

private:
    bool failed_ = false;
};

// A source over bytes in memory; positions past the end read nothing.
class MemorySource : public ByteSource {
public:
    MemorySource(const uint8_t* data, size_t size) : data_(data), size_(size) {}
    int64_t read(void* buffer, uint64_t count) override;
    int64_t seek(int64_t offset, SeekFrom from) override;

private:
    const uint8_t* data_;
    size_t size_;
    uint64_t position_ = 0;
};

// A sink that appends to a vector; `limit` bytes at most, to imitate a full disk. A
// vector that cannot grow takes nothing more.
class MemorySink : public ByteSink {
public:
    explicit MemorySink(uint64_t limit = UINT64_MAX) : limit_(limit) {}
    int64_t write(const void* buffer, uint64_t count) override;
    std::vector<uint8_t> bytes;

private:
    uint64_t limit_;
};

// The rest of a source, from its position to its end, in a new block of the host;
// `size` tells how many bytes came. False when the block cannot be had.
bool readRest(ByteSource& in, OwnedBlock& into, uint64_t& size);

}  // namespace ts::dib
