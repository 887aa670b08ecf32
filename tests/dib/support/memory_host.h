// A host for the bitmap and GIF cores in native tests: blocks in memory, recorded
// messages, questions and cursors, allocations that can be made to fail.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "dib/core/dib_host.h"
#include "dib/core/dib_layout.h"

namespace tst {

class MemoryHost : public ts::dib::Host {
public:
    bool allocate(uint64_t size, ts::dib::Block& out) override;
    bool reallocate(ts::dib::Block& block, uint64_t size) override;
    void release(ts::dib::Block& block) override;
    void* detach(ts::dib::Block& block) override;
    void cursor(ts::dib::Cursor shape) override { cursors.push_back(shape); }
    bool askToContinue(const char* question) override {
        questions.emplace_back(question);
        return answer;
    }

    // Blocks still allocated (leak checks).
    size_t liveBlocks() const { return blocks_.size(); }
    // Allocation requests so far.
    int requests() const { return requests_; }

    std::vector<std::string> messages;
    std::vector<std::string> questions;
    std::vector<ts::dib::Cursor> cursors;
    bool answer = true;                    // to the version question
    uint64_t limit = uint64_t(512) << 20;  // larger requests fail, as a full heap would
    int allocationsLeft = -1;              // >= 0: that many succeed, then all fail
    int failAt = 0;                        // > 0: this request (counted from 1) fails

protected:
    void show(const char* text) override { messages.emplace_back(text); }

private:
    bool permitted(uint64_t size);
    int requests_ = 0;
    std::map<void*, std::unique_ptr<std::vector<uint8_t>>> blocks_;
};

// A packed bitmap built in a vector, for use as a source.
struct TestDib {
    std::vector<uint8_t> bytes;
    ts::dib::Source source() const { return ts::dib::Source{bytes.data(), bytes.size()}; }
    ts::dib::Block block() { return ts::dib::Block{nullptr, bytes.data(), bytes.size()}; }
    ts::dib::InfoHeader header() const { return ts::dib::readHeader(bytes.data(), bytes.size()); }
    uint8_t* bits() { return bytes.data() + ts::dib::pixelOffset(header()); }
    uint8_t* row(int r) { return bits() + r * ts::dib::strideOf(header().biWidth, header().biBitCount); }
};

// Header, `table` colour entries, masks for bit fields, zeroed rows.
TestDib makeDib(int32_t width, int32_t height, uint16_t bits, const std::vector<ts::dib::RgbQuad>& table = {},
                uint32_t compression = 0, const std::vector<uint32_t>& masks = {});

// The header of a result block.
ts::dib::InfoHeader headerOf(const ts::dib::OwnedBlock& block);
// The colour-table entry i of a result block.
ts::dib::RgbQuad entryOf(const ts::dib::OwnedBlock& block, unsigned i);
// Row r of a result block, at its pixel offset.
const uint8_t* rowOf(const ts::dib::OwnedBlock& block, int r);

}  // namespace tst
