// LZW decoding of GIF raster data into one byte per pixel.
#include "lzw_decode.h"

#include <algorithm>
#include <cstdio>

namespace ts::gif {

namespace {
// Larger minimum code sizes would put the clear code beyond the 12-bit table.
constexpr unsigned kLargestMinCodeSize = 11;
}  // namespace

bool LzwDecoder::decode(std::uint8_t* out, std::size_t capacity, std::uint64_t expected) {
    out_ = out;
    capacity_ = capacity;
    std::uint8_t minCodeSize = 0;
    source_.readByte(minCodeSize);
    if (minCodeSize > kLargestMinCodeSize) {
        reporter_.error(text::kLzwError);
        return false;
    }
    start(minCodeSize);
    bool skipping = false;
    std::uint8_t block[255];
    std::uint8_t length = 0;
    // A missing length byte ends the data like a terminator.
    while (source_.readByte(length) && length != 0) {
        std::size_t got = source_.read(block, length);
        if (got < length) reporter_.error(text::kReadLoop);
        if (skipping) continue;
        if (!decodeBlock(block, got)) return good_;  // end code
        // After an invalid code the rest of the data is only read over.
        skipping = !good_;
    }
    if (produced_ != expected) {
        reporter_.error(text::kLzwError);
        return false;
    }
    return true;
}

void LzwDecoder::start(unsigned minCodeSize) {
    minCodeSize_ = minCodeSize;
    clear_ = 1u << minCodeSize;
    end_ = clear_ + 1;
    for (std::uint32_t code = 0; code < clear_; ++code) {
        tables_.prefix[code] = kNoCode;
        tables_.suffix[code] = static_cast<std::uint8_t>(code);
    }
    // Codes a damaged stream uses before defining them decode the same way every time,
    // whatever an earlier file left in the tables.
    std::fill(tables_.prefix + clear_, tables_.prefix + kMaxCodes + 1, 0u);
    std::fill(tables_.suffix + clear_, tables_.suffix + kMaxCodes + 1, std::uint8_t{0});
    clear();
}

void LzwDecoder::clear() {
    codeSize_ = minCodeSize_ + 1;
    mask_ = (1u << codeSize_) - 1;
    next_ = clear_ + 2;
    prev_ = kNoCode;
}

// Returns false at the end code. Bytes behind an invalid code are dropped, but the
// codes already in the bit buffer are still decoded.
bool LzwDecoder::decodeBlock(const std::uint8_t* bytes, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) {
        bitBuffer_ |= std::uint32_t{bytes[i]} << bitCount_;
        bitCount_ += 8;
        bool invalid = false;
        while (bitCount_ >= codeSize_) {
            std::uint32_t code = bitBuffer_ & mask_;
            bitBuffer_ >>= codeSize_;
            bitCount_ -= codeSize_;
            Step result = step(code);
            if (result == Step::End) return false;
            good_ = result == Step::Good;
            invalid = invalid || !good_;
        }
        if (invalid) break;
    }
    return true;
}

LzwDecoder::Step LzwDecoder::step(std::uint32_t code) {
    if (code == end_) return Step::End;
    if (code == clear_) {
        clear();
        return Step::Good;
    }
    if (code > next_) return badCode(code);
    std::uint8_t* stack = tables_.stack;
    if (prev_ == kNoCode) {
        first_ = tables_.suffix[code];
        stack[0] = first_;
        prev_ = code;
        emit(1);
        return Step::Good;
    }
    std::uint32_t top = 0;
    std::uint32_t current = code;
    if (code == next_) {
        stack[top++] = first_;
        current = prev_;
    }
    while (current > clear_) {
        // Only a damaged stream makes a string that loops back on itself.
        if (top >= kMaxCodes) return badCode(code);
        stack[top++] = tables_.suffix[current];
        current = tables_.prefix[current];
    }
    first_ = tables_.suffix[current];
    stack[top++] = first_;
    // A full table keeps writing its new entry to the spare slot at 4096.
    tables_.prefix[next_] = prev_;
    tables_.suffix[next_] = first_;
    if (next_ < kMaxCodes) ++next_;
    if ((next_ & mask_) == 0 && next_ < kMaxCodes) {
        ++codeSize_;
        mask_ = (1u << codeSize_) - 1;
    }
    prev_ = code;
    emit(top);
    return Step::Good;
}

LzwDecoder::Step LzwDecoder::badCode(std::uint32_t code) {
    char message[64];
    std::snprintf(message, sizeof message, text::kInvalidCode, static_cast<int>(code));
    reporter_.error(message);
    return Step::Bad;
}

// The stack holds the string backwards.
void LzwDecoder::emit(std::uint32_t top) {
    std::uint64_t at = produced_;
    produced_ += top;
    if (at >= capacity_) return;
    std::uint32_t room = static_cast<std::uint32_t>(std::min<std::uint64_t>(top, capacity_ - at));
    std::uint8_t* to = out_ + at;
    const std::uint8_t* stack = tables_.stack;
    for (std::uint32_t i = 0; i < room; ++i) to[i] = stack[top - 1 - i];
}

}  // namespace ts::gif
