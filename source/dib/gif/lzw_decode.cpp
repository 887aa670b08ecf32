// LZW decoding of GIF raster data into one byte per pixel.
#include "lzw_decode.h"

#include <algorithm>
#include <cstdio>

#include "gif_text.h"

namespace ts::gif {

namespace {

// Larger minimum code sizes would put the clear code beyond the 12-bit table.
constexpr unsigned kLargestMinCodeSize = 11;

enum class Step { Good, Bad, End };

void clearTable(LzwState& s) {
    s.codeSize = s.minCodeSize + 1;
    s.mask = (1u << s.codeSize) - 1;
    s.next = s.clear + 2;
    s.prev = kNoCode;
}

Step badCode(dib::Host& host, std::uint32_t code) {
    char message[64];
    std::snprintf(message, sizeof message, text::kInvalidCode, static_cast<int>(code));
    host.message(message);
    return Step::Bad;
}

// Where one decoded string goes: the stack holds it backwards.
struct Output {
    std::uint8_t* out;
    std::size_t capacity;
};

inline void emit(LzwState& s, const Output& o, const std::uint8_t* stack, std::uint32_t top) {
    std::uint64_t at = s.produced;
    s.produced += top;
    if (at >= o.capacity) return;
    std::uint32_t room = static_cast<std::uint32_t>(std::min<std::uint64_t>(top, o.capacity - at));
    std::uint8_t* to = o.out + at;
    for (std::uint32_t i = 0; i < room; ++i) to[i] = stack[top - 1 - i];
}

// A string that is not the first after a clear: walk it onto the stack, add the
// previous string + its first character, let the code size follow the table.
inline Step decodeString(LzwState& s, GifTables& t, const Output& o, dib::Host& host,
                         std::uint32_t code) {
    std::uint8_t* stack = t.stack;
    std::uint32_t top = 0;
    std::uint32_t current = code;
    if (code == s.next) {
        stack[top++] = s.first;
        current = s.prev;
    }
    while (current > s.clear) {
        // Only a damaged stream makes a string that loops back on itself.
        if (top >= kMaxCodes) return badCode(host, code);
        stack[top++] = t.suffix[current];
        current = t.prefix[current];
    }
    s.first = t.suffix[current];
    stack[top++] = s.first;
    // A full table keeps writing its new entry to the spare slot at 4096.
    t.prefix[s.next] = s.prev;
    t.suffix[s.next] = s.first;
    if (s.next < kMaxCodes) ++s.next;
    if ((s.next & s.mask) == 0 && s.next < kMaxCodes) s.mask = (1u << ++s.codeSize) - 1;
    s.prev = code;
    emit(s, o, stack, top);
    return Step::Good;
}

inline Step step(LzwState& s, GifTables& t, const Output& o, dib::Host& host, std::uint32_t code) {
    if (code == s.end) return Step::End;
    if (code == s.clear) {
        clearTable(s);
        return Step::Good;
    }
    if (code > s.next) return badCode(host, code);
    if (s.prev != kNoCode) return decodeString(s, t, o, host, code);
    s.first = t.suffix[code];
    t.stack[0] = s.first;
    s.prev = code;
    emit(s, o, t.stack, 1);
    return Step::Good;
}

}  // namespace

bool LzwDecoder::decode(std::uint8_t* out, std::size_t capacity, std::uint64_t expected) {
    out_ = out;
    capacity_ = capacity;
    std::uint8_t minCodeSize = 0;
    source_.readByte(minCodeSize);
    if (minCodeSize > kLargestMinCodeSize) {
        host_.message(text::kLzwError);
        return false;
    }
    start(minCodeSize);
    bool skipping = false;
    std::uint8_t block[255];
    std::uint8_t length = 0;
    // A missing length byte ends the data like a terminator.
    while (source_.readByte(length) && length != 0) {
        std::size_t got = source_.read(block, length);
        if (got < length) host_.message(text::kReadLoop);
        if (skipping) continue;
        if (!decodeBlock(block, got)) return state_.good;  // end code
        // After an invalid code the rest of the data is only read over.
        skipping = !state_.good;
    }
    if (state_.produced != expected) {
        host_.message(text::kLzwError);
        return false;
    }
    return true;
}

void LzwDecoder::start(unsigned minCodeSize) {
    state_.minCodeSize = minCodeSize;
    state_.clear = 1u << minCodeSize;
    state_.end = state_.clear + 1;
    for (std::uint32_t code = 0; code < state_.clear; ++code) {
        tables_.prefix[code] = kNoCode;
        tables_.suffix[code] = static_cast<std::uint8_t>(code);
    }
    // Codes a damaged stream uses before defining them decode the same way every time,
    // whatever an earlier file left in the tables.
    std::fill(tables_.prefix + state_.clear, tables_.prefix + kMaxCodes + 1, 0u);
    std::fill(tables_.suffix + state_.clear, tables_.suffix + kMaxCodes + 1, std::uint8_t{0});
    clearTable(state_);
}

// Returns false at the end code. Bytes behind an invalid code are dropped, but the
// codes already in the bit buffer are still decoded. The registers are copied into a
// local, so that stored pixel bytes cannot make the compiler reload them.
bool LzwDecoder::decodeBlock(const std::uint8_t* bytes, std::size_t count) {
    LzwState s = state_;
    Output o{out_, capacity_};
    bool more = true;
    for (std::size_t i = 0; i < count && more; ++i) {
        s.bitBuffer |= std::uint32_t{bytes[i]} << s.bitCount;
        s.bitCount += 8;
        bool invalid = false;
        while (s.bitCount >= s.codeSize) {
            std::uint32_t code = s.bitBuffer & s.mask;
            s.bitBuffer >>= s.codeSize;
            s.bitCount -= s.codeSize;
            Step result = step(s, tables_, o, host_, code);
            if (result == Step::End) {
                more = false;
                break;
            }
            s.good = result == Step::Good;
            invalid = invalid || !s.good;
        }
        if (invalid) break;
    }
    state_ = s;
    return more;
}

}  // namespace ts::gif
