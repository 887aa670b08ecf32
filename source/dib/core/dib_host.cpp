// Block ownership and zero-padded access to short source blocks.
#include "dib/core/dib_host.h"

#include <cstring>

namespace ts::dib {

OwnedBlock& OwnedBlock::operator=(OwnedBlock&& other) noexcept {
    if (this != &other) {
        reset();
        host_ = other.host_;
        block_ = other.block_;
        other.block_ = {};
    }
    return *this;
}

void OwnedBlock::reset() {
    if (block_.handle) host_->release(block_);
    block_ = {};
}

bool PaddedSource::open(Source source, uint64_t need) {
    if (need <= source.size) {
        data_ = source.data;
        return true;
    }
    if (!copy_.allocate(need)) return false;
    std::memcpy(copy_.data(), source.data, source.size);
    data_ = writable_ = copy_.data();
    return true;
}

bool PaddedSource::openWritable(Block block, uint64_t need) {
    if (!open(Source{block.data, block.size}, need)) return false;
    if (!copy_) writable_ = block.data;
    return true;
}

}  // namespace ts::dib
