// Memory byte sources and sinks.
#include "dib/core/byte_stream.h"

#include <cstring>

namespace ts::dib {

int64_t MemorySource::read(void* buffer, uint64_t count) {
    if (position_ >= size_) return 0;
    uint64_t n = size_ - position_;
    if (count < n) n = count;
    std::memcpy(buffer, data_ + position_, size_t(n));
    position_ += n;
    return int64_t(n);
}

int64_t MemorySource::seek(int64_t offset, SeekFrom from) {
    int64_t base = from == SeekFrom::Begin ? 0 : from == SeekFrom::Current ? int64_t(position_) : int64_t(size_);
    if (offset < -base) return -1;
    position_ = uint64_t(base + offset);
    return int64_t(position_);
}

int64_t MemorySink::write(const void* buffer, uint64_t count) {
    uint64_t room = limit_ - bytes.size();
    uint64_t n = count < room ? count : room;
    const uint8_t* p = static_cast<const uint8_t*>(buffer);
    try {
        bytes.insert(bytes.end(), p, p + n);
    } catch (...) {
        return -1;
    }
    return int64_t(n);
}

bool readRest(ByteSource& in, OwnedBlock& into, uint64_t& size) {
    size = 0;
    int64_t here = in.seek(0, SeekFrom::Current);
    int64_t end = in.seek(0, SeekFrom::End);
    uint64_t rest = here >= 0 && end > here ? uint64_t(end - here) : 0;
    if (here >= 0) in.seek(here, SeekFrom::Begin);
    if (!into.allocate(rest)) return false;
    int64_t got = rest > 0 ? in.read(into.data(), rest) : 0;
    size = got > 0 ? uint64_t(got) : 0;
    return true;
}

}  // namespace ts::dib
