// Copying a caller's array into a node's own vector, with failure as a value: the
// nodes report a failed copy with a message of their own instead of an exception.
#pragma once

#include <cstdint>
#include <new>
#include <stdexcept>
#include <vector>

namespace ts::mesh {

// to := count elements of from; false when count is negative or the memory cannot be had.
template <typename T>
bool copyArray(std::vector<T>& to, const T* from, int64_t count) {
    if (count < 0 || uint64_t(count) > to.max_size()) return false;
    try {
        to.assign(from, from + count);
    } catch (const std::bad_alloc&) {
        return false;
    } catch (const std::length_error&) {
        return false;
    }
    return true;
}

// Frees the memory, not just the elements: an emptied node keeps nothing.
template <typename T>
void release(std::vector<T>& v) {
    std::vector<T>().swap(v);
}

}  // namespace ts::mesh
