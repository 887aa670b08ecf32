// A host for the bitmap core in native tests.
#include "support/memory_host.h"

#include <cstring>

namespace tst {

using ts::dib::Block;

bool MemoryHost::permitted(uint64_t size) {
    if (++requests_ == failAt) return false;
    if (size > limit) return false;
    if (allocationsLeft == 0) return false;
    if (allocationsLeft > 0) --allocationsLeft;
    return true;
}

bool MemoryHost::allocate(uint64_t size, Block& out) {
    if (!permitted(size)) return false;
    auto bytes = std::make_unique<std::vector<uint8_t>>(size_t(size), uint8_t(0));
    out.handle = bytes.get();
    out.data = bytes->data();
    out.size = bytes->size();
    if (out.data == nullptr) out.data = reinterpret_cast<uint8_t*>(bytes.get());  // empty block, still a handle
    blocks_[out.handle] = std::move(bytes);
    return true;
}

bool MemoryHost::reallocate(Block& block, uint64_t size) {
    auto it = blocks_.find(block.handle);
    if (it == blocks_.end() || !permitted(size)) return false;
    it->second->resize(size_t(size), 0);
    block.data = it->second->data();
    block.size = it->second->size();
    return true;
}

void MemoryHost::release(Block& block) {
    blocks_.erase(block.handle);
    block = Block{};
}

void* MemoryHost::detach(Block& block) {
    void* handle = block.handle;
    block = Block{};
    return handle;
}

TestDib makeDib(int32_t width, int32_t height, uint16_t bits, const std::vector<ts::dib::RgbQuad>& table,
                uint32_t compression, const std::vector<uint32_t>& masks) {
    ts::dib::InfoHeader h = ts::dib::newHeader(width, height, bits);
    h.biCompression = compression;
    h.biClrUsed = uint32_t(table.size());
    TestDib dib;
    dib.bytes.resize(size_t(ts::dib::pixelOffset(h) + h.biSizeImage));
    ts::dib::writeHeader(dib.bytes.data(), h);
    if (!table.empty()) std::memcpy(dib.bytes.data() + 40, table.data(), 4 * table.size());
    for (size_t i = 0; i < masks.size(); ++i) ts::dib::put32(dib.bytes.data() + 40 + 4 * table.size() + 4 * i, masks[i]);
    return dib;
}

ts::dib::InfoHeader headerOf(const ts::dib::OwnedBlock& block) {
    return ts::dib::readHeader(block.data(), block.size());
}

ts::dib::RgbQuad entryOf(const ts::dib::OwnedBlock& block, unsigned i) {
    ts::dib::RgbQuad q;
    std::memcpy(&q, block.data() + 40 + 4 * i, 4);
    return q;
}

const uint8_t* rowOf(const ts::dib::OwnedBlock& block, int r) {
    ts::dib::InfoHeader h = headerOf(block);
    return block.data() + ts::dib::pixelOffset(h) + r * ts::dib::strideOf(h.biWidth, h.biBitCount);
}

}  // namespace tst
