// LZW encoding for GIF. The string table answers "code of string + pixel" through a
// hash of (string, pixel) pairs; the table only ever holds one entry per pair, so any
// exact lookup yields the same codes, and with them the same bytes.
#include "lzw_encode.h"

#include <cstring>

#include "code_packer.h"

namespace ts::gif {

namespace {

constexpr unsigned kHashBits = 14;
constexpr std::uint32_t kHashSlots = 1u << kHashBits;  // at most a quarter full
constexpr std::uint32_t kEmpty = 0xFFFFFFFF;           // no (string, pixel) pair maps here

// A slot holds (string << 8 | pixel) << 12 | code; 32 bits hold all three exactly.
class StringTable {
public:
    StringTable(GifModule& module, std::uint32_t* slots, unsigned minCodeSize)
        : module_(module), slots_(slots), clear_(1u << minCodeSize) {}

    std::uint32_t clearCode() const { return clear_; }
    std::uint32_t next() const { return next_; }

    // Roots only: every code from clear + 2 on is free again.
    void reset() {
        next_ = clear_ + 2;
        for (std::uint32_t code = 0; code < next_; ++code) {
            module_.prefix[code] = kNoCode;
            module_.suffix[code] = static_cast<std::uint8_t>(code);
        }
        std::memset(slots_, 0xFF, kHashSlots * sizeof *slots_);
    }

    // The code of string + pixel, or kEmpty; slot_ remembers where to add it.
    std::uint32_t find(std::uint32_t string, std::uint8_t pixel) {
        std::uint32_t key = string << 8 | pixel;
        std::uint32_t at = (key * 2654435761u) >> (32 - kHashBits);
        for (;; at = (at + 1) & (kHashSlots - 1)) {
            std::uint32_t slot = slots_[at];
            if (slot == kEmpty || slot >> 12 == key) {
                slot_ = at;
                return slot == kEmpty ? kEmpty : slot & 0xFFF;
            }
        }
    }

    // Adds string + pixel at the next free code, in the slot the last find() stopped at.
    void add(std::uint32_t string, std::uint8_t pixel) {
        slots_[slot_] = (string << 8 | pixel) << 12 | next_;
        module_.prefix[next_] = string;
        module_.suffix[next_] = pixel;
        ++next_;
    }

private:
    GifModule& module_;
    std::uint32_t* slots_;
    std::uint32_t clear_;
    std::uint32_t next_ = 0;
    std::uint32_t slot_ = 0;
};

void encodePixels(const std::uint8_t* pixels, std::size_t count, unsigned minCodeSize,
                  StringTable& table, CodePacker& packer) {
    unsigned size = minCodeSize + 1;
    packer.put(table.clearCode(), size);
    std::uint32_t string = kNoCode;  // an empty image ends with this code's low bits: 0
    if (count != 0) string = pixels[0];  // a single pixel is always a root
    for (std::size_t i = 1; i < count; ++i) {
        std::uint8_t pixel = pixels[i];
        std::uint32_t code = table.find(string, pixel);
        if (code != kEmpty) {
            string = code;
            continue;
        }
        packer.put(string, size);
        if (table.next() < kMaxCodes) {
            // The code size follows the bit length of the newest code.
            if (table.next() >> size != 0) ++size;
            table.add(string, pixel);
        } else {
            table.reset();
            packer.put(table.clearCode(), size);
            size = minCodeSize + 1;
        }
        string = pixel;
    }
    packer.put(string & ((1u << size) - 1), size);
    packer.put(table.clearCode() + 1, size);
    packer.finish();
}

}  // namespace

bool lzwEncode(const std::uint8_t* pixels, std::size_t count, unsigned minCodeSize,
               GifModule& module, Memory& memory, ByteSink& sink, Reporter& reporter) {
    Block slots(memory, std::uint64_t{kHashSlots} * sizeof(std::uint32_t));
    if (!slots) {
        reporter.error(text::kNoMemoryPrefix);
        return false;
    }
    StringTable table(module, reinterpret_cast<std::uint32_t*>(slots.bytes()), minCodeSize);
    table.reset();
    CodePacker packer(sink);
    encodePixels(pixels, count, minCodeSize, table, packer);
    return true;
}

}  // namespace ts::gif
