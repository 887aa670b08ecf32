// Messages of the platform host, block ownership and zero-padded access to short
// source blocks.
#include "dib/core/dib_host.h"

#include <cstring>

namespace ts::dib {

void Host::report(const char* function, const char* message) {
    this->message((std::string(function) + ": " + message).c_str());
}

void Host::message(const char* text) {
    if (!holding_) {
        show(text);
        return;
    }
    try {
        held_.emplace_back(text);
    } catch (...) {
        show(text);  // no memory left to keep it: better a box now than none
    }
}

void Host::showHeldMessages() {
    holding_ = false;
    std::vector<std::string> held;
    held.swap(held_);
    for (const std::string& text : held) show(text.c_str());
}

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
