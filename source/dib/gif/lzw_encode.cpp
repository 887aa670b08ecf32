// LZW encoding for GIF. The string table holds one code per (string, pixel) pair, so
// any exact lookup yields the same codes, and with them the same bytes, as a search
// through each code's children.
#include "lzw_encode.h"

namespace ts::gif {

bool LzwEncoder::start(unsigned minCodeSize) {
    std::uint64_t slotBytes = StringTable::kHashSlots * sizeof(std::uint32_t);
    if (!storage_.allocate(slotBytes + kMaxCodes * sizeof(std::uint32_t))) return false;
    std::uint8_t* bytes = storage_.data();
    table_ = {tables_.prefix, tables_.suffix, reinterpret_cast<std::uint32_t*>(bytes),
              reinterpret_cast<std::uint32_t*>(bytes + slotBytes), 1u << minCodeSize, 0};
    table_.reset();
    minCodeSize_ = minCodeSize;
    size_ = minCodeSize + 1;
    putCode(pack_, block_, sink_, table_.clear, size_);
    return true;
}

// The hot state is copied into locals, so that stored bytes cannot make the compiler
// reload it.
void LzwEncoder::feed(const std::uint8_t* pixels, std::size_t count) {
    if (count == 0) return;
    StringTable table = table_;
    PackState pack = pack_;
    std::uint32_t string = string_;
    unsigned size = size_;
    std::size_t i = 0;
    if (string == kNoCode) string = pixels[i++];  // a single pixel is always a root
    for (; i < count; ++i) {
        std::uint8_t pixel = pixels[i];
        std::uint32_t code = table.find(string, pixel);
        if (code != 0) {
            string = code;
            continue;
        }
        putCode(pack, block_, sink_, string, size);
        if (table.next < kMaxCodes) {
            if (table.next >> size != 0) ++size;  // the size of the newest code
            table.add(string, pixel);
        } else {
            table.reset();
            putCode(pack, block_, sink_, table.clear, size);
            size = minCodeSize_ + 1;
        }
        string = pixel;
    }
    table_ = table;
    pack_ = pack;
    string_ = string;
    size_ = size;
}

void LzwEncoder::finish() {
    putCode(pack_, block_, sink_, string_ & ((1u << size_) - 1), size_);
    putCode(pack_, block_, sink_, table_.clear + 1, size_);
    finishBlocks(pack_, block_, sink_);
}

}  // namespace ts::gif
