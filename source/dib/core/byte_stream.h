// Sequential byte sources and sinks under the BMP reader and writer: files on the
// platform, memory in tests and fuzzers.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

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

// A sink that appends to a vector; `limit` bytes at most, to imitate a full disk.
class MemorySink : public ByteSink {
public:
    explicit MemorySink(uint64_t limit = UINT64_MAX) : limit_(limit) {}
    int64_t write(const void* buffer, uint64_t count) override;
    std::vector<uint8_t> bytes;

private:
    uint64_t limit_;
};

}  // namespace ts::dib
