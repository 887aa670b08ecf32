// The bitmap library's host for the GIF benchmarks: blocks from the C heap, messages
// to standard error, OK to the version question.
#pragma once

#include <cstdio>
#include <cstdlib>

#include "dib/core/dib_host.h"

namespace gifbench {

class HeapHost final : public ts::dib::Host {
public:
    bool allocate(uint64_t size, ts::dib::Block& out) override {
        void* data = size <= SIZE_MAX ? std::calloc(size ? size_t(size) : 1, 1) : nullptr;
        out = ts::dib::Block{data, static_cast<uint8_t*>(data), size_t(size)};
        return data != nullptr;
    }
    bool reallocate(ts::dib::Block&, uint64_t) override { return false; }  // the codec never grows a block
    void release(ts::dib::Block& block) override {
        std::free(block.handle);
        block = {};
    }
    void* detach(ts::dib::Block& block) override {
        void* handle = block.handle;
        block = {};
        return handle;
    }
    void cursor(ts::dib::Cursor) override {}
    bool askToContinue(const char*) override { return true; }

protected:
    void show(const char* text) override { std::fprintf(stderr, "codec: %s\n", text); }
};

}  // namespace gifbench
