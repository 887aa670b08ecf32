// Block ownership and zero-padded access to short source blocks.
#include "dib/core/dib_host.h"

#include <cstring>
#include <new>

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
    if (need > SIZE_MAX) return false;
    copy_.reset(new (std::nothrow) uint8_t[size_t(need)]());
    if (!copy_) return false;
    std::memcpy(copy_.get(), source.data, source.size);
    data_ = copy_.get();
    writable_ = copy_.get();
    return true;
}

bool PaddedSource::openWritable(Block block, uint64_t need) {
    if (!open(Source{block.data, block.size}, need)) return false;
    if (!copy_) writable_ = block.data;
    return true;
}

}  // namespace ts::dib
